// The chart record: one plain record that the engine and the analysis fill.
#pragma once

#include "core/DateTime.h"
#include "core/Identity.h"
#include "core/Points.h"
#include "core/Varga.h"

#include <array>
#include <optional>
#include <string>

namespace kestrav::core
{

/// How a body moves; the codes are those of the letters " FSRDTM".
enum class Motion : int
{
    None = 0,       ///< not computed, ascendant and cusps
    Fast = 1,       ///< faster than its mean speed
    Slow = 2,       ///< direct, not faster than its mean speed
    Retrograde = 3, ///< speed below 0
    Direct = 4,     ///< hardly moving, just turned direct
    Turning = 5,    ///< hardly moving, about to turn retrograde
    Station = 6,    ///< retrograde and hardly moving
};

/// The letter of a motion code.
[[nodiscard]] constexpr wchar_t motionLetter(Motion motion)
{
    return L" FSRDTM"[static_cast<int>(motion)];
}

/// The degree in sign of a point that was not computed.
inline constexpr double kNotComputed = -1.0;

/// The astrological day that runs at a moment, in local clock hours from 0h of the civil date of
/// the moment; hours of the day before are below 0, those of the day after above 24.
struct VedicDay
{
    double sunrise = 0.0;     ///< the last sunrise at or before the moment
    double sunset = 0.0;      ///< the sunset after it
    double nextSunrise = 0.0; ///< the sunrise after that
};

/// Twelve angles, house 1 first.
using HouseArray = std::array<double, 12>;

struct Chart
{
    // Identity.
    std::wstring name;
    std::wstring place;
    Identity identity;

    // Birth data.
    DateTimeRecord time;
    double zone = 0.0;         ///< hours, positive east of Greenwich
    int daylightSaving = 0;    ///< whole hours of saving time in force
    double geoLongitude = 0.0; ///< degrees, positive east
    double geoLatitude = 0.0;  ///< degrees, positive north
    std::wstring zoneText;
    std::wstring timeText;

    /// False for a chart of bare positions, of which neither moment nor place is known.
    bool hasMoment = true;

    // What belongs to the moment and the place.
    int integerJulianDay = 0;      ///< integer part of the Julian day of 0h local date
    double T = 1.0;                ///< Julian centuries from 1900 January 0.5, Delta T contained
    std::optional<double> sunrise; ///< local clock hours on the civil date; none near the poles
    std::optional<double> sunset;
    std::optional<VedicDay> vedicDay; ///< the day running at the moment; none near the poles
    int weekday = 1;                  ///< 1 = Sunday to 7 = Saturday
    double ayanamsa = 0.0;
    double nutation = 0.0; ///< nutation in longitude, degrees
    double cosObliquity = 1.0;
    double sinObliquity = 0.0;
    double otherLocalTime = 0.0;             ///< the second clock time, for searches; local hours
    double localSiderealTime = 0.0;          ///< hours
    double midheaven = 0.0;                  ///< sidereal degrees
    double ascendantRate = 0.0;              ///< degrees an hour, a step for searches only
    std::array<double, 2> quadrantArcs = {}; ///< Sri Pati: q1 and q2, degrees
    std::array<double, 2> quadrantFactors = {}; ///< Sri Pati: 90/q1 and 90/q2
    int houseSystem = -1;       ///< the system that filled the cusps; -1 before that
    bool hasSandhis = false;    ///< Placidus only
    HouseArray sandhis = {};    ///< bhava boundaries; negative where one does not exist
    bool cuspsComplete = false; ///< false when a cusp does not exist at this latitude

    // The point table.
    PointArray<double> longitude = {};       ///< sidereal degrees, 0 to under 360
    PointArray<double> speed = {};           ///< degrees per day
    PointArray<double> latitude = {};        ///< radians; the slot of point 0 holds the obliquity
    PointArray<double> distance = {};        ///< astronomical units
    PointArray<double> magnitude = {};       ///< visual magnitude, when switched on
    PointArray<double> phase = {};           ///< illuminated fraction, when switched on
    std::array<double, 13> declination = {}; ///< radians; see declinationSlot
    PointArray<Motion> motion = {};
    PointArray<bool> retrograde = {};

    // Sign data, filled from the longitudes.
    PointArray<int> rashi = {};                ///< 1 to 12
    PointArray<double> degreeInSign = {};      ///< 0 to under 30, negative when not computed
    PointArray<int> navamshaSign = {};         ///< 1 to 12
    PointArray<double> nakshatraPosition = {}; ///< 0 to under 27

    // What the analysis of the signs fills.
    VargaArray<PointArray<VargaPlacement>> vargas = {};
    VargaArray<PointArray<bool>> nearBoundary = {}; ///< placements close to a part's boundary
    /// Whether a placement was filled since the points were cleared. The two tables above are so
    /// large that clearing them costs a tenth of the positions of a chart.
    bool hasPlacements = false;
    /// Compound relationship in the rashi of planet (row) towards planet, -2 to 2, 3 for itself;
    /// indexes 1 to 7, row and column 0 are unused.
    std::array<std::array<int, 8>, 8> compound = {};
    /// Vimshopaka of the points for the sets Shodasha, Dasha, Sapta and Shad; planets 1 to 7 only.
    std::array<std::array<int, 4>, 10> vimshopaka = {};
    std::array<std::array<int, 4>, 10> vimshopakaPositional = {};
    PointArray<bool> combust = {};

    Chart();

    /// The obliquity of the ecliptic in radians.
    [[nodiscard]] double obliquity() const
    {
        return latitude[kAscendant];
    }

    /// Whether the point has a position in this chart.
    [[nodiscard]] bool computed(int point) const
    {
        return at(degreeInSign, point) >= 0.0;
    }

    /// Marks every point as not computed.
    void clearPoints();
};

} // namespace kestrav::core
