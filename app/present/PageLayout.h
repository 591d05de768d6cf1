// Page layouts: grids of panels for the screen and for paper, and their files.
#pragma once

#include "app/present/DiagramOptions.h"
#include "core/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

enum class PageMedium : std::uint8_t
{
    Screen,
    A4,     ///< 210 x 297 mm
    A4Wide, ///< 297 x 210 mm
    Letter, ///< 8.5 x 11 inches
    LetterWide,
};

[[nodiscard]] std::string_view pageMediumName(PageMedium medium);

enum class PanelKind : std::uint8_t
{
    Diagram,
    Table, ///< of the table catalogue
    Text,  ///< of panelTexts
    View,  ///< of panelViews: something to work in, for the screen only
};

/// The chart that a panel shows.
enum class PanelChart : std::uint8_t
{
    Natal,  ///< the chart of the page
    Second, ///< the chart that it is compared with
    Moment, ///< the sky of the shared date
};

/// One panel and the cells of the grid that it covers; rows and columns count from 0.
struct Panel
{
    PanelKind kind = PanelKind::Table;
    std::string content;               ///< name of the table, text or view; empty for a diagram
    int varga = 0;                     ///< of a diagram, or of a table of one divisional chart
    std::optional<DiagramStyle> style; ///< of a diagram; none for the one the user has chosen
    int row = 0;
    int column = 0;
    int rows = 1;
    int columns = 1;
    PanelChart chart = PanelChart::Natal; ///< of a diagram or a table
    std::optional<PanelChart> outer = {}; ///< of a diagram: the chart drawn around it

    bool operator==(const Panel&) const = default;
};

struct PageLayout
{
    std::string name;
    PageMedium medium = PageMedium::Screen;
    std::vector<int> rowWeights; ///< shares of the height, 1 to 100 each
    std::vector<int> columnWeights;
    std::vector<Panel> panels;

    bool operator==(const PageLayout&) const = default;
};

/// Most rows or columns of a page.
inline constexpr int kMostGridLines = 12;

/// The texts that a panel can show.
[[nodiscard]] const std::vector<std::string_view>& panelTexts();

/// The views that a panel of the screen can be.
[[nodiscard]] const std::vector<std::string_view>& panelViews();

/// Reads a layout file and checks it. The error names what is wrong and its line.
[[nodiscard]] core::Result<PageLayout> readPageLayout(std::string_view bytes);

/// The file of a layout, which reads back equal.
[[nodiscard]] std::string writePageLayout(const PageLayout& layout);

/// What is wrong with a layout: names that do not exist, views on paper, a chart around itself,
/// panels outside the grid or over one another, cells that no panel covers. Nothing when it can be
/// shown.
[[nodiscard]] core::Result<void> checkPageLayout(const PageLayout& layout);

} // namespace kestrav::present
