#include "app/cli/PanchangaOutput.h"

#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/PanchangaNames.h"
#include "timing/PanchangaReport.h"

#include <algorithm>
#include <array>

namespace kestrav::cli
{

namespace
{

using timing::DayElement;
using timing::DayPart;
using timing::HourSpan;
using timing::PanchangaDay;
using Align = TextTable::Align;

const std::wstring kNone(core::kNoName);
constexpr int kWednesday = 4;

std::wstring clockText(double hour, bool twelveHour)
{
    std::wstring text = core::FormatClock(hour, twelveHour, true);
    text.erase(text.find_last_not_of(L' ') + 1);
    return text;
}

std::wstring clockText(const std::optional<double>& hour, bool twelveHour)
{
    return hour ? clockText(*hour, twelveHour) : kNone;
}

// The lines of a report with blanks for its tabs.
std::wstring withoutTabs(const std::wstring& report)
{
    std::wstring text;
    for (const wchar_t character : report) {
        if (character == L'\t') {
            text += L"  ";
        } else {
            if (character == L'\n') {
                text.erase(text.find_last_not_of(L' ') + 1);
            }
            text += character;
        }
    }
    return text;
}

std::vector<DayPart> halfOf(const std::vector<DayPart>& parts, bool night)
{
    std::vector<DayPart> half;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(half),
                 [night](const DayPart& part) { return part.night == night; });
    return half;
}

// The beginning of a part of the day and what it is called in one or two lists.
class PartCells
{
public:
    PartCells(std::vector<std::wstring>& cells, bool twelveHour)
        : cells_(cells), twelveHour_(twelveHour)
    {}

    void begin(const std::vector<DayPart>& parts, std::size_t row)
    {
        cells_.push_back(row < parts.size() ? clockText(parts[row].hours.start, twelveHour_)
                                            : kNone);
    }

    void name(const std::vector<DayPart>& parts, std::size_t row,
              std::wstring_view (*nameOf)(int ruler))
    {
        cells_.emplace_back(row < parts.size() ? nameOf(parts[row].ruler) : core::kNoName);
    }

private:
    std::vector<std::wstring>& cells_;
    bool twelveHour_;
};

std::wstring_view lordName(int planet)
{
    return core::PointName(3, planet);
}

std::wstring horasText(const PanchangaDay& day, bool twelveHour)
{
    if (day.horas.empty()) {
        return {};
    }
    TextTable table({{L"Hora", Align::Right}, {L"Day"}, {L"Lord"}, {L"Night"}, {L"Lord"}});
    const std::vector<DayPart> light = halfOf(day.horas, false);
    const std::vector<DayPart> dark = halfOf(day.horas, true);
    for (std::size_t row = 0; row < std::max(light.size(), dark.size()); ++row) {
        std::vector<std::wstring> cells = {std::to_wstring(row + 1)};
        PartCells add(cells, twelveHour);
        for (const auto& half : {light, dark}) {
            add.begin(half, row);
            add.name(half, row, lordName);
        }
        table.add(std::move(cells));
    }
    return L"\n" + table.text();
}

std::wstring eighthsText(const PanchangaDay& day, bool twelveHour)
{
    if (day.choghadia.empty()) {
        return {};
    }
    TextTable table({{L"Part", Align::Right},
                     {L"Day"},
                     {L"ChoGhadia"},
                     {L"Kala vela"},
                     {L"Night"},
                     {L"ChoGhadia"},
                     {L"Kala vela"}});
    constexpr std::size_t kParts = 8;
    for (std::size_t row = 0; row < kParts; ++row) {
        std::vector<std::wstring> cells = {std::to_wstring(row + 1)};
        PartCells add(cells, twelveHour);
        for (const bool night : {false, true}) {
            const std::vector<DayPart> choghadia = halfOf(day.choghadia, night);
            add.begin(choghadia, row);
            add.name(choghadia, row, timing::choghadiaName);
            add.name(halfOf(day.kalaVelas, night), row, timing::kalaVelaName);
        }
        table.add(std::move(cells));
    }
    return L"\n" + table.text();
}

std::wstring stretchesText(const PanchangaDay& day, bool twelveHour)
{
    TextTable table({{L"Stretch"}, {L"From"}, {L"To"}, {L""}});
    bool any = false;
    const auto add = [&](const wchar_t* name, const HourSpan& hours, std::wstring_view note) {
        table.add({name, clockText(hours.start, twelveHour), clockText(hours.end, twelveHour),
                   std::wstring(note)});
        any = true;
    };
    const auto addIf = [&](const wchar_t* name, const std::optional<HourSpan>& hours,
                           std::wstring_view note) {
        if (hours) {
            add(name, *hours, note);
        }
    };
    addIf(L"Rahu kalam", day.rahuKalam, L"avoid");
    addIf(L"Yamaganda", day.yamaganda, L"avoid");
    addIf(L"Gulika", day.gulika, L"avoid");
    addIf(L"Abhijit", day.abhijit, L"favourable");
    if (!day.abhijit && day.rahuKalam && day.weekday == kWednesday) {
        table.add({L"Abhijit", kNone, kNone, L"void on Wednesday"});
    }
    for (const HourSpan& hours : day.durmuhurta) {
        add(L"Durmuhurta", hours, L"avoid");
    }
    for (const timing::NakshatraKalam& kalam : day.varjyam) {
        add(L"Varjyam", kalam.hours,
            L"avoid, of " + std::wstring(core::nakshatraName(kalam.nakshatra)));
    }
    for (const timing::NakshatraKalam& kalam : day.amritaKalam) {
        add(L"Amrita kalam", kalam.hours,
            L"favourable, of " + std::wstring(core::nakshatraName(kalam.nakshatra)));
    }
    return any ? L"\n" + table.text() : L"";
}

// The elements that end during the day, or the only one.
std::vector<DayElement> endingElements(const std::vector<DayElement>& elements)
{
    std::vector<DayElement> ending = elements;
    if (ending.size() > 1) {
        ending.pop_back();
    }
    return ending;
}

// A tithi without the words in parentheses that explain full and new Moon.
std::wstring shortTithi(int tithi)
{
    const std::wstring_view name = timing::tithiName(tithi);
    return std::wstring(name.substr(0, name.find(L" (")));
}

std::wstring firstWord(std::wstring_view text)
{
    return std::wstring(text.substr(0, text.find(L' ')));
}

// One line for a day and more where several elements of a kind end in it.
class DayTable
{
public:
    DayTable(bool native, bool twelveHour)
        : native_(native), twelveHour_(twelveHour), table_(columns(native))
    {}

    void add(const PanchangaDay& day)
    {
        const auto tithis = endingElements(day.tithis);
        const auto nakshatras = endingElements(day.nakshatras);
        const auto yogas = endingElements(day.yogas);
        const std::size_t rows = std::max({tithis.size(), nakshatras.size(), yogas.size()});
        for (std::size_t row = 0; row < rows; ++row) {
            std::vector<std::wstring> cells;
            if (row == 0) {
                cells = {dateText(day.date),
                         std::wstring(core::weekdayName(day.weekday).substr(0, 3)),
                         clockText(day.sunrise, twelveHour_), clockText(day.sunset, twelveHour_)};
            } else {
                cells.resize(4);
            }
            if (row < tithis.size()) {
                const int tithi = tithis[row].number;
                cells.push_back(firstWord(timing::pakshaText(timing::isKrishna(tithi))));
                addElement(cells, shortTithi(tithi), tithis[row]);
            } else {
                cells.resize(cells.size() + 3);
            }
            addElementOf(cells, nakshatras, row, core::nakshatraName);
            addElementOf(cells, yogas, row, timing::yogaName);
            addDay(cells, day, row == 0);
            table_.add(std::move(cells));
        }
    }

    [[nodiscard]] std::wstring text() const
    {
        return table_.text();
    }

private:
    static std::vector<TextTable::Column> columns(bool native)
    {
        std::vector<TextTable::Column> columns = {
            {L"Date"}, {L"Day"},       {L"Sunrise"}, {L"Sunset"}, {L"Moon"}, {L"Tithi"},
            {L"to"},   {L"Nakshatra"}, {L"to"},      {L"Yoga"},   {L"to"}};
        if (native) {
            columns.push_back({L"Tara", Align::Right});
            columns.push_back({L"Chandra", Align::Right});
        }
        columns.push_back({L"Month"});
        return columns;
    }

    void addElement(std::vector<std::wstring>& cells, std::wstring name,
                    const DayElement& element) const
    {
        cells.push_back(std::move(name));
        cells.push_back(clockText(element.hours.end, twelveHour_));
    }

    void addElementOf(std::vector<std::wstring>& cells, const std::vector<DayElement>& elements,
                      std::size_t row, std::wstring_view (*nameOf)(int number)) const
    {
        if (row < elements.size()) {
            addElement(cells, std::wstring(nameOf(elements[row].number)), elements[row]);
        } else {
            cells.resize(cells.size() + 2);
        }
    }

    static std::wstring scoreText(std::optional<int> score)
    {
        return score ? (*score > 0 ? L"+" : L"") + std::to_wstring(*score) : kNone;
    }

    void addDay(std::vector<std::wstring>& cells, const PanchangaDay& day, bool first)
    {
        if (native_) {
            cells.push_back(
                first ? scoreText(day.taraBala ? std::optional(day.taraBala->score) : std::nullopt)
                      : L"");
            cells.push_back(first ? scoreText(day.chandraBala) : L"");
        }
        // The month is named where it begins in the table.
        const std::wstring month = timing::lunarMonthText(day.month);
        cells.push_back(first && month != month_ ? month : L"");
        month_ = month;
    }

    bool native_;
    bool twelveHour_;
    TextTable table_;
    std::wstring month_;
};

} // namespace

std::wstring panchangaPlaceText(const ComputedChart& computed,
                                const std::vector<PanchangaDay>& days)
{
    core::Chart chart = computed.chart;
    core::FormatRecordHours(chart);
    LabelledLines lines;
    if (!chart.name.empty()) {
        lines.add(L"Name", chart.name);
    }
    if (!chart.place.empty()) {
        lines.add(L"Place", chart.place);
    }
    lines.add(L"Coordinates", geoText(chart.geoLongitude, L'E', L'W') + L", " +
                                  geoText(chart.geoLatitude, L'N', L'S'));
    lines.add(L"Zone", (chart.zone < 0.0 ? L"" : L"+") + chart.zoneText + L", saving time " +
                           std::to_wstring(chart.daylightSaving) + L" h");
    std::wstring changes;
    for (std::size_t i = 1; i < days.size(); ++i) {
        const double step = days[i].clockOffset - days[i - 1].clockOffset;
        if (step != 0.0) {
            changes += (changes.empty() ? L"" : L", ") + dateText(days[i].date) +
                       (step > 0.0 ? L" forward" : L" back");
        }
    }
    if (!changes.empty()) {
        lines.add(L"Clock set", changes);
    }
    return lines.text();
}

std::wstring panchangaDayText(const PanchangaDay& day, bool twelveHour)
{
    std::wstring report;
    timing::appendHeader(report, day);
    timing::appendSunAndMonth(report, day, twelveHour);
    timing::appendYear(report, day);
    timing::appendTithis(report, day, twelveHour);
    timing::appendNakshatras(report, day, twelveHour);
    timing::appendYogas(report, day, twelveHour);
    timing::appendKaranas(report, day, twelveHour);
    timing::appendMoonStrength(report, day);
    return withoutTabs(report) + stretchesText(day, twelveHour) + eighthsText(day, twelveHour) +
           horasText(day, twelveHour);
}

std::wstring panchangaTableText(const std::vector<PanchangaDay>& days, bool twelveHour)
{
    const bool native = !days.empty() && days.front().taraBala.has_value();
    DayTable table(native, twelveHour);
    bool polar = false;
    for (const PanchangaDay& day : days) {
        table.add(day);
        polar = polar || !day.sunrise || !day.sunset;
    }
    std::wstring text = table.text();
    if (polar) {
        text += L"-- the Sun does not rise or does not set; without a sunrise the day runs from "
                L"midnight\n";
    }
    return text;
}

} // namespace kestrav::cli
