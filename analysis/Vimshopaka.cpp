#include "analysis/Vimshopaka.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"

#include <array>

namespace kestrav::analysis
{

namespace
{

using core::at;

using WeightRow = std::array<int, core::kScoredVargas>;

// The Sapta row weights Saptamsha 10, Navamsha 25, Dwadashamsha 45 and Trimshamsa 20, unlike the
// pattern of the other rows; that is meant.
// clang-format off
constexpr std::array<WeightRow, kVimshopakaSets> kWeights = {{
    {{35, 10, 10, 5,  5, 30,  5,  5, 20, 5, 5, 5, 10, 5, 5, 40}},
    {{30, 15, 15, 0, 15, 15, 15, 15, 15, 0, 0, 0, 15, 0, 0, 50}},
    {{50, 20, 30, 0, 10, 25,  0, 45,  0, 0, 0, 0, 20, 0, 0,  0}},
    {{60, 20, 40, 0,  0, 50,  0, 20,  0, 0, 0, 0, 10, 0, 0,  0}},
}};
constexpr WeightRow kLevels = {3, 3, 3, 0, 2, 3, 1, 3, 1, 0, 0, 0, 3, 0, 0, 1};
// clang-format on

constexpr bool weightsHold()
{
    for (std::size_t set = 0; set < kWeights.size(); ++set) {
        int total = 0;
        for (std::size_t varga = 0; varga < kLevels.size(); ++varga) {
            total += kWeights[set][varga];
            if ((kWeights[set][varga] != 0) != (kLevels[varga] >= int(set))) {
                return false;
            }
        }
        if (total != 200) {
            return false;
        }
    }
    return true;
}
static_assert(weightsHold());

// Factor of the codes -2 to 3.
constexpr std::array<int, 6> kFactors = {25, 35, 50, 75, 90, 100};

// 2, 1 or 0 for a planet in the hora of the Sun or the Moon.
int horaScore(const core::Chart& chart, int planet)
{
    const bool odd = at(chart.rashi, planet) % 2 != 0;
    const bool sunHora = (at(chart.degreeInSign, planet) < 15.0) == odd;
    switch (planet) {
    case core::kSun:
    case core::kMars:
    case core::kJupiter:
        return sunHora ? (odd ? 2 : 1) : 0;
    case core::kMercury:
        return sunHora ? 2 : 1;
    default:
        return sunHora ? 0 : (odd ? 1 : 2);
    }
}

// The relationship towards the lord of the sign, or 3 when the planet owns it.
int relationshipInVarga(const core::Chart& chart, int varga, int planet, int sign,
                        const core::Settings& settings)
{
    const int lord = signLord(sign);
    return lord == planet ? kOwn : relationship(chart, planet, lord, varga, sign, settings);
}

} // namespace

std::wstring_view vimshopakaSetName(int set)
{
    constexpr std::array<std::wstring_view, kVimshopakaSets> kNames = {L"Shodasha", L"Dasha",
                                                                       L"Sapta", L"Shad"};
    return at(kNames, set);
}

int vimshopakaWeight(int set, int varga)
{
    return at(at(kWeights, set), varga);
}

int vimshopakaLevel(int varga)
{
    return at(kLevels, varga);
}

VimshopakaScore vimshopakaScore(const core::Chart& chart, int varga, int point,
                                const core::Settings& settings)
{
    const int sign = at(at(chart.vargas, varga), point).sign;
    VimshopakaScore score;
    score.dignity = vargaDignity(chart, point, sign, varga, settings);
    score.code = score.dignity;
    if (point < core::kSun || point > core::kSaturn) {
        return score;
    }
    if (varga == core::kRashi) {
        score.code = displayDignity(chart, point, sign, varga, settings) - 3;
    }
    if (settings.exaltedCountsAsOwn && varga != core::kTrimshamsa) {
        if (score.code >= kExalted) {
            score.code = kOwn;
        } else if (score.code == kDebilitated) {
            score.code = kGreatEnemy;
        }
    } else if (score.code > kOwn || score.code == kDebilitated) {
        // So a moolatrikona planet scores by its relationship to the lord, which for the Moon in
        // Taurus is less than own; that is meant.
        score.code = relationshipInVarga(chart, varga, point, sign, settings);
    }
    if (varga == core::kHora && settings.horaMethod == 0) {
        score.code = horaScore(chart, point);
    }
    score.factor = at(kFactors, score.code + 2);
    return score;
}

void computeVimshopaka(core::Chart& chart, const core::Settings& settings)
{
    chart.vimshopaka = {};
    chart.vimshopakaPositional = {};
    chart.hasPlacements = true;
    for (int varga = 0; varga < core::kScoredVargas; ++varga) {
        for (int point = 0; point <= core::kKetu; ++point) {
            if (!chart.computed(point)) {
                continue;
            }
            core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
            const VimshopakaScore score = vimshopakaScore(chart, varga, point, settings);
            for (int set = 0; score.factor > 0 && set <= at(kLevels, varga); ++set) {
                const int value = vimshopakaWeight(set, varga) * score.factor;
                at(at(chart.vimshopaka, point), set) += value;
                at(at(chart.vimshopakaPositional, point), set) += placement.strengthStep * value;
            }
            placement.dignityCode = score.code + 3;
        }
    }
}

double vimshopakaPoints(int total)
{
    return total / 1000.0;
}

std::wstring_view vimshopakaWord(int total)
{
    const double points = vimshopakaPoints(total);
    if (points < 5.0) {
        return L"weak";
    }
    if (points < 10.0) {
        return L"small";
    }
    return points < 15.0 ? L"middling" : L"full";
}

} // namespace kestrav::analysis
