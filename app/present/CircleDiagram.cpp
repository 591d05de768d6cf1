#include "app/present/CircleDiagram.h"

#include "analysis/VargaNames.h"
#include "app/present/AccessibleText.h"
#include "app/present/CirclePlacing.h"
#include "core/PointNames.h"

#include <cmath>

namespace kestrav::present
{

namespace
{

using core::at;

constexpr int kCircleCorners = 96;
constexpr double kArcStep = 6.0; // degrees between the corners of a sector
constexpr int kNavamshas = 108;

// The edges of the rings as shares of the side, from outside.
struct Radii
{
    double navamsha = 0.0; ///< outer edge of the ring of navamshas; 0 without
    double transits = 0.0; ///< outer edge of the ring of the second chart; 0 without
    double signs = 0.0;
    double points = 0.0;
    double houses = 0.0; ///< outer edge of the disc of the houses
    double hub = 0.0;
};

Radii radiiOf(const DiagramFrame& frame)
{
    Radii radii;
    double edge = 0.49;
    if (frame.options.navamshaRing && frame.subject.varga == core::kRashi) {
        radii.navamsha = edge;
        edge -= frame.options.characterGrid ? 0.05 : 0.03;
    }
    const bool two = frame.subject.outer != nullptr;
    if (two) {
        radii.transits = edge;
        edge -= 0.125;
    }
    radii.signs = edge;
    radii.points = edge - (frame.options.characterGrid ? 0.085 : (two ? 0.05 : 0.06));
    radii.houses = two ? 0.165 : 0.25;
    radii.hub = two ? 0.05 : 0.07;
    return radii;
}

class CircleLayout
{
public:
    CircleLayout(const DiagramFrame& frame, DisplayList& list)
        : frame_(frame), list_(list), middle_{frame.size / 2.0, frame.size / 2.0},
          radii_(radiiOf(frame)), houses_(circleHouses(frame)),
          inner_(pointLabels(frame.subject, frame.options, 0))
    {
        if (frame.subject.outer != nullptr) {
            outer_ = pointLabels(frame.subject, frame.options, 1);
        }
    }

    void lay()
    {
        addSignRing();
        addHouses();
        addNavamshas();
        addHub();
        addPoints();
        addAspects();
        if (houses_.replaced && frame_.hasHouses) {
            list_.description += L"Every house is a sign: the houses that were asked for do not "
                                 L"exist in this diagram.\n";
        }
    }

private:
    [[nodiscard]] double angleOf(double longitude) const
    {
        return 180.0 + longitude - frame_.startOfCircle();
    }

    [[nodiscard]] Ring ring(double inner, double outer) const
    {
        return {middle_, inner * frame_.size, outer * frame_.size};
    }

    [[nodiscard]] Spot spot(double longitude, double radius) const
    {
        return ring(0.0, 0.0).spotAt(angleOf(longitude), radius * frame_.size);
    }

    // A stretch of a ring as a polygon.
    [[nodiscard]] std::vector<Spot> sector(double start, double length, double inner,
                                           double outer) const
    {
        std::vector<Spot> polygon;
        const int steps = std::max(1, int(std::ceil(length / kArcStep)));
        for (int i = 0; i <= steps; ++i) {
            polygon.push_back(spot(start + length * i / steps, outer));
        }
        for (int i = steps; i >= 0; --i) {
            polygon.push_back(spot(start + length * i / steps, inner));
        }
        return polygon;
    }

    void addCircle(double radius, std::optional<ColourRole> fill)
    {
        Shape shape;
        for (int i = 0; i < kCircleCorners; ++i) {
            shape.points.push_back(
                ring(0.0, 0.0).spotAt(i * 360.0 / kCircleCorners, radius * frame_.size));
        }
        shape.fill = fill;
        shape.stroke = ColourRole::Border;
        shape.width = frame_.stroke;
        list_.shapes.push_back(std::move(shape));
    }

    void addRay(double longitude, double inner, double outer, ColourRole role)
    {
        list_.lines.push_back(
            {spot(longitude, inner), spot(longitude, outer), role, frame_.stroke});
    }

    // A text around a degree of a ring, shrunk until it fits between the edges and into `room`, a
    // length across its middle.
    void addRingText(const std::wstring& text, double longitude, double inner, double outer,
                     double room, ColourRole role, int region)
    {
        const Ring edges = ring(inner, outer);
        const double width = measured(frame_.options, text);
        const Spot where = spot(longitude, (inner + outer) / 2.0);
        double size = frame_.options.characterGrid ? frame_.font : 0.9 * frame_.font;
        const auto tooLarge = [&] {
            const Box box = boxAround(where, width * size, size, false);
            return !edges.holds(box) || std::hypot(box.width(), size) > room;
        };
        while (!frame_.options.characterGrid && size > 0.01 && tooLarge()) {
            size *= 0.92;
        }
        list_.texts.push_back(
            frame_.text(text, boxAround(where, width * size, size, frame_.options.characterGrid),
                        role, region));
    }

    void addSignRing()
    {
        if (radii_.transits > 0.0) {
            addCircle(radii_.transits, std::nullopt);
        }
        addCircle(radii_.signs, std::nullopt);
        addCircle(radii_.points, std::nullopt);
        const std::vector<DiagramLabel> bindus = binduLabels(frame_.subject, frame_.options);
        const double room = radii_.signs * 0.25 * frame_.size;
        for (int sign = 1; sign <= 12; ++sign) {
            const double start = (sign - 1) * 30.0;
            addRay(start, radii_.points, radii_.signs, ColourRole::Border);
            const int region = int(list_.regions.size());
            addSignRegion(sign, start, bindus);
            const bool named = frame_.options.labels != CellLabel::None;
            const double aside = named && !bindus.empty() ? 6.5 : 0.0;
            if (named) {
                addRingText(shortSignName(frame_.options, sign), start + 15.0 + aside,
                            radii_.points, radii_.signs, room, ColourRole::Label, region);
            }
            if (!bindus.empty()) {
                addRingText(bindus[std::size_t(sign - 1)].text, start + 15.0 - aside, radii_.points,
                            radii_.signs, room, ColourRole::Bindu, region);
            }
        }
    }

    void addSignRegion(int sign, double start, const std::vector<DiagramLabel>& bindus)
    {
        Region region;
        region.kind = RegionKind::Sign;
        region.index = sign;
        region.polygon = sector(start, 30.0, radii_.points, radii_.signs);
        region.tip = signTip(sign, frame_.houseOf(sign));
        std::vector<std::wstring> contents;
        if (!bindus.empty()) {
            contents.push_back(bindus[std::size_t(sign - 1)].spoken);
        }
        if (!frame_.hasHouses) {
            for (const std::vector<DiagramLabel>* const labels : {&inner_, &outer_}) {
                for (const DiagramLabel& label : *labels) {
                    if (label.sign == sign) {
                        contents.push_back((label.layer == 1 ? L"outside " : L"") + label.spoken);
                    }
                }
            }
        }
        if (!frame_.hasHouses || !contents.empty()) {
            region.spoken = spokenPlace(0, sign, contents);
        }
        list_.regions.push_back(std::move(region));
    }

    [[nodiscard]] double lengthOf(int house) const
    {
        const double next = at(houses_.starts, house % 12);
        const double length = core::Normalize360(next - at(houses_.starts, house - 1));
        return length;
    }

    void addHouses()
    {
        addCircle(radii_.houses, std::nullopt);
        addCircle(radii_.hub, ColourRole::Panel);
        for (int house = 1; frame_.hasHouses && house <= 12; ++house) {
            const double start = at(houses_.starts, house - 1);
            const double length = lengthOf(house);
            addRay(start, radii_.hub, radii_.houses, ColourRole::Border);
            const int region = int(list_.regions.size());
            addHouseRegion(house, start, length);
            if (frame_.options.labels == CellLabel::None) {
                continue;
            }
            const double reach = 0.055;
            const double half = std::fmin(length / 2.0, 90.0) * 3.14159265358979323846 / 180.0;
            const double across =
                2.0 * (radii_.houses - reach / 2.0) * std::sin(half) * frame_.size;
            addRingText(std::to_wstring(house), start + length / 2.0, radii_.houses - reach,
                        radii_.houses, 0.8 * across, ColourRole::Label, region);
        }
    }

    void addHouseRegion(int house, double start, double length)
    {
        Region region;
        region.kind = RegionKind::House;
        region.index = house;
        region.house = house;
        region.polygon = sector(start, length, radii_.hub, radii_.points);
        region.tip = signTip(at(houses_.signs, house - 1), house);
        std::vector<std::wstring> contents;
        for (const std::vector<DiagramLabel>* const labels : {&inner_, &outer_}) {
            for (const DiagramLabel& label : *labels) {
                if (houseAt(houses_, label.longitude()) == house) {
                    contents.push_back((label.layer == 1 ? L"outside " : L"") + label.spoken);
                }
            }
        }
        region.spoken = spokenPlace(house, at(houses_.signs, house - 1), contents);
        list_.regions.push_back(std::move(region));
    }

    // The navamshas run through the signs three times round, from Aries at 0 degrees on.
    void addNavamshas()
    {
        if (radii_.navamsha <= 0.0) {
            return;
        }
        addCircle(radii_.navamsha, std::nullopt);
        const double inner = std::max(radii_.signs, radii_.transits);
        const double length = 360.0 / kNavamshas;
        const double room = 0.8 * inner * length * 3.14159265358979323846 / 180.0 * frame_.size;
        for (int i = 0; i < kNavamshas; ++i) {
            addRay(i * length, inner, radii_.navamsha, ColourRole::Division);
            if (!frame_.options.characterGrid) {
                addRingText(std::to_wstring(i % 12 + 1), (i + 0.5) * length, inner, radii_.navamsha,
                            room, ColourRole::Label, -1);
            }
        }
    }

    void addHub()
    {
        Region region;
        region.kind = RegionKind::Centre;
        for (int i = 0; i < 12; ++i) {
            region.polygon.push_back(ring(0.0, 0.0).spotAt(i * 30.0, radii_.hub * frame_.size));
        }
        for (const std::wstring& line : frame_.options.centre) {
            region.tip += (region.tip.empty() ? L"" : L"\n") + oneLine(line);
        }
        region.spoken = region.tip;
        hubRegion_ = int(list_.regions.size());
        list_.regions.push_back(std::move(region));
        addHubText(L"D-" + std::to_wstring(analysis::vargaDivision(frame_.subject.varga)), -0.25,
                   ColourRole::Label);
    }

    // A text above or below the middle, by a share of the hub's radius.
    Box addHubText(const std::wstring& text, double shift, ColourRole role)
    {
        const double radius = radii_.hub * frame_.size;
        const double width = measured(frame_.options, text);
        const bool grid = frame_.options.characterGrid;
        const double most = 0.62 * radius;
        const double size =
            grid ? frame_.font : std::min({0.9 * frame_.font, most, 1.3 * radius / width});
        const Spot where{middle_.x, middle_.y + (grid ? shift * 4.0 : 1.4 * shift * radius)};
        const Box box = boxAround(where, width * size, size, grid);
        list_.texts.push_back(frame_.text(text, box, role, hubRegion_));
        return box;
    }

    void addPoints()
    {
        std::vector<DiagramLabel> hidden;
        const double gap = frame_.options.characterGrid ? 0.0 : 0.006;
        Ring band = ring(radii_.houses + gap, radii_.points - gap);
        addBand(band, inner_, true, radii_.points, hidden);
        if (radii_.transits > 0.0) {
            band = ring(radii_.signs + gap, radii_.transits - gap);
            addBand(band, outer_, false, radii_.signs, hidden);
        }
        if (!hidden.empty()) {
            addMore(frame_, list_, hidden, boxOfMore(int(hidden.size())), hubRegion_, 0);
        }
    }

    Box boxOfMore(int hidden)
    {
        const Box box = addHubText(moreText(hidden), 0.35, ColourRole::Text);
        list_.texts.pop_back();
        return box;
    }

    void addBand(const Ring& band, const std::vector<DiagramLabel>& labels, bool fromOutside,
                 double edge, std::vector<DiagramLabel>& hidden)
    {
        std::vector<double> angles;
        std::vector<double> widths;
        for (const DiagramLabel& label : labels) {
            angles.push_back(angleOf(label.longitude()));
            widths.push_back(label.width);
        }
        double size = frame_.font;
        const std::vector<RingPlace> places = placeInRing(
            {band, fromOutside, angles, widths, frame_.font, frame_.options.characterGrid}, size);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const DiagramLabel& label = labels[i];
            if (!places[i].placed) {
                hidden.push_back(label);
                continue;
            }
            const int house = frame_.hasHouses ? houseAt(houses_, label.longitude()) : 0;
            addPoint(frame_, list_, label, places[i].box, -1, house);
            list_.lines.push_back({spot(label.longitude(), edge), places[i].end, ColourRole::Leader,
                                   0.6 * frame_.stroke});
        }
    }

    void addAspects()
    {
        const double radius = radii_.houses - 0.06;
        for (const DrawnAspect& aspect : drawnAspects(frame_)) {
            const double from =
                (aspect.from - 1) * 30.0 +
                diagramPosition(frame_.subject.chart, frame_.subject.varga, aspect.planet);
            const double to = from + core::ModFrom(12, 0, aspect.to - aspect.from) * 30.0;
            list_.lines.push_back({spot(from, radius), spot(to, radius), ColourRole::Aspect,
                                   0.8 * frame_.stroke, false, true});
        }
    }

    const DiagramFrame& frame_;
    DisplayList& list_;
    Spot middle_;
    Radii radii_;
    CircleHouses houses_;
    std::vector<DiagramLabel> inner_;
    std::vector<DiagramLabel> outer_;
    int hubRegion_ = -1;
};

} // namespace

void layoutCircle(const DiagramFrame& frame, DisplayList& list)
{
    CircleLayout(frame, list).lay();
}

} // namespace kestrav::present
