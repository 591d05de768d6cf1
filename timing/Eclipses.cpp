#include "timing/Eclipses.h"

#include "core/Angles.h"
#include "core/DateTime.h"
#include "core/Points.h"
#include "core/numeric.h"
#include "timing/EclipseElements.h"

#include <cmath>
#include <cstdint>
#include <optional>

namespace kestrav::timing
{

namespace
{

constexpr double kNearLimit = 0.01;
constexpr double kNatalOrb = 3.0; // degrees

// Lengths in Earth radii.
constexpr double kCentralLimit = 0.9972; // the flattened Earth's radius
constexpr double kSolarReach = 1.5433;
constexpr double kShadowWidth = 0.5461;   // penumbra less umbra, everywhere
constexpr double kSurelyAnnular = 0.0047; // radius of the umbra from which none is hybrid
constexpr double kUmbraTangent = 0.00464; // of half the angle of the Moon's umbra
constexpr double kMoonDiameter = 0.5450;
constexpr double kPartialReach = 1.0128;
constexpr double kTotalReach = 0.4678;
constexpr double kPenumbraReach = 1.5573;

bool near(double value, double limit)
{
    return std::fabs(value - limit) < kNearLimit;
}

// The Moon's apparent diameter over the Sun's where the axis comes nearest to the ground, which the
// umbra meets narrower than the plane through the centre of the Earth.
double diameterRatio(double g, double u)
{
    const double height = std::sqrt(std::fmax(0.0, 1.0 - g * g));
    return kShadowWidth / (kShadowWidth + 2.0 * (u - kUmbraTangent * height));
}

EclipseType centralType(double g, double u)
{
    if (u < 0.0) {
        return EclipseType::Total;
    }
    const bool hybrid =
        u <= kSurelyAnnular && u < kUmbraTangent * std::sqrt(std::fmax(0.0, 1.0 - g * g));
    return hybrid ? EclipseType::Hybrid : EclipseType::Annular;
}

bool classifySolar(Eclipse& eclipse, const EclipseElements& elements)
{
    const double g = std::fabs(elements.gamma);
    const double u = elements.u;
    const double none = kSolarReach + u;
    const double partial = kCentralLimit + std::fabs(u);
    if (g > none) {
        return false;
    }
    eclipse.nearLimit = near(g, none) || near(g, kCentralLimit) || near(g, partial);
    eclipse.central = g < kCentralLimit;
    if (eclipse.central) {
        eclipse.type = centralType(g, u);
        eclipse.magnitude = diameterRatio(g, u);
        return true;
    }
    eclipse.magnitude = (none - g) / (kShadowWidth + 2.0 * u);
    eclipse.type = EclipseType::Partial;
    if (g < partial) {
        eclipse.type = u < 0.0 ? EclipseType::Total : EclipseType::Annular;
    }
    return true;
}

// Half a phase in minutes, for the Moon that comes within `reach` of the axis.
double halfDuration(double reach, double g, double radiiPerHour)
{
    return g < reach ? 60.0 / radiiPerHour * std::sqrt(reach * reach - g * g) : 0.0;
}

bool classifyLunar(Eclipse& eclipse, const EclipseElements& elements)
{
    const double g = std::fabs(elements.gamma);
    const double u = elements.u;
    eclipse.umbralMagnitude = (kPartialReach - u - g) / kMoonDiameter;
    eclipse.penumbralMagnitude = (kPenumbraReach + u - g) / kMoonDiameter;
    if (eclipse.penumbralMagnitude <= -kNearLimit) {
        return false;
    }
    eclipse.nearLimit = near(eclipse.umbralMagnitude, 1.0) || near(eclipse.umbralMagnitude, 0.0) ||
                        near(eclipse.penumbralMagnitude, 0.0);
    if (eclipse.umbralMagnitude > 0.0) {
        eclipse.type = eclipse.umbralMagnitude >= 1.0 ? EclipseType::Total : EclipseType::Partial;
        eclipse.magnitude = eclipse.umbralMagnitude;
    } else {
        eclipse.type = EclipseType::Penumbral;
        eclipse.magnitude = eclipse.penumbralMagnitude;
    }
    const double radiiPerHour =
        0.5458 + 0.0400 * std::cos(elements.moonAnomaly * core::kRadiansPerDegree);
    eclipse.halfPenumbral = halfDuration(kPenumbraReach + u, g, radiiPerHour);
    eclipse.halfPartial = halfDuration(kPartialReach - u, g, radiiPerHour);
    eclipse.halfTotal = halfDuration(kTotalReach - u, g, radiiPerHour);
    return true;
}

// Universal Time of a moment in Terrestrial Time, whose offset follows the Universal Time.
double universalDay(SiderealSky& sky, double terrestrial)
{
    double julianDay = terrestrial;
    for (int round = 0; round < 3; ++round) {
        julianDay += terrestrial - (sky.terrestrialDay(julianDay) + core::kEpoch1900);
    }
    return julianDay;
}

// The eclipse at a lunation, if there is one, without its place in the zodiac.
std::optional<Eclipse> eclipseAt(SiderealSky& sky, double lunation)
{
    const std::optional<EclipseElements> elements = eclipseElements(lunation);
    if (!elements) {
        return std::nullopt;
    }
    Eclipse eclipse;
    eclipse.kind = lunation == std::floor(lunation) ? EclipseKind::Solar : EclipseKind::Lunar;
    eclipse.gamma = elements->gamma;
    const bool any = eclipse.kind == EclipseKind::Solar ? classifySolar(eclipse, *elements)
                                                        : classifyLunar(eclipse, *elements);
    if (!any) {
        return std::nullopt;
    }
    eclipse.julianDay = universalDay(sky, elements->greatest);
    return eclipse;
}

bool passes(const Eclipse& eclipse, const EclipseFilter& filter)
{
    if (eclipse.kind == EclipseKind::Solar) {
        return filter.solar;
    }
    return filter.lunar && (filter.penumbral || eclipse.type != EclipseType::Penumbral);
}

} // namespace

std::wstring_view eclipseTypeName(EclipseType type)
{
    switch (type) {
    case EclipseType::Penumbral:
        return L"penumbral";
    case EclipseType::Partial:
        return L"partial";
    case EclipseType::Annular:
        return L"annular";
    case EclipseType::Hybrid:
        return L"hybrid";
    case EclipseType::Total:
        return L"total";
    }
    return {};
}

std::wstring_view eclipseKindName(EclipseKind kind)
{
    return kind == EclipseKind::Solar ? L"solar" : L"lunar";
}

bool forEachEclipse(SiderealSky& sky, Span span, const EclipseFilter& filter,
                    FunctionRef<bool(const Eclipse&)> visit)
{
    constexpr double kMargin = 3.0;      // lunations
    constexpr double kFurthestDay = 1e9; // safe as a count of lunations
    if (!(std::fabs(span.from) < kFurthestDay) || !(std::fabs(span.to) < kFurthestDay)) {
        return true;
    }
    const auto last = std::int64_t(2.0 * (lunationNear(span.to) + kMargin));
    for (auto half = std::int64_t(2.0 * (lunationNear(span.from) - kMargin)); half <= last;
         ++half) {
        std::optional<Eclipse> eclipse = eclipseAt(sky, double(half) / 2.0);
        if (!eclipse || !passes(*eclipse, filter) || !(eclipse->julianDay >= span.from) ||
            !(eclipse->julianDay < span.to)) {
            continue;
        }
        eclipse->sunLongitude = sky.longitude(core::kSun, eclipse->julianDay);
        eclipse->moonLongitude = sky.longitude(core::kMoon, eclipse->julianDay);
        if (!visit(*eclipse)) {
            return false;
        }
    }
    return true;
}

std::vector<Eclipse> eclipsesIn(SiderealSky& sky, Span span, const EclipseFilter& filter)
{
    std::vector<Eclipse> found;
    forEachEclipse(sky, span, filter, [&](const Eclipse& eclipse) {
        found.push_back(eclipse);
        return true;
    });
    return found;
}

std::vector<EclipsedPoint> eclipsedPoints(const Eclipse& eclipse, const core::Chart& chart)
{
    std::vector<EclipsedPoint> found;
    for (int point = 0; point < core::kPointCount; ++point) {
        const bool cusp = point >= core::kCusp1 && point <= core::kCusp12;
        if (cusp || !chart.computed(point)) {
            continue;
        }
        const double longitude = core::at(chart.longitude, point);
        const double toSun = std::fabs(core::Wrap180(longitude - eclipse.sunLongitude));
        const double toMoon = std::fabs(core::Wrap180(longitude - eclipse.moonLongitude));
        const double nearest = std::fmin(toSun, toMoon);
        if (nearest <= kNatalOrb) {
            found.push_back({point, toSun <= toMoon ? core::kSun : core::kMoon, nearest});
        }
    }
    return found;
}

} // namespace kestrav::timing
