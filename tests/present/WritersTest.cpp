// SVG and drawings with characters.
#include "app/present/Markup.h"
#include "app/present/SvgWriter.h"
#include "app/present/TerminalDrawing.h"
#include "app/present/TextWidths.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "tests/present/DiagramCharts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

namespace kestrav::present
{

namespace
{

constexpr DiagramStyle kStyles[] = {DiagramStyle::North, DiagramStyle::South, DiagramStyle::East,
                                    DiagramStyle::Circle};

std::vector<std::wstring> linesOf(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    std::wistringstream stream(text);
    for (std::wstring line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace

TEST(Svg, WritesAwkwardTextsSafely)
{
    EXPECT_EQ(xmlText(L"a<b & \"c\" > 'd'"), "a&lt;b &amp; &quot;c&quot; &gt; 'd'");
    EXPECT_EQ(xmlText(std::wstring{L'x', 1, 0x1B, 0xFFFE, L'\t'}),
              "x\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\t");
}

TEST(Svg, NamesWithLineEndsAndTabsBecomeOneLine)
{
    const core::Settings settings;
    core::Chart chart = namedChart(settings);
    chart.name = L"Tab\there\r\nand\x1b there ";
    for (const DiagramStyle style : kStyles) {
        DiagramOptions options;
        options.centre = centreLines({chart, settings}, true);
        const DisplayList list = layoutDiagram({chart, settings}, style, options, 400.0);
        EXPECT_EQ(list.title.substr(0, 20), L"Tab here  and  there");
        for (const Text& text : list.texts) {
            EXPECT_EQ(text.text.find_first_of(L"\t\r\n\x1b"), std::wstring::npos);
        }
        EXPECT_EQ(writeSvg(list).find("\xEF\xBF\xBD"), std::string::npos);
    }
}

TEST(Svg, IsTheSameForTheSameChartWhateverTheFlagsOfTheProgram)
{
    const core::Settings settings;
    const core::Chart chart = namedChart(settings);
    for (const DiagramStyle style : kStyles) {
        const auto written = [&](std::uint32_t flags) {
            const core::DisplayFlagsOverride names(flags);
            return writeSvg(layoutDiagram({chart, settings}, style, DiagramOptions(), 400.0));
        };
        EXPECT_EQ(written(core::kEnglishNames), written(core::kGlyphNames));
        const std::string svg = written(0);
        EXPECT_EQ(svg.find("nan"), std::string::npos);
    }
}

TEST(Terminal, DiagramsFitIntoEightyColumnsAndShowEveryPoint)
{
    const core::Settings settings;
    std::mt19937 random(11);
    for (int i = 0; i < 300; ++i) {
        const core::Chart chart = chartForFitting(random);
        const core::Chart other = chartForFitting(random);
        DiagramOptions options;
        options.degrees = DegreeForm(random() % 3);
        options.labels = CellLabel(random() % 3);
        const bool two = random() % 3 == 0;
        const DiagramSubject subject{chart, settings, 0, two ? &other : nullptr};
        for (const DiagramStyle style : kStyles) {
            DiagramOptions grid = options;
            grid.characterGrid = true;
            const DisplayList list = layoutDiagram(subject, style, grid, kTerminalSize);
            const std::wstring drawing = drawWithCharacters(list);
            std::size_t points = 0;
            for (const std::wstring& line : linesOf(drawing)) {
                ASSERT_LE(columnsOf(line), 80);
                ASSERT_TRUE(line.empty() || line.back() != L' ');
            }
            for (const Text& text : list.texts) {
                // Numbers may be covered; points, and what tells of them, never are.
                if (text.role != ColourRole::Label) {
                    EXPECT_NE(drawing.find(text.text), std::wstring::npos)
                        << core::toUtf8(text.text) << "\n"
                        << core::toUtf8(drawing);
                }
            }
            for (const Region& region : list.regions) {
                points += region.kind == RegionKind::Point  ? 1U
                          : region.kind == RegionKind::More ? std::size_t(region.index)
                                                            : 0U;
            }
            EXPECT_EQ(points, two ? 20U : 10U);
        }
    }
}

TEST(Terminal, TellsBelowWhatHasNoRoom)
{
    const core::Settings settings;
    const core::Chart chart = crowdedChart(settings);
    DiagramOptions options;
    options.degrees = DegreeForm::Minutes;
    options.points.set();
    const std::wstring text = terminalDiagram({chart, settings}, DiagramStyle::South, options);
    EXPECT_NE(text.find(L" in house 1: "), std::wstring::npos) << core::toUtf8(text);
    EXPECT_NE(text.find(L"Without a place here: "), std::wstring::npos);
}

} // namespace kestrav::present
