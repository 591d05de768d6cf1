#include "timing/ConditionalDashas.h"

#include "analysis/DayParts.h"
#include "analysis/DignityTables.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

#include <optional>

namespace kestrav::timing
{

namespace
{

using analysis::signLord;
using core::at;
using core::norm12;

// A chart's points as the conditions ask for them. The lords are those without nodes.
class Native
{
public:
    Native(const core::Chart& chart, const core::Settings& settings)
        : chart_(chart), settings_(settings)
    {}

    [[nodiscard]] int sign(int point) const
    {
        return at(chart_.rashi, point);
    }
    // The sign of a house of the chart, counted by signs.
    [[nodiscard]] int houseSign(int house) const
    {
        return norm12(sign(core::kAscendant) + house - 1);
    }
    [[nodiscard]] int ascendantIn(int varga) const
    {
        return analysis::divideInVarga(chart_, varga, core::kAscendant, settings_).sign;
    }
    // The first half of an odd sign and the second of an even one are the Sun's.
    [[nodiscard]] bool ascendantInSunsHora() const
    {
        const bool odd = sign(core::kAscendant) % 2 != 0;
        return (chart_.degreeInSign[core::kAscendant] < 15.0) == odd;
    }
    [[nodiscard]] bool brightHalf() const
    {
        return core::Normalize360(chart_.longitude[core::kMoon] - chart_.longitude[core::kSun]) <
               180.0;
    }

    [[nodiscard]] bool astottari() const
    {
        const int lord = signLord(sign(core::kAscendant));
        const int house = norm12(sign(core::kRahu) - sign(lord) + 1);
        const bool kendraOrTrine = (house - 1) % 3 == 0 || (house - 1) % 4 == 0;
        return sign(core::kRahu) != sign(core::kAscendant) && kendraOrTrine;
    }
    [[nodiscard]] bool dwadashottari() const
    {
        return signLord(ascendantIn(core::kNavamsha)) == core::kVenus;
    }
    [[nodiscard]] bool panchottari() const
    {
        constexpr int kCancer = 4;
        return sign(core::kAscendant) == kCancer && ascendantIn(core::kDwadashamsha) == kCancer;
    }
    [[nodiscard]] bool chaturashiti() const
    {
        return sign(signLord(houseSign(10))) == houseSign(10);
    }
    [[nodiscard]] bool dwisaptati(bool lordInAscendant) const
    {
        const int lord = signLord(houseSign(1));
        return sign(lord) == houseSign(7) || sign(signLord(houseSign(7))) == houseSign(1) ||
               (lordInAscendant && sign(lord) == houseSign(1));
    }
    [[nodiscard]] bool shatTrimshat() const
    {
        const std::optional<bool> night = analysis::isNight(chart_);
        return night && *night != ascendantInSunsHora();
    }

private:
    const core::Chart& chart_;
    const core::Settings& settings_;
};

bool pointsComputed(const core::Chart& chart)
{
    for (int point = core::kAscendant; point <= core::kRahu; ++point) {
        if (!chart.computed(point)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool dashaApplies(const core::Chart& chart, const core::Settings& settings,
                  const DashaOptions& options, int system)
{
    if (system < kConditionalDashas.front() || system > kConditionalDashas.back()) {
        return true;
    }
    if (!pointsComputed(chart)) {
        return false;
    }
    const Native native(chart, settings);
    switch (system) {
    case kAstottari:
        return native.astottari();
    case kShodsottari:
        return native.ascendantInSunsHora() == native.brightHalf();
    case kDwadashottari:
        return native.dwadashottari();
    case kPanchottari:
        return native.panchottari();
    case kShatabdika:
        return native.ascendantIn(core::kNavamsha) == native.sign(core::kAscendant);
    case kChaturashitiSama:
        return native.chaturashiti();
    case kDwisaptatiSama:
        return native.dwisaptati(options.dwisaptatiLordInAscendant);
    case kShastihayani:
        return native.sign(core::kSun) == native.sign(core::kAscendant);
    default:
        return native.shatTrimshat();
    }
}

} // namespace kestrav::timing
