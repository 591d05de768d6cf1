// The commands about yogas and the research table in the menus.
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace kestrav::desktop
{

class TKSVform1;
class YogaCommands;

class YogaActions : public QObject
{
    Q_OBJECT

public:
    explicit YogaActions(TKSVform1& window);

private:
    void YogaTreeActionTriggered();
    void SearchActionTriggered();

    TKSVform1& window_;
    YogaCommands* commands_;
    QPointer<QWidget> form_;
};

} // namespace kestrav::desktop
