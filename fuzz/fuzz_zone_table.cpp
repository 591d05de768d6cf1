// Any bytes must be read or refused as a zone table, and a table that was read must answer any
// moment.
#include "data/ZoneTable.h"

#include <algorithm>
#include <cstring>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kestrav::data;

    // The first bytes are a moment, the rest is the table.
    UnixSeconds moment = 0;
    const std::size_t head = std::min(size, sizeof moment);
    std::memcpy(&moment, data, head);
    moment %= UnixSeconds{100'000'000'000'000'000};
    const std::string_view text(reinterpret_cast<const char*>(data) + head, size - head);
    const auto table = ZoneTable::parse(text);
    if (!table) {
        return 0;
    }
    for (int zone = 0; zone < std::min(table.value().size(), 20); ++zone) {
        for (const UnixSeconds when : {moment, moment % 10'000'000'000}) {
            const LocalTime known = table.value().at(zone, when);
            const LocalTime found = table.value().atClock(zone, when + known.total);
            if (found.clock == ClockTime::Once && found.total != known.total) {
                __builtin_trap();
            }
        }
    }
    return 0;
}
