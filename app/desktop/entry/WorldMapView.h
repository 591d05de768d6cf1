// The world as the dots of its places, to look at and to choose one.
#pragma once

#include "app/desktop/entry/PlaceSource.h"

#include <QPixmap>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrav::desktop
{

class WorldMapView : public QWidget
{
    Q_OBJECT

public:
    explicit WorldMapView(PlacesPointer places, QWidget* parent = nullptr);

    /// The places that are pointed out, the first one as the chosen one.
    void setMarks(std::vector<present::GeoPlace> marks);
    /// Shows the surroundings of a place, `zoom` times as large as the whole map.
    void showAround(const present::GeoPlace& place, double zoom);
    void zoomBy(double factor);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int wide) const override;

signals:
    /// The place nearest to where the user clicked.
    void picked(std::uint32_t place);
    /// The place nearest to the pointer.
    void hovered(std::uint32_t place);
    /// The place was chosen for good.
    void activated();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] double unit() const;
    [[nodiscard]] QPointF onScreen(present::Spot spot) const;
    [[nodiscard]] present::Spot onMap(QPointF point) const;
    void zoomAt(QPointF point, double factor);
    void moveBy(QPointF step);
    void pick(QPointF point);
    void keepInside();
    void redraw();
    void paintMap(QPainter& painter) const;
    void paintNames(QPainter& painter) const;

    PlacesPointer places_;
    std::vector<present::GeoPlace> marks_;
    present::Spot centre_{0.5, 0.5};
    double zoom_ = 1.0;
    QPixmap picture_; ///< the map without marks, as it is shown now
    QPointF pressed_;
    QPointF last_;
    bool dragging_ = false;
};

} // namespace kestrav::desktop
