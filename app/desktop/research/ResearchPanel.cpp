#include "app/desktop/research/ResearchPanel.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/panels/TColumnsDlg.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableModel.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/research/BarChartView.h"
#include "app/desktop/research/ResearchPurpose.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/WorkBar.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kUsualBars = 12;
constexpr int kMostBars = 1000;
constexpr char kColumnsKey[] = "research/columns";
constexpr const char* kUsualColumns[] = {"name",      "sex",          "ascendant.sign",
                                         "sun.sign",  "moon.sign",    "moon.nakshatra",
                                         "mars.sign", "jupiter.sign", "saturn.sign"};

// The columns by their keys; those that do not exist are left out.
std::vector<std::size_t> columnsOf(const QStringList& keys)
{
    std::vector<std::size_t> columns;
    for (const QString& key : keys) {
        if (const auto column = yoga::findResearchColumn(toUtf8(key))) {
            columns.push_back(*column);
        }
    }
    return columns;
}

QStringList usualColumns()
{
    QStringList keys;
    for (const char* const key : kUsualColumns) {
        keys += QLatin1String(key);
    }
    return keys;
}

QStringList allHeadings()
{
    QStringList headings;
    for (const yoga::ResearchColumn& column : yoga::researchColumns()) {
        headings += toQt(yoga::columnHeading(column));
    }
    return headings;
}

} // namespace

// Everything that a table is made of, for a worker.
struct ResearchPanel::Request
{
    ResearchPointer research;
    SearchedPointer found; ///< null for charts that do not depend on a search
    std::optional<wchar_t> tag;
    int show = 0;
    std::vector<std::size_t> columns;
    std::size_t by = 0;
    std::vector<std::size_t> averages;
    std::size_t bars = kUsualBars;

    bool operator==(const Request&) const = default;

    [[nodiscard]] yoga::ResearchTable table() const
    {
        if (found) {
            return {research->lines, found->finds.lines};
        }
        return tag ? yoga::ResearchTable(research->lines, research->charts, *tag)
                   : yoga::ResearchTable(research->lines);
    }
};

ResearchPanel::ResearchPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), desk_(ResearchDesk::of(workspace)),
      findings_(YogaFindings::of(workspace)),
      refreshAction_(new QAction(tr("&Refresh Research Database"), this)),
      show_(new QComboBox(this)), by_(new QComboBox(this)), average_(new QComboBox(this)),
      bars_(new QSpinBox(this)), charts_(new QComboBox(this)),
      byLabel_(new QLabel(tr("&by"), this)), averageLabel_(new QLabel(tr("avera&ge of"), this)),
      barsLabel_(new QLabel(tr("ba&rs"), this)), columnsButton_(new QToolButton(this)),
      refreshButton_(new QToolButton(this)), note_(new QLabel(this)), count_(new QLabel(this)),
      stack_(new QStackedWidget(this)), table_(new TableView(this)), chart_(new BarChartView(this)),
      bar_(new WorkBar(desk_.work(), this)), choosers_(new QWidget(this)),
      purpose_(new ResearchPurpose(refreshAction_, this))
{
    setObjectName(QStringLiteral("ResearchPanel"));
    columns_ = columnsOf(stateOfWindow().value(kColumnsKey, usualColumns()).toStringList());
    makeChoosers();
    table_->setObjectName(QStringLiteral("ResearchView"));
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    note_->setObjectName(QStringLiteral("ResearchLabel"));
    note_->setWordWrap(true);
    note_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* const scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("GraphArea"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(chart_);
    stack_->addWidget(table_);
    stack_->addWidget(scroll);

    columnsAction_ = new QAction(tr("&Columns..."), this);
    connect(columnsAction_, &QAction::triggered, this, &ResearchPanel::ColumnsActionTriggered);
    openAction_ = new QAction(tr("&Open Chart"), this);
    connect(openAction_, &QAction::triggered, this, &ResearchPanel::openRow);
    connect(refreshAction_, &QAction::triggered, this, &ResearchPanel::RefreshButtonClick);
    actions_ = {columnsAction_, openAction_, refreshAction_};
    actions_ += tableActions(this, workspace, table_);
    columnsButton_->setObjectName(QStringLiteral("ColumnsButton"));
    columnsButton_->setDefaultAction(columnsAction_);
    columnsButton_->setText(tr("Columns..."));
    refreshButton_->setObjectName(QStringLiteral("RefreshButton"));
    refreshButton_->setDefaultAction(refreshAction_);
    refreshButton_->setText(tr("Refresh"));

    const int gap = fontMetrics().height() / 3;
    auto* const row = new FlowLayout(gap);
    row->setContentsMargins({});
    row->addWidget(show_);
    row->addTogether({byLabel_, by_});
    row->addTogether({averageLabel_, average_});
    row->addTogether({barsLabel_, bars_});
    row->addWidget(columnsButton_);
    row->addStretch();
    row->addWidget(bar_);
    row->addWidget(count_);
    row->addWidget(charts_);
    row->addWidget(refreshButton_);
    choosers_->setLayout(row);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(gap, gap, gap, gap);
    box->addWidget(choosers_);
    box->addWidget(note_);
    box->addWidget(stack_, 1);
    box->addWidget(purpose_, 1);
    setFocusProxy(table_);

    dependOn(OnDatabase | OnSettings);
    connect(&desk_, &ResearchDesk::changed, this, [this] { markDue(); });
    connect(&findings_, &YogaFindings::changed, this, [this] { markDue(); });
    connect(&workspace, &Workspace::settingsChanged, this, [this] { shown_.reset(); });
    connect(table_, &QTableView::activated, this, &ResearchPanel::openRow);
    enableChoosers();
}

void ResearchPanel::makeChoosers()
{
    const auto chooser = [this](QComboBox* box, const char* name, const QString& meaning) {
        box->setObjectName(QLatin1String(name));
        box->setAccessibleName(meaning);
        box->setToolTip(meaning);
        connect(box, &QComboBox::activated, this, [this] {
            enableChoosers();
            markDue();
        });
    };
    chooser(show_, "ShowComboBox", tr("What is shown"));
    chooser(by_, "GroupComboBox", tr("Column by whose values the charts are counted"));
    chooser(average_, "AverageComboBox", tr("Column of which groups have the average"));
    chooser(charts_, "ChartsComboBox", tr("Which charts are looked at"));
    show_->addItems({tr("Charts"), tr("Groups"), tr("Graph")});
    charts_->addItems(
        {tr("All charts"), tr("A group"), tr("B group"), tr("Natives with the yoga")});
    byLabel_->setBuddy(by_);
    averageLabel_->setBuddy(average_);
    barsLabel_->setBuddy(bars_);
    bars_->setObjectName(QStringLiteral("BarsSpinBox"));
    bars_->setAccessibleName(tr("Bars of a graph of numbers"));
    bars_->setRange(1, kMostBars);
    bars_->setValue(kUsualBars);
    bars_->setKeyboardTracking(false);
    connect(bars_, &QSpinBox::valueChanged, this, [this] { markDue(); });
    fillColumnChoosers();
    by_->setCurrentIndex(std::max(
        0, by_->findData(qulonglong(yoga::findResearchColumn("moon.nakshatra").value_or(0)))));
}

// The headings are in the language of the display, which can change.
void ResearchPanel::fillColumnChoosers()
{
    const QStringList headings = allHeadings();
    if (by_->count() == headings.size() && by_->itemText(by_->count() - 1) == headings.last() &&
        by_->itemText(4) == headings[4]) {
        return;
    }
    const QVariant by = by_->currentData();
    const QVariant average = average_->currentData();
    by_->clear();
    average_->clear();
    average_->addItem(tr("nothing"));
    for (std::size_t i = 0; i < std::size_t(headings.size()); ++i) {
        by_->addItem(headings[qsizetype(i)], qulonglong(i));
        const yoga::ColumnType type = yoga::researchColumns()[i].type;
        if (type == yoga::ColumnType::Number || type == yoga::ColumnType::Angle ||
            type == yoga::ColumnType::Clock) {
            average_->addItem(headings[qsizetype(i)], qulonglong(i));
        }
    }
    by_->setCurrentIndex(std::max(0, by_->findData(by)));
    average_->setCurrentIndex(average.isValid() ? std::max(0, average_->findData(average)) : 0);
    const int most = fontMetrics().averageCharWidth() * 18;
    by_->setMaximumWidth(most * 2);
    average_->setMaximumWidth(most * 2);
}

ResearchPanel::Show ResearchPanel::shows() const
{
    return Show(std::max(0, show_->currentIndex()));
}

void ResearchPanel::enableChoosers()
{
    const Show what = shows();
    byLabel_->setVisible(what != Charts);
    by_->setVisible(what != Charts);
    averageLabel_->setVisible(what == Groups);
    average_->setVisible(what == Groups);
    barsLabel_->setVisible(what == Graph);
    bars_->setVisible(what == Graph);
    columnsButton_->setVisible(what == Charts);
    columnsAction_->setEnabled(what == Charts);
    openAction_->setEnabled(what == Charts);
}

QString ResearchPanel::title() const
{
    return tr("Research table");
}

QList<QAction*> ResearchPanel::panelActions()
{
    return actions_;
}

std::vector<present::Block> ResearchPanel::blocks()
{
    refreshNow();
    if (table_->table().columns.empty()) {
        return {present::Paragraph{toWide(note_->text())}};
    }
    if (shows() != Graph) {
        return {table_->table()};
    }
    const present::DisplayList drawing = chart_->drawingForPaper();
    return {present::DrawingRow{{{drawing, drawing.description}}}, table_->table()};
}

void ResearchPanel::refresh()
{
    fillColumnChoosers();
    const ResearchPointer& research = desk_.research();
    if (!research) {
        making_.cancel();
        shown_.reset();
        if (!desk_.work().running()) {
            desk_.read();
        }
        show({});
        return;
    }
    if (research->lines.size() == 0) {
        making_.cancel();
        shown_.reset();
        show({});
        return;
    }
    Request request;
    request.research = research;
    request.show = int(shows());
    request.columns = columns_;
    request.by = std::size_t(by_->currentData().toULongLong());
    if (average_->currentData().isValid()) {
        request.averages = {std::size_t(average_->currentData().toULongLong())};
    }
    request.bars = std::size_t(bars_->value());
    switch (charts_->currentIndex()) {
    case GroupA:
        request.tag = L'A';
        break;
    case GroupB:
        request.tag = L'B';
        break;
    case Found:
        request.found = findings_.last();
        if (request.found) {
            request.research = request.found->research;
        } else {
            // Without a search there is nothing to look at.
            request.found = std::make_shared<SearchedYoga>();
        }
        break;
    default:
        break;
    }
    // What a new chart on the screen does not change stays, with its selection.
    if (shown_ && *shown_ == request) {
        return;
    }
    shown_ = std::make_shared<const Request>(request);
    making_.start(
        [request](const WorkHandle& /*handle*/) {
            const yoga::ResearchTable table = request.table();
            Made made;
            if (request.show == Graph) {
                made.bars = present::researchGraph(table, request.by, request.bars);
                made.table = present::barTable(made.bars);
            } else {
                made.table = request.show == Groups
                                 ? present::researchGroups(table, request.by, request.averages)
                                 : present::researchRows(table, request.columns);
            }
            return made;
        },
        [this](Made made) { show(std::move(made)); });
}

void ResearchPanel::show(Made made)
{
    if (made.table.id != table_->table().id) {
        // Another table begins in its own order.
        table_->sortByColumn(-1, Qt::AscendingOrder);
    }
    // Moved, because it may have a row for each of very many charts.
    table_->setTable(std::move(made.table));
    const present::Table& table = table_->table();
    table_->setAccessibleName(title() + QStringLiteral(": ") + toQt(table.title));
    chart_->setModel(std::move(made.bars));
    stack_->setCurrentIndex(shows() == Graph ? 1 : 0);
    stack_->setVisible(!table.rows.empty());
    count_->setText(shows() == Charts ? toQt(table.title) : QString());
    showNote();
}

void ResearchPanel::showNote()
{
    QString note;
    const ResearchPointer& research = desk_.research();
    if (workspace().database().path().empty()) {
        note = tr("No database is open.");
    } else if (research && research->state != data::ResearchState::Fresh) {
        note = toQt(data::researchStateText(research->state));
    } else if (charts_->currentIndex() == Found && !findings_.last()) {
        note = tr("No yoga was searched yet.");
    }
    note_->setText(note);
    // Without lines there is nothing to choose from, and the page says what it would be for.
    const bool nothing = research ? research->lines.size() == 0 : !desk_.work().running();
    purpose_->setVisible(nothing);
    choosers_->setVisible(!nothing);
    note_->setVisible(!nothing && !note.isEmpty());
    if (nothing) {
        purpose_->show(note, workspace().database().charts(),
                       research ? research->state : data::ResearchState::Missing);
    }
}

void ResearchPanel::remember() const
{
    QStringList keys;
    for (const std::size_t column : columns_) {
        keys += toQt(yoga::researchColumns()[column].key);
    }
    stateOfWindow().setValue(kColumnsKey, keys);
}

void ResearchPanel::ColumnsActionTriggered()
{
    TColumnsDlg dialog(allHeadings(), columns_, this);
    if (dialog.exec() == QDialog::Accepted) {
        columns_ = dialog.shown();
        remember();
        markDue();
    }
}

void ResearchPanel::RefreshButtonClick()
{
    desk_.refresh();
}

void ResearchPanel::openRow()
{
    if (shows() != Charts) {
        return;
    }
    const auto* const model = static_cast<const TableModel*>(table_->model());
    const present::Cell* const cell = model->cell(table_->currentIndex().siblingAtColumn(0));
    const auto line = cell != nullptr ? present::lineOfRow({*cell}) : std::nullopt;
    if (line && *line < workspace().database().charts().size()) {
        workspace().showLine(*line);
    }
}

} // namespace kestrav::desktop
