// The shared date and time that every panel follows, with steps, and the second chart.
#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace kestrav::desktop
{

class Workspace;

/// Date and time are typed in the order and on the clock of the settings. What cannot be read stays
/// in its field, with the reason beside it, and changes nothing; Esc brings the shared date back.
class DateBar : public QWidget
{
    Q_OBJECT

public:
    DateBar(Workspace& workspace, QWidget* parent);

    /// One step of the chosen unit, forwards or backwards.
    void step(int direction);
    void goToNow();

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeFields();
    void showMoment();
    void showSecond();
    void showProblem(const QString& text);
    [[nodiscard]] int neededWidth() const;
    void fitFields();
    void DateEditEditingFinished();
    void StepComboBoxActivated();
    void SecondChartButtonClick();

    Workspace& workspace_;
    QLineEdit* date_;
    QLineEdit* time_;
    QLabel* zone_;
    QLabel* weekday_;
    QLabel* problem_;
    QComboBox* unit_;
    QLabel* secondLabel_;
    QToolButton* second_;
};

} // namespace kestrav::desktop
