// Reports of a chart: the sections of a definition as one document.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/DiagramOptions.h"
#include "app/present/Document.h"
#include "app/present/ReportDefinition.h"
#include "astro/Series.h"
#include "yoga/YogaLibrary.h"

namespace kestrav::present
{

/// What a report is made from.
struct ReportSource
{
    const ComputedChart& computed;
    const astro::Series& series;
    const yoga::YogaLibrary* yogas = nullptr; ///< none when no yoga file is loaded
    double moment = 0.0; ///< Julian day (Universal Time) of the report: transits begin on its day
    DiagramStyle style = DiagramStyle::North; ///< where a section names none
};

/// The report. The head has the name, birth data, ayanamsa with its value, house system, the rule
/// of sunrise and the version of the program; a section that cannot be computed for the chart says
/// why. The same chart and moment give the same document.
[[nodiscard]] Document makeReport(const ReportSource& source, const ReportDefinition& definition);

/// The lines of the head, which pages and prints show as well.
[[nodiscard]] std::vector<std::wstring> reportHead(const ComputedChart& computed);

} // namespace kestrav::present
