#include "analysis/PlanetaryWar.h"

#include <cmath>

namespace kestrav::analysis
{

namespace
{

using core::at;

constexpr double kReach = 1.0; // degrees

// Diameters of the discs in seconds of arc; Sun and Moon do not fight.
constexpr PlanetArray<double> kDiscs = {0, 0, 0, 9.4, 6.6, 190.4, 16.6, 158.0};

bool firstWins(const core::Chart& chart, const PlanetArray<double>& latitude, int first, int second)
{
    if (at(latitude, first) != at(latitude, second)) {
        return at(latitude, first) > at(latitude, second);
    }
    return at(chart.longitude, first) <= at(chart.longitude, second);
}

War warBetween(const core::Chart& chart, const StrengthInputs& inputs,
               const PlanetArray<Strength>& strengths, int first, int second)
{
    War war;
    war.first = first;
    war.second = second;
    if (!inputs.latitude) {
        return war;
    }
    const bool won = firstWins(chart, *inputs.latitude, first, second);
    war.winner = won ? first : second;
    war.loser = won ? second : first;
    const Strength& one = at(strengths, first);
    const Strength& other = at(strengths, second);
    if (one && other) {
        war.bala = std::fabs(*one - *other) / std::fabs(discDiameter(first) - discDiameter(second));
    }
    return war;
}

} // namespace

double discDiameter(int planet)
{
    return at(kDiscs, planet);
}

std::vector<War> planetaryWars(const core::Chart& chart, const StrengthInputs& inputs,
                               const PlanetArray<Strength>& strengths)
{
    std::vector<War> wars;
    for (int first = core::kMars; first < core::kSaturn; ++first) {
        for (int second = first + 1; second <= core::kSaturn; ++second) {
            if (chart.computed(first) && chart.computed(second) &&
                arcBetween(at(chart.longitude, first), at(chart.longitude, second)) < kReach) {
                wars.push_back(warBetween(chart, inputs, strengths, first, second));
            }
        }
    }
    return wars;
}

Strength yuddhaBala(const std::vector<War>& wars, int planet)
{
    double sum = 0.0;
    for (const War& war : wars) {
        if (war.first != planet && war.second != planet) {
            continue;
        }
        if (!war.bala) {
            return std::nullopt;
        }
        sum += war.winner == planet ? *war.bala : -*war.bala;
    }
    return sum;
}

} // namespace kestrav::analysis
