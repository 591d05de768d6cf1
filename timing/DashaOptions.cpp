#include "timing/DashaOptions.h"

#include "core/Angles.h"
#include "core/Points.h"

#include <array>

namespace kestrav::timing
{

DashaOptions dashaOptions(const core::Settings& settings)
{
    DashaOptions options;
    options.system = settings.dashaSystem;
    options.startPoint = settings.dashaStartPoint;
    options.totalLength = settings.dashaTotalLength;
    options.fractionByTime = settings.nakshatraFraction != 0;
    options.yearLength =
        YearLength(core::ClampRange(0, int(YearLength::Custom), settings.dashaYearLength));
    options.customYearDays = settings.customYearDays;
    options.subPeriodStart = SubPeriodStart(
        core::ClampRange(0, int(SubPeriodStart::SignOfLord), settings.dashaSubPeriodStart));
    options.charaOwnSignLast = settings.charaOwnSignLast;
    options.charaExaltationYears = settings.charaExaltationYears;
    options.dwisaptatiLordInAscendant = settings.dwisaptatiLordInAscendant;
    return options;
}

double chosenCycleYears(int totalLength)
{
    constexpr std::array<double, 5> kYears = {0.0, 1.0, 1.0 / 4.0, 1.0 / 8.0, 1.0 / 12.0};
    return totalLength > 0 && totalLength < int(kYears.size()) ? core::at(kYears, totalLength)
                                                               : 0.0;
}

} // namespace kestrav::timing
