#include "analysis/ExplainTopics.h"

#include "analysis/DayParts.h"
#include "analysis/NakshatraLords.h"
#include "analysis/Sahams.h"
#include "analysis/SignStrength.h"
#include "analysis/Upagrahas.h"
#include "core/Angles.h"
#include "core/FileText.h"
#include "core/Names.h"

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

constexpr double kGhatisPerHour = 2.5;

std::wstring ayanamsaName(const core::Settings& settings)
{
    return core::fromFileBytes(at(settings.ayanamsaTable, settings.ayanamsaRow).nameText());
}

void addBody(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    if (!chart.hasMoment) {
        step(explanation, L"the position was given with the chart");
        return;
    }
    const double tropical = core::Normalize360(at(chart.longitude, request.point) + chart.ayanamsa);
    if (request.point == core::kRahu || request.point == core::kKetu) {
        step(explanation, L"Rahu is the mean ascending node of the Moon, Ketu is opposite to it");
    }
    step(explanation, L"the tropical longitude ", angle(tropical), L" less the ayanamsa ",
         angle(chart.ayanamsa), L" (", ayanamsaName(request.settings), L") is the sidereal one");
}

void addHouse(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    if (!chart.hasMoment) {
        step(explanation, L"the position was given with the chart");
        return;
    }
    if (request.point != core::kAscendant && chart.houseSystem <= 1) {
        step(explanation,
             chart.houseSystem == 0
                 ? L"each house is a whole sign, counted from that of the ascendant ("
                 : L"the houses follow each other in steps of 30 degrees from the ascendant (",
             placeText(chart.longitude[core::kAscendant]), L")",
             chart.houseSystem == 0 ? L", and its middle stands for it" : L"");
        return;
    }
    step(explanation, L"it follows from the local sidereal time ",
         clockText({}, chart.localSiderealTime), L", the obliquity and the latitude ",
         decimal(chart.geoLatitude, 4), L", less the ayanamsa ", angle(chart.ayanamsa), L" (",
         ayanamsaName(request.settings), L")");
    if (request.point != core::kAscendant) {
        step(explanation, L"the house system makes it from the ascendant ",
             placeText(chart.longitude[core::kAscendant]), L" and the midheaven ",
             placeText(chart.midheaven));
    }
}

void addSunBased(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    const double sun = chart.longitude[core::kSun];
    const std::array<double, 5> places = sunBasedUpagrahas(sun);
    step(explanation, L"Dhuma is the Sun (", placeText(sun), L") and 133\u00B020': ",
         placeText(places[0]));
    constexpr std::array<std::wstring_view, 5> kRules = {
        L"", L"Vyatipata is the circle less Dhuma: ", L"Parivesha is opposite to Vyatipata: ",
        L"Indrachapa is the circle less Parivesha: ", L"Upaketu is Indrachapa and 16\u00B040': "};
    for (int i = 1; i <= request.point - core::kDhuma; ++i) {
        step(explanation, at(kRules, i), placeText(at(places, i)));
    }
}

// Points whose place is the ascendant at an hour of the running day or night.
void addPartBased(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    const bool middle = request.settings.upagrahaAtMiddle;
    const std::optional<HalfDay> half = runningHalf(chart);
    const std::optional<double> hour = upagrahaHour(chart, request.point, middle);
    if (!half || !hour) {
        return;
    }
    const std::wstring_view name = half->night ? L"night" : L"day";
    step(explanation, L"the ", name, L" of ", core::weekdayName(chart.weekday), L" runs from ",
         clockText(request.settings, half->start), L" to ", clockText(request.settings, half->end));
    if (request.point == core::kMandi) {
        step(explanation, L"Mandi rises after ", mandiGhati(chart.weekday, half->night),
             L" of its 30 parts, at ", clockText(request.settings, *hour));
    } else {
        const int planet = upagrahaPlanet(request.point);
        step(explanation, nameOf(request.point), L" belongs to ", nameOf(planet),
             L", who rules the ", ordinal(kalaVelaPart(chart.weekday, half->night, planet) + 1),
             L" of its 8 parts; its ", middle ? L"middle" : L"start", L" is at ",
             clockText(request.settings, *hour));
    }
    step(explanation, L"the ascendant at that time is its place");
}

void addPranapada(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    if (!chart.vedicDay) {
        return;
    }
    constexpr std::array<std::wstring_view, 3> kModalities = {
        L"a movable sign, which adds nothing", L"a fixed sign, which adds 240 degrees",
        L"a dual sign, which adds 120 degrees"};
    const double hours = chart.time.localTime - chart.vedicDay->sunrise;
    step(explanation, L"it moves 120 degrees a ghati from the Sun; since sunrise ",
         decimal(hours * kGhatisPerHour, 3), L" ghatis have passed");
    step(explanation, L"the Sun is at ", placeText(chart.longitude[core::kSun]), L", ",
         at(kModalities, signModality(chart.rashi[core::kSun])));
}

void addArudhaPoint(Explanation& explanation, const Request& request)
{
    addArudhaSteps(explanation, request, core::kRashi, arudhaHouse(request.point));
    step(explanation, L"the degree is that of the ascendant, ",
         angle(request.chart.degreeInSign[core::kAscendant]));
}

void addSahamPoint(Explanation& explanation, const Request& request)
{
    const int saham =
        request.point == core::kSaham2 ? request.settings.saham2 : request.settings.saham3;
    if (saham >= 0 && saham < kSahamCount) {
        addSahamSteps(explanation, request, saham);
    }
}

void addRule(Explanation& explanation, const Request& request)
{
    const int point = request.point;
    if (point == core::kAscendant || (point >= core::kCusp1 && point <= core::kCusp12)) {
        addHouse(explanation, request);
    } else if (point <= core::kKetu || (point >= core::kUranus && point <= core::kPluto)) {
        addBody(explanation, request);
    } else if (point <= core::kUpaketu) {
        addSunBased(explanation, request);
    } else if (point == core::kPranapada) {
        addPranapada(explanation, request);
    } else if (point <= core::kMandi) {
        addPartBased(explanation, request);
    } else if (point == core::kMuntha || point == core::kJanmalagna) {
        step(explanation, L"Janmalagna is the ascendant of the birth; Muntha moves on from there "
                          L"by a sign for each completed year");
    } else if (arudhaHouse(point) != 0) {
        addArudhaPoint(explanation, request);
    } else if (point >= core::kSaham2) {
        addSahamPoint(explanation, request);
    } else {
        addLagnaSteps(explanation, request);
    }
}

bool restsOnMoon(int point)
{
    switch (point) {
    case core::kMoon:
    case core::kInduLagna:
    case core::kShriLagna:
    case core::kYogiPoint:
    case core::kPartOfFortune:
        return true;
    default:
        return false;
    }
}

void addLongitudeSettings(Explanation& explanation, const Request& request)
{
    const core::Settings& settings = request.settings;
    const int point = request.point;
    if (request.chart.hasMoment) {
        addSettings(explanation, settings, {"ayanamsaRow", "deltaTOn"});
        if (restsOnMoon(point)) {
            addSettings(explanation, settings, {"preciseMoon"});
        }
    }
    if (point >= core::kCusp1 && point <= core::kCusp12) {
        addSettings(explanation, settings, {"houseSystem"});
    } else if (point >= core::kKaala && point <= core::kGulika) {
        addSettings(explanation, settings, {"upagrahaAtMiddle"});
    } else if (arudhaHouse(point) != 0) {
        addCoLordSettings(explanation, settings);
    } else if (point == core::kSaham2) {
        addSettings(explanation, settings, {"saham2"});
    } else if (point == core::kSaham3) {
        addSettings(explanation, settings, {"saham3"});
    }
}

} // namespace

Answer explainLongitude(const Request& request)
{
    const core::Chart& chart = request.chart;
    Explanation explanation = about(L"longitude of " + nameOf(request.point));
    addLongitudeSettings(explanation, request);
    if (!chart.computed(request.point)) {
        return notComputed(explanation, whyNoPosition(chart, request.point));
    }
    const double longitude = at(chart.longitude, request.point);
    const double position = at(chart.nakshatraPosition, request.point);
    explanation.result = text(placeText(longitude), L" (", angle(longitude), L")");
    addRule(explanation, request);
    step(explanation, L"that is in ", core::nakshatraName(nakshatraOf(position)), L", pada ",
         padaOf(position), L", whose lord is ", nameOf(nakshatraLord(position)));
    return explanation;
}

} // namespace kestrav::analysis::explaining
