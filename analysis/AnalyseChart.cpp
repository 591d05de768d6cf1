#include "analysis/AnalyseChart.h"

#include "analysis/Dignities.h"
#include "analysis/SpecialPoints.h"
#include "analysis/Vargas.h"
#include "analysis/Vimshopaka.h"

namespace kestrav::analysis
{

void analyseSigns(core::Chart& chart, const core::Settings& settings)
{
    computeCompoundRelationships(chart, settings);
    computeCombustion(chart, settings);
    computeAllVargas(chart, settings);
    computeVimshopaka(chart, settings);
}

void AnalyseChart(core::Chart& chart, const core::Settings& settings,
                  astro::EphemerisContext& context)
{
    computeSpecialPoints(chart, settings, context);
    analyseSigns(chart, settings);
}

} // namespace kestrav::analysis
