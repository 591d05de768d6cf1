// Counts as horizontal bars, laid out as a display list.
#pragma once

#include "app/present/DisplayList.h"
#include "app/present/TextWidths.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kestrav::present
{

struct CountBar
{
    std::wstring label;
    std::size_t count = 0;
};

struct BarChartModel
{
    std::wstring title;
    std::vector<CountBar> bars;
};

struct BarChartOptions
{
    double width = 600.0;
    ColourScheme scheme = ColourScheme::Light;
    double fontSize = 12.0;
    MeasureText measure; ///< empty for textWidth
};

/// One row for each bar: label, bar, count with its share of all. The height follows from the
/// number of bars. Regions of the kind Span have the index of their bar.
[[nodiscard]] DisplayList layoutBarChart(const BarChartModel& model,
                                         const BarChartOptions& options);

/// "12.5 %" of a whole; empty when the whole is 0.
[[nodiscard]] std::wstring shareText(std::size_t count, std::size_t whole);

} // namespace kestrav::present
