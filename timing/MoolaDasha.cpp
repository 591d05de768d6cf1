#include "timing/MoolaDasha.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "core/Angles.h"
#include "timing/JaiminiSigns.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace kestrav::timing
{

namespace
{

using core::at;
using core::norm12;

// A planet in its own or exaltation sign has nothing left in the second cycle and gets its full
// years again; this is meant.
double repaired(double length, double fullYears)
{
    return length == 0.0 || std::isnan(length) ? fullYears : std::abs(length);
}

bool owns(int planet, int sign, int nodeScheme)
{
    if (planet == core::kRahu || planet == core::kKetu) {
        return analysis::nodeRelationship(planet, sign, nodeScheme) == analysis::kOwn;
    }
    return analysis::signLord(sign) == planet;
}

int signsToOwn(int planet, int sign, int nodeScheme)
{
    int steps = 0;
    while (steps < 11 && !owns(planet, norm12(sign + steps), nodeScheme) &&
           norm12(sign + steps) != analysis::exaltationSign(planet, nodeScheme)) {
        ++steps;
    }
    return steps;
}

// The base's signs of one group, the strongest first; equal ones stay in the order of the houses.
std::array<int, 4> groupByStrength(const JaiminiSigns& jaimini, int firstSign)
{
    std::array<int, 4> signs = {};
    for (std::size_t i = 0; i < signs.size(); ++i) {
        signs[i] = norm12(firstSign + 3 * int(i));
        for (std::size_t k = i; k > 0; --k) {
            if (jaimini.stronger(signs[k - 1], signs[k]) == signs[k - 1]) {
                break;
            }
            std::swap(signs[k - 1], signs[k]);
        }
    }
    return signs;
}

} // namespace

int moolaBase(const core::Chart& chart, const core::Settings& settings)
{
    const JaiminiSigns signs(chart, settings);
    const int winner = signs.stronger(signs.signOf(core::kAscendant), signs.signOf(core::kMoon));
    return signs.stronger(winner, signs.signOf(core::kSun));
}

std::array<int, 9> moolaOrder(const core::Chart& chart, const core::Settings& settings)
{
    const JaiminiSigns signs(chart, settings);
    const int base = moolaBase(chart, settings);
    std::array<int, 9> order = {};
    std::size_t count = 0;
    for (int group = 0; group < 3; ++group) {
        for (const int sign : groupByStrength(signs, base + group)) {
            const std::size_t firstOfSign = count;
            for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
                if (signs.signOf(planet) != sign) {
                    continue;
                }
                std::size_t place = count++;
                while (place > firstOfSign &&
                       at(chart.degreeInSign, order[place - 1]) < at(chart.degreeInSign, planet)) {
                    order[place] = order[place - 1];
                    --place;
                }
                order[place] = planet;
            }
        }
    }
    return order;
}

double moolaYears(const core::Chart& chart, const core::Settings& settings, int planet)
{
    const double full = at(kYearsOfPoint, planet);
    const int steps = signsToOwn(planet, at(chart.rashi, planet), settings.nodeDignityScheme);
    return repaired(full - steps, full);
}

void fillMoolaDasha(const core::Chart& chart, const core::Settings& settings, DashaPlan& plan)
{
    const std::array<int, 9> order = moolaOrder(chart, settings);
    plan.count = int(order.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const double full = at(kYearsOfPoint, order[i]);
        const double years = moolaYears(chart, settings, order[i]);
        for (DashaCycle& cycle : plan.cycles) {
            cycle.lords[i] = order[i];
        }
        plan.cycles[0].years[i] = years;
        plan.cycles[1].years[i] = repaired(full - years, full);
    }
}

} // namespace kestrav::timing
