#include "analysis/SthanaBala.h"

#include "analysis/DignityTables.h"
#include "core/Angles.h"

#include <array>
#include <cstddef>

namespace kestrav::analysis
{

namespace
{

using core::at;

constexpr double kMoolatrikonaScore = 45.0;
constexpr double kOwnScore = 30.0;

// Compound relationship -2 to 2 towards the lord of the sign.
constexpr std::array<double, 5> kRelationshipScores = {1.875, 3.75, 7.5, 15.0, 22.5};

constexpr std::array<int, 7> kSevenVargas = {core::kRashi,     core::kHora,     core::kDrekkana,
                                             core::kSaptamsha, core::kNavamsha, core::kDwadashamsha,
                                             core::kTrimshamsa};

bool isEven(int sign)
{
    return sign % 2 == 0;
}

// Leo and Cancer, the half signs of Sun and Moon: this is Hora rule 0, whatever the settings say.
int horaSign(const core::Chart& chart, int planet)
{
    const bool firstHalf = at(chart.degreeInSign, planet) < 15.0;
    return firstHalf != isEven(at(chart.rashi, planet)) ? 5 : 4;
}

int signInVarga(const core::Chart& chart, int varga, int planet)
{
    switch (varga) {
    case core::kRashi:
        return at(chart.rashi, planet);
    case core::kHora:
        return horaSign(chart, planet);
    default:
        return at(at(chart.vargas, varga), planet).sign;
    }
}

Strength scoreInSign(const core::Chart& chart, int varga, int planet)
{
    const int sign = signInVarga(chart, varga, planet);
    if (sign == 0) {
        return std::nullopt;
    }
    // The whole sign counts as moolatrikona, and exaltation adds nothing.
    if (varga == core::kRashi && sign == moolatrikonaSign(planet, 0)) {
        return kMoolatrikonaScore;
    }
    const int lord = signLord(sign);
    if (lord == planet) {
        return kOwnScore;
    }
    if (!chart.computed(lord)) {
        return std::nullopt;
    }
    // The relationship is that of the rashi in every varga.
    return at(kRelationshipScores, at(at(chart.compound, planet), lord) + 2);
}

Strength saptavargaja(const core::Chart& chart, int planet)
{
    Strength sum = 0.0;
    for (const SaptavargajaPart& part : saptavargajaParts(chart, planet)) {
        sum = sumOf({sum, part.score});
    }
    return sum;
}

Strength ojayugma(const core::Chart& chart, int planet)
{
    const int navamsha = at(at(chart.vargas, core::kNavamsha), planet).sign;
    if (navamsha == 0) {
        return std::nullopt;
    }
    const bool wantsEven = planet == core::kMoon || planet == core::kVenus;
    const auto score = [wantsEven](int sign) {
        return isEven(sign) == wantsEven ? 15.0 : 0.0;
    };
    return score(at(chart.rashi, planet)) + score(navamsha);
}

Strength kendradi(const core::Chart& chart, int planet)
{
    if (!chart.computed(core::kAscendant)) {
        return std::nullopt;
    }
    constexpr std::array<double, 3> kScores = {60.0, 30.0, 15.0};
    const int house = core::norm12(at(chart.rashi, planet) - chart.rashi[core::kAscendant] + 1);
    return at(kScores, (house - 1) % 3);
}

double drekkana(const core::Chart& chart, int planet)
{
    // Male, neuter and female planets; entry 0 is unused.
    constexpr PlanetArray<int> kStrongThird = {0, 0, 2, 0, 1, 0, 2, 1};
    const double degree = at(chart.degreeInSign, planet);
    const int third = degree < 10.0 ? 0 : degree < 20.0 ? 1 : 2;
    return third == at(kStrongThird, planet) ? 15.0 : 0.0;
}

} // namespace

Strength SthanaBala::total() const
{
    return sumOf({uccha, saptavargaja, ojayugma, kendradi, drekkana});
}

std::array<SaptavargajaPart, 7> saptavargajaParts(const core::Chart& chart, int planet)
{
    std::array<SaptavargajaPart, 7> parts;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const int varga = kSevenVargas[i];
        parts[i] = {varga, signInVarga(chart, varga, planet), scoreInSign(chart, varga, planet)};
    }
    return parts;
}

SthanaBala sthanaBala(const core::Chart& chart, int planet)
{
    SthanaBala bala;
    if (!chart.computed(planet)) {
        return bala;
    }
    const double fromExaltation = arcBetween(at(chart.longitude, planet), deepExaltation(planet));
    bala.uccha = (180.0 - fromExaltation) / 3.0;
    bala.saptavargaja = saptavargaja(chart, planet);
    bala.ojayugma = ojayugma(chart, planet);
    bala.kendradi = kendradi(chart, planet);
    bala.drekkana = drekkana(chart, planet);
    return bala;
}

} // namespace kestrav::analysis
