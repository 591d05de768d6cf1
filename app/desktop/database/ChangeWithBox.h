// Changes of many charts, made on another thread.
#pragma once

#include "data/ChartDatabase.h"
#include "data/DatabaseCommands.h"
#include "data/LongWork.h"

#include <QString>

#include <functional>

namespace kestrav::desktop
{

class TKSVform1;

/// What is done to the charts of the open database, as one step that can be undone.
struct LongChange
{
    QString working; ///< what the progress box says
    QString step;    ///< the text of the step
    int revision;    ///< of the lines that the work was meant for
    /// Runs on another thread, on a copy of the charts.
    std::function<data::Outcome(data::ChartDatabase&, const data::LongWork&)> work;
};

/// Makes the change behind a progress box and tells `then` how it ended. A change that was
/// cancelled in the box does nothing; neither does one whose lines were changed meanwhile, which is
/// told.
void changeWithBox(TKSVform1& window, LongChange change, std::function<void(data::Outcome)> then);

} // namespace kestrav::desktop
