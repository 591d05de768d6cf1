// The control in which one setting is changed.
#pragma once

#include "core/Settings.h"

#include <QObject>
#include <QString>

#include <functional>

class QBoxLayout;
class QCheckBox;
class QFormLayout;
class QLabel;
class QWidget;

namespace kestrav::desktop
{

/// A switch, a chooser, a number or a line of text, as the setting needs it. What was not edited
/// keeps its exact value, also where the control shows it rounded.
class SettingEditor : public QObject
{
    Q_OBJECT

public:
    /// The control is named after the setting, with its kind: "HouseSystemComboBox".
    SettingEditor(const core::SettingInfo& info, QWidget* parent);

    [[nodiscard]] const core::SettingInfo& info() const
    {
        return info_;
    }
    /// What stands in a layout, and the control in it that takes the focus.
    [[nodiscard]] QWidget* widget() const
    {
        return widget_;
    }
    [[nodiscard]] QWidget* control() const
    {
        return control_;
    }

    void show(const core::Settings& settings);
    /// Stores what the control shows into this setting and no other.
    void store(core::Settings& settings) const;

signals:
    /// The user changed it.
    void edited();

private:
    void makeFlags(QWidget* parent);
    void makeSwitch(QWidget* parent);
    void makeChooser(QWidget* parent);
    void makeWholeNumber(QWidget* parent);
    void makeNumber(QWidget* parent);
    void makeText(QWidget* parent);
    void name(QWidget* control, const char* kind);

    const core::SettingInfo& info_;
    QWidget* widget_ = nullptr;
    QWidget* control_ = nullptr;
    std::function<void(const core::Settings&)> show_;
    std::function<void(core::Settings&)> store_;
    bool showing_ = false;
};

/// A row of a form: the label of the setting as the buddy of its control, or the switch with the
/// label on it. The meaning is its tip.
SettingEditor* addSettingRow(QFormLayout* form, std::string_view setting,
                             const QString& label = {});

} // namespace kestrav::desktop
