#include "data/import/ImportReport.h"

#include <utility>

namespace kestrav::data
{

void ImportReport::take(long record, core::Result<core::Chart> chart)
{
    if (!chart) {
        refuse(record, chart.error().message);
    } else if (charts.size() < kMostImportedCharts) {
        charts.push_back(std::move(chart.value()));
    } else if (refused.empty() || refused.back().record != 0) {
        refuse(0, "holds more than " + std::to_string(kMostImportedCharts) +
                      " charts; the rest was not read");
    }
}

} // namespace kestrav::data
