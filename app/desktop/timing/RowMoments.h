// Tables whose rows belong to moments, and the stretch of days that a list shows.
#pragma once

#include <optional>

namespace kestrav::desktop
{

class TableView;
class Workspace;

/// From now on a click or Enter on any cell of a row makes the moment to which its first cell leads
/// the shared one.
void followRows(TableView& view, Workspace& workspace);

/// Shows the row of the last moment that is not after the given one, while nobody works in the
/// table. Rows are taken to stand in order of time.
void showRowAt(TableView& view, double moment);

/// The days of a list: as many as chosen, turned like pages while the shared day moves on.
struct DayPage
{
    std::optional<double> first; ///< 0h of the first civil day
    int days = 0;

    /// Takes the page that holds a day: the same while it does, a neighbouring one, or a new one
    /// that begins with the day.
    void turnTo(double day, int newDays);
};

} // namespace kestrav::desktop
