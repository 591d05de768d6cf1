#include "app/present/Clock.h"

#include "core/NumberText.h"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <optional>

namespace kestrav::present
{

namespace
{

// The years from which dates are typed, -99999 to 99999, lie inside this.
constexpr double kLargestMoment = 3.0e12;

} // namespace

core::Result<double> presentMoment()
{
    const char* const set = std::getenv(kClockVariable);
    if (set == nullptr) {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        return double(std::chrono::duration_cast<std::chrono::seconds>(now).count());
    }
    const std::optional<double> seconds = core::parseNumber(set);
    if (!seconds || std::fabs(*seconds) > kLargestMoment) {
        return core::Error{std::string(kClockVariable) + " '" + set +
                           "' is no time in seconds since 1970"};
    }
    return *seconds;
}

SystemZone systemZoneAt(double unixSeconds)
{
    const auto moment = std::time_t(std::floor(unixSeconds));
    std::tm local{};
    if (localtime_r(&moment, &local) == nullptr) {
        return {};
    }
    const int saving = local.tm_isdst > 0 ? 1 : 0;
    return {double(local.tm_gmtoff) / 3600.0 - saving, saving};
}

std::wstring offsetText(double hours)
{
    const long seconds = std::lround(std::fabs(hours) * 3600.0);
    const auto twoDigits = [](long number) {
        return (number < 10 ? L":0" : L":") + std::to_wstring(number);
    };
    return (hours < 0.0 ? L"-" : L"+") + std::to_wstring(seconds / 3600) +
           twoDigits(seconds / 60 % 60) + (seconds % 60 != 0 ? twoDigits(seconds % 60) : L"");
}

} // namespace kestrav::present
