// The pages of the entry form: each fills its fields from a record and stores them in one.
#pragma once

#include "core/Chart.h"
#include "data/DateOrder.h"

#include <QStringList>
#include <QWidget>

#include <array>
#include <cstddef>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSpinBox;

namespace kestrav::desktop
{

class CodeComboBox;
class PlaceFields;
class Workspace;

class EntryPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual void fill(const core::Chart& chart, data::DateOrder order) = 0;
    virtual void store(core::Chart& chart) const = 0;
    /// What must be typed before the chart can be saved, in words.
    [[nodiscard]] virtual QStringList missing() const
    {
        return {};
    }
    /// Whether everything that was typed is understood.
    [[nodiscard]] virtual bool valid() const
    {
        return true;
    }

signals:
    void edited();

protected:
    void watch(QLineEdit* edit);
    void watch(CodeComboBox* box);
};

/// A line edit for a date, with what is wrong with it.
struct DateField
{
    QLineEdit* edit = nullptr;
    QLabel* note = nullptr;
    data::DateOrder order = data::DateOrder::DayFirst;
    bool real = true; ///< the date must exist, and be there

    void fill(const core::PlainDate& date, data::DateOrder newOrder);
    [[nodiscard]] core::PlainDate value() const;
    /// What is wrong; empty for a good one, and for one that was not typed yet.
    [[nodiscard]] QString problem() const;
    void showProblem() const;
};

/// Name, sex, moment and place.
class BirthPage : public EntryPage
{
    Q_OBJECT

public:
    BirthPage(Workspace& workspace, QWidget* parent);

    void fill(const core::Chart& chart, data::DateOrder order) override;
    void store(core::Chart& chart) const override;
    [[nodiscard]] QStringList missing() const override;
    [[nodiscard]] bool valid() const override;

    /// Whether date, time and zone are there, and whether the place is.
    [[nodiscard]] bool hasMoment() const;
    [[nodiscard]] bool hasPlace() const;
    [[nodiscard]] PlaceFields& place() const
    {
        return *place_;
    }
    [[nodiscard]] QLineEdit* nameEdit() const
    {
        return name_;
    }

private:
    [[nodiscard]] bool hasDateAndTime() const;
    [[nodiscard]] core::DateTimeRecord moment() const;
    void check();

    Workspace& workspace_;
    QLineEdit* name_;
    CodeComboBox* sex_;
    DateField date_;
    QLabel* dateLabel_;
    QLineEdit* time_;
    QLabel* timeNote_;
    PlaceFields* place_;
    QString filledTime_;
    double filledHours_ = 0.0;
    std::wstring filledTimeText_;
};

/// Tag, label, first sound and the other fields about a person.
class PersonPage : public EntryPage
{
    Q_OBJECT

public:
    explicit PersonPage(QWidget* parent);

    void fill(const core::Chart& chart, data::DateOrder order) override;
    void store(core::Chart& chart) const override;
    [[nodiscard]] bool valid() const override;

private:
    void showGroup();

    CodeComboBox* tag_;
    QLineEdit* label_;
    QLineEdit* code_;
    CodeComboBox* sound_;
    QLabel* group_;
    QLineEdit* occupation_;
    QLineEdit* status_;
    QLineEdit* freeText_;
    DateField second_;
    DateField third_;
    std::array<QSpinBox*, 2> numbers_{};
};

class ContactPage : public EntryPage
{
    Q_OBJECT

public:
    explicit ContactPage(QWidget* parent);

    void fill(const core::Chart& chart, data::DateOrder order) override;
    void store(core::Chart& chart) const override;
    [[nodiscard]] bool valid() const override;

private:
    void check();

    std::array<QLineEdit*, 11> edits_{};
    QLabel* note_;
};

class NotesPage : public EntryPage
{
    Q_OBJECT

public:
    explicit NotesPage(QWidget* parent);

    void fill(const core::Chart& chart, data::DateOrder order) override;
    void store(core::Chart& chart) const override;
    [[nodiscard]] bool valid() const override;

private:
    void check();

    QPlainTextEdit* notes_;
    QLabel* room_;
    QLabel* note_;
    QString filledText_;
    std::wstring filledNotes_;
};

} // namespace kestrav::desktop
