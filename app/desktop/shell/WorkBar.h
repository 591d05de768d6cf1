// How far the work of a panel is, with a button to stop it.
#pragma once

#include <QWidget>

class QProgressBar;

namespace kestrav::desktop
{

class BackgroundWork;

/// Shown only while work runs that takes longer than a blink.
class WorkBar : public QWidget
{
    Q_OBJECT

public:
    WorkBar(BackgroundWork& work, QWidget* parent);

signals:
    void stopped();

private:
    BackgroundWork& work_;
    QProgressBar* progress_;
};

} // namespace kestrav::desktop
