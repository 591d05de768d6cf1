// A bar under the menus that offers something that was kept.
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace kestrav::desktop
{

class OfferBar : public QFrame
{
    Q_OBJECT

public:
    /// Both buttons carry their words from here; nothing is shown before something is offered.
    OfferBar(const QString& take, const QString& takeTip, const QString& drop,
             const QString& dropTip, QWidget* parent);

    void offer(const QString& text);

signals:
    void taken();
    void dropped();

protected:
    [[nodiscard]] QLabel& label()
    {
        return *text_;
    }
    [[nodiscard]] QPushButton& takeButton()
    {
        return *take_;
    }
    [[nodiscard]] QPushButton& dropButton()
    {
        return *drop_;
    }

private:
    QLabel* text_;
    QPushButton* take_;
    QPushButton* drop_;
};

} // namespace kestrav::desktop
