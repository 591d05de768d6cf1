#include "analysis/ExplainTopics.h"

#include "analysis/Avasthas.h"
#include "analysis/CharaKarakas.h"
#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/Lajjitadi.h"
#include "analysis/Rashmis.h"

#include <algorithm>
#include <array>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

struct StateRequest
{
    const Request& request;
    const StrengthInputs& inputs;
    const Avasthas& states;
};

std::wstring missing(const core::Chart& chart)
{
    return text(L"not computed, because ", whyIncomplete(chart));
}

std::wstring bodiesText(const BodySet& bodies)
{
    std::vector<std::wstring> names;
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        if (bodies[std::size_t(body)]) {
            names.push_back(nameOf(body));
        }
    }
    return listText(names);
}

std::wstring explainBaladi(Explanation& explanation, const StateRequest& state)
{
    const core::Chart& chart = state.request.chart;
    const bool even = at(chart.rashi, state.request.point) % 2 == 0;
    step(explanation,
         L"Baladi: the fifths of 6 degrees of an odd sign are Bala, Kumara, Yuva, "
         L"Vriddha and Mrita, those of an even sign the reverse; it stands at ",
         angle(at(chart.degreeInSign, state.request.point)),
         even ? L" of an even sign" : L" of an odd sign");
    return std::wstring(avasthaName(*state.states.baladi));
}

std::wstring dignityText(const Request& request)
{
    const std::optional<int> display = rashiDisplay(request.chart, request.point, request.settings);
    return display ? std::wstring(dignityWord(*display, false)) : std::wstring(L"not known");
}

std::wstring explainJagradadi(Explanation& explanation, const StateRequest& state)
{
    step(explanation,
         L"Jagradadi: own sign, moolatrikona and exaltation are awake, neutral and "
         L"friendly signs dreaming, hostile signs and debilitation asleep; its "
         L"dignity is ",
         dignityText(state.request));
    return state.states.jagradadi ? std::wstring(avasthaName(*state.states.jagradadi))
                                  : missing(state.request.chart);
}

std::wstring explainDeeptadi(Explanation& explanation, const StateRequest& state)
{
    step(explanation,
         L"Deeptadi: from exalted to debilitated the dignities are Deepta, Swastha, "
         L"Pramudita, Shanta, Dina, Dukhita and Khala; its dignity is ",
         dignityText(state.request));
    if (!state.states.deeptadi) {
        return missing(state.request.chart);
    }
    const DeeptadiState& deeptadi = *state.states.deeptadi;
    step(explanation,
         deeptadi.vikala ? L"another natural malefic is in its sign, which adds Vikala"
                         : L"no other natural malefic is in its sign",
         deeptadi.kopa ? L"; it is combust, which adds Kopa" : L"; it is not combust");
    return text(avasthaName(deeptadi.state), deeptadi.vikala ? L", " : L"",
                deeptadi.vikala ? kVikalaName : L"", deeptadi.kopa ? L", " : L"",
                deeptadi.kopa ? kKopaName : L"");
}

std::wstring explainLajjitadi(Explanation& explanation, const StateRequest& state)
{
    const core::Chart& chart = state.request.chart;
    const int body = state.request.point;
    const Company company = companyOf(chart, naturalBenefics(chart), body, state.request.settings);
    const BodySet near = company.with | company.aspectedBy;
    step(explanation, L"Lajjitadi: bodies in its sign: ", bodiesText(company.with),
         L"; bodies that fully aspect it: ", bodiesText(company.aspectedBy),
         L"; natural malefics of the chart: ", bodiesText(company.malefics));
    step(explanation, L"its natural friends among those with it or aspecting it: ",
         bodiesText(near & naturalRelations(body, kFriend)), L"; its natural enemies: ",
         bodiesText(near & naturalRelations(body, kEnemy)));
    step(explanation, L"its relationship to the lord of its sign is ",
         codeText(relationshipToLord(chart, body, state.request.settings)), L", its dignity ",
         dignityText(state.request));
    std::vector<std::wstring> names;
    for (const Lajjitadi each : state.states.lajjitadi) {
        constexpr std::array<std::wstring_view, 6> kReasons = {
            L"it is in the 5th house with the Sun, Mars, Saturn or a node",
            L"it is exalted or in moolatrikona",
            L"it is in an enemy's sign, with or aspected by a natural enemy, or with Saturn",
            L"it is in a watery sign, aspected by a natural enemy or malefic and no benefic",
            L"it is in a friend's sign, with or aspected by a natural friend, or with Jupiter",
            L"it is with the Sun and with or aspected by another malefic or natural enemy"};
        names.emplace_back(avasthaName(each));
        step(explanation, avasthaName(each), L", because ", at(kReasons, int(each)));
    }
    return listText(names);
}

std::wstring explainShayanadi(Explanation& explanation, const StateRequest& state)
{
    step(explanation, L"Shayanadi: nakshatra times number of the planet times navamsha part, plus "
                      L"the Moon's nakshatra, the running ghati and the sign of the ascendant; the "
                      L"remainder by 12 gives the state");
    const auto count = shayanadiCount(state.request.chart, state.inputs, state.request.point);
    if (!count || !state.states.shayanadi) {
        return missing(state.request.chart);
    }
    step(explanation, L"here ", count->star, L" x ", count->body, L" x ", count->navamsha, L" + ",
         count->moonStar, L" + ", count->ghati, L" + ", count->ascendant, L" = ", count->total());
    step(explanation, L"the sub-state would need the first syllable of the name");
    return text(avasthaName(state.states.shayanadi->state), L" (",
                int(state.states.shayanadi->state), L")");
}

struct Family
{
    std::string_view name;
    std::wstring (*explain)(Explanation&, const StateRequest&);
    bool byDignity;
    bool byCombustion;
    bool byAspect;
};

constexpr std::array<Family, 5> kFamilies = {
    {{"baladi", explainBaladi, false, false, false},
     {"jagradadi", explainJagradadi, true, false, false},
     {"deeptadi", explainDeeptadi, true, true, false},
     {"lajjitadi", explainLajjitadi, true, false, true},
     {"shayanadi", explainShayanadi, false, false, false}}};

std::vector<Family> wantedFamilies(std::string_view name)
{
    const std::string wanted = plainName(name);
    std::vector<Family> families;
    for (const Family& family : kFamilies) {
        if (wanted.empty() || family.name == wanted) {
            families.push_back(family);
        }
    }
    return families;
}

void addFamilySettings(Explanation& explanation, const Request& request,
                       const std::vector<Family>& families)
{
    const auto any = [&families](bool Family::*uses) {
        return std::any_of(families.begin(), families.end(),
                           [uses](const Family& family) { return family.*uses; });
    };
    if (any(&Family::byDignity)) {
        addSettings(
            explanation, request.settings,
            {request.point > core::kSaturn ? "nodeDignityScheme" : "naturalRelationshipsOnly"});
    }
    if (any(&Family::byCombustion) && request.point <= core::kSaturn) {
        addSettings(explanation, request.settings, {"directCombustionOrbsOnly"});
    }
    if (any(&Family::byAspect)) {
        addSettings(explanation, request.settings, {"nodeAspectOption"});
    }
}

} // namespace

Answer explainAvastha(const Request& request)
{
    const core::Chart& chart = request.chart;
    const std::vector<Family> families = wantedFamilies(request.detail);
    if (families.empty()) {
        return unknown("the family of avasthas", request.detail,
                       "baladi, jagradadi, deeptadi, lajjitadi or shayanadi");
    }
    Explanation explanation = about(L"avasthas of " + nameOf(request.point));
    addFamilySettings(explanation, request, families);
    if (!chart.computed(request.point)) {
        return notComputed(explanation, whyNoPosition(chart, request.point));
    }
    const StrengthInputs inputs = strengthInputs(chart);
    const Avasthas states = at(computeAvasthas(chart, inputs, 0, request.settings), request.point);
    for (const Family& family : families) {
        const std::wstring value = family.explain(explanation, {request, inputs, states});
        explanation.result += (explanation.result.empty() ? L"" : L"; ") + value;
    }
    return explanation;
}

Answer explainRashmi(const Request& request)
{
    const core::Chart& chart = request.chart;
    const int planet = request.point;
    Explanation explanation = about(L"rashmis of " + nameOf(planet));
    addSettings(explanation, request.settings, {"naturalRelationshipsOnly"});
    if (!chart.computed(planet)) {
        return notComputed(explanation, whyNoPosition(chart, planet));
    }
    const Rashmis rashmis = computeRashmis(chart, request.settings);
    const double longitude = at(chart.longitude, planet);
    const double deep = deepExaltation(planet);
    step(explanation, L"it has ", decimal(mostRays(planet), 0), L" rays at its deepest exaltation ",
         placeText(deep), L" and in proportion fewer down to none opposite to it; it stands at ",
         placeText(longitude), L", ", angle(arcBetween(longitude, deep)), L" away");
    const std::optional<int> display = rashiDisplay(chart, planet, request.settings);
    const Strength& rays = at(rashmis.planets, planet);
    if (!display || !rays) {
        return notComputed(explanation, text(L"its dignity is not known: ", whyIncomplete(chart)));
    }
    step(explanation, L"they are multiplied by ", decimal(rayFactor(*display)),
         L" for the dignity ", dignityWord(*display, false));
    explanation.result = decimal(*rays) + L" rays";
    if (rashmis.total) {
        step(explanation, L"all seven planets together have ", decimal(*rashmis.total), L" rays");
    }
    return explanation;
}

namespace
{

template <typename Ranks, typename Names>
std::wstring karakaOf(Explanation& explanation, const Request& request, const Ranks& ranks,
                      const Names& names)
{
    std::vector<std::wstring> order;
    std::wstring own = L"no karaka";
    for (std::size_t rank = 0; rank < ranks->size(); ++rank) {
        const int planet = (*ranks)[rank];
        order.push_back(text(names[rank], L" ", nameOf(planet), L" (",
                             angle(karakaAdvancement(request.chart, planet)), L")"));
        if (planet == request.point) {
            own = text(names[rank], L" karaka");
        }
    }
    step(explanation, L"by advancement the planets are ", listText(order));
    return own;
}

} // namespace

Answer explainKaraka(const Request& request)
{
    const core::Chart& chart = request.chart;
    Explanation explanation = about(L"chara karaka of " + nameOf(request.point));
    addSettings(explanation, request.settings, {"charaKarakas"});
    step(explanation, L"the planets are ranked by their degrees in sign, the most advanced first; "
                      L"Rahu, who counts only among eight, moves backwards and is measured from "
                      L"the end of the sign");
    const auto seven = sevenKarakas(chart);
    const auto eight = eightKarakas(chart);
    const bool useEight = request.settings.charaKarakas == 8;
    if (useEight ? !eight : !seven) {
        return notComputed(explanation, L"one of the ranked planets has no position");
    }
    explanation.result = useEight ? karakaOf(explanation, request, eight, eightKarakaNames())
                                  : karakaOf(explanation, request, seven, sevenKarakaNames());
    return explanation;
}

} // namespace kestrav::analysis::explaining
