#include "timing/TransitListing.h"
#include "analysis/ComputeChart.h"
#include "analysis/Dignities.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "tests/timing/DashaCharts.h"
#include "timing/TransitKakshya.h"
#include "timing/TransitSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace kestrav::timing
{
namespace
{

constexpr double kIndia = 5.5;
constexpr double kSecond = 1.0 / 86400.0;
constexpr TransitKinds kNothing{false, false, false, false, false, false, false};

double date(int year, int month, int day)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    return core::DateToJulianDay(record);
}

double indianTime(int year, int month, int day, double hours)
{
    return date(year, month, day) + (hours - kIndia) / 24.0;
}

double apart(double a, double b)
{
    return std::remainder(a - b, 360.0);
}

class TransitList : public testing::Test
{
protected:
    std::vector<TransitEvent> list(const TransitOptions& options, TransitDays days)
    {
        return listTransits(sky, &chartE(), options, days, kIndia);
    }

    static TransitOptions aspectsOf(std::vector<int> bodies, std::vector<int> targets,
                                    int choice = kEveryHouse)
    {
        TransitOptions options;
        options.bodies = std::move(bodies);
        options.targets = std::move(targets);
        options.kinds = kNothing;
        options.kinds.aspects = true;
        options.aspectChoice = choice;
        return options;
    }

    // Walks in small steps and notes where the sector of the difference changes.
    template <typename Difference>
    static std::vector<std::pair<double, int>> scanned(Difference difference, Span span,
                                                       double step)
    {
        std::vector<std::pair<double, int>> found;
        int before = int(core::Normalize360(difference(span.from)) / 30.0);
        for (double day = span.from + step; day <= span.to; day += step) {
            const int now = int(core::Normalize360(difference(day)) / 30.0);
            if (now != before) {
                const bool forward = (now - before + 12) % 12 == 1;
                found.emplace_back(day - step / 2.0, (forward ? now : before) + 1);
            }
            before = now;
        }
        return found;
    }

    static void expectScanned(const std::vector<TransitEvent>& found,
                              const std::vector<std::pair<double, int>>& wanted, double step)
    {
        ASSERT_EQ(found.size(), wanted.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            ASSERT_NEAR(found[i].julianDay, wanted[i].first, 0.51 * step) << i;
            ASSERT_EQ(found[i].houseDistance, wanted[i].second) << i;
        }
    }

    core::Settings settings;
    SiderealSky sky{tests::seriesForTests(), settings, kIndia};
    SiderealSky literalSky{tests::seriesForTests(),
                           [] {
                               core::Settings literal;
                               literal.allPasses = false;
                               return literal;
                           }(),
                           kIndia};
};

TEST_F(TransitList, aCenturyOfPassesAgreesWithAScan)
{
    const TransitDays days{date(1950, 1, 1), date(2049, 12, 31)};
    const Span span{days.first - kIndia / 24.0, days.last + 1.0 - kIndia / 24.0};
    const double moon = chartE().longitude[core::kMoon];
    for (const auto& [body, step] :
         {std::pair{core::kSaturn, 0.05}, {core::kMercury, 0.02}, {core::kKetu, 0.2}}) {
        SCOPED_TRACE(body);
        const auto difference = [&, point = body](double day) {
            return sky.longitude(point, day) - moon;
        };
        const auto wanted = scanned(difference, span, step);
        EXPECT_GT(wanted.size(), 60U);
        expectScanned(list(aspectsOf({body}, {core::kMoon}), days), wanted, step);
    }
}

TEST_F(TransitList, passesOfMovingBodiesAgreeWithAScan)
{
    const TransitDays days{date(1990, 1, 1), date(2019, 12, 31)};
    const Span span{days.first - kIndia / 24.0, days.last + 1.0 - kIndia / 24.0};
    for (const auto& [body, target] : {std::pair{core::kMercury, core::kVenus},
                                       {core::kSun, core::kMercury},
                                       {core::kMars, core::kSaturn},
                                       {core::kJupiter, core::kRahu}}) {
        SCOPED_TRACE(body);
        const auto difference = [&, a = target, b = body](double day) {
            return sky.longitude(b, day) - sky.longitude(a, day);
        };
        TransitOptions options = aspectsOf({body}, {target});
        options.mode = TransitMode::TransitToTransit;
        const auto wanted = scanned(difference, span, 0.02);
        EXPECT_GT(wanted.size(), 30U);
        expectScanned(list(options, days), wanted, 0.02);
    }
}

// Charts cast for the moments themselves have the aspect exact to the second of time.
TEST_F(TransitList, chartsOfTheMomentsAreExact)
{
    const TransitOptions options =
        aspectsOf({core::kSun, core::kMoon, core::kMars, core::kMercury, core::kSaturn},
                  {core::kAscendant, core::kMoon, core::kJupiter}, kGrahaAspects);
    const auto events = list(options, {date(1997, 2, 1), date(1997, 3, 31)});
    EXPECT_GT(events.size(), 12U);
    astro::EphemerisContext context(tests::seriesForTests());
    for (const TransitEvent& event : events) {
        core::Chart chart;
        chart.time = recordOfDay(event.day0h);
        chart.time.localTime = event.hour;
        chart.zone = kIndia;
        analysis::computePositions(chart, settings, context);
        const double place =
            core::at(chartE().longitude, event.target) + (event.houseDistance - 1) * 30.0;
        const double speed = std::fabs(core::at(chart.speed, event.body));
        EXPECT_LT(std::fabs(apart(core::at(chart.longitude, event.body), place)),
                  speed * kSecond + 0.002 / 3600.0)
            << event.body;
        EXPECT_TRUE(containsHouse(AspectMask(event.body), event.houseDistance));
        EXPECT_NEAR(event.julianDay, event.day0h + (event.hour - kIndia) / 24.0, 1e-8);
        EXPECT_EQ(event.kind == TransitKind::Conjunction, event.houseDistance == 1);
    }
}

TEST_F(TransitList, theTestOfTheDayFindsForwardPassesOnly)
{
    const TransitDays days{date(1996, 1, 1), date(2005, 12, 31)};
    for (const int body : {core::kMars, core::kMoon, core::kRahu}) {
        SCOPED_TRACE(body);
        const TransitOptions options = aspectsOf({body}, {core::kMoon, core::kSaturn});
        const auto all = list(options, days);
        const auto tested = listTransits(literalSky, &chartE(), options, days, kIndia);
        std::size_t forward = 0;
        for (const TransitEvent& event : all) {
            forward += event.backward ? 0 : 1;
        }
        // The Moon is lost when it begins the day a little more than 15 degrees away and is fast
        // enough to arrive.
        EXPECT_LE(tested.size(), forward);
        EXPECT_GE(tested.size() + (body == core::kMoon ? 3 : 0), forward);
        for (const TransitEvent& event : tested) {
            const auto same = std::find_if(all.begin(), all.end(), [&](const TransitEvent& other) {
                return std::fabs(other.julianDay - event.julianDay) < kSecond &&
                       other.target == event.target && other.houseDistance == event.houseDistance;
            });
            EXPECT_NE(same, all.end()) << event.julianDay;
        }
    }
}

TEST_F(TransitList, spansEndToEndGiveTheWholeList)
{
    TransitOptions options = aspectsOf({core::kSun, core::kMoon, core::kMercury, core::kVenus},
                                       {core::kMoon, core::kVenus}, kGrahaAspects);
    options.kinds = TransitKinds{true, true, true, true, true, true, true};
    const double first = date(1999, 1, 1);
    const auto whole = list(options, {first, first + 449.0});
    std::vector<TransitEvent> parts;
    for (double day = first; day < first + 450.0; day += 90.0) {
        for (const TransitEvent& event : list(options, {day, day + 89.0})) {
            parts.push_back(event);
        }
    }
    ASSERT_EQ(parts.size(), whole.size());
    for (std::size_t i = 0; i < whole.size(); ++i) {
        EXPECT_NEAR(parts[i].julianDay, whole[i].julianDay, kSecond);
        EXPECT_EQ(parts[i].body, whole[i].body);
        EXPECT_GE(whole[i].hour, 0.0);
        EXPECT_LE(whole[i].hour, 24.0);
    }
    EXPECT_TRUE(list(options, {first, first - 1.0}).empty());
    std::size_t calls = 0;
    const auto stopped = listTransits(sky, &chartE(), options, {first, first + 449.0}, kIndia,
                                      [&](std::size_t done, std::size_t total) {
                                          EXPECT_LT(done, total);
                                          return ++calls > 1;
                                      });
    EXPECT_EQ(calls, 1U);
    EXPECT_LT(stopped.size(), whole.size());
}

TEST_F(TransitList, droppedBodiesHaveNoEventsAtAll)
{
    TransitOptions options =
        aspectsOf({core::kMars, core::kRahu, core::kKetu, core::kUranus}, {core::kMoon});
    options.kinds = TransitKinds{};
    const TransitDays days{date(2020, 1, 1), date(2023, 12, 31)};
    const auto bodies = [&](int nodeOption, bool excludeUpagrahas) {
        core::Settings dropping;
        dropping.nodeOption = nodeOption;
        SiderealSky other(tests::seriesForTests(), dropping, kIndia);
        options.excludeUpagrahas = excludeUpagrahas;
        std::set<int> found;
        for (const TransitEvent& event : listTransits(other, &chartE(), options, days, kIndia)) {
            found.insert(event.body);
        }
        return found;
    };
    using Bodies = std::set<int>;
    EXPECT_EQ(bodies(0, false), (Bodies{core::kMars, core::kRahu, core::kKetu, core::kUranus}));
    EXPECT_EQ(bodies(1, false), (Bodies{core::kMars, core::kRahu, core::kUranus}));
    EXPECT_EQ(bodies(2, true), (Bodies{core::kMars}));
}

TEST_F(TransitList, orbsEnclosePasses)
{
    for (const TransitMode mode : {TransitMode::Native, TransitMode::TransitToTransit}) {
        TransitOptions options = aspectsOf({core::kMercury, core::kJupiter, core::kSaturn},
                                           {core::kSun, core::kMars}, kGrahaAspects);
        options.mode = mode;
        options.kinds.orbs = true;
        options.orbDegrees = 2;
        const auto events = list(options, {date(1996, 1, 1), date(2015, 12, 31)});
        std::map<std::tuple<int, int, int>, int> inside; // -1 after the first day is not known
        std::size_t exact = 0;
        for (const TransitEvent& event : events) {
            const auto key = std::make_tuple(event.body, event.target, event.houseDistance);
            const double target = mode == TransitMode::Native
                                      ? core::at(chartE().longitude, event.target)
                                      : sky.longitude(event.target, event.julianDay);
            const double beyond = apart(event.longitude, target + (event.houseDistance - 1) * 30.0);
            const auto [state, unknown] = inside.try_emplace(key, -1);
            if (event.kind == TransitKind::OrbEnter || event.kind == TransitKind::OrbLeave) {
                const int now = event.kind == TransitKind::OrbEnter ? 1 : 0;
                EXPECT_NEAR(std::fabs(beyond), 2.0, 1e-5);
                EXPECT_NE(state->second, now) << event.julianDay;
                state->second = now;
            } else {
                ++exact;
                EXPECT_NEAR(beyond, 0.0, 1e-5);
                EXPECT_NE(state->second, 0) << event.julianDay;
            }
        }
        EXPECT_GT(exact, 100U);
        EXPECT_GT(events.size(), 2U * exact);
    }
}

TEST_F(TransitList, combustionFollowsTheTest)
{
    const TransitDays days{date(1997, 1, 1), date(2001, 12, 31)};
    int atAries = 0; // changes because the Sun or the planet passes 0 Aries
    for (const int planet : {core::kMercury, core::kVenus, core::kMars}) {
        SCOPED_TRACE(planet);
        TransitOptions options = aspectsOf({planet}, {});
        options.kinds = kNothing;
        options.kinds.combustion = true;
        const auto events = list(options, days);
        for (const TransitEvent& event : events) {
            const double sun = sky.longitude(core::kSun, event.julianDay);
            atAries +=
                std::fmin(std::fabs(apart(sun, 0.0)), std::fabs(apart(event.longitude, 0.0))) < 1e-4
                    ? 1
                    : 0;
        }
        core::Chart chart;
        std::size_t next = 0;
        int before = -1;
        const double step = 0.02;
        const double begin = days.first - kIndia / 24.0;
        for (double day = begin; day < begin + 1826.0; day += step) {
            const SkyPosition position = sky.position(planet, day);
            analysis::storePoint(chart, planet, position.longitude);
            analysis::storePoint(chart, core::kSun, sky.longitude(core::kSun, day));
            core::at(chart.retrograde, planet) = position.speed < 0.0;
            const int now = analysis::isCombust(chart, chart, planet, settings) ? 1 : 0;
            if (before >= 0 && now != before) {
                ASSERT_LT(next, events.size());
                EXPECT_NEAR(events[next].julianDay, day - step / 2.0, 0.51 * step);
                EXPECT_EQ(events[next].kind == TransitKind::CombustEnter, now == 1);
                ++next;
            }
            before = now;
        }
        EXPECT_EQ(next, events.size());
    }
    EXPECT_GT(atAries, 1);
}

TEST_F(TransitList, publishedMomentsAndTheirLines)
{
    const auto lineOf = [&](const TransitOptions& options, double moment, double minutes) {
        const double day = civilDayOf(moment, kIndia);
        for (const TransitEvent& event : list(options, {day - 1.0, day + 1.0})) {
            if (std::fabs(event.julianDay - moment) < minutes / 1440.0) {
                return transitLine(event, {options.mode, options.orbDegrees, false});
            }
        }
        return std::wstring();
    };
    TransitOptions motions =
        aspectsOf({core::kMoon, core::kMars, core::kVenus, core::kMercury}, {});
    motions.kinds = kNothing;
    motions.kinds.signs = motions.kinds.stations = true;
    EXPECT_EQ(lineOf(motions, indianTime(1996, 12, 9, clock(3, 46, 39)), 1.0),
              L"Tr. Moon    enters Scorpio at 3:47");
    EXPECT_EQ(lineOf(motions, indianTime(1996, 12, 24, clock(1, 8)), 15.0).substr(0, 31),
              L"Tr. Mercury turns retrograde at");
    EXPECT_EQ(lineOf(motions, indianTime(1997, 2, 6, clock(5, 57)), 15.0).substr(0, 31),
              L"Tr. Mars    turns retrograde at");
    // The mean node goes backward into Leo.
    motions.bodies = {core::kRahu};
    EXPECT_EQ(lineOf(motions, indianTime(1997, 6, 24, 12.0), 720.0).substr(0, 31),
              L"Tr. Rahu    re-enters (R) Leo a");

    TransitOptions meeting =
        aspectsOf({core::kJupiter, core::kSaturn}, {core::kJupiter, core::kSaturn}, kGrahaAspects);
    meeting.mode = TransitMode::TransitToTransit;
    EXPECT_EQ(lineOf(meeting, indianTime(2000, 5, 28, clock(21, 25)), 15.0).substr(0, 35),
              L"Tr. Jupiter conjunct Tr. Saturn at ");
    // Once, under the faster of the two.
    const TransitDays year{date(2000, 1, 1), date(2000, 12, 31)};
    const auto both = list(meeting, year);
    EXPECT_EQ(std::count_if(both.begin(), both.end(),
                            [](const TransitEvent& event) { return event.houseDistance == 1; }),
              1);
}

TEST_F(TransitList, linesOfAspectsAndOrbs)
{
    TransitEvent event;
    event.hour = 14.385;
    event.kind = TransitKind::Aspect;
    event.body = core::kSaturn;
    event.target = core::kSun;
    event.houseDistance = 10;
    const TransitLineStyle style{TransitMode::Native, 3, false};
    EXPECT_EQ(transitLine(event, style), L"Tr. Saturn  to Nat. Sun 10 (270\u00B0) aspect at 14:23");
    EXPECT_EQ(transitLine(event, {TransitMode::TransitToTransit, 3, true}),
              L"Tr. Saturn  to Tr. Sun 10 (270\u00B0) aspect at 2:23pm");
    EXPECT_EQ(shortTransitText(event, false), L"10 (270\u00B0) aspect at 14:23 ");
    event.kind = TransitKind::OrbEnter;
    EXPECT_EQ(transitLine(event, style),
              L"Tr. Saturn  enters 3\u00B0 orb of Nat. Sun 10 (270\u00B0) aspect at 14:23");
    event.houseDistance = 1;
    event.kind = TransitKind::OrbLeave;
    EXPECT_EQ(transitLine(event, style),
              L"Tr. Saturn  leaves 3\u00B0 orb of Nat. Sun conjunction at 14:23");
    event.kind = TransitKind::Conjunction;
    EXPECT_EQ(transitLine(event, style), L"Tr. Saturn  conjunct Nat. Sun at 14:23");
    event.kind = TransitKind::Ingress;
    event.division = TransitDivision::Pada;
    event.part = 6;
    event.backward = true;
    EXPECT_EQ(transitLine(event, style), L"Tr. Saturn  re-enters (R) pada 3 of Bharani at 14:23");
}

TEST_F(TransitList, kakshyasOfTheTransitingPlanets)
{
    const Span span{indianTime(2010, 1, 1, 0.0), indianTime(2011, 1, 1, 0.0)};
    const auto stays = transitKakshyas(
        sky, chartE(), {core::kMoon, core::kMars, core::kSaturn, core::kRahu}, span);
    std::map<int, std::vector<KakshyaStay>> byPlanet;
    for (const KakshyaStay& stay : stays) {
        byPlanet[stay.planet].push_back(stay);
    }
    EXPECT_EQ(byPlanet.size(), 3U); // nodes have no bindus
    for (const auto& [planet, list] : byPlanet) {
        EXPECT_LE(list.front().stay.begin, span.from);
        EXPECT_GE(list.back().stay.end, span.to);
        for (std::size_t i = 0; i < list.size(); ++i) {
            const KakshyaStay& entry = list[i];
            if (i > 0) {
                EXPECT_EQ(entry.stay.begin, list[i - 1].stay.end);
            }
            const double middle = sky.longitude(planet, (entry.stay.begin + entry.stay.end) / 2.0);
            EXPECT_EQ(entry.sign, int(middle / 30.0) + 1);
            EXPECT_EQ(entry.kakshya.part, int(std::fmod(middle, 30.0) / 3.75));
            EXPECT_EQ(entry.bindu, analysis::kakshyaBindu(chartE(), planet, middle));
        }
    }
    // The bindus of the eight kakshyas of a sign are those of the planet's ashtakavarga there.
    std::map<int, int> counted;
    std::map<int, int> told;
    for (const KakshyaStay& entry : byPlanet[core::kMoon]) {
        if (entry.stay.begin < span.from + 28.0 && entry.stay.begin > span.from &&
            told.count(entry.sign * 8 + entry.kakshya.part) == 0) {
            told[entry.sign * 8 + entry.kakshya.part] = entry.bindusOfSign;
            counted[entry.sign] += entry.bindu ? 1 : 0;
        }
    }
    ASSERT_EQ(told.size(), 96U);
    for (const auto& [key, bindus] : told) {
        EXPECT_EQ(counted[(key - key % 8) / 8], bindus) << key;
    }
}

} // namespace
} // namespace kestrav::timing
