#include "analysis/Ashtakavarga.h"

#include "analysis/Vargas.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::norm12;

constexpr char kHouseZero = '0'; // house h is the character with code '0' + h

// Receiver (row) and contributor (column): ascendant, Sun, Moon, Mars, Mercury, Jupiter, Venus,
// Saturn.
// clang-format off
constexpr std::array<std::array<std::string_view, 8>, 8> kBinduHouses = {{
    {{"36:;"     , "346:;<"   , "36:;<"    , "136:;"    , "12468:;"  , "1245679:;", "1234589"  , "1346:;"   }}, // Lagna, 49
    {{"346:;<"   , "124789:;" , "36:;"     , "124789:;" , "3569:;<"  , "569;"     , "67<"      , "124789:;" }}, // Sun, 48
    {{"36:;"     , "3678:;"   , "13679:;"  , "2356:;"   , "134578:;" , "12478:;"  , "34579:;"  , "356;"     }}, // Moon, 49
    {{"136:;"    , "356:;"    , "36;"      , "12478:;"  , "356;"     , "6:;<"     , "68;<"     , "14789:;"  }}, // Mars, 39
    {{"12468:;"  , "569;<"    , "2468:;"   , "124789:;" , "13569:;<" , "68;<"     , "1234589;" , "124789:;" }}, // Mercury, 54
    {{"1245679:;", "1234789:;", "2579;"    , "12478:;"  , "124569:;" , "123478:;" , "2569:;"   , "356<"     }}, // Jupiter, 56
    {{"1234589;" , "8;<"      , "1234589;<", "3469;<"   , "3569;"    , "589:;"    , "1234589:;", "34589:;"  }}, // Venus, 52
    {{"1346:;"   , "12478:;"  , "36;"      , "356:;<"   , "689:;<"   , "56;<"     , "6;<"      , "356;"     }}, // Saturn, 39
}};

constexpr std::array<int, 8> kTotals = {49, 48, 49, 39, 54, 56, 52, 39};

// Weights of the signs and of the planets in the pindas.
constexpr SignRow12          kSignWeights   = {7, 10, 8, 4, 10, 5, 7, 8, 9, 5, 11, 12};
constexpr std::array<int, 8> kPlanetWeights = {0, 5, 5, 8, 5, 10, 7, 5};

// The two signs of one lord, 0 is Aries.
constexpr std::array<std::array<std::size_t, 2>, 5> kPairs = {{
    {0, 7}, {1, 6}, {2, 5}, {8, 11}, {9, 10},
}};

constexpr std::array<int, 8> kKakshyaLords = {
    core::kSaturn, core::kJupiter, core::kMars, core::kSun,
    core::kVenus, core::kMercury, core::kMoon, core::kAscendant,
};
// clang-format on

constexpr bool totalsHold()
{
    for (std::size_t receiver = 0; receiver < kTotals.size(); ++receiver) {
        std::size_t count = 0;
        for (const std::string_view houses : kBinduHouses[receiver]) {
            count += houses.size();
        }
        if (count != std::size_t(kTotals[receiver])) {
            return false;
        }
    }
    return true;
}
static_assert(totalsHold());

// Bit h is set when house h has a bindu.
constexpr auto kBinduMasks = [] {
    std::array<std::array<std::uint16_t, 8>, 8> masks{};
    for (std::size_t receiver = 0; receiver < 8; ++receiver) {
        for (std::size_t contributor = 0; contributor < 8; ++contributor) {
            for (const char house : kBinduHouses[receiver][contributor]) {
                masks[receiver][contributor] = std::uint16_t(masks[receiver][contributor] |
                                                             (1U << unsigned(house - kHouseZero)));
            }
        }
    }
    return masks;
}();

Pinda pindaOf(const core::Chart& chart, int varga, const SignRow12& row)
{
    Pinda pinda;
    for (std::size_t sign = 0; sign < row.size(); ++sign) {
        pinda.rashi += row[sign] * kSignWeights[sign];
    }
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const int sign = signInVarga(chart, varga, planet);
        pinda.graha += sign == 0 ? 0 : at(kPlanetWeights, planet) * at(row, sign - 1);
    }
    return pinda;
}

void reduce(const core::Chart& chart, Ashtakavarga& result)
{
    for (std::size_t receiver = 0; receiver < result.bindus.size(); ++receiver) {
        result.trikona[receiver] = trikonaReduction(result.bindus[receiver]);
        result.ekadhipatya[receiver] =
            ekadhipatyaReduction(result.trikona[receiver], result.occupants);
        result.pinda[receiver] = pindaOf(chart, result.varga, result.ekadhipatya[receiver]);
    }
    result.reduced = true;
}

} // namespace

std::string_view binduHouses(int receiver, int contributor)
{
    return at(at(kBinduHouses, receiver), contributor);
}

bool givesBindu(int receiver, int contributor, int house)
{
    return (at(at(kBinduMasks, receiver), contributor) >> unsigned(house) & 1U) != 0;
}

int binduTotal(int receiver)
{
    return at(kTotals, receiver);
}

int pindaSignWeight(int sign)
{
    return at(kSignWeights, sign - 1);
}

int pindaPlanetWeight(int planet)
{
    return at(kPlanetWeights, planet);
}

SignRow12 countOccupants(const core::Chart& chart, int varga)
{
    SignRow12 occupants{};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const int sign = signInVarga(chart, varga, planet);
        if (sign != 0) {
            ++at(occupants, sign - 1);
        }
    }
    return occupants;
}

Ashtakavarga computeAshtakavarga(const core::Chart& chart, int varga, bool withReductions)
{
    Ashtakavarga result;
    result.varga = varga;
    for (int receiver = 0; receiver < kAshtakavargaPoints; ++receiver) {
        SignRow12& row = at(result.bindus, receiver);
        for (int contributor = 0; contributor < kAshtakavargaPoints; ++contributor) {
            const int from = signInVarga(chart, varga, contributor);
            for (int sign = 0; from != 0 && sign < 12; ++sign) {
                at(row, sign) += givesBindu(receiver, contributor, norm12(sign - from + 2)) ? 1 : 0;
            }
        }
        for (int sign = 0; sign < 12; ++sign) {
            at(result.sarvaWithLagna, sign) += at(row, sign);
            at(result.sarva, sign) += receiver == 0 ? 0 : at(row, sign);
        }
    }
    result.occupants = countOccupants(chart, varga);
    if (withReductions) {
        reduce(chart, result);
    }
    return result;
}

SignRow12 trikonaReduction(const SignRow12& row)
{
    SignRow12 reduced = row;
    for (std::size_t sign = 0; sign < 4; ++sign) {
        const int smallest = std::min({row[sign], row[sign + 4], row[sign + 8]});
        for (const std::size_t member : {sign, sign + 4, sign + 8}) {
            reduced[member] = reductionStep(smallest, row[member]);
        }
    }
    return reduced;
}

SignRow12 ekadhipatyaReduction(const SignRow12& row, const SignRow12& occupants)
{
    SignRow12 reduced = row;
    for (const auto& [first, second] : kPairs) {
        int& a = reduced[first];
        int& b = reduced[second];
        const bool aOccupied = occupants[first] > 0;
        const bool bOccupied = occupants[second] > 0;
        if (a == 0 || b == 0 || (aOccupied && bOccupied)) {
            continue;
        }
        if (!aOccupied && !bOccupied) {
            const int kept = a == b ? 0 : std::min(a, b);
            a = kept;
            b = kept;
        } else if (aOccupied) {
            b = reductionStep(a, b);
        } else {
            a = reductionStep(b, a);
        }
    }
    return reduced;
}

Kakshya kakshyaOf(double degreeInSign)
{
    const int part = core::ClampRange(0, 7, int(degreeInSign / 3.75));
    return {part, at(kKakshyaLords, part)};
}

bool kakshyaBindu(const core::Chart& chart, int planet, double longitude)
{
    const Kakshya kakshya = kakshyaOf(core::degreeInSignOf(longitude));
    const int from = signInVarga(chart, core::kRashi, kakshya.lord);
    return from != 0 &&
           givesBindu(planet, kakshya.lord, norm12(core::signOfLongitude(longitude) - from + 1));
}

} // namespace kestrav::analysis
