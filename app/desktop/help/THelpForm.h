// The window of the help pages.
#pragma once

#include <QDialog>

class QLabel;
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
    bool findOnOtherPages();

    QTextBrowser* browser_;
    QLineEdit* find_;
    QLabel* missing_; ///< tells that no page has what is looked for
};

} // namespace kestrav::desktop
