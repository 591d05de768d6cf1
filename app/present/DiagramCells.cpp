#include "app/present/DiagramCells.h"

#include "app/present/AccessibleText.h"
#include "app/present/DiagramPacking.h"

#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr double kNumberScale = 0.75;
constexpr double kCornerStroke = 0.045;

class CellLayout
{
public:
    CellLayout(const DiagramFrame& frame, const CellPlan& plan, DisplayList& list)
        : frame_(frame), plan_(plan), list_(list),
          bindus_(binduLabels(frame.subject, frame.options)),
          inner_(pointLabels(frame.subject, frame.options, 0))
    {
        if (frame.subject.outer != nullptr) {
            outer_ = pointLabels(frame.subject, frame.options, 1);
        }
    }

    void lay()
    {
        addCentrePanel();
        for (int i = 0; i < 12; ++i) {
            addOutline(i);
        }
        for (int i = 0; i < 12; ++i) {
            addContents(i);
        }
        addAspects();
    }

private:
    [[nodiscard]] const CellShape& shape(int cell) const
    {
        return plan_.cells[std::size_t(cell)];
    }

    [[nodiscard]] int signOf(int cell) const
    {
        return plan_.housesStand ? core::norm12(frame_.first + cell) : cell + 1;
    }

    [[nodiscard]] int cellOfSign(int sign) const
    {
        return plan_.housesStand ? core::norm12(sign - frame_.first + 1) - 1 : sign - 1;
    }

    [[nodiscard]] Spot toSize(Spot spot) const
    {
        const double depth = outside() ? kFrameDepth : 0.0;
        const double scale = (1.0 - 2.0 * depth) * frame_.size;
        return {depth * frame_.size + spot.x * scale, depth * frame_.size + spot.y * scale};
    }

    [[nodiscard]] std::vector<Spot> toSize(std::span<const Spot> spots) const
    {
        std::vector<Spot> result;
        result.reserve(spots.size());
        for (const Spot spot : spots) {
            result.push_back(toSize(spot));
        }
        return result;
    }

    // Whether there is a second chart.
    [[nodiscard]] bool outside() const
    {
        return frame_.subject.outer != nullptr;
    }

    void addCentrePanel()
    {
        if (!plan_.centre) {
            return;
        }
        const Spot topLeft = toSize(Spot{plan_.centre->left, plan_.centre->top});
        const Spot bottomRight = toSize(Spot{plan_.centre->right, plan_.centre->bottom});
        const Box box{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
        list_.shapes.push_back(
            {cornersOf(box), ColourRole::Panel, ColourRole::Border, frame_.stroke});
        addCentre(frame_, list_, box);
    }

    // Outlines come first, so that the regions of the cells lie in the order of the cells.
    void addOutline(int cell)
    {
        const int sign = signOf(cell);
        std::vector<Spot> polygon = toSize(shape(cell).polygon());
        Shape outline{polygon, std::nullopt, ColourRole::Border, frame_.stroke};
        if (!plan_.housesStand && frame_.hasHouses && sign == frame_.first) {
            outline.fill = ColourRole::AscendantCell;
            if (plan_.cornerStroke) {
                const double reach = strokeReach();
                const Spot corner = polygon.front();
                list_.lines.push_back({{corner.x + reach, corner.y},
                                       {corner.x, corner.y + reach},
                                       ColourRole::Border,
                                       frame_.stroke});
            }
        }
        list_.shapes.push_back(std::move(outline));
        Region region;
        region.kind = RegionKind::Sign;
        region.index = sign;
        region.sign = sign;
        region.house = frame_.houseOf(sign);
        region.polygon = std::move(polygon);
        region.tip = signTip(sign, region.house);
        regionOfCell_[std::size_t(cell)] = int(list_.regions.size());
        list_.regions.push_back(std::move(region));
    }

    void addContents(int cell)
    {
        const int region = regionOfCell_[std::size_t(cell)];
        const int sign = signOf(cell);
        spoken_.clear();
        addGroup({list_.regions[std::size_t(region)].polygon, toSize(shape(cell).focus), cell,
                  region, 0});
        if (outside()) {
            addFrameCell(cell);
        }
        list_.regions[std::size_t(region)].spoken =
            spokenPlace(frame_.houseOf(sign), sign, spoken_);
    }

    void addFrameCell(int cell)
    {
        const FrameShape& shape = plan_.frame[std::size_t(cell)];
        Region region;
        region.kind = RegionKind::Sign;
        region.index = signOf(cell);
        region.sign = region.index;
        region.house = frame_.houseOf(region.index);
        region.layer = 1;
        region.polygon = scaled(shape.polygon(), frame_.size);
        region.tip = signTip(region.index, region.house);
        list_.shapes.push_back({region.polygon, std::nullopt, ColourRole::Border, frame_.stroke});
        const int index = int(list_.regions.size());
        list_.regions.push_back(std::move(region));
        const std::vector<Spot> room = scaled(shape.room, frame_.size);
        addGroup({room, centreOf(room), cell, index, 1});
    }

    [[nodiscard]] double strokeReach() const
    {
        return frame_.options.characterGrid ? 4.0 : kCornerStroke * frame_.size;
    }

    // What stands in a sign, in its order: the bindus, then the points by degree.
    [[nodiscard]] std::vector<const DiagramLabel*> contents(int sign, int layer) const
    {
        std::vector<const DiagramLabel*> found;
        if (layer == 0 && !bindus_.empty()) {
            found.push_back(&bindus_[std::size_t(sign - 1)]);
        }
        for (const DiagramLabel& label : layer == 0 ? inner_ : outer_) {
            if (label.sign == sign) {
                found.push_back(&label);
            }
        }
        return found;
    }

    // Labels that are packed together.
    struct Group
    {
        std::vector<Spot> polygon;
        Spot focus;
        int cell;
        int region;
        int layer;
    };

    // What the labels of a cell must keep away from.
    std::vector<Box> obstaclesOf(const Group& group)
    {
        std::vector<Box> obstacles;
        const int cell = group.cell;
        if (frame_.options.labels != CellLabel::None) {
            // Numbers may come closer to a border, since their places are narrow.
            const double share = frame_.options.characterGrid ? 1.0 : 0.35;
            obstacles.push_back(addNumber(
                ConvexArea(group.polygon, share * frame_.marginX(), share * frame_.marginY()),
                cell));
        }
        if (plan_.cornerStroke && frame_.hasHouses && signOf(cell) == frame_.first) {
            const Spot corner = toSize(shape(cell).corners.front());
            obstacles.push_back(
                {corner.x, corner.y, corner.x + strokeReach(), corner.y + strokeReach()});
        }
        return obstacles;
    }

    void addGroup(const Group& group)
    {
        const ConvexArea area(group.polygon, frame_.marginX(), frame_.marginY());
        std::vector<Box> obstacles;
        if (group.layer == 0) {
            obstacles = obstaclesOf(group);
        }
        const std::vector<const DiagramLabel*> labels = contents(signOf(group.cell), group.layer);
        std::vector<double> widths;
        for (const DiagramLabel* const label : labels) {
            widths.push_back(label->width);
            spoken_.push_back((label->layer == 1 ? L"outside " : L"") + label->spoken);
        }
        if (labels.empty()) {
            return;
        }
        const bool onlyBindus = inner_.empty() && outer_.empty() && !frame_.options.characterGrid;
        const Packing packing = packLabels({area, group.focus, obstacles, widths,
                                            frame_.font * (onlyBindus ? 1.5 : 1.0),
                                            frame_.options.characterGrid, [this](int hidden) {
                                                return measured(frame_.options, moreText(hidden));
                                            }});
        const int house = frame_.houseOf(signOf(group.cell));
        for (std::size_t i = 0; i < packing.boxes.size(); ++i) {
            addPoint(frame_, list_, *labels[i], packing.boxes[i], group.region, house);
        }
        if (packing.hidden > 0) {
            std::vector<DiagramLabel> hidden;
            for (std::size_t i = packing.boxes.size(); i < labels.size(); ++i) {
                hidden.push_back(*labels[i]);
            }
            addMore(frame_, list_, hidden, packing.more, group.region, house);
        }
    }

    [[nodiscard]] std::wstring numberOf(int cell) const
    {
        const int sign = signOf(cell);
        if (frame_.options.labels == CellLabel::Houses) {
            const int house = frame_.houseOf(sign);
            return house == 0 ? std::wstring() : std::to_wstring(house);
        }
        // Where signs move they are told by their numbers.
        return plan_.housesStand && !frame_.options.glyphs ? std::to_wstring(sign)
                                                           : shortSignName(frame_.options, sign);
    }

    // Adds the number of a cell and returns the space that it takes.
    Box addNumber(const ConvexArea& area, int cell)
    {
        const std::wstring text = numberOf(cell);
        if (text.empty()) {
            return {};
        }
        const bool grid = frame_.options.characterGrid;
        double scale = 1.0;
        const double size = grid ? frame_.font : kNumberScale * frame_.font;
        const Box box = placeText(area, toSize(shape(cell).label), measured(frame_.options, text),
                                  size, grid, scale);
        list_.texts.push_back(
            frame_.text(text, box, ColourRole::Label, regionOfCell_[std::size_t(cell)]));
        const double aside = grid ? 1.0 : 0.25 * frame_.font;
        const double above = grid ? 0.0 : 0.1 * frame_.font;
        return {box.left - aside, box.top - above, box.right + aside, box.bottom + above};
    }

    // Where a planet stands in the drawing: its text, else the middle of its cell.
    [[nodiscard]] Spot placeOf(int planet, int sign) const
    {
        for (const Region& region : list_.regions) {
            if (region.kind == RegionKind::Point && region.index == planet && region.layer == 0) {
                return {(region.polygon[0].x + region.polygon[2].x) / 2.0,
                        (region.polygon[0].y + region.polygon[2].y) / 2.0};
            }
        }
        return toSize(shape(cellOfSign(sign)).focus);
    }

    void addAspects()
    {
        for (const DrawnAspect& aspect : drawnAspects(frame_)) {
            const Spot from = placeOf(aspect.planet, aspect.from);
            const Spot focus = toSize(shape(cellOfSign(aspect.to)).focus);
            const double length = std::hypot(focus.x - from.x, focus.y - from.y);
            const Spot along{(focus.x - from.x) / length, (focus.y - from.y) / length};
            // Arrows of several planets into one cell end side by side.
            const double aside = (aspect.planet - 5) * 0.008 * frame_.size;
            const double start = 0.9 * frame_.font;
            const double end = 0.88 * length;
            list_.lines.push_back({{from.x + start * along.x, from.y + start * along.y},
                                   {from.x + end * along.x - aside * along.y,
                                    from.y + end * along.y + aside * along.x},
                                   ColourRole::Aspect,
                                   0.8 * frame_.stroke,
                                   false,
                                   true});
        }
    }

    const DiagramFrame& frame_;
    const CellPlan& plan_;
    DisplayList& list_;
    std::vector<DiagramLabel> bindus_;
    std::vector<DiagramLabel> inner_;
    std::vector<DiagramLabel> outer_;
    std::array<int, 12> regionOfCell_{};
    std::vector<std::wstring> spoken_;
};

} // namespace

void layoutCells(const DiagramFrame& frame, const CellPlan& plan, DisplayList& list)
{
    CellLayout(frame, plan, list).lay();
}

} // namespace kestrav::present
