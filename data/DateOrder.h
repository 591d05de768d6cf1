// The order of day and month in the dates of chart lines.
#pragma once

#include "core/Identity.h"

#include <string_view>

namespace kestrav::data
{

/// Which of day and month comes first. One order is in force for a whole database. It is handed
/// to the readers by reference, because a line without an order of its own can flip it.
enum class DateOrder
{
    DayFirst,
    MonthFirst,
};

[[nodiscard]] constexpr DateOrder otherOrder(DateOrder order)
{
    return order == DateOrder::DayFirst ? DateOrder::MonthFirst : DateOrder::DayFirst;
}

/// The code that a chart line carries.
[[nodiscard]] constexpr std::string_view orderCode(DateOrder order)
{
    return order == DateOrder::DayFirst ? "EB" : "UN";
}

/// A date as a line has it, before the order is known.
struct WrittenDate
{
    int first = 0;
    int second = 0;
    int year = 0;

    [[nodiscard]] constexpr core::PlainDate in(DateOrder order) const
    {
        return order == DateOrder::DayFirst ? core::PlainDate{year, second, first}
                                            : core::PlainDate{year, first, second};
    }
};

/// The order of a line: its code's first character, E or U, decides. Without a code the order in
/// force is taken, and flipped for good when the birth date does not fit it. So one line with a
/// wrong date changes how the lines after it are read, and 13/13 flips at every reading; both are
/// meant.
[[nodiscard]] constexpr DateOrder orderOfLine(std::string_view code, const WrittenDate& birth,
                                              DateOrder& inForce)
{
    if (code.starts_with('E')) {
        return DateOrder::DayFirst;
    }
    if (code.starts_with('U')) {
        return DateOrder::MonthFirst;
    }
    const bool complete = birth.first != 0 && birth.second != 0 && birth.year != 0;
    const bool misfit = inForce == DateOrder::MonthFirst ? birth.first > 12 : birth.second >= 13;
    if (complete && misfit) {
        inForce = otherOrder(inForce);
    }
    return inForce;
}

} // namespace kestrav::data
