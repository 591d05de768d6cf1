// Any text as a date, clock time, zone or angle: accepted values must lie in their ranges.
#include "core/FileText.h"
#include "core/NumberText.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav::core;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto inside = [](const Result<double>& result, double low, double high) {
        return !result || (result.value() >= low && result.value() <= high);
    };
    const bool sound = inside(parseClock(text), 0.0, 24.0) && inside(parseZone(text), -15, 15) &&
                       inside(parseGeoLongitude(text), -180, 180) &&
                       inside(parseGeoLatitude(text), -90, 90);
    if (!sound) {
        std::abort();
    }
    (void)parseDate(text);
    (void)readLeadingInteger(text);
    (void)readLeadingNumber(text);
    if (const auto wide = fromUtf8(text); wide && toUtf8(*wide) != text) {
        std::abort();
    }
    (void)fromFileBytes(text);
    return 0;
}
