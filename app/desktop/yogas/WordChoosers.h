// The fields in which the words of a condition are chosen, one for each kind of parameter.
#pragma once

#include "app/present/ConditionDraft.h"

#include <QWidget>

#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QSpinBox;

namespace kestrav::desktop
{

/// A field for the words of one parameter.
class WordChooser : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The words as conditions write them; empty for what is left out.
    [[nodiscard]] virtual std::string words() const = 0;
    virtual void setWords(const std::string& words) = 0;

signals:
    void changed();
};

/// A point or a set of planets: chosen or typed, a quantifier before a set, steps before a point.
class PointChooser : public WordChooser
{
    Q_OBJECT

public:
    PointChooser(const yoga::Parameter& parameter, QWidget* parent);

    [[nodiscard]] std::string words() const override;
    void setWords(const std::string& words) override;

private:
    [[nodiscard]] QString typed() const;
    void enableQuantifier();
    void addStep(const QString& step);

    bool takesQuantifier_;
    QComboBox* quantifier_;
    QComboBox* word_;
};

/// One of several words or numbers of which some are chosen by boxes.
class ListChooser : public WordChooser
{
    Q_OBJECT

public:
    ListChooser(const yoga::Parameter& parameter, QWidget* parent);

    [[nodiscard]] std::string words() const override;
    void setWords(const std::string& words) override;

private:
    void choose(std::uint32_t mask);

    yoga::Parameter parameter_;
    std::vector<QCheckBox*> boxes_;
    QComboBox* groups_ = nullptr;
};

/// One number.
class NumberChooser : public WordChooser
{
    Q_OBJECT

public:
    NumberChooser(const yoga::Parameter& parameter, QWidget* parent);

    [[nodiscard]] std::string words() const override;
    void setWords(const std::string& words) override;

private:
    QSpinBox* number_;
    bool optional_;
};

/// One plain word.
class PlainWordChooser : public WordChooser
{
    Q_OBJECT

public:
    PlainWordChooser(const yoga::Parameter& parameter, QWidget* parent);

    [[nodiscard]] std::string words() const override;
    void setWords(const std::string& words) override;

private:
    QComboBox* word_;
};

/// The field for a parameter.
[[nodiscard]] WordChooser* makeChooser(const yoga::Parameter& parameter, QWidget* parent);

} // namespace kestrav::desktop
