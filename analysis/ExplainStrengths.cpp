#include "analysis/ExplainStrengths.h"

#include "analysis/Aspects.h"
#include "analysis/CheshtaBala.h"
#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/VargaNames.h"
#include "core/Angles.h"

#include <array>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

struct Part
{
    std::string_view name;
    std::string_view group; ///< the sum to which it belongs, which may stand before it with a point
    std::wstring_view title;
    Strength (*value)(const Shadbala&);
    void (*explain)(Explanation&, const StrengthRequest&);
    /// Whether the compound relationships enter, as in the saptavargaja bala and all with it.
    bool byRelationship = false;
};

void explainUccha(Explanation& explanation, const StrengthRequest& request)
{
    const double deep = deepExaltation(request.planet);
    const double longitude = at(request.chart.longitude, request.planet);
    step(explanation, L"the deepest exaltation is at ", placeText(deep), L", the planet stands at ",
         placeText(longitude), L", ", angle(arcBetween(longitude, deep)), L" from it");
    step(explanation, L"a third of what that lacks to 180 degrees is the strength: ",
         virupas(request.bala.sthana.uccha));
}

void explainSaptavargaja(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation,
         L"in seven divisional charts the moolatrikona sign (Rashi only) gives 45, the "
         L"own sign 30, other signs 22.5, 15, 7.5, 3.75 or 1.875 by the compound "
         L"relationship of the Rashi to their lord, from great friend to great enemy");
    for (const SaptavargajaPart& part : saptavargajaParts(request.chart, request.planet)) {
        if (part.sign == 0) {
            continue;
        }
        const int lord = signLord(part.sign);
        const bool moolatrikona =
            part.varga == core::kRashi && part.sign == moolatrikonaSign(request.planet, 0);
        step(explanation, vargaText(part.varga), L": ", signText(part.sign), L", lord ",
             nameOf(lord), L", ",
             moolatrikona ? dignityWord(kDisplayMoolatrikona, false)
                          : codeText(at(at(request.chart.compound, request.planet), lord)),
             L": ", part.score ? decimal(*part.score, 3) : std::wstring(L"not computed"));
    }
}

void explainOjayugma(Explanation& explanation, const StrengthRequest& request)
{
    const bool female = request.planet == core::kMoon || request.planet == core::kVenus;
    const int navamsha = at(at(request.chart.vargas, core::kNavamsha), request.planet).sign;
    step(explanation,
         L"the Moon and Venus get 15 in an even sign and 15 in an even navamsha, the "
         L"other planets in odd ones; this one wants ",
         female ? L"even" : L"odd", L" signs");
    step(explanation, L"it is in ", signText(at(request.chart.rashi, request.planet)),
         L" and in the navamsha of ", signText(navamsha));
}

void explainKendradi(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"counted by sign from the ascendant, houses 1, 4, 7 and 10 give 60, houses "
                      L"2, 5, 8 and 11 give 30, the others 15");
    if (request.chart.computed(core::kAscendant)) {
        step(explanation, L"it is in house ",
             core::norm12(at(request.chart.rashi, request.planet) -
                          request.chart.rashi[core::kAscendant] + 1));
    }
}

void explainDrekkana(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"the Sun, Mars and Jupiter get 15 in the first third of a sign, Mercury and "
                      L"Saturn in the second, the Moon and Venus in the last");
    step(explanation, L"it stands at ", angle(at(request.chart.degreeInSign, request.planet)),
         L" of its sign");
}

void explainSum(Explanation& explanation, std::initializer_list<std::wstring> parts)
{
    step(explanation, L"it is the sum of ", listText(parts));
}

void explainSthana(Explanation& explanation, const StrengthRequest& request)
{
    const SthanaBala& bala = request.bala.sthana;
    explainSum(explanation,
               {L"uccha " + virupas(bala.uccha), L"saptavargaja " + virupas(bala.saptavargaja),
                L"ojayugma " + virupas(bala.ojayugma), L"kendradi " + virupas(bala.kendradi),
                L"drekkana " + virupas(bala.drekkana)});
    const double required = requiredParts(request.planet).sthana;
    step(explanation, L"it should reach ", virupas(required));
}

void explainDig(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"the weak point is the nadir for the Sun and Mars, the midheaven for the "
                      L"Moon and Venus, the descendant for Mercury and Jupiter, the ascendant for "
                      L"Saturn");
    if (const auto weak = directionlessPoint(request.chart, request.inputs, request.planet)) {
        const double longitude = at(request.chart.longitude, request.planet);
        step(explanation, L"that is ", placeText(*weak), L"; the planet stands at ",
             placeText(longitude), L", ", angle(arcBetween(longitude, *weak)),
             L" from it, and a third of that is the strength");
    }
    step(explanation, L"it should reach ", virupas(requiredParts(request.planet).dig));
}

void explainCheshta(Explanation& explanation, const StrengthRequest& request)
{
    if (request.planet == core::kSun || request.planet == core::kMoon) {
        step(explanation, L"Sun and Moon have no motional strength; the doubled ayana and paksha "
                          L"stand for it");
        return;
    }
    step(explanation, L"the place halfway between mean and true longitude is compared with the "
                      L"seeghrochcha, which is the mean Sun for Mars, Jupiter and Saturn and the "
                      L"planet's own mean place for Mercury and Venus, whose mean longitude is the "
                      L"Sun's; a third of the distance is the strength");
    if (const auto mean = cheshtaReckoning(request.chart, request.inputs, request.planet)) {
        step(explanation, L"mean longitude ", placeText(mean->mean), L", true ",
             placeText(at(request.chart.longitude, request.planet)), L", halfway ",
             placeText(mean->corrected), L", seeghrochcha ", placeText(mean->apex), L", ",
             angle(arcBetween(mean->apex, mean->corrected)), L" apart");
    }
    step(explanation, L"it should reach ", virupas(requiredParts(request.planet).cheshta));
}

void explainNaisargika(Explanation& explanation, const StrengthRequest&)
{
    step(explanation, L"the Sun, the Moon, Venus, Jupiter, Mercury, Mars and Saturn have seven to "
                      L"one sevenths of 60 virupas in every chart");
}

void explainDrik(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"the aspects of the other six planets are added for natural benefics and "
                      L"taken off for malefics, and a quarter of the sum is the strength");
    const NaturalBenefics benefic = naturalBenefics(request.chart);
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        if (other != request.planet && request.chart.computed(other)) {
            const double value =
                aspectValueOn(request.chart, other, at(request.chart.longitude, request.planet));
            step(explanation, nameOf(other), at(benefic, other) ? L", benefic: " : L", malefic: ",
                 decimal(at(benefic, other) ? value : -value));
        }
    }
}

void explainTotal(Explanation& explanation, const StrengthRequest& request)
{
    const Shadbala& bala = request.bala;
    explainSum(explanation,
               {L"sthana " + virupas(bala.sthana.total()), L"dig " + virupas(bala.dig),
                L"kala " + virupas(bala.kala.total()), L"cheshta " + virupas(bala.cheshta),
                L"naisargika " + virupas(bala.naisargika), L"drik " + virupas(bala.drik)});
    if (bala.total) {
        step(explanation, L"that is ", decimal(*bala.total / 60.0), L" rupas; required are ",
             virupas(bala.required), L", of which it reaches ", decimal(*bala.ratio), L" times");
    }
}

void explainPhala(Explanation& explanation, const StrengthRequest& request)
{
    switch (request.planet) {
    case core::kSun:
        step(explanation, L"for the Sun the motional strength is a third of the distance of the "
                          L"point 90 degrees beyond the tropical Sun from the equinox");
        break;
    case core::kMoon:
        step(explanation, L"for the Moon the motional strength is a third of the distance from the "
                          L"Sun");
        break;
    default:
        break;
    }
    step(explanation, L"uccha is ", virupas(request.bala.sthana.uccha), L", cheshta ",
         virupas(phalaCheshta(request.chart, request.inputs, request.planet)));
    step(explanation, L"ishta is the root of uccha times cheshta, kashta the root of what each of "
                      L"them lacks to 60, multiplied");
}

// clang-format off
constexpr std::array<Part, 22> kParts = {{
    {"uccha",        "sthana", L"uccha bala",        [](const Shadbala& b) { return b.sthana.uccha; },        explainUccha},
    {"saptavargaja", "sthana", L"saptavargaja bala", [](const Shadbala& b) { return b.sthana.saptavargaja; }, explainSaptavargaja, true},
    {"ojayugma",     "sthana", L"ojayugma bala",     [](const Shadbala& b) { return b.sthana.ojayugma; },     explainOjayugma},
    {"kendradi",     "sthana", L"kendradi bala",     [](const Shadbala& b) { return b.sthana.kendradi; },     explainKendradi},
    {"drekkana",     "sthana", L"drekkana bala",     [](const Shadbala& b) { return b.sthana.drekkana; },     explainDrekkana},
    {"sthana",       "",       L"sthana bala",       [](const Shadbala& b) { return b.sthana.total(); },      explainSthana, true},
    {"dig",          "",       L"dig bala",          [](const Shadbala& b) { return b.dig; },                 explainDig},
    {"nathonnatha",  "kala",   L"nathonnatha bala",  [](const Shadbala& b) { return b.kala.nathonnatha; },    explainNathonnatha},
    {"paksha",       "kala",   L"paksha bala",       [](const Shadbala& b) { return b.kala.paksha; },         explainPaksha},
    {"tribhaga",     "kala",   L"tribhaga bala",     [](const Shadbala& b) { return b.kala.tribhaga; },       explainTribhaga},
    {"varsha",       "kala",   L"varsha bala",       [](const Shadbala& b) { return b.kala.varsha; },         explainVarsha},
    {"masa",         "kala",   L"masa bala",         [](const Shadbala& b) { return b.kala.masa; },           explainMasa},
    {"vara",         "kala",   L"vara bala",         [](const Shadbala& b) { return b.kala.vara; },           explainVara},
    {"hora",         "kala",   L"hora bala",         [](const Shadbala& b) { return b.kala.hora; },           explainHora},
    {"ayana",        "kala",   L"ayana bala",        [](const Shadbala& b) { return b.kala.ayana; },          explainAyana},
    {"yuddha",       "kala",   L"yuddha bala",       [](const Shadbala& b) { return b.kala.yuddha; },         explainYuddha, true},
    {"kala",         "",       L"kala bala",         [](const Shadbala& b) { return b.kala.total(); },        explainKala, true},
    {"cheshta",      "",       L"cheshta bala",      [](const Shadbala& b) { return b.cheshta; },             explainCheshta},
    {"naisargika",   "",       L"naisargika bala",   [](const Shadbala& b) { return Strength(b.naisargika); }, explainNaisargika},
    {"drik",         "",       L"drik bala",         [](const Shadbala& b) { return b.drik; },                explainDrik},
    {"ishta",        "",       L"ishta phala",       [](const Shadbala& b) { return b.phala.ishta; },         explainPhala},
    {"kashta",       "",       L"kashta phala",      [](const Shadbala& b) { return b.phala.kashta; },        explainPhala},
}};
constexpr Part kTotal =
    {"total",        "",       L"shadbala",          [](const Shadbala& b) { return b.total; },               explainTotal, true};
// clang-format on

std::string lowered(std::string_view name)
{
    std::string result;
    for (const char letter : name) {
        result += letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
    }
    return result;
}

const Part* findPart(std::string_view text)
{
    const std::string name = lowered(text);
    if (name == kTotal.name) {
        return &kTotal;
    }
    for (const Part& part : kParts) {
        const std::string full = std::string(part.group) + "." + std::string(part.name);
        if (name == part.name || (!part.group.empty() && name == full)) {
            return &part;
        }
    }
    return nullptr;
}

} // namespace

bool isStrengthPart(std::string_view name)
{
    return findPart(name) != nullptr;
}

std::string strengthPartList()
{
    std::string list;
    for (const Part& part : kParts) {
        list += std::string(part.name) + ", ";
    }
    return list + std::string(kTotal.name);
}

Answer explainStrength(const Request& request)
{
    const Part* const part = request.detail.empty() ? &kTotal : findPart(request.detail);
    if (part == nullptr) {
        return unknown("the strength part", request.detail, strengthPartList());
    }
    const core::Chart& chart = request.chart;
    Explanation explanation = about(text(part->title, L" of ", nameOf(request.point)));
    if (part->byRelationship) {
        addSettings(explanation, request.settings, {"naturalRelationshipsOnly"});
    }
    if (!chart.computed(request.point)) {
        return notComputed(explanation, whyNoPosition(chart, request.point));
    }
    const StrengthInputs inputs = strengthInputs(chart);
    const ShadbalaTable table = computeShadbala(chart, inputs);
    const Shadbala& bala = at(table.planets, request.point);
    part->explain(explanation, {chart, inputs, table, bala, request.point});
    const Strength value = part->value(bala);
    explanation.result = virupas(value);
    if (!value) {
        step(explanation, L"it cannot be computed: ", whyIncomplete(chart));
    }
    return explanation;
}

} // namespace kestrav::analysis::explaining
