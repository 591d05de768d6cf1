// The planetary engine: geocentric positions of the bodies at one moment.
#pragma once

#include "astro/Series.h"
#include "core/DateTime.h"

namespace kestrav::astro
{

/// Heliocentric longitude and latitude in radians, radius in astronomical units.
struct HeliocentricPosition
{
    double L = 0.0;
    double B = 0.0;
    double R = 0.0;
};

/// Rectangular coordinates in astronomical units.
struct Rectangular
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// Body codes of the engine. They are not the point index.
enum BodyCode : int
{
    kCodeSun = 1,
    kCodeMars = 3,
    kCodeMercury,
    kCodeJupiter,
    kCodeVenus,
    kCodeSaturn,
    kCodeUranus,
    kCodeNeptune,
    kCodePluto,
    kCodeSunJ2000,
};

/// What one call of PlanetPosition leaves behind. Note the units: longitudes are in degrees, the
/// latitude is in radians.
struct BodyResult
{
    double longitude = 0.0;          ///< apparent geocentric longitude, 0 to under 360 degrees
    double latitude = 0.0;           ///< radians
    double geometricLongitude = 0.0; ///< without light time, degrees
    double speed = 0.0;              ///< degrees per day, over the light time
    double distance = 0.0;           ///< geocentric, astronomical units
    double lightTime = 0.0;          ///< days
    double sunDistance = 0.0;        ///< heliocentric, astronomical units
    double phase = 0.0;              ///< illuminated fraction, when magnitudes are on
    double magnitude = 0.0;          ///< visual magnitude, when magnitudes are on
};

/// Everything that belongs to one moment: time arguments, the Earth and its rates, the results. One
/// context serves one computation at a time; the series behind it are shared by all.
class EphemerisContext
{
public:
    /// The series must outlive the context.
    explicit EphemerisContext(const Series& series) : series_(&series)
    {}

    /// Sets the moment. What was computed for another moment is not used any more.
    void setTime(const core::TimeArguments& arguments);

    [[nodiscard]] const core::TimeArguments& time() const
    {
        return time_;
    }
    [[nodiscard]] const Series& series() const
    {
        return *series_;
    }

    double t = 0.0; ///< series time of the running pass, Julian millennia from J2000.0
    bool magnitudesOn = false;
    bool earthKnown = false;         ///< whether the Earth was computed for this moment
    HeliocentricPosition earth;      ///< the Earth at the moment, not moved back
    HeliocentricPosition earthRates; ///< its change per day
    Rectangular earthPlace;          ///< the Earth at the moment in rectangular coordinates
    HeliocentricPosition body;       ///< the body at the last pass
    Rectangular sunJ2000;            ///< the Sun, equatorial J2000.0, after codes 10 and 11
    BodyResult result;               ///< of the last body

private:
    const Series* series_;
    core::TimeArguments time_;
};

/// Evaluates the series of a body's entry at the context's series time: 18 blocks, each the sum of
/// its terms A cos(B + C t) times a running power of t that starts again at 1 for longitude,
/// latitude and radius. L is reduced to 0 <= L < 2 pi. Codes below 3 take the Earth, 3 to 10 entry
/// code - 2, 11 the Earth referred to J2000.0.
void SumSeries(const EphemerisContext& context, int code, HeliocentricPosition& out);

/// Computes a body for the context's moment and leaves its result in the context. Codes below 3 are
/// the Sun; a planet computes the Earth first when that was not done for this moment.
/// Longitudes are referred to the mean equinox of date without nutation, except those of Pluto and
/// of code 11, which are referred to J2000.0. The light-time step moves the Earth back together
/// with the planet, which is the annual aberration to first order, so none is added.
void PlanetPosition(EphemerisContext& context, int code);

/// Phase and visual magnitude of the last body (codes 3 to 10), when they are switched on.
void Magnitude(EphemerisContext& context, int code);

} // namespace kestrav::astro
