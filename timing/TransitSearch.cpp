#include "timing/TransitSearch.h"

#include "core/Angles.h"
#include "core/SignData.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace kestrav::timing
{

namespace
{

using core::at;

constexpr double kSecondPart = 1e-6; // days, about a tenth of a second
constexpr double kPairStep = 1.0;    // days between samples of two bodies of which one is fast
constexpr double kSlowPairStep = 4.0;
constexpr std::size_t kFewHouses = 2;
constexpr double kLongestStay = 1500.0;   // days; Saturn stays up to 950 in a sign
constexpr double kVeryLongStay = 20000.0; // Pluto

double lengthOf(TransitDivision division)
{
    switch (division) {
    case TransitDivision::Nakshatra:
        return 360.0 / 27.0;
    case TransitDivision::Pada:
        return 360.0 / 108.0;
    case TransitDivision::Sign:
    case TransitDivision::None:
        break;
    }
    return 30.0;
}

// The part that begins after a crossing of its boundary.
int partAfter(const Crossing& crossing, int parts)
{
    return crossing.rising ? crossing.level : (crossing.level + parts - 1) % parts;
}

bool isSlow(int body)
{
    return body != core::kSun && body != core::kMoon && body != core::kMercury &&
           body != core::kVenus;
}

TransitEvent eventAt(const TransitSearch& search, int body, double day, TransitKind kind)
{
    const SkyPosition position = search.sky.position(body, day);
    TransitEvent event;
    event.julianDay = day;
    event.kind = kind;
    event.body = body;
    event.longitude = position.longitude;
    event.sign = core::signOfLongitude(position.longitude);
    event.backward = position.speed < 0.0;
    return event;
}

// A target and a body: the curve whose value is 30 x (house-distance - 1) at an exact aspect.
class Pair
{
public:
    Pair(const TransitSearch& search, const TransitContext& context, int target, int body,
         int offset)
        : search_(search), context_(context), target_(target), body_(body), offset_(offset)
    {}

    [[nodiscard]] bool isTested() const
    {
        return !isExcludedTransit(context_, target_, body_) &&
               (!isNative() || (context_.native != nullptr && context_.native->computed(target_)));
    }

    // Calls `visit` for every moment at which the body is `beyond` degrees past the exact place of
    // a house-distance that the aspect choice can contain, and perhaps of others. A few places are
    // cheaper to search one by one, many of them in one walk.
    void walk(double beyond, FunctionRef<void(const Crossing&, int)> visit) const
    {
        const auto curve = [this](double day) {
            return core::Normalize360(search_.sky.longitude(body_, day) - targetLongitude(day) -
                                      offset_);
        };
        const CurveShape shape =
            isNative() ? transitShape(body_) : transitPairShape(body_, target_);
        const auto visitAll = [&](Levels levels, int firstHouse) {
            forEachCrossing(curve, shape, search_.span, levels, [&](const Crossing& found) {
                visit(found, firstHouse + found.level);
                return true;
            });
        };
        const std::vector<int> houses = possibleHouses();
        if (houses.size() > kFewHouses) {
            visitAll({beyond, 30.0}, 1);
            return;
        }
        for (const int house : houses) {
            visitAll({core::Normalize360((house - 1) * 30.0 + beyond), 0.0}, house);
        }
    }

    [[nodiscard]] bool isChosenOnDay(int house, double day) const
    {
        const double begin = civilDayOf(day, search_.clockOffset) - search_.clockOffset / 24.0;
        return isAspectChosen(context_, body_, house, signOf(targetLongitude(begin)),
                              signOf(search_.sky.longitude(body_, begin)),
                              signOf(search_.sky.longitude(body_, begin + 1.0)));
    }

    // By the sign of the exact place.
    [[nodiscard]] bool isChosenAtPlace(int house, double day) const
    {
        const double target = targetLongitude(day);
        const int sign = signOf(core::Normalize360(target + offset_ + (house - 1) * 30.0));
        return isAspectChosen(context_, body_, house, signOf(target), sign, sign);
    }

    [[nodiscard]] TransitEvent event(double day, int house, TransitKind kind) const
    {
        TransitEvent event = eventAt(search_, body_, day, kind);
        event.target = target_;
        event.houseDistance = house;
        return event;
    }

private:
    [[nodiscard]] static int signOf(double longitude)
    {
        return core::signOfLongitude(longitude);
    }

    [[nodiscard]] bool isNative() const
    {
        return context_.mode == TransitMode::Native;
    }

    // The house-distances that the aspect choice allows, wherever the two stand.
    [[nodiscard]] std::vector<int> possibleHouses() const
    {
        const bool byGraha = context_.aspectChoice == kGrahaAspects ||
                             context_.aspectChoice == kGrahaAspects4 ||
                             context_.aspectChoice == kGrahaAspects5;
        const HouseMask mask = AspectMask(body_, context_.nodeAspectOption);
        std::vector<int> houses;
        for (int house = 1; house <= 12; ++house) {
            if (!byGraha || containsHouse(mask, house)) {
                houses.push_back(house);
            }
        }
        return houses;
    }

    [[nodiscard]] double targetLongitude(double day) const
    {
        return isNative() ? at(context_.native->longitude, target_)
                          : search_.sky.longitude(target_, day);
    }

    const TransitSearch& search_;
    const TransitContext& context_;
    int target_;
    int body_;
    double offset_;
};

} // namespace

CurveShape transitShape(int body)
{
    // Days in which the body moves less than half a circle and, where it turns at all, turns at
    // most once in three of them: Mercury is retrograde for 19 days or more, Venus for 40.
    switch (body) {
    case core::kSun:
        return {360.0, 10.0, true, kSecondPart};
    case core::kMoon:
        return {360.0, 2.0, true, kSecondPart};
    case core::kMercury:
        return {360.0, 4.0, false, kSecondPart};
    case core::kVenus:
        return {360.0, 8.0, false, kSecondPart};
    case core::kMars:
        return {360.0, 10.0, false, kSecondPart};
    case core::kRahu:
    case core::kKetu:
        return {360.0, 50.0, true, kSecondPart};
    default:
        return {360.0, 20.0, false, kSecondPart};
    }
}

CurveShape transitPairShape(int body, int other)
{
    if (body == core::kMoon || other == core::kMoon) {
        return transitShape(core::kMoon); // the Moon outruns every other body
    }
    const bool slow = isSlow(body) && isSlow(other);
    return {360.0, slow ? kSlowPairStep : kPairStep, false, kSecondPart};
}

double civilDayOf(double julianDay, double clockOffset)
{
    return std::floor(julianDay + clockOffset / 24.0 - 0.5) + 0.5;
}

void findIngresses(const TransitSearch& search, int body, TransitDivision division,
                   TransitSink sink)
{
    const auto curve = [&](double day) {
        return search.sky.longitude(body, day);
    };
    const double length = lengthOf(division);
    const int parts = int(std::lround(360.0 / length));
    forEachCrossing(
        curve, transitShape(body), search.span, {0.0, length}, [&](const Crossing& crossing) {
            TransitEvent event = eventAt(search, body, crossing.day, TransitKind::Ingress);
            event.division = division;
            event.part = partAfter(crossing, parts);
            // On the boundary the position itself does not tell the two parts apart.
            event.sign = core::signOfLongitude((event.part + 0.5) * length);
            event.backward = !crossing.rising;
            sink(event);
            return true;
        });
}

void findStations(const TransitSearch& search, int body, TransitSink sink)
{
    const CurveShape shape = transitShape(body);
    if (shape.monotone) {
        return;
    }
    const auto curve = [&](double day) {
        return search.sky.tropicalLongitude(body, day);
    };
    for (const TurningPoint& turn : turningPointsIn(curve, shape, search.span)) {
        TransitEvent event = eventAt(search, body, turn.day, TransitKind::Station);
        event.backward = turn.highest;
        sink(event);
    }
}

void findAspects(const TransitSearch& search, const TransitContext& context, int target, int body,
                 int offsetDegrees, TransitSink sink)
{
    const Pair pair(search, context, target, body, offsetDegrees);
    if (!pair.isTested()) {
        return;
    }
    pair.walk(0.0, [&](const Crossing& crossing, int house) {
        if (pair.isChosenOnDay(house, crossing.day)) {
            sink(pair.event(crossing.day, house,
                            house == 1 ? TransitKind::Conjunction : TransitKind::Aspect));
        }
    });
}

void findOrbs(const TransitSearch& search, const TransitContext& context, int target, int body,
              int offsetDegrees, int orbDegrees, TransitSink sink)
{
    const Pair pair(search, context, target, body, offsetDegrees);
    if (!pair.isTested() || orbDegrees < 1 || orbDegrees > kWidestOrb) {
        return;
    }
    for (const bool before : {true, false}) {
        const double beyond = before ? -orbDegrees : orbDegrees;
        pair.walk(beyond, [&](const Crossing& crossing, int house) {
            if (pair.isChosenAtPlace(house, crossing.day)) {
                sink(pair.event(crossing.day, house,
                                crossing.rising == before ? TransitKind::OrbEnter
                                                          : TransitKind::OrbLeave));
            }
        });
    }
}

std::vector<TransitStay> staysIn(SiderealSky& sky, int body, double degrees, Span span)
{
    std::vector<TransitStay> stays;
    const auto curve = [&](double day) {
        return sky.longitude(body, day);
    };
    const CurveShape shape = transitShape(body);
    const Levels levels{0.0, degrees};
    const int parts = int(std::lround(360.0 / degrees));
    const double longest = body >= core::kUranus ? kVeryLongStay : kLongestStay;
    const auto entry = lastCrossing(curve, shape, {span.from - longest, span.from}, levels);
    if (!entry || !(span.from < span.to)) {
        return stays;
    }
    TransitStay stay{partAfter(*entry, parts), entry->day, entry->day, !entry->rising};
    forEachCrossing(
        curve, shape, {span.from, span.to + longest}, levels, [&](const Crossing& crossing) {
            stay.end = crossing.day;
            stays.push_back(stay);
            stay = {partAfter(crossing, parts), crossing.day, crossing.day, !crossing.rising};
            return crossing.day < span.to;
        });
    return stays;
}

} // namespace kestrav::timing
