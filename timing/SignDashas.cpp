#include "timing/SignDashas.h"

#include "analysis/CharaKarakas.h"
#include "analysis/SignStrength.h"
#include "analysis/SpecialLagnas.h"
#include "core/Angles.h"
#include "timing/JaiminiSigns.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

namespace kestrav::timing
{

namespace
{

using core::at;
using core::norm12;

// Steps from the first sign, to be multiplied with the direction.
// clang-format off
constexpr SignOrder kConsecutive = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
constexpr SignOrder kSixths      = {0, 5, 10, 3, 8, 1, 6, 11, 4, 9, 2, 7};
constexpr SignOrder kTrines      = {0, 4, 8, 9, 1, 5, 6, 10, 2, 3, 7, 11};
constexpr SignOrder kKendras     = {0, 3, 6, 9, 1, 4, 7, 10, 2, 5, 8, 11};
// clang-format on

constexpr double kShoolaYears = 9.0;

SignOrder stepped(int start, int direction, const SignOrder& steps)
{
    SignOrder order;
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = norm12(start + direction * steps[i]);
    }
    return order;
}

int ninthFrom(int sign)
{
    return norm12(sign + 8);
}

// The three signs that `head` aspects, as they are met going one way.
std::array<int, 3> aspectedInOrder(int head)
{
    const int direction = oddFooted(head) ? 1 : -1;
    std::array<int, 3> signs = {};
    int found = 0;
    for (int step = 1; step < 12; ++step) {
        const int sign = norm12(head + direction * step);
        if (analysis::signAspects(head, sign)) {
            at(signs, found++) = sign;
        }
    }
    assert(found == 3);
    return signs;
}

// Signs are taken once and in the order in which they are offered.
class Distinct
{
public:
    void add(int sign)
    {
        if (std::find(order_.begin(), order_.begin() + count_, sign) == order_.begin() + count_) {
            at(order_, count_++) = sign;
        }
    }
    [[nodiscard]] const SignOrder& order() const
    {
        return order_;
    }

private:
    SignOrder order_ = {};
    int count_ = 0;
};

// Three heads, each followed by the signs that it aspects. When the first head is a fixed sign two
// signs come twice and two are missed, which then close the list.
SignOrder drigOrder(int firstHead)
{
    Distinct signs;
    for (int i = 0; i < 3; ++i) {
        const int head = norm12(firstHead + i);
        signs.add(head);
        for (const int sign : aspectedInOrder(head)) {
            signs.add(sign);
        }
    }
    for (int i = 0; i < 12; ++i) {
        signs.add(norm12(firstHead + i));
    }
    return signs.order();
}

SignOrder charaOrder(int start)
{
    return stepped(start, oddFooted(ninthFrom(start)) ? 1 : -1, kConsecutive);
}

SignOrder niryanaOrder(int start)
{
    return stepped(start, start % 2 != 0 ? 1 : -1, kConsecutive);
}

double niryanaYears(int sign)
{
    return 7.0 + analysis::signModality(sign);
}

// Saturn comes before Ketu: with both in the sign the order is forward.
SignOrder narayanaOrder(const JaiminiSigns& signs, int start)
{
    if (signs.signOf(core::kSaturn) == start) {
        return stepped(start, 1, kConsecutive);
    }
    const int forward = oddFooted(ninthFrom(start)) ? 1 : -1;
    const int direction = signs.signOf(core::kKetu) == start ? -forward : forward;
    switch (analysis::signModality(start)) {
    case 0:
        return stepped(start, direction, kConsecutive);
    case 1:
        return stepped(start, direction, kSixths);
    default:
        return stepped(start, direction, kTrines);
    }
}

SignOrder kendradiOrder(const JaiminiSigns& signs, int start)
{
    int direction = start % 2 != 0 ? 1 : -1;
    if (signs.signOf(core::kSaturn) == start) {
        direction = 1;
    } else if (signs.signOf(core::kKetu) == start) {
        direction = -direction;
    }
    return stepped(start, direction, kKendras);
}

// The order of a system that begins with a sign; for Drig that is the first head.
SignOrder orderFrom(const JaiminiSigns& signs, int system, int start)
{
    switch (system) {
    case kJaiminiChara:
        return charaOrder(start);
    case kNarayana:
        return narayanaOrder(signs, start);
    case kDrig:
        return drigOrder(start);
    case kShoola:
        return stepped(start, 1, kConsecutive);
    case kNiryanaShoola:
        return niryanaOrder(start);
    default:
        return kendradiOrder(signs, start);
    }
}

int atmakaraka(const core::Chart& chart, const core::Settings& settings)
{
    if (settings.charaKarakas == 8) {
        const auto karakas = analysis::eightKarakas(chart);
        return karakas ? karakas->front() : int(core::kSun);
    }
    const auto karakas = analysis::sevenKarakas(chart);
    return karakas ? karakas->front() : int(core::kSun);
}

double shriLagnaOf(const core::Chart& chart)
{
    return analysis::shriLagna(chart.longitude[core::kAscendant], chart.longitude[core::kMoon]);
}

int firstSign(const core::Chart& chart, const core::Settings& settings, const JaiminiSigns& signs,
              int system)
{
    const int ascendant = signs.signOf(core::kAscendant);
    switch (system) {
    case kJaiminiChara:
        return ascendant;
    case kSudasa:
        return int(shriLagnaOf(chart) / 30.0) + 1;
    case kAtmaKendradi:
        return signs.strongerOfBoth(signs.signOf(atmakaraka(chart, settings)));
    case kDrig:
        return ninthFrom(ascendant);
    case kNiryanaShoola:
        return signs.strongerOfBoth(norm12(ascendant + 1));
    default:
        return signs.strongerOfBoth(ascendant);
    }
}

double yearsOf(const JaiminiSigns& signs, int sign, const DashaOptions& options)
{
    switch (options.system) {
    case kShoola:
        return kShoolaYears;
    case kNiryanaShoola:
        return niryanaYears(sign);
    case kJaiminiChara:
        return signs.years(sign, options.charaExaltationYears);
    default:
        return signs.years(sign, true);
    }
}

// Cycles 2, 4 .. of these take what is missing to 12 years; a sign with nothing left is skipped.
bool changesEveryCycle(int system)
{
    return system >= kNarayana && system <= kDrig;
}

SignOrder subOrder(const JaiminiSigns& signs, int parent, const DashaOptions& options)
{
    int start = parent;
    if (options.subPeriodStart == SubPeriodStart::StrongerOfBoth) {
        start = signs.strongerOfBoth(parent);
    } else if (options.subPeriodStart == SubPeriodStart::SignOfLord) {
        start = signs.signOf(signs.lordOf(parent));
    }
    SignOrder order = orderFrom(signs, options.system, start);
    if (options.system == kJaiminiChara && options.charaOwnSignLast) {
        const auto own = std::find(order.begin(), order.end(), parent);
        std::rotate(own, own + 1, order.end());
    }
    return order;
}

} // namespace

void fillSignDasha(const core::Chart& chart, const core::Settings& settings,
                   const DashaOptions& options, DashaPlan& plan)
{
    const JaiminiSigns signs(chart, settings);
    plan.lordKind = LordKind::Sign;
    plan.division = Division::Twelfths;
    plan.count = 12;
    const SignOrder order =
        orderFrom(signs, options.system, firstSign(chart, settings, signs, options.system));
    for (std::size_t i = 0; i < order.size(); ++i) {
        const double years = yearsOf(signs, order[i], options);
        plan.cycles[0].years[i] = years;
        plan.cycles[1].years[i] =
            changesEveryCycle(options.system) ? std::max(0.0, 12.0 - years) : years;
    }
    plan.cycles[0].lords = order;
    plan.cycles[1].lords = order;
    for (int sign = 1; sign <= 12; ++sign) {
        at(plan.subOrders, sign) = subOrder(signs, sign, options);
    }
    if (options.system == kSudasa) {
        const double shri = shriLagnaOf(chart);
        plan.elapsed = (shri - 30.0 * int(shri / 30.0)) / 30.0 * plan.cycles[0].years[0];
    }
}

std::array<int, 3> sudarshanaSigns(const core::Chart& chart, int house)
{
    const auto from = [&](int point) {
        return chart.computed(point) ? norm12(at(chart.rashi, point) + house - 1) : 0;
    };
    return {from(core::kAscendant), from(core::kMoon), from(core::kSun)};
}

} // namespace kestrav::timing
