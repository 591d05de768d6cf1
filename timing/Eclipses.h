// Eclipses of the Sun and the Moon: when, of which type, how large and where in the zodiac.
#pragma once

#include "core/Chart.h"
#include "timing/EventSearch.h"
#include "timing/FunctionRef.h"
#include "timing/SiderealSky.h"

#include <string_view>
#include <vector>

namespace kestrav::timing
{

enum class EclipseKind
{
    Solar,
    Lunar,
};

enum class EclipseType
{
    Penumbral, ///< of the Moon only
    Partial,
    Annular, ///< of the Sun only, as the next
    Hybrid,  ///< annular on a part of its path, total on the rest
    Total,
};

/// The word of a type: "penumbral", "partial", "annular", "hybrid", "total".
[[nodiscard]] std::wstring_view eclipseTypeName(EclipseType type);

/// "solar", "lunar".
[[nodiscard]] std::wstring_view eclipseKindName(EclipseKind kind);

/// One eclipse as it is for the Earth as a whole.
struct Eclipse
{
    EclipseKind kind = EclipseKind::Solar;
    EclipseType type = EclipseType::Partial;
    double julianDay = 0.0; ///< of greatest eclipse, Universal Time
    double gamma = 0.0;     ///< distance of the shadow's axis in Earth radii, positive north

    /// Whether the axis of the Moon's shadow meets the Earth. An annular or total eclipse of the
    /// Sun without it is seen at the rim of the Earth only. False for the Moon.
    bool central = false;

    /// Within 0.01 of the limit between two types, or between an eclipse and none.
    bool nearLimit = false;

    /// Of the Sun: for a central eclipse the Moon's apparent diameter over the Sun's, else the part
    /// of the Sun's diameter that is covered, where that is greatest. Of the Moon: the part of its
    /// diameter in the umbra, for a penumbral eclipse in the penumbra; a penumbral one near the
    /// limit may be slightly negative.
    double magnitude = 0.0;
    double umbralMagnitude = 0.0;    ///< of the Moon; negative when it misses the umbra
    double penumbralMagnitude = 0.0; ///< of the Moon

    /// Half the duration of the phases of an eclipse of the Moon in minutes; 0 for a phase that
    /// does not come.
    double halfPenumbral = 0.0;
    double halfPartial = 0.0;
    double halfTotal = 0.0;

    double sunLongitude = 0.0;  ///< sidereal degrees at greatest eclipse
    double moonLongitude = 0.0; ///< sidereal degrees

    /// The longitude of the body that is eclipsed.
    [[nodiscard]] double longitude() const
    {
        return kind == EclipseKind::Solar ? sunLongitude : moonLongitude;
    }
};

/// Which eclipses are looked for.
struct EclipseFilter
{
    bool solar = true;
    bool lunar = true;
    bool penumbral = true; ///< whether penumbral eclipses of the Moon are among them
};

/// Calls `visit` for every eclipse whose greatest moment lies from `span.from` to before `span.to`
/// (Julian days of Universal Time), in order, until it returns false; returns whether it never did.
/// Nothing is found in a span beyond a billion days. Measured on the positions of the bodies, the
/// series are good to a minute and a half and to 0.008 Earth radii between the years 1000 and 3000,
/// to 5 minutes in the year 1, to 30 minutes and 0.026 radii in 2000 BC.
bool forEachEclipse(SiderealSky& sky, Span span, const EclipseFilter& filter,
                    FunctionRef<bool(const Eclipse&)> visit);

/// All of them.
[[nodiscard]] std::vector<Eclipse> eclipsesIn(SiderealSky& sky, Span span,
                                              const EclipseFilter& filter = {});

/// A point of a chart that an eclipse falls on.
struct EclipsedPoint
{
    int point = 0;
    int body = 0;          ///< the Sun or the Moon, whichever is nearer to it
    double distance = 0.0; ///< degrees, 0 to 3
};

/// The computed points of a chart, without the house cusps, that stand within 3 degrees of the Sun
/// or the Moon at greatest eclipse.
[[nodiscard]] std::vector<EclipsedPoint> eclipsedPoints(const Eclipse& eclipse,
                                                        const core::Chart& chart);

} // namespace kestrav::timing
