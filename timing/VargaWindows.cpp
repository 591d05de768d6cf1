#include "timing/VargaWindows.h"

#include "analysis/AscendantAt.h"
#include "analysis/StorePoint.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"
#include "core/Points.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

constexpr double kSecond = 1.0 / 3600.0; // hours
constexpr double kTolerance = 0.1 * kSecond;
constexpr double kLongestStep = 5.0 / 60.0; // hours
constexpr double kShortestStep = 0.25 * kSecond;
constexpr double kReach = 24.0; // hours

// The ascendant of one varga from moment to moment.
class VargaAscendant
{
public:
    VargaAscendant(const core::Chart& chart, const core::Settings& settings, int varga)
        : chart_(chart), settings_(settings), varga_(varga), birth_(chart.time.localTime),
          sign_(signAt(birth_))
    {}

    [[nodiscard]] int sign() const
    {
        return sign_;
    }

    // The nearest change of sign before (-1) or after (1) birth.
    [[nodiscard]] std::optional<double> change(double direction)
    {
        // The ascendant may pass no whole part in a step. It jumps at no step near the poles only,
        // where the shortest step has to do.
        const double widest = 0.5 * analysis::partSpan(varga_);
        double hour = birth_;
        double longitude = ascendantAt(hour);
        double step = kLongestStep;
        while (std::fabs(hour - birth_) < kReach) {
            const double next = hour + direction * step;
            const double nextLongitude = ascendantAt(next);
            if (std::fabs(core::Wrap180(nextLongitude - longitude)) > widest &&
                step > kShortestStep) {
                step = std::fmax(kShortestStep, 0.5 * step);
                continue;
            }
            if (signAt(next) != sign_) {
                return between(hour, next);
            }
            hour = next;
            longitude = nextLongitude;
            step = std::fmin(kLongestStep, 1.5 * step);
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] double ascendantAt(double hour)
    {
        return analysis::ascendantAt(chart_, hour);
    }

    [[nodiscard]] int signAt(double hour)
    {
        const double longitude = ascendantAt(hour);
        analysis::storePoint(chart_, core::kAscendant, longitude);
        return analysis::divideInVarga(chart_, varga_, core::kAscendant, settings_).sign;
    }

    // Between a moment inside the window and one outside it.
    [[nodiscard]] double between(double inside, double outside)
    {
        while (std::fabs(outside - inside) > kTolerance) {
            const double middle = 0.5 * (inside + outside);
            (signAt(middle) == sign_ ? inside : outside) = middle;
        }
        return 0.5 * (inside + outside);
    }

    core::Chart chart_;
    const core::Settings& settings_;
    int varga_;
    double birth_;
    int sign_;
};

} // namespace

VargaWindows vargaWindows(const core::Chart& chart, const core::Settings& settings)
{
    VargaWindows windows;
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        VargaAscendant ascendant(chart, settings, varga);
        core::at(windows, varga) = {varga, ascendant.sign(), ascendant.change(-1.0),
                                    ascendant.change(1.0)};
    }
    return windows;
}

} // namespace kestrav::timing
