// Walking through diagrams, what their areas lead to, and the options of the settings.
#include "app/present/DiagramRegions.h"

#include "app/present/Diagram.h"
#include "tests/present/DiagramCharts.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kestrav::present
{
namespace
{

constexpr DiagramStyle kStyles[] = {DiagramStyle::North, DiagramStyle::South, DiagramStyle::East,
                                    DiagramStyle::Circle};

class DiagramRegions : public testing::Test
{
protected:
    [[nodiscard]] DisplayList lay(DiagramStyle style, const DiagramOptions& options = {}) const
    {
        return layoutDiagram({chart_, settings_}, style, options, 400.0);
    }

    core::Settings settings_;
    core::Chart chart_ = namedChart(settings_);
};

TEST_F(DiagramRegions, EveryStyleIsWalkedThroughTheHousesAndThenTheirPoints)
{
    for (const DiagramStyle style : kStyles) {
        const DisplayList list = lay(style);
        const std::vector<int> cells = cellsInOrder(list);
        ASSERT_EQ(cells.size(), 12U);
        for (int i = 0; i < 12; ++i) {
            const Region& cell = list.regions[std::size_t(cells[std::size_t(i)])];
            EXPECT_EQ(cell.house, i + 1);
            // The ascendant of this chart is in Capricorn.
            EXPECT_EQ(cell.sign, (9 + i) % 12 + 1);
        }
        std::set<int> seen;
        int house = 1;
        for (const int region : pointsInOrder(list)) {
            const Region& point = list.regions[std::size_t(region)];
            ASSERT_EQ(point.kind, RegionKind::Point);
            seen.insert(point.index);
            const Region& cell = list.regions[std::size_t(cellOf(list, region))];
            EXPECT_GE(cell.house, house);
            house = cell.house;
            EXPECT_EQ(regionOfPoint(list, point.index), region);
            EXPECT_EQ(point.sign, core::at(chart_.rashi, point.index));
        }
        EXPECT_EQ(seen.size(), 10U);
    }
}

TEST_F(DiagramRegions, AnAreaLeadsToItsHouseOnlyWhileHousesCountFromTheAscendant)
{
    const int capricorn = 10;
    const DisplayList list = lay(DiagramStyle::North);
    const Region& fourth = list.regions[std::size_t(cellsInOrder(list)[3])];
    const Link house{Subject::House, 4, 0};
    EXPECT_EQ(linkOf(fourth, 0, capricorn), house);
    const std::vector<int> back = regionsOf(list, house, 0, capricorn);
    ASSERT_EQ(back.size(), 1U);
    EXPECT_EQ(list.regions[std::size_t(back[0])].house, 4);
    EXPECT_TRUE(regionsOf(list, house, 8, capricorn).empty()) << "a house of another varga";

    DiagramOptions fromLeo;
    fromLeo.firstSign = 5;
    const DisplayList turned = lay(DiagramStyle::North, fromLeo);
    const Link sign = linkOf(turned.regions[std::size_t(cellsInOrder(turned)[3])], 0, capricorn);
    EXPECT_EQ(sign, (Link{Subject::Sign, 8, 0}));

    const int mars = regionOfPoint(list, core::kMars);
    EXPECT_EQ(linkOf(list.regions[std::size_t(mars)], 8, capricorn),
              (Link{Subject::Point, core::kMars, 8}));
}

TEST_F(DiagramRegions, MarksTellChangedPointsAndThoseNearABoundary)
{
    core::at(core::at(chart_.nearBoundary, core::kRashi), core::kMoon) = true;
    DiagramOptions options;
    options.changed.set(core::kMars);
    options.boundaries = true;
    options.outerPoints = PointSet().set(core::kVenus);
    const DisplayList list =
        layoutDiagram({chart_, settings_, 0, &chart_}, DiagramStyle::South, options, 600.0);
    std::set<std::wstring> texts;
    for (const Text& text : list.texts) {
        texts.insert(text.text.substr(0, 3));
    }
    EXPECT_TRUE(texts.count(L"Ma*"));
    EXPECT_TRUE(texts.count(L"Mo~"));
    EXPECT_GE(regionOfPoint(list, core::kVenus, 1), 0);
    EXPECT_EQ(regionOfPoint(list, core::kMars, 1), -1) << "only Venus was asked for outside";
    const std::wstring tip = list.regions[std::size_t(regionOfPoint(list, core::kMars))].tip;
    EXPECT_NE(tip.find(L"changed"), std::wstring::npos);
}

TEST(DiagramSettings, EverySettingOfDiagramsTakesPart)
{
    core::Settings settings;
    settings.diagramDegrees = 2;
    settings.diagramLabels = 2;
    settings.diagramNameLetters = 3;
    settings.diagramMarks = false;
    settings.diagramArudhas = true;
    settings.diagramUpagrahas = true;
    settings.diagramLagnas = true;
    settings.diagramOuterPlanets = true;
    settings.circleBounds = 3;
    settings.navamshaRing = true;
    settings.displayFlags = int(core::kGlyphNames);
    const DiagramOptions options = diagramOptionsOf(settings);
    EXPECT_EQ(options.degrees, DegreeForm::Minutes);
    EXPECT_EQ(options.labels, CellLabel::Houses);
    EXPECT_EQ(options.nameStyle, 3);
    EXPECT_FALSE(options.retrograde || options.combust || options.dignity);
    EXPECT_TRUE(options.arudhas && options.navamshaRing && options.glyphs);
    EXPECT_FALSE(options.english);
    EXPECT_EQ(options.bounds, CircleBounds::Cusps);
    for (const int point : {core::kGulika, core::kHoraLagna, core::kPluto, core::kMoon}) {
        EXPECT_TRUE(options.points[std::size_t(point)]) << point;
    }
    EXPECT_EQ(diagramOptionsOf({}).points, mainDiagramPoints());
}

} // namespace
} // namespace kestrav::present
