// The commands of dates, dashas and transits.
#pragma once

#include <QObject>

namespace kestrav::desktop
{

class TKSVform1;

class TimingActions : public QObject
{
    Q_OBJECT

public:
    explicit TimingActions(TKSVform1& window);

private:
    void SpecialDateActionExecute();
    void TransitChoicesActionExecute();

    TKSVform1& window_;
};

} // namespace kestrav::desktop
