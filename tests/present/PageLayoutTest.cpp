// The files of page layouts and reports: those that are delivered, and faulty ones.
#include "app/present/PageLayout.h"
#include "app/present/DefinitionLines.h"
#include "app/present/ReportDefinition.h"
#include "core/Files.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kestrav::present
{

namespace
{

std::vector<std::string> filesOf(const char* folder)
{
    std::vector<std::string> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(KESTRAV_RESOURCES) + "/" + folder)) {
        const auto bytes = core::readFile(entry.path(), kLongestDefinition);
        EXPECT_TRUE(bytes) << entry.path();
        files.emplace_back(bytes.value().begin(), bytes.value().end());
    }
    return files;
}

struct Fault
{
    const char* lines; ///< after the head
    const char* message;
    long line; ///< 0 where the file as a whole is wrong
};

PageLayout smallLayout()
{
    PageLayout layout;
    layout.name = "Small";
    layout.rowWeights = {1, 2};
    layout.columnWeights = {1};
    layout.panels = {{PanelKind::Diagram, "", 5, DiagramStyle::East, 0, 0, 1, 1},
                     {PanelKind::Table, "positions", 0, std::nullopt, 1, 0, 1, 1}};
    return layout;
}

// What the checker says after a change of the layout.
template <typename Change>
std::string faultOf(const Change& change)
{
    PageLayout layout = smallLayout();
    change(layout);
    const core::Result<void> checked = checkPageLayout(layout);
    return checked ? std::string() : checked.error().text();
}

} // namespace

TEST(PageLayouts, TheDeliveredOnesAreReadAndWrittenBack)
{
    const std::vector<std::string> files = filesOf("pages");
    EXPECT_GE(files.size(), 12U);
    bool paper = false;
    for (const std::string& file : files) {
        const core::Result<PageLayout> layout = readPageLayout(file);
        ASSERT_TRUE(layout) << layout.error().text() << "\n" << file;
        paper = paper || layout.value().medium != PageMedium::Screen;
        const core::Result<PageLayout> again = readPageLayout(writePageLayout(layout.value()));
        ASSERT_TRUE(again) << again.error().text();
        EXPECT_EQ(again.value(), layout.value());
    }
    EXPECT_TRUE(paper);
}

TEST(PageLayouts, ViewsAndOtherChartsAreReadAndWrittenBack)
{
    std::string file = "Kestrav page 1\nname Work\nrows 1 1\ncolumns 1 1\n"
                       "panel diagram row=1 column=1 outer=moment\n"
                       "panel diagram row=1 column=2 chart=second outer=natal\n"
                       "panel table positions row=2 column=1 source=moment\n"
                       "panel view ephemeris-strip row=2 column=2\n";
    const core::Result<PageLayout> read = readPageLayout(file);
    ASSERT_TRUE(read) << read.error().text();
    const std::vector<Panel>& panels = read.value().panels;
    EXPECT_EQ(panels[0].chart, PanelChart::Natal);
    EXPECT_EQ(panels[0].outer, PanelChart::Moment);
    EXPECT_EQ(panels[1].chart, PanelChart::Second);
    EXPECT_EQ(panels[1].outer, PanelChart::Natal);
    EXPECT_EQ(panels[2].chart, PanelChart::Moment);
    EXPECT_FALSE(panels[2].outer);
    EXPECT_EQ(panels[3].kind, PanelKind::View);
    EXPECT_EQ(panels[3].content, "ephemeris-strip");
    EXPECT_EQ(readPageLayout(writePageLayout(read.value())).value(), read.value());

    file.insert(file.find("rows"), "medium A4\n");
    EXPECT_EQ(readPageLayout(file).error().message, "the view ephemeris-strip at row 2, column 2 "
                                                    "is for the screen, the page for paper");
}

TEST(PageLayouts, TheCheckerNamesEachKindOfFault)
{
    EXPECT_EQ(faultOf([](PageLayout&) {}), "");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.name.clear(); }), "the page has no name");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.rowWeights.clear(); }),
              "the page needs 1 to 12 rows");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.columnWeights.assign(13, 1); }),
              "the page needs 1 to 12 columns");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.rowWeights[0] = 101; }),
              "the weights of the rows are not 1 to 100");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels[1].content = "weather"; }),
              "there is no table weather at row 2, column 1");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels[1].kind = PanelKind::Text; }),
              "there is no text positions at row 2, column 1");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels[0].varga = 21; }),
              "the diagram at row 1, column 1 has no divisional chart");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels[1].kind = PanelKind::View; }),
              "there is no view positions at row 2, column 1");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels[0].outer = PanelChart::Natal; }),
              "the diagram at row 1, column 1 has its own chart around itself");
    for (const int row : {-1, 1, 1'000'000'000}) {
        EXPECT_NE(faultOf([&](PageLayout& page) {
                      page.panels[1].row = row;
                      page.panels[1].rows = 2;
                  }).find("lies outside the grid"),
                  std::string::npos);
    }
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels[0].rows = 2; }),
              "the table positions at row 2, column 1 lies over another panel");
    EXPECT_EQ(faultOf([](PageLayout& page) { page.panels.pop_back(); }),
              "no panel covers row 2, column 1");
}

TEST(PageLayouts, FaultyFilesAreRefusedAtTheirLine)
{
    const Fault faults[] = {
        {"name A\nmedium A3", "there is no medium 'A3'", 3},
        {"rows 1 0", "'0' is not a whole number 1 to 100", 2},
        {"rows", "'rows' needs 1 to 12 weights", 2},
        {"rows 1 1 1 1 1 1 1 1 1 1 1 1 1", "'rows' needs 1 to 12 weights", 2},
        {"# note\n\npanel picture", "a panel is a diagram, a table, a text or a view", 4},
        {"panel diagram positions", "a diagram has no name", 2},
        {"panel table", "a table needs one name", 2},
        {"panel diagram style=west", "there is no diagram style 'west'", 2},
        {"panel diagram varga=D-11x", "there is no divisional chart 'D-11x'", 2},
        {"panel diagram row=0", "row=0 is not a whole number 1 to 12", 2},
        {"panel diagram colour=red", "'colour' is no option of 'panel' here", 2},
        {"panel view", "a view needs one name", 2},
        {"panel view notes varga=5", "'varga' is no option of 'panel' here", 2},
        {"panel table positions outer=moment", "'outer' is no option of 'panel' here", 2},
        {"panel table positions chart=third", "chart=third is not natal, second or moment", 2},
        {"colour red", "'colour' is not known", 2},
        {"name A\nrows 1\ncolumns 1", "no panel covers row 1, column 1", 0},
    };
    for (const Fault& fault : faults) {
        const auto read = readPageLayout(std::string("Kestrav page 1\n") + fault.lines + "\n");
        ASSERT_FALSE(read) << fault.lines;
        EXPECT_EQ(read.error().message, fault.message);
        EXPECT_EQ(read.error().line, fault.line) << fault.lines;
    }
    for (const char* const file : {"", "Kestrav page 2\n", "Kestrav report 1\nname A\nnotes\n",
                                   "Kestrav page 1\nname \xff\n"}) {
        EXPECT_FALSE(readPageLayout(file)) << file;
    }
    EXPECT_FALSE(readPageLayout("Kestrav page 1\n" + std::string(kLongestDefinition, '#')));
}

TEST(ReportDefinitions, AreWrittenBackEqual)
{
    const std::vector<std::string> files = filesOf("reports");
    EXPECT_EQ(files.size(), 5U);
    for (const std::string& file : files) {
        const core::Result<ReportDefinition> read = readReportDefinition(file);
        ASSERT_TRUE(read) << read.error().text() << "\n" << file;
        const auto again = readReportDefinition(writeReportDefinition(read.value()));
        ASSERT_TRUE(again) << again.error().text();
        EXPECT_EQ(again.value(), read.value());
    }
    // Every section with choices that are not the usual ones.
    const auto read = readReportDefinition(
        "Kestrav report 1\r\nname  A name = of two words \r\n"
        "chart varga=D-9,rashi style=circle\r\nashtakavarga varga=navamsha\r\n"
        "dashas levels=5 lines=10000\r\ntransits days=366\r\npage-break\r\nnotes\r\n");
    ASSERT_TRUE(read) << read.error().text();
    EXPECT_EQ(read.value().name, "A name = of two words");
    ASSERT_EQ(read.value().parts.size(), 6U);
    EXPECT_EQ(read.value().parts[0].vargas, (std::vector<int>{5, 0}));
    EXPECT_EQ(read.value().parts[0].style, DiagramStyle::Circle);
    EXPECT_EQ(read.value().parts[2].levels, 5);
    EXPECT_EQ(read.value().parts[2].lines, 10000);
    EXPECT_EQ(read.value().parts[3].days, 366);
    EXPECT_EQ(readReportDefinition(writeReportDefinition(read.value())).value(), read.value());
}

TEST(ReportDefinitions, FaultsAreNamedWithTheirLine)
{
    const Fault faults[] = {
        {"name A\nweather", "there is no section 'weather'", 3},
        {"name A\nnotes events", "there is no section 'events'", 3},
        {"name A\nnotes days=3", "'days' is no option of 'notes' here", 3},
        {"name A\nchart varga=rashi,D-11x", "there is no divisional chart 'D-11x'", 3},
        {"name A\nchart varga=", "varga= needs 1 to 21 divisional charts", 3},
        {"name A\nchart style=west", "there is no diagram style 'west'", 3},
        {"name A\ndashas levels=6", "levels=6 is not a whole number 1 to 5", 3},
        {"name A\ndashas lines=x", "lines=x is not a whole number 1 to 10000", 3},
        {"name A\ntransits days=0", "days=0 is not a whole number 1 to 366", 3},
        {"name A", "the report has no sections", 0},
        {"notes", "the report has no name", 0},
    };
    for (const Fault& fault : faults) {
        const auto read =
            readReportDefinition(std::string("Kestrav report 1\n") + fault.lines + "\n");
        ASSERT_FALSE(read) << fault.lines;
        EXPECT_EQ(read.error().message, fault.message);
        EXPECT_EQ(read.error().line, fault.line) << fault.lines;
    }
    std::string chart = "Kestrav report 1\nname A\nchart varga=0";
    for (int varga = 1; varga < 22; ++varga) {
        chart += ",1";
    }
    EXPECT_FALSE(readReportDefinition(chart + "\n"));
    EXPECT_FALSE(reportOfSections({"notes", "weather"}));
    EXPECT_EQ(reportOfSections({"notes", "events"}).value().parts.size(), 2U);
}

} // namespace kestrav::present
