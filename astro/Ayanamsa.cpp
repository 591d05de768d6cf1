#include "astro/Ayanamsa.h"

#include "core/Angles.h"

#include <array>
#include <cstddef>

namespace kestrav::astro
{

double DecimalYear(const core::DateTimeRecord& record)
{
    constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int leapDay = record.month == 2 && core::IsLeapYear(record.year) ? 1 : 0;
    const int days = kDays[static_cast<std::size_t>(core::SignOf12(record.month) - 1)] + leapDay;
    return record.year + (record.month - 1) / 12.0 +
           (record.day - 1 + record.utHours / 24.0) / (12.0 * days);
}

double ayanamsaOfRow(const core::AyanamsaRow& row, double decimalYear)
{
    return (decimalYear - row.epochYear) * row.annualRate * (1.0 / 3600.0) + row.valueAtEpoch;
}

const core::AyanamsaRow& selectedRow(const core::Settings& settings)
{
    const int row = core::ClampRange(0, core::kAyanamsaRows - 1, settings.ayanamsaRow);
    return settings.ayanamsaTable[static_cast<std::size_t>(row)];
}

bool isTropical(const core::AyanamsaRow& row)
{
    return row.annualRate <= 0.0;
}

double Ayanamsa(core::DateTimeRecord& record, const core::Settings& settings)
{
    record.ayanamsa = ayanamsaOfRow(selectedRow(settings), DecimalYear(record));
    return record.ayanamsa;
}

double PrecessionSince2000(const core::DateTimeRecord& record, const core::Settings& settings)
{
    return (2000.0 - DecimalYear(record)) * settings.ayanamsaTable[0].annualRate * (1.0 / 3600.0);
}

} // namespace kestrav::astro
