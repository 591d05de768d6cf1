#include "core/AyanamsaTable.h"

#include "core/FileText.h"

#include <algorithm>

namespace kestrav::core
{

namespace
{

AyanamsaRow row(std::string_view name, std::int32_t epochYear, double value, double rate)
{
    AyanamsaRow result{epochYear, value, rate, {}};
    result.setName(name);
    return result;
}

} // namespace

std::string_view AyanamsaRow::nameText() const
{
    const auto end = std::find(name.begin(), name.end(), '\0');
    return {name.data(), static_cast<std::size_t>(end - name.begin())};
}

void AyanamsaRow::setName(std::string_view text)
{
    const std::string_view kept = cutUtf8(text, name.size());
    name.fill('\0');
    std::copy(kept.begin(), kept.end(), name.begin());
}

const AyanamsaTable& factoryAyanamsaTable()
{
    // clang-format off
    static const AyanamsaTable kFactory = {{
        row("Rosicru Ephm",  1900, 22.460337962962964, 50.264),
        row("Lahiri",        1950, 23.15888888888889,  50.27),
        row("BV Raman",      1950, 21.713055555555556, 50.34),
        row("Sri Yukteswar", 1950, 21.76527777777778,  54.0),
        row("KP VarahMihir", 2000, 23.74861111111111,  50.0351),
        row("KP 'New'",      1950, 23.151944444444442, 50.2388475),
        row("JN Bhasin",     1950, 22.063055555555554, 50.3388475),
        row("Lahiri/Newcom", 1950, 23.15888888888889,  50.285412771),
        row("Fagan Bradley",  221, 0.0,                50.25),
        row("No Ayanamsha",  1950, 0.0,                0.0),
    }};
    // clang-format on
    return kFactory;
}

double ayanamsaValue(int degrees, int minutes, int seconds)
{
    return degrees + minutes / 60.0 + seconds / 3600.0;
}

} // namespace kestrav::core
