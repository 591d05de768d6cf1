#include "timing/TransitAspect.h"

#include "core/Angles.h"
#include "core/numeric.h"
#include "timing/Interpolator.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

using core::at;

constexpr HouseMask kMovableSigns = 1170; // 1, 4, 7, 10
constexpr HouseMask kFixedSigns = 2340;   // 2, 5, 8, 11
constexpr HouseMask kDualSigns = 4680;    // 3, 6, 9, 12

constexpr double kMoonReach = 15.0;    // degrees before its exact place at 0h
constexpr double kReach = 2.0;         // the same of every other body
constexpr double kStationReach = 0.1;  // degrees within which a body need not cross
constexpr double kHoursPerSample = 12; // between the sample charts
constexpr std::size_t kMorning = 0;
constexpr std::size_t kEvening = 2;

constexpr HouseMask bit(int number)
{
    return 1 << number;
}

// The difference of target and body at one sample, cut into sectors of a sign.
struct Sector
{
    int number;     // 0 to 11
    double degrees; // within it
};

class Test
{
public:
    Test(const TransitContext& context, int target, int body, int offset)
        : context_(context), target_(target), body_(body), offset_(offset)
    {}

    [[nodiscard]] bool hasPositions() const
    {
        if (context_.mode == TransitMode::Native && context_.native == nullptr) {
            return false;
        }
        for (std::size_t k = 0; k < context_.samples.size(); ++k) {
            if (context_.samples[k] == nullptr || !context_.samples[k]->computed(body_) ||
                !targetChart(k).computed(target_)) {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] const core::Chart& targetChart(std::size_t sample) const
    {
        return context_.mode == TransitMode::Native ? *context_.native : *context_.samples[sample];
    }

    [[nodiscard]] double difference(std::size_t sample) const
    {
        return core::Normalize360(at(targetChart(sample).longitude, target_) -
                                  at(context_.samples[sample]->longitude, body_) + offset_);
    }

    [[nodiscard]] Sector sector(std::size_t sample) const
    {
        double whole = 0.0;
        const double part = std::modf(difference(sample) / 30.0, &whole);
        return {core::truncated(whole), part * 30.0};
    }

    [[nodiscard]] int houseDistance() const
    {
        return core::truncated(12.0 - difference(kMorning) / 30.0 + 0.5) % 12 + 1;
    }

    [[nodiscard]] bool isClose(double degrees) const
    {
        if (context_.mode == TransitMode::Native) {
            return degrees <= (body_ == core::kMoon ? kMoonReach : kReach);
        }
        return body_ == core::kMoon || degrees < kReach || degrees > 30.0 - kReach;
    }

    [[nodiscard]] bool isChosen(int house) const
    {
        return isAspectChosen(context_, body_, house, at(targetChart(kMorning).rashi, target_),
                              at(context_.samples[kMorning]->rashi, body_),
                              at(context_.samples[kEvening]->rashi, body_));
    }

    [[nodiscard]] double exactHour(int house) const
    {
        Interpolator curve;
        curve.setModulus(360.0);
        for (std::size_t k = 0; k < context_.samples.size(); ++k) {
            const double exactPlace = core::Normalize360(
                (house - 1) * 30.0 + at(targetChart(k).longitude, target_) + offset_);
            curve.add(kHoursPerSample * double(k),
                      at(context_.samples[k]->longitude, body_) - exactPlace);
        }
        return curve.solve();
    }

private:
    const TransitContext& context_;
    int target_;
    int body_;
    double offset_;
};

bool crosses(const Sector& morning, const Sector& evening)
{
    if (morning.number != evening.number) {
        return true;
    }
    return (morning.degrees < kStationReach && evening.degrees < kStationReach) ||
           (morning.degrees > 30.0 - kStationReach && evening.degrees > 30.0 - kStationReach);
}

bool isNode(int point)
{
    return point == core::kRahu || point == core::kKetu;
}

} // namespace

HouseMask AspectMask(int transitBody, int nodeAspectOption)
{
    switch (transitBody) {
    case core::kSun:
    case core::kMoon:
    case core::kMercury:
    case core::kVenus:
        return bit(1) + bit(7);
    case core::kMars:
        // The first and the tenth are meant. So a Mars a quarter of the circle ahead of a point, or
        // opposite to it, is no aspect.
        return bit(1) + bit(10);
    case core::kJupiter:
        return bit(1) + bit(5) + bit(7) + bit(9);
    case core::kSaturn:
        return bit(1) + bit(3) + bit(7) + bit(10);
    case core::kRahu:
    case core::kKetu:
        return bit(1) + bit(5) + bit(9) + (nodeAspectOption == 1 ? bit(2) : 0) +
               (nodeAspectOption == 2 ? bit(12) : 0);
    default:
        return 0;
    }
}

SignMasks signAspectMasksOf(int sign)
{
    switch (sign % 3) {
    case 1: // movable
        return {kFixedSigns - bit(sign + 1) + bit(sign), kFixedSigns - bit(2)};
    case 2: // fixed
        return {kMovableSigns - bit(sign - 1) + bit(sign), kDualSigns - bit(12)};
    default:
        return {kDualSigns, kMovableSigns};
    }
}

SignMasks SignAspectMasks(const core::Chart& chart, int point)
{
    return chart.computed(point) ? signAspectMasksOf(at(chart.rashi, point)) : SignMasks{};
}

TransitContext makeTransitContext(const core::Settings& settings, TransitMode mode,
                                  const core::Chart* native)
{
    TransitContext context;
    context.mode = mode;
    context.native = native;
    context.nodeOption = settings.nodeOption;
    context.nodeAspectOption = settings.nodeAspectOption;
    return context;
}

bool isExcludedBody(const TransitContext& context, int transitBody)
{
    // Uranus, Neptune and Pluto stand behind the upagrahas in the point index and go with them.
    if (context.excludeUpagrahas && transitBody > core::kKetu) {
        return true;
    }
    return (transitBody == core::kRahu && context.nodeOption == 2) ||
           (transitBody == core::kKetu && context.nodeOption >= 1);
}

bool isExcludedTransit(const TransitContext& context, int targetPoint, int transitBody)
{
    if (context.mode == TransitMode::TransitToTransit &&
        (targetPoint == core::kAscendant || targetPoint == transitBody ||
         (isNode(targetPoint) && isNode(transitBody)))) {
        return true;
    }
    return isExcludedBody(context, transitBody);
}

bool isAspectChosen(const TransitContext& context, int transitBody, int houseDistance,
                    int targetSign, int bodySignAt0h, int bodySignAt24h)
{
    const HouseMask graha = AspectMask(transitBody, context.nodeAspectOption);
    SignMasks masks = signAspectMasksOf(targetSign);
    switch (context.aspectChoice) {
    case kEveryHouse:
        return true;
    case kGrahaAspects:
    case kGrahaAspects4:
    case kGrahaAspects5:
        return containsHouse(graha, houseDistance);
    case kGrahaAndSignAspects:
        // The sum of the two numbers is meant, not the union of the sets: what both contain is
        // carried into the next bit. The set of signs is asked for a house-distance, too.
        masks.signs += graha;
        if (containsHouse(masks.signs, houseDistance)) {
            return true;
        }
        break;
    case kSignAspects:
        break;
    default:
        return false;
    }
    return (containsHouse(masks.signs, bodySignAt0h) ||
            containsHouse(masks.signs, bodySignAt24h)) &&
           containsHouse(masks.houses, houseDistance);
}

int TransitAspect(TransitContext& context, int targetPoint, int transitBody, int offsetDegrees)
{
    const Test test(context, targetPoint, transitBody, offsetDegrees);
    if (isExcludedTransit(context, targetPoint, transitBody) || !test.hasPositions()) {
        return 0;
    }
    const Sector morning = test.sector(kMorning);
    const int house = test.houseDistance();
    if (!test.isClose(morning.degrees) || !test.isChosen(house) ||
        !crosses(morning, test.sector(kEvening))) {
        return 0;
    }
    const double hour = test.exactHour(house);
    if (!(hour >= 0.0 && hour <= 24.0)) {
        return 0;
    }
    // The seventh from one node is the place of the other, which is not reported twice. The
    // distance remembered is that of any pair, so a seventh of another pair hides a node as well.
    if (isNode(targetPoint) && context.lastHouseDistance == 7) {
        return 0;
    }
    context.hour = hour;
    context.lastHouseDistance = house;
    return house;
}

} // namespace kestrav::timing
