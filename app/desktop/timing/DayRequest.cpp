#include "app/desktop/timing/DayRequest.h"

#include "core/Angles.h"
#include "core/Points.h"

namespace kestrav::desktop
{

core::Result<timing::PanchangaDay> DayRequest::make() const
{
    if (!moment) {
        return core::Error{"the shared date lies outside the years of the calendar"};
    }
    if (!moment->hasPlace) {
        return core::Error{"a panchanga needs a place: choose the Now location"};
    }
    timing::Panchanga maker(data->series, moment->settings);
    maker.setNative(nativeMoon);
    return maker.dayOf(moment->chart);
}

DayRequest dayRequest(Workspace& workspace, const ChartPointer& native)
{
    DayRequest request{workspace.momentChart(), std::nullopt, workspace.data()};
    if (native && native->chart.computed(core::kMoon)) {
        request.nativeMoon = core::at(native->chart.longitude, core::kMoon);
    }
    return request;
}

} // namespace kestrav::desktop
