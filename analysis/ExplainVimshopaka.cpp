#include "analysis/ExplainTopics.h"

#include "analysis/Dignities.h"
#include "analysis/Vargas.h"
#include "analysis/Vimshopaka.h"

#include <optional>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

constexpr std::string_view kSetList = "shodasha, dasha, sapta or shad";

std::optional<int> findSet(std::string_view name)
{
    for (int set = 0; set < kVimshopakaSets; ++set) {
        if (plainName(vimshopakaSetName(set)) == plainName(name)) {
            return set;
        }
    }
    return std::nullopt;
}

std::wstring pointsText(int total)
{
    return text(decimal(vimshopakaPoints(total)), L" of 20 (", vimshopakaWord(total), L")");
}

void addVargaSteps(Explanation& explanation, const Request& request, int set)
{
    const core::Chart& chart = request.chart;
    for (int varga = 0; varga < core::kScoredVargas; ++varga) {
        if (vimshopakaLevel(varga) < set) {
            continue;
        }
        const VimshopakaScore score =
            vimshopakaScore(chart, varga, request.point, request.settings);
        const bool byHora = varga == core::kHora && request.settings.horaMethod == 0;
        const int weight = vimshopakaWeight(set, varga);
        const int sign = signInVarga(chart, varga, request.point);
        const int display = displayDignity(chart, request.point, sign, varga, request.settings);
        step(explanation, vargaText(varga), L": ", signText(sign), L", ",
             varga == core::kRashi ? dignityWord(display, false) : codeText(score.dignity),
             byHora ? L", scored by the hora of Sun or Moon as " : L", scored as ",
             codeText(score.code), L" = ", score.factor, L" times weight ", weight, L" = ",
             weight * score.factor);
    }
}

} // namespace

Answer explainVimshopaka(const Request& request)
{
    const core::Chart& chart = request.chart;
    const std::optional<int> set = findSet(request.detail);
    if (!set && !request.detail.empty()) {
        return unknown("the set of vargas", request.detail, kSetList);
    }
    Explanation explanation =
        about(text(L"vimshopaka of ", nameOf(request.point), set ? L" in the set " : L"",
                   set ? vimshopakaSetName(*set) : L""));
    addSettings(explanation, request.settings,
                {"exaltedCountsAsOwn", "horaMethod", "vargaCompoundRelationships",
                 "naturalRelationshipsOnly"});
    if (!set || vimshopakaLevel(core::kShodashamsha) >= *set) {
        addPlacementSettings(explanation, request.settings, core::kShodashamsha);
    }
    if (!chart.computed(request.point)) {
        return notComputed(explanation, whyNoPosition(chart, request.point));
    }
    step(explanation, L"each divisional chart of a set scores the dignity: own 100, great friend "
                      L"90, friend 75, neutral 50, enemy 35, great enemy 25, times its weight; the "
                      L"weights of a set add up to 200, and 1000 make one point");
    step(explanation,
         request.settings.exaltedCountsAsOwn
             ? L"exaltation and moolatrikona score as own sign, debilitation as great enemy; in "
               L"the Trimshamsa by the relationship to the lord of the sign"
             : L"exaltation, moolatrikona and debilitation score by the relationship to the lord "
               L"of the sign");
    const auto& totals = at(chart.vimshopaka, request.point);
    if (set) {
        explanation.result = pointsText(at(totals, *set));
        addVargaSteps(explanation, request, *set);
        step(explanation, L"the sum is ", at(totals, *set),
             L"; weighted by the strength steps it "
             L"is ",
             at(at(chart.vimshopakaPositional, request.point), *set));
        return explanation;
    }
    for (int each = 0; each < kVimshopakaSets; ++each) {
        explanation.result += text(each == 0 ? L"" : L", ", vimshopakaSetName(each), L" ",
                                   pointsText(at(totals, each)));
        step(explanation, L"the set ", vimshopakaSetName(each), L" gives ", at(totals, each));
    }
    return explanation;
}

} // namespace kestrav::analysis::explaining
