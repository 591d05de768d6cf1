#include "app/present/PageLayout.h"

#include "analysis/VargaNames.h"
#include "app/present/DefinitionLines.h"
#include "app/present/TableCatalogue.h"
#include "core/NumberText.h"
#include "core/Varga.h"

#include <algorithm>
#include <array>

namespace kestrav::present
{

namespace
{

constexpr std::string_view kHead = "Kestrav page 1";

constexpr std::array<std::string_view, 5> kMediumNames = {"screen", "A4", "A4-wide", "Letter",
                                                          "Letter-wide"};
constexpr std::array<std::string_view, 4> kKindNames = {"diagram", "table", "text", "view"};
constexpr std::array<std::string_view, 3> kChartNames = {"natal", "second", "moment"};

constexpr int kGreatestWeight = 100;

core::Result<std::vector<int>> readWeights(const DefinitionLine& line)
{
    std::vector<int> weights;
    for (const std::string& word : line.words) {
        const std::optional<int> weight = core::parseInteger(word);
        if (!weight || *weight < 1 || *weight > kGreatestWeight) {
            return definitionError(line, "'" + word + "' is not a whole number 1 to 100");
        }
        weights.push_back(*weight);
    }
    if (weights.empty() || int(weights.size()) > kMostGridLines || !line.options.empty()) {
        return definitionError(line, "'" + line.word + "' needs 1 to 12 weights");
    }
    return weights;
}

std::vector<std::string_view> keysOf(PanelKind kind)
{
    std::vector<std::string_view> keys = {"row", "column", "rows", "columns"};
    if (kind == PanelKind::Diagram || kind == PanelKind::Table) {
        keys.insert(keys.end(), {"varga", "chart", "source"});
    }
    if (kind == PanelKind::Diagram) {
        keys.insert(keys.end(), {"style", "outer"});
    }
    return keys;
}

core::Result<void> readStyle(const DefinitionLine& line, Panel& panel)
{
    if (const std::optional<std::string> style = line.option("style")) {
        panel.style = findDiagramStyle(*style);
        if (!panel.style) {
            return definitionError(line, "there is no diagram style '" + *style + "'");
        }
    }
    return {};
}

core::Result<void> readVarga(const DefinitionLine& line, Panel& panel)
{
    if (const std::optional<std::string> text = line.option("varga")) {
        const std::optional<int> varga = analysis::findVarga(*text);
        if (!varga) {
            return definitionError(line, "there is no divisional chart '" + *text + "'");
        }
        panel.varga = *varga;
    }
    return {};
}

// "source" is another word for "chart".
core::Result<void> readCharts(const DefinitionLine& line, Panel& panel)
{
    for (const char* const key : {"chart", "source", "outer"}) {
        const std::optional<std::string> text = line.option(key);
        if (!text) {
            continue;
        }
        const auto* const found = std::find(kChartNames.begin(), kChartNames.end(), *text);
        if (found == kChartNames.end()) {
            return definitionError(line, std::string(key) + "=" + *text +
                                             " is not natal, second or moment");
        }
        const auto chart = static_cast<PanelChart>(found - kChartNames.begin());
        if (key == std::string_view("outer")) {
            panel.outer = chart;
        } else {
            panel.chart = chart;
        }
    }
    return {};
}

// Rows and columns of files count from 1.
core::Result<void> readCells(const DefinitionLine& line, Panel& panel)
{
    struct Place
    {
        const char* key;
        int* value;
        int shift;
    };
    for (const Place& place :
         {Place{"row", &panel.row, 1}, Place{"column", &panel.column, 1},
          Place{"rows", &panel.rows, 0}, Place{"columns", &panel.columns, 0}}) {
        const core::Result<int> value = integerOption(line, place.key, 1, kMostGridLines, 1);
        if (!value) {
            return value.error();
        }
        *place.value = value.value() - place.shift;
    }
    return {};
}

core::Result<Panel> readPanel(const DefinitionLine& line)
{
    const auto* const kind = line.words.empty()
                                 ? kKindNames.end()
                                 : std::find(kKindNames.begin(), kKindNames.end(), line.words[0]);
    if (kind == kKindNames.end()) {
        return definitionError(line, "a panel is a diagram, a table, a text or a view");
    }
    Panel panel;
    panel.kind = static_cast<PanelKind>(kind - kKindNames.begin());
    const core::Result<void> keys = checkOptionKeys(line, keysOf(panel.kind));
    if (!keys) {
        return keys.error();
    }
    for (const auto& read : {readCells, readVarga, readStyle, readCharts}) {
        if (const core::Result<void> done = read(line, panel); !done) {
            return done.error();
        }
    }
    if (panel.kind == PanelKind::Diagram) {
        return line.words.size() == 1 ? core::Result<Panel>(std::move(panel))
                                      : definitionError(line, "a diagram has no name");
    }
    if (line.words.size() != 2) {
        return definitionError(line, "a " + line.words[0] + " needs one name");
    }
    panel.content = line.words[1];
    return panel;
}

core::Result<void> readLine(const DefinitionLine& line, PageLayout& layout)
{
    if (line.word == "name") {
        layout.name = line.rest;
    } else if (line.word == "medium") {
        const auto* const found = std::find(kMediumNames.begin(), kMediumNames.end(), line.rest);
        if (found == kMediumNames.end()) {
            return definitionError(line, "there is no medium '" + line.rest + "'");
        }
        layout.medium = static_cast<PageMedium>(found - kMediumNames.begin());
    } else if (line.word == "rows" || line.word == "columns") {
        core::Result<std::vector<int>> weights = readWeights(line);
        if (!weights) {
            return weights.error();
        }
        (line.word == "rows" ? layout.rowWeights : layout.columnWeights) =
            std::move(weights.value());
    } else if (line.word == "panel") {
        core::Result<Panel> panel = readPanel(line);
        if (!panel) {
            return panel.error();
        }
        layout.panels.push_back(std::move(panel.value()));
    } else {
        return definitionError(line, "'" + line.word + "' is not known");
    }
    return {};
}

std::string chartName(PanelChart chart)
{
    return std::string(kChartNames.at(std::size_t(chart)));
}

std::string panelName(const Panel& panel)
{
    std::string name(kKindNames.at(std::size_t(panel.kind)));
    name += panel.content.empty() ? "" : " " + panel.content;
    return name + " at row " + std::to_string(panel.row + 1) + ", column " +
           std::to_string(panel.column + 1);
}

bool hasContent(const Panel& panel)
{
    const auto among = [&](const std::vector<std::string_view>& names) {
        return std::find(names.begin(), names.end(), panel.content) != names.end();
    };
    switch (panel.kind) {
    case PanelKind::Diagram:
        return true;
    case PanelKind::Table:
        return findTable(panel.content) != nullptr;
    case PanelKind::Text:
        return among(panelTexts());
    case PanelKind::View:
        return among(panelViews());
    }
    return false;
}

core::Result<void> checkContent(const Panel& panel, PageMedium medium)
{
    if (!hasContent(panel)) {
        return core::Error{"there is no " + panelName(panel)};
    }
    if (panel.kind == PanelKind::View && medium != PageMedium::Screen) {
        return core::Error{"the " + panelName(panel) + " is for the screen, the page for paper"};
    }
    if (panel.varga < 0 || panel.varga >= core::kVargaCount) {
        return core::Error{"the " + panelName(panel) + " has no divisional chart"};
    }
    if (panel.outer == panel.chart) {
        return core::Error{"the " + panelName(panel) + " has its own chart around itself"};
    }
    return {};
}

core::Result<void> checkWeights(const std::vector<int>& weights, const char* what)
{
    if (weights.empty() || int(weights.size()) > kMostGridLines) {
        return core::Error{"the page needs 1 to 12 " + std::string(what)};
    }
    const bool good = std::all_of(weights.begin(), weights.end(), [](int weight) {
        return weight >= 1 && weight <= kGreatestWeight;
    });
    return good ? core::Result<void>()
                : core::Error{"the weights of the " + std::string(what) + " are not 1 to 100"};
}

bool inside(const Panel& panel, const PageLayout& layout)
{
    return panel.row >= 0 && panel.column >= 0 && panel.rows >= 1 && panel.columns >= 1 &&
           panel.rows <= kMostGridLines && panel.columns <= kMostGridLines &&
           panel.row + panel.rows <= int(layout.rowWeights.size()) &&
           panel.column + panel.columns <= int(layout.columnWeights.size());
}

} // namespace

std::string_view pageMediumName(PageMedium medium)
{
    return kMediumNames.at(std::size_t(medium));
}

const std::vector<std::string_view>& panelTexts()
{
    static const std::vector<std::string_view> kTexts = {"balance", "panchanga", "yogas", "notes"};
    return kTexts;
}

const std::vector<std::string_view>& panelViews()
{
    static const std::vector<std::string_view> kViews = {
        "dasha-tree",      "life-bar",   "panchanga",  "panchanga-strips",
        "inspector",       "varga-grid", "bindu-grid", "transit-listing",
        "ephemeris-strip", "ephemeris",  "yoga-tree",  "natives",
        "research",        "compare",    "events",     "trial-times",
        "report",          "notes",      "heat"};
    return kViews;
}

core::Result<PageLayout> readPageLayout(std::string_view bytes)
{
    const auto lines = readDefinition(bytes, kHead);
    if (!lines) {
        return lines.error();
    }
    PageLayout layout;
    for (const DefinitionLine& line : lines.value()) {
        if (const core::Result<void> read = readLine(line, layout); !read) {
            return read.error();
        }
    }
    const core::Result<void> checked = checkPageLayout(layout);
    return checked ? core::Result<PageLayout>(std::move(layout)) : checked.error();
}

std::string writePageLayout(const PageLayout& layout)
{
    const auto weights = [](const std::vector<int>& values) {
        std::string text;
        for (const int value : values) {
            text += " " + std::to_string(value);
        }
        return text + "\n";
    };
    std::string text = std::string(kHead) + "\nname " + layout.name + "\nmedium " +
                       std::string(pageMediumName(layout.medium)) + "\nrows" +
                       weights(layout.rowWeights) + "columns" + weights(layout.columnWeights);
    for (const Panel& panel : layout.panels) {
        text += "panel " + std::string(kKindNames.at(std::size_t(panel.kind)));
        text += panel.content.empty() ? "" : " " + panel.content;
        text +=
            " row=" + std::to_string(panel.row + 1) + " column=" + std::to_string(panel.column + 1);
        text += panel.rows == 1 ? "" : " rows=" + std::to_string(panel.rows);
        text += panel.columns == 1 ? "" : " columns=" + std::to_string(panel.columns);
        text += panel.varga == core::kRashi ? "" : " varga=" + std::to_string(panel.varga);
        text += panel.style ? " style=" + std::string(diagramStyleName(*panel.style)) : "";
        text += panel.chart == PanelChart::Natal ? "" : " chart=" + chartName(panel.chart);
        text += panel.outer ? " outer=" + chartName(*panel.outer) : "";
        text += "\n";
    }
    return text;
}

core::Result<void> checkPageLayout(const PageLayout& layout)
{
    if (layout.name.empty()) {
        return core::Error{"the page has no name"};
    }
    for (const auto& checked :
         {checkWeights(layout.rowWeights, "rows"), checkWeights(layout.columnWeights, "columns")}) {
        if (!checked) {
            return checked.error();
        }
    }
    const std::size_t width = layout.columnWeights.size();
    std::vector<bool> covered(layout.rowWeights.size() * width, false);
    for (const Panel& panel : layout.panels) {
        if (const core::Result<void> content = checkContent(panel, layout.medium); !content) {
            return content.error();
        }
        if (!inside(panel, layout)) {
            return core::Error{"the " + panelName(panel) + " lies outside the grid"};
        }
        for (int row = panel.row; row < panel.row + panel.rows; ++row) {
            for (int column = panel.column; column < panel.column + panel.columns; ++column) {
                const std::size_t cell = std::size_t(row) * width + std::size_t(column);
                if (covered[cell]) {
                    return core::Error{"the " + panelName(panel) + " lies over another panel"};
                }
                covered[cell] = true;
            }
        }
    }
    const auto bare = std::find(covered.begin(), covered.end(), false);
    if (bare != covered.end()) {
        const std::size_t cell = std::size_t(bare - covered.begin());
        return core::Error{"no panel covers row " + std::to_string(cell / width + 1) + ", column " +
                           std::to_string(cell % width + 1)};
    }
    return {};
}

} // namespace kestrav::present
