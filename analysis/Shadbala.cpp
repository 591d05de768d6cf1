#include "analysis/Shadbala.h"

#include "analysis/Aspects.h"
#include "analysis/CheshtaBala.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

// Entry 0 is unused. The ranks of natural strength are in sevenths of 60.
constexpr PlanetArray<double> kNaturalRank = {0, 7, 6, 2, 3, 4, 5, 1};
constexpr PlanetArray<double> kRequired = {0, 390, 360, 300, 420, 390, 330, 300};

constexpr RequiredParts kSunParts = {165, 35, 50, 112, 30};
constexpr RequiredParts kMoonParts = {133, 50, 30, 100, 40};
constexpr RequiredParts kMarsParts = {96, 30, 40, 67, 20};

std::optional<bool> reaches(const Strength& part, double required)
{
    return part ? std::optional(*part >= required) : std::nullopt;
}

Strength halfOf(const Strength& strength)
{
    return strength ? Strength(*strength / 2.0) : std::nullopt;
}

// Sun and Moon have no cheshta bala; their ayana and paksha before doubling are tested in its
// stead.
Strength testedCheshta(const Shadbala& bala)
{
    switch (bala.point) {
    case core::kSun:
        return halfOf(bala.kala.ayana);
    case core::kMoon:
        return halfOf(bala.kala.paksha);
    default:
        return bala.cheshta;
    }
}

PartsTest testParts(const Shadbala& bala)
{
    const RequiredParts required = requiredParts(bala.point);
    PartsTest test;
    test.sthana = reaches(bala.sthana.total(), required.sthana);
    test.dig = reaches(bala.dig, required.dig);
    test.cheshta = reaches(testedCheshta(bala), required.cheshta);
    test.kala = reaches(bala.kala.total(), required.kala);
    test.ayana = reaches(bala.kala.ayana, required.ayana);
    return test;
}

// Everything that does not depend on wars.
Shadbala partsOf(const core::Chart& chart, const StrengthInputs& inputs,
                 const NaturalBenefics& benefic, int planet)
{
    Shadbala bala;
    bala.point = planet;
    bala.sthana = sthanaBala(chart, planet);
    bala.dig = digBala(chart, inputs, planet);
    bala.kala = kalaBala(chart, inputs, benefic, planet);
    bala.cheshta = cheshtaBala(chart, inputs, planet);
    bala.naisargika = naisargikaBala(planet);
    bala.drik = drikBala(chart, benefic, planet);
    bala.required = requiredShadbala(planet);
    bala.phala = phalaOf(bala.sthana.uccha, phalaCheshta(chart, inputs, planet));
    return bala;
}

void storeTotal(Shadbala& bala)
{
    bala.total = sumOf({bala.sthana.total(), bala.dig, bala.kala.total(), bala.cheshta,
                        bala.naisargika, bala.drik});
    if (bala.total) {
        bala.ratio = *bala.total / bala.required;
    }
}

} // namespace

Strength Shadbala::beforeWar() const
{
    return sumOf({sthana.total(), dig, kala.beforeWar()});
}

ShadbalaTable computeShadbala(const core::Chart& chart, const StrengthInputs& inputs)
{
    ShadbalaTable table;
    const NaturalBenefics benefic = naturalBenefics(chart);
    PlanetArray<Strength> beforeWar;
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Shadbala& bala = at(table.planets, planet);
        bala = partsOf(chart, inputs, benefic, planet);
        at(beforeWar, planet) = bala.beforeWar();
    }
    table.wars = planetaryWars(chart, inputs, beforeWar);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Shadbala& bala = at(table.planets, planet);
        if (chart.computed(planet)) {
            bala.kala.yuddha = yuddhaBala(table.wars, planet);
        }
        storeTotal(bala);
        bala.reachesRequired = testParts(bala);
    }
    return table;
}

std::optional<double> directionlessPoint(const core::Chart& chart, const StrengthInputs& inputs,
                                         int planet)
{
    const bool needsMidheaven = planet == core::kSun || planet == core::kMars ||
                                planet == core::kMoon || planet == core::kVenus;
    if (needsMidheaven) {
        const bool nadir = planet == core::kSun || planet == core::kMars;
        return sumOf({inputs.midheaven, nadir ? 180.0 : 0.0});
    }
    if (!chart.computed(core::kAscendant)) {
        return std::nullopt;
    }
    return chart.longitude[core::kAscendant] + (planet == core::kSaturn ? 0.0 : 180.0);
}

Strength digBala(const core::Chart& chart, const StrengthInputs& inputs, int planet)
{
    const std::optional<double> weak = directionlessPoint(chart, inputs, planet);
    if (!weak || !chart.computed(planet)) {
        return std::nullopt;
    }
    return arcBetween(at(chart.longitude, planet), *weak) / 3.0;
}

double naisargikaBala(int planet)
{
    return 60.0 * at(kNaturalRank, planet) / 7.0;
}

Strength drikBala(const core::Chart& chart, const NaturalBenefics& benefic, int planet)
{
    if (!allPlanetsComputed(chart)) {
        return std::nullopt;
    }
    double sum = 0.0;
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        if (other != planet) {
            const double value = aspectValueOn(chart, other, at(chart.longitude, planet));
            sum += at(benefic, other) ? value : -value;
        }
    }
    return sum / 4.0;
}

double requiredShadbala(int planet)
{
    return at(kRequired, planet);
}

RequiredParts requiredParts(int planet)
{
    switch (planet) {
    case core::kMoon:
    case core::kVenus:
        return kMoonParts;
    case core::kMars:
    case core::kSaturn:
        return kMarsParts;
    default:
        return kSunParts;
    }
}

} // namespace kestrav::analysis
