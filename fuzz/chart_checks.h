// What must hold for every record, whatever it was read from.
#pragma once

#include "data/ChartLine.h"
#include "data/import/ImportReport.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace kestrav::fuzz
{

inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// The line of a record has all its fields, can be read, and does not change any more.
inline void checkRecord(const core::Chart& chart)
{
    constexpr int kFields = 20;
    for (data::DateOrder order : {data::DateOrder::DayFirst, data::DateOrder::MonthFirst}) {
        const std::string line = data::FormatChartLine(chart, order);
        require(line.find_first_of(std::string("\r\n\0", 3)) == std::string::npos);
        require(std::count(line.begin(), line.end(), '\t') == kFields + core::kLifeEvents);
        core::Chart read;
        data::DateOrder inForce = data::otherOrder(order);
        data::ParseChartLine(line, read, inForce);
        require(inForce == data::otherOrder(order));
        require(data::FormatChartLine(read, order) == line);
    }
}

/// Charts of an import have a date, a time and a place in range.
inline void checkImport(const data::ImportReport& report)
{
    for (const core::Chart& chart : report.charts) {
        require(core::dateExists(chart.time.year, chart.time.month, chart.time.day));
        require(chart.time.localTime >= 0.0 && chart.time.localTime < 24.0);
        require(std::fabs(chart.geoLongitude) <= 180.0 && std::fabs(chart.geoLatitude) <= 90.0);
        require(std::fabs(chart.zone) <= 15.0);
        require(!chart.name.empty());
        checkRecord(chart);
    }
}

} // namespace kestrav::fuzz
