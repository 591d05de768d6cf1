#include "app/desktop/timing/DashaTreePanel.h"

#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/timing/DashaChoice.h"
#include "app/desktop/timing/DashaTreeModel.h"
#include "app/present/DashaTables.h"
#include "app/present/LifeBar.h"
#include "timing/Balance.h"
#include "timing/DashaTable.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

// Rows as high as those of the tables, with some air between the columns.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        const int line = option.fontMetrics.height();
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width() + line, std::max(size.height(), line * 13 / 10)};
    }
};

} // namespace

DashaTreePanel::DashaTreePanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), choice_(DashaChoice::of(workspace)),
      system_(new QComboBox(this)), makeStandard_(new QToolButton(this)),
      balance_(new QLabel(this)), note_(new QLabel(this)), tree_(new QTreeView(this)),
      model_(new DashaTreeModel(this))
{
    setObjectName(QStringLiteral("DashaTreePanel"));
    system_->setObjectName(QStringLiteral("DashaSystemComboBox"));
    system_->setAccessibleName(tr("Dasha system"));
    system_->setToolTip(tr("The dasha system shown here"));
    for (int system = 0; system < timing::kNamedDashaSystems; ++system) {
        system_->addItem(toQt(present::dashaSystemName(system)));
    }
    system_->setMaxVisibleItems(timing::kNamedDashaSystems);
    connect(system_, &QComboBox::activated, this, &DashaTreePanel::DashaSystemComboBoxActivated);
    makeStandard_->setObjectName(QStringLiteral("MakeStandardButton"));
    makeStandard_->setText(tr("Make Standard"));
    makeStandard_->setToolTip(tr("Take this system for everything that follows a dasha"));
    connect(makeStandard_, &QToolButton::clicked, this, &DashaTreePanel::MakeStandardButtonClick);
    balance_->setObjectName(QStringLiteral("BalanceLabel"));
    balance_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    balance_->setWordWrap(true);
    balance_->setContentsMargins(fontMetrics().height() / 3, 0, 0, fontMetrics().height() / 3);
    note_->setObjectName(QStringLiteral("NoteLabel"));
    note_->setWordWrap(true);
    note_->setMargin(fontMetrics().height() / 3);

    tree_->setObjectName(QStringLiteral("DashaTree"));
    tree_->setModel(model_);
    tree_->setFrameShape(QFrame::NoFrame);
    tree_->setUniformRowHeights(true);
    tree_->setAlternatingRowColors(true);
    tree_->setExpandsOnDoubleClick(false);
    tree_->setAllColumnsShowFocus(true);
    tree_->setItemDelegate(new RowDelegate(tree_));
    tree_->header()->setStretchLastSection(false);
    connect(tree_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &DashaTreePanel::chooseLord);
    connect(tree_, &QTreeView::activated, this, &DashaTreePanel::SetToStartActionExecute);

    auto* const bar = new FlowLayout(fontMetrics().height() / 3);
    bar->addWidget(system_);
    bar->addWidget(makeStandard_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(balance_);
    layout->addWidget(note_);
    layout->addWidget(tree_, 1);
    setFocusProxy(tree_);
    dependOn(OnChart | OnMoment);
    connect(&choice_, &DashaChoice::changed, this, [this] { markDue(); });
    makeActions();
}

void DashaTreePanel::makeActions()
{
    const auto add = [this](const QString& text, const char* name, auto handler) {
        auto* const action = new QAction(text, this);
        action->setObjectName(QLatin1String(name));
        connect(action, &QAction::triggered, this, handler);
        actions_ += action;
    };
    add(tr("Shared Date to &Start"), "SetToStartAction", &DashaTreePanel::SetToStartActionExecute);
    add(tr("Shared Date to &End"), "SetToEndAction", &DashaTreePanel::SetToEndActionExecute);
    add(tr("Inspect the &Lord"), "SelectLordAction", &DashaTreePanel::SelectLordActionExecute);
    add(tr("&Copy"), "CopyPeriodsAction", &DashaTreePanel::copyRows);
    actions_.back()->setShortcut(QKeySequence::Copy);
    actions_.back()->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(actions_.back());
    add(tr("Show the &Running Period"), "ShowRunningAction",
        &DashaTreePanel::ShowRunningActionExecute);
}

QString DashaTreePanel::title() const
{
    return tr("Dashas");
}

QList<QAction*> DashaTreePanel::panelActions()
{
    const bool onPeriod = tree_->currentIndex().isValid();
    const bool dated = onPeriod && shown_ && shown_->chart.hasMoment;
    for (QAction* const action : std::as_const(actions_)) {
        action->setEnabled(onPeriod);
    }
    actions_[0]->setEnabled(dated);
    actions_[1]->setEnabled(dated);
    actions_.back()->setEnabled(shown_ != nullptr);
    return actions_;
}

void DashaTreePanel::refresh()
{
    const ChartPointer chart = this->chart();
    system_->setCurrentIndex(choice_.system());
    makeStandard_->setVisible(!choice_.isStandard());
    if (!chart) {
        shown_.reset();
        model_->clear();
        balance_->clear();
        note_->setText(tr("No chart is open."));
        note_->show();
        tree_->hide();
        return;
    }
    if (chart != shown_ || choice_.system() != shownSystem_ ||
        !(workspace().settings() == shownSettings_)) {
        rebuild(chart);
    }
    if (tree_->isVisibleTo(this)) {
        openAtMoment();
    }
}

void DashaTreePanel::rebuild(const ChartPointer& shown)
{
    shown_ = shown;
    shownSystem_ = choice_.system();
    shownSettings_ = workspace().settings();
    const std::optional<timing::DashaBalance> balance = timing::balanceAtBirth(shown->chart);
    const QString line = balance ? toQt(timing::balanceLine(*balance)) : QString();
    balance_->setText(line);
    balance_->setToolTip(line);
    core::Result<timing::Dasha> dasha = choice_.dashaOf(shown);
    tree_->setVisible(dasha.ok());
    QString note = dasha ? QString() : tr("Not computed: %1").arg(toQt(dasha.error().text()));
    if (dasha && shown->chart.daylightSaving != 0) {
        note = tr("Dates and times are on the clock of the zone, without saving time.");
    }
    note_->setText(note);
    note_->setVisible(!note.isEmpty());
    if (!dasha) {
        model_->clear();
        return;
    }
    model_->setDasha(shown, workspace().data(),
                     {choice_.options(shown), std::move(dasha.value()), {}, {}, {}, {}});
    tree_->setAccessibleName(tr("Periods of %1").arg(toQt(present::dashaSystemName(shownSystem_))));
}

// Opens the branch that runs at the shared date; what else is open stays so.
void DashaTreePanel::openAtMoment()
{
    const core::Result<timing::Dasha> dasha = choice_.dashaOf(shown_);
    if (!dasha || !shown_->chart.hasMoment) {
        fitColumns();
        return;
    }
    const QModelIndexList path = model_->setAge(dasha.value().calendar.ageAt(workspace().moment()),
                                                workspace().settings().dashaLevels);
    for (qsizetype i = 0; i + 1 < path.size(); ++i) {
        tree_->expand(path[i]);
    }
    fitColumns();
    // Who works in the tree moves the date from there, and must not lose the place.
    const bool lost = !tree_->currentIndex().isValid();
    if (!path.isEmpty() && (lost || !tree_->hasFocus())) {
        opening_ = true;
        tree_->setCurrentIndex(path.back());
        opening_ = false;
        tree_->scrollTo(path.back(), QAbstractItemView::PositionAtCenter);
        tree_->horizontalScrollBar()->setValue(0); // the names, wherever there is little room
    }
    tree_->viewport()->update();
}

void DashaTreePanel::fitColumns()
{
    for (int column = 0; column < model_->columnCount({}); ++column) {
        tree_->resizeColumnToContents(column);
    }
}

// What the user selects is inspected; the period that the tree opens at is not.
void DashaTreePanel::chooseLord(const QModelIndex& index)
{
    if (index.isValid() && tree_->hasFocus() && !opening_) {
        choose(present::dashaLordLink(model_->lordKind(), model_->period(index).lord()));
    }
}

// The selected period and what is open below it, as columns for spreadsheets.
void DashaTreePanel::copyRows() const
{
    const QModelIndex first = tree_->currentIndex().siblingAtColumn(0);
    if (!first.isValid()) {
        return;
    }
    QString text;
    for (QModelIndex index = first; index.isValid(); index = tree_->indexBelow(index)) {
        if (index != first && model_->period(index).level <= model_->period(first).level) {
            break;
        }
        QStringList words;
        for (int column = 0; column < model_->columnCount({}); ++column) {
            words += index.siblingAtColumn(column).data().toString();
        }
        text += words.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    QApplication::clipboard()->setText(text);
}

core::Result<present::DashaResult> DashaTreePanel::listed() const
{
    const ChartPointer chart = this->chart();
    if (!chart) {
        return core::Error{"No chart is open."};
    }
    core::Result<timing::Dasha> dasha = choice_.dashaOf(chart);
    if (!dasha) {
        return dasha.error();
    }
    present::DashaResult result{choice_.options(chart), std::move(dasha.value()), {}, {}, {}, {}};
    const timing::DashaSpan span{chart->settings.dashaLevels, 0.0, present::kLifeYears};
    for (const timing::DashaPeriod& period : timing::DashaList(result.dasha, span)) {
        result.periods.push_back(period);
    }
    return result;
}

std::vector<present::Block> DashaTreePanel::blocks()
{
    const auto result = listed();
    if (!result) {
        return {};
    }
    return {present::dashaSummary(*chart(), result.value()),
            present::dashaPeriodsTable(*chart(), result.value())};
}

void DashaTreePanel::DashaSystemComboBoxActivated(int system)
{
    choice_.choose(system);
}

void DashaTreePanel::MakeStandardButtonClick()
{
    choice_.makeStandard();
}

void DashaTreePanel::SetToStartActionExecute()
{
    if (tree_->currentIndex().isValid()) {
        workspace().setMoment(model_->period(tree_->currentIndex()).startJulianDay);
    }
}

void DashaTreePanel::ShowRunningActionExecute()
{
    if (shown_) {
        tree_->setCurrentIndex({});
        openAtMoment();
    }
}

void DashaTreePanel::SelectLordActionExecute()
{
    if (tree_->currentIndex().isValid()) {
        const int lord = model_->period(tree_->currentIndex()).lord();
        choose(present::dashaLordLink(model_->lordKind(), lord));
    }
}

void DashaTreePanel::SetToEndActionExecute()
{
    if (tree_->currentIndex().isValid()) {
        workspace().setMoment(model_->endOf(tree_->currentIndex()));
    }
}

} // namespace kestrav::desktop
