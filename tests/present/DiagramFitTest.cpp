// Nothing in a diagram crosses a border or another text, and nothing is lost, whatever the chart.
#include "app/present/DiagramGeometry.h"
#include "tests/present/DiagramCharts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

namespace kestrav::present
{

namespace
{

constexpr int kCharts = 10000;
constexpr double kSizes[] = {120.0, 320.0, 900.0};
constexpr double kTolerance = 1e-6;

Box shrunk(const Box& box)
{
    return {box.left + kTolerance, box.top + kTolerance, box.right - kTolerance,
            box.bottom - kTolerance};
}

// Cuts the segment down to what lies between two heights or two abscissas.
bool clip(double from, double step, double low, double high, double& first, double& last)
{
    if (step == 0.0) {
        return from > low && from < high;
    }
    const double a = (low - from) / step;
    const double b = (high - from) / step;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
    return first < last;
}

bool crosses(const Box& box, Spot from, Spot to)
{
    double first = 0.0;
    double last = 1.0;
    return clip(from.x, to.x - from.x, box.left, box.right, first, last) &&
           clip(from.y, to.y - from.y, box.top, box.bottom, first, last);
}

struct Segment
{
    Spot from;
    Spot to;
};

std::vector<Segment> borders(const DisplayList& list)
{
    std::vector<Segment> segments;
    for (const Shape& shape : list.shapes) {
        for (std::size_t i = 0; shape.stroke && i < shape.points.size(); ++i) {
            segments.push_back({shape.points[i], shape.points[(i + 1) % shape.points.size()]});
        }
    }
    for (const Line& line : list.lines) {
        if (line.role == ColourRole::Border || line.role == ColourRole::Division) {
            segments.push_back({line.from, line.to});
        }
    }
    return segments;
}

std::string named(const Text& text)
{
    return std::string(text.text.begin(), text.text.end());
}

// What is wrong with the places of the texts, or nothing.
std::string misplaced(const DisplayList& list)
{
    const std::vector<Segment> segments = borders(list);
    for (std::size_t i = 0; i < list.texts.size(); ++i) {
        const Text& text = list.texts[i];
        const Box box = shrunk(text.box);
        if (text.region >= 0) {
            const Region& region = list.regions[std::size_t(text.region)];
            for (const Spot corner : cornersOf(box)) {
                if (!contains(region.polygon, corner)) {
                    return named(text) + " leaves its region";
                }
            }
        }
        for (const Segment& segment : segments) {
            if (crosses(box, segment.from, segment.to)) {
                return named(text) + " crosses a border";
            }
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (box.overlaps(list.texts[j].box)) {
                return named(text) + " covers " + named(list.texts[j]);
            }
        }
    }
    return {};
}

// The points that are shown or told of as having no room.
std::size_t pointsIn(const DisplayList& list)
{
    std::size_t count = 0;
    for (const Region& region : list.regions) {
        if (region.kind == RegionKind::Point) {
            ++count;
        } else if (region.kind == RegionKind::More) {
            const auto lines = std::count(region.tip.begin(), region.tip.end(), L'\n') + 1;
            EXPECT_EQ(lines, region.index);
            // The bindus of a sign can be told there too, in one line of their own.
            const bool bindus = region.tip.find(L"bindu") != std::wstring::npos;
            count += std::size_t(region.index - (bindus ? 1 : 0));
        }
    }
    return count;
}

DiagramOptions randomOptions(std::mt19937& random)
{
    DiagramOptions options;
    options.degrees = DegreeForm(random() % 3);
    options.labels = CellLabel(random() % 3);
    options.glyphs = random() % 4 == 0;
    options.english = random() % 2 == 0;
    options.nameStyle = random() % 4 == 0 ? 3 : 2;
    if (random() % 4 == 0) {
        options.points.set(core::kUranus).set(core::kNeptune).set(core::kPluto);
    }
    if (random() % 5 == 0) {
        options.bindus = BinduChoice{int(random() % 9) - 1};
    }
    options.navamshaRing = random() % 8 == 0;
    options.bounds = random() % 2 == 0 ? CircleBounds::Automatic : CircleBounds::Equal;
    if (random() % 6 == 0) {
        options.firstSign = int(random() % 12) + 1;
    }
    options.centre = {L"Rashi (D-1)", L"A name of some length", L"1996-12-07 10:34",
                      L"Thiruvananthapuram, India"};
    return options;
}

} // namespace

class DiagramFit : public testing::TestWithParam<DiagramStyle>
{};

TEST_P(DiagramFit, EveryTextStaysInItsPlaceAndNoPointIsLost)
{
    const core::Settings settings;
    std::mt19937 random(20240917);
    for (int i = 0; i < kCharts; ++i) {
        const core::Chart chart = chartForFitting(random);
        const core::Chart other = chartForFitting(random);
        const DiagramOptions options = randomOptions(random);
        const bool two = random() % 5 == 0;
        const DiagramSubject subject{chart, settings, core::kRashi, two ? &other : nullptr};
        for (const double size : kSizes) {
            const DisplayList list = layoutDiagram(subject, GetParam(), options, size);
            ASSERT_EQ(misplaced(list), "") << "chart " << i << ", size " << size;
            ASSERT_EQ(pointsIn(list), options.points.count() * (two ? 2 : 1))
                << "chart " << i << ", size " << size;
        }
    }
}

// Ten bodies in any one sign stay readable: all of them are shown, in letters not below 70%.
TEST_P(DiagramFit, TenBodiesInOneSignAreShown)
{
    const core::Settings settings;
    for (int sign = 0; sign < 12; ++sign) {
        std::vector<double> longitudes;
        longitudes.reserve(10);
        for (int point = 0; point < 10; ++point) {
            longitudes.push_back(sign * 30.0 + 1.5 + 2.8 * point);
        }
        const core::Chart chart = analysedChart(longitudes, settings);
        for (const int first : {1, 2, 3, 4}) {
            DiagramOptions options;
            options.firstSign = first;
            const DisplayList list = layoutDiagram({chart, settings}, GetParam(), options, 400.0);
            EXPECT_EQ(std::count_if(
                          list.regions.begin(), list.regions.end(),
                          [](const Region& region) { return region.kind == RegionKind::Point; }),
                      10)
                << "sign " << sign + 1 << ", first " << first;
            for (const Text& text : list.texts) {
                if (text.role == ColourRole::Text) {
                    EXPECT_GE(text.size, 0.7 * 0.036 * 400.0 - kTolerance);
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Styles, DiagramFit,
                         testing::Values(DiagramStyle::North, DiagramStyle::South,
                                         DiagramStyle::East, DiagramStyle::Circle),
                         [](const auto& style) {
                             return std::string(diagramStyleName(style.param));
                         });

// The packing asks the area; here the area is compared with the polygon itself.
TEST(ConvexArea, HoldsExactlyTheBoxesInsideThePolygon)
{
    std::mt19937 random(7);
    const std::vector<Spot> triangle = {{0.0, 0.0}, {10.0, 10.0}, {20.0, 0.0}};
    const ConvexArea area(triangle, 0.0, 0.0);
    int inside = 0;
    for (int i = 0; i < 20000; ++i) {
        const double left = 22.0 * share(random) - 1.0;
        const double top = 12.0 * share(random) - 1.0;
        const Box box{left, top, left + 4.0 * share(random), top + 2.0 * share(random)};
        bool all = true;
        for (const Spot corner : cornersOf(box)) {
            all = all && contains(triangle, corner);
        }
        EXPECT_EQ(area.holds(box), all);
        inside += all ? 1 : 0;
    }
    EXPECT_GT(inside, 1000);
    const Interval room = ConvexArea(triangle, 1.0, 0.5).across(0.5, 2.5);
    // The slanted sides are moved by (1 + 0.5) / sqrt 2 along their normals, so by 1.5 sideways.
    EXPECT_NEAR(room.low, 2.5 + 1.5, 1e-12);
    EXPECT_NEAR(room.high, 17.5 - 1.5, 1e-12);
}

} // namespace kestrav::present
