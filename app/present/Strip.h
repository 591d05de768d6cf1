// Strips: stretches of time as bars above one axis, laid out as a display list.
#pragma once

#include "app/present/DisplayList.h"
#include "app/present/Table.h"
#include "app/present/TextWidths.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrav::present
{

/// The way between moments and places of a drawing. Moments are Julian days of Universal Time.
struct TimeAxis
{
    double from = 0.0;
    double to = 1.0; ///< after `from`
    double left = 0.0;
    double right = 1.0; ///< to the right of `left`

    [[nodiscard]] double xOf(double moment) const
    {
        return left + (moment - from) / (to - from) * (right - left);
    }
    /// The moment at a place; places beside the axis give its ends.
    [[nodiscard]] double momentAt(double x) const;

    [[nodiscard]] bool holds(double moment) const
    {
        return moment >= from && moment <= to;
    }
};

/// One bar, or a mark where it has no length.
struct TimeSpan
{
    double from = 0.0;
    double to = 0.0;
    std::wstring text;  ///< what stands in the bar
    std::wstring brief; ///< what stands there where there is room for no more; may be empty
    std::wstring tip;   ///< lines end with a line feed
    ColourRole area = ColourRole::Panel;
    int number = 0; ///< of the element in its own list, such as tithi 0 to 29
    Link about;
};

/// The bars of one kind, side by side; those that overlap are stacked.
struct Lane
{
    std::string id; ///< "tithi", "hora" ...
    std::wstring label;
    std::vector<TimeSpan> spans;
};

struct AxisTick
{
    double moment = 0.0;
    std::wstring label;
};

struct StripModel
{
    std::wstring title;
    double from = 0.0;
    double to = 1.0;
    std::vector<Lane> lanes;
    std::vector<AxisTick> ticks;
    std::optional<double> cursor; ///< the shared moment
};

struct StripOptions
{
    double width = 600.0;
    double height = 300.0;
    ColourScheme scheme = ColourScheme::Light;
    double fontSize = 12.0;
    MeasureText measure; ///< empty for textWidth
};

/// Where a bar of a strip comes from.
struct StripSpan
{
    std::size_t lane = 0;
    std::size_t span = 0;
};

struct Strip
{
    DisplayList list; ///< regions of the kind Span, whose index is one of `spans`
    TimeAxis axis;
    std::vector<StripSpan> spans;
};

/// Lays the lanes out below each other with the axis at the bottom. Bars are cut at the ends of the
/// axis, texts that have no room are left out, and nothing is drawn of a strip without size or
/// time.
[[nodiscard]] Strip layoutStrip(const StripModel& model, const StripOptions& options);

/// The ticks that have room for their labels, at least the first one: every n-th, in steps of the
/// given counts.
[[nodiscard]] std::vector<AxisTick> thinnedTicks(const std::vector<AxisTick>& ticks,
                                                 const TimeAxis& axis, const StripOptions& options);

/// The width of a text in the font of the options.
[[nodiscard]] double widthOf(std::wstring_view text, const StripOptions& options);

/// Adds the axis at the height `bottom` with its ticks, which go up to `top`.
void addAxis(DisplayList& list, const TimeAxis& axis, const std::vector<AxisTick>& ticks,
             double top, double bottom, const StripOptions& options);

/// Adds the line of the shared moment, where the axis holds it.
void addCursor(DisplayList& list, const TimeAxis& axis, std::optional<double> moment, double top,
               double bottom);

} // namespace kestrav::present
