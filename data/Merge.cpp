#include "data/Merge.h"

#include "data/ChartLine.h"
#include "data/DatabaseCommands.h"

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace kestrav::data
{

std::size_t MergePreview::count(MergeKind kind) const
{
    return std::size_t(std::count_if(entries.begin(), entries.end(),
                                     [kind](const auto& entry) { return entry.kind == kind; }));
}

MergePreview previewMerge(ChartDatabase& ours, ChartDatabase& theirs)
{
    // Reading may flip the order in force, but both sides are compared in one order.
    const DateOrder order = ours.order();
    // The lines of each name that were not matched yet.
    std::unordered_map<std::wstring, std::deque<std::size_t>> known;
    core::Chart chart;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        if (!isShortLine(ours.line(i))) {
            known[ours.read(i, chart, true).name].push_back(i);
        }
    }
    MergePreview preview;
    for (std::size_t i = 0; i < theirs.size(); ++i) {
        MergeEntry& entry = preview.entries.emplace_back();
        entry.theirLine = i;
        if (isShortLine(theirs.line(i))) {
            entry.kind = MergeKind::Damaged;
            continue;
        }
        theirs.read(i, chart);
        entry.name = chart.name;
        entry.line = FormatChartLine(chart, order);
        const auto same = known.find(entry.name);
        if (same == known.end() || same->second.empty()) {
            continue;
        }
        entry.ourLine = same->second.front();
        same->second.pop_front();
        ours.read(*entry.ourLine, chart);
        entry.kind =
            FormatChartLine(chart, order) == entry.line ? MergeKind::Equal : MergeKind::Changed;
    }
    return preview;
}

MergeResult merge(ChartDatabase& ours, const MergePreview& preview, MergeChanged changed)
{
    MergeResult result;
    std::unordered_set<std::wstring> taken;
    if (changed == MergeChanged::Both) {
        taken = namesOf(ours);
    }
    for (const MergeEntry& entry : preview.entries) {
        if (entry.kind == MergeKind::New) {
            ours.addLine(entry.line);
            ++result.added;
        } else if (entry.kind == MergeKind::Changed && changed == MergeChanged::Replace) {
            ours.replaceLine(*entry.ourLine, entry.line);
            ++result.replaced;
        } else if (entry.kind == MergeKind::Changed && changed == MergeChanged::Both) {
            core::Chart chart;
            DateOrder order = ours.order();
            ParseChartLine(entry.line, chart, order);
            chart.name = unusedName(taken, chart.name);
            taken.insert(chart.name);
            ours.add(chart);
            ++result.added;
        }
    }
    return result;
}

} // namespace kestrav::data
