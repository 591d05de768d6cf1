// Conditions on aspects and on the lords of signs.
#include "analysis/Aspects.h"
#include "analysis/DignityTables.h"
#include "analysis/SignStrength.h"
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

namespace kestrav::yoga::conditions
{

namespace
{

using analysis::signLord;
using core::norm12;

// An aspect of one place on another, in the way that a condition asks for.
struct AspectFound
{
    bool holds = false;
    std::wstring (*words)(double) = nullptr;
    double amount = 0.0;
};

AspectFound aspectFrom(const Place& from, int fromVarga, const Place& to, int toVarga,
                       PlainWord how, int least, const core::Settings& settings)
{
    const int planet = from.planet();
    const int sign = from.sign(fromVarga);
    const int target = to.sign(toVarga);
    const int house = houseFrom(target, sign);
    AspectFound found;
    switch (how) {
    case kWordSign:
        found.holds = analysis::signAspects(sign, target);
        found.words = [](double) {
            return std::wstring(L"a sign aspect");
        };
        break;
    case kWordShare:
        found.amount =
            planet == 0 ? 0.0 : 100.0 * analysis::grahaAspectShare(planet, house, settings);
        found.holds = found.amount > 0.0 && found.amount >= least;
        found.words = [](double amount) {
            return decimal(amount, 0) + L" percent of an aspect";
        };
        break;
    case kWordValue: {
        const double one = from.longitude(fromVarga);
        const double two = to.longitude(toVarga);
        const bool known =
            planet >= core::kSun && planet <= core::kSaturn && one >= 0.0 && two >= 0.0;
        found.amount = known ? analysis::aspectValue(planet, wayTo(one, two)) : 0.0;
        found.holds = found.amount > 0.0 && found.amount >= least;
        found.words = [](double amount) {
            return L"an aspect of " + explaining::virupas(amount);
        };
        break;
    }
    default:
        found.holds = aspectsSign(planet, sign, target, settings);
        found.words = [](double) {
            return std::wstring(L"a full aspect");
        };
        break;
    }
    return found;
}

std::wstring aspectText(const std::wstring& from, const AspectFound& found, const std::wstring& to)
{
    const bool some = found.holds || found.amount > 0.0;
    return text(from, L" casts ", some ? L"" : L"no such aspect: not ", found.words(found.amount),
                L" on ", to);
}

// A planet stands in a sign of another planet.
bool standsWith(const Place& place, int varga, const Place& lord)
{
    return lord.planet() > 0 && signLord(place.sign(varga)) == lord.planet();
}

bool exchanged(const Place& place, int varga, const Place& other, int otherVarga)
{
    return place.planet() > 0 && place.planet() != other.planet() &&
           standsWith(place, varga, other) && standsWith(other, otherVarga, place);
}

// Dainya when one of the houses is a dusthana, khala when one is the third, else maha.
PlainWord exchangeClass(int house, int other)
{
    const auto dusthana = [](int number) {
        return number == 6 || number == 8 || number == 12;
    };
    if (dusthana(house) || dusthana(other)) {
        return kWordDainya;
    }
    return house == 3 || other == 3 ? kWordKhala : kWordMaha;
}

} // namespace

bool aspect(Evaluation& e)
{
    const PlainWord how = e.word(2, kWordGraha);
    return e.pairs(0, 1, [&](const Place& place, const Place& target) {
        const AspectFound found =
            aspectFrom(place, e.varga(), target, e.varga(1), how, e.value(3), e.settings());
        return e.fact(found.holds,
                      [&] { return aspectText(e.name(place, 0), found, e.name(target, 1)); });
    });
}

bool mutual(Evaluation& e)
{
    const PlainWord how = e.word(2, kWordGraha);
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const AspectFound there =
            aspectFrom(place, e.varga(), other, e.varga(1), how, e.value(3), e.settings());
        const AspectFound back =
            aspectFrom(other, e.varga(1), place, e.varga(), how, e.value(3), e.settings());
        return e.fact(there.holds && back.holds, [&] {
            return aspectText(e.name(place, 0), there, e.name(other, 1)) + L", and " +
                   aspectText(e.name(other, 1), back, e.name(place, 0));
        });
    });
}

bool influences(Evaluation& e)
{
    return e.pairs(0, 1, [&](const Place& place, const Place& target) {
        const int sign = place.sign(e.varga());
        const int other = target.sign(e.varga(1));
        const bool together = sign == other;
        const bool truth = together || aspectsSign(place.planet(), sign, other, e.settings());
        return e.fact(truth, [&] {
            return text(e.name(place, 0),
                        together ? L" is with "
                        : truth  ? L" aspects "
                                 : L" is neither with nor aspects ",
                        e.name(target, 1));
        });
    });
}

bool related(Evaluation& e)
{
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const int sign = place.sign(e.varga());
        const int second = other.sign(e.varga(1));
        const bool together = sign == second;
        const bool aspects = aspectsSign(place.planet(), sign, second, e.settings()) &&
                             aspectsSign(other.planet(), second, sign, e.settings());
        const bool signs = exchanged(place, e.varga(), other, e.varga(1));
        return e.fact(together || aspects || signs, [&] {
            return text(e.name(place, 0), L" and ", e.name(other, 1),
                        together  ? L" are together"
                        : signs   ? L" exchange their signs"
                        : aspects ? L" aspect each other"
                                  : L" are not related");
        });
    });
}

bool exchange(Evaluation& e)
{
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        return e.fact(exchanged(place, e.varga(), other, e.varga(1)), [&] {
            return text(e.name(place, 0), L" is in ", signText(place.sign(e.varga())), L", ",
                        e.name(other, 1), L" in ", signText(other.sign(e.varga(1))));
        });
    });
}

bool parivartana(Evaluation& e)
{
    Frame& frame = e.frame();
    const int varga = e.varga();
    const int ascendant = frame.sign(core::kAscendant, varga);
    const int first = e.value(1);
    const int second = e.value(2);
    bool found = false;
    for (int house = 1; ascendant != 0 && house < 12; ++house) {
        for (int other = house + 1; other <= 12; ++other) {
            const int sign = norm12(ascendant + house - 1);
            const int otherSign = norm12(ascendant + other - 1);
            const int lord = signLord(sign);
            const int otherLord = signLord(otherSign);
            if (lord == otherLord || frame.sign(lord, varga) != otherSign ||
                frame.sign(otherLord, varga) != sign) {
                continue;
            }
            const PlainWord kind = exchangeClass(house, other);
            const auto among = [&](int wanted) {
                return wanted <= 0 || wanted == house || wanted == other;
            };
            const bool truth =
                (e.value(0) < 0 || e.value(0) == kind) && among(first) && among(second);
            found = found || truth;
            e.fact(truth, [&] {
                return text(L"houses ", house, L" and ", other, L" exchange their lords ",
                            explaining::nameOf(lord), L" and ", explaining::nameOf(otherLord),
                            L" (", codeWords((int(WordClass::Plain) << 27) | kind), L")");
            });
        }
    }
    if (!found) {
        e.fact(false, [] { return L"there is no such exchange"; });
    }
    return found;
}

bool finalDispositor(Evaluation& e)
{
    const Place place = e.place(0);
    if (place.point < 0) {
        return false;
    }
    constexpr int kLongestChain = 7;
    const int last = place.planet();
    bool truth = last > 0 && signLord(place.sign(e.varga())) == last;
    int stray = 0;
    for (int planet = core::kSun; truth && planet <= core::kSaturn; ++planet) {
        int at = planet;
        for (int i = 0; i < kLongestChain && at != 0 && at != last; ++i) {
            const int sign = place.frame->sign(at, e.varga());
            at = sign == 0 ? 0 : signLord(sign);
        }
        truth = at == last;
        stray = truth ? 0 : planet;
    }
    return e.fact(truth, [&] {
        return truth        ? text(L"all dispositors lead to ", e.name(place, 0))
               : stray == 0 ? text(e.name(place, 0), L" is not in its own sign")
                            : text(L"the dispositors of ", explaining::nameOf(stray),
                                   L" do not lead to ", e.name(place, 0));
    });
}

bool owns(Evaluation& e)
{
    const Place from = e.place(1);
    if (from.point < 0) {
        return false;
    }
    const int reference = from.sign(e.varga(1));
    return e.each(0, [&](const Place& place) {
        std::uint32_t owned = 0;
        for (int house = 1; house <= 12; ++house) {
            if (place.planet() > 0 && signLord(norm12(reference + house - 1)) == place.planet()) {
                owned |= 1U << unsigned(house);
            }
        }
        return e.fact((owned & e.list()) != 0,
                      [&] {
                          return owned == 0 ? e.name(place, 0) + L" is lord of no house"
                                            : text(e.name(place, 0), L" is lord of ",
                                                   houseWords(owned), L" from ", e.name(from, 1));
                      },
                      [&] { return L"of " + houseWords(std::uint32_t(e.list())); });
    });
}

bool inSignOf(Evaluation& e)
{
    constexpr bool kWithItself = true;
    return e.pairs(
        0, 1,
        [&](const Place& place, const Place& lord) {
            const int sign = place.sign(e.varga());
            return e.fact(
                standsWith(place, e.varga(), lord),
                [&] {
                    return text(e.name(place, 0), L" is in ", signText(sign), L", a sign of ",
                                explaining::nameOf(signLord(sign)));
                },
                [&] { return L"of " + e.name(lord, 1); });
        },
        kWithItself);
}

} // namespace kestrav::yoga::conditions
