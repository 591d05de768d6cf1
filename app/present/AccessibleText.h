// What a screen reader says about a diagram.
#pragma once

#include "app/present/DiagramOptions.h"
#include "app/present/DisplayList.h"

#include <span>
#include <string>

namespace kestrav::present
{

/// Degrees and minutes of a position in sign, truncated as FormatSignPosition does it but never 60
/// minutes, since nothing carries them.
struct WholeDegrees
{
    int degrees = 0;
    int minutes = 0;
};

[[nodiscard]] WholeDegrees wholeDegrees(double position);

/// What is told about a point besides its place.
struct PointState
{
    int dignity = -1; ///< display index of the dignity, -1 for none
    bool retrograde = false;
    bool combust = false;

    [[nodiscard]] bool exalted() const;
    [[nodiscard]] bool debilitated() const;
};

/// "Venus 3 degrees 20 minutes exalted retrograde". Without degrees only the ascendant has them:
/// "Ascendant 15 degrees 7 minutes", "Venus exalted".
[[nodiscard]] std::wstring spokenPoint(int point, double position, const PointState& state,
                                       DegreeForm degrees);

/// "House 1, Leo: Ascendant 15 degrees 7 minutes, Venus exalted". House 0 is left out, and a place
/// without anything is "empty". Names are in the language of the display flags.
[[nodiscard]] std::wstring spokenPlace(int house, int sign, std::span<const std::wstring> contents);

/// Everything that a reader of the whole diagram hears: title, description and the cells in the
/// order of the houses, one a line.
[[nodiscard]] std::wstring accessibleText(const DisplayList& list);

} // namespace kestrav::present
