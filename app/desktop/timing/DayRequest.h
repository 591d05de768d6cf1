// The panchanga of the day that runs at the shared moment, for a worker.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "core/Result.h"
#include "timing/Panchanga.h"

#include <optional>

namespace kestrav::desktop
{

/// Everything that the day is made from.
struct DayRequest
{
    ChartPointer moment; ///< the sky of the shared moment at its place
    std::optional<double> nativeMoon;
    DataPointer data;

    /// Fails where there is no place.
    [[nodiscard]] core::Result<timing::PanchangaDay> make() const;
};

/// The request of now, with the Moon of a native for tara bala; the native may be null.
[[nodiscard]] DayRequest dayRequest(Workspace& workspace, const ChartPointer& native);

} // namespace kestrav::desktop
