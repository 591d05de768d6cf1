#include "timing/Panchanga.h"
#include "analysis/ComputeChart.h"
#include "astro/Ayanamsa.h"
#include "astro/PreciseMoon.h"
#include "core/DeltaT.h"
#include "core/DisplayFlags.h"
#include "core/Names.h"
#include "tests/astro/SeriesForTests.h"
#include "timing/PanchangaReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace kestrav::timing
{
namespace
{

constexpr double kMinute = 1.0 / 60.0;
constexpr double kSecond = 1.0 / 3600.0; // of an hour

const astro::Observer kDelhi{77.209, 28.6139, 5.5};
const astro::Observer kTromso{18.95, 69.65, 1.0};
const astro::Observer kHonolulu{-157.86, 21.31, -10.0};

core::DateTimeRecord dateOf(int year, int month, int day)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    return record;
}

double clock(int hour, int minute, int second = 0)
{
    return hour + minute / 60.0 + second / 3600.0;
}

class PanchangaOfDays : public testing::Test
{
protected:
    PanchangaDay day(int year, int month, int date, const astro::Observer& observer = kDelhi)
    {
        return panchanga.day(dateOf(year, month, date), observer);
    }

    Panchanga panchanga{tests::seriesForTests(), core::Settings{}};
};

// The day of a printed panchanga of New Delhi.
TEST_F(PanchangaOfDays, printedDay)
{
    const PanchangaDay monday = day(2022, 1, 24);
    EXPECT_EQ(monday.weekday, 2);
    EXPECT_NEAR(*monday.sunrise, clock(7, 14, 11), 15.0 * kSecond);
    EXPECT_NEAR(*monday.sunset, clock(17, 52, 25), 15.0 * kSecond);

    ASSERT_EQ(monday.tithis.size(), 2U);
    EXPECT_EQ(monday.tithis[0].number, 20);
    EXPECT_LT(monday.tithis[0].hours.start, 0.0);
    EXPECT_NEAR(monday.tithis[0].hours.end, clock(8, 43), 2.0 * kMinute);
    EXPECT_EQ(core::nakshatraName(monday.nakshatras[0].number), L"Hasta");
    EXPECT_NEAR(monday.nakshatras[0].hours.end, clock(11, 15), 2.0 * kMinute);
    EXPECT_EQ(monday.yogas[0].number, 6);
    EXPECT_NEAR(monday.yogas[0].hours.end, clock(11, 12), 2.0 * kMinute);
    ASSERT_EQ(monday.karanas.size(), 3U);
    EXPECT_EQ(monday.karanas[0].number, 42);
    EXPECT_NEAR(monday.karanas[0].hours.end, clock(8, 43), 2.0 * kMinute);
    EXPECT_EQ(monday.karanas[1].number, 43);
    EXPECT_NEAR(monday.karanas[1].hours.end, clock(20, 19), 2.0 * kMinute);

    EXPECT_EQ(core::lunarMonthName(monday.month.number), L"Pausha");
    EXPECT_EQ(core::lunarMonthName(monday.purnimanta), L"Magha");
    EXPECT_EQ(monday.year.shaka, 1943);
    EXPECT_EQ(core::samvatsaraName(monday.year.southernSamvatsara), L"Plava");
    EXPECT_EQ(monday.year.vikrama, 2078);
    EXPECT_EQ(core::samvatsaraName(monday.year.northernSamvatsara), L"Ananda");
    EXPECT_EQ(core::rituName(monday.ritu), L"Hemanta");
    EXPECT_EQ(core::ayanaName(monday.ayana), L"Uttarayana");

    const PanchangaDay chennai = day(2024, 7, 17, {80.2785, 13.0878, 5.5});
    EXPECT_NEAR(*chennai.sunrise, clock(5, 51, 53), 15.0 * kSecond);
    EXPECT_NEAR(*chennai.sunset, clock(18, 38, 14), 15.0 * kSecond);

    // Anuradha from 10:59 to 13:56 of the next day.
    const PanchangaDay anuradha = day(2025, 11, 20);
    ASSERT_EQ(anuradha.varjyam.size(), 1U);
    EXPECT_EQ(anuradha.varjyam[0].nakshatra, 16);
    EXPECT_NEAR(anuradha.varjyam[0].hours.start, clock(15, 28), 2.0 * kMinute);
    EXPECT_NEAR(anuradha.varjyam[0].hours.end, clock(17, 16), 2.0 * kMinute);
    ASSERT_EQ(anuradha.amritaKalam.size(), 1U);
    EXPECT_NEAR(anuradha.amritaKalam[0].hours.start, clock(26, 15), 2.0 * kMinute);
}

TEST(PanchangaElements, numbersAtTheLimits)
{
    EXPECT_EQ(elementsOf(10.0, 10.0), (ElementNumbers{0, 1, 0, 1}));
    EXPECT_EQ(elementsOf(10.0, 9.999999999), (ElementNumbers{29, 60, 0, 1}));
    EXPECT_EQ(elementsOf(0.0, 192.0), (ElementNumbers{16, 33, 14, 14}));
    EXPECT_EQ(elementsOf(100.0, std::nextafter(260.0, 0.0)), (ElementNumbers{13, 27, 19, 26}));
    EXPECT_EQ(elementsOf(0.0, std::nextafter(360.0, 0.0)), (ElementNumbers{29, 60, 26, 26}));
}

// ---- A year against a scan in small steps of the series themselves -------------------------

constexpr int kScanYear = 2023;

// The angle of an element kind in parts, from the series, at a Julian day of Terrestrial Time. That
// the ayanamsa wants Universal Time is a hundredth of a hundredth of an arc second.
double partsAt(Element element, double julianDay)
{
    const double dayOfYear = julianDay - core::DateToJulianDay(dateOf(kScanYear, 1, 1));
    core::DateTimeRecord date = dateOf(kScanYear, 1, 1);
    core::addDays(date, int(std::floor(dayOfYear)));
    date.utHours = (dayOfYear - std::floor(dayOfYear)) * 24.0;
    const double ayanamsa =
        astro::ayanamsaOfRow(core::factoryAyanamsaTable()[1], astro::DecimalYear(date));
    const double T = (julianDay - 2415020.0) / 36525.0;
    const double moon = astro::preciseMoon(T).longitude - ayanamsa;
    astro::EphemerisContext context(tests::seriesForTests());
    context.setTime(core::timeArguments(T));
    astro::PlanetPosition(context, astro::kCodeSun);
    const double sun = context.result.longitude - ayanamsa;
    const double turned = [&] {
        switch (element) {
        case Element::Tithi:
            return (moon - sun) / 12.0;
        case Element::Karana:
            return (moon - sun) / 6.0;
        case Element::Nakshatra:
            return moon * 3.0 / 40.0;
        case Element::Yoga:
            return (moon + sun) * 3.0 / 40.0;
        }
        return 0.0;
    }();
    const double count = element == Element::Tithi ? 30 : (element == Element::Karana ? 60 : 27);
    return turned - count * std::floor(turned / count);
}

// All changes of an element kind from a few days before the year to a few days after it, in
// Terrestrial Time.
std::vector<ElementPeriod> scanned(Element element)
{
    constexpr double kStep = 10.0 / 1440.0;
    const double from = core::DateToJulianDay(dateOf(kScanYear, 1, 1)) - 4.0;
    const int first = element == Element::Karana ? 1 : 0;
    std::vector<ElementPeriod> periods;
    int before = int(partsAt(element, from));
    for (int i = 1; i * kStep < 374.0; ++i) {
        const int now = int(partsAt(element, from + i * kStep));
        if (now == before) {
            continue;
        }
        double low = from + (i - 1) * kStep;
        double high = from + i * kStep;
        while (high - low > 1e-6) {
            const double middle = (low + high) / 2.0;
            (int(partsAt(element, middle)) == before ? low : high) = middle;
        }
        if (!periods.empty()) {
            periods.back().end = high;
        }
        periods.push_back({now + first, high, high});
        before = now;
    }
    periods.pop_back();
    return periods;
}

// The hour of a civil date at which a clock shows a Julian day of Terrestrial Time.
double hourOn(double date, double terrestrial, double clockOffset)
{
    const double local = terrestrial + clockOffset / 24.0 - date;
    core::DateTimeRecord record = dateOf(kScanYear, 1, 1);
    const double firstDay = core::DateToJulianDay(record);
    core::addDays(record, int(std::floor(date - firstDay + local)));
    return local * 24.0 - core::deltaTSeconds(record.year, record.month) / 3600.0;
}

TEST_F(PanchangaOfDays, aYearAtThreePlacesAgreesWithAScan)
{
    struct Kind
    {
        std::vector<DayElement> PanchangaDay::*list;
        std::vector<ElementPeriod> all;
    };
    const std::array<Kind, 4> kinds = {{{&PanchangaDay::tithis, scanned(Element::Tithi)},
                                        {&PanchangaDay::karanas, scanned(Element::Karana)},
                                        {&PanchangaDay::nakshatras, scanned(Element::Nakshatra)},
                                        {&PanchangaDay::yogas, scanned(Element::Yoga)}}};
    int lost = 0;
    int repeated = 0;
    int sunless = 0;
    for (const astro::Observer& place : {kDelhi, kTromso, kHonolulu}) {
        const double firstDay = core::DateToJulianDay(dateOf(kScanYear, 1, 1));
        for (double date = firstDay; date < firstDay + 365.0; date += 1.0) {
            const PanchangaDay found = panchanga.day(date, place);
            const double from = found.sunrise.value_or(0.0);
            const double to = found.nextSunrise.value_or(24.0);
            sunless += found.sunrise ? 0 : 1;
            lost += found.tithis.size() > 2 ? 1 : 0;
            repeated += found.tithis.size() == 1 ? 1 : 0;
            for (const Kind& kind : kinds) {
                std::vector<DayElement> wanted;
                for (const ElementPeriod& period : kind.all) {
                    if (period.end < date - 2.0 || period.begin > date + 4.0) {
                        continue;
                    }
                    const HourSpan hours{hourOn(date, period.begin, place.clockOffset),
                                         hourOn(date, period.end, place.clockOffset)};
                    if (hours.start < to && hours.end > from) {
                        wanted.push_back({period.number, hours});
                    }
                }
                const std::vector<DayElement>& list = found.*kind.list;
                ASSERT_EQ(list.size(), wanted.size()) << date;
                for (std::size_t k = 0; k < list.size(); ++k) {
                    EXPECT_EQ(list[k].number, wanted[k].number);
                    EXPECT_NEAR(list[k].hours.start, wanted[k].hours.start, 0.3 * kSecond);
                    EXPECT_NEAR(list[k].hours.end, wanted[k].hours.end, 0.3 * kSecond);
                }
            }
        }
    }
    // The year has them, or this test would show nothing.
    EXPECT_GT(lost, 30);
    EXPECT_GT(repeated, 15);
    EXPECT_GT(sunless, 100);
}

// ---- Months and years ----------------------------------------------------------------------

TEST(LunarMonth, leapAndLostMonthsOfTwoCenturies)
{
    struct Rare
    {
        int year, month, day; // the civil date on which it begins
        int number;
    };
    const std::vector<Rare> adhika = {{2012, 8, 17, 6}, {2015, 6, 16, 4}, {2018, 5, 15, 3},
                                      {2020, 9, 17, 7}, {2023, 7, 17, 5}, {2026, 5, 16, 3}};
    const std::vector<Rare> kshaya = {{1963, 11, 16, 8}, {1983, 1, 14, 10}, {2123, 12, 17, 9}};
    SiderealSky sky(tests::seriesForTests(), core::Settings{});
    const auto expectBegins = [](const LunarMonth& month, const Rare& wanted) {
        EXPECT_EQ(month.number, wanted.number) << wanted.year;
        const double noon =
            core::DateToJulianDay(dateOf(wanted.year, wanted.month, wanted.day)) + 0.5;
        EXPECT_NEAR(month.begin, noon, 0.75) << wanted.year;
    };
    std::size_t leap = 0;
    std::size_t lost = 0;
    int next = 0; // the number that follows
    LunarMonth month = lunarMonthAt(sky, core::DateToJulianDay(dateOf(1950, 1, 1)));
    for (; month.end < core::DateToJulianDay(dateOf(2130, 1, 1));
         month = lunarMonthAt(sky, month.end + 1.0)) {
        EXPECT_TRUE(next == 0 || month.number == next);
        const int step = month.adhika ? 0 : (month.kshaya ? 2 : 1);
        next = (month.number + step - 1) % 12 + 1;
        if (month.adhika && month.begin > core::DateToJulianDay(dateOf(2011, 1, 1)) &&
            month.end < core::DateToJulianDay(dateOf(2028, 1, 1))) {
            ASSERT_LT(leap, adhika.size());
            expectBegins(month, adhika[leap++]);
        }
        if (month.kshaya) {
            ASSERT_LT(lost, kshaya.size());
            expectBegins(month, kshaya[lost++]);
        }
    }
    EXPECT_EQ(leap, adhika.size());
    EXPECT_EQ(lost, kshaya.size());
    EXPECT_EQ(lunarMonthText({10, false, true, 0.0, 0.0}), L"Pausha-Magha");
    EXPECT_EQ(lunarMonthText({12, true, false, 0.0, 0.0}), L"Ad.Phalguna");
    EXPECT_EQ(lunarMonthAt(sky, 1e300).number, 0);
}

TEST_F(PanchangaOfDays, purnimantaNamesPassOverTheLeapMonth)
{
    // 2023: Ashadha until July 17, the leap Shravana until August 16, then the true one.
    EXPECT_EQ(day(2023, 6, 25).purnimanta, 4);
    EXPECT_EQ(day(2023, 7, 10).purnimanta, 5);
    const PanchangaDay leap = day(2023, 8, 10);
    EXPECT_TRUE(leap.month.adhika);
    EXPECT_EQ(leap.purnimanta, 5);
    EXPECT_EQ(day(2023, 8, 25).purnimanta, 5);
    EXPECT_EQ(day(2023, 9, 10).purnimanta, 6);
}

TEST(LunarYear, beginsWithChaitraAndKnowsNoYearZero)
{
    EXPECT_EQ(lunarYearOf(dateOf(2022, 4, 1), 12).shaka, 1943);
    EXPECT_EQ(lunarYearOf(dateOf(2022, 4, 2), 1).shaka, 1944);
    EXPECT_EQ(lunarYearOf(dateOf(2022, 12, 30), 10).shaka, 1944);
    EXPECT_EQ(lunarYearOf(dateOf(2023, 1, 2), 10).shaka, 1944);
    // 1 BC is the year before AD 1.
    const LunarYear before = lunarYearOf(dateOf(-1, 8, 1), 5);
    const LunarYear after = lunarYearOf(dateOf(1, 8, 1), 5);
    EXPECT_EQ(after.shaka - before.shaka, 1);
    EXPECT_EQ((before.southernSamvatsara + 1) % 60, after.southernSamvatsara);
    EXPECT_GE(lunarYearOf(dateOf(-3101, 8, 1), 5).northernSamvatsara, 0);
    EXPECT_EQ(ayanaOf(270.0), 0);
    EXPECT_EQ(ayanaOf(89.999), 0);
    EXPECT_EQ(ayanaOf(90.0), 1);
    EXPECT_EQ(rituOf(1), 0);
    EXPECT_EQ(rituOf(12), 5);
}

// ---- Days and moments ----------------------------------------------------------------------

TEST_F(PanchangaOfDays, aChartBeforeSunriseBelongsToTheDayBefore)
{
    std::mt19937 random(61);
    std::uniform_int_distribution<int> minutes(0, 1439);
    astro::EphemerisContext context(tests::seriesForTests());
    core::Settings settings;
    for (int i = 0; i < 80; ++i) {
        core::Chart chart;
        const astro::Observer& place = i % 2 == 0 ? kDelhi : kTromso;
        chart.geoLongitude = place.geoLongitude;
        chart.geoLatitude = place.geoLatitude;
        chart.zone = place.clockOffset;
        chart.time = dateOf(1950 + i, i % 12 + 1, i % 28 + 1);
        chart.time.localTime = minutes(random) / 60.0;
        analysis::ComputeChart(chart, settings, context);
        const PanchangaDay running = panchanga.dayOf(chart);
        EXPECT_EQ(running.weekday, chart.weekday) << i;
        const double ahead = (core::DateToJulianDay(chart.time) - running.julianDay0h) * 24.0;
        EXPECT_NEAR(running.hour, chart.time.localTime + ahead, 1e-9);
        EXPECT_LT(std::fabs(running.moonLongitude - chart.longitude[core::kMoon]), 1e-6);
        if (chart.vedicDay && running.sunrise && running.nextSunrise) {
            EXPECT_NEAR(*running.sunrise - ahead, chart.vedicDay->sunrise, 1e-4);
            EXPECT_NEAR(*running.nextSunrise - ahead, chart.vedicDay->nextSunrise, 1e-4);
            EXPECT_LE(*running.sunrise, running.hour);
            EXPECT_GT(*running.nextSunrise, running.hour);
        }
        // What runs at the moment is in the lists of the day.
        const auto contains = [&](const std::vector<DayElement>& list, int number) {
            for (const DayElement& element : list) {
                if (element.number == number && element.hours.start <= running.hour + kSecond &&
                    element.hours.end >= running.hour - kSecond) {
                    return true;
                }
            }
            return false;
        };
        EXPECT_TRUE(contains(running.tithis, running.elements.tithi)) << i;
        EXPECT_TRUE(contains(running.karanas, running.elements.karana)) << i;
        EXPECT_TRUE(contains(running.nakshatras, running.elements.nakshatra)) << i;
        EXPECT_TRUE(contains(running.yogas, running.elements.yoga)) << i;
    }
}

TEST_F(PanchangaOfDays, daysFollowEachOtherOverTheChangeOfCalendar)
{
    const double first = core::DateToJulianDay(dateOf(1582, 9, 25));
    std::optional<double> next;
    for (int i = 0; i < 40; ++i) {
        const PanchangaDay found = panchanga.day(first + i, kDelhi);
        EXPECT_EQ(found.weekday, (int(first) + i + 2) % 7 + 1);
        if (next) {
            EXPECT_NEAR(*found.sunrise, *next - 24.0, 1e-9);
        }
        next = found.nextSunrise;
    }
}

TEST_F(PanchangaOfDays, nearThePoleWhatDoesNotExistIsSaid)
{
    const PanchangaDay summer = day(2023, 6, 20, kTromso);
    EXPECT_EQ(summer.sun, SunCourse::StaysUp);
    EXPECT_FALSE(summer.sunrise || summer.sunset || summer.rahuKalam || summer.abhijit);
    EXPECT_TRUE(summer.horas.empty() && summer.choghadia.empty() && summer.durmuhurta.empty());
    EXPECT_LE(summer.tithis.front().hours.start, 0.0);
    EXPECT_GE(summer.tithis.back().hours.end, 24.0);
    const std::wstring report = panchangaReport(summer, false);
    EXPECT_NE(report.find(L"The Sun does not set on this day"), std::wstring::npos);
    EXPECT_EQ(report.find(L"Horas"), std::wstring::npos);
    EXPECT_EQ(report.find(L"Sunrise"), std::wstring::npos);

    const PanchangaDay winter = day(2023, 12, 20, kTromso);
    EXPECT_EQ(winter.sun, SunCourse::StaysDown);
    EXPECT_NE(panchangaReport(winter, false).find(L"The Sun does not rise on this day"),
              std::wstring::npos);

    // The last day before the polar night has a day but no night.
    int halves = 0;
    for (int date = 20; date <= 30; ++date) {
        const PanchangaDay autumn = day(2023, 11, date, kTromso);
        if (autumn.sunrise && !autumn.nextSunrise) {
            ++halves;
            EXPECT_EQ(autumn.horas.size(), 12U);
            EXPECT_TRUE(autumn.rahuKalam.has_value());
            EXPECT_NE(panchangaReport(autumn, false).find(L"no parts of the night"),
                      std::wstring::npos);
        }
    }
    EXPECT_EQ(halves, 1);
}

TEST_F(PanchangaOfDays, theMoonMissesADayAboutOnceAMonth)
{
    int risings = 0;
    int settings = 0;
    const double first = core::DateToJulianDay(dateOf(2023, 1, 1));
    for (int i = 0; i < 118; ++i) {
        const PanchangaDay found = panchanga.day(first + i, kDelhi);
        risings += found.moonrise ? 1 : 0;
        settings += found.moonset ? 1 : 0;
    }
    EXPECT_EQ(risings, 114);
    EXPECT_EQ(settings, 114);
}

TEST_F(PanchangaOfDays, nativesHaveTheirBalas)
{
    EXPECT_FALSE(day(2022, 1, 24).taraBala);
    panchanga.setNative(165.0); // Hasta in Virgo, where the Moon stands
    const PanchangaDay monday = day(2022, 1, 24);
    EXPECT_EQ(monday.taraBala->score, 0);
    EXPECT_EQ(monday.chandraBala, 1);
    panchanga.setNative(60.0); // Virgo is the fourth from Gemini
    EXPECT_EQ(day(2022, 1, 24).chandraBala, -1);
}

// ---- The report ----------------------------------------------------------------------------

std::vector<std::wstring> linesOf(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    std::wstring line;
    for (const wchar_t c : text) {
        if (c == L'\n') {
            lines.push_back(line);
            line.clear();
        } else {
            line += c;
        }
    }
    EXPECT_TRUE(line.empty());
    return lines;
}

TEST_F(PanchangaOfDays, reportLinesInEnglish)
{
    const std::vector<std::wstring> lines = linesOf(panchangaReport(day(2022, 1, 24), false));
    ASSERT_GT(lines.size(), 16U);
    const std::vector<std::wstring> wanted = {
        L"Panchanga",
        L"2022-01-24 Monday",
        L"HH:MM are Tithi/Karana, Nakshatra and Yoga ending times ('-' = previous day, '+' = next "
        L"day)",
        L"\tSunrise 07:14 \tSunset 17:52  \t",
        L"\tMoonrise 23:56 \tMoonset 11:08 ",
        L"Lunar month: Pausha (Purnimanta: Magha)",
        L"Hemanta, Uttarayana",
        L"Shaka 1943 Plava, Vikrama 2078 Ananda",
        L"Tithi: Shashti, Fiery 6 of the Waning Moon from 09:12- to 08:44 ",
        L"Tithi: Saptami, Power 7 of the Waning Moon to 07:49+",
        L"Hasta Nakshatra (#13) from 11:09- to 11:15 ",
        L"Chitra Nakshatra (#14) to 10:54+",
        L"Yoga:  Sukarma from 12:48- to 11:11  {Good work}",
        L"Yoga:  Dhriti to 09:12+ {Controls}",
        L"Karanas: Vanija  08:44  {}",
        L"Karanas: Vishti- Poison 20:20  {}",
        L"Karanas: Bava Lion 07:49+ {Good for starting ventures}",
    };
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(lines[i], wanted[i]);
    }
    EXPECT_NE(std::find(lines.begin(), lines.end(), L"\t07:14  Moo\t17:52  Ven"), lines.end());
    // The date is written as it is typed, in 44 BC too.
    std::wstring header;
    appendHeader(header, day(-44, 3, 15));
    EXPECT_EQ(linesOf(header)[1], L"-0044-03-15 Wednesday");
}

TEST_F(PanchangaOfDays, reportLinesInSanskrit)
{
    const core::DisplayFlagsOverride sanskrit(0);
    std::wstring report;
    const PanchangaDay leap = day(2023, 7, 20);
    appendSunAndMonth(report, leap, true);
    EXPECT_EQ(linesOf(report)[0], L"\tSunrise 5:37am \tSunset 7:18pm  \t");
    EXPECT_EQ(linesOf(report)[2], L"Maas: Ad.Shravana");
    report.clear();
    appendTithis(report, leap, true);
    EXPECT_EQ(linesOf(report)[0],
              L"Tithi: Trittiya, Nice 3 of the Shukla Paksha from 4:31am  to 6:59am+");
    // A missing keyword leaves its place empty.
    PanchangaDay eleventh;
    eleventh.tithis = {{10, {-2.0, 21.5}}};
    report.clear();
    appendTithis(report, eleventh, false);
    EXPECT_EQ(report, L"Tithi: Ekadashi,  11 of the Shukla Paksha from 22:00- to 21:30 \n");
}

} // namespace
} // namespace kestrav::timing
