#include "app/desktop/research/NativesPanel.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableModel.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/WorkBar.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/present/ResearchTables.h"
#include "data/ChartDatabase.h"
#include "data/ResearchLine.h"

#include <QAction>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace kestrav::desktop
{

namespace
{

present::Table nativesTable(const SearchedYoga& searched)
{
    const std::size_t name = *yoga::findResearchColumn("name");
    const std::array<std::size_t, 1> columns = {name};
    const yoga::ResearchTable found(searched.research->lines, searched.finds.lines);
    present::Table table = present::researchRows(found, columns);
    table.id = "natives";
    table.title =
        yoga::searchTitle(searched.finds) + (searched.title.empty() ? L"" : L": " + searched.title);
    return table;
}

} // namespace

NativesPanel::NativesPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), findings_(YogaFindings::of(workspace)),
      note_(new QLabel(this)), natives_(new TableView(this)), reasons_(new TableView(this)),
      group_(new QToolButton(this)), bar_(new WorkBar(ResearchDesk::of(workspace).work(), this))
{
    setObjectName(QStringLiteral("NativesPanel"));
    note_->setObjectName(QStringLiteral("NativesLabel"));
    note_->setWordWrap(true);
    note_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    natives_->setObjectName(QStringLiteral("NativesView"));
    natives_->setSelectionMode(QAbstractItemView::SingleSelection);
    reasons_->setObjectName(QStringLiteral("ReasonsView"));
    reasons_->setAccessibleName(tr("Reasons for the selected native"));
    reasons_->setWordWrap(true);
    connect(reasons_->horizontalHeader(), &QHeaderView::sectionResized, reasons_,
            &QTableView::resizeRowsToContents);

    auto* const search = new QAction(tr("&Search Selected Yoga"), this);
    connect(search, &QAction::triggered, this, [this] {
        if (const yoga::Yoga* const yoga = YogaDesk::of(this->workspace()).yoga()) {
            findings_.search(*yoga);
        } else {
            this->workspace().tell(tr("Select a yoga in the tree of yogas first."));
        }
    });
    auto* const open = new QAction(tr("&Open Chart"), this);
    connect(open, &QAction::triggered, this, &NativesPanel::openSelected);
    auto* const groupB = new QAction(tr("Make &B Group"), this);
    groupB->setToolTip(tr("Gives the tag of the B group to the charts that were found"));
    connect(groupB, &QAction::triggered, this, &NativesPanel::GroupBButtonClick);
    actions_ = {search, open, groupB};
    actions_ += tableActions(this, workspace, natives_);

    auto* const searchButton = new QToolButton(this);
    searchButton->setObjectName(QStringLiteral("SearchButton"));
    searchButton->setDefaultAction(search);
    searchButton->setText(tr("Search"));
    group_->setObjectName(QStringLiteral("GroupBButton"));
    group_->setDefaultAction(groupB);

    const int gap = fontMetrics().height() / 3;
    auto* const buttons = new FlowLayout(gap);
    buttons->setContentsMargins({});
    buttons->addWidget(searchButton);
    buttons->addWidget(group_);
    buttons->addStretch();
    buttons->addWidget(bar_);
    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->setObjectName(QStringLiteral("NativesSplitter"));
    parts->addWidget(natives_);
    parts->addWidget(reasons_);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    parts->setChildrenCollapsible(false);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(gap, gap, gap, gap);
    box->addLayout(buttons);
    box->addWidget(note_);
    box->addWidget(parts, 1);
    setFocusProxy(natives_);

    dependOn(OnDatabase);
    connect(&findings_, &YogaFindings::changed, this, [this] { markDue(); });
    connect(natives_, &QTableView::activated, this, &NativesPanel::openSelected);
    connect(natives_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &NativesPanel::explainSelected);
}

QString NativesPanel::title() const
{
    const SearchedPointer& last = findings_.last();
    return last ? toQt(nativesTable(*last).title) : tr("Natives with Yoga");
}

QList<QAction*> NativesPanel::panelActions()
{
    return actions_;
}

std::vector<present::Block> NativesPanel::blocks()
{
    refreshNow();
    if (!findings_.last()) {
        return {present::Paragraph{toWide(note_->text())}};
    }
    std::vector<present::Block> blocks = {natives_->table()};
    if (!reasons_->table().rows.empty()) {
        blocks.emplace_back(reasons_->table());
    }
    return blocks;
}

void NativesPanel::refresh()
{
    const SearchedPointer& last = findings_.last();
    // A new chart on the screen changes nothing here, and the selection stays.
    if (filled_ && shown_ == last) {
        return;
    }
    filled_ = true;
    shown_ = last;
    explaining_.cancel();
    reasons_->setTable({});
    natives_->setTable(last ? nativesTable(*last) : present::Table{});
    natives_->setAccessibleName(title());
    const bool found = last && !last->finds.lines.empty();
    note_->setText(!last   ? tr("Nothing was searched yet. Select a yoga and choose Search.")
                   : found ? QString()
                           : tr("No chart of the database has this yoga."));
    note_->setVisible(!note_->text().isEmpty());
    natives_->setVisible(found);
    reasons_->setVisible(found);
    group_->defaultAction()->setEnabled(found);
    actions_[1]->setEnabled(found);
    emit captionChanged();
    if (found) {
        natives_->setCurrentIndex(natives_->model()->index(0, 0));
    }
}

std::optional<std::size_t> NativesPanel::selectedLine() const
{
    const auto* const model = static_cast<const TableModel*>(natives_->model());
    const present::Cell* const cell = model->cell(natives_->currentIndex().siblingAtColumn(0));
    return cell != nullptr ? present::lineOfRow({*cell}) : std::nullopt;
}

void NativesPanel::explainSelected()
{
    const std::optional<std::size_t> line = selectedLine();
    const SearchedPointer searched = findings_.last();
    if (!line || !searched) {
        return;
    }
    explaining_.start(
        [searched, line = *line](const WorkHandle& /*handle*/) {
            const yoga::RuleOutcome outcome = searched->search().explain(line);
            return present::reasonTable(present::ruleLines(searched->text, &outcome),
                                        data::nameOfLine(searched->research->charts.line(line)));
        },
        [this](const present::Table& reasons) {
            reasons_->setTable(reasons);
            reasons_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
            reasons_->resizeRowsToContents();
        });
}

void NativesPanel::openSelected()
{
    const std::optional<std::size_t> line = selectedLine();
    if (line && *line < workspace().database().charts().size()) {
        workspace().showLine(*line);
    }
}

void NativesPanel::GroupBButtonClick()
{
    TMessages messages;
    if (findings_.makeGroupB(messages)) {
        workspace().tell(tr("The found charts are the B group now."));
    }
}

} // namespace kestrav::desktop
