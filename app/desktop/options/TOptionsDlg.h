// The dialog that holds every setting.
#pragma once

#include "app/desktop/options/SettingRows.h"
#include "core/Settings.h"

#include <QDialog>

#include <vector>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QScrollArea;
class QToolButton;
class QVBoxLayout;

namespace kestrav::desktop
{

class SettingEditor;
class TKSVform1;

/// Every row of the settings table with its meaning and default, page by page, or those that a
/// search finds.
class TOptionsDlg : public QDialog
{
    Q_OBJECT

public:
    TOptionsDlg(TKSVform1& window, QWidget* parent);

    /// The settings as they stand in the dialog.
    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_;
    }
    /// Shows the row of a setting and gives its control the focus.
    void showSetting(std::string_view name);

private:
    struct Row
    {
        const SettingRow* row;
        SettingEditor* editor;
        QWidget* widget;
        QToolButton* reset;
        QString searched; ///< what the search looks in
    };
    struct Group
    {
        OptionsPage page;
        QLabel* heading;
        std::size_t first; ///< of its rows
        std::size_t count;
    };

    void makeRows(QWidget* parent, QVBoxLayout* box);
    Row makeRow(const SettingRow& row, QWidget* parent);
    void showRows();
    void showValues();
    void whenEdited(const SettingEditor& editor);
    void SearchEditTextChanged();
    void PageListCurrentRowChanged();
    void ResetButtonClick(const core::SettingInfo& info);
    void ResetAllButtonClick();
    void OkButtonClick();
    void ApplyButtonClick();

    TKSVform1& window_;
    core::Settings settings_;
    core::Settings inForce_;
    QLineEdit* search_;
    QListWidget* pages_;
    QScrollArea* area_;
    QLabel* none_;
    QDialogButtonBox* buttons_;
    std::vector<Row> rows_;
    std::vector<Group> groups_;
};

} // namespace kestrav::desktop
