#include "app/present/TypedDate.h"

#include "core/DateTime.h"

#include <array>
#include <cstddef>

namespace kestrav::present
{

namespace
{

constexpr std::size_t kMostDigits = 9;
constexpr int kLargestYear = 99999;
constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};

bool digit(wchar_t character)
{
    return character >= L'0' && character <= L'9';
}

bool parting(wchar_t character)
{
    constexpr std::wstring_view kParting = L"/.,- ";
    return kParting.find(character) != std::wstring_view::npos;
}

struct Numbers
{
    std::array<int, 3> values{};
    std::size_t count = 0;
    std::size_t firstDigits = 0;
    bool good = true;
};

// A minus belongs to the number behind it when something else already parts the two.
bool signHere(std::wstring_view text, std::size_t at)
{
    return text[at] == L'-' && (at == 0 || parting(text[at - 1])) && at + 1 < text.size() &&
           digit(text[at + 1]);
}

Numbers scanNumbers(std::wstring_view text)
{
    Numbers numbers;
    for (std::size_t i = 0; i < text.size() && numbers.good;) {
        const bool minus = signHere(text, i);
        if (!minus && !digit(text[i])) {
            numbers.good = parting(text[i++]);
            continue;
        }
        i += minus ? 1 : 0;
        const std::size_t begin = i;
        int value = 0;
        for (; i < text.size() && digit(text[i]) && i - begin < kMostDigits; ++i) {
            value = value * 10 + int(text[i] - L'0');
        }
        numbers.good =
            numbers.count < numbers.values.size() && (i == text.size() || !digit(text[i]));
        if (numbers.good) {
            numbers.firstDigits = numbers.count == 0 ? i - begin : numbers.firstDigits;
            numbers.values[numbers.count++] = minus ? -value : value;
        }
    }
    numbers.good = numbers.good && numbers.count == numbers.values.size();
    return numbers;
}

} // namespace

std::wstring typedDate(const core::PlainDate& date, data::DateOrder order)
{
    if (date == core::PlainDate{}) {
        return {};
    }
    const bool dayFirst = order == data::DateOrder::DayFirst;
    return std::to_wstring(dayFirst ? date.day : date.month) + L"/" +
           std::to_wstring(dayFirst ? date.month : date.day) + L"/" + std::to_wstring(date.year);
}

std::wstring_view dateOrderLabel(data::DateOrder order)
{
    return order == data::DateOrder::DayFirst ? L"day/month/year" : L"month/day/year";
}

core::Result<core::PlainDate> readPlainDate(std::wstring_view text, data::DateOrder order)
{
    if (text.find_first_not_of(L' ') == std::wstring_view::npos) {
        return core::PlainDate{};
    }
    const Numbers numbers = scanNumbers(text);
    if (!numbers.good) {
        return core::Error{order == data::DateOrder::DayFirst
                               ? "Write day, month and year, such as 15/6/1990."
                               : "Write month, day and year, such as 6/15/1990."};
    }
    const std::array<int, 3>& values = numbers.values;
    if (numbers.firstDigits > 2) {
        return core::PlainDate{values[0], values[1], values[2]};
    }
    return data::WrittenDate{values[0], values[1], values[2]}.in(order);
}

core::Result<core::PlainDate> readRealDate(std::wstring_view text, data::DateOrder order)
{
    core::Result<core::PlainDate> date = readPlainDate(text, order);
    if (date) {
        if (const std::string problem = dateProblem(date.value()); !problem.empty()) {
            return core::Error{problem};
        }
    }
    return date;
}

std::string dateProblem(const core::PlainDate& date)
{
    if (date == core::PlainDate{}) {
        return "The date is missing.";
    }
    if (date.year == 0) {
        return "There is no year 0; 1 BC is the year -1.";
    }
    if (date.year < -kLargestYear || date.year > kLargestYear) {
        return "Years reach from -99999 to 99999.";
    }
    if (date.month < 1 || date.month > int(kMonths.size())) {
        return "There is no month " + std::to_string(date.month) + ".";
    }
    if (core::dateExists(date.year, date.month, date.day)) {
        return {};
    }
    const std::string month =
        std::string(kMonths[std::size_t(date.month - 1)]) + " " + std::to_string(date.year);
    const int days = core::daysInMonth(date.year, date.month);
    if (date.day >= 1 && date.day <= days) {
        return "In October 1582 the 15th followed the 4th.";
    }
    return month + " has no day " + std::to_string(date.day) + ".";
}

std::string dateWarning(const core::PlainDate& date)
{
    return date.year == 1582 && date.month == 10 && date.day == 15
               ? "This day is read in the Julian calendar, as October 25 of the Gregorian one."
               : "";
}

} // namespace kestrav::present
