// Conditions on the birth, its day, and the running dasha.
#include "analysis/DayParts.h"
#include "core/Names.h"
#include "timing/DashaQuery.h"
#include "timing/PanchangaElements.h"
#include "timing/PanchangaNames.h"
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

namespace kestrav::yoga::conditions
{

namespace
{

std::optional<timing::ElementNumbers> elements(Evaluation& e)
{
    const double sun = e.frame().longitude(core::kSun, core::kRashi);
    const double moon = e.frame().longitude(core::kMoon, core::kRashi);
    if (sun < 0.0 || moon < 0.0) {
        e.fact(false, [] { return std::wstring(L"the Sun or the Moon has no position"); });
        return std::nullopt;
    }
    return timing::elementsOf(sun, moon);
}

} // namespace

bool dayBirth(Evaluation& e)
{
    const bool wantNight = e.word(0, kWordDay) == kWordNight;
    const std::optional<bool> night =
        e.frame().isWhole() ? analysis::isNight(e.frame().chart()) : std::nullopt;
    return e.fact(night && *night == wantNight, [&] {
        return std::wstring(!night   ? L"it is not known whether it was day"
                            : *night ? L"the birth was by night"
                                     : L"the birth was by day");
    });
}

bool weekday(Evaluation& e)
{
    const bool known = e.frame().isWhole() && e.frame().chart().hasMoment;
    const int day = known ? e.frame().chart().weekday : 0;
    return e.fact(
        known && e.listed(day),
        [&] {
            return known ? L"the day is " + std::wstring(core::weekdayName(day))
                         : std::wstring(L"the weekday is not known");
        },
        [&] { return listWords(e.list()); });
}

bool tithi(Evaluation& e)
{
    const auto found = elements(e);
    return found && e.fact(
                        e.listed(found->tithi + 1),
                        [&] {
                            return text(L"the tithi is ", found->tithi + 1, L", ",
                                        timing::tithiName(found->tithi));
                        },
                        [&] { return listWords(e.list()); });
}

bool paksha(Evaluation& e)
{
    const bool wantWaning = e.word(0, kWordWaxing) == kWordWaning;
    const auto found = elements(e);
    return found && e.fact(timing::isKrishna(found->tithi) == wantWaning, [&] {
        return std::wstring(timing::isKrishna(found->tithi) ? L"the Moon is waning"
                                                            : L"the Moon is waxing");
    });
}

bool nityaYoga(Evaluation& e)
{
    const auto found = elements(e);
    return found && e.fact(
                        e.listed(found->yoga + 1),
                        [&] {
                            return text(L"the yoga is ", found->yoga + 1, L", ",
                                        timing::yogaName(found->yoga));
                        },
                        [&] { return listWords(e.list()); });
}

bool karana(Evaluation& e)
{
    const auto found = elements(e);
    return found && e.fact(
                        e.listed(timing::karanaKind(found->karana) + 1),
                        [&] {
                            return text(L"the karana is ", timing::karanaKind(found->karana) + 1,
                                        L", ", timing::karanaName(found->karana));
                        },
                        [&] { return listWords(e.list()); });
}

bool sex(Evaluation& e)
{
    const char wanted = e.word(0, kWordMale) == kWordMale ? 'M' : 'F';
    const char found = e.frame().sex();
    return e.fact(found == wanted, [&] {
        return std::wstring(found == 'M'   ? L"the native is a man"
                            : found == 'F' ? L"the native is a woman"
                                           : L"the sex of the native is not recorded");
    });
}

// A planet rules its own periods; in systems of signs and houses the period is that of the sign or
// the house where it stands.
bool dasha(Evaluation& e)
{
    const std::optional<double> moment = e.subject().moment();
    const int system = e.value(2) < 0 ? e.settings().dashaSystem : e.value(2);
    const timing::Dasha* const running = moment && e.subject().series() != nullptr
                                             ? e.frame().dasha(system, *e.subject().series())
                                             : nullptr;
    const int lord =
        running == nullptr ? timing::kNoLord : timing::lordAtMoment(*running, *moment, e.value(1));
    if (lord == timing::kNoLord) {
        return e.fact(false, [&] {
            return std::wstring(moment ? L"no such period runs" : L"there is no moment to ask for");
        });
    }
    return e.each(0, [&](const Place& place) {
        const int sign = place.sign(core::kRashi);
        switch (running->plan.lordKind) {
        case timing::LordKind::Sign:
            return e.fact(sign == lord, [&] {
                return text(L"the period of ", signText(lord), L" runs, ", e.name(place, 0),
                            L" is in ", signText(sign));
            });
        case timing::LordKind::House: {
            const int house = houseFrom(sign, e.frame().sign(core::kAscendant, core::kRashi));
            return e.fact(house == lord, [&] {
                return text(L"the period of house ", lord, L" runs, ", e.name(place, 0),
                            L" is in house ", house);
            });
        }
        case timing::LordKind::Planet:
            break;
        }
        return e.fact(
            place.planet() == lord,
            [&] { return text(L"the period of ", explaining::nameOf(lord), L" runs"); },
            [&] { return L"that of " + e.name(place, 0); });
    });
}

} // namespace kestrav::yoga::conditions
