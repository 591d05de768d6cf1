// What diagrams show, and where.
#include "app/present/Diagram.h"

#include "analysis/Ashtakavarga.h"
#include "app/present/AccessibleText.h"
#include "app/present/DiagramCells.h"
#include "app/present/DiagramLabels.h"
#include "app/present/EastDiagram.h"
#include "app/present/NorthDiagram.h"
#include "app/present/SouthDiagram.h"
#include "core/DisplayFlags.h"
#include "tests/present/DiagramCharts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace kestrav::present
{

namespace
{

constexpr DiagramStyle kCellStyles[] = {DiagramStyle::North, DiagramStyle::South,
                                        DiagramStyle::East};

double areaOfCells(const CellPlan& plan)
{
    double area = 0.0;
    for (const CellShape& cell : plan.cells) {
        area += areaOf({cell.polygon().begin(), cell.polygon().end()});
    }
    return area;
}

std::vector<std::wstring> textsIn(const DisplayList& list, RegionKind kind, int index)
{
    std::vector<std::wstring> found;
    for (const Text& text : list.texts) {
        if (text.region >= 0 && list.regions[std::size_t(text.region)].kind == kind &&
            list.regions[std::size_t(text.region)].index == index) {
            found.push_back(text.text);
        }
    }
    return found;
}

// The region of a point that is shown; a point without one fails the test.
const Region& pointRegion(const DisplayList& list, int point, int layer = 0)
{
    const auto found =
        std::find_if(list.regions.begin(), list.regions.end(), [=](const Region& region) {
            return region.kind == RegionKind::Point && region.index == point &&
                   region.layer == layer;
        });
    return list.regions.at(std::size_t(found - list.regions.begin()));
}

std::wstring textAt(const DisplayList& list, const Region& region)
{
    for (const Text& text : list.texts) {
        if (text.box.left == region.polygon[0].x && text.box.top == region.polygon[0].y) {
            return text.text;
        }
    }
    return {};
}

std::wstring labelOf(const DisplayList& list, int point)
{
    return textAt(list, pointRegion(list, point));
}

// The sign whose cell holds a spot of the unit square, in a chart with Aries rising.
int signAt(DiagramStyle style, Spot spot)
{
    const core::Settings settings;
    const core::Chart chart = analysedChart({5.0}, settings);
    DiagramOptions options;
    options.points.reset();
    const DisplayList list = layoutDiagram({chart, settings}, style, options, 100.0);
    const int region = regionAt(list, {100.0 * spot.x, 100.0 * spot.y});
    return region < 0 ? 0 : list.regions[std::size_t(region)].index;
}

} // namespace

TEST(DiagramPlans, CellsFillTheirShareOfTheSquare)
{
    EXPECT_NEAR(areaOfCells(northPlan()), 1.0, 1e-12);
    EXPECT_NEAR(areaOfCells(southPlan()), 12.0 / 16.0, 1e-12);
    EXPECT_NEAR(areaOfCells(eastPlan()), 8.0 / 9.0, 1e-12);
    for (const CellPlan* const plan : {&northPlan(), &southPlan(), &eastPlan()}) {
        double frame = 0.0;
        for (const FrameShape& shape : plan->frame) {
            frame += areaOf({shape.polygon().begin(), shape.polygon().end()});
        }
        EXPECT_NEAR(frame, 1.0 - std::pow(1.0 - 2.0 * kFrameDepth, 2), 1e-12);
    }
}

TEST(DiagramPlans, SignsRunAsEachRegionHasThem)
{
    // Houses counter-clockwise from the top diamond; with Aries rising they are the signs.
    const std::vector<Spot> north = {{0.5, 0.2},   {0.25, 0.05}, {0.05, 0.25}, {0.2, 0.5},
                                     {0.05, 0.75}, {0.25, 0.95}, {0.5, 0.8},   {0.75, 0.95},
                                     {0.95, 0.75}, {0.8, 0.5},   {0.95, 0.25}, {0.75, 0.05}};
    const std::vector<Spot> south = {{0.3, 0.1}, {0.6, 0.1}, {0.9, 0.1}, {0.9, 0.3},
                                     {0.9, 0.6}, {0.9, 0.9}, {0.6, 0.9}, {0.3, 0.9},
                                     {0.1, 0.9}, {0.1, 0.6}, {0.1, 0.3}, {0.1, 0.1}};
    const std::vector<Spot> east = {{0.5, 0.1}, {0.2, 0.1}, {0.1, 0.2}, {0.1, 0.5},
                                    {0.1, 0.8}, {0.2, 0.9}, {0.5, 0.9}, {0.8, 0.9},
                                    {0.9, 0.8}, {0.9, 0.5}, {0.9, 0.2}, {0.8, 0.1}};
    // A circle has Aries rising at nine o'clock and runs counter-clockwise as seen.
    std::vector<Spot> circle;
    for (int sign = 1; sign <= 12; ++sign) {
        const double angle = (180.0 + (sign - 1) * 30.0 + 15.0 - 5.0) * 3.14159265358979 / 180.0;
        circle.push_back({0.5 + 0.46 * std::cos(angle), 0.5 - 0.46 * std::sin(angle)});
    }
    for (int sign = 1; sign <= 12; ++sign) {
        const auto i = std::size_t(sign - 1);
        EXPECT_EQ(signAt(DiagramStyle::North, north[i]), sign);
        EXPECT_EQ(signAt(DiagramStyle::South, south[i]), sign);
        EXPECT_EQ(signAt(DiagramStyle::East, east[i]), sign);
        EXPECT_EQ(signAt(DiagramStyle::Circle, circle[i]), sign);
    }
}

TEST(Diagram, PointsStandInTheirSignsInTheOrderOfDegrees)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    for (const DiagramStyle style : kCellStyles) {
        for (const int varga : {0, 5, 9, 20}) {
            DiagramOptions options;
            options.labels = CellLabel::None;
            const DisplayList list = layoutDiagram({chart, settings, varga}, style, options, 400.0);
            for (int point = 0; point <= core::kKetu; ++point) {
                const int sign = diagramSign(chart, varga, point);
                const auto texts = textsIn(list, RegionKind::Sign, sign);
                const std::wstring label = labelOf(list, point);
                EXPECT_EQ(std::count(texts.begin(), texts.end(), label), 1);
                EXPECT_EQ(pointRegion(list, point).house,
                          core::norm12(sign - diagramSign(chart, varga, 0) + 1));
            }
        }
    }
    const core::Chart crowded = crowdedChart(settings);
    DiagramOptions options;
    options.labels = CellLabel::None;
    options.combust = options.retrograde = options.dignity = false;
    const DisplayList list =
        layoutDiagram({crowded, settings}, DiagramStyle::South, options, 400.0);
    EXPECT_EQ(textsIn(list, RegionKind::Sign, 4),
              (std::vector<std::wstring>{L"Su 2\u00B0", L"Ma 3\u00B0", L"As 5\u00B0", L"Ra 6\u00B0",
                                         L"Ke 7\u00B0", L"Mo 9\u00B0", L"Me 11\u00B0",
                                         L"Sa 14\u00B0", L"Jp 22\u00B0", L"Ve 28\u00B0"}));
}

TEST(Diagram, LabelsSayWhatTheOptionsAskFor)
{
    const core::Settings settings;
    core::Chart chart = analysedChart(
        {125.1234, 20.0, 40.0, 285.9999, 15.0, 95.5, 352.0, 30.0 * 6 + 21.0}, settings);
    core::at(chart.retrograde, core::kSaturn) = true;
    core::at(chart.combust, core::kVenus) = true;
    DiagramOptions options;
    const auto label = [&](int point) {
        return labelOf(layoutDiagram({chart, settings}, DiagramStyle::North, options, 500.0),
                       point);
    };
    EXPECT_EQ(label(core::kSaturn), L"Sa(R)\u2191 21\u00B0");
    EXPECT_EQ(label(core::kVenus), L"Ve\u2191 22\u00B0 c");
    EXPECT_EQ(label(core::kMars), L"Ma\u2191 15\u00B0");
    options.degrees = DegreeForm::Minutes;
    EXPECT_EQ(label(core::kMars), L"Ma\u2191 15\u00B059'");
    EXPECT_EQ(label(core::kAscendant), L"As 5\u00B007'");
    options.dignity = options.retrograde = options.combust = false;
    options.degrees = DegreeForm::None;
    EXPECT_EQ(label(core::kSaturn), L"Sa");
    options.english = false;
    EXPECT_EQ(label(core::kVenus), L"Sk");
    options.nameStyle = 3;
    EXPECT_EQ(label(core::kVenus), L"Suk");
    options.glyphs = true;
    EXPECT_EQ(label(core::kVenus), std::wstring(1, 0x2640));
    EXPECT_EQ(label(core::kAscendant), L"Lag");
    // The flags of the program are not touched.
    EXPECT_EQ(core::DisplayFlags() & core::kGlyphNames, 0U);
}

TEST(Diagram, ArudhasHaveNoDegreesAndFollowTheVarga)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    DiagramOptions options;
    options.points.reset();
    options.arudhas = true;
    const DisplayList list =
        layoutDiagram({chart, settings, 5}, DiagramStyle::North, options, 500.0);
    EXPECT_EQ(labelOf(list, core::kUpapada), L"UL");
    const int sign = core::at(core::at(chart.vargas, 5), core::kUpapada).sign;
    const auto texts = textsIn(list, RegionKind::Sign, sign);
    EXPECT_NE(std::find(texts.begin(), texts.end(), L"UL"), texts.end());
}

TEST(Diagram, AnotherSignCanBeTheFirstHouse)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    DiagramOptions options;
    options.firstSign = 8;
    const DisplayList list = layoutDiagram({chart, settings}, DiagramStyle::North, options, 400.0);
    const Region& top = list.regions[std::size_t(regionAt(list, {200.0, 20.0}))];
    EXPECT_EQ(top.index, 8);
    EXPECT_EQ(top.house, 1);
    EXPECT_EQ(pointRegion(list, core::kMars).house, 1);
    EXPECT_EQ(pointRegion(list, core::kAscendant).house, 3);
}

TEST(Diagram, WithoutAnAscendantNoHouseIsNamed)
{
    const core::Settings settings;
    const core::Chart chart = analysedChart({-1.0, 10.0, 130.0}, settings);
    for (const DiagramStyle style :
         {DiagramStyle::North, DiagramStyle::South, DiagramStyle::East, DiagramStyle::Circle}) {
        DiagramOptions options;
        const DisplayList list = layoutDiagram({chart, settings}, style, options, 300.0);
        EXPECT_TRUE(std::all_of(list.regions.begin(), list.regions.end(),
                                [](const Region& region) { return region.house == 0; }));
        EXPECT_NE(list.description.find(L"Ascendant, Mars, Mercury"), std::wstring::npos);
        EXPECT_NE(accessibleText(list).find(L"Aries: Sun 10 degrees 0 minutes exalted\n"),
                  std::wstring::npos);
    }
}

TEST(Diagram, BindusAddUpToTheTotalsOfTheReceivers)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    for (const DiagramStyle style :
         {DiagramStyle::North, DiagramStyle::South, DiagramStyle::East, DiagramStyle::Circle}) {
        for (int receiver = BinduChoice::kSarva; receiver <= core::kSaturn; ++receiver) {
            DiagramOptions options;
            options.points.reset();
            options.labels = CellLabel::None;
            options.bindus = BinduChoice{receiver};
            const DisplayList list = layoutDiagram({chart, settings}, style, options, 300.0);
            int total = 0;
            for (int sign = 1; sign <= 12; ++sign) {
                const auto texts = textsIn(list, RegionKind::Sign, sign);
                ASSERT_EQ(texts.size(), 1U);
                total += std::stoi(texts.front());
            }
            EXPECT_EQ(total, receiver < 0 ? 337 : analysis::binduTotal(receiver));
        }
    }
}

TEST(Diagram, TheSecondChartStandsOutside)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    const core::Chart other = crowdedChart(settings);
    for (const DiagramStyle style :
         {DiagramStyle::North, DiagramStyle::South, DiagramStyle::East, DiagramStyle::Circle}) {
        const DisplayList list =
            layoutDiagram({chart, settings, 0, &other}, style, DiagramOptions(), 700.0);
        // Rings around the middle are round in a circle and square in the other styles.
        const auto fromMiddle = [style](const Region& region) {
            const double x = (region.polygon[0].x + region.polygon[2].x) / 2.0 - 350.0;
            const double y = (region.polygon[0].y + region.polygon[2].y) / 2.0 - 350.0;
            return style == DiagramStyle::Circle ? std::hypot(x, y)
                                                 : std::max(std::fabs(x), std::fabs(y));
        };
        double farthest = 0.0;
        double nearest = 1e9;
        for (int point = 0; point <= core::kKetu; ++point) {
            farthest = std::max(farthest, fromMiddle(pointRegion(list, point, 0)));
            nearest = std::min(nearest, fromMiddle(pointRegion(list, point, 1)));
        }
        EXPECT_LT(farthest, nearest);
        EXPECT_EQ(pointRegion(list, core::kSun, 1).house, 7);
    }
}

TEST(Diagram, AspectsGoToTheSignsThatAreFullyAspected)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    DiagramOptions options;
    options.aspectsOf.set(core::kSaturn);
    const DisplayList list = layoutDiagram({chart, settings}, DiagramStyle::South, options, 400.0);
    std::multiset<int> signs;
    for (const Line& line : list.lines) {
        if (line.arrow) {
            EXPECT_EQ(line.role, ColourRole::Aspect);
            signs.insert(list.regions[std::size_t(regionAt(list, line.to))].index);
        }
    }
    // Saturn in Leo aspects its 3rd, 7th and 10th.
    EXPECT_EQ(signs, (std::multiset<int>{2, 7, 11}));
}

TEST(Diagram, TheMiddleHoldsEveryWordOrSaysThatSomeAreMissing)
{
    const core::Settings settings;
    core::Chart chart = namedChart(settings);
    chart.name = std::wstring(46, 0x4E2D);
    DiagramOptions options;
    options.centre = centreLines({chart, settings}, true);
    for (const double size : {60.0, 150.0, 500.0}) {
        const DisplayList list =
            layoutDiagram({chart, settings}, DiagramStyle::East, options, size);
        const auto texts = textsIn(list, RegionKind::Centre, 0);
        std::wstring all;
        for (const std::wstring& text : texts) {
            all += text;
        }
        const auto shown = std::count(all.begin(), all.end(), wchar_t{0x4E2D});
        EXPECT_EQ(shown < 46 || all.find(L"11Y") == std::wstring::npos,
                  all.back() == wchar_t{0x2026})
            << size;
        const Region& centre =
            *std::find_if(list.regions.begin(), list.regions.end(),
                          [](const Region& r) { return r.kind == RegionKind::Centre; });
        EXPECT_NE(centre.tip.find(chart.name), std::wstring::npos);
    }
}

TEST(Diagram, SpokenTextNamesHouseSignAndState)
{
    const core::Settings settings;
    core::Chart chart =
        analysedChart({135.12, 10.0, 40.0, 118.0, 15.0, 95.5, 148.0, 201.0}, settings);
    core::at(chart.longitude, core::kVenus) = 357.0;
    DiagramOptions options;
    options.degrees = DegreeForm::None;
    const auto line = [&](DiagramStyle style, int house) {
        const DisplayList list = layoutDiagram({chart, settings}, style, options, 300.0);
        for (const Region& region : list.regions) {
            if (region.house == house && !region.spoken.empty() &&
                region.kind != RegionKind::Point) {
                return region.spoken;
            }
        }
        return std::wstring();
    };
    for (const DiagramStyle style :
         {DiagramStyle::North, DiagramStyle::South, DiagramStyle::East, DiagramStyle::Circle}) {
        EXPECT_EQ(line(style, 1), L"House 1, Leo: Ascendant 15 degrees 7 minutes, Venus");
        EXPECT_EQ(line(style, 3), L"House 3, Libra: Saturn exalted");
        EXPECT_EQ(line(style, 2), L"House 2, Virgo: empty");
    }
    options.english = false;
    options.degrees = DegreeForm::Degrees;
    core::at(chart.retrograde, core::kSaturn) = true;
    EXPECT_EQ(line(DiagramStyle::North, 3),
              L"Bhava 3, Tula: Shani 21 degrees 0 minutes exalted retrograde");
}

TEST(Diagram, TheMeasuringFunctionDecidesTheFit)
{
    const core::Settings settings;
    const core::Chart chart = crowdedChart(settings);
    DiagramOptions options;
    const auto shown = [&] {
        const DisplayList list =
            layoutDiagram({chart, settings}, DiagramStyle::South, options, 300.0);
        return std::count_if(list.regions.begin(), list.regions.end(),
                             [](const Region& r) { return r.kind == RegionKind::Point; });
    };
    EXPECT_EQ(shown(), 10);
    options.measure = [](std::wstring_view text) {
        return 2.0 * textWidth(text);
    };
    EXPECT_LT(shown(), 10);
}

} // namespace kestrav::present
