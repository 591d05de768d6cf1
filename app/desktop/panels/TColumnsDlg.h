// The dialog in which the columns of a table are chosen and ordered.
#pragma once

#include <QDialog>
#include <QStringList>

#include <cstddef>
#include <vector>

class QDialogButtonBox;
class QLineEdit;
class QListWidget;
class QToolButton;

namespace kestrav::desktop
{

/// Columns to the left that can be shown, to the right those that are, in their order. At least one
/// has to be shown.
class TColumnsDlg : public QDialog
{
    Q_OBJECT

public:
    /// Shown columns are indexes into the headings.
    TColumnsDlg(const QStringList& headings, const std::vector<std::size_t>& shown,
                QWidget* parent);

    [[nodiscard]] std::vector<std::size_t> shown() const;

private:
    void AddButtonClick();
    void RemoveButtonClick();
    void move(int change);
    void fillAvailable();
    void enableButtons();

    QStringList headings_;
    QLineEdit* filter_;
    QListWidget* available_;
    QListWidget* shown_;
    QToolButton* add_;
    QToolButton* remove_;
    QToolButton* up_;
    QToolButton* down_;
    QDialogButtonBox* buttons_;
};

} // namespace kestrav::desktop
