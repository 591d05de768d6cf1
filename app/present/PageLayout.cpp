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
constexpr std::array<std::string_view, 3> kKindNames = {"diagram", "table", "text"};

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

core::Result<void> readDiagramPanel(const DefinitionLine& line, Panel& panel)
{
    if (const std::optional<std::string> style = line.option("style")) {
        panel.style = findDiagramStyle(*style);
        if (!panel.style) {
            return definitionError(line, "there is no diagram style '" + *style + "'");
        }
    }
    if (line.words.size() != 1) {
        return definitionError(line, "a diagram has no name");
    }
    return {};
}

core::Result<int> vargaOption(const DefinitionLine& line)
{
    const std::optional<std::string> text = line.option("varga");
    if (!text) {
        return core::kRashi;
    }
    const std::optional<int> varga = analysis::findVarga(*text);
    return varga ? core::Result<int>(*varga)
                 : definitionError(line, "there is no divisional chart '" + *text + "'");
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
        return definitionError(line, "a panel is a diagram, a table or a text");
    }
    Panel panel;
    panel.kind = static_cast<PanelKind>(kind - kKindNames.begin());
    const core::Result<void> keys =
        checkOptionKeys(line, {"row", "column", "rows", "columns", "varga", "style"});
    if (!keys) {
        return keys.error();
    }
    if (const core::Result<void> cells = readCells(line, panel); !cells) {
        return cells.error();
    }
    const core::Result<int> varga = vargaOption(line);
    if (!varga) {
        return varga.error();
    }
    panel.varga = varga.value();
    if (panel.kind == PanelKind::Diagram) {
        const core::Result<void> diagram = readDiagramPanel(line, panel);
        return diagram ? core::Result<Panel>(std::move(panel)) : diagram.error();
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

std::string panelName(const Panel& panel)
{
    std::string name(kKindNames.at(std::size_t(panel.kind)));
    name += panel.content.empty() ? "" : " " + panel.content;
    return name + " at row " + std::to_string(panel.row + 1) + ", column " +
           std::to_string(panel.column + 1);
}

core::Result<void> checkContent(const Panel& panel)
{
    const auto& texts = panelTexts();
    const bool known = panel.kind == PanelKind::Diagram ||
                       (panel.kind == PanelKind::Table && findTable(panel.content) != nullptr) ||
                       (panel.kind == PanelKind::Text &&
                        std::find(texts.begin(), texts.end(), panel.content) != texts.end());
    if (!known) {
        return core::Error{"there is no " + panelName(panel)};
    }
    if (panel.varga < 0 || panel.varga >= core::kVargaCount) {
        return core::Error{"the " + panelName(panel) + " has no divisional chart"};
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
        if (const core::Result<void> content = checkContent(panel); !content) {
            return content;
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
