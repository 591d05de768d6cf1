#include "analysis/SignStrength.h"

#include "analysis/DignityTables.h"
#include "analysis/Vargas.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

// Positive when the first is greater.
template <typename Value>
int compare(Value first, Value second)
{
    return first > second ? 1 : first < second ? -1 : 0;
}

// How many of Jupiter, Mercury and the natural lord of the sign stand in it or aspect it. A planet
// counts once for each of these roles.
int helpers(const SignView& view, int sign)
{
    int count = 0;
    for (const int planet : {int(core::kJupiter), int(core::kMercury), signLord(sign)}) {
        const int place = at(view.sign, planet);
        count += place == sign || signAspects(place, sign) ? 1 : 0;
    }
    return count;
}

bool exalted(const SignView& view, int planet)
{
    return at(view.sign, planet) == exaltationSign(planet, view.nodeScheme);
}

bool holdsExalted(const SignView& view, int sign)
{
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        if (at(view.sign, planet) == sign && exalted(view, planet)) {
            return true;
        }
    }
    return false;
}

bool lordInOtherParity(const SignView& view, int sign)
{
    const int place = at(view.sign, signLord(sign));
    return place != 0 && (place - sign) % 2 != 0;
}

} // namespace

SignView signView(const core::Chart& chart, int varga, const core::Settings& settings)
{
    SignView view;
    view.nodeScheme = settings.nodeDignityScheme;
    for (int point = 0; point <= core::kKetu; ++point) {
        at(view.sign, point) = signInVarga(chart, varga, point);
        at(view.degree, point) = varga == core::kRashi
                                     ? at(chart.degreeInSign, point)
                                     : at(at(chart.vargas, varga), point).position;
    }
    return view;
}

int signModality(int sign)
{
    return (sign - 1) % 3;
}

bool signAspects(int from, int to)
{
    if (from == 0 || to == 0) {
        return false;
    }
    const int distance = (to - from + 12) % 12;
    switch (signModality(from)) {
    case 0:
        return signModality(to) == 1 && distance != 1;
    case 1:
        return signModality(to) == 0 && distance != 11;
    default:
        return signModality(to) == 2 && distance != 0;
    }
}

int planetsInSign(const SignView& view, int sign)
{
    int count = 0;
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        count += at(view.sign, planet) == sign ? 1 : 0;
    }
    return count;
}

double advancement(const SignView& view, int planet)
{
    const double degree = at(view.degree, planet);
    return planet == core::kRahu || planet == core::kKetu ? 30.0 - degree : degree;
}

int strongerCoLord(const SignView& view, int sign, int planet, int node,
                   const CoLordRule& yearsRule)
{
    const int planetSign = at(view.sign, planet);
    const int nodeSign = at(view.sign, node);
    if (planetSign == 0 || nodeSign == 0) {
        return planetSign == 0 ? node : planet;
    }
    if ((planetSign == sign) != (nodeSign == sign)) {
        return planetSign == sign ? node : planet;
    }
    int decision = compare(planetsInSign(view, planetSign), planetsInSign(view, nodeSign));
    if (decision == 0) {
        decision = compare(helpers(view, planetSign), helpers(view, nodeSign));
    }
    if (decision == 0) {
        decision = compare(exalted(view, planet), exalted(view, node));
    }
    if (decision == 0) {
        decision = compare(signModality(planetSign), signModality(nodeSign));
    }
    if (decision == 0 && yearsRule) {
        decision = yearsRule(planet, node);
    }
    if (decision == 0) {
        decision = compare(advancement(view, planet), advancement(view, node));
    }
    return decision < 0 ? node : planet;
}

int lordOfSign(const SignView& view, int sign, bool coLords, const CoLordRule& yearsRule)
{
    if (coLords && sign == 8) {
        return strongerCoLord(view, sign, core::kMars, core::kKetu, yearsRule);
    }
    if (coLords && sign == 11) {
        return strongerCoLord(view, sign, core::kSaturn, core::kRahu, yearsRule);
    }
    return signLord(sign);
}

int strongerSign(const SignView& view, int first, int second, const CoLordRule& yearsRule)
{
    int decision = compare(planetsInSign(view, first), planetsInSign(view, second));
    if (decision == 0) {
        decision = compare(helpers(view, first), helpers(view, second));
    }
    if (decision == 0) {
        decision = compare(holdsExalted(view, first), holdsExalted(view, second));
    }
    if (decision == 0) {
        decision = compare(lordInOtherParity(view, first), lordInOtherParity(view, second));
    }
    if (decision == 0) {
        decision = compare(signModality(first), signModality(second));
    }
    if (decision == 0) {
        decision = compare(advancement(view, lordOfSign(view, first, true, yearsRule)),
                           advancement(view, lordOfSign(view, second, true, yearsRule)));
    }
    return decision < 0 ? second : first;
}

} // namespace kestrav::analysis
