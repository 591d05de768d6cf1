#include "app/desktop/diagram/DiagramView.h"

#include "analysis/DignityTables.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "app/desktop/diagram/DiagramAccessible.h"
#include "app/desktop/diagram/DiagramExport.h"
#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/Diagram.h"
#include "app/present/DiagramRegions.h"
#include "app/present/TerminalDrawing.h"
#include "app/present/TextValues.h"
#include "core/PointNames.h"

#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using present::RegionKind;

constexpr double kMargin = 6.0;
constexpr double kSmallMargin = 2.0;
constexpr double kSmallestSide = 40.0;
constexpr int kHoldMilliseconds = 450;
constexpr int kTypingMilliseconds = 1200;

// Letters of a diagram are never smaller than this share of those of the window, where there is
// room for them.
constexpr double kShareOfFont = 0.75;
constexpr double kGreatestShare = 0.06; // of the side
constexpr double kShareOfSmall = 0.068;
constexpr double kLeastSmallLetters = 6.5;

int hiddenPoints(const present::DisplayList& list)
{
    int hidden = 0;
    for (const present::Region& region : list.regions) {
        hidden += region.kind == RegionKind::More ? region.index : 0;
    }
    return hidden;
}

double largestLetters(const present::DisplayList& list)
{
    double largest = 0.0;
    for (const present::Text& text : list.texts) {
        largest = std::max(largest, text.size);
    }
    return largest;
}

bool samePerson(const ChartPointer& one, const ChartPointer& other)
{
    return one && other && one->chart.name == other->chart.name && one->chart.T == other->chart.T;
}

} // namespace

DiagramView::DiagramView(QWidget* parent) : QWidget(parent), typed_(new QLabel(this))
{
    installDiagramAccessibility();
    setObjectName(QStringLiteral("DiagramView"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    typed_->setObjectName(QStringLiteral("TypedVargaLabel"));
    typed_->setAccessibleName(tr("Number of the divisional chart"));
    typed_->setAutoFillBackground(true);
    typed_->setFrameShape(QFrame::Box);
    typed_->setMargin(fontMetrics().height() / 4);
    typed_->hide();
    typing_.setSingleShot(true);
    typing_.setInterval(kTypingMilliseconds);
    connect(&typing_, &QTimer::timeout, this, &DiagramView::finishVarga);
    holding_.setSingleShot(true);
    holding_.setInterval(kHoldMilliseconds);
    connect(&holding_, &QTimer::timeout, this, [this] {
        const present::Region* const held = region(pressed_);
        if (held != nullptr && held->layer == 0 && held->index >= core::kSun &&
            held->index <= core::kKetu) {
            held_ = held->index;
            rebuild();
        }
    });
}

void DiagramView::setContents(DiagramContents contents)
{
    if (contents_.chart && !samePerson(contents.chart, contents_.chart)) {
        firstSign_ = 0;
        compared_.reset();
        cursor_ = -1;
    }
    contents_ = std::move(contents);
    rebuild();
}

double DiagramView::side() const
{
    const double margin = contents_.small ? kSmallMargin : kMargin;
    return std::max(kSmallestSide, std::min(width(), height()) - 2.0 * margin) * zoom_ / 100.0;
}

int DiagramView::ascendantSign() const
{
    return contents_.chart
               ? analysis::signInVarga(contents_.chart->chart, contents_.varga, core::kAscendant)
               : 0;
}

present::DisplayList DiagramView::layOut(double size, present::ColourScheme scheme) const
{
    if (!contents_.chart) {
        return {};
    }
    const present::ComputedChart& shown = *contents_.chart;
    const ChartPointer& outer = compared_ ? compared_ : contents_.outer;
    const present::DiagramSubject subject{shown.chart, shown.settings, contents_.varga,
                                          outer ? &outer->chart : nullptr};
    present::DiagramOptions options = contents_.options;
    options.scheme = scheme;
    options.firstSign = firstSign_;
    options.aspectsOf |= aspects_;
    if (held_ >= 0) {
        options.aspectsOf.set(std::size_t(held_));
    }
    if (compared_) {
        options.outerPoints = comparedPoints_;
    }
    if (!contents_.small) {
        options.centre = present::centreLines(subject, options.english);
    }
    options.measure = measureWith(font());
    if (contents_.small) {
        options.fontSize = std::max(kLeastSmallLetters, kShareOfSmall * size);
    }
    present::DisplayList list = present::layoutDiagram(subject, contents_.style, options, size);
    if (scheme == present::ColourScheme::Print || contents_.small) {
        return list;
    }
    // Large letters of the window make those of diagrams larger, unless points had to give way.
    options.fontSize = std::min(kShareOfFont * QFontInfo(font()).pixelSize() * 100.0 / zoom_,
                                kGreatestShare * size);
    if (options.fontSize > largestLetters(list)) {
        present::DisplayList larger =
            present::layoutDiagram(subject, contents_.style, options, size);
        if (hiddenPoints(larger) <= hiddenPoints(list)) {
            return larger;
        }
    }
    return list;
}

std::wstring DiagramView::drawnWithCharacters() const
{
    if (!contents_.chart) {
        return {};
    }
    const ChartPointer& outer = compared_ ? compared_ : contents_.outer;
    const present::DiagramSubject subject{contents_.chart->chart, contents_.chart->settings,
                                          contents_.varga, outer ? &outer->chart : nullptr};
    present::DiagramOptions options = contents_.options;
    options.firstSign = firstSign_;
    if (compared_) {
        options.outerPoints = comparedPoints_;
    }
    options.centre = present::centreLines(subject, options.english);
    return present::terminalDiagram(subject, contents_.style, options);
}

void DiagramView::rebuild()
{
    // Regions are numbered anew: what the keyboard is at is found again by what it is.
    const present::Region* const before = region(cursor_);
    const std::optional<present::Region> at =
        before != nullptr ? std::optional(*before) : std::nullopt;
    list_ = layOut(side(), schemeOf(*this));
    hovered_ = -1;
    cursor_ = -1;
    for (std::size_t i = 0; at && i < list_.regions.size(); ++i) {
        const present::Region& now = list_.regions[i];
        if (now.kind == at->kind && now.layer == at->layer &&
            (now.kind == RegionKind::More ? now.sign == at->sign : now.index == at->index)) {
            cursor_ = int(i);
        }
    }
    place();
    setAccessibleName(contents_.chart ? toQt(list_.title) : contents_.note);
    setAccessibleDescription(toQt(list_.description));
    update();
}

// Puts the diagram into the middle, or keeps its anchor while it is larger than the view.
void DiagramView::place()
{
    const auto along = [](double room, double size, double wanted) {
        return size <= room ? (room - size) / 2.0 : std::clamp(wanted, room - size, 0.0);
    };
    origin_ = {along(width(), list_.width, origin_.x()),
               along(height(), list_.height, origin_.y())};
}

void DiagramView::setZoom(int percent)
{
    if (percent == zoom_) {
        return;
    }
    const QPointF anchor = anchor_.isNull() ? QPointF(rect().center()) : anchor_;
    const double factor = double(percent) / zoom_;
    zoom_ = percent;
    origin_ = anchor - (anchor - origin_) * factor;
    anchor_ = {};
    rebuild();
}

void DiagramView::setSelection(const present::Link& link)
{
    if (!(link == selection_)) {
        selection_ = link;
        update();
    }
}

const present::Region* DiagramView::region(int index) const
{
    return index >= 0 && std::size_t(index) < list_.regions.size()
               ? &list_.regions[std::size_t(index)]
               : nullptr;
}

QPolygonF DiagramView::polygonOf(int index) const
{
    QPolygonF polygon;
    if (const present::Region* const found = region(index)) {
        for (const present::Spot& spot : found->polygon) {
            polygon << origin_ + QPointF(spot.x, spot.y);
        }
    }
    return polygon;
}

bool DiagramView::isSelected(int index) const
{
    const std::vector<int> selected =
        present::regionsOf(list_, selection_, contents_.varga, ascendantSign());
    return std::find(selected.begin(), selected.end(), index) != selected.end();
}

void DiagramView::setCursor(int index)
{
    if (index != cursor_) {
        cursor_ = index;
        update();
        if (hasFocus()) {
            tellFocusOfRegion(*this, index);
        }
    }
}

std::optional<int> DiagramView::chosenPlanet() const
{
    const auto isPlanet = [](int point) {
        return point >= core::kSun && point <= core::kKetu;
    };
    const present::Region* const at = region(cursor_);
    if (at != nullptr && at->kind == RegionKind::Point && at->layer == 0 && isPlanet(at->index)) {
        return at->index;
    }
    if (selection_.subject == present::Subject::Point && isPlanet(selection_.index)) {
        return selection_.index;
    }
    return std::nullopt;
}

int DiagramView::chosenSign() const
{
    if (const present::Region* const at = region(cursor_)) {
        return at->sign;
    }
    const std::vector<int> selected =
        present::regionsOf(list_, selection_, contents_.varga, ascendantSign());
    return selected.empty() ? 0 : region(selected.front())->sign;
}

void DiagramView::toggleAspects(int planet)
{
    aspects_.flip(std::size_t(planet));
    rebuild();
    emit turned();
}

void DiagramView::turnTo(int sign)
{
    const int now = firstSign_ != 0 ? firstSign_ : ascendantSign();
    firstSign_ = sign == now || sign == ascendantSign() ? 0 : sign;
    rebuild();
    emit turned();
}

void DiagramView::compareWith(const DraggedPoint& dragged)
{
    if (!contents_.chart || !dragged.chart) {
        return;
    }
    const auto where = [](const DraggedPoint& point) {
        const int sign = analysis::signInVarga(point.chart->chart, point.varga, point.point);
        return tr("%1 in %2 (%3, %4)")
            .arg(toQt(present::pointLabel(point.point)),
                 sign == 0 ? QStringLiteral("--") : toQt(core::signNameLong(sign)),
                 toQt(analysis::vargaName(point.varga)), toQt(point.chart->chart.name));
    };
    const DraggedPoint here{contents_.chart, dragged.point, contents_.varga};
    if (!samePerson(dragged.chart, contents_.chart)) {
        if (compared_ != dragged.chart) {
            comparedPoints_.reset();
        }
        compared_ = dragged.chart;
        comparedPoints_.set(std::size_t(dragged.point));
        rebuild();
        emit turned();
    }
    emit linkChosen({present::Subject::Point, dragged.point, contents_.varga});
    setCursor(present::regionOfPoint(list_, dragged.point));
    emit told(where(dragged) + QStringLiteral(" \u2013 ") + where(here));
}

bool DiagramView::clear()
{
    const bool drawn = aspects_.any() || compared_ != nullptr;
    const bool selected = selection_.subject != present::Subject::None;
    if (!drawn && !selected && cursor_ < 0) {
        return false;
    }
    aspects_.reset();
    compared_.reset();
    setCursor(-1);
    if (drawn) {
        rebuild();
        emit turned();
    }
    if (selected) {
        emit linkChosen({});
    }
    return true;
}

void DiagramView::copy() const
{
    if (contents_.chart) {
        copyDiagram(*this);
    }
}

QSize DiagramView::sizeHint() const
{
    const int side = fontMetrics().height() * 18;
    return {side, side};
}

QSize DiagramView::minimumSizeHint() const
{
    const int side = fontMetrics().height() * (contents_.small ? 3 : 5);
    return {side, side};
}

void DiagramView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (!contents_.chart) {
        painter.setPen(themeColour(ThemeRole::Quiet));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, contents_.note);
        return;
    }
    painter.save();
    painter.translate(origin_);
    paintDisplayList(painter, list_, font(), [this](QPainter& on) { paintLights(on); });
    painter.restore();
    painter.translate(origin_);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFrames(painter);
}

void DiagramView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (side() != list_.width) {
        rebuild();
    } else {
        place();
    }
}

void DiagramView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        rebuild();
    }
}

} // namespace kestrav::desktop
