// Conditions on the pattern that a group of planets makes.
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

#include <bit>

namespace kestrav::yoga::conditions
{

namespace
{

constexpr std::uint32_t kAllHouses = 0x1FFE;

std::uint32_t bit(int number)
{
    return 1U << unsigned(number);
}

// The houses, from the point of parameter 1, in which planets of the set stand; nothing when one
// of them has no position.
std::optional<std::uint32_t> filledHouses(Evaluation& e)
{
    const Place from = e.place(1);
    const Places planets = e.places(0);
    if (from.point < 0 || planets.missing) {
        return std::nullopt;
    }
    const int reference = from.sign(e.varga(1));
    std::uint32_t mask = 0;
    for (const Place& planet : planets) {
        mask |= bit(houseFrom(planet.sign(e.varga()), reference));
    }
    return mask;
}

std::wstring filledWords(std::uint32_t houses)
{
    return houses == 0 ? std::wstring(L"no planets are in the set")
                       : L"the planets are in " + houseWords(houses);
}

std::uint32_t wantedHouses(const Evaluation& e)
{
    return e.list() == 0 ? kAllHouses : std::uint32_t(e.list());
}

// The houses from `first` on, `length` of them.
std::uint32_t stretch(int first, int length)
{
    std::uint32_t mask = 0;
    for (int i = 0; i < length; ++i) {
        mask |= bit(core::norm12(first + i));
    }
    return mask;
}

} // namespace

bool hemmed(Evaluation& e)
{
    const Places planets = e.places(1);
    if (planets.missing) {
        return false;
    }
    return e.each(0, [&](const Place& place) {
        const int sign = place.sign(e.varga());
        bool before = false;
        bool after = false;
        for (const Place& planet : planets) {
            if (planet == place) {
                continue;
            }
            const int house = houseFrom(planet.sign(e.varga(1)), sign);
            before = before || house == 12;
            after = after || house == 2;
        }
        return e.fact(before && after, [&] {
            return text(e.name(place, 0), L" has ", before ? L"such" : L"no such",
                        L" planets in the 12th and ", after ? L"such" : L"no such",
                        L" planets in the 2nd from it");
        });
    });
}

bool fill(Evaluation& e)
{
    const std::optional<std::uint32_t> houses = filledHouses(e);
    return houses && e.fact(
                         *houses == e.list(), [&] { return filledWords(*houses); },
                         [&] { return L"just in " + houseWords(std::uint32_t(e.list())); });
}

bool run(Evaluation& e)
{
    const std::optional<std::uint32_t> houses = filledHouses(e);
    if (!houses) {
        return false;
    }
    bool found = false;
    for (int first = 1; first <= 12; ++first) {
        found =
            found || ((wantedHouses(e) & bit(first)) != 0 && *houses == stretch(first, e.value(2)));
    }
    return e.fact(
        found, [&] { return filledWords(*houses); },
        [&] {
            return text(e.value(2), L" houses that follow each other from ",
                        houseWords(wantedHouses(e)));
        });
}

bool occupied(Evaluation& e)
{
    const std::optional<std::uint32_t> houses = filledHouses(e);
    if (!houses) {
        return false;
    }
    const int count = std::popcount(*houses & wantedHouses(e));
    return e.fact(
        count >= e.value(2) && count <= e.value(3),
        [&] { return text(filledWords(*houses), L": ", count, L" of the houses"); },
        [&] { return text(e.value(2), L" to ", e.value(3)); });
}

bool cluster(Evaluation& e)
{
    const Place from = e.place(1);
    const Places planets = e.places(0);
    if (from.point < 0 || planets.missing) {
        return false;
    }
    const int reference = from.sign(e.varga(1));
    std::array<int, 13> counts{};
    for (const Place& planet : planets) {
        ++core::at(counts, houseFrom(planet.sign(e.varga()), reference));
    }
    int largest = 0;
    int house = 0;
    for (int i = 1; i <= 12; ++i) {
        if ((wantedHouses(e) & bit(i)) != 0 && core::at(counts, i) > largest) {
            largest = core::at(counts, i);
            house = i;
        }
    }
    return e.fact(
        largest >= e.value(2),
        [&] {
            return largest == 0 ? std::wstring(L"no such planets are in these houses")
                                : text(L"at most ", largest, L" are together, in the ",
                                       ordinal(house), L" from ", e.name(from, 1));
        },
        [&] { return text(e.value(2), L" or more"); });
}

} // namespace kestrav::yoga::conditions
