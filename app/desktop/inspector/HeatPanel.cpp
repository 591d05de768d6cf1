#include "app/desktop/inspector/HeatPanel.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/Colour.h"
#include "app/present/DignityTables.h"

#include <QLabel>
#include <QVBoxLayout>

#include <map>
#include <utility>

namespace kestrav::desktop
{

HeatPanel::HeatPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), view_(new TableView(this)),
      legend_(new QLabel(this)), note_(new QLabel(this))
{
    setObjectName(QStringLiteral("HeatPanel"));
    view_->setObjectName(QStringLiteral("HeatTableView"));
    view_->setAccessibleName(HeatPanel::title());
    view_->setAlternatingRowColors(false);
    view_->setSelectionBehavior(QAbstractItemView::SelectItems);
    legend_->setObjectName(QStringLiteral("HeatLegendLabel"));
    legend_->setTextFormat(Qt::RichText);
    legend_->setWordWrap(true);
    note_->setWordWrap(true);
    for (QLabel* const label : {legend_, note_}) {
        label->setMargin(fontMetrics().height() / 3);
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(note_);
    layout->addWidget(view_, 1);
    layout->addWidget(legend_);
    setFocusProxy(view_);
    connect(view_, &TableView::linkChosen, this, &HeatPanel::choose);
    connect(view_, &TableView::linkActivated, this, &HeatPanel::follow);
    actions_ = tableActions(this, workspace, view_);
}

QString HeatPanel::title() const
{
    return tr("Dignities and vimshopaka");
}

QList<QAction*> HeatPanel::panelActions()
{
    return actions_;
}

std::vector<present::Block> HeatPanel::blocks()
{
    refreshNow();
    if (view_->table().columns.empty()) {
        return {present::Paragraph{toWide(note_->text())}};
    }
    return {view_->shownTable()};
}

void HeatPanel::refresh()
{
    const ChartPointer shown = chart();
    view_->setVisible(shown != nullptr);
    legend_->setVisible(shown != nullptr);
    note_->setVisible(shown == nullptr);
    note_->setText(tr("No chart is open."));
    view_->setTable(shown ? present::heatTable(*shown) : present::Table());
    showLegend();
}

// Shades stand for the words that the table itself has, from the worst to the best.
void HeatPanel::showLegend()
{
    std::map<int, QStringList> words;
    for (const present::Row& row : view_->table().rows) {
        for (const present::Cell& cell : row) {
            const QString word = toQt(cell.text).trimmed();
            if (cell.shade && !word.isEmpty() && !word[0].isDigit() &&
                !words[*cell.shade].contains(word)) {
                words[*cell.shade] += word;
            }
        }
    }
    QStringList parts;
    for (const auto& [shade, list] : words) {
        parts += QStringLiteral("<span style='background-color:%1'>&nbsp;%2&nbsp;</span>")
                     .arg(toQt(present::colourOfShade(shade, schemeOf(*this))).name(),
                          list.join(QLatin1String(", ")).toHtmlEscaped());
    }
    legend_->setText(tr("Worst to best: %1").arg(parts.join(QLatin1String(" "))));
}

} // namespace kestrav::desktop
