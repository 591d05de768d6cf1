// One chart as one line of a database file.
#pragma once

#include "core/Chart.h"
#include "data/DateOrder.h"

#include <string>
#include <string_view>

namespace kestrav::data
{

/// Clears the record and reads a chart line into it: fields 0 to 3 (tag, label, name, sex), and
/// unless `namesOnly` is set everything else. A line that ends early leaves the fields that it does
/// not have empty or 0. Any bytes are accepted; the encoding is UTF-8, or Windows-1252 when the
/// line is not valid UTF-8. `order` is the date order in force, which a line without an order of
/// its own can flip. Returns the record.
core::Chart& ParseChartLine(std::string_view line, core::Chart& chart, DateOrder& order,
                            bool namesOnly = false);

/// The chart line of a record in UTF-8, without line end, its dates in the given order. Texts are
/// cleaned and cut to what the reader keeps, and display texts that do not stand for their numbers
/// are made again, so every record gives a line that can be read. Birth time and zone keep whole
/// seconds, longitude and latitude whole arc seconds, event times hundredths of an hour.
[[nodiscard]] std::string FormatChartLine(const core::Chart& chart, DateOrder order);

} // namespace kestrav::data
