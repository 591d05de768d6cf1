// The widget that draws one chart diagram and lets the user walk through it.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "app/present/DiagramOptions.h"
#include "app/present/DisplayList.h"

#include <QPointF>
#include <QPointer>
#include <QPolygonF>
#include <QTimer>
#include <QWidget>

#include <optional>

class QLabel;

namespace kestrav::desktop
{

/// What a diagram view shows.
struct DiagramContents
{
    ChartPointer chart; ///< null for none
    ChartPointer outer; ///< drawn around it; null for none
    int varga = 0;
    present::DiagramStyle style = present::DiagramStyle::North;
    present::DiagramOptions options;
    QString note = {};  ///< what is said without a chart
    bool small = false; ///< one of many: Tab leaves it at once, and its middle stays empty
};

/// A point of a diagram that is dragged to another one.
struct DraggedPoint
{
    ChartPointer chart;
    int point = 0;
    int varga = 0;
};

/// The layout is made anew when the contents or the size change; pointing, selecting and walking
/// only paint it again.
class DiagramView : public QWidget
{
    Q_OBJECT

public:
    explicit DiagramView(QWidget* parent = nullptr);

    void setContents(DiagramContents contents);
    [[nodiscard]] const DiagramContents& contents() const
    {
        return contents_;
    }
    [[nodiscard]] const present::DisplayList& list() const
    {
        return list_;
    }
    /// The diagram as it would be drawn in a square of that side.
    [[nodiscard]] present::DisplayList layOut(double size, present::ColourScheme scheme) const;
    /// The same with characters.
    [[nodiscard]] std::wstring drawnWithCharacters() const;

    /// What is selected in the window; it is marked where the diagram has it.
    void setSelection(const present::Link& link);
    /// The size in percent of that which fills the view; above 100 the diagram can be moved.
    void setZoom(int percent);

    /// Where the keyboard is, as a region of the list; -1 for nowhere.
    [[nodiscard]] int cursor() const
    {
        return cursor_;
    }
    void setCursor(int region);
    /// The region under the pointer.
    [[nodiscard]] int hovered() const
    {
        return hovered_;
    }
    /// Corners of a region in pixels of the widget.
    [[nodiscard]] QPolygonF polygonOf(int region) const;
    [[nodiscard]] bool isSelected(int region) const;
    /// Selects what the region stands for; "+n" opens a menu of its points.
    void inspect(int region);

    /// The planet whose aspects the commands are about: where the keyboard is, or selected.
    [[nodiscard]] std::optional<int> chosenPlanet() const;
    /// The sign that the commands are about, 0 for none.
    [[nodiscard]] int chosenSign() const;
    [[nodiscard]] const present::PointSet& aspects() const
    {
        return aspects_;
    }
    /// Draws the full aspects of the planet, or takes them away.
    void toggleAspects(int planet);
    /// Makes a sign the first house; the sign that already is brings back the ascendant.
    void turnTo(int sign);
    [[nodiscard]] int firstSign() const
    {
        return firstSign_;
    }
    /// Draws a point of another chart around this one, or selects that of the same chart here.
    void compareWith(const DraggedPoint& dragged);
    /// Takes away selection, aspects and comparison; false when there were none.
    bool clear();
    /// Puts a picture, a drawing that scales, and words into the clipboard.
    void copy() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// Something was selected; nothing when the selection was taken away.
    void linkChosen(const present::Link& link);
    void clicked();
    void vargaWanted(int varga);
    void styleWanted(present::DiagramStyle style);
    void degreesWanted();
    void zoomWanted(int percent);
    /// A sign was made the first house, aspects or a comparison came or went.
    void turned();
    void told(const QString& news);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void rebuild();
    void place();
    [[nodiscard]] double side() const;
    [[nodiscard]] int ascendantSign() const;
    [[nodiscard]] int regionUnder(QPointF position) const;
    [[nodiscard]] const present::Region* region(int index) const;
    void hover(int region);
    void walkCells(int by);
    bool walkPoints(bool next);
    bool typeVarga(QKeyEvent* event);
    void finishVarga();
    void showPointsOf(int more);
    void startDrag();
    void paintLights(QPainter& painter) const;
    void paintFrames(QPainter& painter) const;

    DiagramContents contents_;
    present::DisplayList list_;
    present::Link selection_;
    present::PointSet aspects_;
    int firstSign_ = 0;
    ChartPointer compared_;
    present::PointSet comparedPoints_;

    int zoom_ = 100;
    QPointF origin_; ///< of the list in the widget
    QPointF anchor_; ///< what keeps its place while the zoom changes

    int cursor_ = -1;
    int hovered_ = -1;
    int pressed_ = -1;
    int held_ = -1; ///< the planet whose aspects show while the button is down
    QPointF pressedAt_;
    bool moved_ = false;
    QTimer holding_;

    QLabel* typed_; ///< the number of a divisional chart while it is typed
    QTimer typing_;
};

} // namespace kestrav::desktop
