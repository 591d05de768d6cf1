#include "timing/TransitListing.h"

#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/SignData.h"
#include "core/numeric.h"
#include "timing/TransitCombustion.h"
#include "timing/TransitSearch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace kestrav::timing
{

namespace
{

using core::at;

constexpr double kDaysPerStretch = 200.0; // between two calls of the watch
constexpr double kSameMoment = 1e-6;      // days
constexpr CurveShape kWithinDay{360.0, 0.125, false, 1e-6};

// The faster of two bodies stands before the other.
constexpr std::array<int, 12> kFastestFirst = {
    core::kMoon,   core::kMercury, core::kVenus, core::kSun,    core::kMars,    core::kJupiter,
    core::kSaturn, core::kRahu,    core::kKetu,  core::kUranus, core::kNeptune, core::kPluto};

bool isFaster(int body, int other)
{
    return std::find(kFastestFirst.begin(), kFastestFirst.end(), body) <
           std::find(kFastestFirst.begin(), kFastestFirst.end(), other);
}

bool contains(const std::vector<int>& points, int point)
{
    return std::find(points.begin(), points.end(), point) != points.end();
}

// The three sample charts of a day. The last of one day is the first of the next.
class SampleCharts
{
public:
    explicit SampleCharts(SiderealSky& sky) : sky_(sky)
    {
        for (std::unique_ptr<core::Chart>& chart : charts_) {
            chart = std::make_unique<core::Chart>();
        }
    }

    void setDay(double begin)
    {
        if (std::fabs(begin - end_) < kSameMoment) {
            std::swap(charts_[0], charts_[2]);
        } else {
            fill(*charts_[0], begin);
        }
        end_ = begin + 1.0;
        fill(*charts_[1], begin + 0.5);
        fill(*charts_[2], end_);
    }

    [[nodiscard]] std::array<const core::Chart*, 3> charts() const
    {
        return {charts_[0].get(), charts_[1].get(), charts_[2].get()};
    }

private:
    void fill(core::Chart& chart, double day) const
    {
        for (const int body : core::kBodies) {
            const SkyPosition position = sky_.position(body, day);
            analysis::storePoint(chart, body, position.longitude);
            at(chart.speed, body) = position.speed;
            at(chart.retrograde, body) = position.speed < 0.0;
        }
    }

    SiderealSky& sky_;
    std::array<std::unique_ptr<core::Chart>, 3> charts_;
    double end_ = core::kNotANumber;
};

class Listing
{
public:
    Listing(SiderealSky& sky, const core::Chart* native, const TransitOptions& options,
            const TransitDays& days, double clockOffset)
        : sky_(sky), options_(options), days_(days), clockOffset_(clockOffset),
          context_(makeTransitContext(sky.settings(), options.mode, native)), samples_(sky)
    {
        context_.aspectChoice = options.aspectChoice;
        context_.excludeUpagrahas = options.excludeUpagrahas;
    }

    // The days from 0h of `first` on.
    void addDays(double first, double count)
    {
        const double begin = first - clockOffset_ / 24.0;
        const TransitSearch search{sky_, {begin, begin + count}, clockOffset_};
        const auto sink = [this](const TransitEvent& event) {
            add(event);
        };
        for (const int body : options_.bodies) {
            if (!isExcludedBody(context_, body)) {
                addMotions(search, body, sink);
            }
        }
        if (options_.kinds.orbs) {
            forEachPair([&](int body, int target) {
                findOrbs(search, context_, target, body, options_.offsetDegrees,
                         options_.orbDegrees, sink);
            });
        }
        if (!options_.kinds.aspects) {
            return;
        }
        if (sky_.settings().allPasses) {
            forEachPair([&](int body, int target) {
                findAspects(search, context_, target, body, options_.offsetDegrees, sink);
            });
            return;
        }
        for (int day = 0; day < int(count); ++day) {
            addTestedDay(begin + day);
        }
    }

    [[nodiscard]] std::vector<TransitEvent> inOrder()
    {
        std::stable_sort(
            events_.begin(), events_.end(),
            [](const TransitEvent& a, const TransitEvent& b) { return a.julianDay < b.julianDay; });
        return std::move(events_);
    }

private:
    void addMotions(const TransitSearch& search, int body, TransitSink sink)
    {
        const std::array<std::pair<bool, TransitDivision>, 3> divisions = {
            {{options_.kinds.signs, TransitDivision::Sign},
             {options_.kinds.nakshatras, TransitDivision::Nakshatra},
             {options_.kinds.padas, TransitDivision::Pada}}};
        for (const auto& [wanted, division] : divisions) {
            if (wanted) {
                findIngresses(search, body, division, sink);
            }
        }
        if (options_.kinds.stations) {
            findStations(search, body, sink);
        }
        if (options_.kinds.combustion) {
            combustion_.find(search, body, sink);
        }
    }

    void forEachPair(FunctionRef<void(int body, int target)> visit) const
    {
        for (const int body : options_.bodies) {
            for (const int target : options_.targets) {
                visit(body, target);
            }
        }
    }

    // What the test of the day accepts, with its hours refined.
    void addTestedDay(double begin)
    {
        samples_.setDay(begin);
        context_.samples = samples_.charts();
        forEachPair([&](int body, int target) {
            const int house = TransitAspect(context_, target, body, options_.offsetDegrees);
            if (house > 0) {
                addTested(begin, body, target, house);
            }
        });
    }

    void addTested(double begin, int body, int target, int house)
    {
        const double day = refined(begin, body, target, house);
        const SkyPosition position = sky_.position(body, day);
        TransitEvent event;
        event.julianDay = day;
        event.kind = house == 1 ? TransitKind::Conjunction : TransitKind::Aspect;
        event.body = body;
        event.target = target;
        event.houseDistance = house;
        event.longitude = position.longitude;
        event.sign = core::signOfLongitude(position.longitude);
        event.backward = position.speed < 0.0;
        store(event);
    }

    // The moment of exactness nearest to the hour of the test; that hour itself when the body only
    // comes close.
    [[nodiscard]] double refined(double begin, int body, int target, int house) const
    {
        const double tested = begin + context_.hour / 24.0;
        const auto beyond = [&](double day) {
            const double place = options_.mode == TransitMode::Native
                                     ? at(context_.native->longitude, target)
                                     : sky_.longitude(target, day);
            return core::Normalize360(sky_.longitude(body, day) - place - options_.offsetDegrees -
                                      (house - 1) * 30.0);
        };
        double best = tested;
        double nearest = 1.0;
        forEachCrossing(beyond, kWithinDay, {begin, begin + 1.0}, Levels{},
                        [&](const Crossing& crossing) {
                            if (std::fabs(crossing.day - tested) < nearest) {
                                nearest = std::fabs(crossing.day - tested);
                                best = crossing.day;
                            }
                            return true;
                        });
        return best;
    }

    // Whether the same conjunction is listed under the faster body.
    [[nodiscard]] bool standsElsewhere(const TransitEvent& event) const
    {
        return options_.mode == TransitMode::TransitToTransit && event.houseDistance == 1 &&
               options_.offsetDegrees == 0 && isFaster(event.target, event.body) &&
               contains(options_.bodies, event.target) && contains(options_.targets, event.body) &&
               !isExcludedTransit(context_, event.body, event.target) &&
               isAspectChosen(context_, event.target, 1, event.sign, event.sign, event.sign);
    }

    void add(const TransitEvent& event)
    {
        if (!standsElsewhere(event)) {
            store(event);
        }
    }

    void store(TransitEvent event)
    {
        event.day0h =
            std::clamp(civilDayOf(event.julianDay, clockOffset_), days_.first, days_.last);
        event.hour = std::clamp((event.julianDay - event.day0h) * 24.0 + clockOffset_, 0.0, 24.0);
        events_.push_back(event);
    }

    SiderealSky& sky_;
    const TransitOptions& options_;
    const TransitDays& days_;
    double clockOffset_;
    TransitContext context_;
    SampleCharts samples_;
    CombustionSearch combustion_;
    std::vector<TransitEvent> events_;
};

} // namespace

std::vector<TransitEvent> listTransits(SiderealSky& sky, const core::Chart* native,
                                       const TransitOptions& options, const TransitDays& days,
                                       double clockOffset, TransitWatch goOn)
{
    sky.setClockOffset(clockOffset);
    Listing listing(sky, native, options, days, clockOffset);
    const double total = days.last - days.first + 1.0;
    for (double done = 0.0; done < total;) {
        const double count = std::fmin(kDaysPerStretch, total - done);
        listing.addDays(days.first + done, count);
        done += count;
        if (!goOn(std::size_t(done), std::size_t(total))) {
            break;
        }
    }
    return listing.inOrder();
}

std::vector<TransitEvent> listTransits(SiderealSky& sky, const core::Chart* native,
                                       const TransitOptions& options, const TransitDays& days,
                                       double clockOffset)
{
    return listTransits(sky, native, options, days, clockOffset,
                        [](std::size_t, std::size_t) { return true; });
}

} // namespace kestrav::timing
