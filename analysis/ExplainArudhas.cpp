#include "analysis/ExplainTopics.h"

#include "analysis/Arudhas.h"
#include "analysis/SignStrength.h"
#include "core/Angles.h"

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;
using core::norm12;

void addPada(Explanation& explanation, int from, int lord, int lordSign, int pada)
{
    if (lordSign == 0 || pada == 0) {
        step(explanation, nameOf(lord), L" has no position, so there is no arudha");
        return;
    }
    const int house = norm12(lordSign - from + 1);
    step(explanation, nameOf(lord), L" is in ", signText(lordSign), L", the ", ordinal(house),
         L" from ", signText(from), L"; as far on from there is ",
         signText(norm12(lordSign + house - 1)));
    if (pada != norm12(lordSign + house - 1)) {
        step(explanation,
             L"that is the sign of the count itself or the 7th from it, so the arudha "
             L"moves on to the 10th from there, ",
             signText(pada));
    }
}

} // namespace

int arudhaHouse(int point)
{
    if (point == core::kArudhaLagna) {
        return 1;
    }
    const bool pada = point >= core::kArudhaPada1 && point <= core::kUpapada;
    return pada ? point - core::kArudhaPada1 + 1 : 0;
}

void addCoLordSettings(Explanation& explanation, const core::Settings& settings)
{
    addSettings(explanation, settings, {"coLords"});
    if (settings.coLords) {
        // Of two lords the exalted one can be the stronger.
        addSettings(explanation, settings, {"nodeDignityScheme"});
    }
}

void addArudhaSteps(Explanation& explanation, const Request& request, int varga, int house)
{
    const SignView view = signView(request.chart, varga, request.settings);
    const int ascendant = view.sign[core::kAscendant];
    if (ascendant == 0) {
        step(explanation, L"without the ascendant there is no arudha");
        return;
    }
    const int sign = norm12(ascendant + house - 1);
    const int lord = lordOfSign(view, sign, request.settings.coLords);
    const bool shared = sign == 8 || sign == 11;
    step(explanation, L"house ", house, L" is ", signText(sign), L"; its lord is ", nameOf(lord),
         shared && request.settings.coLords ? L", the stronger of the two lords" : L"");
    addPada(explanation, sign, lord, at(view.sign, lord),
            at(arudhaSigns(view, request.settings.coLords), house - 1));
}

Answer explainArudha(const Request& request)
{
    const core::Chart& chart = request.chart;
    const int planet = request.point;
    Explanation explanation = about(L"arudha of " + nameOf(planet));
    addSettings(explanation, request.settings, {"nodeDignityScheme"});
    if (!chart.computed(planet)) {
        return notComputed(explanation, whyNoPosition(chart, planet));
    }
    const SignView view = signView(chart, core::kRashi, request.settings);
    const int sign = arudhaOfPlanet(view, planet);
    const int own = arudhaOwnSign(view, planet);
    const int from = at(view.sign, planet);
    const int house = norm12(own - from + 1);
    explanation.result = signText(sign);
    step(explanation, L"the arudha of a planet is counted from its sign to its own sign (Aquarius "
                      L"for Rahu, Scorpio for Ketu); of two own signs the stronger one is taken");
    step(explanation, nameOf(planet), L" is in ", signText(from), L"; its own sign is ",
         signText(own), L", the ", ordinal(house), L" from there");
    step(explanation, L"as far on from ", signText(own), L" is ",
         signText(norm12(own + house - 1)));
    if (sign != norm12(own + house - 1)) {
        step(explanation,
             L"that is the sign of the planet or the 7th from it, so the arudha moves "
             L"on to the 10th from there, ",
             signText(sign));
    }
    return explanation;
}

} // namespace kestrav::analysis::explaining
