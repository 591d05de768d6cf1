#include "timing/NakshatraStart.h"

#include "core/Angles.h"
#include "timing/DashaTable.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::timing
{

namespace
{

using core::at;

constexpr int kNakshatras = 27;
constexpr double kDegreesOfNakshatra = 360.0 / kNakshatras;

// What Abhijit, from the last pada of Uttarashadha to the first fifteenth of Shravana, makes of
// these two: the stretch, what its width is divided by, and for Astottari and Shastihayani the
// place of the lord, the parts that lie before it and the years of a part.
struct AbhijitBand
{
    double from;
    double to;
    double perWidth;
    int astottariFirst;
    double astottariBefore;
    double astottariYears;
    int shastihayaniFirst;
    double shastihayaniBefore;
    double shastihayaniYears;
};

// The years of Astottari jump where the bands begin, from 3.33 to 2.5 passed years of Saturn: the
// walk gives him three nakshatras, the bands four parts. This is meant.
// clang-format off
constexpr std::array<AbhijitBand, 3> kBands = {{
    {20.0,              20.75,             4.0 / 3.0,   4, 1.0, 2.5, 5, 3.0, 1.5},
    {20.75,             21.0 + 1.0 / 15.0, 60.0 / 19.0, 4, 2.0, 2.5, 6, 0.0, 2.0},
    {21.0 + 1.0 / 15.0, 22.0,              15.0 / 14.0, 4, 3.0, 2.5, 6, 1.0, 2.0},
}};
// clang-format on

const AbhijitBand* bandAt(int system, double position)
{
    if (system != kAstottari && system != kShastihayani) {
        return nullptr;
    }
    for (const AbhijitBand& band : kBands) {
        if (position >= band.from && position < band.to) {
            return &band;
        }
    }
    return nullptr;
}

NakshatraStart bandStart(int system, const AbhijitBand& band, double passed)
{
    if (system == kAstottari) {
        return {band.astottariFirst, (passed + band.astottariBefore) * band.astottariYears};
    }
    return {band.shastihayaniFirst, (passed + band.shastihayaniBefore) * band.shastihayaniYears};
}

// Shravana's successor, the last one of which the whole nakshatra counts although it lies in the
// region of the bands.
NakshatraStart dhanishthaStart(int system, double passed)
{
    if (system == kAstottari) {
        return {5, passed * 19.0 / 3.0};
    }
    return {6, passed * 2.0 + 4.0};
}

// The lord who holds the nakshatra, found by counting off the nakshatras of each.
NakshatraStart countedStart(const DashaRow& row, const std::array<int, 8>& counts, int nakshatra,
                            double passed)
{
    int lord = 0;
    while (nakshatra >= at(counts, lord)) {
        nakshatra -= at(counts, lord);
        ++lord;
    }
    return {lord, (nakshatra + passed) * at(row.years, lord) / at(counts, lord)};
}

NakshatraStart irregularStart(int system, double position, double passed)
{
    if (const AbhijitBand* const band = bandAt(system, position)) {
        return bandStart(system, *band, passed);
    }
    const int nakshatra = int(position);
    if (nakshatra == 22) {
        return dhanishthaStart(system, passed);
    }
    const DashaRow& row = dashaRow(system);
    return system == kAstottari
               ? countedStart(row, kAstottariCounts,
                              core::ModFrom(kNakshatras, 0, nakshatra - row.offset), passed)
               : countedStart(row, kShastihayaniCounts, nakshatra, passed);
}

int firstLord(int system, int nakshatra)
{
    const DashaRow& row = dashaRow(system);
    switch (system) {
    case kVimshottari:
    case kTribhagi:
    case kYogini:
    case kAnnualVimshottari:
        // The offset is negative, so nothing has to be lifted. Reducing by 27 first would give
        // other lords from nakshatra 24 on where the cycle has eight lords.
        return (nakshatra - row.offset) % row.count;
    case kDwadashottari:
        return core::ModFrom(kNakshatras, 0, row.offset - nakshatra) % row.count;
    default:
        return core::ModFrom(kNakshatras, 0, nakshatra - row.offset) % row.count;
    }
}

// Degrees brought into -180 to under 180.
double signedTurn(double degrees)
{
    return core::Wrap180(core::Normalize360(degrees));
}

// The moment near a Julian day at which the Moon stands at a longitude.
std::optional<double> moonAtLongitude(const SunAndMoonAt& sky, double julianDay, double longitude)
{
    constexpr int kMostSteps = 20;
    constexpr double kEnoughDays = 1e-8;
    constexpr double kFurthestDays = 1.5;
    double moment = julianDay;
    for (int i = 0; i < kMostSteps; ++i) {
        const SiderealPlace moon = sky.moon(moment);
        const double step = signedTurn(longitude - moon.longitude) / moon.speed;
        moment += step;
        if (!(std::abs(moment - julianDay) <= kFurthestDays)) {
            return std::nullopt;
        }
        if (std::abs(step) < kEnoughDays) {
            return moment;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<double> startPosition(const core::Chart& chart, int startPoint)
{
    constexpr std::array<double, 4> kFurther = {3, 4, 5, 7};
    const bool derived = startPoint >= kKshemaStart && startPoint <= kAdhanaStart;
    if (!derived && (startPoint < core::kAscendant || startPoint > core::kKetu)) {
        return std::nullopt;
    }
    const int point = derived ? int(core::kMoon) : startPoint;
    if (!chart.computed(point)) {
        return std::nullopt;
    }
    const double position = at(chart.nakshatraPosition, point) +
                            (derived ? at(kFurther, startPoint - kKshemaStart) : 0);
    return position >= kNakshatras ? position - kNakshatras : position;
}

NakshatraStretch stretchAt(int system, double position)
{
    if (const AbhijitBand* const band = bandAt(system, position)) {
        return {band->from, band->to};
    }
    return {std::floor(position), std::floor(position) + 1.0};
}

double passedByLongitude(int system, double position)
{
    const AbhijitBand* const band = bandAt(system, position);
    return band != nullptr ? (position - band->from) * band->perWidth
                           : position - std::floor(position);
}

std::optional<double> passedByTime(const SunAndMoonAt& sky, double julianDay,
                                   const NakshatraStretch& stretch)
{
    const std::optional<double> entered =
        moonAtLongitude(sky, julianDay, stretch.from * kDegreesOfNakshatra);
    const std::optional<double> left =
        moonAtLongitude(sky, julianDay, stretch.to * kDegreesOfNakshatra);
    if (!entered || !left || !(*left > *entered)) {
        return std::nullopt;
    }
    const double passed = (julianDay - *entered) / (*left - *entered);
    return passed >= 0.0 && passed < 1.0 ? std::optional(passed) : std::nullopt;
}

NakshatraStart nakshatraStart(int system, double position, double passed)
{
    if (system == kAstottari || system == kShastihayani) {
        return irregularStart(system, position, passed);
    }
    const int first = firstLord(system, int(position));
    return {first, passed * at(dashaRow(system).years, first)};
}

} // namespace kestrav::timing
