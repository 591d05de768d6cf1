// The line at the bottom of the window: the shown chart in short, and warning lamps.
#pragma once

#include <QLabel>
#include <QObject>
#include <QTimer>

class QStatusBar;
class QToolButton;

namespace kestrav::desktop
{

class TKSVform1;

/// A line of text that is cut with dots where there is no room; the tip then has all of it.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

class StatusLine : public QObject
{
    Q_OBJECT

public:
    explicit StatusLine(TKSVform1& window);

private:
    ElidedLabel* addLabel(const char* name, const QString& meaning);
    QToolButton* addLamp(const char* name, const QString& tip);
    void showChart();
    void showDasha();
    void showUnsaved();
    void showResearch();
    void showChanged();

    TKSVform1& window_;
    QStatusBar* bar_;
    ElidedLabel* name_;
    ElidedLabel* local_;
    ElidedLabel* universal_;
    ElidedLabel* ayanamsa_;
    ElidedLabel* sunrise_;
    ElidedLabel* dasha_;
    QToolButton* changed_;
    QToolButton* unsaved_;
    QToolButton* research_;
    QTimer dashaDue_;
    QTimer researchDue_;
};

} // namespace kestrav::desktop
