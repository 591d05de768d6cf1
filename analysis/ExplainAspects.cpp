#include "analysis/ExplainTopics.h"

#include "analysis/AspectTable.h"
#include "analysis/Aspects.h"
#include "analysis/BhavaBala.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <array>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

bool isHouse(int point)
{
    return point >= core::kCusp1 && point <= core::kCusp12;
}

int houseOf(int point)
{
    return point - core::kCusp1 + 1;
}

std::wstring_view shareText(double share)
{
    constexpr std::array<std::wstring_view, 5> kShares = {L"none", L"a quarter", L"a half",
                                                          L"three quarters", L"full"};
    return at(kShares, int(share * 4.0));
}

// The place on which the value of an aspect falls.
std::optional<double> placeOf(const core::Chart& chart, int point)
{
    return isHouse(point) ? houseMiddle(chart, houseOf(point))
                          : std::optional(at(chart.longitude, point));
}

void addDegreeStep(Explanation& explanation, const Request& request, const Aspect& aspect)
{
    const core::Chart& chart = request.chart;
    const std::optional<double> place = placeOf(chart, aspect.to);
    if (!aspect.value || !place) {
        step(explanation, aspect.from > core::kSaturn
                              ? L"the nodes cast full aspects only and have no value by degree"
                              : L"the house has no middle on which a value could fall");
        return;
    }
    step(explanation, nameOf(aspect.to), isHouse(aspect.to) ? L" has its middle " : L" is ",
         angle(core::Normalize360(*place - at(chart.longitude, aspect.from))), L" further on than ",
         nameOf(aspect.from), L", where the value by degree is ", virupas(aspect.value), L" of 60");
}

std::wstring_view className(SignClass signClass)
{
    switch (signClass) {
    case SignClass::Nara:
        return L"nara (human), without strength in house 7";
    case SignClass::Chatushpada:
        return L"chatushpada (four-footed), without strength in house 4";
    case SignClass::Keeta:
        return L"keeta (insect), without strength in house 1";
    case SignClass::Jalachara:
        return L"jalachara (living in water), without strength in house 10";
    }
    return L"";
}

} // namespace

Answer explainAspect(const Request& request)
{
    const core::Chart& chart = request.chart;
    const core::Settings& settings = request.settings;
    const std::optional<int> to = findPoint(request.detail);
    if (!to || *to == request.point) {
        return unknown("the aspected point", request.detail,
                       "another point, such as saturn, ascendant or house7");
    }
    Explanation explanation =
        about(text(L"aspect of ", nameOf(request.point), L" on ", nameOf(*to)));
    if (request.point > core::kSaturn) {
        addSettings(explanation, settings, {"nodeAspectOption"});
    }
    if (isHouse(*to)) {
        addSettings(explanation, settings, {"houseSystem"});
    }
    const std::optional<Aspect> aspect = aspectOnPoint(chart, request.point, *to, settings);
    if (!aspect) {
        return notComputed(
            explanation, whyNoPosition(chart, chart.computed(request.point) ? *to : request.point));
    }
    const std::optional<double> place = placeOf(chart, *to);
    const int sign = !place ? core::norm12(chart.rashi[core::kAscendant] + houseOf(*to) - 1)
                            : core::signOfLongitude(*place);
    const int from = at(chart.rashi, request.point);
    const int house = core::norm12(sign - from + 1);
    const double share = grahaAspectShare(request.point, house, settings);
    explanation.result = text(L"graha aspect ", shareText(share), L", rashi aspect ",
                              aspect->rashi ? L"yes" : L"no", aspect->value ? L", value " : L"",
                              aspect->value ? virupas(aspect->value) : std::wstring());
    step(explanation, nameOf(*to), L" is in ", signText(sign), L", the ", ordinal(house),
         L" sign from ", nameOf(request.point), L" in ", signText(from));
    step(explanation, request.point > core::kSaturn
                          ? L"the nodes fully aspect the 5th and 9th, and the 2nd or 12th where "
                            L"the setting adds it"
                          : L"every planet fully aspects the 7th, Mars also the 4th and 8th, "
                            L"Jupiter the 5th and 9th, Saturn the 3rd and 10th; the others have "
                            L"there three quarters, a half and a quarter");
    step(explanation,
         L"movable signs aspect the fixed ones except the next, fixed signs the "
         L"movable ones except the previous, dual signs each other: ",
         signText(from), aspect->rashi ? L" aspects " : L" does not aspect ", signText(sign));
    addDegreeStep(explanation, request, *aspect);
    return explanation;
}

Answer explainBhavaBala(const Request& request)
{
    const core::Chart& chart = request.chart;
    const int house = houseOf(request.point);
    Explanation explanation = about(L"bhava bala of " + nameOf(request.point));
    addSettings(explanation, request.settings, {"houseSystem", "naturalRelationshipsOnly"});
    const std::optional<double> middle = houseMiddle(chart, house);
    if (!middle) {
        return notComputed(explanation, L"the house has no middle in this chart");
    }
    const ShadbalaTable shadbala = computeShadbala(chart, strengthInputs(chart));
    const BhavaBala bala = at(computeBhavaBala(chart, shadbala), house - 1);
    step(explanation, L"the middle of the house is ", placeText(*middle), L", its lord ",
         nameOf(bala.lordPoint), L" has the shadbala ", virupas(bala.lord));
    step(explanation, L"the middle is in a sign part that is ", className(signClassOf(*middle)),
         L"; ten virupas for each house of distance from there give the dig bala ",
         virupas(bala.dig));
    step(explanation,
         L"the aspects of the planets on the middle, Mercury and Jupiter in full, the "
         L"others to a quarter, benefics added and malefics taken off, give ",
         virupas(bala.drishti));
    explanation.result = virupas(bala.total);
    if (!bala.total) {
        step(explanation, L"the sum cannot be computed: ", whyIncomplete(chart));
    }
    return explanation;
}

} // namespace kestrav::analysis::explaining
