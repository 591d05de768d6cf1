// Bringing the charts of one database into another.
#pragma once

#include "data/ChartDatabase.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrav::data
{

enum class MergeKind
{
    New,     ///< no chart of that name here
    Changed, ///< a chart of that name with other data here
    Equal,   ///< the same chart here
    Damaged, ///< a line that is too short to be a chart
};

struct MergeEntry
{
    MergeKind kind = MergeKind::New;
    std::size_t theirLine = 0;
    std::optional<std::size_t> ourLine; ///< of changed and equal charts
    std::wstring name;
    std::string line; ///< what would be added, in our date order
};

/// What merging would do, one entry per line of the other database in its order. Charts are matched
/// by name; of several with one name the first goes with the first, and so on.
struct MergePreview
{
    std::vector<MergeEntry> entries;

    [[nodiscard]] std::size_t count(MergeKind kind) const;
};

/// What happens to changed charts.
enum class MergeChanged
{
    Skip,    ///< ours stays
    Replace, ///< theirs replaces it
    Both,    ///< theirs is added under its name with "~"
};

struct MergeResult
{
    std::size_t added = 0;
    std::size_t replaced = 0;
};

/// Compares the other database with ours. Both are read in their own date order.
[[nodiscard]] MergePreview previewMerge(ChartDatabase& ours, ChartDatabase& theirs);

/// Does what the preview says: adds the new charts, treats the changed ones as wanted and leaves
/// equal and damaged ones out. The preview must be of this database as it is now. Nothing is
/// written to the file.
MergeResult merge(ChartDatabase& ours, const MergePreview& preview, MergeChanged changed);

} // namespace kestrav::data
