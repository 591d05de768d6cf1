#include "analysis/Dignities.h"

#include "analysis/Aspects.h"
#include "analysis/DignityTables.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"
#include "core/DisplayFlags.h"
#include "core/PointNames.h"

#include <array>
#include <cmath>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::norm12;

bool isNode(int point)
{
    return point == core::kRahu || point == core::kKetu;
}

// Two planets in 2, 3, 4, 10, 11, 12 from each other are temporary friends. Without both signs
// (0) the natural relationship stands alone.
int compoundOf(int planet, int lord, int planetSign, int lordSign, const core::Settings& settings)
{
    if (planet == lord) {
        return kOwn;
    }
    const int natural = naturalRelationship(planet, lord);
    if (settings.naturalRelationshipsOnly || planetSign == 0 || lordSign == 0) {
        return natural;
    }
    const int d = norm12(planetSign - lordSign + 1);
    return d == 1 || (d >= 5 && d <= 9) ? natural - 1 : natural + 1;
}

int houseFrom(int sign, int reference)
{
    return norm12(sign - reference + 1);
}

bool inKendra(const core::Chart& chart, int planet)
{
    const int sign = signInVarga(chart, core::kRashi, planet);
    for (const int reference : {core::kAscendant, core::kMoon}) {
        const int first = signInVarga(chart, core::kRashi, reference);
        if (sign != 0 && first != 0 && (houseFrom(sign, first) - 1) % 3 == 0) {
            return true;
        }
    }
    return false;
}

// The planet 1 to 7 exalted in a sign, or 0.
int exaltedPlanetOf(int sign)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (exaltationSign(planet, 0) == sign) {
            return planet;
        }
    }
    return 0;
}

struct Words
{
    std::wstring_view english;
    std::wstring_view sanskrit;
    std::wstring_view englishShort;
    std::wstring_view sanskritShort;
};

// clang-format off
constexpr std::array<Words, kDisplayCount> kWords = {{
    {L"Debilitated",         L"Neecha",              L"Debil",  L"Neech"},
    {L"Great Enemy",         L"AdhiShatru",          L"G.En'y", L"A.Sat"},
    {L"Enemy",               L"Shatru",              L"Enemy",  L"Satru"},
    {L"Neutral",             L"Sama",                L"Neutr",  L"Sama "},
    {L"Friend",              L"Mitra",               L"Friend", L"Mitra"},
    {L"Great Friend",        L"AdhiMitra",           L"G.Frn",  L"A.Mit"},
    {L"Own",                 L"SwaRashi",            L"Own",    L"SwaRa"},
    {L"Mulatrikona",         L"Mulatrikona",         L"Multr",  L"Multr"},
    {L"Exalted",             L"Uuccha",              L"Exalt",  L"Uucch"},
    {L"Debil. Cancelled",    L"NeechAbhanga",        L"DebXd",  L"NeeAb"},
    {L"Debil. & Retrograde", L"Bala (Deb. & Retro)", L"DebRx",  L"Bala"},
}};

// Points 2 to 7.
constexpr std::array<double, 8> kDirectOrbs     = {0, 0, 12, 17, 14, 11, 10, 15};
constexpr std::array<double, 8> kRetrogradeOrbs = {0, 0, 12, 17, 12, 11,  8, 15};
// clang-format on

} // namespace

void computeCompoundRelationships(core::Chart& chart, const core::Settings& settings)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        for (int lord = core::kSun; lord <= core::kSaturn; ++lord) {
            at(at(chart.compound, planet), lord) =
                compoundOf(planet, lord, signInVarga(chart, core::kRashi, planet),
                           signInVarga(chart, core::kRashi, lord), settings);
        }
    }
}

int relationship(const core::Chart& chart, int planet, int lord, int varga, int sign,
                 const core::Settings& settings)
{
    if (isNode(planet)) {
        return nodeRelationship(planet, sign, settings.nodeDignityScheme);
    }
    if (varga != core::kRashi && settings.vargaCompoundRelationships) {
        return compoundOf(planet, lord, signInVarga(chart, varga, planet),
                          signInVarga(chart, varga, lord), settings);
    }
    return at(at(chart.compound, planet), lord);
}

int vargaDignity(const core::Chart& chart, int point, int sign, int varga,
                 const core::Settings& settings)
{
    const int usedSign = sign == 0 ? 1 : sign;
    if (point < core::kSun || point > core::kParivesha) {
        return kNeutral;
    }
    if (usedSign == exaltationSign(point, settings.nodeDignityScheme)) {
        return kExalted;
    }
    if (usedSign == debilitationSign(point, settings.nodeDignityScheme)) {
        return kDebilitated;
    }
    if (point >= core::kDhuma) {
        return kNeutral;
    }
    const int lord = isNode(point) ? nodeSignLord(usedSign) : signLord(usedSign);
    return point == lord ? kOwn : relationship(chart, point, lord, varga, usedSign, settings);
}

int rashiDignityBand(const core::Chart& chart, int point, const core::Settings& settings)
{
    const int rashi = at(chart.rashi, point);
    const double degree = at(chart.degreeInSign, point);
    const int scheme = settings.nodeDignityScheme;
    constexpr int kBandOwn = 0;
    constexpr int kBandMoolatrikona = 1;
    constexpr int kBandExalted = 2;
    const bool planet = point >= core::kSun && point <= core::kSaturn;
    if (rashi == exaltationSign(point, scheme)) {
        if (!planet || degree <= exaltationLimit(point)) {
            return kBandExalted;
        }
    }
    if (rashi != moolatrikonaSign(point, scheme)) {
        return kBandOwn;
    }
    return !planet || degree <= moolatrikonaLimit(point) ? kBandMoolatrikona : kBandOwn;
}

int displayDignity(const core::Chart& chart, int point, int sign, int varga,
                   const core::Settings& settings)
{
    const int code = vargaDignity(chart, point, sign, varga, settings);
    if (varga == core::kRashi && code >= kOwn) {
        return 6 + rashiDignityBand(chart, point, settings);
    }
    return code + 3;
}

int debilitationCancelledBy(const core::Chart& chart, int planet, const core::Settings& settings)
{
    const int sign = at(chart.rashi, planet);
    const int lord = signLord(sign);
    const int exaltedHere = exaltedPlanetOf(sign);
    if (inKendra(chart, lord)) {
        return 1;
    }
    if (inKendra(chart, signLord(exaltationSign(planet, 0)))) {
        return 2;
    }
    if (exaltedHere != 0 && inKendra(chart, exaltedHere)) {
        return 3;
    }
    if (signInVarga(chart, core::kRashi, lord) == sign ||
        fullyAspects(chart, lord, sign, settings)) {
        return 4;
    }
    if (at(at(chart.vargas, core::kNavamsha), planet).sign == exaltationSign(planet, 0)) {
        return 5;
    }
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        const int place = signInVarga(chart, core::kRashi, other);
        if (other != planet && place == debilitationSign(other, 0) &&
            fullyAspects(chart, other, sign, settings)) {
            return 6;
        }
    }
    return 0;
}

int reportDignity(const core::Chart& chart, int point, const core::Settings& settings)
{
    const int display =
        displayDignity(chart, point, at(chart.rashi, point), core::kRashi, settings);
    if (display != kDebilitated + 3 || point < core::kSun || point > core::kSaturn) {
        return display;
    }
    if (debilitationCancelledBy(chart, point, settings) != 0) {
        return kDisplayCancelled;
    }
    return at(chart.retrograde, point) ? kDisplayRetrograde : display;
}

int shownDignity(const core::Chart& chart, int point, int varga, const core::Settings& settings)
{
    const int sign = signInVarga(chart, varga, point);
    if (sign == 0) {
        return -1;
    }
    if (varga == core::kRashi) {
        return reportDignity(chart, point, settings);
    }
    if (vargaDignity(chart, point, sign, varga, settings) == kExalted) {
        return kDisplayExalted;
    }
    return displayDignity(chart, point, sign, varga, settings);
}

std::wstring_view dignityWord(int displayIndex, bool shortForm)
{
    if (displayIndex < 0 || displayIndex >= kDisplayCount) {
        return core::kNoName;
    }
    const Words& words = at(kWords, displayIndex);
    if ((core::DisplayFlags() & core::kEnglishNames) != 0) {
        return shortForm ? words.englishShort : words.english;
    }
    return shortForm ? words.sanskritShort : words.sanskrit;
}

double combustionOrb(int planet, bool retrograde)
{
    return at(retrograde ? kRetrogradeOrbs : kDirectOrbs, planet);
}

bool isCombust(const core::Chart& chart, const core::Chart& sunChart, int planet,
               const core::Settings& settings)
{
    if (planet < core::kMoon || planet > core::kSaturn || !chart.computed(planet) ||
        !sunChart.computed(core::kSun)) {
        return false;
    }
    const double difference =
        std::fabs(at(chart.longitude, planet) - sunChart.longitude[core::kSun]);
    const double distance = std::trunc(difference) > 329.0 ? 360.0 - difference : difference;
    const bool retrograde = at(chart.retrograde, planet) && !settings.directCombustionOrbsOnly;
    const double orb = combustionOrb(planet, retrograde);
    // The second test undoes the wrap of the first on purpose: across 0 degrees Aries nothing is
    // combust.
    return orb > distance && orb > difference;
}

void computeCombustion(core::Chart& chart, const core::Settings& settings)
{
    for (int planet = core::kMoon; planet <= core::kSaturn; ++planet) {
        at(chart.combust, planet) = isCombust(chart, chart, planet, settings);
    }
}

} // namespace kestrav::analysis
