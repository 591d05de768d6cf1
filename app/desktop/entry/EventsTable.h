// The 39 dated events of a life as a table to be filled in.
#pragma once

#include "core/Identity.h"
#include "data/DateOrder.h"

#include <QTableWidget>

#include <array>

namespace kestrav::desktop
{

using LifeEvents = std::array<core::LifeEvent, core::kLifeEvents>;

class EventsTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit EventsTable(QWidget* parent);

    void setEvents(const LifeEvents& events, data::DateOrder order);
    /// Events that were not edited stay exactly as they came. What is not understood is 0.
    [[nodiscard]] LifeEvents events() const;
    /// Whether every event is empty or can be used.
    [[nodiscard]] bool valid() const;
    /// Usable events by their dates, then the others, the empty slots last.
    void sortByDate();

signals:
    void edited();

private:
    struct Row
    {
        core::LifeEvent event;
        QString problem; ///< why it cannot be used
        bool empty = true;
    };

    [[nodiscard]] QString textOf(int row, int column) const;
    [[nodiscard]] Row read(int row) const;
    void showState(int row);

    LifeEvents filled_;
    std::array<std::array<QString, 3>, core::kLifeEvents> filledTexts_;
    data::DateOrder order_ = data::DateOrder::DayFirst;
    bool filling_ = false;
};

} // namespace kestrav::desktop
