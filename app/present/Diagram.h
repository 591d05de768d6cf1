// Chart diagrams: from a chart to a display list.
#pragma once

#include "app/present/DiagramOptions.h"
#include "app/present/DisplayList.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <string>
#include <vector>

namespace kestrav::present
{

/// What a diagram is of. The charts are analysed ones and outlive the call.
struct DiagramSubject
{
    const core::Chart& chart;
    const core::Settings& settings;
    int varga = core::kRashi;           ///< 0 to 20
    const core::Chart* outer = nullptr; ///< a second chart around it, such as transits
};

/// Lays a diagram out in a square of `size` units, above 0. Points that have no position, or no
/// placement in the varga, are named in the description; points for which there is no room stand in
/// the tip of a "+n". The names of the calling thread are those of the options while it runs. The
/// same input gives the same list.
[[nodiscard]] DisplayList layoutDiagram(const DiagramSubject& subject, DiagramStyle style,
                                        const DiagramOptions& options, double size);

/// The lines that the middle of a diagram usually holds: varga, name, date and time, place,
/// ayanamsa and the balance of the Vimshottari dasha, as far as the chart has them.
[[nodiscard]] std::vector<std::wstring> centreLines(const DiagramSubject& subject, bool english);

} // namespace kestrav::present
