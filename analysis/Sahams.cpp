#include "analysis/Sahams.h"

#include "analysis/DayParts.h"
#include "analysis/DignityTables.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>
#include <cstddef>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::norm12;
using core::Normalize360;

using Kind = SahamTermKind;

struct Term
{
    Kind kind;
    int number;
};

// The value is a - b + c.
struct Formula
{
    Term a;
    Term b;
    Term c;
};

struct Saham
{
    std::wstring_view name;
    Formula day;
    Formula night;
};

constexpr Saham reversed(std::wstring_view name, Term a, Term b, Term c)
{
    return {name, {a, b, c}, {b, a, c}};
}

constexpr Saham alike(std::wstring_view name, Term a, Term b, Term c)
{
    return {name, {a, b, c}, {a, b, c}};
}

constexpr Term house(int number)
{
    return {Kind::House, number};
}

constexpr Term lord(int number)
{
    return {Kind::HouseLord, number};
}

constexpr Term kAsc = {Kind::Body, core::kAscendant};
constexpr Term kSun = {Kind::Body, core::kSun};
constexpr Term kMoon = {Kind::Body, core::kMoon};
constexpr Term kMars = {Kind::Body, core::kMars};
constexpr Term kMerc = {Kind::Body, core::kMercury};
constexpr Term kJup = {Kind::Body, core::kJupiter};
constexpr Term kVen = {Kind::Body, core::kVenus};
constexpr Term kSat = {Kind::Body, core::kSaturn};
constexpr Term kSunLord = {Kind::Dispositor, core::kSun};
constexpr Term kMoonLord = {Kind::Dispositor, core::kMoon};
constexpr Term kMidCancer = {Kind::Degree, 105};

constexpr int kSamartha = 6;
constexpr Term kPunya = {Kind::Saham, 0};
constexpr Term kShastra = {Kind::Saham, 17};

// After Tajika Neelakanthi. `alike` rows are the same by day and night. Sahams that end in their
// own first point, as Roga, never get the 30 degrees.
// clang-format off
constexpr std::array<Saham, kSahamCount> kSahams = {{
    reversed(L"Punya",      kMoon,      kSun,     kAsc),
    reversed(L"Vidya",      kSun,       kMoon,    kAsc),
    reversed(L"Yashas",     kJup,       kPunya,   kAsc),
    reversed(L"Mitra",      kJup,       kPunya,   kVen),
    reversed(L"Mahatmya",   kPunya,     kMars,    kAsc),
    reversed(L"Asha",       kSat,       kMars,    kAsc),
    reversed(L"Samartha",   kMars,      lord(1),  kAsc),
    alike   (L"Bhratri",    kJup,       kSat,     kAsc),
    reversed(L"Gaurava",    kJup,       kMoon,    kSun),
    reversed(L"Pitri",      kSat,       kSun,     kAsc),
    reversed(L"Rajya",      kSat,       kSun,     kAsc),
    reversed(L"Matri",      kMoon,      kVen,     kAsc),
    reversed(L"Putra",      kJup,       kMoon,    kAsc),
    reversed(L"Jiva",       kSat,       kJup,     kAsc),
    reversed(L"Karma",      kMars,      kMerc,    kAsc),
    alike   (L"Roga",       kAsc,       kMoon,    kAsc),
    reversed(L"Kali",       kJup,       kMars,    kAsc),
    reversed(L"Shastra",    kJup,       kSat,     kMerc),
    reversed(L"Bandhu",     kMerc,      kMoon,    kAsc),
    alike   (L"Mrityu",     house(8),   kMoon,    kAsc),
    alike   (L"Paradesha",  house(9),   lord(9),  kAsc),
    alike   (L"Artha",      house(2),   lord(2),  kAsc),
    reversed(L"Paradara",   kVen,       kSun,     kAsc),
    reversed(L"Vanik",      kMoon,      kMerc,    kAsc),
    {L"Karyasiddhi", {kSat, kSun, kSunLord}, {kSat, kMoon, kMoonLord}},
    reversed(L"Vivaha",     kVen,       kSat,     kAsc),
    reversed(L"Santapa",    kSat,       kMoon,    house(6)),
    reversed(L"Shraddha",   kVen,       kMars,    kAsc),
    reversed(L"Priti",      kShastra,   kPunya,   kAsc),
    reversed(L"Jadya",      kMars,      kSat,     kMerc),
    alike   (L"Vyapara",    kMars,      kSat,     kAsc),
    reversed(L"Shatru",     kMars,      kSat,     kAsc),
    reversed(L"Jalapatana", kMidCancer, kSat,     kAsc),
    reversed(L"Bandhana",   kPunya,     kSat,     kAsc),
    reversed(L"Apamrityu",  house(8),   kMars,    kAsc),
    alike   (L"Labha",      house(11),  lord(11), kAsc),
}};
// clang-format on

// Samartha when Mars is himself the lord of the ascendant.
constexpr Saham kSamarthaOfMars = reversed(L"Samartha", kJup, kMars, kAsc);

static_assert(kSahams[kSamartha].name == L"Samartha" && kSahams[kKarmaSaham].name == L"Karma" &&
              kSahams[kVivahaSaham].name == L"Vivaha" &&
              kSahams[std::size_t(kShastra.number)].name == L"Shastra");

constexpr std::array<std::wstring_view, kSahamCount> kNames = [] {
    std::array<std::wstring_view, kSahamCount> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        names[i] = kSahams[i].name;
    }
    return names;
}();

// Of a point that was not computed the longitude is not-a-number, which every sum then hands on.
double longitudeOfPoint(const core::Chart& chart, int point)
{
    return chart.computed(point) ? at(chart.longitude, point) : core::kNotANumber;
}

double longitudeOfLord(const core::Chart& chart, int point, int number)
{
    if (!chart.computed(point)) {
        return core::kNotANumber;
    }
    return longitudeOfPoint(chart, signLord(norm12(at(chart.rashi, point) + number - 1)));
}

double valueOf(const core::Chart& chart, int saham, bool night);

double longitudeOf(const core::Chart& chart, const Term& term, bool night)
{
    switch (term.kind) {
    case Kind::House:
        return longitudeOfPoint(chart, core::kAscendant) + 30.0 * (term.number - 1);
    case Kind::HouseLord:
        return longitudeOfLord(chart, core::kAscendant, term.number);
    case Kind::Dispositor:
        return longitudeOfLord(chart, term.number, 1);
    case Kind::Saham:
        return valueOf(chart, term.number, night);
    case Kind::Degree:
        return term.number;
    default:
        return longitudeOfPoint(chart, term.number);
    }
}

const Saham& rowOf(const core::Chart& chart, int saham)
{
    const bool ofMars = saham == kSamartha && chart.computed(core::kAscendant) &&
                        signLord(chart.rashi[core::kAscendant]) == core::kMars;
    return ofMars ? kSamarthaOfMars : at(kSahams, saham);
}

SahamTerm termOf(const core::Chart& chart, const Term& term, bool night)
{
    return {term.kind, term.number, longitudeOf(chart, term, night)};
}

double valueOf(const core::Chart& chart, int saham, bool night)
{
    return sahamReckoning(chart, saham, night).longitude;
}

} // namespace

const std::array<std::wstring_view, kSahamCount>& sahamNames()
{
    return kNames;
}

SahamReckoning sahamReckoning(const core::Chart& chart, int saham, bool night)
{
    const Saham& row = rowOf(chart, saham);
    const Formula& formula = night ? row.night : row.day;
    SahamReckoning reckoning;
    reckoning.a = termOf(chart, formula.a, night);
    reckoning.b = termOf(chart, formula.b, night);
    reckoning.c = termOf(chart, formula.c, night);
    const double a = reckoning.a.longitude;
    const double b = reckoning.b.longitude;
    const double c = reckoning.c.longitude;
    reckoning.onTheWay = Normalize360(c - b) <= Normalize360(a - b);
    reckoning.longitude = Normalize360(a - b + c + (reckoning.onTheWay ? 0.0 : 30.0));
    return reckoning;
}

std::optional<double> sahamLongitude(const core::Chart& chart, int saham, bool night)
{
    const double value = valueOf(chart, saham, night);
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::array<std::optional<double>, kSahamCount> sahams(const core::Chart& chart)
{
    std::array<std::optional<double>, kSahamCount> longitudes;
    if (const std::optional<bool> night = isNight(chart)) {
        for (int saham = 0; saham < kSahamCount; ++saham) {
            at(longitudes, saham) = sahamLongitude(chart, saham, *night);
        }
    }
    return longitudes;
}

void computeSahamPoints(core::Chart& chart, int saham2, int saham3)
{
    const std::optional<bool> night = isNight(chart);
    const auto store = [&](int point, int saham) {
        const bool known = night && saham >= 0 && saham < kSahamCount;
        storePoint(chart, point, known ? valueOf(chart, saham, *night) : core::kNotANumber);
    };
    store(core::kSaham2, saham2);
    store(core::kSaham3, saham3);
}

} // namespace kestrav::analysis
