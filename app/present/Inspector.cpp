#include "app/present/Inspector.h"

#include "analysis/Kutas.h"
#include "analysis/NakshatraLords.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "app/present/ChangedPoints.h"
#include "app/present/DashaTables.h"
#include "app/present/EphemerisTables.h"
#include "app/present/EventTables.h"
#include "app/present/InspectorSections.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/Angles.h"
#include "core/FileText.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/SignData.h"
#include "core/TextForms.h"
#include "timing/MoonStrength.h"
#include "timing/PanchangaElements.h"
#include "timing/PanchangaNames.h"

namespace kestrav::present
{

namespace inspecting
{

namespace
{

using core::at;

constexpr double kNakshatraSpan = 360.0 / 27.0;

Table starSection(const TableSource& source, int nakshatra)
{
    const core::Chart& chart = source.computed.chart;
    Table table = labelledTable("nakshatra", L"Nakshatra");
    table.add({L"Number", integerCell(nakshatra + 1)});
    const double begin = nakshatra * kNakshatraSpan;
    table.add({L"From", {core::FormatSignPosition(begin), begin}});
    table.add({L"Lord", pointCell(analysis::nakshatraLord(nakshatra))});
    if (const astro::MatchingTables* const tables = source.matchingTables) {
        table.add({L"Gana", analysis::ganaName(at(tables->gana, nakshatra))});
        table.add({L"Yoni", analysis::yoniName(at(tables->yoni, nakshatra))});
        table.add({L"Nadi", analysis::nadiName(at(tables->nadi, nakshatra))});
    }
    if (chart.computed(core::kMoon)) {
        const double birth = at(chart.nakshatraPosition, core::kMoon);
        const int count = core::ModFrom(27, 0, nakshatra - nakshatraOf(birth)) + 1;
        table.add({L"From that of the birth Moon", integerCell(count)});
        table.add({L"Tara bala", timing::taraBala(nakshatra, birth).text});
    }
    return table;
}

Table quarterSection(int nakshatra)
{
    Table table = {"quarters", L"Quarters", {{L"Quarter", Align::Right}, {L"From"}, {L"Navamsha"}}};
    for (int pada = 1; pada <= 4; ++pada) {
        // In halves of a quarter, so that the navamsha is asked in the middle of it.
        const double begin = (nakshatra + (pada - 1) / 4.0) * kNakshatraSpan;
        const int sign = core::navamshaSignOf(begin + kNakshatraSpan / 8.0);
        table.add({integerCell(pada),
                   {core::FormatSignPosition(begin), begin},
                   signCell(sign, core::kNavamsha)});
    }
    return table;
}

Table starOccupants(const ComputedChart& computed, int nakshatra)
{
    Table table = {
        "occupants", L"What stands there", {{L"Point"}, {L"Quarter", Align::Right}, {L"Position"}}};
    for (int point = 0; point < core::kPointCount; ++point) {
        const double position = at(computed.chart.nakshatraPosition, point);
        if (computed.chart.computed(point) && nakshatraOf(position) == nakshatra) {
            const double longitude = at(computed.chart.longitude, point);
            table.add({pointCell(point),
                       integerCell(padaOf(position)),
                       {core::FormatSignPosition(longitude), longitude}});
        }
    }
    if (table.rows.empty()) {
        table.notes.emplace_back(L"Nothing.");
    }
    return table;
}

} // namespace

std::vector<Table> nakshatraSections(const TableSource& source, int nakshatra)
{
    return {starSection(source, nakshatra), quarterSection(nakshatra),
            starOccupants(source.computed, nakshatra)};
}

} // namespace inspecting

namespace
{

std::wstring signTitle(int sign, int varga, int house)
{
    std::wstring title(core::signNameLong(sign));
    if (house > 0) {
        title = L"House " + std::to_wstring(house) + L", " + title;
    }
    return varga == core::kRashi ? title
                                 : title + L" (" + std::wstring(analysis::vargaName(varga)) + L")";
}

Inspection inspectHouse(const TableSource& source, int house, int varga)
{
    const int first = analysis::signInVarga(source.computed.chart, varga, core::kAscendant);
    if (first == 0) {
        Table none = labelledTable("sign", L"Sign and lord");
        none.notes.emplace_back(L"Without an ascendant there are no houses.");
        return {L"House " + std::to_wstring(house), {std::move(none)}};
    }
    const int sign = core::norm12(first + house - 1);
    return {signTitle(sign, varga, house), inspecting::signSections(source, sign, varga, house)};
}

double clockOf(const core::Chart& chart)
{
    return chart.hasMoment ? chart.zone : 0.0;
}

Table elementSection(const TableSource& source, double julianDay)
{
    timing::SiderealSky sky(source.series, source.computed.settings,
                            clockOf(source.computed.chart));
    const timing::ElementNumbers elements = timing::elementsAt(sky, julianDay);
    Table table = labelledTable("elements", L"Panchanga");
    table.add(
        {L"Tithi", {std::wstring(timing::tithiName(elements.tithi)), double(elements.tithi)}});
    table.add({L"Half month", timing::pakshaText(timing::isKrishna(elements.tithi))});
    table.add({L"Nakshatra",
               {std::wstring(core::nakshatraName(elements.nakshatra)),
                double(elements.nakshatra),
                {Subject::Nakshatra, elements.nakshatra}}});
    table.add({L"Yoga", withoutEndBlanks(timing::yogaName(elements.yoga))});
    table.add({L"Karana", withoutEndBlanks(timing::karanaName(elements.karana))});
    return table;
}

Table runningSection(const TableSource& source, double julianDay)
{
    TableSource then = source;
    then.moment = julianDay;
    const core::Result<Table> made = findTable("running-dashas")->make(then);
    if (made) {
        return made.value();
    }
    Table none = {"running-dashas", L"Running dashas", {{L"Period"}}};
    none.notes.push_back(core::fromFileBytes(made.error().message));
    return none;
}

Inspection inspectMoment(const TableSource& source, double julianDay)
{
    const core::Chart& chart = source.computed.chart;
    const std::wstring title =
        momentCell(julianDay, clockOf(chart), source.computed.settings.twelveHourClock).text;
    return {title,
            {runningSection(source, julianDay), elementSection(source, julianDay),
             skyTable(source.computed, source.series, julianDay)}};
}

// Whether there is a thing of the link's number.
bool exists(const Link& about)
{
    struct Range
    {
        int first;
        int last;
    };
    const Range range = about.subject == Subject::Point       ? Range{0, core::kPointCount - 1}
                        : about.subject == Subject::Varga     ? Range{0, core::kVargaCount - 1}
                        : about.subject == Subject::Nakshatra ? Range{0, 26}
                        : about.subject == Subject::Moment    ? Range{0, 0}
                                                              : Range{1, 12};
    return about.index >= range.first && about.index <= range.last;
}

// The periods one level deeper into which a period divides.
std::vector<timing::DashaPeriod> subPeriods(const timing::Dasha& dasha,
                                            const timing::DashaPeriod& period)
{
    std::vector<timing::DashaPeriod> periods;
    if (period.level >= timing::kDashaLevels) {
        return periods;
    }
    const timing::DashaSpan span{period.level + 1, period.startAge, period.endAge()};
    for (const timing::DashaPeriod& inner : timing::DashaList(dasha, span)) {
        // Of the neighbours that touch the period none has its middle in it.
        const double middle = inner.startAge + inner.length / 2.0;
        if (inner.level == period.level + 1 && middle > period.startAge &&
            middle < period.endAge()) {
            periods.push_back(inner);
        }
    }
    return periods;
}

} // namespace

Inspection inspect(const TableSource& source, const Link& about)
{
    if (!exists(about)) {
        return {};
    }
    const int varga = core::ClampRange(0, core::kVargaCount - 1, about.varga);
    switch (about.subject) {
    case Subject::Point:
        return {pointLabel(about.index) +
                    (source.computed.changed[std::size_t(about.index)] ? L", changed by you" : L""),
                inspecting::pointSections(source, about.index)};
    case Subject::Sign:
        return {signTitle(about.index, varga, 0),
                inspecting::signSections(source, about.index, varga, 0)};
    case Subject::House:
        return inspectHouse(source, about.index, varga);
    case Subject::Varga:
        return {std::wstring(analysis::vargaName(about.index)),
                {vargaTable(source.computed, about.index)}};
    case Subject::Nakshatra:
        return {std::wstring(core::nakshatraName(about.index)),
                inspecting::nakshatraSections(source, about.index)};
    case Subject::Moment:
        return inspectMoment(source, about.moment);
    case Subject::None:
        break;
    }
    return {};
}

Inspection inspectPeriod(const TableSource& source, const timing::DashaPeriod& period)
{
    const ComputedChart& computed = source.computed;
    const core::Settings& settings = computed.settings;
    const timing::LordKind kind = dashaLordKind(settings.dashaSystem);
    Inspection inspection = {dashaPeriodName(kind, period), {}};
    DashaResult result{dashaOptions(computed), {}, {}, {}, {}, {}};
    core::Result<timing::Dasha> dasha =
        timing::dashaOf(computed.chart, settings, result.options, source.series);
    if (dasha) {
        result.dasha = std::move(dasha.value());
        result.periods = {period};
        Table head = dashaPeriodsTable(computed, result);
        head.title = L"Period";
        result.periods = subPeriods(result.dasha, period);
        inspection.sections.push_back(std::move(head));
        if (!result.periods.empty()) {
            inspection.sections.push_back(dashaPeriodsTable(computed, result));
            inspection.sections.back().title = L"Sub-periods";
        }
    }
    const Link lord = dashaLordLink(kind, period.lord());
    if (lord.subject == Subject::Point) {
        inspection.sections.push_back(inspecting::positionSection(computed, lord.index));
    }
    return inspection;
}

Inspection inspectTithi(int tithi)
{
    Table table = labelledTable("tithi", L"Tithi");
    table.add({L"Name", timing::tithiName(tithi)});
    table.add({L"Half month", timing::pakshaText(timing::isKrishna(tithi))});
    table.add({L"Day of it", integerCell(timing::tithiOfPaksha(tithi))});
    table.add({L"Of the month", integerCell(tithi + 1)});
    table.add({L"Kind", withoutEndBlanks(timing::tithiKeyword(tithi))});
    return {std::wstring(timing::tithiName(tithi)), {std::move(table)}};
}

} // namespace kestrav::present
