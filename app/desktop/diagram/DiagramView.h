// The widget that draws one chart diagram.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "app/present/DiagramOptions.h"
#include "app/present/DisplayList.h"

#include <QWidget>

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
};

class DiagramView : public QWidget
{
    Q_OBJECT

public:
    explicit DiagramView(QWidget* parent = nullptr);

    void setContents(DiagramContents contents);
    /// The diagram as it would be drawn in a square of that side.
    [[nodiscard]] present::DisplayList layOut(double size, present::ColourScheme scheme) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void rebuild();
    [[nodiscard]] double side() const;

    DiagramContents contents_;
    present::DisplayList list_;
};

} // namespace kestrav::desktop
