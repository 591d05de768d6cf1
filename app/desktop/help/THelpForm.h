// The window of the help pages.
#pragma once

#include <QDialog>

class QLineEdit;
class QTextBrowser;

namespace kestrav::desktop
{

class THelpForm : public QDialog
{
    Q_OBJECT

public:
    explicit THelpForm(QWidget* parent);

    /// Shows the page of a panel, form or dialog, or a page by its file name.
    void showTopic(const QString& panelOrForm);
    /// The file name of the page that is shown.
    [[nodiscard]] QString page() const;

private:
    void FindEditReturnPressed();

    QTextBrowser* browser_;
    QLineEdit* find_;
};

} // namespace kestrav::desktop
