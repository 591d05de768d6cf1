#include "timing/PanchangaReport.h"

#include "core/DisplayFlags.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/PanchangaNames.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cwchar>
#include <string_view>
#include <type_traits>

namespace kestrav::timing
{

namespace
{

bool inEnglish()
{
    return (core::DisplayFlags() & core::kEnglishNames) != 0;
}

std::wstring choose(std::wstring_view english, std::wstring_view sanskrit)
{
    return std::wstring(inEnglish() ? english : sanskrit);
}

template <typename... Arguments>
void print(std::wstring& report, const wchar_t* format, const Arguments&... arguments)
{
    std::array<wchar_t, 256> buffer{};
    const auto plain = [](const auto& argument) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(argument)>, std::wstring>) {
            return argument.c_str();
        } else {
            return argument;
        }
    };
    const int length = std::swprintf(buffer.data(), buffer.size(), format, plain(arguments)...);
    report.append(buffer.data(), length > 0 ? std::size_t(length) : 0);
}

// The names are views of literals; the formats need an end.
std::wstring text(std::wstring_view name)
{
    return std::wstring(name);
}

std::wstring clock(double hour, bool twelveHour)
{
    return core::FormatClock(hour, twelveHour, true);
}

std::wstring clock(const std::optional<double>& hour, bool twelveHour)
{
    return hour ? clock(*hour, twelveHour) : std::wstring(core::kNoName);
}

void appendFrom(std::wstring& report, const DayElement& element, bool isFirst, bool twelveHour)
{
    if (isFirst) {
        print(report, L" from %ls", clock(element.hours.start, twelveHour));
    }
}

// What is said of a day on which the Sun does not rise or does not set.
std::wstring sunNotice(const PanchangaDay& day)
{
    if (day.sunrise && day.sunset) {
        return {};
    }
    const bool staysUp = day.sunrise || (!day.sunset && day.sun == SunCourse::StaysUp);
    return staysUp
               ? choose(L"The Sun does not set on this day", L"Surya does not set on this day")
               : choose(L"The Sun does not rise on this day", L"Surya does not rise on this day");
}

using PartName = std::wstring_view (*)(int ruler);

void appendParts(std::wstring& report, const wchar_t* title, const std::vector<DayPart>& parts,
                 PartName nameOf, bool twelveHour)
{
    if (parts.empty()) {
        return;
    }
    print(report, L"%ls\n", title);
    std::vector<const DayPart*> day;
    std::vector<const DayPart*> night;
    for (const DayPart& part : parts) {
        (part.night ? night : day).push_back(&part);
    }
    const auto cell = [&](const std::vector<const DayPart*>& column, std::size_t row) {
        if (row < column.size()) {
            print(report, L"\t%ls %ls", clock(column[row]->hours.start, twelveHour),
                  text(nameOf(column[row]->ruler)));
        }
    };
    for (std::size_t row = 0; row < std::max(day.size(), night.size()); ++row) {
        cell(day, row);
        cell(night, row);
        report += L'\n';
    }
}

void appendSpan(std::wstring& report, const wchar_t* name, const HourSpan& hours, bool twelveHour)
{
    print(report, L"\t%ls %ls to %ls\n", name, clock(hours.start, twelveHour),
          clock(hours.end, twelveHour));
}

void appendSpan(std::wstring& report, const wchar_t* name, const std::optional<HourSpan>& hours,
                bool twelveHour)
{
    if (hours) {
        appendSpan(report, name, *hours, twelveHour);
    }
}

} // namespace

void appendHeader(std::wstring& report, const PanchangaDay& day)
{
    report += L"Panchanga\n";
    print(report, L"%ls%04d-%02d-%02d %ls\n", std::wstring(day.date.year < 0 ? L"-" : L""),
          std::abs(int(day.date.year)), int(day.date.month), int(day.date.day),
          text(core::weekdayName(day.weekday)));
    print(report,
          L"HH:MM are Tithi/Karana%ls and Yoga ending times ('-' = previous day, '+' = next "
          L"day)\n",
          std::wstring(L", Nakshatra"));
}

void appendSunAndMonth(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    if (day.sunrise) {
        print(report, L"\tSunrise %ls", clock(*day.sunrise, twelveHour));
    }
    if (day.sunset) {
        print(report, L"\tSunset %ls \t", clock(*day.sunset, twelveHour));
    }
    if (day.sunrise || day.sunset) {
        report += L'\n';
    }
    if (const std::wstring notice = sunNotice(day); !notice.empty()) {
        print(report, L"\t%ls: %ls\n", notice,
              std::wstring(L"no horas, choghadia, kala velas, day eighths or muhurtas"));
    } else if (!day.nextSunrise) {
        print(report, L"\t%ls: %ls\n",
              choose(L"The Sun does not rise on the next day",
                     L"Surya does not rise on the next day"),
              std::wstring(L"no parts of the night"));
    }
    print(report, L"\tMoonrise %ls\tMoonset %ls\n", clock(day.moonrise, twelveHour),
          clock(day.moonset, twelveHour));
    const std::wstring label = choose(L"Lunar month:", L"Maas:");
    print(report, L"%ls %ls", label, lunarMonthText(day.month));
    if (day.purnimanta != day.month.number) {
        print(report, L" (Purnimanta: %ls)", text(core::lunarMonthName(day.purnimanta)));
    }
    report += L'\n';
}

void appendYear(std::wstring& report, const PanchangaDay& day)
{
    print(report, L"%ls, %ls\n", text(core::rituName(day.ritu)), text(core::ayanaName(day.ayana)));
    print(report, L"Shaka %d %ls, Vikrama %d %ls\n", day.year.shaka,
          text(core::samvatsaraName(day.year.southernSamvatsara)), day.year.vikrama,
          text(core::samvatsaraName(day.year.northernSamvatsara)));
}

void appendTithis(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    for (const DayElement& tithi : day.tithis) {
        print(report, L"Tithi: %ls, %ls %d of the %ls", text(tithiName(tithi.number)),
              text(tithiKeyword(tithi.number)), tithiOfPaksha(tithi.number),
              text(pakshaText(isKrishna(tithi.number))));
        appendFrom(report, tithi, &tithi == &day.tithis.front(), twelveHour);
        print(report, L" to %ls\n", clock(tithi.hours.end, twelveHour));
    }
}

void appendNakshatras(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    for (const DayElement& nakshatra : day.nakshatras) {
        print(report, L"%ls Nakshatra (#%d)", text(core::nakshatraName(nakshatra.number)),
              nakshatra.number + 1);
        appendFrom(report, nakshatra, &nakshatra == &day.nakshatras.front(), twelveHour);
        print(report, L" to %ls\n", clock(nakshatra.hours.end, twelveHour));
    }
}

void appendYogas(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    for (const DayElement& yoga : day.yogas) {
        print(report, L"Yoga:  %ls", text(yogaName(yoga.number)));
        appendFrom(report, yoga, &yoga == &day.yogas.front(), twelveHour);
        print(report, L" to %ls {%ls}\n", clock(yoga.hours.end, twelveHour),
              text(yogaKeyword(yoga.number)));
    }
}

void appendKaranas(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    for (const DayElement& karana : day.karanas) {
        print(report, L"Karanas: %ls %ls %ls {%ls}\n", text(karanaName(karana.number)),
              text(karanaAnimal(karana.number)), clock(karana.hours.end, twelveHour),
              text(karanaNote(karana.number)));
    }
}

void appendHoras(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    const PartName lordName = [](int planet) {
        return core::PointName(3, planet);
    };
    appendParts(report, L"Horas", day.horas, lordName, twelveHour);
}

void appendChoghadia(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    appendParts(report, L"ChoGhadia", day.choghadia, choghadiaName, twelveHour);
}

void appendKalaVelas(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    appendParts(report, L"Kala Velas", day.kalaVelas, kalaVelaName, twelveHour);
}

void appendKalams(std::wstring& report, const PanchangaDay& day, bool twelveHour)
{
    appendSpan(report, L"Rahu kalam", day.rahuKalam, twelveHour);
    appendSpan(report, L"Yamaganda", day.yamaganda, twelveHour);
    appendSpan(report, L"Gulika", day.gulika, twelveHour);
    appendSpan(report, L"Abhijit", day.abhijit, twelveHour);
    for (const HourSpan& hours : day.durmuhurta) {
        appendSpan(report, L"Durmuhurta", hours, twelveHour);
    }
    for (const NakshatraKalam& kalam : day.varjyam) {
        appendSpan(report, L"Varjyam", kalam.hours, twelveHour);
    }
    for (const NakshatraKalam& kalam : day.amritaKalam) {
        appendSpan(report, L"Amrita kalam", kalam.hours, twelveHour);
    }
}

void appendMoonStrength(std::wstring& report, const PanchangaDay& day)
{
    if (day.taraBala) {
        print(report, L"Tara bala: %ls\n", text(taraBalaText(day.taraBala->score)));
    }
    if (day.chandraBala) {
        print(report, *day.chandraBala == 0 ? L"Chandra bala: %d\n" : L"Chandra bala: %+d\n",
              *day.chandraBala);
    }
}

std::wstring panchangaReport(const PanchangaDay& day, bool twelveHour)
{
    std::wstring report;
    appendHeader(report, day);
    appendSunAndMonth(report, day, twelveHour);
    appendYear(report, day);
    appendTithis(report, day, twelveHour);
    appendNakshatras(report, day, twelveHour);
    appendYogas(report, day, twelveHour);
    appendKaranas(report, day, twelveHour);
    appendMoonStrength(report, day);
    appendHoras(report, day, twelveHour);
    appendChoghadia(report, day, twelveHour);
    appendKalaVelas(report, day, twelveHour);
    appendKalams(report, day, twelveHour);
    return report;
}

} // namespace kestrav::timing
