#include "analysis/ExplainTopics.h"

#include "analysis/DayParts.h"
#include "analysis/NakshatraLords.h"
#include "analysis/SpecialLagnas.h"
#include "analysis/YogiPoint.h"
#include "core/Angles.h"
#include "core/Names.h"

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

std::wstring placeOf(const core::Chart& chart, int point)
{
    return nameOf(point) + L" (" + placeText(at(chart.longitude, point)) + L")";
}

void addFromSunrise(Explanation& explanation, const Request& request, double rate)
{
    const core::Chart& chart = request.chart;
    if (!chart.vedicDay) {
        return;
    }
    const double hours = chart.time.localTime - chart.vedicDay->sunrise;
    step(explanation, L"it starts at sunrise from the Sun's longitude at that time and moves ",
         decimal(rate, 0), L" degrees an hour");
    step(explanation, L"sunrise was at ", clockText(request.settings, chart.vedicDay->sunrise),
         L", ", decimal(hours, 3), L" hours before the moment; the Sun then stood at ",
         placeText(lagnaFromSunrise(at(chart.longitude, request.point), -hours, rate)));
}

void addIndu(Explanation& explanation, const core::Chart& chart)
{
    const int first = kalaOfNinthFrom(chart.rashi[core::kAscendant]);
    const int second = kalaOfNinthFrom(chart.rashi[core::kMoon]);
    step(explanation, L"the lords of the 9th from the ascendant and of the 9th from the Moon have ",
         first, L" and ", second,
         L" kalas (Sun 30, Moon 16, Mars 6, Mercury 8, Jupiter 10, Venus "
         L"12, Saturn 1)");
    step(explanation, L"the sum ", first + second, L" leaves by 12 the remainder ",
         core::norm12(first + second), L" (12 for 0), which is counted from the Moon's sign ",
         signText(chart.rashi[core::kMoon]), L" to ",
         signText(induSign(chart.rashi[core::kAscendant], chart.rashi[core::kMoon])));
    step(explanation, L"the degree is that of the Moon, ", angle(chart.degreeInSign[core::kMoon]));
}

void addShri(Explanation& explanation, const core::Chart& chart)
{
    const double position = chart.nakshatraPosition[core::kMoon];
    step(explanation, L"it lies as far from ", placeOf(chart, core::kAscendant),
         L" as the Moon has passed her nakshatra, taken as a whole circle");
    step(explanation, L"the Moon has passed ", decimal(nakshatraFraction(position) * 100.0),
         L" per cent of ", core::nakshatraName(nakshatraOf(position)));
}

void addVarnada(Explanation& explanation, const core::Chart& chart)
{
    const int ascendant = chart.rashi[core::kAscendant];
    const int hora = chart.rashi[core::kHoraLagna];
    step(explanation,
         L"odd signs are counted from Aries, even ones backwards from Pisces: the "
         L"ascendant ",
         signText(ascendant), L" and the Hora lagna ", signText(hora));
    step(explanation,
         L"the counts are added when both signs are odd or both even, else the "
         L"smaller is taken off the greater; the result is counted from Aries for an "
         L"odd ascendant, backwards from Pisces for an even one, and gives ",
         signText(varnadaSign(ascendant, hora)));
    step(explanation, L"the degree is that of the ascendant, ",
         angle(chart.degreeInSign[core::kAscendant]));
}

void addYogi(Explanation& explanation, const core::Chart& chart)
{
    const Yogi yogi = yogiOf(chart.longitude[core::kSun], chart.longitude[core::kMoon]);
    step(explanation, L"the longitudes of ", placeOf(chart, core::kSun), L" and ",
         placeOf(chart, core::kMoon), L" and 93\u00B020' are added");
    step(explanation, L"the Yogi planet is the lord of its nakshatra, ", nameOf(yogi.planet),
         L"; the duplicate Yogi the lord of its sign, ", nameOf(yogi.duplicate));
    step(explanation, L"the Avayogi point lies 186\u00B040' further on at ",
         placeText(yogi.avayogi), L"; the Avayogi is the lord of its nakshatra, ",
         nameOf(yogi.avayogiPlanet));
}

void addFortune(Explanation& explanation, const core::Chart& chart)
{
    const bool night = isNight(chart).value_or(false);
    const int added = night ? core::kSun : core::kMoon;
    const int taken = night ? core::kMoon : core::kSun;
    step(explanation, L"it is ", night ? L"night" : L"day", L", so the way from ",
         placeOf(chart, taken), L" to ", placeOf(chart, added), L" is added to ",
         placeOf(chart, core::kAscendant));
}

} // namespace

void addLagnaSteps(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    switch (request.point) {
    case core::kBhavaLagna:
        addFromSunrise(explanation, request, kBhavaLagnaRate);
        break;
    case core::kHoraLagna:
        addFromSunrise(explanation, request, kHoraLagnaRate);
        break;
    case core::kGhatiLagna:
        addFromSunrise(explanation, request, kGhatiLagnaRate);
        break;
    case core::kInduLagna:
        addIndu(explanation, chart);
        break;
    case core::kShriLagna:
        addShri(explanation, chart);
        break;
    case core::kVarnadaLagna:
        addVarnada(explanation, chart);
        break;
    case core::kDivyaLagna:
        step(explanation, L"it is nine times the longitude of ", placeOf(chart, core::kAscendant),
             L", reduced into the circle: the ascendant's place in the Navamsha");
        break;
    case core::kYogiPoint:
        addYogi(explanation, chart);
        break;
    default:
        addFortune(explanation, chart);
        break;
    }
}

} // namespace kestrav::analysis::explaining
