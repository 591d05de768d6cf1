// The shared date and time that every panel follows, with steps.
#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace kestrav::desktop
{

class Workspace;

class DateBar : public QWidget
{
    Q_OBJECT

public:
    DateBar(Workspace& workspace, QWidget* parent);

    /// One step of the chosen unit, forwards or backwards.
    void step(int direction);
    void goToNow();

private:
    void showMoment();
    void DateEditEditingFinished();

    Workspace& workspace_;
    QLineEdit* date_;
    QLineEdit* time_;
    QComboBox* unit_;
};

} // namespace kestrav::desktop
