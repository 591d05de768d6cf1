#include "timing/YearLength.h"

#include "core/Angles.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

// The Surya Siddhanta's time of mean Jupiter through one sign; the modern motion gives 361.05.
constexpr double kJovianYear = 361.026721;
constexpr double kMeanTropicalYear = 365.242190;
constexpr double kShortestCustomYear = 200.0;
constexpr double kLongestCustomYear = 500.0;

constexpr const wchar_t* kNoticeCaption = L"Notice";

// The option list spells it "Sidereal"; this text has always been written as it stands.
constexpr const wchar_t* kTrueSolarText = L"If you change the Sun and use the True Solar Year,\n"
                                          L"the dashas may not be calculated properly.\n"
                                          L"Dashas changed to the Mean Siderial Year.";

} // namespace

double yearDays(YearLength choice, double customDays)
{
    switch (choice) {
    case YearLength::MeanTropical:
        return kMeanTropicalYear;
    case YearLength::Days360:
        return 360.0;
    case YearLength::Days354:
        return 354.0;
    case YearLength::Jovian:
        return kJovianYear;
    case YearLength::Custom:
        return std::isnan(customDays)
                   ? kDefaultCustomYear
                   : core::ClampRange(kShortestCustomYear, kLongestCustomYear, customDays);
    default:
        return kMeanSiderealYear;
    }
}

bool leaveTrueSolarYear(core::Settings& settings, bool sunModified, core::Messages& messages)
{
    if (!sunModified || settings.dashaYearLength != int(YearLength::TrueSolar)) {
        return false;
    }
    settings.dashaYearLength = int(YearLength::MeanSidereal);
    messages.notice(kNoticeCaption, kTrueSolarText);
    return true;
}

} // namespace kestrav::timing
