#include "app/desktop/database/ChartListPane.h"

#include "app/desktop/database/ChartListModel.h"
#include "app/desktop/database/ChartSections.h"
#include "app/desktop/database/ResearchKeys.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/shell/Workspace.h"
#include "data/ResearchDatabase.h"

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr char kSortKey[] = "chartList/sort";

// How much of the pane the sections get when nobody has moved the handle.
constexpr int kListShare = 4;

QLabel* quietLabel(QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ChartListPane::ChartListPane(Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace), model_(new ChartListModel(workspace, this)),
      reading_(new BackgroundWork(this)), filter_(new QLineEdit(this)), sort_(new QComboBox(this)),
      label_(new QComboBox(this)), reloadBar_(new QFrame(this)), reloadText_(quietLabel(this)),
      list_(new QTreeView(this)), count_(quietLabel(this)), hint_(quietLabel(list_->viewport())),
      sections_(new ChartSections(workspace, this))
{
    setObjectName(QStringLiteral("ChartListPane"));
    setAccessibleName(tr("Charts"));
    makeChoosers();
    makeList();
    makeReloadBar();
    arrange();
    fitColumns();
    OpenDatabase& database = workspace_.database();
    connect(&database, &OpenDatabase::opened, this, [this] {
        reloadBar_->hide();
        readResearch();
    });
    connect(&database, &OpenDatabase::modifiedChanged, this, [this] {
        if (!workspace_.database().modified() && !workspace_.database().charts().changedOnDisk()) {
            reloadBar_->hide();
        }
    });
    connect(&workspace_, &Workspace::chartChanged, this, &ChartListPane::ChartChanged);
    connect(&workspace_, &Workspace::settingsChanged, this, [this] { fillLabels(); });
    readResearch();
    showCount();
    connect(sections_, &ChartSections::chartOpened, this, &ChartListPane::chartOpened);
    connect(sections_, &ChartSections::fileWanted, this, &ChartListPane::fileWanted);
}

void ChartListPane::showRecentFiles()
{
    sections_->showRecentFiles();
}

void ChartListPane::makeChoosers()
{
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setAccessibleName(tr("Filter charts"));
    filter_->setPlaceholderText(tr("Filter by name or date"));
    filter_->setClearButtonEnabled(true);
    filter_->installEventFilter(this);
    connect(filter_, &QLineEdit::textChanged, this, &ChartListPane::FilterEditTextChanged);

    sort_->setObjectName(QStringLiteral("SortComboBox"));
    sort_->setAccessibleName(tr("Order and groups"));
    sort_->setToolTip(tr("Which charts are listed, and in which order"));
    for (int i = 0; i < data::kSortOrders; ++i) {
        sort_->addItem(toQt(data::sortOrderText(i)));
    }
    const int kept = stateOfWindow().value(kSortKey).toInt();
    sort_->setCurrentIndex(std::clamp(kept, 0, data::kSortOrders - 1));
    model_->setSort(data::SortOrder(sort_->currentIndex()));
    connect(sort_, &QComboBox::activated, this, &ChartListPane::SortComboBoxActivated);

    label_->setObjectName(QStringLiteral("LabelComboBox"));
    label_->setAccessibleName(tr("Labels from the research database"));
    label_->setToolTip(tr("Orders and labels the charts by what the research database says"));
    for (QComboBox* const box : {sort_, label_}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(8);
    }
    connect(label_, &QComboBox::activated, this, &ChartListPane::LabelComboBoxActivated);
    fillLabels();
    label_->hide();
}

void ChartListPane::makeList()
{
    list_->setObjectName(QStringLiteral("ChartList"));
    list_->setAccessibleName(tr("Charts of the database"));
    list_->setModel(model_);
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setDragEnabled(true);
    list_->setDragDropMode(QAbstractItemView::DragOnly);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    list_->setTabKeyNavigation(false);
    list_->setColumnHidden(ChartListModel::LabelColumn, true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionsMovable(false);
    list_->installEventFilter(this);
    connect(list_, &QTreeView::doubleClicked, this, [this] { openCurrent(false); });
    connect(list_, &QWidget::customContextMenuRequested, this, &ChartListPane::ListContextMenu);
    connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, &ChartListPane::keepSelection);
    connect(model_, &QAbstractItemModel::modelReset, this, &ChartListPane::restoreSelection);
    connect(&workspace_.database(), &OpenDatabase::linesEdited, this, &ChartListPane::showColumns);
    connect(&workspace_.database(), &OpenDatabase::reset, this, &ChartListPane::showColumns);
    for (const auto signal :
         {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(model_, signal, this, &ChartListPane::showCount);
    }
    // What was selected is gone; the row that stands there now takes its place.
    connect(model_, &QAbstractItemModel::rowsRemoved, this, [this] {
        if (selectedLines().empty() && list_->currentIndex().isValid()) {
            makeCurrent(list_->currentIndex());
        }
    });
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ChartListPane::showCount);
    hint_->setObjectName(QStringLiteral("EmptyListLabel"));
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setWordWrap(true);
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const inside = new QVBoxLayout(list_->viewport());
    inside->addWidget(hint_);
    count_->setObjectName(QStringLiteral("CountLabel"));
    count_->setAccessibleName(tr("Number of charts"));
}

void ChartListPane::makeReloadBar()
{
    reloadBar_->setObjectName(QStringLiteral("ReloadBar"));
    reloadBar_->setAutoFillBackground(true);
    reloadText_->setObjectName(QStringLiteral("ReloadLabel"));
    reloadText_->setWordWrap(true);
    auto* const reload = new QPushButton(tr("&Reload"), reloadBar_);
    reload->setObjectName(QStringLiteral("ReloadButton"));
    auto* const keep = new QPushButton(tr("&Keep Mine"), reloadBar_);
    keep->setObjectName(QStringLiteral("KeepButton"));
    connect(reload, &QPushButton::clicked, this, &ChartListPane::reloadWanted);
    connect(keep, &QPushButton::clicked, reloadBar_, &QWidget::hide);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(reload);
    buttons->addWidget(keep);
    buttons->addStretch(1);
    auto* const box = new QVBoxLayout(reloadBar_);
    box->addWidget(reloadText_);
    box->addLayout(buttons);
    reloadBar_->hide();
}

void ChartListPane::arrange()
{
    auto* const top = new QWidget(this);
    auto* const box = new QVBoxLayout(top);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(gap, gap, gap, 0);
    box->setSpacing(gap);
    box->addWidget(filter_);
    auto* const choosers = new QHBoxLayout;
    choosers->addWidget(sort_, 1);
    choosers->addWidget(label_, 1);
    box->addLayout(choosers);
    box->addWidget(reloadBar_);
    box->addWidget(list_, 1);
    box->addWidget(count_);
    auto* const bottom = new QWidget(this);
    auto* const bottomBox = new QVBoxLayout(bottom);
    bottomBox->setContentsMargins(gap, 0, gap, gap);
    bottomBox->addWidget(sections_);
    auto* const splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName(QStringLiteral("ChartListSplitter"));
    splitter->addWidget(top);
    splitter->addWidget(bottom);
    splitter->setStretchFactor(0, kListShare);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins({});
    whole->addWidget(splitter);
    setTabOrder(filter_, sort_);
    setTabOrder(sort_, label_);
    setTabOrder(label_, list_);
    setTabOrder(list_, sections_);
}

void ChartListPane::fitColumns()
{
    QHeaderView& header = *list_->header();
    // The shown chart is bold, so its date is the widest.
    QFont bold = list_->font();
    bold.setBold(true);
    const QFontMetrics letters(bold);
    const int margin = 2 * letters.averageCharWidth();
    header.setMinimumSectionSize(letters.averageCharWidth());
    header.setSectionResizeMode(QHeaderView::Interactive);
    header.setSectionResizeMode(ChartListModel::NameColumn, QHeaderView::Stretch);
    const auto width = [&](ChartListModel::Column column, const QString& text) {
        const QString title =
            model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        header.resizeSection(
            column,
            std::max(letters.horizontalAdvance(text), letters.horizontalAdvance(title)) + margin);
    };
    width(ChartListModel::DateColumn, QStringLiteral("00/00/0000"));
    width(ChartListModel::TimeColumn, QStringLiteral("00:00"));
    width(ChartListModel::TagColumn, QStringLiteral("A"));
    width(ChartListModel::LabelColumn, QStringLiteral("Sagittarius  (Trop. Sun)"));
    showColumns();
}

void ChartListPane::showColumns()
{
    const auto& rows = workspace_.database().list().rows;
    const bool tagged =
        std::any_of(rows.begin(), rows.end(), [](const auto& row) { return row.tag != L' '; });
    const bool labelled = label_->currentIndex() > 0;
    constexpr int kLettersOfName = 20;
    int room = list_->viewport()->width() - kLettersOfName * fontMetrics().averageCharWidth();
    const auto showWhereRoom = [&](ChartListModel::Column column, bool wanted) {
        // A hidden section has no size of its own until it is shown.
        list_->setColumnHidden(column, !wanted);
        const int size = list_->columnWidth(column);
        list_->setColumnHidden(column, !wanted || size > room);
        room -= list_->columnWidth(column);
    };
    // Names come first; what else there is room for, in this order.
    list_->setColumnHidden(ChartListModel::LabelColumn, !labelled);
    room -= list_->columnWidth(ChartListModel::LabelColumn);
    showWhereRoom(ChartListModel::TagColumn, tagged);
    showWhereRoom(ChartListModel::DateColumn, true);
    // A time says nothing without its date.
    showWhereRoom(ChartListModel::TimeColumn, !list_->isColumnHidden(ChartListModel::DateColumn));
}

QSize ChartListPane::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 46, fontMetrics().height() * 40};
}

void ChartListPane::fillLabels()
{
    const int chosen = std::max(label_->currentIndex(), 0);
    label_->clear();
    label_->addItem(tr("No labels"));
    for (const data::ResearchKey& key : researchKeys()) {
        label_->addItem(researchKeyText(key));
    }
    label_->setCurrentIndex(chosen);
}

void ChartListPane::readResearch()
{
    const std::filesystem::path path = workspace_.database().path();
    reading_->start([path](const WorkHandle&) { return data::loadResearch(path); },
                    [this](core::Result<data::LineList> lines) {
                        const bool has = lines.ok() && lines.value().size() > 0;
                        label_->setVisible(has);
                        if (!has && label_->currentIndex() > 0) {
                            label_->setCurrentIndex(0);
                            LabelComboBoxActivated(0);
                        }
                        model_->setResearch(has ? std::move(lines.value()) : data::LineList());
                    });
}

std::vector<std::size_t> ChartListPane::selectedLines() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : list_->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::vector<std::size_t> lines;
    lines.reserve(rows.size());
    for (const int row : rows) {
        lines.push_back(model_->lineAt(row));
    }
    return lines;
}

void ChartListPane::focusFilter()
{
    show();
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
}

bool ChartListPane::editName(std::size_t line)
{
    const std::optional<int> row = model_->positionOf(line);
    if (row) {
        show();
        const QModelIndex index = model_->index(*row, ChartListModel::NameColumn);
        makeCurrent(index);
        list_->setFocus(Qt::ShortcutFocusReason);
        list_->edit(index);
    }
    return row.has_value();
}

// Alone, also while Ctrl or Shift is held for the key that led here.
void ChartListPane::makeCurrent(const QModelIndex& index)
{
    list_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                        QItemSelectionModel::Rows);
}

void ChartListPane::selectLine(std::size_t line)
{
    if (const std::optional<int> row = model_->positionOf(line)) {
        makeCurrent(model_->index(*row, 0));
    }
}

void ChartListPane::offerReload(const QString& file)
{
    QPalette palette;
    palette.setColor(QPalette::Window, themeColour(ThemeRole::News));
    reloadBar_->setPalette(palette);
    reloadText_->setText(tr("%1 was changed by another program.").arg(file));
    reloadBar_->setAccessibleName(reloadText_->text());
    reloadBar_->show();
}

void ChartListPane::showCount()
{
    const QLocale locale = QLocale::c();
    const int shown = model_->rowCount();
    const auto all = qlonglong(workspace_.database().list().rows.size());
    const auto selected = qlonglong(selectedLines().size());
    QString text = shown == all
                       ? (all == 1 ? tr("1 chart") : tr("%1 charts").arg(locale.toString(all)))
                       : tr("%1 of %2 charts").arg(locale.toString(shown), locale.toString(all));
    if (selected > 1) {
        text += tr(", %1 selected").arg(locale.toString(selected));
    }
    count_->setText(text);
    // A list that shows nothing says why.
    const bool damaged = !workspace_.database().list().tooShort.empty();
    hint_->setText(all > 0   ? tr("No chart fits the filter and the group chosen above.")
                   : damaged ? tr("No line of this file is a chart.")
                             : tr("There are no charts yet. Chart / New Chart enters one."));
    hint_->setVisible(shown == 0);
}

void ChartListPane::keepSelection()
{
    keptLines_ = selectedLines();
    const QModelIndex current = list_->currentIndex();
    keptCurrent_.reset();
    if (current.isValid() && current.row() < model_->rowCount()) {
        keptCurrent_ = model_->lineAt(current.row());
    }
}

void ChartListPane::restoreSelection()
{
    constexpr std::size_t kMostKept = 100;
    std::optional<int> current = keptCurrent_ ? model_->positionOf(*keptCurrent_) : std::nullopt;
    if (!current && model_->rowCount() > 0 && !filter_->text().isEmpty()) {
        current = 0;
    }
    if (current) {
        makeCurrent(model_->index(*current, 0));
    }
    if (keptLines_.size() > 1 && keptLines_.size() <= kMostKept) {
        for (const std::size_t line : keptLines_) {
            if (const std::optional<int> row = model_->positionOf(line)) {
                list_->selectionModel()->select(model_->index(*row, 0),
                                                QItemSelectionModel::Select |
                                                    QItemSelectionModel::Rows);
            }
        }
    }
    showCount();
}

bool ChartListPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == list_ && event->type() == QEvent::Resize) {
        showColumns();
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* const pressed = static_cast<QKeyEvent*>(event);
        const bool plain = (pressed->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        // Keys that a name being typed leaves over come by here as well.
        if (plain && watched == list_ && list_->hasFocus() && listKey(pressed->key())) {
            return true;
        }
        if (plain && watched == filter_ && filterKey(pressed->key())) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool ChartListPane::listKey(int key)
{
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (enter || key == Qt::Key_Space) {
        openCurrent(!enter);
        return true;
    }
    return false;
}

bool ChartListPane::filterKey(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openCurrent(false);
        return true;
    case Qt::Key_Down:
        list_->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Escape:
        filter_->clear();
        list_->setFocus(Qt::TabFocusReason);
        return true;
    default:
        return false;
    }
}

void ChartListPane::openCurrent(bool preview)
{
    const QModelIndex current = list_->currentIndex();
    if (!current.isValid() || current.row() >= model_->rowCount()) {
        return;
    }
    const bool before = std::exchange(previewing_, preview);
    const bool shown = workspace_.showLine(model_->lineAt(current.row()));
    previewing_ = before;
    if (shown && !preview) {
        emit chartOpened();
    }
}

void ChartListPane::ChartChanged()
{
    if (workspace_.chart() && workspace_.chartLine() && !previewing_) {
        sections_->noteOpened();
        selectLine(*workspace_.chartLine());
    }
}

void ChartListPane::ListContextMenu(const QPoint& position)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("ChartListMenu"));
    const bool any = list_->currentIndex().isValid();
    QAction* const open = menu.addAction(tr("&Open"), this, [this] { openCurrent(false); });
    QAction* const second = menu.addAction(tr("Open as &Second Chart"), this, [this] {
        if (const auto record =
                workspace_.database().record(model_->lineAt(list_->currentIndex().row()))) {
            workspace_.showSecond(*record);
        }
    });
    open->setEnabled(any);
    second->setEnabled(any);
    menu.addSeparator();
    emit menuWanted(&menu);
    menu.exec(list_->viewport()->mapToGlobal(position));
}

void ChartListPane::FilterEditTextChanged(const QString& text)
{
    model_->setFilter(text);
}

void ChartListPane::SortComboBoxActivated(int index)
{
    model_->setSort(data::SortOrder(index));
    stateOfWindow().setValue(kSortKey, index);
}

void ChartListPane::LabelComboBoxActivated(int index)
{
    const bool labelled = index > 0;
    showColumns();
    model_->setLabels(labelled ? std::optional(researchKeys()[std::size_t(index) - 1])
                               : std::nullopt);
}

void ChartListPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fitColumns();
    }
}

} // namespace kestrav::desktop
