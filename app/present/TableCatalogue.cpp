#include "app/present/TableCatalogue.h"

#include "analysis/Ashtakavarga.h"
#include "app/present/AshtakavargaTables.h"
#include "app/present/ChangedPoints.h"
#include "app/present/ChartTables.h"
#include "app/present/CompareTables.h"
#include "app/present/DashaTables.h"
#include "app/present/DignityTables.h"
#include "app/present/EventTables.h"
#include "app/present/MatchTables.h"
#include "app/present/PanchangaTables.h"
#include "app/present/PersonTables.h"
#include "app/present/SpecialPointTables.h"
#include "app/present/StrengthTables.h"
#include "app/present/TablesOfDays.h"
#include "app/present/VargaTables.h"
#include "app/present/VargaWindowTable.h"
#include "app/present/YogaTables.h"
#include "timing/ConditionalDashas.h"
#include "timing/DashaQuery.h"

#include <algorithm>
#include <array>

namespace kestrav::present
{

namespace
{

using Made = core::Result<Table>;

// A list that has no other end stops at this age.
constexpr double kOldestAge = 120.0;

template <Table (*Make)(const ComputedChart&)>
Made chartTable(const TableSource& source)
{
    return Make(source.computed);
}

template <Table (*Make)(const Strengths&)>
Made strengthTable(const TableSource& source)
{
    return Make(Strengths(source.computed, source.nameLetter));
}

template <Table (*Make)(const analysis::Ashtakavarga&)>
Made binduTable(const TableSource& source)
{
    return Make(analysis::computeAshtakavarga(source.computed.chart, source.varga, true));
}

Made vargaOfSource(const TableSource& source)
{
    return vargaTable(source.computed, source.varga);
}

Made mainVargaSigns(const TableSource& source)
{
    return vargaSignsTable(source.computed, mainPoints(source.computed));
}

core::Result<DashaResult> chosenDasha(const TableSource& source)
{
    const core::Settings& settings = source.computed.settings;
    DashaResult result{dashaOptions(source.computed), {}, {}, {}, {}, {}};
    core::Result<timing::Dasha> dasha =
        timing::dashaOf(source.computed.chart, settings, result.options, source.series);
    if (!dasha) {
        return dasha.error();
    }
    result.dasha = std::move(dasha.value());
    return result;
}

Made dashaHead(const TableSource& source)
{
    const core::Result<DashaResult> result = chosenDasha(source);
    return result ? Made(dashaSummary(source.computed, result.value())) : result.error();
}

Made dashaList(const TableSource& source)
{
    core::Result<DashaResult> result = chosenDasha(source);
    if (!result) {
        return result.error();
    }
    timing::DashaSpan span;
    span.levels = source.levels;
    span.endAge = source.lines > 0 ? timing::kLastAge : kOldestAge;
    span.budget = source.lines > 0 ? source.lines : span.budget;
    for (const timing::DashaPeriod& period : timing::DashaList(result.value().dasha, span)) {
        result.value().periods.push_back(period);
    }
    return dashaPeriodsTable(source.computed, result.value());
}

Made runningDashas(const TableSource& source)
{
    core::Result<DashaResult> result = chosenDasha(source);
    if (!result) {
        return result.error();
    }
    if (!source.computed.chart.hasMoment) {
        return core::Error{"a chart of bare positions has ages, but no dates"};
    }
    result.value().moment = source.moment;
    const timing::Dasha& dasha = result.value().dasha;
    const double age = dasha.calendar.ageAt(source.moment);
    for (int level = 1; level <= timing::kDashaLevels; ++level) {
        if (const auto period = timing::periodAtAge(dasha, age, level)) {
            result.value().running.push_back(*period);
        }
    }
    return runningDashasTable(source.computed, result.value());
}

Made conditionalDashas(const TableSource& source)
{
    const core::Settings& settings = source.computed.settings;
    std::vector<int> systems;
    for (const int system : timing::kConditionalDashas) {
        if (timing::dashaApplies(source.computed.chart, settings, dashaOptions(source.computed),
                                 system)) {
            systems.push_back(system);
        }
    }
    return conditionalDashasTable(systems);
}

Made vargaWindowsOfChart(const TableSource& source)
{
    if (!source.computed.chart.computed(core::kAscendant) || !source.computed.hasPlace) {
        return core::Error{"the windows need an ascendant and the place"};
    }
    return vargaWindowTable(source.computed,
                            timing::vargaWindows(source.computed.chart, source.computed.settings));
}

template <Table (*Make)(const timing::PanchangaDay&, bool twelveHour)>
Made panchangaPart(const TableSource& source)
{
    const core::Result<timing::PanchangaDay> day = panchangaDay(source);
    return day ? Made(Make(day.value(), source.computed.settings.twelveHourClock)) : day.error();
}

template <Table (*Make)(const analysis::Matching&)>
Made matchingTable(const TableSource& source)
{
    if (source.groom == nullptr || source.bride == nullptr || source.matchingTables == nullptr) {
        return core::Error{"needs a second chart"};
    }
    const core::Result<analysis::Matching> matching = analysis::matchCharts(
        *source.groom, *source.bride, *source.matchingTables, source.computed.settings);
    return matching ? Made(Make(matching.value())) : matching.error();
}

// The chart of the comparison that is not the one of the source.
const core::Chart* secondChart(const TableSource& source)
{
    return source.groom == &source.computed.chart ? source.bride : source.groom;
}

Made comparedWithSecond(const TableSource& source)
{
    const core::Chart* const second = secondChart(source);
    return second == nullptr ? Made(core::Error{"needs a second chart"})
                             : positionsInChart(source.computed.chart, *second);
}

Made comparedWithFirst(const TableSource& source)
{
    const core::Chart* const second = secondChart(source);
    if (second == nullptr) {
        return core::Error{"needs a second chart"};
    }
    Table table = positionsInChart(*second, source.computed.chart);
    table.id = "compare-back";
    return table;
}

Made yogasOfChart(const TableSource& source)
{
    if (source.yogas == nullptr) {
        return core::Error{"no yoga file is loaded"};
    }
    yoga::Subject subject(source.computed.settings, &source.series);
    subject.setChart(source.computed.chart);
    subject.setMoment(source.moment);
    return yogasTable(*source.yogas, subject);
}

const std::array<TableInfo, 65> kTables = {{
    {"birth-data", L"name, place, date, time and coordinates", chartTable<birthTable>},
    {"time", L"Universal Time, Delta T, Julian day, ayanamsa, sidereal time",
     chartTable<timeTable>},
    {"daylight", L"sunrise and sunset of the date", chartTable<daylightTable>},
    {"sun", L"sunrise, noon and sunset to the second", chartTable<sunTable>},
    {"vedic-day", L"the day from sunrise to sunrise", chartTable<vedicDayTable>},
    {"positions", L"ascendant and bodies with nakshatra and motion", chartTable<positionsTable>},
    {"house-system", L"house system, ascendant, midheaven, obliquity", chartTable<housesSummary>},
    {"houses", L"cusps and sandhis", chartTable<housesTable>},
    {"special-points", L"upagrahas, special lagnas, arudhas and other points",
     chartTable<specialPointsTable>},
    {"karakas", L"the chara karakas", chartTable<karakasTable>},
    {"yogi", L"Yogi and Avayogi", chartTable<yogiTable>},
    {"sphutas", L"the sphutas", chartTable<sphutasTable>},
    {"sahams", L"all sahams", chartTable<sahamsTable>},
    {"varga-signs", L"signs in all divisional charts", mainVargaSigns},
    {"varga", L"one divisional chart", vargaOfSource},
    {"varga-list", L"the divisional charts with their meanings",
     [](const TableSource& /*source*/) -> Made {
         return vargaListTable();
     }},
    {"varga-windows", L"from when to when the ascendants of the divisional charts hold",
     vargaWindowsOfChart},
    {"vimshopaka", L"strength from the divisional charts", chartTable<vimshopakaTable>},
    {"planets", L"dignity, combustion and functional nature", chartTable<planetsTable>},
    {"dignities", L"dignities in the divisional charts", chartTable<dignitiesTable>},
    {"natural-relationships", L"friends and enemies by nature",
     [](const TableSource& /*source*/) -> Made {
         return naturalRelationshipsTable();
     }},
    {"compound-relationships", L"friends and enemies in this chart",
     chartTable<compoundRelationshipsTable>},
    {"shadbala", L"shadbala with every part", strengthTable<shadbalaTable>},
    {"shadbala-totals", L"totals of shadbala", strengthTable<shadbalaTotalsTable>},
    {"rashmis", L"rays of the planets", strengthTable<rashmisTable>},
    {"bhava-bala", L"strength of the houses", strengthTable<bhavaBalaTable>},
    {"avasthas", L"states of the planets", strengthTable<avasthasTable>},
    {"planetary-war", L"wars and their winners", strengthTable<warsTable>},
    {"aspects", L"aspects of the planets on each other", strengthTable<bodyAspectsTable>},
    {"house-aspects", L"aspects of the planets on the houses", strengthTable<houseAspectsTable>},
    {"ashtakavarga", L"bindus with their sums", binduTable<ashtakavargaTable>},
    {"trikona", L"bindus after the trikona reduction", binduTable<trikonaTable>},
    {"ekadhipatya", L"bindus after both reductions", binduTable<ekadhipatyaTable>},
    {"pinda", L"pindas after the reductions", binduTable<pindaTable>},
    {"kakshyas", L"kakshyas of the planets with their bindus",
     [](const TableSource& source) -> Made {
         return kakshyasTable(source.computed.chart);
     }},
    {"dasha", L"the chosen dasha and the balance at birth", dashaHead},
    {"dashas", L"periods of the chosen dasha", dashaList},
    {"running-dashas", L"periods that run at the moment", runningDashas},
    {"conditional-dashas", L"conditional dashas that apply", conditionalDashas},
    {"dasha-systems", L"all dashas with their cycles",
     [](const TableSource& /*source*/) -> Made {
         return dashaSystemsTable();
     }},
    {"panchanga", L"Sun, Moon, month, season and years of the day of birth",
     panchangaPart<panchangaTable>},
    {"tithis", L"tithis of that day", panchangaPart<tithisTable>},
    {"nakshatras", L"nakshatras of the Moon on that day", panchangaPart<nakshatrasTable>},
    {"nitya-yogas", L"yogas of Sun and Moon on that day", panchangaPart<nityaYogasTable>},
    {"karanas", L"karanas of that day", panchangaPart<karanasTable>},
    {"horas", L"horas of that day and its night", panchangaPart<horasTable>},
    {"choghadia", L"choghadia of that day and its night", panchangaPart<choghadiaTable>},
    {"kala-velas", L"kala velas of that day and its night", panchangaPart<kalaVelasTable>},
    {"kalams", L"Rahu kalam, Abhijit, varjyam and the like", panchangaPart<kalamsTable>},
    {"yogas", L"yogas that hold, with reasons", yogasOfChart},
    {"transits", L"transits over the chart; 30 days", transitsOfDays},
    {"transit-kakshyas", L"transiting planets in kakshyas; 30 days", transitKakshyasOfDays},
    {"sade-sati", L"Saturn around the birth Moon; 30 years", sadeSatiOfDays},
    {"ephemeris", L"positions from day to day; 30 days", ephemerisOfDays},
    {"ephemeris-events", L"ingresses and stations; 366 days", ephemerisEventsOfDays},
    {"moon-phases", L"phases of the Moon; 366 days", moonPhasesOfDays},
    {"eclipses", L"eclipses and what the place sees of them; ten years", eclipsesOfDays},
    {"eclipsed-points", L"points of the chart that eclipses fall on; ten years",
     eclipsedPointsOfDays},
    {"kutas", L"points of a comparison with a second chart", matchingTable<kutasTable>},
    {"doshas", L"doshas of that comparison", matchingTable<doshasTable>},
    {"compare", L"positions in the houses of a second chart", comparedWithSecond},
    {"compare-back", L"positions of a second chart in the houses of this one", comparedWithFirst},
    {"events", L"the events of the native's life", chartTable<eventsTable>},
    {"event-transits", L"these events with their dashas and transits",
     [](const TableSource& source) -> Made {
         return eventTransitsTable(source.computed, source.series);
     }},
    {"contact", L"where the native can be reached", chartTable<contactTable>},
}};

} // namespace

std::span<const TableInfo> allTables()
{
    return kTables;
}

core::Result<Table> TableInfo::make(const TableSource& source) const
{
    core::Result<Table> made = maker(source);
    if (made) {
        markChangedPoints(made.value(), source.computed);
    }
    return made;
}

const TableInfo* findTable(std::string_view id)
{
    const auto* const found = std::find_if(kTables.begin(), kTables.end(),
                                           [&](const TableInfo& info) { return info.id == id; });
    return found == kTables.end() ? nullptr : found;
}

} // namespace kestrav::present
