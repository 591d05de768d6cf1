// Counts drawn as bars.
#pragma once

#include "app/present/BarChart.h"

#include <QWidget>

namespace kestrav::desktop
{

/// As wide as its place, as high as its bars need.
class BarChartView : public QWidget
{
    Q_OBJECT

public:
    explicit BarChartView(QWidget* parent = nullptr);

    void setModel(present::BarChartModel model);
    [[nodiscard]] const present::BarChartModel& model() const
    {
        return model_;
    }
    /// The drawing for light paper.
    [[nodiscard]] present::DisplayList drawingForPaper() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void layOut();

    present::BarChartModel model_;
    present::DisplayList list_;
};

} // namespace kestrav::desktop
