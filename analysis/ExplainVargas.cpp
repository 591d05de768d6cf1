#include "analysis/ExplainTopics.h"

#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;
using core::norm12;

struct Subject
{
    const Request& request;
    int varga;
    int rashi;
    bool even;
    VargaDivided divided;
};

void countThroughZodiac(Explanation& explanation, const Subject& subject)
{
    const VargaPart& part = subject.divided.part;
    const int division = vargaDivision(subject.varga);
    step(explanation, L"the zodiac is divided into ", 12 * division, L" parts of ",
         angle(part.width), L" each, which belong to the signs in turn from Aries on");
    step(explanation, nameOf(subject.request.point), L" stands in part ", part.index + 1,
         L", which gives ", signText(subject.divided.sign));
}

void namePart(Explanation& explanation, const Subject& subject)
{
    const VargaPart& part = subject.divided.part;
    step(explanation, L"each sign has ", vargaDivision(subject.varga), L" parts of ",
         angle(part.width), L"; ", nameOf(subject.request.point), L" stands in the ",
         ordinal(part.index + 1), L" part of ", signText(subject.rashi));
}

// For the rules that count on from a sign, one sign for each part.
void countFrom(Explanation& explanation, const Subject& subject, std::wstring_view rule)
{
    namePart(explanation, subject);
    const VargaDivided& divided = subject.divided;
    step(explanation, rule);
    step(explanation, L"the ", ordinal(divided.part.index + 1), L" part, counted from ",
         signText(norm12(divided.sign - divided.part.index)), L", gives ", signText(divided.sign));
}

void addHora(Explanation& explanation, const Subject& subject)
{
    const int method = subject.request.settings.horaMethod;
    if (method == 1) {
        countThroughZodiac(explanation, subject);
        return;
    }
    const VargaPart& part = subject.divided.part;
    // Rule 0 has exchanged the halves of even signs already.
    const bool exchanged = method == 0 && subject.even;
    const bool first = (part.index == 0) != exchanged;
    step(explanation, L"each sign has two halves of ", angle(part.width), L"; ",
         nameOf(subject.request.point), L" stands in the ", first ? L"first" : L"second",
         L" half of ", signText(subject.rashi));
    switch (method) {
    case 2:
        step(explanation, L"Aries, Gemini, Virgo, Scorpio, Capricorn and Aquarius give their first "
                          L"half to the 7th sign from them and keep the second; the other signs "
                          L"keep the first half and give the second to the 7th sign");
        break;
    case 3:
        step(explanation, L"the 24 halves of the zodiac have their signs from a fixed list: ",
             signText(8), L", ", signText(1), L", ", signText(2), L", ", signText(7),
             L" for those of Aries and Taurus, and so on");
        break;
    default:
        step(explanation,
             L"the first half of an odd sign and the second of an even sign are the "
             L"Sun's hora, ",
             signText(5), L"; the others are the Moon's hora, ", signText(4));
        break;
    }
    step(explanation, L"this half gives ", signText(subject.divided.sign));
}

void addShodashamsha(Explanation& explanation, const Subject& subject)
{
    if (subject.request.settings.shodashamshaVariant == 0) {
        countThroughZodiac(explanation, subject);
        return;
    }
    const int inSign = subject.divided.part.index - 16 * (subject.rashi - 1);
    step(explanation, L"each sign has 16 parts of ", angle(subject.divided.part.width), L"; ",
         nameOf(subject.request.point), L" stands in the ", ordinal(inSign + 1), L" part of ",
         signText(subject.rashi));
    step(explanation,
         L"odd signs count on from themselves, even signs backwards from their 4th, "
         L"here from ",
         signText(subject.even ? norm12(subject.rashi + 3) : subject.rashi), L", which gives ",
         signText(subject.divided.sign));
}

void addRudramsha(Explanation& explanation, const Subject& subject)
{
    if (subject.request.settings.rudramshaVariant == 0) {
        countThroughZodiac(explanation, subject);
        return;
    }
    namePart(explanation, subject);
    step(explanation,
         L"the parts are counted backwards in every sign: Aries, Pisces, Aquarius and "
         L"so on; this one gives ",
         signText(subject.divided.sign));
}

void addTrimshamsa(Explanation& explanation, const Subject& subject)
{
    step(explanation, subject.even
                          ? L"an even sign has parts of 5, 7, 8, 5 and 5 degrees, which belong to "
                            L"Taurus, Virgo, Pisces, Capricorn and Scorpio"
                          : L"an odd sign has parts of 5, 5, 8, 7 and 5 degrees, which belong to "
                            L"Aries, Aquarius, Sagittarius, Gemini and Libra");
    step(explanation, nameOf(subject.request.point), L" stands in the ",
         ordinal(subject.divided.part.index + 1), L" part, which gives ",
         signText(subject.divided.sign));
}

void addShashtiamsha(Explanation& explanation, const Subject& subject)
{
    namePart(explanation, subject);
    step(explanation,
         L"the half degrees are counted on from the sign itself, round the zodiac "
         L"five times; this one gives ",
         signText(subject.divided.sign));
}

void addNavaDwadasha(Explanation& explanation, const Subject& subject)
{
    const VargaPart& part = subject.divided.part;
    step(explanation, L"each navamsha has twelve parts of ", angle(part.width),
         L", counted from the sign of the navamsha");
    step(explanation, nameOf(subject.request.point), L" stands in the ",
         ordinal(part.index % 12 + 1), L" part of a navamsha of ",
         signText(at(subject.request.chart.navamshaSign, subject.request.point)), L", which gives ",
         signText(subject.divided.sign));
}

void addRule(Explanation& explanation, const Subject& subject)
{
    switch (subject.varga) {
    case core::kRashi:
        step(explanation, L"the Rashi shows the sign of the zodiac itself, ",
             signText(subject.divided.sign));
        break;
    case core::kHora:
        addHora(explanation, subject);
        break;
    case core::kDrekkana:
        namePart(explanation, subject);
        step(explanation,
             L"the three parts belong to the sign itself, to the 5th and to the 9th "
             L"from it; this one gives ",
             signText(subject.divided.sign));
        break;
    case core::kChaturtamsha:
        namePart(explanation, subject);
        step(explanation,
             L"the four parts belong to the sign itself and to the 4th, 7th and 10th "
             L"from it; this one gives ",
             signText(subject.divided.sign));
        break;
    case core::kDashamamsha:
        countFrom(explanation, subject,
                  L"odd signs count from themselves, even signs from the 9th sign from them");
        break;
    case core::kDwadashamsha:
        countFrom(explanation, subject, L"every sign counts from itself");
        break;
    case core::kShodashamsha:
        addShodashamsha(explanation, subject);
        break;
    case core::kSiddhamsha:
        countFrom(explanation, subject, L"odd signs count from Leo, even signs from Cancer");
        break;
    case core::kBhamsha:
        countFrom(explanation, subject,
                  L"fiery signs count from Aries, earthy signs from Cancer, "
                  L"airy signs from Libra, watery signs from Capricorn");
        break;
    case core::kTrimshamsa:
        addTrimshamsa(explanation, subject);
        break;
    case core::kChatvarimshamsha:
        countFrom(explanation, subject, L"odd signs count from Aries, even signs from Libra");
        break;
    case core::kAkshaVedamsha:
        countFrom(explanation, subject,
                  L"movable signs count from Aries, fixed signs from Leo, "
                  L"dual signs from Sagittarius");
        break;
    case core::kShashtiamsha:
        addShashtiamsha(explanation, subject);
        break;
    case core::kRudramsha:
        addRudramsha(explanation, subject);
        break;
    case core::kNavaDwadasha:
        addNavaDwadasha(explanation, subject);
        break;
    default:
        countThroughZodiac(explanation, subject);
        break;
    }
}

void addPosition(Explanation& explanation, const Subject& subject)
{
    const VargaPart& part = subject.divided.part;
    if (subject.varga != core::kRashi) {
        const bool reversed = part.position != part.fraction * 30.0;
        step(explanation, decimal(part.fraction * 100.0), L" per cent of the part lie behind ",
             nameOf(subject.request.point), L"; as part of 30 degrees",
             reversed ? L", counted backwards," : L"", L" that is the position ",
             angle(part.position));
    }
    step(explanation,
         subject.varga == core::kRashi
             ? L"the strength step goes by the fifth of the sign (1, 2, 4, 0, 0; backwards in even "
               L"signs): "
             : L"the strength step goes by the third of the part (4, 2, 0; 6 at its very start): ",
         part.strengthStep);
    step(explanation, L"the nearer boundary of the part is ", int(part.minutes),
         L" whole arc minutes away, ", part.nearBoundary ? L"less" : L"not less", L" than the ",
         subject.request.settings.sandhiMinutes, L" of the setting, so the placement is ",
         part.nearBoundary ? L"near the boundary" : L"not near the boundary");
}

} // namespace

void addPlacementSettings(Explanation& explanation, const core::Settings& settings, int varga)
{
    switch (varga) {
    case core::kHora:
        addSettings(explanation, settings, {"horaMethod"});
        break;
    case core::kShodashamsha:
        addSettings(explanation, settings, {"shodashamshaVariant"});
        break;
    case core::kRudramsha:
        addSettings(explanation, settings, {"rudramshaVariant"});
        break;
    default:
        break;
    }
}

Answer explainVarga(const Request& request, int varga)
{
    const core::Chart& chart = request.chart;
    Explanation explanation = about(nameOf(request.point) + L" in the " + vargaText(varga));
    addPlacementSettings(explanation, request.settings, varga);
    if (arudhaHouse(request.point) != 0) {
        addSettings(explanation, request.settings, {"arudhasInVargas"});
        addCoLordSettings(explanation, request.settings);
    }
    addSettings(explanation, request.settings, {"sandhiMinutes"});
    if (!chart.computed(request.point)) {
        return notComputed(explanation, whyNoPosition(chart, request.point));
    }
    const core::VargaPlacement& placement = at(at(chart.vargas, varga), request.point);
    const int rashi = at(chart.rashi, request.point);
    const Subject subject = {request, varga, rashi, rashi % 2 == 0,
                             divideInVarga(chart, varga, request.point, request.settings)};
    explanation.result =
        text(signText(placement.sign), L", position ", angle(placement.position),
             at(at(chart.nearBoundary, varga), request.point) ? L", near a boundary" : L"");
    step(explanation, nameOf(request.point), L" stands at ",
         placeText(at(chart.longitude, request.point)), L", ",
         subject.even ? L"an even sign" : L"an odd sign");
    addRule(explanation, subject);
    addPosition(explanation, subject);
    const int house = arudhaHouse(request.point);
    if (house != 0 && request.settings.arudhasInVargas) {
        step(explanation,
             L"the sign of an arudha is not that of the division, but is computed "
             L"anew from the signs of the ",
             vargaText(varga));
        addArudhaSteps(explanation, request, varga, house);
    }
    return explanation;
}

Answer explainTwentySecondDrekkana(const Request& request)
{
    const core::Chart& chart = request.chart;
    Explanation explanation = about(L"the 22nd drekkana of " + nameOf(request.point));
    if (!chart.computed(request.point)) {
        return notComputed(explanation, whyNoPosition(chart, request.point));
    }
    const int sign = twentySecondDrekkanaSign(chart, request.point);
    explanation.result = signText(sign);
    step(explanation, nameOf(request.point), L" stands at ",
         placeText(at(chart.longitude, request.point)), L", in a drekkana of ",
         signText(norm12(sign - 7)));
    step(explanation, L"the 22nd drekkana belongs to the 8th sign from that of the drekkana, ",
         signText(sign));
    return explanation;
}

} // namespace kestrav::analysis::explaining
