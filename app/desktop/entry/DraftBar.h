// The bar that offers an unfinished chart entry.
#pragma once

#include <QFrame>

class QLabel;

namespace kestrav::desktop
{

class DraftBar : public QFrame
{
    Q_OBJECT

public:
    explicit DraftBar(QWidget* parent);

    /// Shows the bar when drafts were kept, and hides it when there are none.
    void lookAgain();

signals:
    /// The user wants to go on with the last one.
    void continued();
    /// The last one is to go.
    void discarded();

private:
    QLabel* text_;
};

} // namespace kestrav::desktop
