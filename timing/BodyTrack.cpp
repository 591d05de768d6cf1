#include "timing/BodyTrack.h"

#include "astro/Bodies.h"
#include "astro/Moon.h"
#include "astro/PreciseMoon.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace kestrav::timing
{

namespace
{

constexpr std::size_t kSlots = 1024; // pieces of one body that are kept
constexpr double kFurthestDay = 1e8; // of any use, and safe as a whole number

// Days of one piece: the longest power of two with which degree 14 follows the body within 0.0003
// arc seconds. The faster planets and the Sun are held back by the month in the Earth's motion.
double pieceLength(int point)
{
    switch (point) {
    case core::kMoon:
        return 8.0;
    case core::kSun:
    case core::kMercury:
    case core::kVenus:
    case core::kMars:
        return 16.0;
    case core::kRahu:
        return 128.0;
    default:
        return 32.0;
    }
}

bool isTracked(int point)
{
    return std::find(core::kBodies.begin(), core::kBodies.end(), point) != core::kBodies.end();
}

struct ValueAndSlope
{
    double value;
    double slope;
};

// Clenshaw's recurrence.
double chebyshev(std::span<const double> coefficients, double x)
{
    double b1 = 0.0;
    double b2 = 0.0;
    for (std::size_t k = coefficients.size() - 1; k > 0; --k) {
        const double b = 2.0 * x * b1 - b2 + coefficients[k];
        b2 = b1;
        b1 = b;
    }
    return x * b1 - b2 + coefficients[0];
}

// The same with its derivative carried along.
ValueAndSlope chebyshevWithSlope(std::span<const double> coefficients, double x)
{
    double b1 = 0.0;
    double b2 = 0.0;
    double d1 = 0.0;
    double d2 = 0.0;
    for (std::size_t k = coefficients.size() - 1; k > 0; --k) {
        const double b = 2.0 * x * b1 - b2 + coefficients[k];
        const double d = 2.0 * x * d1 - d2 + 2.0 * b1;
        b2 = b1;
        b1 = b;
        d2 = d1;
        d1 = d;
    }
    return {x * b1 - b2 + coefficients[0], x * d1 - d2 + b1};
}

} // namespace

BodyTrack::BodyTrack(const astro::Series& series, bool preciseMoon)
    : context_(series), preciseMoon_(preciseMoon)
{}

BodyTrack::Raw BodyTrack::fromSeries(int point, double day)
{
    const core::TimeArguments time = core::timeArguments(day / core::kDaysPerCentury);
    if (point == core::kRahu) {
        return {astro::shortMoon(time).node, 0.0, 0.0};
    }
    if (point == core::kMoon && !preciseMoon_) {
        const astro::ShortMoon moon = astro::shortMoon(time);
        return {moon.longitude, moon.latitude * core::kDegreesPerRadian, 0.0};
    }
    if (point == core::kMoon) {
        const astro::MoonPosition moon = astro::preciseMoon(time.T);
        return {moon.longitude, moon.latitude * core::kDegreesPerRadian, moon.distance};
    }
    context_.setTime(time);
    astro::PlanetPosition(context_, astro::codeOfPoint(point));
    const astro::BodyResult& body = context_.result;
    return {body.longitude, body.latitude * core::kDegreesPerRadian, body.distance};
}

void BodyTrack::build(Piece& piece, int point, double start, double length)
{
    // Samples at the extrema of the last polynomial, which include both ends, so that neighbouring
    // pieces meet.
    static const std::array<double, 2 * std::size_t(kDegree)> kCosines = [] {
        std::array<double, 2 * std::size_t(kDegree)> values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            values[i] = std::cos(core::kPi * double(i) / kDegree);
        }
        return values;
    }();
    std::array<Raw, kCoefficients> samples{};
    for (std::size_t j = 0; j < kCoefficients; ++j) {
        samples[j] = fromSeries(point, start + length * (kCosines[j] + 1.0) / 2.0);
        if (j == 0) {
            samples[j].longitude = core::Normalize360(samples[j].longitude);
        } else {
            const double before = samples[j - 1].longitude;
            samples[j].longitude = before + std::remainder(samples[j].longitude - before, 360.0);
        }
    }
    for (std::size_t k = 0; k < kCoefficients; ++k) {
        Raw sum{0.0, 0.0, 0.0};
        for (std::size_t j = 0; j < kCoefficients; ++j) {
            const double half = j == 0 || j == kDegree ? 0.5 : 1.0;
            const double weight = half * kCosines[(j * k) % kCosines.size()];
            sum.longitude += weight * samples[j].longitude;
            sum.latitude += weight * samples[j].latitude;
            sum.distance += weight * samples[j].distance;
        }
        const double scale = (k == 0 || k == kDegree ? 1.0 : 2.0) / kDegree;
        piece.longitude[k] = scale * sum.longitude;
        piece.latitude[k] = scale * sum.latitude;
        piece.distance[k] = scale * sum.distance;
    }
}

BodyTrack::Place BodyTrack::placeOf(int point, double day)
{
    if (!isTracked(point) || !(std::fabs(day) < kFurthestDay)) {
        return {};
    }
    const double length = pieceLength(point);
    const double cell = std::floor(day / length);
    const auto index = std::int64_t(cell);
    std::vector<std::unique_ptr<Piece>>& slots = core::at(pieces_, point);
    slots.resize(kSlots);
    // Two's complement keeps neighbours apart on both sides of day 0.
    std::unique_ptr<Piece>& slot = slots[std::size_t(index) % kSlots];
    if (!slot) {
        slot = std::make_unique<Piece>();
        slot->index = index + 1;
    }
    if (slot->index != index) {
        slot->index = index;
        build(*slot, point, cell * length, length);
    }
    return {slot.get(), (day / length - cell) * 2.0 - 1.0};
}

double BodyTrack::longitude(int point, double day)
{
    if (point == core::kKetu) {
        return core::Normalize360(longitude(core::kRahu, day) + 180.0);
    }
    const Place place = placeOf(point, day);
    return place.piece == nullptr ? core::kNotANumber
                                  : core::Normalize360(chebyshev(place.piece->longitude, place.x));
}

TrackedPosition BodyTrack::position(int point, double day)
{
    if (point == core::kKetu) {
        TrackedPosition node = position(core::kRahu, day);
        node.longitude = core::Normalize360(node.longitude + 180.0);
        return node;
    }
    const Place place = placeOf(point, day);
    if (place.piece == nullptr) {
        constexpr double kNone = core::kNotANumber;
        return {kNone, kNone, kNone, kNone, kNone};
    }
    const double perDay = 2.0 / pieceLength(point);
    const ValueAndSlope longitude = chebyshevWithSlope(place.piece->longitude, place.x);
    const ValueAndSlope latitude = chebyshevWithSlope(place.piece->latitude, place.x);
    return {core::Normalize360(longitude.value), latitude.value,
            chebyshev(place.piece->distance, place.x), longitude.slope * perDay,
            latitude.slope * perDay};
}

} // namespace kestrav::timing
