// Sorting and labelling the chooser by what research lines say.
#pragma once

#include "data/Chooser.h"
#include "data/LineList.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// What a list is labelled by.
struct ResearchKey
{
    enum class Kind
    {
        TropicalSun, ///< the tropical sign of the Sun
        Sign,        ///< the sidereal sign of a point
        Nakshatra,   ///< the nakshatra of a point
    };

    Kind kind = Kind::TropicalSun;
    int point = 1; ///< one of the points of a research line
};

/// The sign 1 to 12 or nakshatra 1 to 27 that a research line has for the key; nothing when the
/// line has none.
[[nodiscard]] std::optional<int> researchValue(std::string_view line, const ResearchKey& key);

/// The label of a value: "Leo  (Trop. Sun)", "Leo  (Sid. Sun)", "(Sid. Moon)", "(Sid. Asc.)",
/// "Leo  (Sid. Mar.)" for other points, "Ashwini (Moon)" and "Ashwini (Mar.)" for nakshatras.
[[nodiscard]] std::wstring researchLabel(int value, const ResearchKey& key);

struct LabelledRow
{
    std::size_t row = 0; ///< index into the list's rows
    int value = 0;       ///< 0 when the research database says nothing about the chart
};

/// All rows ordered by the key's value, those without one last, and by name among equals.
[[nodiscard]] std::vector<LabelledRow>
rowsByResearch(const ChooserList& list, const LineList& research, const ResearchKey& key);

} // namespace kestrav::data
