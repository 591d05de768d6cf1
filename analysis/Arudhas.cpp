#include "analysis/Arudhas.h"

#include "analysis/StorePoint.h"
#include "core/Angles.h"

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::norm12;

constexpr int kArudhaHouses = 12;

// The sign as far from `lordSign` as that is from `from`, moved on when it falls on `from` or
// opposite to it. 0 when either is not known.
int padaSign(int from, int lordSign)
{
    if (from == 0 || lordSign == 0) {
        return 0;
    }
    const int distance = core::ModFrom(12, 0, lordSign - from);
    const int pada = norm12(lordSign + distance);
    const int fromHouse = core::ModFrom(12, 0, pada - from);
    return fromHouse == 0 || fromHouse == 6 ? norm12(pada + 9) : pada;
}

int pointOfHouse(int house)
{
    return core::kArudhaPada1 + house - 1;
}

} // namespace

std::array<int, 12> arudhaSigns(const SignView& view, bool coLords)
{
    std::array<int, 12> signs{};
    if (view.sign[core::kAscendant] == 0) {
        return signs;
    }
    for (int house = 1; house <= kArudhaHouses; ++house) {
        const int sign = norm12(view.sign[core::kAscendant] + house - 1);
        const int lord = lordOfSign(view, sign, coLords);
        at(signs, house - 1) = padaSign(sign, at(view.sign, lord));
    }
    return signs;
}

int arudhaOwnSign(const SignView& view, int planet)
{
    switch (planet) {
    case core::kSun:
        return 5;
    case core::kMoon:
        return 4;
    case core::kMars:
        return strongerSign(view, 1, 8);
    case core::kMercury:
        return strongerSign(view, 3, 6);
    case core::kJupiter:
        return strongerSign(view, 9, 12);
    case core::kVenus:
        return strongerSign(view, 2, 7);
    case core::kSaturn:
        return strongerSign(view, 10, 11);
    case core::kRahu:
        return 11;
    default:
        return 8;
    }
}

int arudhaOfPlanet(const SignView& view, int planet)
{
    return padaSign(at(view.sign, planet), arudhaOwnSign(view, planet));
}

void computeArudhaPoints(core::Chart& chart, const core::Settings& settings)
{
    const SignView view = signView(chart, core::kRashi, settings);
    const std::array<int, 12> signs = arudhaSigns(view, settings.coLords);
    const auto store = [&](int point, int sign) {
        if (sign == 0) {
            at(chart.degreeInSign, point) = core::kNotComputed;
            return;
        }
        storePointInSign(chart, point, sign, chart.degreeInSign[core::kAscendant]);
    };
    store(core::kArudhaLagna, signs[0]);
    for (int house = 1; house <= kArudhaHouses; ++house) {
        store(pointOfHouse(house), at(signs, house - 1));
    }
}

void storeArudhaSigns(core::Chart& chart, int varga, const core::Settings& settings)
{
    const std::array<int, 12> signs =
        arudhaSigns(signView(chart, varga, settings), settings.coLords);
    const auto store = [&](int point, int sign) {
        if (chart.computed(point) && sign != 0) {
            chart.hasPlacements = true;
            at(at(chart.vargas, varga), point).sign = sign;
        }
    };
    store(core::kArudhaLagna, signs[0]);
    for (int house = 1; house <= kArudhaHouses; ++house) {
        store(pointOfHouse(house), at(signs, house - 1));
    }
}

} // namespace kestrav::analysis
