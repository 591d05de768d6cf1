#include "app/desktop/database/ChartSections.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Icons.h"
#include "app/desktop/shell/Workspace.h"
#include "data/ChartLine.h"

#include <QFileInfo>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

constexpr std::size_t kMostOpened = 10;

} // namespace

ChartSections::ChartSections(Workspace& workspace, QWidget* parent)
    : QTreeWidget(parent), workspace_(workspace)
{
    setObjectName(QStringLiteral("SectionsTree"));
    setAccessibleName(tr("Now, open charts and recent files"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    auto* const now = new QTreeWidgetItem(this, {tr("Now")});
    now->setToolTip(0, tr("The chart of the moment at the Now location"));
    now->setIcon(0, icon("appointment-new"));
    openItem_ = new QTreeWidgetItem(this, {tr("Open")});
    recentItem_ = new QTreeWidgetItem(this, {tr("Recent Files")});
    expandItem(openItem_);
    expandItem(recentItem_);
    connect(this, &QTreeWidget::itemActivated, this, &ChartSections::SectionsTreeItemActivated);
    showOpened();
    showRecentFiles();
}

void ChartSections::noteOpened()
{
    const QString name = toQt(workspace_.record().name);
    std::erase_if(opened_, [&](const Opened& one) { return one.name == name; });
    opened_.insert(
        opened_.begin(),
        {name, std::string(workspace_.database().charts().line(*workspace_.chartLine()))});
    opened_.resize(std::min(opened_.size(), kMostOpened));
    showOpened();
}

void ChartSections::showOpened()
{
    qDeleteAll(openItem_->takeChildren());
    for (const Opened& opened : opened_) {
        new QTreeWidgetItem(openItem_, {opened.name});
    }
    openItem_->setHidden(opened_.empty());
}

void ChartSections::showRecentFiles()
{
    qDeleteAll(recentItem_->takeChildren());
    for (const QString& file : recentFiles()) {
        auto* const item = new QTreeWidgetItem(recentItem_, {QFileInfo(file).fileName()});
        item->setToolTip(0, file);
        item->setData(0, Qt::UserRole, file);
    }
    recentItem_->setHidden(recentItem_->childCount() == 0);
}

void ChartSections::openAgain(const Opened& opened)
{
    data::ChartDatabase& charts = workspace_.database().charts();
    if (const auto line = charts.find(toWide(opened.name))) {
        workspace_.showLine(*line);
        return;
    }
    core::Chart record;
    data::DateOrder order = charts.order();
    workspace_.showRecord(data::ParseChartLine(opened.line, record, order));
}

void ChartSections::SectionsTreeItemActivated(QTreeWidgetItem* item)
{
    if (item->parent() == openItem_) {
        // What is shown changes the list that the chart stands in.
        const Opened opened = opened_[std::size_t(openItem_->indexOfChild(item))];
        openAgain(opened);
        emit chartOpened();
    } else if (item->parent() == recentItem_) {
        emit fileWanted(item->data(0, Qt::UserRole).toString());
    } else if (item != openItem_ && item != recentItem_) {
        workspace_.showRecord(workspace_.nowRecord());
        emit chartOpened();
    }
}

} // namespace kestrav::desktop
