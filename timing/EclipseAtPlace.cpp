#include "timing/EclipseAtPlace.h"

#include "astro/SiderealTime.h"
#include "core/DateTime.h"
#include "core/Points.h"
#include "core/numeric.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::timing
{

namespace
{

using core::kDegreesPerRadian;
using core::kRadiansPerDegree;

constexpr double kMinute = 1.0 / 1440.0;    // days
constexpr double kReach = 3.5 / 24.0;       // days from greatest eclipse
constexpr double kSunAltitude = -0.5833333; // degrees, as for sunrise
constexpr double kRefraction = 0.5667;      // degrees, as for moonrise
constexpr double kMoonParallaxFactor = 0.7275;
constexpr double kMoonRadius = 0.272481;      // of the Earth's equatorial radius
constexpr double kSunRadius = 0.26656;        // degrees at one astronomical unit
constexpr double kFlattening = 1.0 / 298.257; // of the Earth

// Steps of ten minutes: no distance of the two bodies turns twice in half an hour.
constexpr CurveShape kShape{0.0, 10.0 * kMinute, false, 0.1 / 86400.0};

struct Vector
{
    double x;
    double y;
    double z;
};

double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

double length(const Vector& a)
{
    return std::sqrt(dot(a, a));
}

double angleBetween(const Vector& a, const Vector& b)
{
    const Vector cross{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
    return std::atan2(length(cross), dot(a, b)) * kDegreesPerRadian;
}

Vector fromEcliptic(double longitude, double latitude, double distance)
{
    const double l = longitude * kRadiansPerDegree;
    const double b = latitude * kRadiansPerDegree;
    return {distance * std::cos(b) * std::cos(l), distance * std::cos(b) * std::sin(l),
            distance * std::sin(b)};
}

// The Moon's horizontal parallax in degrees.
double moonParallax(double T)
{
    const double t = T - 1.0; // centuries from J2000.0
    const double anomaly = (134.96340 + 477198.86751 * t) * kRadiansPerDegree;
    const double elongation = (297.85019 + 445267.11140 * t) * kRadiansPerDegree;
    return 0.9508 + 0.0518 * std::cos(anomaly) + 0.0095 * std::cos(2.0 * elongation - anomaly) +
           0.0078 * std::cos(2.0 * elongation) + 0.0028 * std::cos(2.0 * anomaly);
}

// Sun and Moon as the place sees them.
struct View
{
    double separation = 0.0; // degrees between the centres
    double sunRadius = 0.0;  // degrees
    double moonRadius = 0.0;
    double altitude = 0.0; // of the eclipsed body's centre, degrees, without refraction
    double riseAltitude = 0.0;

    [[nodiscard]] double outside() const
    {
        return separation - sunRadius - moonRadius;
    }
    [[nodiscard]] double inside() const
    {
        return separation - std::fabs(moonRadius - sunRadius);
    }
};

class Place
{
public:
    Place(SiderealSky& sky, const astro::Observer& observer, EclipseKind kind)
        : sky_(sky), observer_(observer), kind_(kind)
    {
        const double latitude = observer.geoLatitude * kRadiansPerDegree;
        const double reduced =
            std::atan2((1.0 - kFlattening) * std::sin(latitude), std::cos(latitude));
        fromAxis_ = std::cos(reduced);
        north_ = (1.0 - kFlattening) * std::sin(reduced);
    }

    [[nodiscard]] View at(double julianDay) const
    {
        const double T = sky_.terrestrialDay(julianDay) / core::kDaysPerCentury;
        const double parallax = moonParallax(T);
        const double obliquity = astro::obliquityDegrees(T) * kRadiansPerDegree;
        const double cosine = std::cos(obliquity);
        const double sine = std::sin(obliquity);
        const SkyPosition sun = sky_.position(core::kSun, julianDay);
        const SkyPosition moon = sky_.position(core::kMoon, julianDay);
        const double dayCount = julianDay - core::kEpoch1900;
        const double utHours = (julianDay + 0.5 - std::floor(julianDay + 0.5)) * 24.0;
        const double siderealTime =
            astro::siderealTimeHours(dayCount, utHours, observer_.geoLongitude) * 15.0 *
            kRadiansPerDegree;
        // The frame is the ecliptic with the tropical zero.
        const auto toEcliptic = [&](const Vector& equatorial) {
            return Vector{equatorial.x, equatorial.y * cosine + equatorial.z * sine,
                          equatorial.z * cosine - equatorial.y * sine};
        };
        const Vector ground = toEcliptic(
            {fromAxis_ * std::cos(siderealTime), fromAxis_ * std::sin(siderealTime), north_});
        const double latitude = observer_.geoLatitude * kRadiansPerDegree;
        const Vector zenith =
            toEcliptic({std::cos(latitude) * std::cos(siderealTime),
                        std::cos(latitude) * std::sin(siderealTime), std::sin(latitude)});
        const double parallaxSine = std::sin(parallax * kRadiansPerDegree);
        const double sunTropical = sky_.tropicalLongitude(core::kSun, julianDay);
        const double moonTropical = sky_.tropicalLongitude(core::kMoon, julianDay);
        const Vector sunAway = fromEcliptic(sunTropical, sun.latitude, 1.0);
        const Vector moonAway = fromEcliptic(moonTropical, moon.latitude, 1.0 / parallaxSine);
        // Only the Moon is moved. The parallax of the Sun, 9 arc seconds, would shift a contact by
        // up to 20 seconds.
        const Vector moonSeen{moonAway.x - ground.x, moonAway.y - ground.y, moonAway.z - ground.z};
        View view;
        view.separation = angleBetween(sunAway, moonSeen);
        view.sunRadius = kSunRadius / sun.distance;
        view.moonRadius = std::asin(kMoonRadius * parallaxSine) * kDegreesPerRadian *
                          length(moonAway) / length(moonSeen);
        const bool solar = kind_ == EclipseKind::Solar;
        view.altitude = 90.0 - angleBetween(solar ? sunAway : moonAway, zenith);
        view.riseAltitude = solar ? kSunAltitude : kMoonParallaxFactor * parallax - kRefraction;
        return view;
    }

    [[nodiscard]] ContactAtPlace contact(ContactKind kind, double julianDay) const
    {
        const View view = at(julianDay);
        return {kind, julianDay, view.altitude, view.altitude >= view.riseAltitude};
    }

    // The part of a span in which the body is up, from the first to the last moment.
    [[nodiscard]] std::optional<Span> upIn(Span span) const
    {
        const auto height = [&](double day) {
            const View view = at(day);
            return view.altitude - view.riseAltitude;
        };
        const std::vector<Crossing> crossings = crossingsIn(height, kShape, span, {});
        const bool first = height(span.from) >= 0.0;
        const bool last = height(span.to) >= 0.0;
        if (!first && !last && crossings.empty()) {
            return std::nullopt;
        }
        return Span{first || crossings.empty() ? span.from : crossings.front().day,
                    last || crossings.empty() ? span.to : crossings.back().day};
    }

private:
    SiderealSky& sky_;
    astro::Observer observer_;
    EclipseKind kind_;
    double fromAxis_; // Earth radii
    double north_;
};

void storeMoon(EclipseAtPlace& seen, const Place& place, const Eclipse& eclipse)
{
    seen.type = eclipse.type;
    seen.magnitude = eclipse.magnitude;
    for (const EclipseContact& contact : lunarContacts(eclipse)) {
        seen.contacts.push_back(place.contact(contact.kind, contact.julianDay));
    }
    // One that nearly misses the penumbra has its greatest moment only.
    const auto phase = [&](double halfMinutes) {
        const double half = halfMinutes * kMinute;
        return place.upIn({eclipse.julianDay - half, eclipse.julianDay + half});
    };
    seen.seen = phase(eclipse.halfPenumbral);
    if (!seen.seen) {
        return;
    }
    seen.seenType = EclipseType::Penumbral;
    if (eclipse.halfPartial > 0.0 && phase(eclipse.halfPartial)) {
        seen.seenType = EclipseType::Partial;
    }
    if (eclipse.halfTotal > 0.0 && phase(eclipse.halfTotal)) {
        seen.seenType = EclipseType::Total;
    }
}

// The moments of a phase around the greatest one, in which a distance is negative.
template <typename Distance>
std::optional<Span> phaseAround(Distance distance, double greatest, Span window)
{
    const auto begin = lastCrossing(distance, kShape, {window.from, greatest}, {});
    const auto end = firstCrossing(distance, kShape, {greatest, window.to}, {});
    if (!begin || !end) {
        return std::nullopt;
    }
    return Span{begin->day, end->day};
}

void storeSun(EclipseAtPlace& seen, const Place& place, const Eclipse& eclipse)
{
    const Span window{eclipse.julianDay - kReach, eclipse.julianDay + kReach};
    const auto outside = [&](double day) {
        return place.at(day).outside();
    };
    const auto inside = [&](double day) {
        return place.at(day).inside();
    };
    std::optional<double> greatest;
    double least = 0.0;
    for (const TurningPoint& turn : turningPointsIn(outside, kShape, window)) {
        if (!turn.highest && turn.value < least) {
            least = turn.value;
            greatest = turn.day;
        }
    }
    const std::optional<Span> partial =
        greatest ? phaseAround(outside, *greatest, window) : std::nullopt;
    if (!partial) {
        return;
    }
    const View view = place.at(*greatest);
    const bool covered = view.inside() < 0.0;
    const std::optional<Span> full =
        covered ? phaseAround(inside, *greatest, *partial) : std::nullopt;
    seen.type = EclipseType::Partial;
    if (full) {
        seen.type = view.moonRadius >= view.sunRadius ? EclipseType::Total : EclipseType::Annular;
    }
    seen.magnitude = -view.outside() / (2.0 * view.sunRadius);
    seen.contacts.push_back(place.contact(ContactKind::PartialBegin, partial->from));
    if (full) {
        seen.contacts.push_back(place.contact(ContactKind::TotalBegin, full->from));
    }
    seen.contacts.push_back(place.contact(ContactKind::Greatest, *greatest));
    if (full) {
        seen.contacts.push_back(place.contact(ContactKind::TotalEnd, full->to));
    }
    seen.contacts.push_back(place.contact(ContactKind::PartialEnd, partial->to));
    seen.seen = place.upIn(*partial);
    if (seen.seen) {
        seen.seenType = full && place.upIn(*full) ? seen.type : EclipseType::Partial;
    }
}

} // namespace

std::wstring_view contactName(ContactKind kind, EclipseType type)
{
    const bool annular = type == EclipseType::Annular;
    switch (kind) {
    case ContactKind::PenumbralBegin:
        return L"penumbral begins";
    case ContactKind::PartialBegin:
        return L"partial begins";
    case ContactKind::TotalBegin:
        return annular ? L"annular begins" : L"total begins";
    case ContactKind::Greatest:
        return L"greatest";
    case ContactKind::TotalEnd:
        return annular ? L"annular ends" : L"total ends";
    case ContactKind::PartialEnd:
        return L"partial ends";
    case ContactKind::PenumbralEnd:
        return L"penumbral ends";
    }
    return {};
}

std::vector<EclipseContact> lunarContacts(const Eclipse& eclipse)
{
    std::vector<EclipseContact> contacts;
    if (eclipse.kind != EclipseKind::Lunar) {
        return contacts;
    }
    struct Phase
    {
        double half; // minutes
        ContactKind begin;
        ContactKind end;
    };
    const std::array<Phase, 3> phases = {{
        {eclipse.halfPenumbral, ContactKind::PenumbralBegin, ContactKind::PenumbralEnd},
        {eclipse.halfPartial, ContactKind::PartialBegin, ContactKind::PartialEnd},
        {eclipse.halfTotal, ContactKind::TotalBegin, ContactKind::TotalEnd},
    }};
    contacts.push_back({ContactKind::Greatest, eclipse.julianDay});
    for (const Phase& phase : phases) {
        if (phase.half > 0.0) {
            contacts.push_back({phase.begin, eclipse.julianDay - phase.half * kMinute});
            contacts.push_back({phase.end, eclipse.julianDay + phase.half * kMinute});
        }
    }
    std::sort(contacts.begin(), contacts.end(),
              [](const EclipseContact& a, const EclipseContact& b) { return a.kind < b.kind; });
    return contacts;
}

EclipseAtPlace eclipseAtPlace(SiderealSky& sky, const Eclipse& eclipse,
                              const astro::Observer& observer)
{
    EclipseAtPlace seen;
    const Place place(sky, observer, eclipse.kind);
    if (eclipse.kind == EclipseKind::Lunar) {
        storeMoon(seen, place, eclipse);
    } else {
        storeSun(seen, place, eclipse);
    }
    seen.visible = seen.seen.has_value();
    return seen;
}

} // namespace kestrav::timing
