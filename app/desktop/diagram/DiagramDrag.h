// What is carried when a point is dragged from one diagram to another.
#pragma once

#include "app/desktop/diagram/DiagramView.h"

#include <QMimeData>

#include <utility>

namespace kestrav::desktop
{

/// Inside the program it carries the point with its chart; elsewhere it is the words beside it.
class PointMimeData : public QMimeData
{
    Q_OBJECT

public:
    explicit PointMimeData(DraggedPoint point) : point_(std::move(point))
    {}

    [[nodiscard]] const DraggedPoint& point() const
    {
        return point_;
    }

private:
    DraggedPoint point_;
};

} // namespace kestrav::desktop
