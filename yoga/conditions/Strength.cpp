// Conditions on strengths.
#include "analysis/BhavaBala.h"
#include "analysis/Vimshopaka.h"
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

#include <cmath>

namespace kestrav::yoga::conditions
{

namespace
{

using analysis::Strength;
using core::at;

constexpr double kTenthOfRupa = 6.0; // virupas
constexpr double kPercent = 100.0;

bool isPlanet(int point)
{
    return point >= core::kSun && point <= core::kSaturn;
}

const analysis::Shadbala* shadbalaOf(const Place& place)
{
    const int planet = place.planet();
    return isPlanet(planet) && place.frame->isWhole() ? &at(place.frame->shadbala().planets, planet)
                                                      : nullptr;
}

Strength scaled(const Strength& strength, double unit)
{
    return strength ? Strength(*strength / unit) : std::nullopt;
}

// The bindus that a point gives to a sign in its own ashtakavarga.
Strength bindusOf(const Place& receiver, int varga, int sign)
{
    const bool receives = receiver.shift == 0 && receiver.point >= 0 &&
                          receiver.point < analysis::kAshtakavargaPoints;
    if (!receives || sign == 0) {
        return std::nullopt;
    }
    return at(at(receiver.frame->ashtakavarga(varga).bindus, receiver.point), sign - 1);
}

Strength sarvaAt(const Place& place, int varga)
{
    const int sign = place.sign(varga);
    if (sign == 0) {
        return std::nullopt;
    }
    return at(place.frame->ashtakavarga(varga).sarva, sign - 1);
}

Strength vimshopakaOf(const Place& place, PlainWord set)
{
    if (!isPlanet(place.planet()) || !place.frame->isWhole()) {
        return std::nullopt;
    }
    static_assert(kWordVim6 - kWordVim16 == analysis::kShad);
    return analysis::vimshopakaPoints(
        at(at(place.frame->chart().vimshopaka, place.planet()), set - kWordVim16));
}

Strength measure(const Place& place, int varga, PlainWord word)
{
    const analysis::Shadbala* const shadbala = shadbalaOf(place);
    switch (word) {
    case kWordShadbala:
        return shadbala == nullptr ? std::nullopt : shadbala->total;
    case kWordRequired:
        return shadbala == nullptr ? std::nullopt : shadbala->ratio;
    case kWordIshta:
        return shadbala == nullptr ? std::nullopt : shadbala->phala.ishta;
    case kWordVimshopaka:
        return vimshopakaOf(place, kWordVim16);
    case kWordBindus:
        return bindusOf(place, varga, place.sign(varga));
    case kWordSarva:
        return sarvaAt(place, varga);
    default: {
        const double longitude = place.longitude(varga);
        return longitude < 0.0 ? std::nullopt : Strength(std::fmod(longitude, 30.0));
    }
    }
}

std::wstring measureText(const Strength& strength)
{
    return strength ? decimal(*strength) : std::wstring(L"not known");
}

bool inRange(Evaluation& e, const Place& place, const Strength& found, std::wstring_view what,
             std::size_t least)
{
    return e.fact(
        found && *found >= e.value(least) && *found <= e.value(least + 1),
        [&] { return text(e.name(place, 0), L" has ", measureText(found), what); },
        [&] { return text(e.value(least), L" to ", e.value(least + 1)); });
}

// Whether a member of a set has more (or less) of a measure than all the others.
bool extreme(Evaluation& e, bool most)
{
    const PlainWord word = e.word(2, kWordShadbala);
    const Place place = e.place(0);
    const Places rivals = e.places(1);
    if (place.point < 0 || rivals.missing) {
        return false;
    }
    const Strength own = measure(place, e.varga(), word);
    bool member = false;
    bool wins = own.has_value();
    std::wstring winner;
    for (const Place& rival : rivals) {
        if (rival == place) {
            member = true;
            continue;
        }
        const Strength other = measure(rival, e.varga(1), word);
        const bool beaten = other && own && (most ? *other <= *own : *other >= *own);
        if (!beaten) {
            wins = false;
            e.fact(false, [&] { return text(e.name(rival, 1), L" has ", measureText(other)); });
        }
    }
    return e.fact(member && wins, [&] {
        return member ? text(e.name(place, 0), L" has ", measureText(own), L" of ",
                             codeWords((int(WordClass::Plain) << 27) | word))
                      : e.name(place, 0) + L" is not in the set";
    });
}

} // namespace

bool shadbala(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const analysis::Shadbala* const found = shadbalaOf(place);
        return inRange(e, place,
                       scaled(found == nullptr ? std::nullopt : found->total, kTenthOfRupa),
                       L" tenths of a rupa", 1);
    });
}

bool required(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const analysis::Shadbala* const found = shadbalaOf(place);
        return inRange(e, place,
                       scaled(found == nullptr ? std::nullopt : found->ratio, 1.0 / kPercent),
                       L" percent of the shadbala that it should have", 1);
    });
}

bool ishta(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        const analysis::Shadbala* const found = shadbalaOf(place);
        return inRange(e, place, found == nullptr ? std::nullopt : found->phala.ishta,
                       L" of ishta phala", 1);
    });
}

bool bhavaBala(Evaluation& e)
{
    Frame& frame = e.frame();
    Strength found;
    if (frame.isWhole()) {
        const auto houses = analysis::computeBhavaBala(frame.chart(), frame.shadbala());
        found = scaled(at(houses, e.value(0) - 1).total, kTenthOfRupa);
    }
    return e.fact(
        found && *found >= e.value(1) && *found <= e.value(2),
        [&] {
            return text(L"house ", e.value(0), L" has ", measureText(found), L" tenths of a rupa");
        },
        [&] { return text(e.value(1), L" to ", e.value(2)); });
}

bool bindus(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        return inRange(e, place, bindusOf(place, e.varga(), place.sign(e.varga())), L" bindus", 1);
    });
}

bool bindusAt(Evaluation& e)
{
    const Place where = e.place(1);
    if (where.point < 0) {
        return false;
    }
    const int sign = where.sign(e.varga(1));
    return e.each(0, [&](const Place& place) {
        return inRange(e, place, bindusOf(place, e.varga(), sign), L" bindus there", 2);
    });
}

bool sarva(Evaluation& e)
{
    return e.each(0, [&](const Place& place) {
        return inRange(e, place, sarvaAt(place, e.varga()), L" sarvashtakavarga bindus", 1);
    });
}

bool vimshopaka(Evaluation& e)
{
    const PlainWord set = e.word(1, kWordVim16);
    return e.each(0, [&](const Place& place) {
        return inRange(e, place, vimshopakaOf(place, set), L" points of vimshopaka", 2);
    });
}

bool strongest(Evaluation& e)
{
    return extreme(e, true);
}

bool weakest(Evaluation& e)
{
    return extreme(e, false);
}

bool stronger(Evaluation& e)
{
    const PlainWord word = e.word(2, kWordShadbala);
    return e.pairs(0, 1, [&](const Place& place, const Place& other) {
        const Strength own = measure(place, e.varga(), word);
        const Strength second = measure(other, e.varga(1), word);
        return e.fact(own && second && *own > *second, [&] {
            return text(e.name(place, 0), L" has ", measureText(own), L", ", e.name(other, 1), L" ",
                        measureText(second));
        });
    });
}

} // namespace kestrav::yoga::conditions
