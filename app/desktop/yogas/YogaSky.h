// What rules are tested in.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "yoga/Subject.h"

#include <memory>

namespace kestrav::desktop
{

/// A chart with what may be beside it.
struct YogaSky
{
    ChartPointer chart;
    ChartPointer second;
    DataPointer data;
    double moment = 0.0;

    [[nodiscard]] yoga::Subject subject() const
    {
        yoga::Subject made(chart->settings, &data->series);
        made.setChart(chart->chart);
        made.setSecondChart(second ? &second->chart : nullptr);
        made.setMoment(moment);
        return made;
    }
};

/// Null without a chart. Shared with the workers that test in it.
using YogaSkyPointer = std::shared_ptr<const YogaSky>;

} // namespace kestrav::desktop
