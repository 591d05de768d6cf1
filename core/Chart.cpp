#include "core/Chart.h"

namespace kestrav::core
{

Chart::Chart()
{
    clearPoints();
}

void Chart::clearPoints()
{
    degreeInSign.fill(kNotComputed);
    motion.fill(Motion::None);
    retrograde.fill(false);
    hasSandhis = false;
    houseSystem = -1;
    cuspsComplete = false;
    if (hasPlacements) {
        vargas = {};
        nearBoundary = {};
        hasPlacements = false;
    }
    compound = {};
    vimshopaka = {};
    vimshopakaPositional = {};
    combust.fill(false);
}

} // namespace kestrav::core
