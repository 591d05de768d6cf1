// Strips and the ephemeris graph against what they draw.
#include "app/present/EphemerisStrip.h"
#include "app/present/LifeBar.h"
#include "app/present/PanchangaStrips.h"
#include "core/Angles.h"
#include "tests/present/WorkingCharts.h"
#include "timing/DashaQuery.h"
#include "timing/Panchanga.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr astro::Observer kDelhi{77.2, 28.6, 5.5};
constexpr astro::Observer kTromso{18.95, 69.65, 1.0};

timing::PanchangaDay dayOf(int year, int month, int day, const astro::Observer& observer)
{
    core::DateTimeRecord date;
    date.year = year;
    date.month = month;
    date.day = day;
    timing::Panchanga maker(tests::seriesForTests(), {});
    return maker.day(date, observer);
}

StripOptions sized(double width, double height)
{
    StripOptions options;
    options.width = width;
    options.height = height;
    return options;
}

Box boundsOf(const std::vector<Spot>& polygon)
{
    Box box{polygon[0].x, polygon[0].y, polygon[0].x, polygon[0].y};
    for (const Spot& spot : polygon) {
        box = {std::min(box.left, spot.x), std::min(box.top, spot.y), std::max(box.right, spot.x),
               std::max(box.bottom, spot.y)};
    }
    return box;
}

std::size_t laneOf(const StripModel& model, const std::string& id)
{
    return std::size_t(std::find_if(model.lanes.begin(), model.lanes.end(),
                                    [&](const Lane& lane) { return lane.id == id; }) -
                       model.lanes.begin());
}

// The bar of a lane that is drawn at a moment, or null.
const TimeSpan* barAt(const StripModel& model, const Strip& strip, std::size_t lane, double moment)
{
    for (const Region& region : strip.list.regions) {
        const StripSpan& from = strip.spans[std::size_t(region.index)];
        const Box box = boundsOf(region.polygon);
        const double x = strip.axis.xOf(moment);
        if (from.lane == lane && x >= box.left && x < box.right) {
            return &model.lanes[lane].spans[from.span];
        }
    }
    return nullptr;
}

void expectInside(const Strip& strip)
{
    const DisplayList& list = strip.list;
    constexpr double kRounding = 1e-6;
    for (const Region& region : list.regions) {
        const Box box = boundsOf(region.polygon);
        EXPECT_EQ(region.kind, RegionKind::Span);
        EXPECT_GE(box.top, 0.0);
        EXPECT_LE(box.bottom, list.height);
        EXPECT_FALSE(region.tip.empty());
    }
    for (const Text& text : list.texts) {
        Box room{0.0, 0.0, list.width, list.height};
        if (text.region >= 0) {
            room = boundsOf(list.regions[std::size_t(text.region)].polygon);
        }
        EXPECT_GE(text.box.left, room.left - kRounding);
        EXPECT_LE(text.box.right, room.right + kRounding);
        EXPECT_GE(text.box.top, room.top - kRounding);
        EXPECT_LE(text.box.bottom, room.bottom + kRounding);
    }
}

} // namespace

TEST(Strips, BarsStandOverTheMomentsOfTheirElements)
{
    struct Case
    {
        timing::PanchangaDay day;
        astro::Observer place;
    };
    for (const Case& one :
         {Case{dayOf(1990, 6, 15, kDelhi), kDelhi}, Case{dayOf(2001, 12, 20, kTromso), kTromso}}) {
        const StripModel model = panchangaStrips(one.day, false);
        const Strip strip = layoutStrip(model, sized(900.0, 360.0));
        timing::SiderealSky sky(tests::seriesForTests(), {}, one.place.clockOffset);
        for (int i = 1; i < 100; ++i) {
            const double moment = model.from + (model.to - model.from) * i / 100.0;
            const timing::ElementNumbers elements = timing::elementsAt(sky, moment);
            EXPECT_EQ(barAt(model, strip, laneOf(model, "tithi"), moment)->number, elements.tithi);
            EXPECT_EQ(barAt(model, strip, laneOf(model, "nakshatra"), moment)->number,
                      elements.nakshatra);
            EXPECT_EQ(barAt(model, strip, laneOf(model, "yoga"), moment)->number, elements.yoga);
            EXPECT_EQ(barAt(model, strip, laneOf(model, "karana"), moment)->number,
                      elements.karana);
            EXPECT_NE(barAt(model, strip, laneOf(model, "sun"), moment), nullptr);
        }
        EXPECT_EQ(model.lanes[laneOf(model, "hora")].spans.size(), one.day.sunrise ? 24U : 0U);
    }
}

TEST(Strips, TipsHaveTheWholeTimesWithTheirMarks)
{
    const StripModel model = panchangaStrips(dayOf(1990, 6, 15, kDelhi), false);
    const std::vector<TimeSpan>& tithis = model.lanes[laneOf(model, "tithi")].spans;
    ASSERT_EQ(tithis.size(), 2U);
    // The first began the day before, the second ends the day after.
    EXPECT_EQ(tithis[0].text, L"Saptami");
    EXPECT_NE(tithis[0].tip.find(L"- to "), std::wstring::npos) << core::toUtf8(tithis[0].tip);
    EXPECT_NE(tithis[1].tip.find(L"+\n"), std::wstring::npos) << core::toUtf8(tithis[1].tip);
    const std::vector<TimeSpan>& karanas = model.lanes[laneOf(model, "karana")].spans;
    EXPECT_EQ(karanas[0].text, L"Vishti-");
    EXPECT_EQ(karanas[0].area, ColourRole::Unfavourable);
    EXPECT_EQ(model.lanes[laneOf(model, "nakshatra")].spans[0].about,
              (Link{Subject::Nakshatra, 23}));
    const StripModel polar = panchangaStrips(dayOf(2001, 12, 20, kTromso), false);
    EXPECT_EQ(polar.lanes[0].spans[0].text, L"The Sun does not rise");
    EXPECT_EQ(polar.lanes[0].spans[0].area, ColourRole::Night);
}

TEST(Strips, StayInsideTheirRoomAtEverySize)
{
    const StripModel model = panchangaStrips(dayOf(1990, 6, 15, kDelhi), true);
    for (const double width : {40.0, 200.0, 600.0, 2500.0}) {
        for (const double height : {20.0, 100.0, 400.0, 1000.0}) {
            expectInside(layoutStrip(model, sized(width, height)));
        }
    }
    for (const StripOptions& none : {sized(0.0, 100.0), sized(100.0, 0.0)}) {
        EXPECT_TRUE(layoutStrip(model, none).list.regions.empty());
    }
    // A wide strip names all 24 horas, a narrow one does not.
    const auto texts = [&](double width) {
        return layoutStrip(model, sized(width, 400.0)).list.texts.size();
    };
    EXPECT_GT(texts(2500.0), texts(300.0) + 24);
}

TEST(Strips, BarsThatOverlapAreStacked)
{
    StripModel model;
    model.lanes = {{"a", L"A", {}}};
    for (const auto& [from, to] : {std::pair{0.0, 0.5}, {0.2, 0.3}, {0.25, 0.6}, {0.5, 1.0}}) {
        model.lanes[0].spans.push_back({from, to, L"", L"", L"tip\n", ColourRole::Panel, 0, {}});
    }
    const Strip strip = layoutStrip(model, sized(500.0, 100.0));
    ASSERT_EQ(strip.list.regions.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            EXPECT_FALSE(boundsOf(strip.list.regions[i].polygon)
                             .overlaps(boundsOf(strip.list.regions[j].polygon)))
                << i << j;
        }
    }
    EXPECT_DOUBLE_EQ(strip.axis.momentAt(strip.axis.xOf(0.3)), 0.3);
    EXPECT_EQ(strip.axis.momentAt(-10.0), 0.0);
    EXPECT_EQ(strip.axis.momentAt(9999.0), 1.0);
}

TEST(Strips, TheCursorIsDrawnWhereTheAxisHoldsIt)
{
    const timing::PanchangaDay day = dayOf(1990, 6, 15, kDelhi);
    for (const bool inside : {true, false}) {
        const double moment = day.julianDay0h + (inside ? 0.3 : 9.0);
        const Strip strip = layoutStrip(panchangaStrips(day, false, moment), sized(900.0, 360.0));
        const auto& lines = strip.list.lines;
        const auto line = std::find_if(lines.begin(), lines.end(), [](const Line& each) {
            return each.role == ColourRole::Cursor;
        });
        ASSERT_EQ(line != lines.end(), inside);
        if (inside) {
            EXPECT_DOUBLE_EQ(line->from.x, strip.axis.xOf(moment));
        }
    }
}

TEST(LifeBar, ShowsThePeriodsThatRunAndTheEvents)
{
    const ComputedChart computed = delhiChart();
    const auto dasha =
        timing::dashaOf(computed.chart, computed.settings, timing::dashaOptions(computed.settings),
                        tests::seriesForTests());
    ASSERT_TRUE(dasha);
    const StripModel model = lifeBar(computed, dasha.value(), 2457350.0).value();
    const Strip strip = layoutStrip(model, sized(4000.0, 150.0));
    for (double age = 0.5; age < 100.0; age += 3.1) {
        const double moment = dasha.value().calendar.julianDayOf(age);
        for (const int level : {1, 2}) {
            EXPECT_EQ(barAt(model, strip, std::size_t(level - 1), moment)->number,
                      timing::periodAtAge(dasha.value(), age, level)->lord())
                << age;
        }
    }
    ASSERT_EQ(model.lanes.size(), 3U);
    const std::vector<TimeSpan>& events = model.lanes[2].spans;
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[1].number, 6);
    // 18:30 in India is 13:00 in Greenwich.
    EXPECT_NEAR(events[1].from, 2457349.5 + 13.0 / 24.0, 1e-8);
    EXPECT_NE(events[1].tip.find(L"Wedding\n2015-11-23\nage 25.4"), std::wstring::npos)
        << core::toUtf8(events[1].tip);
    expectInside(strip);

    ComputedChart bare = computed;
    bare.chart.hasMoment = false;
    EXPECT_FALSE(lifeBar(bare, dasha.value()));
    core::LifeEvent event = {L"No such day", {2015, 2, 30}, 1.0};
    EXPECT_FALSE(momentOfEvent(computed.chart, event));
    event.date.day = 28;
    EXPECT_TRUE(momentOfEvent(computed.chart, event));
}

TEST(EphemerisStrips, LinesFollowTheSkyAndBreakAtAries)
{
    timing::SiderealSky sky(tests::seriesForTests(), {}, 5.5);
    const ComputedChart computed = delhiChart();
    EphemerisStripSubject subject{2457023.5, 2457389.5, 5.5, {}, nullptr, {}};
    for (const int body : core::kBodies) {
        subject.bodies = {body};
        const EphemerisStrip graph = ephemerisStrip(sky, subject, sized(900.0, 500.0));
        int lines = 0;
        for (const Line& line : graph.list.lines) {
            if (line.width == 0.5 || line.from.x == line.to.x || line.from.y == graph.bottom) {
                continue; // signs and axis
            }
            ++lines;
            EXPECT_LT(std::fabs(line.from.y - line.to.y), 0.25 * graph.bottom);
            const double moment = graph.axis.momentAt(line.from.x);
            const double away =
                core::Wrap180(graph.longitudeAt(line.from.y) - sky.longitude(body, moment));
            EXPECT_NEAR(away, 0.0, 0.02) << body; // the Moon's line is straight for a day
            const double speed =
                sky.position(body, 0.5 * (moment + graph.axis.momentAt(line.to.x))).speed;
            if (std::fabs(speed) > 0.02) {
                EXPECT_EQ(line.width > 2.0, speed < 0.0) << body << " " << moment;
            }
        }
        EXPECT_GT(lines, 300) << body;
    }
}

TEST(EphemerisStrips, NatalPlacesAreDashedAndFastBodiesLeftOut)
{
    timing::SiderealSky sky(tests::seriesForTests(), {}, 5.5);
    const ComputedChart computed = delhiChart();
    const EphemerisStripSubject subject{
        2440000.5,       2460000.5, 5.5, {core::kMoon, core::kJupiter, core::kSaturn},
        &computed.chart, 2450000.5};
    const EphemerisStrip graph = ephemerisStrip(sky, subject, sized(500.0, 400.0));
    std::vector<double> dashed;
    for (const Line& line : graph.list.lines) {
        if (line.dashed) {
            EXPECT_EQ(line.from.y, line.to.y);
            dashed.push_back(graph.longitudeAt(line.from.y));
        }
    }
    ASSERT_EQ(dashed.size(), 3U);
    EXPECT_NEAR(dashed[1], core::at(computed.chart.longitude, core::kJupiter), 1e-9);
    EXPECT_NE(graph.list.description.find(L"Too fast for this span: Moon"), std::wstring::npos);
    int moving = 0;
    for (const Region& region : graph.list.regions) {
        EXPECT_EQ(region.kind, RegionKind::Point);
        moving += region.layer == 0 ? 1 : 0;
    }
    EXPECT_EQ(moving, 2);
    EXPECT_EQ(graph.list.regions.size(), 5U);
    // Fifty years have ticks of years.
    EXPECT_TRUE(std::any_of(graph.list.texts.begin(), graph.list.texts.end(),
                            [](const Text& text) { return text.text == L"1970"; }));
}

} // namespace kestrav::present
