// Shadbala: the six strengths of the planets Sun to Saturn.
#pragma once

#include "analysis/KalaBala.h"
#include "analysis/Phala.h"
#include "analysis/PlanetaryWar.h"
#include "analysis/SthanaBala.h"
#include "analysis/StrengthInputs.h"
#include "core/Chart.h"

#include <optional>
#include <vector>

namespace kestrav::analysis
{

/// What five strengths of a planet have to reach each, in virupas.
struct RequiredParts
{
    double sthana = 0.0;
    double dig = 0.0;
    double cheshta = 0.0;
    double kala = 0.0;
    double ayana = 0.0;
};

/// Whether each part reaches what is required; empty where the part is.
struct PartsTest
{
    std::optional<bool> sthana;
    std::optional<bool> dig;
    std::optional<bool> cheshta;
    std::optional<bool> kala;
    std::optional<bool> ayana;
};

struct Shadbala
{
    int point = 0;
    SthanaBala sthana;       ///< by place
    Strength dig;            ///< by direction, 0 to 60
    KalaBala kala;           ///< by time
    Strength cheshta;        ///< by motion, 0 to 60
    double naisargika = 0.0; ///< by nature
    Strength drik;           ///< by aspects, can be negative
    Strength total;          ///< the sum of the six
    double required = 0.0;   ///< what the total should reach
    Strength ratio;          ///< total / required, a number without unit
    Phala phala;             ///< ishta and kashta
    PartsTest reachesRequired;

    /// What a planetary war compares: place, direction and time without ayana and war itself.
    [[nodiscard]] Strength beforeWar() const;
};

struct ShadbalaTable
{
    PlanetArray<Shadbala> planets;
    std::vector<War> wars;
};

/// The strengths of all seven planets and the wars among them. Needs the sign data, the vargas and
/// the compound relationships of the chart. What the chart lacks stays empty, and so does every sum
/// that it would enter; drik bala needs all seven planets.
[[nodiscard]] ShadbalaTable computeShadbala(const core::Chart& chart, const StrengthInputs& inputs);

/// Directional strength of planet 1 to 7: a third of the distance from its weak point, which is the
/// nadir, the midheaven, the descendant or the ascendant.
[[nodiscard]] Strength digBala(const core::Chart& chart, const StrengthInputs& inputs, int planet);

/// The longitude in degrees, not reduced, at which planet 1 to 7 has no directional strength; empty
/// without midheaven or ascendant.
[[nodiscard]] std::optional<double> directionlessPoint(const core::Chart& chart,
                                                       const StrengthInputs& inputs, int planet);

/// Natural strength: the Sun 60, then in steps of a seventh down to Saturn.
[[nodiscard]] double naisargikaBala(int planet);

/// A quarter of the aspects of the other six planets, benefics added and malefics taken off.
[[nodiscard]] Strength drikBala(const core::Chart& chart, const NaturalBenefics& benefic,
                                int planet);

/// What the total of planet 1 to 7 should reach.
[[nodiscard]] double requiredShadbala(int planet);
[[nodiscard]] RequiredParts requiredParts(int planet);

} // namespace kestrav::analysis
