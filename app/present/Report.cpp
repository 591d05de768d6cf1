#include "app/present/Report.h"

#include "app/present/ChangedPoints.h"
#include "app/present/ReportSections.h"
#include "app/present/TextValues.h"
#include "astro/Ayanamsa.h"
#include "core/FileText.h"
#include "core/Settings.h"
#include "core/TextForms.h"

namespace kestrav::present
{

namespace
{

std::wstring choiceText(const char* setting, int value)
{
    return core::fromFileBytes(core::choiceName(*core::findSetting(setting), value));
}

std::wstring birthLine(const core::Chart& chart, const core::Settings& settings)
{
    core::Chart shown = chart;
    core::FormatRecordHours(shown);
    std::wstring line = dateText(chart.time) + L"  " +
                        clockSeconds(chart.time.localTime, settings.twelveHourClock) + L"  zone " +
                        (chart.zone < 0.0 ? L"" : L"+") + shown.zoneText;
    if (chart.daylightSaving != 0) {
        line += L", saving time " + std::to_wstring(chart.daylightSaving) + L" h";
    }
    return line;
}

std::wstring placeLine(const core::Chart& chart)
{
    const std::wstring coordinates =
        geoText(chart.geoLongitude, L'E', L'W') + L", " + geoText(chart.geoLatitude, L'N', L'S');
    return chart.place.empty() ? coordinates : chart.place + L"  " + coordinates;
}

} // namespace

std::vector<std::wstring> reportHead(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    std::vector<std::wstring> head;
    if (chart.hasMoment) {
        head.push_back(birthLine(chart, computed.settings));
        if (computed.hasPlace) {
            head.push_back(placeLine(chart));
        }
        if (!computed.hasPlace) {
            head.emplace_back(L"No place: no ascendant, no houses and no sunrise");
        }
    } else {
        head.push_back(L"Positions of " + core::fromFileBytes(computed.positionsFile) +
                       L", without a moment");
    }
    head.push_back(L"Ayanamsa " +
                   core::fromFileBytes(astro::selectedRow(computed.settings).nameText()) + L"  " +
                   (chart.hasMoment ? core::FormatDMS(chart.ayanamsa, 1)
                                    : std::wstring(L"not computed without a moment")));
    if (computed.changed.any()) {
        head.push_back(changedPointsLine(computed));
    }
    std::wstring houses =
        L"Houses " + (chart.houseSystem >= 0 ? choiceText("houseSystem", chart.houseSystem)
                                             : std::wstring(L"not computed"));
    head.push_back(houses + L"; sunrise with the Sun's centre 0°35' below the horizon");
    head.push_back(L"Kestrav " + core::fromFileBytes(KESTRAV_VERSION));
    return head;
}

Document makeReport(const ReportSource& source, const ReportDefinition& definition)
{
    Document document;
    const std::wstring& name = source.computed.chart.name;
    document.title =
        (name.empty() ? L"Chart" : name) + L" - " + core::fromFileBytes(definition.name);
    document.head = reportHead(source.computed);
    for (const ReportPart& part : definition.parts) {
        std::vector<Block> blocks = reportSection(source, part);
        document.blocks.insert(document.blocks.end(), std::make_move_iterator(blocks.begin()),
                               std::make_move_iterator(blocks.end()));
    }
    return document;
}

} // namespace kestrav::present
