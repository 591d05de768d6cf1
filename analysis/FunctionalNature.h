// The functional nature of the planets for an ascendant.
#pragma once

#include "core/Chart.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kestrav::analysis
{

/// Four fields, each set or not.
struct Nature
{
    bool yogakaraka = false;
    bool benefic = false;
    bool malefic = false;
    bool maraka = false;

    bool operator==(const Nature&) const = default;
};

/// Natures of the planets Sun to Ketu; index 0 is unused.
using NatureTable = std::array<Nature, 10>;

/// The table of an ascendant sign 1 to 12 as it is before a chart adjusts it; the nodes have no
/// field set. For any other number, such as that of an ascendant that was not computed, no planet
/// has one.
[[nodiscard]] NatureTable initialNatures(int ascendant);

/// The table of a chart: the nodes take their fields from the house that they occupy and from the
/// planets that they join. Without the ascendant nothing is set.
[[nodiscard]] NatureTable chartNatures(const core::Chart& chart);

/// "YogK", "Benef", "Marak", "Papa" or "Neut", the first field that is set in this order.
[[nodiscard]] std::wstring_view natureLabel(const Nature& nature);

/// The label of a planet before a chart adjusts the table. The ascendant and points above 9 get one
/// blank.
[[nodiscard]] std::wstring_view functionalLabel(int ascendant, int planet);

/// The label of the planet report: "Most Malefic", " Functional Malefic", "Functional Benefic" or
/// nothing.
[[nodiscard]] std::wstring_view natureReportLabel(const Nature& nature);

} // namespace kestrav::analysis
