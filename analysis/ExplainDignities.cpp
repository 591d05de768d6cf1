#include "analysis/ExplainTopics.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

#include <array>
#include <cmath>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

bool isNode(int point)
{
    return point == core::kRahu || point == core::kKetu;
}

std::wstring_view naturalWord(int natural)
{
    return natural > 0 ? L"friend" : natural < 0 ? L"enemy" : L"neutral";
}

// Exaltation, moolatrikona and own sign in the rashi go by the degree.
void addBand(Explanation& explanation, const Request& request)
{
    const int point = request.point;
    const int scheme = request.settings.nodeDignityScheme;
    const bool planet = point >= core::kSun && point <= core::kSaturn;
    std::vector<std::wstring> limits;
    const int moolatrikona = moolatrikonaSign(point, scheme);
    if (planet && exaltationLimit(point) < 30.0) {
        limits.push_back(text(L"exalted up to ", angle(exaltationLimit(point)), L" ",
                              signText(exaltationSign(point, scheme))));
    }
    if (moolatrikona != 0) {
        limits.push_back(planet ? text(L"moolatrikona up to ", angle(moolatrikonaLimit(point)),
                                       L" ", signText(moolatrikona))
                                : text(L"moolatrikona in ", signText(moolatrikona)));
    }
    constexpr std::array<std::wstring_view, 3> kBands = {L"in its own sign", L"in moolatrikona",
                                                         L"exalted"};
    if (!limits.empty()) {
        step(explanation, nameOf(point), L" is ", listText(limits));
    }
    step(explanation, L"at ", angle(at(request.chart.degreeInSign, point)), L" of the sign it is ",
         at(kBands, rashiDignityBand(request.chart, point, request.settings)));
}

void addCancellation(Explanation& explanation, const Request& request)
{
    constexpr std::array<std::wstring_view, 7> kReasons = {
        L"",
        L"the lord of its sign is in a kendra from the ascendant or the Moon",
        L"the lord of its exaltation sign is in a kendra from the ascendant or the Moon",
        L"the planet that is exalted in its sign is in a kendra from the ascendant or the Moon",
        L"the lord of its sign is in it or fully aspects it",
        L"it is exalted in the Navamsha",
        L"another debilitated planet fully aspects it"};
    const int reason = debilitationCancelledBy(request.chart, request.point, request.settings);
    if (reason != 0) {
        step(explanation, L"the debilitation is cancelled, because ", at(kReasons, reason));
        return;
    }
    step(explanation, L"none of the six conditions cancels the debilitation");
    step(explanation, nameOf(request.point), L" is ",
         at(request.chart.retrograde, request.point) ? L"retrograde, which is shown with it"
                                                     : L"not retrograde");
}

// Everything but exaltation and debilitation.
void addByLord(Explanation& explanation, const Request& request, int varga, int sign)
{
    const int point = request.point;
    const int lord = isNode(point) ? nodeSignLord(sign) : signLord(sign);
    step(explanation, L"the lord of ", signText(sign),
         isNode(point) ? L" for the nodes is " : L" is ", nameOf(lord));
    if (lord == point) {
        step(explanation, L"so it is in its own sign");
    } else if (isNode(point)) {
        step(explanation, L"the nodes have their relationship by the sign alone: ",
             codeText(relationship(request.chart, point, lord, varga, sign, request.settings)),
             L" in ", signText(sign));
    } else {
        addRelationshipSteps(explanation, request, point, lord, varga, sign);
    }
}

void addDignitySettings(Explanation& explanation, const Request& request, int varga)
{
    if (isNode(request.point)) {
        addSettings(explanation, request.settings, {"nodeDignityScheme"});
    } else if (request.point <= core::kSaturn) {
        addSettings(explanation, request.settings, {"naturalRelationshipsOnly"});
        if (varga != core::kRashi) {
            addSettings(explanation, request.settings, {"vargaCompoundRelationships"});
        }
    }
}

} // namespace

void addRelationshipSteps(Explanation& explanation, const Request& request, int planet, int other,
                          int varga, int sign)
{
    const core::Settings& settings = request.settings;
    // The stored relationships of the rashi serve where the settings ask for them.
    const bool ofRashi = varga == core::kRashi || !settings.vargaCompoundRelationships;
    const int view = ofRashi ? int(core::kRashi) : varga;
    const int natural = naturalRelationship(planet, other);
    const int compound = relationship(request.chart, planet, other, varga, sign, settings);
    step(explanation, L"by nature ", nameOf(other), L" is ",
         natural == 0  ? L"neutral"
         : natural > 0 ? L"a friend"
                       : L"an enemy",
         L" to ", nameOf(planet));
    const int house = core::norm12(signInVarga(request.chart, view, planet) -
                                   signInVarga(request.chart, view, other) + 1);
    if (compound == natural) {
        step(explanation, settings.naturalRelationshipsOnly
                              ? L"temporary relationships are left out by the setting"
                              : L"without both positions there is no temporary relationship");
    } else {
        step(explanation, L"in the ", vargaText(view), L" ", nameOf(planet), L" is in the ",
             ordinal(house), L" sign from ", nameOf(other), L": temporary ",
             compound > natural ? L"friend (2, 3, 4, 10, 11, 12)" : L"enemy (1, 5, 6, 7, 8, 9)");
    }
    step(explanation, L"together: ", codeText(compound));
}

Answer explainDignity(const Request& request)
{
    const core::Chart& chart = request.chart;
    const core::Settings& settings = request.settings;
    const int point = request.point;
    int varga = core::kRashi;
    if (!request.detail.empty()) {
        const std::optional<int> found = findVargaName(request.detail);
        if (!found) {
            return unknown("the varga", request.detail,
                           "a name such as navamsha, an index 0 to 20 or a division such as D-9");
        }
        varga = *found;
    }
    Explanation explanation =
        about(text(L"dignity of ", nameOf(point), L" in the ", vargaText(varga)));
    addPlacementSettings(explanation, settings, varga);
    addDignitySettings(explanation, request, varga);
    const int sign = signInVarga(chart, varga, point);
    if (sign == 0) {
        return notComputed(explanation, whyNoPosition(chart, point));
    }
    const int code = vargaDignity(chart, point, sign, varga, settings);
    explanation.result = dignityWord(shownDignity(chart, point, varga, settings), false);
    step(explanation, nameOf(point), L" is in ", signText(sign), L"; it is exalted in ",
         signText(exaltationSign(point, settings.nodeDignityScheme)), L" and debilitated in ",
         signText(debilitationSign(point, settings.nodeDignityScheme)));
    if (code == kDebilitated) {
        step(explanation, L"so it is debilitated");
        if (varga == core::kRashi && point <= core::kSaturn) {
            addCancellation(explanation, request);
        }
        return explanation;
    }
    if (code == kExalted) {
        step(explanation, L"so it is in its sign of exaltation");
    } else if (point >= core::kDhuma) {
        step(explanation, L"upagrahas have no dignity in other signs");
    } else {
        addByLord(explanation, request, varga, sign);
    }
    if (varga == core::kRashi && code >= kOwn) {
        addBand(explanation, request);
    }
    return explanation;
}

Answer explainRelationship(const Request& request)
{
    const core::Chart& chart = request.chart;
    const std::optional<int> other = findPoint(request.detail);
    if (!other || *other < core::kSun || *other > core::kSaturn || *other == request.point) {
        return unknown("the other planet", request.detail,
                       "another one of " + pointList(core::kSun, core::kSaturn));
    }
    Explanation explanation =
        about(text(L"relationship of ", nameOf(request.point), L" towards ", nameOf(*other)));
    addSettings(explanation, request.settings, {"naturalRelationshipsOnly"});
    explanation.result =
        text(codeText(at(at(chart.compound, request.point), *other)), L" (by nature ",
             naturalWord(naturalRelationship(request.point, *other)), L")");
    addRelationshipSteps(explanation, request, request.point, *other, core::kRashi,
                         at(chart.rashi, *other));
    return explanation;
}

Answer explainCombustion(const Request& request)
{
    const core::Chart& chart = request.chart;
    const int planet = request.point;
    Explanation explanation = about(L"combustion of " + nameOf(planet));
    addSettings(explanation, request.settings, {"directCombustionOrbsOnly"});
    for (const int needed : {planet, int(core::kSun)}) {
        if (!chart.computed(needed)) {
            return notComputed(explanation, whyNoPosition(chart, needed));
        }
    }
    const bool combust = at(chart.combust, planet);
    const double longitude = at(chart.longitude, planet);
    const double sun = chart.longitude[core::kSun];
    const bool retrograde = at(chart.retrograde, planet);
    const bool ofRetrograde = retrograde && !request.settings.directCombustionOrbsOnly;
    const double orb = combustionOrb(planet, ofRetrograde);
    explanation.result = combust ? L"combust" : L"not combust";
    step(explanation, nameOf(planet), L" stands at ", placeText(longitude), L" and ",
         nameOf(core::kSun), L" at ", placeText(sun), L": ", angle(arcBetween(longitude, sun)),
         L" apart");
    step(explanation, nameOf(planet), L" is ", retrograde ? L"retrograde" : L"direct",
         L"; its orb is ", angle(orb),
         ofRetrograde ? L", that of a retrograde planet" : L", that of a direct planet");
    if (!combust && arcBetween(longitude, sun) < orb) {
        step(explanation, L"a planet and the Sun on opposite sides of 0 degrees Aries are never "
                          L"combust");
    } else {
        step(explanation, L"a planet is combust when it is closer than the orb, which is ",
             combust ? L"so" : L"not so");
    }
    return explanation;
}

} // namespace kestrav::analysis::explaining
