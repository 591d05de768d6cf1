// Every panel with charts of every kind: what it shows is what one made for this chart shows, and
// tables are those of the command line.
#include "app/desktop/panels/TableView.h"
#include "app/present/PageLayout.h"
#include "app/present/TableCatalogue.h"
#include "data/ChartLine.h"
#include "tests/desktop/FreshPanels.h"
#include "tests/present/VariedCharts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QProcess>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace kestrav::desktop
{
namespace
{

using tests::Birth;
using tests::kBirths;
using tests::recordOf;

class PanelSweep : public FreshPanels
{
protected:
    template <typename Change>
    void changeSettings(Change change)
    {
        core::Settings settings = workspace().settings();
        change(settings);
        workspace().changeSettings(settings);
    }

    void expectFreshThroughChanges(const Panels& panels, bool alsoSettings = true)
    {
        std::vector<PanelWidget*> shown;
        for (const present::Panel& panel : panels) {
            shown.push_back(made(panel));
        }
        // Before the workers have finished with the first chart.
        ASSERT_TRUE(workspace().showRecord(recordOf(kBirths[0])));
        settle();
        ASSERT_TRUE(workspace().showSecond(recordOf(kBirths[2])));
        expectFresh(shown, "after a second chart");
        workspace().closeSecond();
        workspace().setMoment(workspace().moment() + 123.4);
        expectFresh(shown, "after another date, without the second chart");
        if (alsoSettings) {
            workspace().select({present::Subject::Sign, 4, 0});
            workspace().changePoint(core::kMars, 123.0);
            changeSettings([](core::Settings& settings) {
                settings.displayFlags = 0;
                settings.ayanamsaRow = 3;
                settings.houseSystem = 2;
                settings.diagramStyle = 1;
                settings.dashaSystem = 4;
                settings.monthFirst = true;
                settings.twelveHourClock = true;
            });
            expectFresh(shown, "with other settings");
        }
        workspace().closeChart();
        expectFresh(shown, "without charts");
        qDeleteAll(shown);
    }
};

Panels panelsOf(present::PanelKind kind, const std::vector<std::string_view>& names)
{
    Panels panels;
    for (const std::string_view name : names) {
        present::Panel panel;
        panel.kind = kind;
        panel.content = std::string(name);
        panels.push_back(panel);
    }
    return panels;
}

std::vector<std::string_view> tableNames()
{
    std::vector<std::string_view> names;
    for (const present::TableInfo& info : present::allTables()) {
        names.push_back(info.id);
    }
    return names;
}

Panels diagrams()
{
    Panels panels;
    for (const auto style : {present::DiagramStyle::North, present::DiagramStyle::South,
                             present::DiagramStyle::East, present::DiagramStyle::Circle}) {
        present::Panel panel;
        panel.kind = present::PanelKind::Diagram;
        panel.style = style;
        panel.varga = 5 * int(style);
        panels.push_back(panel);
        panel.outer = present::PanelChart::Moment;
        panels.push_back(panel);
        panel.outer.reset();
        panel.chart = present::PanelChart::Second;
        panels.push_back(panel);
    }
    present::Panel chosen;
    chosen.kind = present::PanelKind::Diagram;
    chosen.chart = present::PanelChart::Moment;
    panels.push_back(chosen);
    return panels;
}

TEST_F(PanelSweep, TablesFollowWhatTheyAreMadeFrom)
{
    Panels panels = panelsOf(present::PanelKind::Table, tableNames());
    present::Panel ofMoment = panels[5];
    ofMoment.chart = present::PanelChart::Moment;
    panels.push_back(ofMoment);
    // One class makes them all; that it minds the settings is seen of texts and diagrams, too.
    expectFreshThroughChanges(panels, false);
}

TEST_F(PanelSweep, DiagramsAndTextsFollowWhatTheyAreMadeFrom)
{
    Panels panels = diagrams();
    const Panels texts = panelsOf(present::PanelKind::Text, present::panelTexts());
    panels.insert(panels.end(), texts.begin(), texts.end());
    expectFreshThroughChanges(panels);
}

TEST_F(PanelSweep, ViewsFollowWhatTheyAreMadeFrom)
{
    // These turn the pages of their days only where the shared date leaves them.
    std::vector<std::string_view> names = present::panelViews();
    std::erase_if(names, [](std::string_view name) {
        return name == "transit-listing" || name == "ephemeris" || name == "ephemeris-strip";
    });
    expectFreshThroughChanges(panelsOf(present::PanelKind::View, names));
}

TEST_F(PanelSweep, ViewsStandEveryChartAndSettingAndLeaveNothingBehind)
{
    Panels panels = panelsOf(present::PanelKind::View, present::panelViews());
    const Panels drawn = diagrams();
    panels.insert(panels.end(), drawn.begin(), drawn.end());
    workspace().closeChart();
    settle();
    const auto widgets = QApplication::allWidgets().size();
    std::vector<PanelWidget*> shown;
    for (const present::Panel& panel : panels) {
        shown.push_back(made(panel));
    }
    settle();
    // The workers of the panels have to put up with what goes on before they are done.
    const core::SettingInfo& houses = *core::findSetting("houseSystem");
    const int systems = int(houses.highest - houses.lowest) + 1;
    const int rows = int(workspace().settings().ayanamsaTable.size());
    for (int i = 0; i < int(kBirths.size()); i += 2) {
        ASSERT_TRUE(workspace().showRecord(recordOf(kBirths[std::size_t(i)])));
        changeSettings([&](core::Settings& settings) {
            settings.ayanamsaRow = i % rows;
            settings.houseSystem = int(houses.lowest) + i / 2 % systems;
            settings.diagramStyle = i / 2 % 4;
            settings.displayFlags = i % 4 == 0 ? int(core::kGlyphNames) : 0;
        });
        if (i == 10) {
            ASSERT_TRUE(workspace().showSecond(recordOf(kBirths[8])));
        }
        if (i % 3 == 0) {
            QApplication::processEvents();
        }
    }
    settle();
    for (PanelWidget* const panel : shown) {
        EXPECT_FALSE(panel->grab().isNull());
        EXPECT_FALSE(panel->title().isEmpty()) << panel->panel().content;
    }
    qDeleteAll(shown);
    settle();
    EXPECT_LE(QApplication::allWidgets().size(), widgets) << "widgets outlive their panels";
}

class TablesOfTheCommandLine : public PanelSweep, public testing::WithParamInterface<int>
{};

// The tables of charts of a database as the command line writes them, by their names.
std::map<std::string, QJsonObject> commandLineTables(const std::filesystem::path& database,
                                                     std::size_t line, std::size_t second,
                                                     bool& ended)
{
    QStringList words = {QStringLiteral("table")};
    for (const std::string_view name : tableNames()) {
        words += toQt(std::string(name));
    }
    words += {QStringLiteral("--db"),        toQt(database),
              QStringLiteral("--line"),      QString::number(line + 1),
              QStringLiteral("--with-line"), QString::number(second + 1),
              QStringLiteral("--format"),    QStringLiteral("json")};
    QProcess program;
    program.start(QStringLiteral(KESTRAV_BIN "/kestrav-cli"), words);
    ended = program.waitForFinished() && program.exitCode() == 0;
    std::map<std::string, QJsonObject> tables;
    const QJsonObject document = QJsonDocument::fromJson(program.readAllStandardOutput()).object();
    for (const QJsonValue& value : document[QLatin1String("tables")].toArray()) {
        const QJsonObject table = value.toObject();
        tables[table[QLatin1String("id")].toString().toStdString()] = table;
    }
    return tables;
}

void expectHeadings(const present::Table& table, const QJsonArray& written)
{
    ASSERT_EQ(int(table.columns.size()), written.size()) << table.id;
    bool before = false;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const QString heading = toQt(table.columns[i].heading);
        EXPECT_EQ(heading, written[int(i)].toObject()[QLatin1String("heading")].toString())
            << table.id;
        // A column that says something about the one before it needs no heading of its own.
        EXPECT_TRUE(!heading.isEmpty() || before || table.withoutHeadings())
            << table.id << " has no heading of column " << i;
        before = !heading.isEmpty();
    }
}

TEST_P(TablesOfTheCommandLine, AreThoseOfTheWindow)
{
    const std::filesystem::path file = toPath(home_.filePath(QStringLiteral("Varied.ksc")));
    {
        std::ofstream stream(file, std::ios::binary);
        for (const Birth& birth : kBirths) {
            stream << data::FormatChartLine(recordOf(birth), data::DateOrder::DayFirst) << '\n';
        }
    }
    ASSERT_TRUE(workspace().database().load(file).ok());
    const auto line = std::size_t(GetParam());
    const std::size_t second = (line + 1) % kBirths.size();
    ASSERT_TRUE(workspace().showLine(line));
    ASSERT_TRUE(workspace().showSecond(*workspace().database().record(second)));
    bool ended = false;
    const auto tables = commandLineTables(file, line, second, ended);
    std::vector<PanelWidget*> panels;
    for (const present::Panel& panel : panelsOf(present::PanelKind::Table, tableNames())) {
        panels.push_back(made(panel));
    }
    settle();
    ASSERT_TRUE(ended);
    for (const PanelWidget* const panel : panels) {
        const std::string& id = panel->panel().content;
        ASSERT_TRUE(tables.contains(id)) << id;
        const auto* const view = find<TableView>("TableView", panel);
        const QJsonArray rows = tables.at(id)[QLatin1String("rows")].toArray();
        expectHeadings(view->table(), tables.at(id)[QLatin1String("columns")].toArray());
        const QAbstractItemModel& model = *view->model();
        // The command line goes on with the periods where the window ends at an age.
        if (id == "dashas") {
            ASSERT_LE(model.rowCount(), rows.size());
            ASSERT_GT(model.rowCount(), 50);
        } else {
            ASSERT_EQ(model.rowCount(), rows.size()) << id;
        }
        bool same = true;
        for (int row = 0; row < model.rowCount() && same; ++row) {
            const QJsonArray cells = rows[row].toArray();
            ASSERT_EQ(model.columnCount(), cells.size()) << id;
            for (int column = 0; column < model.columnCount() && same; ++column) {
                const QString shown = model.index(row, column).data().toString();
                const QString written =
                    cells[column].toObject()[QLatin1String("text")].toString().trimmed();
                same = shown == written;
                EXPECT_EQ(shown.toStdString(), written.toStdString())
                    << id << ", row " << row << ", column " << column;
            }
        }
    }
    qDeleteAll(panels);
}

INSTANTIATE_TEST_SUITE_P(Births, TablesOfTheCommandLine, testing::Values(0, 8, 18, 23),
                         [](const auto& birth) { return "Chart" + std::to_string(birth.param); });

} // namespace
} // namespace kestrav::desktop
