#include "app/present/ChartTables.h"

#include "app/present/TextValues.h"
#include "astro/Ayanamsa.h"
#include "astro/Houses.h"
#include "astro/SiderealTime.h"
#include "core/FileText.h"
#include "core/Names.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Settings.h"
#include "core/TextForms.h"
#include "core/numeric.h"

#include <algorithm>
#include <optional>

namespace kestrav::present
{

namespace
{

using core::at;
using core::kDegreesPerRadian;

const std::wstring kNone(core::kNoName);
const std::wstring kNotComputedText = L"not computed";

std::wstring coordinatesText(const core::Chart& chart)
{
    return geoText(chart.geoLongitude, L'E', L'W') + L", " + geoText(chart.geoLatitude, L'N', L'S');
}

std::wstring zoneText(const core::Chart& chart)
{
    core::Chart shown = chart;
    core::FormatRecordHours(shown);
    const wchar_t* const sign = chart.zone < 0.0 ? L"" : L"+";
    return sign + shown.zoneText + L", saving time " + std::to_wstring(chart.daylightSaving) +
           L" h";
}

std::wstring ayanamsaText(const ComputedChart& computed)
{
    const std::string_view name = astro::selectedRow(computed.settings).nameText();
    return core::fromFileBytes(name) + L"  " + core::FormatDMS(computed.chart.ayanamsa, 1);
}

std::wstring clockOrNone(const std::optional<double>& hours, const core::Settings& settings)
{
    return hours ? core::FormatClock(*hours, settings.twelveHourClock, false) : kNone;
}

std::wstring secondsOrNone(const std::optional<double>& hours, const core::Settings& settings)
{
    return hours ? clockSeconds(*hours, settings.twelveHourClock) : kNone;
}

// What the Sun does not do on the civil date.
void addMissingEvents(Table& table, const core::Chart& chart)
{
    if (!chart.sunrise && !chart.sunset) {
        table.notes.push_back(L"The Sun neither rises nor sets at this place on this date.");
    } else if (!chart.sunset) {
        table.notes.push_back(L"The Sun does not set at this place on this date.");
    } else if (!chart.sunrise) {
        table.notes.push_back(L"The Sun does not rise at this place on this date.");
    }
}

Cell signPositionCell(const core::Chart& chart, int point)
{
    const double longitude = at(chart.longitude, point);
    return {core::FormatSignPosition(longitude), longitude, {Subject::Point, point}};
}

Cell nakshatraCell(double position)
{
    const int nakshatra = nakshatraOf(position);
    return {
        std::wstring(core::nakshatraName(nakshatra)), position, {Subject::Nakshatra, nakshatra}};
}

Row pointCells(const core::Chart& chart, int point)
{
    if (!chart.computed(point)) {
        return {pointCell(point), kNone, kNone, kNone, kNone, L"", L"", L"", L""};
    }
    const double position = at(chart.nakshatraPosition, point);
    const int navamsha = at(chart.navamshaSign, point);
    Row cells = {
        pointCell(point),
        signPositionCell(chart, point),
        nakshatraCell(position),
        integerCell(padaOf(position)),
        {std::wstring(core::SignName3(navamsha)), double(navamsha), {Subject::Sign, navamsha}},
    };
    if (point == core::kAscendant) {
        cells.insert(cells.end(), {L"", L"", L"", L""});
    } else if (!chart.hasMoment) {
        cells.insert(cells.end(), {kNone, at(chart.retrograde, point) ? L"R" : L"", kNone, kNone});
    } else {
        const double latitude = at(chart.latitude, point) * kDegreesPerRadian;
        const double declination =
            at(chart.declination, astro::declinationSlot(point)) * kDegreesPerRadian;
        cells.push_back(numberCell(at(chart.speed, point), 4));
        cells.push_back(std::wstring(1, core::motionLetter(at(chart.motion, point))));
        cells.push_back({core::FormatDMS(latitude, 1), latitude});
        cells.push_back({core::FormatDMS(declination, 1), declination});
    }
    return cells;
}

// Only planets are computed with a magnitude and a phase.
void addMagnitude(Row& cells, const core::Chart& chart, int point)
{
    const bool planet = (point >= core::kMars && point <= core::kSaturn) ||
                        (point >= core::kUranus && point <= core::kPluto);
    if (!planet || !chart.computed(point)) {
        cells.insert(cells.end(), {L"", L""});
        return;
    }
    cells.push_back(numberCell(at(chart.magnitude, point), 1));
    cells.push_back(numberCell(100.0 * at(chart.phase, point), 0));
}

bool sandhiMissing(const core::Chart& chart)
{
    return chart.hasSandhis && std::any_of(chart.sandhis.begin(), chart.sandhis.end(),
                                           [](double longitude) { return longitude < 0.0; });
}

std::wstring houseSystemName(const core::Chart& chart)
{
    const core::SettingInfo* const info = core::findSetting("houseSystem");
    return core::fromFileBytes(core::choiceName(*info, chart.houseSystem));
}

} // namespace

Table birthTable(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    Table table = labelledTable("birth-data", L"");
    if (!chart.name.empty()) {
        table.add({L"Name", chart.name});
    }
    if (!chart.hasMoment) {
        table.add({L"Positions", core::fromFileBytes(computed.positionsFile)});
        return table;
    }
    if (!chart.place.empty()) {
        table.add({L"Place", chart.place});
    }
    table.add(
        {L"Date", dateText(chart.time) + L"  " + std::wstring(core::weekdayName(chart.weekday))});
    table.add({L"Time", clockSeconds(chart.time.localTime, computed.settings.twelveHourClock) +
                            L"  zone " + zoneText(chart)});
    if (computed.hasPlace) {
        table.add({L"Coordinates", coordinatesText(chart)});
    }
    return table;
}

Table timeTable(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    Table table = labelledTable("time", L"");
    if (!chart.hasMoment) {
        table.add({L"Time and ayanamsa", kNotComputedText});
        return table;
    }
    table.add({L"Universal Time", clockSeconds(chart.time.utHours, false)});
    table.add({L"Delta T", fixedNumber(chart.time.deltaTDays * 86400.0, 2) + L" s"});
    table.add({L"Julian day", fixedNumber(chart.time.dayCount + core::kEpoch1900, 5)});
    table.add({L"Ayanamsa", ayanamsaText(computed)});
    if (computed.hasPlace) {
        table.add({L"Sidereal time", clockSeconds(chart.localSiderealTime, false)});
    }
    return table;
}

void addNotComputedNote(Table& table, const ComputedChart& computed)
{
    if (!computed.chart.hasMoment) {
        table.notes.push_back(L"-- not computed: only positions are known");
    } else if (!computed.hasPlace) {
        table.notes.push_back(L"-- not computed: the place is not known");
    } else if (!computed.day) {
        table.notes.push_back(L"-- not computed: no day from sunrise to sunrise is running");
    }
}

Table daylightTable(const ComputedChart& computed)
{
    Table table = labelledTable("daylight", L"");
    if (!computed.chart.hasMoment || !computed.hasPlace) {
        table.add({L"Sunrise and sunset", kNotComputedText});
        return table;
    }
    table.add({L"Sunrise", clockOrNone(computed.chart.sunrise, computed.settings)});
    table.add({L"Sunset", clockOrNone(computed.chart.sunset, computed.settings)});
    addMissingEvents(table, computed.chart);
    return table;
}

Table sunTable(const ComputedChart& computed)
{
    const core::Settings& settings = computed.settings;
    Table table = labelledTable("sun", L"");
    if (!computed.chart.hasMoment || !computed.hasPlace) {
        table.add({L"Sunrise, noon and sunset", kNotComputedText});
        return table;
    }
    table.add({L"Sunrise", secondsOrNone(computed.chart.sunrise, settings)});
    table.add({L"Noon", secondsOrNone(computed.upperCulmination, settings)});
    table.add({L"Sunset", secondsOrNone(computed.chart.sunset, settings)});
    addMissingEvents(table, computed.chart);
    return table;
}

Table vedicDayTable(const ComputedChart& computed)
{
    if (!computed.day) {
        Table none = labelledTable("vedic-day", L"");
        none.notes.push_back(L"No day that begins at sunrise is running at this moment.");
        return none;
    }
    Table table = labelledTable(
        "vedic-day", L"The day that runs at this moment (- the day before, + the day after)");
    const bool twelveHours = computed.settings.twelveHourClock;
    table.add({L"Sunrise", clockSeconds(computed.day->sunrise, twelveHours)});
    table.add({L"Sunset", clockSeconds(computed.day->sunset, twelveHours)});
    table.add({L"Next sunrise", clockSeconds(computed.day->nextSunrise, twelveHours)});
    return table;
}

Table positionsTable(const ComputedChart& computed)
{
    Table table = {"positions",
                   L"",
                   {{L"Point"},
                    {L"Position"},
                    {L"Nakshatra"},
                    {L"Pada", Align::Right},
                    {L"Navamsha"},
                    {L"Speed", Align::Right},
                    {L"Motion"},
                    {L"Latitude", Align::Right},
                    {L"Declination", Align::Right}}};
    const core::Chart& chart = computed.chart;
    const bool magnitudes = computed.settings.magnitudes && chart.hasMoment;
    if (magnitudes) {
        table.columns.push_back({L"Magnitude", Align::Right});
        table.columns.push_back({L"Lit %", Align::Right});
    }
    const auto addPoint = [&](int point) {
        Row cells = pointCells(chart, point);
        if (magnitudes) {
            addMagnitude(cells, chart, point);
        }
        table.add(std::move(cells));
    };
    if (chart.computed(core::kAscendant)) {
        addPoint(core::kAscendant);
    }
    for (const int point : core::kBodies) {
        addPoint(point);
    }
    return table;
}

Table housesSummary(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    const auto ifMoment = [&](const std::wstring& text) {
        return chart.hasMoment ? text : kNotComputedText;
    };
    Table table = labelledTable("house-system", L"");
    table.add(
        {L"House system", chart.houseSystem >= 0 ? houseSystemName(chart) : kNotComputedText});
    table.add({L"Ascendant", signPositionCell(chart, core::kAscendant)});
    table.add({L"Midheaven", ifMoment(core::FormatSignPosition(chart.midheaven))});
    table.add({L"Obliquity", ifMoment(core::FormatDMS(chart.obliquity() * kDegreesPerRadian, 1))});
    return table;
}

Table housesTable(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    Table table = {"houses", L"", {{L"House", Align::Right}, {L"Cusp"}, {L"Nakshatra"}}};
    if (chart.hasSandhis) {
        table.columns.push_back({L"Sandhi"});
    }
    if (chart.houseSystem < 0) {
        return table;
    }
    for (int house = 1; house <= 12; ++house) {
        const int point = core::cuspPoint(house);
        const bool exists = chart.computed(point);
        Row cells = {
            {std::to_wstring(house), double(house), {Subject::House, house}},
            exists ? signPositionCell(chart, point) : Cell(kNone),
            exists ? nakshatraCell(at(chart.nakshatraPosition, point)) : Cell(kNone),
        };
        if (chart.hasSandhis) {
            const double sandhi = at(chart.sandhis, house - 1);
            cells.push_back(sandhi >= 0.0 ? Cell(core::FormatSignPosition(sandhi), sandhi)
                                          : Cell(kNone));
        }
        table.add(std::move(cells));
    }
    if (!chart.cuspsComplete && chart.hasMoment) {
        table.notes.push_back(L"Some cusps do not exist: Placidus has none at this latitude for "
                              L"this moment. The house system Equal House has all.");
    } else if (sandhiMissing(chart)) {
        table.notes.push_back(L"Some sandhis do not exist at this latitude for this moment.");
    }
    return table;
}

} // namespace kestrav::present
