#include "app/present/PanchangaTables.h"

#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/PanchangaNames.h"

#include <algorithm>

namespace kestrav::present
{

namespace
{

using timing::DayElement;
using timing::DayPart;
using timing::HourSpan;
using timing::PanchangaDay;

constexpr int kWednesday = 4;

Cell clockCell(double hour, bool twelveHour)
{
    return {withoutEndBlanks(core::FormatClock(hour, twelveHour, true)), hour};
}

Cell clockCell(const std::optional<double>& hour, bool twelveHour)
{
    return hour ? clockCell(*hour, twelveHour) : Cell(core::kNoName);
}

Cell scoreCell(const std::optional<int>& score)
{
    return score ? Cell((*score > 0 ? L"+" : L"") + std::to_wstring(*score), *score)
                 : Cell(core::kNoName);
}

Cell nakshatraCell(int nakshatra)
{
    return {std::wstring(core::nakshatraName(nakshatra)),
            double(nakshatra),
            {Subject::Nakshatra, nakshatra}};
}

// Elements of one kind: the cells of `nameOf`, then beginning and end.
template <typename CellsOf>
void addElements(Table& table, const std::vector<DayElement>& elements, bool twelveHour,
                 const CellsOf& cellsOf)
{
    table.columns.push_back({L"From", Align::Right});
    table.columns.push_back({L"To", Align::Right});
    for (const DayElement& element : elements) {
        Row cells = cellsOf(element.number);
        cells.push_back(clockCell(element.hours.start, twelveHour));
        cells.push_back(clockCell(element.hours.end, twelveHour));
        table.add(std::move(cells));
    }
}

std::vector<DayPart> halfOf(const std::vector<DayPart>& parts, bool night)
{
    std::vector<DayPart> half;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(half),
                 [night](const DayPart& part) { return part.night == night; });
    return half;
}

struct NamedParts
{
    const wchar_t* heading;
    const std::vector<DayPart>* parts;
    std::wstring_view (*nameOf)(int ruler);
};

// The beginnings of the parts of day and night with what they are called in one list or more,
// which divide the halves alike.
void addParts(Table& table, const std::vector<NamedParts>& lists, bool twelveHour)
{
    std::size_t rows = 0;
    for (const bool night : {false, true}) {
        table.columns.push_back({night ? L"Night" : L"Day"});
        for (const NamedParts& list : lists) {
            table.columns.push_back({list.heading});
        }
        rows = std::max(rows, halfOf(*lists.front().parts, night).size());
    }
    for (std::size_t row = 0; row < rows; ++row) {
        Row cells = {integerCell(int(row) + 1)};
        for (const bool night : {false, true}) {
            bool first = true;
            for (const NamedParts& list : lists) {
                const std::vector<DayPart> half = halfOf(*list.parts, night);
                const bool exists = row < half.size();
                if (first) {
                    cells.push_back(exists ? clockCell(half[row].hours.start, twelveHour)
                                           : Cell(core::kNoName));
                }
                first = false;
                cells.emplace_back(exists ? list.nameOf(half[row].ruler) : core::kNoName);
            }
        }
        table.add(std::move(cells));
    }
}

std::wstring_view lordName(int planet)
{
    return core::PointName(3, planet);
}

NamedParts choghadiaOf(const PanchangaDay& day)
{
    return {L"ChoGhadia", &day.choghadia, timing::choghadiaName};
}

NamedParts kalaVelasOf(const PanchangaDay& day)
{
    return {L"Kala vela", &day.kalaVelas, timing::kalaVelaName};
}

std::wstring sunText(const PanchangaDay& day)
{
    if (day.sunrise && day.sunset) {
        return L"rises and sets";
    }
    const bool staysUp = day.sunrise || (!day.sunset && day.sun == timing::SunCourse::StaysUp);
    return staysUp ? L"does not set on this day" : L"does not rise on this day";
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

// The elements that end during the day, or the only one.
std::vector<DayElement> endingElements(const std::vector<DayElement>& elements)
{
    std::vector<DayElement> ending = elements;
    if (ending.size() > 1) {
        ending.pop_back();
    }
    return ending;
}

// The rows of a list of days.
class DayRows
{
public:
    DayRows(Table& table, bool native, bool twelveHour)
        : table_(table), native_(native), twelveHour_(twelveHour)
    {}

    void add(const PanchangaDay& day)
    {
        const auto tithis = endingElements(day.tithis);
        const auto nakshatras = endingElements(day.nakshatras);
        const auto yogas = endingElements(day.yogas);
        const std::size_t rows = std::max({tithis.size(), nakshatras.size(), yogas.size()});
        for (std::size_t row = 0; row < rows; ++row) {
            Row cells(4);
            if (row == 0) {
                cells = {
                    {dateText(day.date), day.julianDay0h},
                    {std::wstring(core::weekdayName(day.weekday).substr(0, 3)),
                     double(day.weekday)},
                    clockCell(day.sunrise, twelveHour_),
                    clockCell(day.sunset, twelveHour_),
                };
            }
            if (row < tithis.size()) {
                const int tithi = tithis[row].number;
                cells.emplace_back(firstWord(timing::pakshaText(timing::isKrishna(tithi))));
                cells.push_back({shortTithi(tithi), double(tithi)});
                cells.push_back(clockCell(tithis[row].hours.end, twelveHour_));
            } else {
                cells.resize(cells.size() + 3);
            }
            addElement(cells, nakshatras, row, core::nakshatraName);
            addElement(cells, yogas, row, timing::yogaName);
            addDay(cells, day, row == 0);
            table_.add(std::move(cells));
        }
    }

private:
    void addElement(Row& cells, const std::vector<DayElement>& elements, std::size_t row,
                    std::wstring_view (*nameOf)(int number)) const
    {
        if (row < elements.size()) {
            cells.push_back(
                {std::wstring(nameOf(elements[row].number)), double(elements[row].number)});
            cells.push_back(clockCell(elements[row].hours.end, twelveHour_));
        } else {
            cells.resize(cells.size() + 2);
        }
    }

    void addDay(Row& cells, const PanchangaDay& day, bool first)
    {
        if (native_) {
            cells.push_back(
                first ? scoreCell(day.taraBala ? std::optional(day.taraBala->score) : std::nullopt)
                      : Cell());
            cells.push_back(first ? scoreCell(day.chandraBala) : Cell());
        }
        // The month is named where it begins in the table.
        const std::wstring month = timing::lunarMonthText(day.month);
        cells.emplace_back(first && month != month_ ? month : std::wstring());
        month_ = month;
    }

    Table& table_;
    bool native_;
    bool twelveHour_;
    std::wstring month_;
};

} // namespace

Table panchangaTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = labelledTable("panchanga", L"");
    table.add(
        {L"Date", Cell(dateText(day.date) + L", " + std::wstring(core::weekdayName(day.weekday)),
                       day.julianDay0h)});
    table.add({L"Sun", sunText(day)});
    const auto hour = [&](const wchar_t* label, const std::optional<double>& value) {
        table.add({label, clockCell(value, twelveHour)});
    };
    hour(L"Sunrise", day.sunrise);
    hour(L"Sunset", day.sunset);
    hour(L"Next sunrise", day.nextSunrise);
    hour(L"Moonrise", day.moonrise);
    hour(L"Moonset", day.moonset);
    table.add({L"Lunar month", timing::lunarMonthText(day.month)});
    table.add({L"Purnimanta month", core::lunarMonthName(day.purnimanta)});
    table.add({L"Season", core::rituName(day.ritu)});
    table.add({L"Half year", core::ayanaName(day.ayana)});
    const auto year = [&](const wchar_t* label, int count, int samvatsara) {
        table.add({label,
                   std::to_wstring(count) + L" " + std::wstring(core::samvatsaraName(samvatsara))});
    };
    year(L"Shaka", day.year.shaka, day.year.southernSamvatsara);
    year(L"Vikrama", day.year.vikrama, day.year.northernSamvatsara);
    if (day.taraBala) {
        table.add({L"Tara bala", timing::taraBalaText(day.taraBala->score)});
    }
    if (day.chandraBala) {
        const int score = *day.chandraBala;
        table.add({L"Chandra bala", Cell(score > 0   ? L"Favourable"
                                         : score < 0 ? L"Unfavourable"
                                                     : L"Neutral",
                                         score)});
    }
    return table;
}

Table tithisTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {
        "tithis", L"Tithis", {{L"Tithi"}, {L"Half month"}, {L"Day", Align::Right}, {L"Kind"}}};
    addElements(table, day.tithis, twelveHour, [](int tithi) {
        return Row{{std::wstring(timing::tithiName(tithi)), double(tithi)},
                   timing::pakshaText(timing::isKrishna(tithi)),
                   integerCell(timing::tithiOfPaksha(tithi)),
                   withoutEndBlanks(timing::tithiKeyword(tithi))};
    });
    return table;
}

Table nakshatrasTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"nakshatras", L"Nakshatras", {{L"Nakshatra"}, {L"Number", Align::Right}}};
    addElements(table, day.nakshatras, twelveHour, [](int nakshatra) {
        return Row{nakshatraCell(nakshatra), integerCell(nakshatra + 1)};
    });
    return table;
}

Table nityaYogasTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"nitya-yogas", L"Yogas of Sun and Moon", {{L"Yoga"}, {L"Kind"}}};
    addElements(table, day.yogas, twelveHour, [](int yoga) {
        return Row{{std::wstring(timing::yogaName(yoga)), double(yoga)},
                   withoutEndBlanks(timing::yogaKeyword(yoga))};
    });
    return table;
}

Table karanasTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"karanas", L"Karanas", {{L"Karana"}, {L"Animal"}, {L"Good for"}}};
    addElements(table, day.karanas, twelveHour, [](int karana) {
        return Row{{std::wstring(timing::karanaName(karana)), double(karana)},
                   withoutEndBlanks(timing::karanaAnimal(karana)),
                   withoutEndBlanks(timing::karanaNote(karana))};
    });
    return table;
}

Table horasTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"horas", L"Horas", {{L"Hora", Align::Right}}};
    addParts(table, {{L"Lord", &day.horas, lordName}}, twelveHour);
    return table;
}

Table choghadiaTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"choghadia", L"Choghadia", {{L"Part", Align::Right}}};
    addParts(table, {choghadiaOf(day)}, twelveHour);
    return table;
}

Table kalaVelasTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"kala-velas", L"Kala velas", {{L"Part", Align::Right}}};
    addParts(table, {kalaVelasOf(day)}, twelveHour);
    return table;
}

Table eighthsTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"eighths", L"Eighths of day and night", {{L"Part", Align::Right}}};
    addParts(table, {choghadiaOf(day), kalaVelasOf(day)}, twelveHour);
    return table;
}

Table kalamsTable(const PanchangaDay& day, bool twelveHour)
{
    Table table = {"kalams", L"Stretches of the day", {{L"Stretch"}, {L"From"}, {L"To"}, {L""}}};
    const auto add = [&](const wchar_t* name, const HourSpan& hours, std::wstring note) {
        table.add({name, clockCell(hours.start, twelveHour), clockCell(hours.end, twelveHour),
                   std::move(note)});
    };
    const auto addIf = [&](const wchar_t* name, const std::optional<HourSpan>& hours,
                           const wchar_t* note) {
        if (hours) {
            add(name, *hours, note);
        }
    };
    addIf(L"Rahu kalam", day.rahuKalam, L"avoid");
    addIf(L"Yamaganda", day.yamaganda, L"avoid");
    addIf(L"Gulika", day.gulika, L"avoid");
    addIf(L"Abhijit", day.abhijit, L"favourable");
    if (!day.abhijit && day.rahuKalam && day.weekday == kWednesday) {
        table.add({L"Abhijit", core::kNoName, core::kNoName, L"void on Wednesday"});
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
    return table;
}

Table panchangaDaysTable(const std::vector<PanchangaDay>& days, bool twelveHour)
{
    Table table = {"panchanga-days",
                   L"",
                   {{L"Date"},
                    {L"Day"},
                    {L"Sunrise"},
                    {L"Sunset"},
                    {L"Moon"},
                    {L"Tithi"},
                    {L"to"},
                    {L"Nakshatra"},
                    {L"to"},
                    {L"Yoga"},
                    {L"to"}}};
    const bool native = !days.empty() && days.front().taraBala.has_value();
    if (native) {
        table.columns.push_back({L"Tara", Align::Right});
        table.columns.push_back({L"Chandra", Align::Right});
    }
    table.columns.push_back({L"Month"});
    DayRows rows(table, native, twelveHour);
    bool polar = false;
    for (const PanchangaDay& day : days) {
        rows.add(day);
        polar = polar || !day.sunrise || !day.sunset;
    }
    if (polar) {
        table.notes.emplace_back(L"-- the Sun does not rise or does not set; without a sunrise the "
                                 L"day runs from midnight");
    }
    return table;
}

} // namespace kestrav::present
