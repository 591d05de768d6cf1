#include "astro/RiseSet.h"

#include "astro/Bodies.h"
#include "astro/PreciseMoon.h"
#include "astro/SiderealTime.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::astro
{

namespace
{

using core::kDegreesPerRadian;
using core::kRadiansPerDegree;

constexpr double kSunAltitude = -0.5833333; // degrees, centre of the Sun
constexpr double kRefraction = 0.5667;      // degrees at the horizon
constexpr double kMoonParallaxFactor = 0.7275;
constexpr double kEarthRadiusAu = 6378.14 / 149597870.7;
constexpr double kSiderealRate = 15.04107; // degrees of hour angle an hour
constexpr double kLunarRate = 14.49;

// How an event of one kind of body is searched.
struct Search
{
    int point;
    int rounds;
    double rate; // degrees of hour angle an hour
};

struct Sky
{
    double rightAscension; // degrees
    double declination;    // radians
    double altitude;       // degrees at which the body rises and sets
};

Search searchOf(int point)
{
    if (point == core::kMoon) {
        return {point, 10, kLunarRate};
    }
    return {point, point == core::kSun ? 5 : 10, kSiderealRate};
}

// The equatorial position of ecliptic coordinates of date in radians.
Sky skyOf(double T, double longitude, double latitude, double altitude)
{
    const double obliquity = obliquityDegrees(T) * kRadiansPerDegree;
    const double cosObliquity = std::cos(obliquity);
    const double sinObliquity = std::sin(obliquity);
    const double rightAscension =
        std::atan2(std::sin(longitude) * cosObliquity - std::tan(latitude) * sinObliquity,
                   std::cos(longitude));
    return {rightAscension * kDegreesPerRadian,
            declinationOf(longitude, latitude, cosObliquity, sinObliquity), altitude};
}

Sky skyOfBody(EphemerisContext& context, double T, int point)
{
    if (point == core::kMoon) {
        const MoonPosition moon = preciseMoon(T);
        const double parallax = std::asin(kEarthRadiusAu / moon.distance) * kDegreesPerRadian;
        return skyOf(T, moon.longitude * kRadiansPerDegree, moon.latitude,
                     kMoonParallaxFactor * parallax - kRefraction);
    }
    context.setTime(core::timeArguments(T));
    PlanetPosition(context, codeOfPoint(point));
    return skyOf(T, context.result.longitude * kRadiansPerDegree, context.result.latitude,
                 point == core::kSun ? kSunAltitude : -kRefraction);
}

// The hour angle of the event in degrees, or nothing when the body does not reach the altitude.
std::optional<double> wantedHourAngle(const Sky& sky, double geoLatitude, HorizonEvent event)
{
    if (event == HorizonEvent::UpperCulmination) {
        return 0.0;
    }
    if (event == HorizonEvent::LowerCulmination) {
        return 180.0;
    }
    const double latitude = geoLatitude * kRadiansPerDegree;
    const double cosine = (std::sin(sky.altitude * kRadiansPerDegree) -
                           std::sin(latitude) * std::sin(sky.declination)) /
                          (std::cos(latitude) * std::cos(sky.declination));
    if (!(std::fabs(cosine) <= 1.0)) {
        return std::nullopt;
    }
    const double angle = std::acos(cosine) * kDegreesPerRadian;
    return event == HorizonEvent::Rise ? -angle : angle;
}

// Approaches the event from a first clock hour; the first round settles which one it is. `skyAt`
// gives the body at a T.
template <typename SkyAt>
std::optional<double> approach(SkyAt skyAt, const core::DateTimeRecord& date,
                               const Observer& observer, const Search& search, HorizonEvent event,
                               double hour)
{
    const double dayAt0h = core::DateToJulianDay(date) - core::kEpoch1900;
    for (int round = 0; round < search.rounds; ++round) {
        const double utHours = hour - observer.clockOffset;
        const double dayCount = dayAt0h + utHours / 24.0;
        const double T = (dayCount + date.deltaTDays) / core::kDaysPerCentury;
        const Sky sky = skyAt(T);
        const std::optional<double> wanted = wantedHourAngle(sky, observer.geoLatitude, event);
        if (!wanted) {
            return std::nullopt;
        }
        const double sidereal = siderealTimeHours(dayCount, utHours, observer.geoLongitude);
        const double away = std::remainder(*wanted - (sidereal * 15.0 - sky.rightAscension), 360.0);
        hour += away / search.rate;
    }
    return hour;
}

double localMeanNoon(const Observer& observer)
{
    return 12.0 - observer.geoLongitude / 15.0 + observer.clockOffset;
}

} // namespace

Observer observerOf(const core::Chart& chart)
{
    return {chart.geoLongitude, chart.geoLatitude, chart.zone + chart.daylightSaving};
}

SunTrack sunTrack(EphemerisContext& context, const core::DateTimeRecord& date,
                  const Observer& observer)
{
    const double dayCount = core::DateToJulianDay(date) - core::kEpoch1900 +
                            (localMeanNoon(observer) - observer.clockOffset) / 24.0;
    return {context, (dayCount + date.deltaTDays) / core::kDaysPerCentury};
}

std::optional<double> sunEvent(const SunTrack& track, const core::DateTimeRecord& date,
                               const Observer& observer, HorizonEvent event)
{
    // Both midnights lie equally far from noon, and the equation of time would choose between them.
    const double start =
        localMeanNoon(observer) + (event == HorizonEvent::LowerCulmination ? 12.0 : 0.0);
    const auto skyAt = [&](double T) {
        return skyOf(T, track.longitude(T), 0.0, kSunAltitude);
    };
    return approach(skyAt, date, observer, searchOf(core::kSun), event, start);
}

std::optional<double> sunEvent(EphemerisContext& context, const core::DateTimeRecord& date,
                               const Observer& observer, HorizonEvent event)
{
    return sunEvent(sunTrack(context, date, observer), date, observer, event);
}

std::optional<double> bodyEvent(EphemerisContext& context, const core::DateTimeRecord& date,
                                const Observer& observer, int point, HorizonEvent event)
{
    const Search search = searchOf(point);
    const double period = 360.0 / search.rate;
    const auto skyAt = [&](double T) {
        return skyOfBody(context, T, point);
    };
    const std::optional<double> near =
        approach(skyAt, date, observer, search, event, localMeanNoon(observer));
    // The event nearest to noon may belong to a neighbouring date, and one on this date may have a
    // twin a period earlier.
    std::optional<double> earliest;
    for (const double shift : {-period, 0.0, period}) {
        const double start = near.value_or(localMeanNoon(observer)) + shift;
        const std::optional<double> hour =
            shift == 0.0 ? near : approach(skyAt, date, observer, search, event, start);
        if (hour && *hour >= 0.0 && *hour < 24.0 && (!earliest || *hour < *earliest)) {
            earliest = hour;
        }
    }
    return earliest;
}

std::optional<core::VedicDay> vedicDay(const SunTrack& track, const core::DateTimeRecord& moment,
                                       const Observer& observer)
{
    const auto eventOn = [&](int days, HorizonEvent event) -> std::optional<double> {
        core::DateTimeRecord date = moment;
        core::addDays(date, days);
        const std::optional<double> hour = sunEvent(track, date, observer, event);
        return hour ? std::optional(*hour + 24.0 * days) : std::nullopt;
    };
    // With a clock far from local time the day can have begun on either neighbouring date.
    for (const int days : {1, 0, -1, -2}) {
        const std::optional<double> sunrise = eventOn(days, HorizonEvent::Rise);
        if (!sunrise || *sunrise > moment.localTime) {
            continue;
        }
        // Where the Sun stays up or down the day has no end, which also rules out days long past.
        const std::optional<double> sunset = eventOn(days, HorizonEvent::Set);
        const std::optional<double> next = eventOn(days + 1, HorizonEvent::Rise);
        if (!sunset || !next) {
            return std::nullopt;
        }
        return core::VedicDay{*sunrise, *sunset, *next};
    }
    return std::nullopt;
}

std::optional<core::VedicDay> vedicDay(EphemerisContext& context,
                                       const core::DateTimeRecord& moment, const Observer& observer)
{
    return vedicDay(sunTrack(context, moment, observer), moment, observer);
}

} // namespace kestrav::astro
