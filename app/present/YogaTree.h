// The loaded yogas as a tree of files, chapters and yogas.
#pragma once

#include "yoga/YogaLibrary.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kestrav::present
{

/// By file and yoga: whether it holds in a chart. Empty while there is no chart.
using YogaTruths = std::vector<std::vector<bool>>;

/// Which of the yogas hold in the chart of the subject.
[[nodiscard]] YogaTruths yogaTruths(const yoga::YogaLibrary& library, yoga::Subject& subject);

[[nodiscard]] bool holdsIn(const YogaTruths& truths, const yoga::YogaPlace& place);

struct YogaTreeChapter
{
    std::wstring name; ///< empty for yogas without a chapter
    std::vector<yoga::YogaPlace> yogas;
    std::size_t holding = 0;
};

struct YogaTreeFile
{
    std::size_t file = 0;
    std::vector<YogaTreeChapter> chapters;
    std::size_t yogas = 0;
    std::size_t holding = 0;
};

struct YogaTreeChoice
{
    std::wstring filter; ///< shown are yogas with this in title or chapter, whatever the case
    bool onlyHolding = false;
    bool sorted = false; ///< by title instead of the order of the file
};

/// The tree of the chosen yogas. Files without any are left out, except, where nothing is asked,
/// empty ones.
[[nodiscard]] std::vector<YogaTreeFile>
yogaTree(const yoga::YogaLibrary& library, const YogaTruths& truths, const YogaTreeChoice& choice);

/// The name of a file in lists: of the collection, or of the file where it has none.
[[nodiscard]] std::wstring yogaFileLabel(const yoga::LoadedYogaFile& file);

} // namespace kestrav::present
