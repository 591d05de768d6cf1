// A widget that draws a stretch of time: bars or curves above one axis.
#pragma once

#include "app/present/Strip.h"

#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

namespace kestrav::desktop
{

/// What is drawn, and what its places mean.
struct StripDrawing
{
    present::DisplayList list;
    present::TimeAxis axis;
    /// Where the line of the shared moment ends; 0 where the drawing has that line.
    double bottom = 0.0;
    std::vector<present::Link> links; ///< of the regions of the list, by their order
    std::vector<double> stops;        ///< moments between which the arrow keys go
};

/// The drawing of a strip in the size of the view. Pointing at something shows its tip; a click or
/// an arrow key chooses a moment.
class StripView : public QWidget
{
    Q_OBJECT

public:
    explicit StripView(QWidget* parent = nullptr);

    /// Size, colours and letters for the drawing.
    [[nodiscard]] present::StripOptions options() const;
    void setDrawing(StripDrawing drawing);
    /// A sentence in the place of a drawing.
    void setNote(const QString& note);
    /// From where the arrow keys go, and where the line stands that the drawing does not have.
    void setSharedMoment(std::optional<double> moment);
    [[nodiscard]] const StripDrawing& drawing() const
    {
        return drawing_;
    }
    /// Where a moment lies in the view.
    [[nodiscard]] QPoint placeOf(double moment) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// A drawing of other size, colours or letters is needed.
    void layoutWanted();
    void momentChosen(double moment);
    void linkChosen(const kestrav::present::Link& link);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int margin() const;
    [[nodiscard]] int regionUnder(const QPoint& place) const;

    StripDrawing drawing_;
    QString note_;
    std::optional<double> moment_;
};

/// The drawing of a model of bars.
[[nodiscard]] StripDrawing drawingOf(const present::StripModel& model,
                                     const present::StripOptions& options);

} // namespace kestrav::desktop
