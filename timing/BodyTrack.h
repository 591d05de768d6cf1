// The bodies at many moments: polynomial pieces of their positions in place of the full series.
#pragma once

#include "astro/Engine.h"
#include "core/Points.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kestrav::timing
{

/// Where a body stands, tropical, in the frame of the engine.
struct TrackedPosition
{
    double longitude = 0.0;     ///< degrees, 0 to under 360
    double latitude = 0.0;      ///< degrees
    double distance = 0.0;      ///< astronomical units; 0 for the nodes and the short Moon
    double speed = 0.0;         ///< degrees a day in longitude, the derivative at the moment
    double latitudeSpeed = 0.0; ///< degrees a day
};

/// Apparent positions of Sun to Ketu and Uranus to Pluto from Chebyshev pieces, which are built
/// from the series when a moment first needs them and kept for the next one. Longitudes and
/// latitudes agree with the series within 0.001 arc seconds (the rounding of a moment included), so
/// a search costs a few polynomials a step. The pieces lie on a fixed grid of time: what was asked
/// before never changes a result.
/// An object belongs to one thread. It holds up to 11 x 2048 pieces, 12 megabytes, and then
/// replaces old ones: a century of most bodies.
class BodyTrack
{
public:
    /// The series must outlive the object. `preciseMoon` chooses between the two lunar theories as
    /// the setting of that name does.
    BodyTrack(const astro::Series& series, bool preciseMoon);

    /// Longitude in degrees, 0 to under 360. `day` counts days of Terrestrial Time from 1900
    /// January 0.5 (a chart's T times 36525). Not-a-number for other points and for days that are
    /// not finite or lie further than 100 million away.
    [[nodiscard]] double longitude(int point, double day);

    /// Everything about the body at that day; not-a-number as above.
    [[nodiscard]] TrackedPosition position(int point, double day);

private:
    static constexpr std::size_t kMostCoefficients = 21;
    using Coefficients = std::array<double, kMostCoefficients>;

    // How the time of a body is cut, and the degree of its polynomials.
    struct Grid
    {
        double length; // days
        std::size_t degree;
    };

    // Polynomials on one interval of the grid, in x = -1..1.
    struct Piece
    {
        std::int64_t index = 0;
        Coefficients longitude = {};
        Coefficients latitude = {};
        Coefficients distance = {};
    };

    // The piece of a moment and the place in it.
    struct Place
    {
        const Piece* piece;
        Grid grid;
        double x;
    };

    struct Raw
    {
        double longitude;
        double latitude;
        double distance;
    };

    [[nodiscard]] static Grid gridOf(int point);
    [[nodiscard]] static bool isKnown(int point, double day);
    [[nodiscard]] Place placeOf(int point, double day);
    [[nodiscard]] Raw fromSeries(int point, double day);
    void build(Piece& piece, int point, double start, const Grid& grid);

    astro::EphemerisContext context_;
    bool preciseMoon_;
    // By point; Ketu has none, for it stands opposite to Rahu.
    std::array<std::vector<std::unique_ptr<Piece>>, std::size_t(core::kPluto) + 1> pieces_;
};

} // namespace kestrav::timing
