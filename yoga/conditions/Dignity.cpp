// Conditions on dignity, motion and nature.
#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/PlanetaryWar.h"
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

#include <array>

namespace kestrav::yoga::conditions
{

namespace
{

using analysis::signLord;
using core::at;

bool isPlanet(int point)
{
    return point >= core::kSun && point <= core::kSaturn;
}

std::wstring wordOf(PlainWord word)
{
    return std::wstring(codeWords((int(WordClass::Plain) << 27) | word));
}

// The dignity of a place under a test of its rank.
template <typename Holds, typename Wanted>
bool dignityWhich(Evaluation& e, Holds holds, Wanted wanted)
{
    return e.each(0, [&](const Place& place) {
        const std::optional<PlainWord> found = place.frame->dignity(place.planet(), e.varga());
        return e.fact(
            found && holds(*found),
            [&] {
                return found ? text(e.name(place, 0), L" is ", wordOf(*found))
                             : e.name(place, 0) + L" has no dignity";
            },
            wanted);
    });
}

bool inKendra(Frame& frame, int planet, int varga)
{
    const int sign = frame.sign(planet, varga);
    for (const int reference : {core::kAscendant, core::kMoon}) {
        const int first = frame.sign(reference, varga);
        if (sign != 0 && first != 0 && houseFrom(sign, first) % 3 == 1) {
            return true;
        }
    }
    return false;
}

int exaltedIn(int sign)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (analysis::exaltationSign(planet, 0) == sign) {
            return planet;
        }
    }
    return 0;
}

// The six rules that cancel a debilitation, in the divisional chart; the fifth looks at the
// navamsha in every one. 0 when none holds.
int cancelledBy(Frame& frame, int planet, int varga, const core::Settings& settings)
{
    const int sign = frame.sign(planet, varga);
    const int lord = signLord(sign);
    const int exaltation = analysis::exaltationSign(planet, 0);
    if (inKendra(frame, lord, varga)) {
        return 1;
    }
    if (inKendra(frame, signLord(exaltation), varga)) {
        return 2;
    }
    const int exalted = exaltedIn(sign);
    if (exalted != 0 && inKendra(frame, exalted, varga)) {
        return 3;
    }
    const int lordSign = frame.sign(lord, varga);
    if (lordSign != 0 && (lordSign == sign || aspectsSign(lord, lordSign, sign, settings))) {
        return 4;
    }
    if (frame.sign(planet, core::kNavamsha) == exaltation) {
        return 5;
    }
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        const int place = frame.sign(other, varga);
        if (other != planet && place != 0 && place == analysis::debilitationSign(other, 0) &&
            aspectsSign(other, place, sign, settings)) {
            return 6;
        }
    }
    return 0;
}

constexpr std::array<std::wstring_view, 7> kCancelWords = {
    L"nothing cancels it",
    L"the lord of its sign is in a kendra",
    L"the lord of its exaltation sign is in a kendra",
    L"the planet exalted in its sign is in a kendra",
    L"the lord of its sign is in it or aspects it",
    L"it is exalted in the navamsha",
    L"another debilitated planet aspects it",
};

PlainWord motionWord(core::Motion motion)
{
    return PlainWord(kWordFast + int(motion) - int(core::Motion::Fast));
}
static_assert(kWordStation - kWordFast == int(core::Motion::Station) - int(core::Motion::Fast));

} // namespace

bool dignity(Evaluation& e)
{
    const bool own = e.listed(kWordOwn);
    return dignityWhich(
        e, [&](PlainWord found) { return e.listed(found) || (own && found == kWordMoolatrikona); },
        [&] { return plainListWords(e.list()); });
}

bool dignityMin(Evaluation& e)
{
    const PlainWord least = e.word(1, kWordDebilitated);
    return dignityWhich(
        e, [&](PlainWord found) { return found >= least; },
        [&] { return wordOf(least) + L" or better"; });
}

bool dignityMax(Evaluation& e)
{
    const PlainWord most = e.word(1, kWordExalted);
    return dignityWhich(
        e, [&](PlainWord found) { return found <= most; },
        [&] { return wordOf(most) + L" or worse"; });
}

bool regards(Evaluation& e)
{
    const bool natural = e.word(2, kWordCompound) == kWordNatural;
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const int planet = place.planet();
        const int second = other.planet();
        if (!isPlanet(planet) || !isPlanet(second) || planet == second) {
            return e.fact(false, [&] {
                return text(e.name(place, 0), L" has no relationship to ", e.name(other, 1));
            });
        }
        const int code = natural ? analysis::naturalRelationship(planet, second)
                                 : analysis::relationship(place.frame->chart(e.varga()), planet,
                                                          second, e.varga(), 0, e.settings());
        const auto word = PlainWord(kWordNeutral + code);
        constexpr std::array<std::wstring_view, 5> kWords = {
            L"a great enemy", L"an enemy", L"neutral", L"a friend", L"a great friend"};
        return e.fact(
            e.listed(word),
            [&] {
                return text(e.name(other, 1), L" is ", at(kWords, code + 2), L" for ",
                            e.name(place, 0));
            },
            [&] { return L"as asked"; });
    });
}

bool debCancelled(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const int planet = place.planet();
        const bool debilitated =
            isPlanet(planet) && place.frame->dignity(planet, e.varga()) == kWordDebilitated;
        const int rule =
            debilitated ? cancelledBy(*place.frame, planet, e.varga(), e.settings()) : 0;
        return e.fact(rule > 0, [&] {
            return debilitated ? text(e.name(place, 0), L" is debilitated, ",
                                      rule > 0 ? L"but " : L"and ", at(kCancelWords, rule))
                               : e.name(place, 0) + L" is not debilitated";
        });
    });
}

bool retrograde(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const bool truth = place.shift == 0 && place.frame->retrograde(place.point);
        return e.fact(truth, [&] {
            return e.name(place, 0) + (truth ? L" is retrograde" : L" is not retrograde");
        });
    });
}

bool motion(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const core::Motion found = place.shift == 0 && place.frame->isWhole()
                                       ? at(place.frame->chart().motion, place.point)
                                       : core::Motion::None;
        const bool moves = found != core::Motion::None;
        return e.fact(
            moves && e.listed(motionWord(found)),
            [&] {
                return moves ? text(e.name(place, 0), L" is ", wordOf(motionWord(found)))
                             : e.name(place, 0) + L" has no known motion";
            },
            [&] { return plainListWords(e.list()); });
    });
}

bool combust(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const bool truth = isPlanet(place.planet()) && place.frame->combust(place.planet());
        return e.fact(truth, [&] {
            return e.name(place, 0) + (truth ? L" is combust" : L" is not combust");
        });
    });
}

bool atWar(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const int planet = place.planet();
        bool truth = false;
        if (planet > 0 && place.frame->isWhole()) {
            for (const analysis::War& war : place.frame->shadbala().wars) {
                const bool fights = war.first == planet || war.second == planet;
                const bool asked = e.value(1) < 0 || (e.value(1) == kWordWon ? war.winner == planet
                                                                             : war.loser == planet);
                truth = truth || (fights && asked);
            }
        }
        return e.fact(truth, [&] {
            return text(e.name(place, 0), truth ? L" is in a planetary war" : L" is in no such war",
                        e.value(1) < 0 ? L"" : L" as " + wordOf(PlainWord(e.value(1))));
        });
    });
}

bool functional(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        if (place.planet() == 0) {
            return e.fact(false, [&] { return e.name(place, 0) + L" has no functional nature"; });
        }
        const analysis::Nature& nature = at(place.frame->natures(), place.planet());
        const bool benefic = (nature.benefic || nature.yogakaraka) && !nature.malefic;
        const bool malefic = nature.malefic && !nature.benefic && !nature.yogakaraka;
        const bool none =
            !nature.yogakaraka && !nature.benefic && !nature.malefic && !nature.maraka;
        std::uint64_t found = 0;
        const auto note = [&](bool is, PlainWord word) {
            found |= is ? std::uint64_t{1} << unsigned(word) : 0U;
        };
        note(nature.yogakaraka, kWordYogakaraka);
        note(benefic, kWordBenefic);
        note(malefic, kWordMalefic);
        note(nature.maraka, kWordMaraka);
        note(none, kWordNoNature);
        return e.fact((found & e.list()) != 0,
                      [&] {
                          return found == 0 ? e.name(place, 0) + L" is of mixed nature"
                                            : text(e.name(place, 0), L" is ", plainListWords(found),
                                                   L" for the ascendant");
                      },
                      [&] { return plainListWords(e.list()); });
    });
}

bool natural(Evaluation& e)
{
    const bool wanted = e.word(1, kWordBenefic) == kWordBenefic;
    return e.each(0, [&](const Place& place) {
        const int planet = place.planet();
        const bool benefic = planet > 0 && at(place.frame->benefics(), planet);
        return e.fact(planet > 0 && benefic == wanted, [&] {
            return text(e.name(place, 0), planet == 0 ? L" has no nature"
                                          : benefic   ? L" is a natural benefic"
                                                      : L" is a natural malefic");
        });
    });
}

} // namespace kestrav::yoga::conditions
