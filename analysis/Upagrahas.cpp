#include "analysis/Upagrahas.h"

#include "analysis/AscendantAt.h"
#include "analysis/DayParts.h"
#include "analysis/SignStrength.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <cstddef>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::Normalize360;

constexpr double kGhatisPerHour = 2.5;
constexpr double kDhumaFromSun = 133.0 + 20.0 / 60.0;
constexpr double kUpaketuFromIndrachapa = 16.0 + 40.0 / 60.0;

// Sunday to Saturday. By night the day's row is read from the fifth weekday on.
constexpr std::array<int, 7> kMandiByDay = {26, 22, 18, 14, 10, 6, 2};
constexpr std::array<int, 7> kMandiByNight = {10, 6, 2, 26, 22, 18, 14};

// Of Kaala, Mrityu, Ardhaprahara, Yamaghantaka and Gulika.
constexpr std::array<int, 5> kPartRulers = {core::kSun, core::kMars, core::kMercury, core::kJupiter,
                                            core::kSaturn};

} // namespace

std::array<double, 5> sunBasedUpagrahas(double sun)
{
    const double dhuma = Normalize360(sun + kDhumaFromSun);
    const double vyatipata = Normalize360(360.0 - dhuma);
    const double parivesha = Normalize360(vyatipata + 180.0);
    const double indrachapa = Normalize360(360.0 - parivesha);
    const double upaketu = Normalize360(indrachapa + kUpaketuFromIndrachapa);
    return {dhuma, vyatipata, parivesha, indrachapa, upaketu};
}

double pranapada(double sun, double ghatis)
{
    // For a movable, fixed and dual sign of the Sun.
    constexpr std::array<double, 3> kStart = {0.0, 240.0, 120.0};
    const double start = at(kStart, signModality(core::signOfLongitude(sun)));
    return Normalize360(sun + 120.0 * ghatis + start);
}

int mandiGhati(int weekday, bool night)
{
    return at(night ? kMandiByNight : kMandiByDay, weekday - 1);
}

int upagrahaPlanet(int point)
{
    return at(kPartRulers, point - core::kKaala);
}

std::optional<double> upagrahaHour(const core::Chart& chart, int point, bool atMiddle)
{
    const std::optional<HalfDay> half = runningHalf(chart);
    if (!half) {
        return std::nullopt;
    }
    if (point == core::kMandi) {
        return half->partStart(mandiGhati(chart.weekday, half->night), kGhatisOfHalf);
    }
    const int part = kalaVelaPart(chart.weekday, half->night, upagrahaPlanet(point));
    return half->partStart(part + (atMiddle ? 0.5 : 0.0), kEighths);
}

void computeUpagrahas(core::Chart& chart, bool atMiddle)
{
    if (!chart.computed(core::kSun)) {
        return;
    }
    const double sun = chart.longitude[core::kSun];
    const std::array<double, 5> sunBased = sunBasedUpagrahas(sun);
    for (std::size_t i = 0; i < sunBased.size(); ++i) {
        storePoint(chart, core::kDhuma + int(i), sunBased[i]);
    }
    for (const int point : {core::kKaala, core::kMrityu, core::kArdhaprahara, core::kYamaghantaka,
                            core::kGulika, core::kMandi}) {
        if (const std::optional<double> hour = upagrahaHour(chart, point, atMiddle)) {
            storePoint(chart, point, ascendantAt(chart, *hour));
        }
    }
    if (runningHalf(chart)) {
        const double sinceSunrise = chart.time.localTime - chart.vedicDay->sunrise;
        storePoint(chart, core::kPranapada, pranapada(sun, sinceSunrise * kGhatisPerHour));
    }
}

} // namespace kestrav::analysis
