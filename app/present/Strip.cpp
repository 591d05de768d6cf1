#include "app/present/Strip.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::present
{

namespace
{

// In sizes of the font.
constexpr double kAxisHeight = 1.7;
constexpr double kTick = 0.3;
constexpr double kTickGap = 0.6; ///< between two labels
constexpr double kMark = 0.45;   ///< half the width of a mark
constexpr double kMargin = 0.25; ///< beside texts in bars
constexpr double kLabelGap = 0.6;

// Labels that would take more than this part of the width are left out.
constexpr double kMostForLabels = 0.3;
// The part of a lane and of its rows that bars take, and that their texts take of these.
constexpr double kBarHeight = 0.84;
constexpr double kTextHeight = 0.8;
constexpr double kSmallestText = 6.0;
constexpr double kTouching = 0.01; ///< bars that overlap by less stand beside each other

// A span with its place in the drawing.
struct Bar
{
    std::size_t index;
    double left;
    double right;
    std::size_t row = 0;
};

class StripMaker
{
public:
    StripMaker(const StripModel& model, const StripOptions& options)
        : model_(model), options_(options)
    {
        strip_.list.width = options.width;
        strip_.list.height = options.height;
        strip_.list.scheme = options.scheme;
        strip_.list.title = model.title;
    }

    Strip make()
    {
        const double labels = labelWidth();
        strip_.axis = {model_.from, model_.to, labels, options_.width};
        const bool drawable = options_.width > labels && options_.height > 0.0 &&
                              model_.to > model_.from && !model_.lanes.empty();
        if (!drawable) {
            return std::move(strip_);
        }
        const double bottom =
            std::max(options_.height - kAxisHeight * options_.fontSize, 0.5 * options_.height);
        const double height = bottom / double(model_.lanes.size());
        for (std::size_t lane = 0; lane < model_.lanes.size(); ++lane) {
            const double top = double(lane) * height;
            addLane(lane, {labels, top, options_.width, top + height});
        }
        addAxis(strip_.list, strip_.axis, thinnedTicks(model_.ticks, strip_.axis, options_), bottom,
                bottom, options_);
        addCursor(strip_.list, strip_.axis, model_.cursor, 0.0, bottom);
        return std::move(strip_);
    }

private:
    [[nodiscard]] double labelWidth() const
    {
        double widest = 0.0;
        for (const Lane& lane : model_.lanes) {
            widest = std::max(widest, widthOf(lane.label, options_));
        }
        widest += kLabelGap * options_.fontSize;
        return widest > kMostForLabels * options_.width ? 0.0 : widest;
    }

    // The bars that the axis holds, those that overlap in rows below each other.
    [[nodiscard]] std::vector<Bar> barsOf(const Lane& lane, std::size_t& rows) const
    {
        std::vector<Bar> bars;
        std::vector<double> ends;
        for (std::size_t i = 0; i < lane.spans.size(); ++i) {
            const TimeSpan& span = lane.spans[i];
            const bool mark = span.from == span.to;
            const bool outside = mark ? !strip_.axis.holds(span.from)
                                      : span.to <= model_.from || span.from >= model_.to;
            if (outside || !(span.from <= span.to)) {
                continue;
            }
            const double aside = mark ? kMark * options_.fontSize : 0.0;
            const double left = strip_.axis.xOf(std::max(span.from, model_.from)) - aside;
            const double right = strip_.axis.xOf(std::min(span.to, model_.to)) + aside;
            const auto free = std::find_if(ends.begin(), ends.end(),
                                           [&](double end) { return end <= left + kTouching; });
            const auto row = std::size_t(free - ends.begin());
            if (free == ends.end()) {
                ends.push_back(right);
            } else {
                *free = right;
            }
            bars.push_back({i, left, right, row});
        }
        rows = std::max<std::size_t>(ends.size(), 1);
        return bars;
    }

    void addLane(std::size_t number, const Box& box)
    {
        const Lane& lane = model_.lanes[number];
        if (box.left > 0.0) {
            addText(lane.label,
                    {0.0, box.top, box.left - 0.5 * kLabelGap * options_.fontSize, box.bottom},
                    ColourRole::Label, -1);
        }
        std::size_t rows = 1;
        const std::vector<Bar> bars = barsOf(lane, rows);
        const double rowHeight = kBarHeight * box.height() / double(rows);
        const double first = box.top + 0.5 * (1.0 - kBarHeight) * box.height();
        std::wstring spoken = lane.label + L":";
        for (const Bar& bar : bars) {
            const double top = first + double(bar.row) * rowHeight;
            addBar(number, bar, {bar.left, top, bar.right, top + rowHeight});
            spoken += (&bar == &bars.front() ? L" " : L", ") + lane.spans[bar.index].text;
        }
        strip_.list.description += spoken + (bars.empty() ? L" none\n" : L"\n");
    }

    void addBar(std::size_t lane, const Bar& bar, const Box& box)
    {
        const TimeSpan& span = model_.lanes[lane].spans[bar.index];
        const bool mark = span.from == span.to;
        std::vector<Spot> polygon = cornersOf(box);
        if (mark) {
            const Spot centre = box.centre();
            const double half = std::min(0.5 * box.width(), 0.5 * box.height());
            polygon = {{centre.x, centre.y - half},
                       {centre.x + half, centre.y},
                       {centre.x, centre.y + half},
                       {centre.x - half, centre.y}};
        }
        strip_.list.shapes.push_back({polygon, span.area, ColourRole::Division, 1.0});
        const int region = int(strip_.list.regions.size());
        std::wstring spoken = span.tip;
        std::replace(spoken.begin(), spoken.end(), L'\n', L',');
        strip_.list.regions.push_back({RegionKind::Span, int(strip_.spans.size()), 0, 0,
                                       std::move(polygon), span.tip, std::move(spoken)});
        strip_.spans.push_back({lane, bar.index});
        if (!mark && !addText(span.text, box, ColourRole::Text, region)) {
            addText(span.brief, box, ColourRole::Text, region);
        }
    }

    // False when there is no room.
    bool addText(const std::wstring& text, const Box& box, ColourRole role, int region)
    {
        const double size = std::min(options_.fontSize, kTextHeight * box.height());
        const double width = widthOf(text, options_) * size / options_.fontSize;
        const double room = box.width() - (region < 0 ? 0.0 : 2.0 * kMargin * size);
        if (text.empty() || size < kSmallestText || width > room) {
            return false;
        }
        const Spot centre = box.centre();
        strip_.list.texts.push_back({text,
                                     {centre.x - 0.5 * width, centre.y - 0.5 * size,
                                      centre.x + 0.5 * width, centre.y + 0.5 * size},
                                     size,
                                     role,
                                     region,
                                     std::nullopt});
        return true;
    }

    const StripModel& model_;
    const StripOptions& options_;
    Strip strip_;
};

} // namespace

double TimeAxis::momentAt(double x) const
{
    const double share = (x - left) / (right - left);
    return from + std::clamp(share, 0.0, 1.0) * (to - from);
}

Strip layoutStrip(const StripModel& model, const StripOptions& options)
{
    return StripMaker(model, options).make();
}

double widthOf(std::wstring_view text, const StripOptions& options)
{
    return options.fontSize * (options.measure ? options.measure(text) : textWidth(text));
}

std::vector<AxisTick> thinnedTicks(const std::vector<AxisTick>& ticks, const TimeAxis& axis,
                                   const StripOptions& options)
{
    constexpr std::array<std::size_t, 12> kSteps = {1, 2, 3, 5, 6, 10, 12, 20, 24, 50, 100, 200};
    std::vector<AxisTick> shown;
    for (const std::size_t step : kSteps) {
        shown.clear();
        double end = -options.width;
        bool fits = true;
        for (std::size_t i = 0; i < ticks.size() && fits; i += step) {
            if (!axis.holds(ticks[i].moment)) {
                continue;
            }
            const double half = 0.5 * widthOf(ticks[i].label, options);
            const double x = axis.xOf(ticks[i].moment);
            fits = x - half >= end + kTickGap * options.fontSize;
            end = x + half;
            shown.push_back(ticks[i]);
        }
        if (fits) {
            return shown;
        }
    }
    shown.resize(1);
    return shown;
}

void addAxis(DisplayList& list, const TimeAxis& axis, const std::vector<AxisTick>& ticks,
             double top, double bottom, const StripOptions& options)
{
    const double size = options.fontSize;
    list.lines.push_back({{axis.left, bottom}, {axis.right, bottom}, ColourRole::Border});
    for (const AxisTick& tick : ticks) {
        const double x = axis.xOf(tick.moment);
        list.lines.push_back({{x, top}, {x, bottom + kTick * size}, ColourRole::Division});
        // Labels at the ends stay inside the drawing.
        const double width = widthOf(tick.label, options);
        const double left = std::clamp(x - 0.5 * width, 0.0, std::max(0.0, options.width - width));
        const double under = bottom + 1.5 * kTick * size;
        if (under + size <= options.height && width <= options.width) {
            list.texts.push_back({tick.label,
                                  {left, under, left + width, under + size},
                                  size,
                                  ColourRole::Label,
                                  -1,
                                  std::nullopt});
        }
    }
}

void addCursor(DisplayList& list, const TimeAxis& axis, std::optional<double> moment, double top,
               double bottom)
{
    constexpr double kCursorWidth = 2.0;
    if (moment && axis.holds(*moment)) {
        const double x = axis.xOf(*moment);
        list.lines.push_back({{x, top}, {x, bottom}, ColourRole::Cursor, kCursorWidth});
    }
}

} // namespace kestrav::present
