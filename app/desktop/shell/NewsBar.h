// The thin bar above the pages that says what happened and needs no answer.
#pragma once

#include <QFrame>

class QLabel;
class QTimer;

namespace kestrav::desktop
{

class NewsBar : public QFrame
{
    Q_OBJECT

public:
    explicit NewsBar(QWidget* parent = nullptr);

    /// Shows a line; news go by themselves, problems stay until they are closed.
    void show(const QString& text, bool problem);
    [[nodiscard]] QString text() const;

private:
    QLabel* text_;
    QTimer* timer_;
};

} // namespace kestrav::desktop
