#include "app/present/DashaTables.h"

#include "app/present/TextValues.h"
#include "core/Angles.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Settings.h"
#include "core/TextForms.h"
#include "timing/Balance.h"
#include "timing/ConditionalDashas.h"
#include "timing/DashaTable.h"
#include "timing/KalaChakra.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::present
{

namespace
{

using core::at;
using timing::DashaPeriod;
using timing::LordKind;

constexpr std::array<std::wstring_view, 4> kDerivedStarts = {L"Kshema (4th)", L"Utpanna (5th)",
                                                             L"Sadha (6th)", L"Adhana (8th)"};

std::wstring startText(const timing::DashaOptions& options)
{
    if (!timing::startsFromNakshatra(options.system)) {
        return {};
    }
    const bool derived = options.startPoint >= timing::kKshemaStart;
    return L", start point " +
           (derived ? std::wstring(at(kDerivedStarts, options.startPoint - timing::kKshemaStart))
                    : pointLabel(options.startPoint)) +
           (options.fractionByTime && options.startPoint == core::kMoon ? L", by time" : L"");
}

std::wstring yearText(const timing::DashaOptions& options)
{
    const core::SettingInfo& info = *core::findSetting("dashaYearLength");
    std::wstring text = core::fromFileBytes(core::choiceName(info, int(options.yearLength)));
    if (options.yearLength != timing::YearLength::TrueSolar) {
        const double days = timing::yearDays(options.yearLength, options.customYearDays);
        text += L", " + core::fromFileBytes(core::shortestNumber(days)) + L" days";
    }
    return text;
}

std::wstring cycleText(const timing::DashaOptions& options)
{
    const core::SettingInfo& info = *core::findSetting("dashaTotalLength");
    return core::fromFileBytes(core::choiceName(info, options.totalLength));
}

// How exactly dates are shown, which goes by the shortest periods.
enum class Precision
{
    Day,
    Minute,
    Second,
};

Precision precisionFor(const DashaResult& result, int levels)
{
    const double years = result.dasha.plan.totals[0];
    const double parts = std::pow(double(result.dasha.plan.childCount()), levels);
    const double days = years / parts * timing::kMeanSiderealYear;
    constexpr double kDaysForDates = 20.0;
    constexpr double kDaysForMinutes = 0.02;
    if (days > kDaysForDates) {
        return Precision::Day;
    }
    return days > kDaysForMinutes ? Precision::Minute : Precision::Second;
}

int decimalsFor(Precision precision)
{
    constexpr std::array<int, 3> kDecimals = {2, 4, 7};
    return at(kDecimals, int(precision));
}

// Fills a table of periods with the columns that the system and the chart have.
class PeriodTable
{
public:
    PeriodTable(const ComputedChart& computed, const DashaResult& result, int levels)
        : computed_(computed), dasha_(result.dasha),
          precision_(precisionFor(result, levels)), table_{"dashas", L"", columns()}
    {}

    void add(const DashaPeriod& period)
    {
        std::wstring name(2 * std::size_t(period.level - 1), L' ');
        name += dashaPeriodName(kind(), period);
        Row cells = {{std::move(name), period.startAge, dashaLordLink(kind(), period.lord())}};
        if (hasDates()) {
            cells.push_back(momentCell(period.startJulianDay));
            cells.push_back(momentCell(dasha_.calendar.julianDayOf(period.endAge())));
        }
        const int decimals = decimalsFor(precision_);
        // What is shown as zero has no sign.
        const bool isZero = std::fabs(period.startAge) < 0.5 * std::pow(10.0, -decimals);
        cells.push_back(numberCell(isZero ? 0.0 : period.startAge, decimals));
        cells.push_back(numberCell(period.length, decimals));
        addSigns(period, cells);
        table_.add(std::move(cells));
    }

    [[nodiscard]] Table& table()
    {
        return table_;
    }

    /// A moment as the table shows it.
    [[nodiscard]] std::wstring dateAndTime(double julianDay) const
    {
        if (precision_ == Precision::Day) {
            return dateText(dasha_.calendar.dateOf(julianDay));
        }
        // Rounded before the date is told, so that no time reads 24:00.
        const double steps = precision_ == Precision::Minute ? 1440.0 : 86400.0;
        const double zone = computed_.chart.zone / 24.0;
        const double local = std::floor((julianDay + zone) * steps + 0.5);
        constexpr double kPastTheStep = 0.1;
        const core::DateTimeRecord record =
            dasha_.calendar.dateOf((local + kPastTheStep) / steps - zone);
        const bool twelve = computed_.settings.twelveHourClock;
        std::wstring time = precision_ == Precision::Minute
                                ? core::FormatClock(record.localTime, twelve, true)
                                : clockSeconds(record.localTime, twelve);
        return dateText(record) + L" " + withoutEndBlanks(time);
    }

private:
    [[nodiscard]] LordKind kind() const
    {
        return dasha_.plan.lordKind;
    }
    [[nodiscard]] bool hasDates() const
    {
        return computed_.chart.hasMoment;
    }

    [[nodiscard]] Cell momentCell(double julianDay) const
    {
        return {dateAndTime(julianDay), julianDay, {Subject::Moment, 0, 0, julianDay}};
    }

    [[nodiscard]] std::vector<Column> columns() const
    {
        std::vector<Column> columns = {{L"Period"}};
        if (hasDates()) {
            columns.push_back({L"From"});
            columns.push_back({L"To"});
        }
        columns.push_back({L"Age", Align::Right});
        columns.push_back({L"Years", Align::Right});
        if (kind() == LordKind::House) {
            for (const int point : kSudarshanaReferences) {
                columns.push_back({pointLabel(point)});
            }
        } else if (dasha_.plan.kalaChakraRow >= 0) {
            columns.push_back({L"Deh and Jiv"});
        }
        return columns;
    }

    void addSigns(const DashaPeriod& period, Row& cells) const
    {
        if (kind() == LordKind::House) {
            for (const int point : kSudarshanaReferences) {
                const int sign = (at(computed_.chart.rashi, point) + period.lord() - 2) % 12 + 1;
                cells.push_back(computed_.chart.computed(point)
                                    ? Cell(withoutEndBlanks(core::SignName3(sign)), double(sign),
                                           {Subject::Sign, sign})
                                    : Cell(core::kNoName));
            }
        } else if (dasha_.plan.kalaChakraRow >= 0) {
            cells.push_back(period.level == 1 ? timing::kalaChakraLabel(period.kalaChakraRow)
                                              : L"");
        }
    }

    const ComputedChart& computed_;
    const timing::Dasha& dasha_;
    Precision precision_;
    Table table_;
};

} // namespace

std::wstring dashaSystemName(int system)
{
    return std::wstring(timing::dashaRow(system).name);
}

LordKind dashaLordKind(int system)
{
    if (system == timing::kSudarshanaChakra) {
        return LordKind::House;
    }
    return timing::isSignDasha(system) || system == timing::kKalaChakra ? LordKind::Sign
                                                                        : LordKind::Planet;
}

std::wstring dashaLordName(LordKind kind, int lord)
{
    switch (kind) {
    case LordKind::Sign:
        return withoutEndBlanks(core::signNameLong(lord));
    case LordKind::House:
        return L"House " + std::to_wstring(lord);
    case LordKind::Planet:
        break;
    }
    return pointLabel(lord);
}

std::wstring dashaLordShortName(LordKind kind, int lord)
{
    switch (kind) {
    case LordKind::Sign:
        return withoutEndBlanks(core::SignName3(lord));
    case LordKind::House:
        return std::to_wstring(lord);
    case LordKind::Planet:
        break;
    }
    return withoutEndBlanks(core::PointName(3, lord));
}

Link dashaLordLink(LordKind kind, int lord)
{
    switch (kind) {
    case LordKind::Sign:
        return {Subject::Sign, lord};
    case LordKind::House:
        return {Subject::House, lord};
    case LordKind::Planet:
        break;
    }
    return {Subject::Point, lord};
}

std::wstring dashaPeriodName(LordKind kind, const DashaPeriod& period)
{
    if (period.level == 1) {
        return dashaLordName(kind, period.lord());
    }
    std::wstring name;
    for (int level = 1; level <= period.level; ++level) {
        name += (level > 1 ? L"-" : L"") + dashaLordShortName(kind, at(period.lords, level - 1));
    }
    return name;
}

std::string_view lordKindName(LordKind kind)
{
    switch (kind) {
    case LordKind::Sign:
        return "sign";
    case LordKind::House:
        return "house";
    case LordKind::Planet:
        break;
    }
    return "planet";
}

std::optional<double> dashaCycleYears(int system)
{
    switch (system) {
    case timing::kShoola:
    case timing::kTithiAstottari:
        return 108.0;
    case timing::kNiryanaShoola:
        return 96.0;
    case timing::kMoola:
    case timing::kKalaChakra:
        return std::nullopt;
    default:
        return timing::isSignDasha(system) ? std::nullopt
                                           : std::optional(timing::dashaRow(system).total);
    }
}

bool isConditionalDasha(int system)
{
    return std::find(timing::kConditionalDashas.begin(), timing::kConditionalDashas.end(),
                     system) != timing::kConditionalDashas.end();
}

Table dashaSystemsTable()
{
    Table table = {"dasha-systems",
                   L"",
                   {{L"Index", Align::Right},
                    {L"System"},
                    {L"Lords"},
                    {L"Cycle", Align::Right},
                    {L"Found from"},
                    {L"Applies"}}};
    for (int system = 0; system < timing::kNamedDashaSystems; ++system) {
        const std::optional<double> years = dashaCycleYears(system);
        Cell cycle(years ? core::fromFileBytes(core::shortestNumber(*years)) : L"by chart");
        cycle.sortKey = years;
        table.add({integerCell(system), dashaSystemName(system),
                   core::fromFileBytes(lordKindName(dashaLordKind(system))) + L"s",
                   std::move(cycle), timing::startsFromNakshatra(system) ? L"nakshatra" : L"chart",
                   isConditionalDasha(system) ? L"on a condition" : L"always"});
    }
    return table;
}

Table dashaSummary(const ComputedChart& computed, const DashaResult& result)
{
    Table table = labelledTable("dasha", L"");
    table.add({L"Dasha", dashaSystemName(result.options.system) + startText(result.options)});
    if (result.options.totalLength != 0) {
        table.add({L"Whole cycle", cycleText(result.options)});
    }
    table.add({L"Year length", yearText(result.options)});
    if (const std::optional<timing::DashaBalance> balance =
            timing::balanceAtBirth(computed.chart)) {
        const bool other = result.options.system != timing::kVimshottari;
        table.add({L"At birth", timing::balanceLine(*balance) + (other ? L" (Vimshottari)" : L"")});
    }
    if (result.dasha.plan.kalaChakraRow >= 0) {
        table.add({L"Birth pada", timing::kalaChakraLabel(result.dasha.plan.kalaChakraRow)});
    }
    if (computed.chart.daylightSaving != 0) {
        table.notes.push_back(
            L"Dates and times are on the clock of the zone, without saving time.");
    }
    return table;
}

Table conditionalDashasTable(const std::vector<int>& systems)
{
    Table table = {"conditional-dashas", std::wstring(timing::kConditionalDashasHeading), {{L""}}};
    for (const int system : systems) {
        table.add({L"  " + dashaSystemName(system)});
    }
    if (systems.empty()) {
        table.add({L"  none"});
    }
    return table;
}

Table dashaPeriodsTable(const ComputedChart& computed, const DashaResult& result)
{
    int levels = 1;
    for (const DashaPeriod& period : result.periods) {
        levels = std::max(levels, period.level);
    }
    PeriodTable table(computed, result, levels);
    for (const DashaPeriod& period : result.periods) {
        table.add(period);
    }
    if (result.periods.empty()) {
        table.table().notes.push_back(L"No period lies in this span.");
    }
    return std::move(table.table());
}

Table runningDashasTable(const ComputedChart& computed, const DashaResult& result)
{
    PeriodTable table(computed, result, timing::kDashaLevels);
    const std::wstring moment = table.dateAndTime(*result.moment);
    for (const DashaPeriod& period : result.running) {
        table.add(period);
    }
    table.table().id = "running-dashas";
    if (result.running.empty()) {
        table.table().notes.push_back(L"No period runs on " + moment + L".");
    } else {
        const double age = result.dasha.calendar.ageAt(*result.moment);
        table.table().title = L"Running on " + moment + L", at the age of " + fixedNumber(age, 4);
    }
    return std::move(table.table());
}

} // namespace kestrav::present
