// Dates as they are typed into forms, in the date order of the database.
#pragma once

#include "core/Identity.h"
#include "core/Result.h"
#include "data/DateOrder.h"

#include <string>
#include <string_view>

namespace kestrav::present
{

/// "15/6/1990" in the order; empty when every part is 0.
[[nodiscard]] std::wstring typedDate(const core::PlainDate& date, data::DateOrder order);

/// "day/month/year" or "month/day/year".
[[nodiscard]] std::wstring_view dateOrderLabel(data::DateOrder order);

/// Three numbers in the order, parted by '/', '.', ',', '-' or blanks, or year-month-day when the
/// first has more than two digits. A minus before the year is taken. No calendar is applied, and an
/// empty text gives a date of zeros. The error says how a date is written.
[[nodiscard]] core::Result<core::PlainDate> readPlainDate(std::wstring_view text,
                                                          data::DateOrder order);

/// The same for a date that must exist, in historical years. The error says in a whole sentence
/// what is wrong with it.
[[nodiscard]] core::Result<core::PlainDate> readRealDate(std::wstring_view text,
                                                         data::DateOrder order);

/// What is wrong with a date; empty when it exists.
[[nodiscard]] std::string dateProblem(const core::PlainDate& date);

/// What a user should know of a date that can be taken; empty when there is nothing.
[[nodiscard]] std::string dateWarning(const core::PlainDate& date);

} // namespace kestrav::present
