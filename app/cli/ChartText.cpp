#include "app/cli/ChartText.h"

#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
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

namespace kestrav::cli
{

namespace
{

using core::at;
using core::kDegreesPerRadian;
using Align = TextTable::Align;

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

std::wstring missingEventsText(const core::Chart& chart)
{
    if (chart.sunrise && chart.sunset) {
        return {};
    }
    if (!chart.sunrise && !chart.sunset) {
        return L"The Sun neither rises nor sets at this place on this date.\n";
    }
    return chart.sunrise ? L"The Sun does not set at this place on this date.\n"
                         : L"The Sun does not rise at this place on this date.\n";
}

void addPoint(TextTable& table, const core::Chart& chart, int point)
{
    const std::wstring name = pointLabel(point);
    if (!chart.computed(point)) {
        table.add({name, kNone, kNone, kNone, kNone, L"", L"", L"", L""});
        return;
    }
    const double position = at(chart.nakshatraPosition, point);
    std::vector<std::wstring> cells = {
        name,
        core::FormatSignPosition(at(chart.longitude, point)),
        std::wstring(core::nakshatraName(nakshatraOf(position))),
        std::to_wstring(padaOf(position)),
        std::wstring(core::SignName3(at(chart.navamshaSign, point))),
    };
    if (point == core::kAscendant) {
        cells.insert(cells.end(), {L"", L"", L"", L""});
    } else if (!chart.hasMoment) {
        cells.insert(cells.end(), {kNone, at(chart.retrograde, point) ? L"R" : L"", kNone, kNone});
    } else {
        const double declination = at(chart.declination, astro::declinationSlot(point));
        cells.push_back(fixedNumber(at(chart.speed, point), 4));
        cells.push_back({core::motionLetter(at(chart.motion, point))});
        cells.push_back(core::FormatDMS(at(chart.latitude, point) * kDegreesPerRadian, 1));
        cells.push_back(core::FormatDMS(declination * kDegreesPerRadian, 1));
    }
    table.add(std::move(cells));
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

std::wstring inputText(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    LabelledLines lines;
    if (!chart.name.empty()) {
        lines.add(L"Name", chart.name);
    }
    if (!chart.hasMoment) {
        lines.add(L"Positions", core::fromFileBytes(computed.positionsFile));
        return lines.text();
    }
    if (!chart.place.empty()) {
        lines.add(L"Place", chart.place);
    }
    lines.add(L"Date",
              dateText(chart.time) + L"  " + std::wstring(core::weekdayName(chart.weekday)));
    lines.add(L"Time", clockSeconds(chart.time.localTime, computed.settings.twelveHourClock) +
                           L"  zone " + zoneText(chart));
    if (computed.hasPlace) {
        lines.add(L"Coordinates", coordinatesText(chart));
    }
    return lines.text();
}

std::wstring timeText(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    LabelledLines lines;
    if (!chart.hasMoment) {
        lines.add(L"Time and ayanamsa", kNotComputedText);
        return lines.text();
    }
    lines.add(L"Universal Time", clockSeconds(chart.time.utHours, false));
    lines.add(L"Delta T", fixedNumber(chart.time.deltaTDays * 86400.0, 2) + L" s");
    lines.add(L"Julian day", fixedNumber(chart.time.dayCount + core::kEpoch1900, 5));
    lines.add(L"Ayanamsa", ayanamsaText(computed));
    if (computed.hasPlace) {
        lines.add(L"Sidereal time", clockSeconds(chart.localSiderealTime, false));
    }
    return lines.text();
}

std::wstring notComputedNote(const ComputedChart& computed)
{
    if (!computed.chart.hasMoment) {
        return L"-- not computed: only positions are known\n";
    }
    return computed.day ? L"" : L"-- not computed: no day from sunrise to sunrise is running\n";
}

std::wstring daylightText(const ComputedChart& computed)
{
    LabelledLines lines;
    if (!computed.chart.hasMoment) {
        lines.add(L"Sunrise and sunset", kNotComputedText);
        return lines.text();
    }
    lines.add(L"Sunrise", clockOrNone(computed.chart.sunrise, computed.settings));
    lines.add(L"Sunset", clockOrNone(computed.chart.sunset, computed.settings));
    return lines.text() + missingEventsText(computed.chart);
}

std::wstring sunText(const ComputedChart& computed)
{
    const core::Settings& settings = computed.settings;
    LabelledLines lines;
    lines.add(L"Sunrise", secondsOrNone(computed.chart.sunrise, settings));
    lines.add(L"Noon", secondsOrNone(computed.upperCulmination, settings));
    lines.add(L"Sunset", secondsOrNone(computed.chart.sunset, settings));
    const std::wstring civil = lines.text() + missingEventsText(computed.chart);
    if (!computed.day) {
        return civil + L"\nNo day that begins at sunrise is running at this moment.\n";
    }
    LabelledLines running;
    running.add(L"Sunrise", clockSeconds(computed.day->sunrise, settings.twelveHourClock));
    running.add(L"Sunset", clockSeconds(computed.day->sunset, settings.twelveHourClock));
    running.add(L"Next sunrise", clockSeconds(computed.day->nextSunrise, settings.twelveHourClock));
    return civil + L"\nThe day that runs at this moment (- the day before, + the day after)\n" +
           running.text();
}

std::wstring pointsText(const ComputedChart& computed)
{
    TextTable table({{L"Point"},
                     {L"Position"},
                     {L"Nakshatra"},
                     {L"Pada", Align::Right},
                     {L"Navamsha"},
                     {L"Speed", Align::Right},
                     {L"Motion"},
                     {L"Latitude", Align::Right},
                     {L"Declination", Align::Right}});
    if (computed.chart.computed(core::kAscendant)) {
        addPoint(table, computed.chart, core::kAscendant);
    }
    for (const int point : core::kBodies) {
        addPoint(table, computed.chart, point);
    }
    return table.text();
}

std::wstring housesText(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    std::vector<TextTable::Column> columns = {{L"House", Align::Right}, {L"Cusp"}, {L"Nakshatra"}};
    if (chart.hasSandhis) {
        columns.push_back({L"Sandhi"});
    }
    TextTable table(std::move(columns));
    for (int house = 1; house <= 12; ++house) {
        const int point = core::cuspPoint(house);
        const bool exists = chart.computed(point);
        std::vector<std::wstring> cells = {
            std::to_wstring(house),
            exists ? core::FormatSignPosition(at(chart.longitude, point)) : kNone,
            exists
                ? std::wstring(core::nakshatraName(nakshatraOf(at(chart.nakshatraPosition, point))))
                : kNone};
        if (chart.hasSandhis) {
            const double sandhi = at(chart.sandhis, house - 1);
            cells.push_back(sandhi >= 0.0 ? core::FormatSignPosition(sandhi) : kNone);
        }
        table.add(std::move(cells));
    }
    const auto ifMoment = [&](const std::wstring& text) {
        return chart.hasMoment ? text : kNotComputedText;
    };
    const bool hasCusps = chart.houseSystem >= 0;
    LabelledLines lines;
    lines.add(L"House system", hasCusps ? houseSystemName(chart) : kNotComputedText);
    lines.add(L"Ascendant", core::FormatSignPosition(chart.longitude[core::kAscendant]));
    lines.add(L"Midheaven", ifMoment(core::FormatSignPosition(chart.midheaven)));
    lines.add(L"Obliquity", ifMoment(core::FormatDMS(chart.obliquity() * kDegreesPerRadian, 1)));
    if (!hasCusps) {
        return lines.text();
    }
    std::wstring text = lines.text() + L"\n" + table.text();
    if (!chart.cuspsComplete && chart.hasMoment) {
        text += wrapped(L"Some cusps do not exist: Placidus has none at this latitude for this "
                        L"moment. Equal House (--set houseSystem=1) has all.",
                        L"");
    } else if (sandhiMissing(chart)) {
        text += L"Some sandhis do not exist at this latitude for this moment.\n";
    }
    return text;
}

} // namespace kestrav::cli
