#include "analysis/ExplainStrengths.h"

#include "analysis/DayParts.h"
#include "core/Angles.h"
#include "core/Names.h"
#include "core/TextForms.h"

#include <array>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

void addLord(Explanation& explanation, std::wstring_view period, int lord, int value)
{
    step(explanation, L"the lord of the ", period, L" gets ", value,
         L" virupas, the others none; it is ", nameOf(lord));
}

} // namespace

void explainNathonnatha(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"the Sun, Jupiter and Venus are strong at noon, with five virupas for each "
                      L"hour from midnight; the Moon, Mars and Saturn get what those lack to 60; "
                      L"Mercury always has 60");
    if (request.inputs.apparentTime) {
        step(explanation, L"the apparent solar time is ",
             core::FormatDMS(*request.inputs.apparentTime, 5));
    }
}

void explainPaksha(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"a third of the distance of the Moon from the Sun is the strength of "
                      L"benefics, malefics have what it lacks to 60, the Moon twice the third");
    if (request.chart.computed(core::kSun) && request.chart.computed(core::kMoon)) {
        step(explanation, L"the distance is ",
             angle(arcBetween(request.chart.longitude[core::kMoon],
                              request.chart.longitude[core::kSun])));
    }
    const bool benefic = at(naturalBenefics(request.chart), request.planet);
    step(explanation, nameOf(request.planet), L" is by nature ", benefic ? L"benefic" : L"malefic",
         L" in this chart");
}

void explainTribhaga(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"Jupiter always has 60; the thirds of the day give 60 to Mercury, the Sun "
                      L"and Saturn in turn, those of the night to the Moon, Venus and Mars");
    if (const std::optional<DayThird>& third = request.inputs.dayThird) {
        step(explanation, L"this is the ", ordinal(third->third + 1), L" third of the ",
             third->byDay ? L"day" : L"night", L", that of ", nameOf(thirdLord(*third)));
    }
}

void explainVarsha(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"years of 360 days are counted from the creation in the Surya Siddhanta; "
                      L"each moves the lord on by three weekdays");
    if (request.inputs.dayJulianDay) {
        addLord(explanation,
                L"year that contains Julian day " + decimal(*request.inputs.dayJulianDay, 1),
                yearLord(*request.inputs.dayJulianDay), 15);
    }
}

void explainMasa(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"months of 30 days are counted from the creation in the Surya Siddhanta; "
                      L"each moves the lord on by two weekdays");
    if (request.inputs.dayJulianDay) {
        addLord(explanation,
                L"month that contains Julian day " + decimal(*request.inputs.dayJulianDay, 1),
                monthLord(*request.inputs.dayJulianDay), 30);
    }
}

void explainVara(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"the weekday begins at sunrise");
    if (const std::optional<int> weekday = request.inputs.weekday) {
        // Weekday 1 to 7 is ruled by the planet of the same number.
        addLord(explanation, L"running " + std::wstring(core::weekdayName(*weekday)), *weekday, 45);
    }
}

void explainHora(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation,
         L"day and night have twelve horas each; the first of the day belongs to the "
         L"lord of the weekday, and they go on in the order Sun, Venus, Mercury, Moon, "
         L"Saturn, Jupiter, Mars");
    const std::optional<int> hora = runningHora(request.chart);
    if (hora && request.inputs.horaLord) {
        addLord(explanation, text(L"running hora (number ", *hora + 1, L")"),
                *request.inputs.horaLord, 60);
    }
}

void explainAyana(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation, L"the strength is 1.25 times 24 plus the declination for the Sun, Mars, "
                      L"Jupiter and Venus, 24 less it for the Moon and Saturn, 24 plus its amount "
                      L"for Mercury; that of the Sun is doubled");
    if (request.inputs.ayanamsa) {
        const double tropical = core::Normalize360(at(request.chart.longitude, request.planet) +
                                                   *request.inputs.ayanamsa);
        step(explanation, L"the tropical longitude ", angle(tropical),
             L" has in the table of six steps the declination ",
             decimal(tabularDeclination(tropical)), L" degrees, north positive");
    }
    step(explanation, L"it should reach ", virupas(requiredParts(request.planet).ayana));
}

void explainYuddha(Explanation& explanation, const StrengthRequest& request)
{
    step(explanation,
         L"two of Mars to Saturn less than a degree apart are at war; the difference "
         L"of their sthana, dig and kala strengths (without ayana), divided by that of "
         L"their discs, goes from the loser to the winner, who is further north");
    bool fights = false;
    for (const War& war : request.table.wars) {
        if (war.first != request.planet && war.second != request.planet) {
            continue;
        }
        fights = true;
        const Shadbala& first = at(request.table.planets, war.first);
        const Shadbala& second = at(request.table.planets, war.second);
        step(explanation, nameOf(war.first), L" (", virupas(first.beforeWar()), L", disc ",
             decimal(discDiameter(war.first), 1), L") fights ", nameOf(war.second), L" (",
             virupas(second.beforeWar()), L", disc ", decimal(discDiameter(war.second), 1), L"): ",
             war.winner ? nameOf(*war.winner) + L" wins" : L"the winner is not known", L", ",
             virupas(war.bala));
    }
    if (!fights) {
        step(explanation, nameOf(request.planet), L" is in no war");
    }
}

void explainKala(Explanation& explanation, const StrengthRequest& request)
{
    const KalaBala& bala = request.bala.kala;
    const std::vector<std::wstring> parts = {L"nathonnatha " + virupas(bala.nathonnatha),
                                             L"paksha " + virupas(bala.paksha),
                                             L"tribhaga " + virupas(bala.tribhaga),
                                             L"varsha " + virupas(bala.varsha),
                                             L"masa " + virupas(bala.masa),
                                             L"vara " + virupas(bala.vara),
                                             L"hora " + virupas(bala.hora),
                                             L"ayana " + virupas(bala.ayana),
                                             L"yuddha " + virupas(bala.yuddha)};
    step(explanation, L"it is the sum of ", listText(parts));
    step(explanation, L"it should reach ", virupas(requiredParts(request.planet).kala));
}

} // namespace kestrav::analysis::explaining
