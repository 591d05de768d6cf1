#include "app/desktop/entry/EventsTable.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/TypedDate.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <tuple>

namespace kestrav::desktop
{

namespace
{

enum Column
{
    kName,
    kDate,
    kTime,
    kState,
    kColumns,
};

// Editors that take no more characters than a line keeps.
class EventDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override
    {
        constexpr int kMostDate = 16;
        QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* const edit = qobject_cast<QLineEdit*>(editor)) {
            edit->setMaxLength(index.column() == kName   ? int(data::kEventNameLength)
                               : index.column() == kDate ? kMostDate
                                                         : int(data::kTimeLength));
        }
        return editor;
    }
};

// The two decimals in which a line keeps hours tell whole minutes apart and no more.
QString minuteText(double hours)
{
    const double minutes = std::round(hours * 60.0) / 60.0;
    return toQt(data::timeText(std::isfinite(minutes) ? minutes : 0.0));
}

} // namespace

EventsTable::EventsTable(QWidget* parent) : QTableWidget(core::kLifeEvents, kColumns, parent)
{
    setObjectName(QStringLiteral("EventsTable"));
    setAccessibleName(tr("Events"));
    setItemDelegate(new EventDelegate(this));
    setTabKeyNavigation(false);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    horizontalHeader()->setSectionResizeMode(kName, QHeaderView::Stretch);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    setColumnWidth(kDate, 14 * digit);
    setColumnWidth(kTime, 11 * digit);
    horizontalHeader()->setSectionResizeMode(kState, QHeaderView::ResizeToContents);
    horizontalHeader()->setMinimumSectionSize(8 * digit);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 8 / 5);
    setMinimumWidth(64 * digit);
    connect(this, &QTableWidget::cellChanged, this, [this](int row, int column) {
        if (!filling_ && column != kState) {
            showState(row);
            emit edited();
        }
    });
}

void EventsTable::setEvents(const LifeEvents& events, data::DateOrder order)
{
    filled_ = events;
    order_ = order;
    const QString dateTitle =
        order == data::DateOrder::DayFirst ? tr("Day/month/year") : tr("Month/day/year");
    setHorizontalHeaderLabels({tr("Event"), dateTitle, tr("Time"), tr("Use")});
    filling_ = true;
    for (int row = 0; row < core::kLifeEvents; ++row) {
        const core::LifeEvent& event = events[std::size_t(row)];
        auto& texts = filledTexts_[std::size_t(row)];
        texts = {};
        if (!event.name.empty()) {
            texts = {toQt(event.name), toQt(present::typedDate(event.date, order)),
                     minuteText(event.hours)};
        }
        for (int column = 0; column < kColumns; ++column) {
            auto* const cell = new QTableWidgetItem;
            if (column == kState) {
                cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            } else {
                cell->setText(texts[std::size_t(column)]);
            }
            setItem(row, column, cell);
        }
    }
    filling_ = false;
    for (int row = 0; row < core::kLifeEvents; ++row) {
        showState(row);
    }
    setCurrentCell(0, kName);
}

QString EventsTable::textOf(int row, int column) const
{
    const QTableWidgetItem* const cell = item(row, column);
    return cell != nullptr ? cell->text().trimmed() : QString();
}

EventsTable::Row EventsTable::read(int row) const
{
    Row result;
    const QString name = textOf(row, kName);
    const QString date = textOf(row, kDate);
    const QString time = textOf(row, kTime);
    result.empty = name.isEmpty() && date.isEmpty() && time.isEmpty();
    if (result.empty) {
        return result;
    }
    const auto& texts = filledTexts_[std::size_t(row)];
    if (name == texts[kName] && date == texts[kDate] && time == texts[kTime]) {
        result.event = filled_[std::size_t(row)];
    } else {
        result.event.name = toWide(name);
        const auto read = present::readPlainDate(toWide(date), order_);
        result.event.date = read ? read.value() : core::PlainDate{};
        const auto hours = data::readTimeText(toWide(time));
        result.event.hours = hours.value_or(0.0);
        if (!read) {
            result.problem = toQt(read.error().message);
        } else if (!time.isEmpty() && !hours) {
            result.problem = tr("Write the time such as 14:30.");
        }
    }
    if (name.isEmpty()) {
        result.problem = tr("Without a name it is not saved.");
    } else if (result.problem.isEmpty()) {
        result.problem = toQt(present::dateProblem(result.event.date));
    }
    if (result.problem.isEmpty() && !result.event.usable()) {
        result.problem = tr("Its time is no time of a day.");
    }
    return result;
}

void EventsTable::showState(int row)
{
    const Row state = read(row);
    QTableWidgetItem* const cell = item(row, kState);
    const bool good = state.problem.isEmpty();
    cell->setText(state.empty ? QString() : good ? tr("Usable") : state.problem);
    cell->setForeground(themeColour(good ? ThemeRole::Good : ThemeRole::Bad));
}

LifeEvents EventsTable::events() const
{
    LifeEvents all;
    for (int row = 0; row < core::kLifeEvents; ++row) {
        all[std::size_t(row)] = read(row).event;
    }
    return all;
}

bool EventsTable::valid() const
{
    for (int row = 0; row < core::kLifeEvents; ++row) {
        if (!read(row).problem.isEmpty()) {
            return false;
        }
    }
    return true;
}

void EventsTable::sortByDate()
{
    struct Line
    {
        bool empty;
        bool bad;
        core::LifeEvent event;
        std::array<QString, 3> texts;
    };
    std::vector<Line> lines;
    for (int row = 0; row < core::kLifeEvents; ++row) {
        const Row state = read(row);
        lines.push_back({state.empty,
                         !state.problem.isEmpty(),
                         state.event,
                         {textOf(row, kName), textOf(row, kDate), textOf(row, kTime)}});
    }
    std::stable_sort(lines.begin(), lines.end(), [](const Line& one, const Line& other) {
        const auto key = [](const Line& line) {
            const core::LifeEvent& event = line.event;
            return std::tuple(line.empty, line.bad, line.bad ? 0 : event.date.year,
                              line.bad ? 0 : event.date.month, line.bad ? 0 : event.date.day,
                              line.bad ? 0.0 : event.hours);
        };
        return key(one) < key(other);
    });
    filling_ = true;
    for (int row = 0; row < core::kLifeEvents; ++row) {
        const Line& line = lines[std::size_t(row)];
        // What is good stays as exact as it was.
        filled_[std::size_t(row)] = line.event;
        filledTexts_[std::size_t(row)] = line.bad ? std::array<QString, 3>{} : line.texts;
        for (int column = kName; column < kState; ++column) {
            item(row, column)->setText(line.texts[std::size_t(column)]);
        }
    }
    filling_ = false;
    for (int row = 0; row < core::kLifeEvents; ++row) {
        showState(row);
    }
    emit edited();
}

} // namespace kestrav::desktop
