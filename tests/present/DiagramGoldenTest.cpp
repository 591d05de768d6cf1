// A dozen diagrams compared with the lists that were looked at and kept.
#include "core/FileText.h"
#include "tests/present/DiagramCharts.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace kestrav::present
{

namespace
{

// A number rounded to 1e-6, without zeros at its end.
std::string rounded(double value)
{
    std::array<char, 64> buffer{};
    const double shown = std::round(value * 1e6) / 1e6 + 0.0;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), shown).ptr;
    return {buffer.data(), end};
}

std::string spots(const std::vector<Spot>& polygon)
{
    std::string text;
    for (const Spot spot : polygon) {
        text += " " + rounded(spot.x) + "," + rounded(spot.y);
    }
    return text;
}

std::string role(const std::optional<ColourRole>& given)
{
    return given ? std::string(colourRoleName(*given)) : "-";
}

std::string words(const std::wstring& text)
{
    std::string bytes = core::toUtf8(text);
    for (char& byte : bytes) {
        byte = byte == '\n' ? '|' : byte;
    }
    return bytes;
}

// One line for each part. Circles have many corners, of which the first and the count tell enough.
std::string listed(const DisplayList& list)
{
    std::string text = words(list.title) + "\n" + words(list.description) + "\n";
    for (const Shape& shape : list.shapes) {
        std::vector<Spot> points = shape.points;
        const std::size_t count = points.size();
        points.resize(std::min<std::size_t>(count, 6));
        text += "shape " + role(shape.fill) + " " + role(shape.stroke) + " " +
                rounded(shape.width) + " " + std::to_string(count) + spots(points) + "\n";
    }
    for (const Line& line : list.lines) {
        text += "line " + role(line.role) + " " + rounded(line.width) +
                (line.dashed ? " dashed" : "") + (line.arrow ? " arrow" : "") +
                spots({line.from, line.to}) + "\n";
    }
    for (const Text& item : list.texts) {
        text += "text " + role(item.role) + " " + std::to_string(item.region) + " " +
                rounded(item.size) + spots({{item.box.left, item.box.top}}) + " " +
                words(item.text) + "\n";
    }
    for (const Region& region : list.regions) {
        text += std::string(regionKindName(region.kind)) + " " + std::to_string(region.index) +
                " " + std::to_string(region.house) + " " + std::to_string(region.layer);
        // The corners of the others are those of shapes and texts.
        if (region.kind == RegionKind::House) {
            text += spots({region.polygon.front(), region.polygon.back()});
        }
        text += " " + words(region.tip) + " / " + words(region.spoken) + "\n";
    }
    return text;
}

struct Golden
{
    std::string name;
    DisplayList list;
};

std::vector<Golden> goldenDiagrams()
{
    const core::Settings settings;
    const core::Chart named = namedChart(settings);
    const core::Chart crowded = crowdedChart(settings);
    const core::Chart placeless =
        analysedChart({-1.0, 10.0, 130.0, 250.0, 15.0, 95.0, 340.0, 222.0, 61.0, 241.0}, settings);
    const core::Chart transits =
        analysedChart({10.0, 322.0, 45.0, 12.0, 333.0, 99.0, 300.0, 297.0, 200.0, 20.0}, settings);

    DiagramOptions usual;
    usual.centre = centreLines({named, settings}, true);
    DiagramOptions full = usual;
    full.degrees = DegreeForm::Minutes;
    full.arudhas = true;
    full.scheme = ColourScheme::Dark;
    DiagramOptions glyphs = usual;
    glyphs.glyphs = true;
    glyphs.english = false;
    glyphs.degrees = DegreeForm::None;
    DiagramOptions aspects = usual;
    aspects.aspectsOf.set(core::kMars).set(core::kJupiter).set(core::kSaturn);
    aspects.labels = CellLabel::Houses;
    DiagramOptions bindus;
    bindus.points.reset();
    bindus.bindus = BinduChoice{core::kMoon};
    DiagramOptions ring = usual;
    ring.navamshaRing = true;
    ring.bindus = BinduChoice{};
    ring.bounds = CircleBounds::Equal;
    DiagramOptions turned = usual;
    turned.firstSign = 5;
    turned.nameStyle = 3;

    using Style = DiagramStyle;
    return {
        {"north-usual", layoutDiagram({named, settings}, Style::North, usual, 400.0)},
        {"north-crowded", layoutDiagram({crowded, settings}, Style::North, full, 120.0)},
        {"north-placeless", layoutDiagram({placeless, settings}, Style::North, usual, 300.0)},
        {"north-turned", layoutDiagram({named, settings}, Style::North, turned, 300.0)},
        {"south-glyphs", layoutDiagram({named, settings, 5}, Style::South, glyphs, 300.0)},
        {"south-aspects", layoutDiagram({named, settings}, Style::South, aspects, 400.0)},
        {"south-two", layoutDiagram({named, settings, 0, &transits}, Style::South, usual, 500.0)},
        {"east-full", layoutDiagram({named, settings}, Style::East, full, 400.0)},
        {"east-bindus", layoutDiagram({named, settings}, Style::East, bindus, 300.0)},
        {"circle-usual", layoutDiagram({named, settings}, Style::Circle, usual, 400.0)},
        {"circle-ring", layoutDiagram({named, settings}, Style::Circle, ring, 600.0)},
        {"circle-two",
         layoutDiagram({crowded, settings, 9, &transits}, Style::Circle, aspects, 500.0)},
    };
}

} // namespace

// With KESTRAV_KEEP_DIAGRAMS set the kept lists are written anew, to be looked at before they are
// committed.
TEST(DiagramGolden, ListsAreTheKeptOnes)
{
    const std::string folder = KESTRAV_TEST_DATA "/diagrams/";
    const std::vector<Golden> diagrams = goldenDiagrams();
    ASSERT_EQ(diagrams.size(), 12U);
    for (const Golden& golden : diagrams) {
        const std::string path = folder + golden.name + ".txt";
        if (std::getenv("KESTRAV_KEEP_DIAGRAMS") != nullptr) {
            std::ofstream(path, std::ios::binary) << listed(golden.list);
        }
        std::ifstream file(path, std::ios::binary);
        const std::string kept{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(listed(golden.list), kept) << golden.name;
    }
}

} // namespace kestrav::present
