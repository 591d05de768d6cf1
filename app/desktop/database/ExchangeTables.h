// What merging and importing did or would do, as tables.
#pragma once

#include "app/present/Table.h"
#include "data/ChartDatabase.h"
#include "data/Merge.h"
#include "data/export/ExportCharts.h"
#include "data/import/ImportReport.h"

#include <string>
#include <vector>

namespace kestrav::desktop
{

/// One row for each chart of the other database: new, changed, equal or damaged here, and what
/// differs.
[[nodiscard]] present::Table mergeTable(const data::MergePreview& preview,
                                        data::ChartDatabase& ours, data::ChartDatabase& theirs);

/// The words for what differs between two records of one name: "date, place".
[[nodiscard]] std::wstring differences(const core::Chart& ours, const core::Chart& theirs);

/// One row for each record of the files: what was taken, refused or remarked.
[[nodiscard]] present::Table importTable(const std::vector<data::ImportReport>& reports);

/// The losses of an export, by line.
[[nodiscard]] present::Table exportTable(const data::ExportReport& report);

} // namespace kestrav::desktop
