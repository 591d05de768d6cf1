#include "app/present/CircleDiagram.h"

#include "analysis/VargaNames.h"
#include "app/present/AccessibleText.h"
#include "app/present/CirclePlacing.h"
#include "core/PointNames.h"

#include <algorithm>
#include <cmath>

namespace kestrav::present
{

namespace
{

using core::at;

constexpr std::size_t kCircleCorners = 96;
constexpr double kArcStep = 10.0; // degrees between the corners of a sector
constexpr int kNavamshas = 108;

// Texts shrink by this share until they fit, or vanish.
constexpr double kShrinking = 0.94;
constexpr double kVanishing = 0.01;

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

const std::array<Spot, kCircleCorners>& unitCircle()
{
    static const std::array<Spot, kCircleCorners> kCircle = [] {
        std::array<Spot, kCircleCorners> circle;
        for (std::size_t i = 0; i < circle.size(); ++i) {
            circle[i] = Ring{}.spotAt(double(i) * 360.0 / kCircleCorners, 1.0);
        }
        return circle;
    }();
    return kCircle;
}

class CircleLayout
{
public:
    CircleLayout(const DiagramFrame& frame, DisplayList& list)
        : frame_(frame), list_(list), middle_{frame.size / 2.0, frame.size / 2.0},
          radii_(radiiOf(frame)), start_(frame.startOfCircle()), houses_(circleHouses(frame)),
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
        return 180.0 + longitude - start_;
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
        shape.points.reserve(unitCircle().size());
        for (const Spot unit : unitCircle()) {
            shape.points.push_back({middle_.x + radius * frame_.size * unit.x,
                                    middle_.y + radius * frame_.size * unit.y});
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

    struct RingText
    {
        std::wstring text;
        double longitude;
        double room; ///< across its middle
        ColourRole role;
        int region;
    };

    // Texts around degrees of a ring in one size, so that all fit between the edges; one that has
    // not even then its room is smaller.
    void addRingTexts(const std::vector<RingText>& texts, double inner, double outer)
    {
        const bool grid = frame_.options.characterGrid;
        const double margin = grid ? 0.0 : 0.1 * frame_.font / frame_.size;
        const Ring edges = ring(inner + margin, outer - margin);
        const double radius = (inner + outer) / 2.0;
        double size = grid ? frame_.font : 0.9 * frame_.font;
        const auto boxOf = [&](const RingText& text, double textSize) {
            return boxAround(spot(text.longitude, radius),
                             measured(frame_.options, text.text) * textSize, textSize, grid);
        };
        for (const RingText& text : texts) {
            while (!grid && size > kVanishing && !edges.holds(boxOf(text, size))) {
                size *= kShrinking;
            }
        }
        for (const RingText& text : texts) {
            double own = size;
            Box box = boxOf(text, own);
            while (!grid && own > kVanishing && std::hypot(box.width(), own) > text.room) {
                own *= kShrinking;
                box = boxOf(text, own);
            }
            list_.texts.push_back(frame_.text(text.text, box, text.role, text.region));
        }
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
        std::vector<RingText> texts;
        for (int sign = 1; sign <= 12; ++sign) {
            const double start = (sign - 1) * 30.0;
            addRay(start, radii_.points, radii_.signs, ColourRole::Border);
            const int region = int(list_.regions.size());
            addSignRegion(sign, start, bindus);
            const bool named = frame_.options.labels != CellLabel::None;
            const double aside = named && !bindus.empty() ? 6.5 : 0.0;
            if (named) {
                texts.push_back({shortSignName(frame_.options, sign), start + 15.0 + aside, room,
                                 ColourRole::Label, region});
            }
            if (!bindus.empty()) {
                texts.push_back({bindus[std::size_t(sign - 1)].text, start + 15.0 - aside, room,
                                 ColourRole::Bindu, region});
            }
        }
        addRingTexts(texts, radii_.points, radii_.signs);
    }

    void addSignRegion(int sign, double start, const std::vector<DiagramLabel>& bindus)
    {
        Region region;
        region.kind = RegionKind::Sign;
        region.index = sign;
        region.sign = sign;
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
        constexpr double kReach = 0.055;
        std::vector<RingText> texts;
        for (int house = 1; frame_.hasHouses && house <= 12; ++house) {
            const double start = at(houses_.starts, house - 1);
            const double length = lengthOf(house);
            addRay(start, radii_.hub, radii_.houses, ColourRole::Border);
            const int region = int(list_.regions.size());
            addHouseRegion(house, start, length);
            if (frame_.options.labels == CellLabel::None) {
                continue;
            }
            const double half = std::fmin(length / 2.0, 90.0) * 3.14159265358979323846 / 180.0;
            const double across =
                2.0 * (radii_.houses - kReach / 2.0) * std::sin(half) * frame_.size;
            texts.push_back({std::to_wstring(house), start + length / 2.0, 0.8 * across,
                             ColourRole::Label, region});
        }
        addRingTexts(texts, radii_.houses - kReach, radii_.houses);
    }

    void addHouseRegion(int house, double start, double length)
    {
        Region region;
        region.kind = RegionKind::House;
        region.index = house;
        region.house = house;
        region.sign = at(houses_.signs, house - 1);
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
        std::vector<RingText> texts;
        for (int i = 0; i < kNavamshas; ++i) {
            addRay(i * length, inner, radii_.navamsha, ColourRole::Division);
            if (!frame_.options.characterGrid) {
                texts.push_back(
                    {std::to_wstring(i % 12 + 1), (i + 0.5) * length, room, ColourRole::Label, -1});
            }
        }
        addRingTexts(texts, inner, radii_.navamsha);
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
    }

    // The box of a text above or below the middle by a share of the hub's radius.
    [[nodiscard]] Box hubBox(const std::wstring& text, double shift) const
    {
        const double radius = radii_.hub * frame_.size;
        const double width = measured(frame_.options, text);
        const bool grid = frame_.options.characterGrid;
        const double size =
            grid ? frame_.font : std::min({0.9 * frame_.font, 0.5 * radius, 1.1 * radius / width});
        const Spot where{middle_.x, middle_.y + (grid ? shift * 4.0 : 1.4 * shift * radius)};
        return boxAround(where, width * size, size, grid);
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
        const std::wstring varga =
            L"D-" + std::to_wstring(analysis::vargaDivision(frame_.subject.varga));
        list_.texts.push_back(frame_.text(varga, hubBox(varga, hidden.empty() ? 0.0 : -0.25),
                                          ColourRole::Label, hubRegion_));
        if (!hidden.empty()) {
            addMore(frame_, list_, hidden, hubBox(moreText(int(hidden.size())), 0.35), hubRegion_,
                    0);
        }
    }

    // The labels around the circle, beginning behind the widest gap, so that none has neighbours
    // on both ends of the list.
    [[nodiscard]] static std::vector<const DiagramLabel*>
    inOrder(const std::vector<DiagramLabel>& labels)
    {
        std::vector<const DiagramLabel*> order;
        double widest = -1.0;
        std::size_t start = 0;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            order.push_back(&labels[i]);
            const DiagramLabel& before = labels[(i + labels.size() - 1) % labels.size()];
            const double gap = core::Normalize360(labels[i].longitude() - before.longitude());
            if (gap > widest) {
                widest = gap;
                start = i;
            }
        }
        std::rotate(order.begin(), order.begin() + std::ptrdiff_t(start), order.end());
        return order;
    }

    void addBand(const Ring& band, const std::vector<DiagramLabel>& all, bool fromOutside,
                 double edge, std::vector<DiagramLabel>& hidden)
    {
        const std::vector<const DiagramLabel*> labels = inOrder(all);
        std::vector<double> angles;
        std::vector<double> widths;
        for (const DiagramLabel* const label : labels) {
            const double first = labels.front()->longitude();
            angles.push_back(angleOf(first) + core::Normalize360(label->longitude() - first));
            widths.push_back(label->width);
        }
        double size = frame_.font;
        const std::vector<RingPlace> places = placeInRing(
            {band, fromOutside, angles, widths, frame_.font, frame_.options.characterGrid}, size);
        for (std::size_t i = 0; i < labels.size(); ++i) {
            const DiagramLabel& label = *labels[i];
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
    double start_;
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
