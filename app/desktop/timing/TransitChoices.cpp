#include "app/desktop/timing/TransitChoices.h"

#include "app/desktop/shell/StateFile.h"
#include "core/Angles.h"
#include "core/Points.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr char kGroup[] = "transits/";
constexpr int kSaturnDays = 10958; ///< Saturn goes round once

QString keyOf(std::string_view name)
{
    return QLatin1String(kGroup) + QLatin1String(name.data(), qsizetype(name.size()));
}

QString pointList(const std::vector<int>& points)
{
    QStringList numbers;
    for (const int point : points) {
        numbers += QString::number(point);
    }
    return numbers.join(QLatin1Char(' '));
}

// The points that a remembered list names; what is no point is passed over.
std::vector<int> pointsOf(const QString& list)
{
    std::vector<int> points;
    for (const QString& number : list.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bool read = false;
        const int point = number.toInt(&read);
        if (read && point >= 0 && point < core::kPointCount) {
            points.push_back(point);
        }
    }
    return points;
}

} // namespace

TransitChoices TransitChoices::usual()
{
    TransitChoices choices;
    choices.options.bodies = present::movingBodies();
    std::erase(choices.options.bodies, int(core::kMoon));
    choices.options.targets = present::nativePoints(core::kKetu);
    return choices;
}

TransitChoices TransitChoices::kept()
{
    TransitChoices choices = usual();
    const QSettings& state = stateOfWindow();
    const auto number = [&state](std::string_view name, int standard, int lowest, int highest) {
        return core::ClampRange(lowest, highest, state.value(keyOf(name), standard).toInt());
    };
    const auto flag = [&state](std::string_view name, bool standard) {
        return state.value(keyOf(name), standard).toBool();
    };
    timing::TransitOptions& options = choices.options;
    if (state.contains(keyOf("bodies"))) {
        options.bodies = pointsOf(state.value(keyOf("bodies")).toString());
        std::erase_if(options.bodies, [](int point) { return !present::movesByItself(point); });
        options.targets = pointsOf(state.value(keyOf("targets")).toString());
    }
    options.mode = flag("transitToTransit", false) ? timing::TransitMode::TransitToTransit
                                                   : timing::TransitMode::Native;
    for (const auto& [name, member] : present::kTransitKinds) {
        options.kinds.*member = flag(name, options.kinds.*member);
    }
    options.aspectChoice =
        number("aspectChoice", options.aspectChoice, 0, timing::kGrahaAndSignAspects);
    options.orbDegrees =
        number("orb", options.orbDegrees, present::kNarrowestOrb, timing::kWidestOrb);
    choices.days = number("days", choices.days, 1, present::kMostTransitDays);
    choices.kakshyas = flag("kakshyas", choices.kakshyas);
    choices.sadeSati = flag("sadeSati", choices.sadeSati);
    return choices;
}

void TransitChoices::keep() const
{
    QSettings& state = stateOfWindow();
    state.setValue(keyOf("bodies"), pointList(options.bodies));
    state.setValue(keyOf("targets"), pointList(options.targets));
    state.setValue(keyOf("transitToTransit"),
                   options.mode == timing::TransitMode::TransitToTransit);
    for (const auto& [name, member] : present::kTransitKinds) {
        state.setValue(keyOf(name), options.kinds.*member);
    }
    state.setValue(keyOf("aspectChoice"), options.aspectChoice);
    state.setValue(keyOf("orb"), options.orbDegrees);
    state.setValue(keyOf("days"), days);
    state.setValue(keyOf("kakshyas"), kakshyas);
    state.setValue(keyOf("sadeSati"), sadeSati);
}

TransitLists listTransits(const TransitRequest& request, const WorkHandle& handle)
{
    TransitLists lists;
    timing::SiderealSky sky(request.data->series, request.settings, request.clock);
    timing::TransitOptions options = request.choices.options;
    const core::Chart* const native = request.native ? &request.native->chart : nullptr;
    if (native == nullptr) {
        options.mode = timing::TransitMode::TransitToTransit;
    }
    if (options.mode == timing::TransitMode::TransitToTransit) {
        std::erase_if(options.targets, [](int point) { return !present::movesByItself(point); });
    }
    lists.events = timing::listTransits(
        sky, native, options, {request.firstDay, request.firstDay + request.choices.days - 1},
        request.clock, [&handle](std::size_t done, std::size_t total) {
            handle.progress(done, total);
            return !handle.cancelled();
        });
    const double begin = request.firstDay - request.clock / 24.0;
    if (native != nullptr && request.choices.kakshyas && !handle.cancelled()) {
        std::vector<int> planets = options.bodies;
        std::erase_if(planets, [](int point) { return point > core::kSaturn; });
        lists.kakshyas =
            timing::transitKakshyas(sky, *native, planets, {begin, begin + request.choices.days});
    }
    if (native != nullptr && request.choices.sadeSati && native->computed(core::kMoon) &&
        !handle.cancelled()) {
        lists.phases = timing::sadeSati(sky, core::at(native->rashi, core::kMoon),
                                        {begin, begin + kSaturnDays});
    }
    return lists;
}

} // namespace kestrav::desktop
