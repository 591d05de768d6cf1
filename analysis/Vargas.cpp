#include "analysis/Vargas.h"

#include "analysis/Arudhas.h"
#include "analysis/VargaNames.h"
#include "core/Angles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::norm12;

// Positions counted backwards start here, so they end at -0.00001. That is kept.
constexpr double kReversedStart = 29.99999;

// Points 60 to 62 never have a placement.
constexpr int kDividedPoints = 60;

// What the rules read: the point's place in the zodiac.
struct Place
{
    int rashi;
    bool even;
    double degreeInSign;
    double longitude;
    int navamshaSign;
};

using Part = VargaPart;
using Divided = VargaDivided; // whose sign is not yet brought into 1 to 12

[[gnu::always_inline]] inline int stepInSign(double fraction, bool even)
{
    constexpr std::array<double, 5> kFifths = {0.25, 0.5, 1.0, 0.1, 0.0};
    const double g = even ? 0.99999 - fraction : fraction;
    // At the very end of an even sign g is slightly below 0; truncation makes that the first fifth.
    return int(kFifths[std::size_t(int(g * 5.0))] * 4.0);
}

[[gnu::always_inline]] inline int stepInPart(double fraction)
{
    return 2 * int((1.0 - fraction) * 3.0); // the fraction is never above 1
}

[[gnu::always_inline]] inline double distanceToBoundary(double fraction)
{
    return std::min(fraction, 1.0 - fraction);
}

// The order of these operations is part of the rules: with 1/30 as a factor of its own the exact
// part starts of the sign fall into the right part, but for a few of 7 and 11 divisions.
[[gnu::always_inline]] inline Part partOf(double value, int division, bool evenSign,
                                          const core::Settings& settings)
{
    const double x = value * division * (1.0 / 30.0);
    // x is never negative, so cutting to a whole number is exact and the same as rounding down.
    const int whole = int(x);
    const double fraction = x - whole;
    const double minutes = int(distanceToBoundary(fraction) * 1800.0 / division);
    return {whole,
            fraction,
            fraction * 30.0,
            division == 1 ? stepInSign(fraction, evenSign) : stepInPart(fraction),
            30.0 / division,
            minutes,
            minutes < settings.sandhiMinutes};
}

// Parts are counted through the whole zodiac from Aries.
[[gnu::always_inline]] inline Divided continuous(const Place& place, int division,
                                                 const core::Settings& settings)
{
    // Made in place: a copy of the part would cost as much as making it.
    Divided result = {0, partOf(place.longitude, division, place.even, settings)};
    result.sign = result.part.index + 1;
    return result;
}

[[gnu::always_inline]] inline Divided hora(const Place& place, const core::Settings& settings)
{
    Divided result = {0, partOf(place.degreeInSign, 2, place.even, settings)};
    Part& part = result.part;
    const bool firstHalf = part.index == 0;
    switch (settings.horaMethod) {
    case 1:
        return continuous(place, 2, settings);
    case 2: {
        // This set is not that of the odd signs, on purpose.
        constexpr std::array<bool, 13> kSeventhFirst = {
            false, true, false, true, false, false, true, false, true, false, true, true, false};
        const bool seventh = kSeventhFirst[std::size_t(place.rashi)] == firstHalf;
        result.sign = seventh ? place.rashi + 6 : place.rashi;
        return result;
    }
    case 3: {
        constexpr std::array<int, 24> kSigns = {8, 1, 2, 7, 6,  3, 4,  5,  5,  4,  3, 6,
                                                7, 2, 1, 8, 12, 9, 10, 11, 11, 10, 9, 12};
        result.sign = kSigns[std::size_t(place.longitude * (1.0 / 15.0))];
        return result;
    }
    default:
        if (place.even) {
            part.index = 1 - part.index;
            part.position = kReversedStart - part.position;
        }
        result.sign = 5 - part.index;
        return result;
    }
}

[[gnu::always_inline]] inline Divided shodashamsha(const Place& place,
                                                   const core::Settings& settings)
{
    Divided result = continuous(place, 16, settings);
    if (settings.shodashamshaVariant == 0) {
        return result;
    }
    const int m = norm12(result.part.index - 16 * (place.rashi - 1));
    if (place.even) {
        result.sign = place.rashi + 3 - m;
        result.part.position = kReversedStart - result.part.position;
    } else {
        result.sign = place.rashi + m;
    }
    return result;
}

[[gnu::always_inline]] inline Divided rudramsha(const Place& place, const core::Settings& settings)
{
    if (settings.rudramshaVariant == 0) {
        return continuous(place, 11, settings);
    }
    // Counted backwards from Aries in every sign alike.
    Divided result = {0, partOf(place.degreeInSign, 11, place.even, settings)};
    result.sign = 13 - result.part.index;
    result.part.position = kReversedStart - result.part.position;
    return result;
}

// Five unequal parts. An inner boundary from the second one on belongs to the earlier part, with
// the fraction 1, but 5 degrees belongs to the later one.
[[gnu::always_inline]] inline Divided trimshamsa(const Place& place, const core::Settings& settings)
{
    struct Row
    {
        std::array<double, 5> widths;
        std::array<int, 5> signs;
    };
    constexpr Row kOdd = {{5, 5, 8, 7, 5}, {1, 11, 9, 3, 7}};
    constexpr Row kEven = {{5, 7, 8, 5, 5}, {2, 6, 12, 10, 8}};
    const Row& row = place.even ? kEven : kOdd;
    double rest = place.degreeInSign;
    std::size_t i = 0;
    if (rest >= 5.0) {
        for (;;) {
            rest -= row.widths[i];
            if (i == 3 || row.widths[i + 1] >= rest) {
                break;
            }
            ++i;
        }
        ++i;
    }
    const double width = row.widths[i];
    const double fraction = rest / width;
    const double minutes = int(distanceToBoundary(fraction) * width * 60.0);
    return {row.signs[i],
            {int(i), fraction, fraction * 30.0, stepInPart(fraction), width, minutes,
             minutes < settings.sandhiMinutes}};
}

// The twelve parts of each navamsha are counted from the navamsha sign.
[[gnu::always_inline]] inline Divided navaDwadasha(const Place& place,
                                                   const core::Settings& settings)
{
    const double x = place.longitude * 3.6;
    const int whole = int(x);
    const double fraction = x - whole;
    const double minutes = int(distanceToBoundary(fraction) * 1800.0 / 108.0);
    return {whole % 12 + place.navamshaSign,
            {whole, fraction, fraction * 30.0, stepInPart(fraction), 30.0 / 108.0, minutes,
             minutes < settings.sandhiMinutes}};
}

// Inlined into a loop for one varga, only what a placement takes of the parts is worked out.
[[gnu::always_inline]] inline Divided divide(const Place& place, int varga,
                                             const core::Settings& settings)
{
    const int r = place.rashi;
    const int e = place.even ? 1 : 0;
    const int division = vargaDivision(varga);
    const auto counted = [&](auto signOfPart) {
        Divided result = {0, partOf(place.degreeInSign, division, place.even, settings)};
        result.sign = signOfPart(result.part.index);
        return result;
    };
    switch (varga) {
    case core::kRashi: {
        Divided result = counted([&](int) { return r; });
        result.part.position = place.degreeInSign;
        return result;
    }
    case core::kHora:
        return hora(place, settings);
    case core::kDrekkana:
        return counted([&](int k) { return r + 4 * k; });
    case core::kChaturtamsha:
        return counted([&](int k) { return r + 3 * k; });
    case core::kDashamamsha:
        return counted([&](int k) { return r + k + 8 * e; });
    case core::kDwadashamsha:
        return counted([&](int k) { return r + k; });
    case core::kShodashamsha:
        return shodashamsha(place, settings);
    case core::kSiddhamsha:
        return counted([&](int k) { return k + 5 - e; });
    case core::kBhamsha:
        return counted([&](int k) { return ((r - 1) % 4) * 3 + k + 1; });
    case core::kTrimshamsa:
        return trimshamsa(place, settings);
    case core::kChatvarimshamsha:
        return counted([&](int k) { return 6 * e + k + 1; });
    case core::kAkshaVedamsha:
        return counted([&](int k) { return ((r - 1) % 3) * 4 + k + 1; });
    case core::kShashtiamsha:
        // The sign and the position come from two roundings of the same degree.
        return counted([&](int) { return int(place.degreeInSign * 2.0) % 12 + r; });
    case core::kRudramsha:
        return rudramsha(place, settings);
    case core::kNavaDwadasha:
        return navaDwadasha(place, settings);
    default:
        return continuous(place, division, settings);
    }
}

Place placeOf(const core::Chart& chart, int point)
{
    const int rashi = at(chart.rashi, point);
    return {rashi, rashi % 2 == 0, at(chart.degreeInSign, point), at(chart.longitude, point),
            at(chart.navamshaSign, point)};
}

[[gnu::always_inline]] inline void store(core::Chart& chart, int varga, int point,
                                         const Divided& divided)
{
    core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
    placement.sign = norm12(divided.sign);
    placement.strengthStep = divided.part.strengthStep;
    placement.position = divided.part.position;
    at(at(chart.nearBoundary, varga), point) = divided.part.nearBoundary;
}

template <int varga>
void computeVargaOfPoints(core::Chart& chart, const core::Settings& settings)
{
    for (int point = 0; point < kDividedPoints; ++point) {
        const double degree = at(chart.degreeInSign, point);
        if (degree >= 0.0 && degree < 30.0) {
            store(chart, varga, point, divide(placeOf(chart, point), varga, settings));
        } else {
            at(at(chart.vargas, varga), point) = {};
            at(at(chart.nearBoundary, varga), point) = false;
        }
    }
    if (settings.arudhasInVargas) {
        storeArudhaSigns(chart, varga, settings);
    }
}

template <std::size_t... vargas>
void computeEach(core::Chart& chart, const core::Settings& settings,
                 std::index_sequence<vargas...> /*every varga*/)
{
    (computeVargaOfPoints<int(vargas)>(chart, settings), ...);
}

} // namespace

VargaDivided divideInVarga(const core::Chart& chart, int varga, int point,
                           const core::Settings& settings)
{
    Divided divided = divide(placeOf(chart, point), varga, settings);
    divided.sign = norm12(divided.sign);
    return divided;
}

bool computeVarga(core::Chart& chart, int varga, int point, const core::Settings& settings)
{
    const VargaDivided divided = divideInVarga(chart, varga, point, settings);
    chart.hasPlacements = true;
    store(chart, varga, point, divided);
    return divided.part.nearBoundary;
}

void computeAllVargas(core::Chart& chart, const core::Settings& settings)
{
    chart.hasPlacements = true;
    computeEach(chart, settings, std::make_index_sequence<core::kVargaCount>());
}

int signInVarga(const core::Chart& chart, int varga, int point)
{
    if (!chart.computed(point)) {
        return 0;
    }
    return varga == core::kRashi ? at(chart.rashi, point) : at(at(chart.vargas, varga), point).sign;
}

int twentySecondDrekkanaSign(const core::Chart& chart, int point)
{
    const int drekkana = int(std::floor(at(chart.degreeInSign, point) * 0.1));
    return norm12(at(chart.rashi, point) + 4 * drekkana + 7);
}

} // namespace kestrav::analysis
