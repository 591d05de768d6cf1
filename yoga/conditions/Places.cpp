// Conditions on where points stand.
#include "analysis/BhavaBala.h"
#include "analysis/NakshatraLords.h"
#include "astro/Houses.h"
#include "core/Names.h"
#include "core/SignData.h"
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

#include <algorithm>
#include <cmath>

namespace kestrav::yoga::conditions
{

namespace
{

using core::at;

constexpr double kMinutesOfDegree = 60.0;

std::wstring inHouses(const Evaluation& e)
{
    return L"in " + houseWords(std::uint32_t(e.list()));
}

// Houses of the cusps. They are begun by the cusps themselves (KP), by the sandhis of the system,
// or halfway between cusps that are middles; by rashi they are the signs.
int bhavaOf(const core::Chart& chart, const Place& place)
{
    const double longitude = place.longitude(core::kRashi);
    if (longitude < 0.0 || chart.houseSystem < 0 || !chart.cuspsComplete) {
        return 0;
    }
    const auto system = astro::HouseSystem(chart.houseSystem);
    if (system == astro::HouseSystem::ByRashi) {
        return houseFrom(core::signOfLongitude(longitude), chart.rashi[core::kAscendant]);
    }
    const auto begin = [&](int house) {
        const double cusp = at(chart.longitude, core::cuspPoint(house));
        if (system == astro::HouseSystem::PlacidusKp) {
            return cusp;
        }
        if (chart.hasSandhis) {
            return at(chart.sandhis, house - 1);
        }
        const double before = at(chart.longitude, core::cuspPoint(core::norm12(house - 1)));
        return core::Normalize360(before + wayTo(before, cusp) / 2.0);
    };
    for (int house = 1; house <= 12; ++house) {
        const double first = begin(house);
        const double next = begin(core::norm12(house + 1));
        if (first < 0.0 || next < 0.0) {
            return 0;
        }
        if (wayTo(first, longitude) < wayTo(first, next)) {
            return house;
        }
    }
    return 0;
}

int bhavaOf(Evaluation& e, const Place& place)
{
    return e.frame().isWhole() ? bhavaOf(e.frame().chart(), place) : 0;
}

double nakshatraPosition(const Place& place, int varga)
{
    if (varga == core::kRashi && place.shift == 0) {
        return place.frame->nakshatraPosition(place.point);
    }
    const double longitude = place.longitude(varga);
    return longitude < 0.0 ? longitude : longitude * 0.075;
}

std::wstring nakshatraWords(std::uint64_t list)
{
    std::vector<std::wstring> names;
    for (int number = 1; number <= 27; ++number) {
        if (((list >> unsigned(number)) & 1U) != 0) {
            names.emplace_back(core::nakshatraName(number - 1));
        }
    }
    return orList(names);
}

double distance(double one, double other)
{
    const double way = wayTo(one, other);
    return std::min(way, 360.0 - way);
}

} // namespace

bool inSign(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const int sign = place.sign(e.varga());
        return e.fact(
            e.listed(sign), [&] { return text(e.name(place, 0), L" is in ", signText(sign)); },
            [&] { return L"in " + signWords(std::uint32_t(e.list())); });
    });
}

bool inHouse(Evaluation& e)
{
    const Place from = e.place(1);
    if (from.point < 0) {
        return false;
    }
    const int reference = from.sign(e.varga(1));
    return e.each(0, [&](const Place& place) {
        const int house = houseFrom(place.sign(e.varga()), reference);
        return e.fact(
            e.listed(house),
            [&] {
                return text(e.name(place, 0), L" is in the ", ordinal(house), L" from ",
                            e.name(from, 1));
            },
            [&] { return inHouses(e); });
    });
}

bool inNakshatra(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const double position = nakshatraPosition(place, e.varga());
        const int nakshatra = position < 0.0 ? -1 : analysis::nakshatraOf(position);
        return e.fact(
            e.listed(nakshatra + 1) && nakshatra >= 0,
            [&] { return text(e.name(place, 0), L" is in ", core::nakshatraName(nakshatra)); },
            [&] { return L"in " + nakshatraWords(e.list()); });
    });
}

bool inPada(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const double position = nakshatraPosition(place, e.varga());
        const int pada = position < 0.0 ? 0 : analysis::padaOf(position);
        return e.fact(
            e.listed(pada), [&] { return text(e.name(place, 0), L" is in pada ", pada); },
            [&] { return L"in " + listWords(e.list()); });
    });
}

bool inDegree(Evaluation& e)
{
    const double from = withMinutes(e.value(1), e.value(3));
    const double to = withMinutes(e.value(2), e.value(4));
    return e.each(0, [&](const Place& place) {
        const double longitude = place.longitude(e.varga());
        const double degree = std::fmod(longitude, 30.0);
        return e.fact(
            longitude >= 0.0 && degree >= from && degree < to,
            [&] {
                return text(e.name(place, 0), L" is at ", degreesText(degree), L" of its sign");
            },
            [&] { return text(L"from ", degreesText(from), L" to ", degreesText(to)); });
    });
}

bool inArc(Evaluation& e)
{
    const double from = withMinutes(e.value(1), e.value(3));
    const double to = withMinutes(e.value(2), e.value(4));
    // The whole circle when the ends are 360 degrees apart, nothing when they are the same.
    const double width = to - from >= 360.0 ? 360.0 : wayTo(from, to);
    return e.each(0, [&](const Place& place) {
        const double longitude = place.longitude(e.varga());
        return e.fact(
            longitude >= 0.0 && wayTo(from, longitude) < width,
            [&] { return text(e.name(place, 0), L" is at ", degreesText(longitude)); },
            [&] { return text(L"from ", degreesText(from), L" to ", degreesText(to)); });
    });
}

bool with(Evaluation& e)
{
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const int sign = place.sign(e.varga());
        const int second = other.sign(e.varga(1));
        return e.fact(sign == second, [&] {
            return sign == second ? text(e.name(place, 0), L" is in ", signText(sign), L" with ",
                                         e.name(other, 1))
                                  : text(e.name(place, 0), L" is in ", signText(sign), L" and ",
                                         e.name(other, 1), L" in ", signText(second));
        });
    });
}

bool near(Evaluation& e)
{
    const double orb = withMinutes(e.value(2), e.value(3));
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const double one = place.longitude(e.varga());
        const double two = other.longitude(e.varga(1));
        const double apart = distance(one, two);
        return e.fact(
            one >= 0.0 && two >= 0.0 && apart <= orb,
            [&] {
                return text(e.name(place, 0), L" is ", degreesText(apart), L" from ",
                            e.name(other, 1));
            },
            [&] { return text(L"within ", degreesText(orb)); });
    });
}

bool apart(Evaluation& e)
{
    const Place other = e.place(1);
    if (other.point < 0) {
        return false;
    }
    const double begin = other.longitude(e.varga(1));
    return e.each(0, [&](const Place& place) {
        const double longitude = place.longitude(e.varga());
        const double way = wayTo(begin, longitude);
        return e.fact(
            begin >= 0.0 && longitude >= 0.0 && way >= e.value(2) && way < e.value(3),
            [&] {
                return text(e.name(place, 0), L" is ", degreesText(way), L" beyond ",
                            e.name(other, 1));
            },
            [&] { return text(L"from ", e.value(2), L" to ", e.value(3), L" degrees"); });
    });
}

bool between(Evaluation& e)
{
    const Place begin = e.place(1);
    const Place end = e.place(2);
    if (begin.point < 0 || end.point < 0) {
        return false;
    }
    const double first = begin.longitude(e.varga(1));
    const double width = wayTo(first, end.longitude(e.varga(2)));
    return e.each(0, [&](const Place& place) {
        const double longitude = place.longitude(e.varga());
        const bool inside = first >= 0.0 && longitude >= 0.0 && wayTo(first, longitude) <= width;
        return e.fact(inside, [&] {
            return text(e.name(place, 0), inside ? L" is" : L" is not", L" on the way from ",
                        e.name(begin, 1), L" to ", e.name(end, 2));
        });
    });
}

bool inBhava(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const int house = bhavaOf(e, place);
        return e.fact(
            house > 0 && e.listed(house),
            [&] {
                return house == 0 ? std::wstring(L"the chart has no bhavas")
                                  : text(e.name(place, 0), L" is in bhava ", house);
            },
            [&] { return inHouses(e); });
    });
}

bool sameBhava(Evaluation& e)
{
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const int house = bhavaOf(e, place);
        const int second = bhavaOf(e, other);
        return e.fact(house > 0 && house == second, [&] {
            return text(e.name(place, 0), L" is in bhava ", house, L" and ", e.name(other, 1),
                        L" in bhava ", second);
        });
    });
}

bool sandhi(Evaluation& e)
{
    const double orb = e.value(1) / kMinutesOfDegree;
    return e.each(0, [&](const Place& place) {
        const double longitude = place.longitude(e.varga());
        const double degree = std::fmod(longitude, 30.0);
        return e.fact(
            longitude >= 0.0 && std::min(degree, 30.0 - degree) <= orb,
            [&] {
                return text(e.name(place, 0), L" is at ", degreesText(degree), L" of its sign");
            },
            [&] { return text(L"within ", degreesText(orb), L" of its ends"); });
    });
}

// The junctions of watery and fiery signs are the thirds of the zodiac.
bool gandanta(Evaluation& e)
{
    constexpr double kThird = 120.0;
    const double orb = e.value(1) / kMinutesOfDegree;
    return e.each(0, [&](const Place& place) {
        const double longitude = place.longitude(e.varga());
        const double beyond = std::fmod(longitude, kThird);
        const double apart = std::min(beyond, kThird - beyond);
        return e.fact(
            longitude >= 0.0 && apart <= orb,
            [&] {
                return text(e.name(place, 0), L" is ", degreesText(apart),
                            L" from a junction of water and fire");
            },
            [&] { return text(L"within ", degreesText(orb)); });
    });
}

// With one and the same divisional chart it is compared with the rashi, and the rashi itself with
// the navamsha.
bool vargottama(Evaluation& e)
{
    const int varga = e.varga();
    int other = e.varga(1);
    if (other == varga) {
        other = varga == core::kRashi ? int(core::kNavamsha) : int(core::kRashi);
    }
    return e.each(0, [&](const Place& place) {
        const int sign = place.sign(varga);
        const int second = place.sign(other);
        return e.fact(sign == second && sign > 0, [&] {
            return text(e.name(place, 0), L" is in ", signText(sign), L" in the ",
                        explaining::vargaText(varga), L" and in ", signText(second), L" in the ",
                        explaining::vargaText(other));
        });
    });
}

bool nakshatraFrom(Evaluation& e)
{
    const Place other = e.place(1);
    if (other.point < 0) {
        return false;
    }
    const double begin = nakshatraPosition(other, e.varga(1));
    return e.each(0, [&](const Place& place) {
        const double position = nakshatraPosition(place, e.varga());
        const int count =
            begin < 0.0 || position < 0.0
                ? 0
                : (analysis::nakshatraOf(position) - analysis::nakshatraOf(begin) + 27) % 27 + 1;
        return e.fact(
            e.listed(count),
            [&] {
                return text(e.name(place, 0), L" is in the ", ordinal(count), L" star from ",
                            e.name(other, 1));
            },
            [&] { return listWords(e.list()); });
    });
}

bool is(Evaluation& e)
{
    constexpr bool kWithItself = true;
    return e.pairs(
        0, 1,
        [&](const Place& place, const Place& other) {
            const bool same = place.point == other.point && place.shift == other.shift;
            return e.fact(same, [&] {
                return text(e.name(place, 0), same ? L" is " : L" is not ", e.name(other, 1));
            });
        },
        kWithItself);
}

} // namespace kestrav::yoga::conditions
