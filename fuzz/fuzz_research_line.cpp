// Any bytes as a research line: what is accepted lies in range and can be written and read again.
#include "data/ResearchLabels.h"
#include "data/ResearchLine.h"
#include "fuzz/chart_checks.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav;
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    core::Chart chart;
    const bool complete = data::ParseResearchLine(line, chart);
    (void)data::researchValue(line, {data::ResearchKey::Kind::Nakshatra, core::kMoon});
    if (!complete) {
        return 0;
    }
    for (const int point : data::kResearchPoints) {
        const double longitude = core::at(chart.longitude, point);
        fuzz::require(longitude >= 0.0 && longitude < 360.0);
        fuzz::require(core::at(chart.rashi, point) >= 1 && core::at(chart.rashi, point) <= 12);
        fuzz::require(core::at(chart.navamshaSign, point) >= 1 &&
                      core::at(chart.navamshaSign, point) <= 12);
        const double position = core::at(chart.nakshatraPosition, point);
        fuzz::require(position >= 0.0 && position < 27.0);
    }
    core::Chart again;
    fuzz::require(data::ParseResearchLine(data::FormatResearchLine(chart), again));
    return 0;
}
