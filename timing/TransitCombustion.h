// When planets become combust and end to be.
#pragma once

#include "core/Chart.h"
#include "timing/TransitSearch.h"

#include <map>

namespace kestrav::timing
{

/// Finds the changes of the combustion test over spans that are laid end to end. The test does not
/// look across 0 degrees Aries: when Sun and planet stand on different sides of it, the planet is
/// not combust. So one that follows the Sun over that point shows an exit and a new entry there,
/// and both are listed.
class CombustionSearch
{
public:
    /// The events of a planet, Moon to Saturn; other bodies are never combust.
    void find(const TransitSearch& search, int planet, TransitSink sink);

private:
    [[nodiscard]] bool isCombustAt(SiderealSky& sky, int planet, double day);

    core::Chart chart_;              // holds the two bodies for the test
    std::map<int, bool> lastAnswer_; // of each planet at the end of the span before
};

} // namespace kestrav::timing
