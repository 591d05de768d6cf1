#include "app/cli/PanchangaCommand.h"

#include "app/cli/AtlasPlaces.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/PanchangaCommandOptions.h"
#include "app/cli/PanchangaOutput.h"
#include "app/cli/Progress.h"
#include "app/cli/SharedOptions.h"
#include "timing/Panchanga.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <utility>

namespace kestrav::cli
{

namespace
{

// The clock of a place on each of many days.
class DayClock
{
public:
    explicit DayClock(const core::Chart& chart)
        : zone_(chart.zone), daylightSaving_(chart.daylightSaving)
    {}

    /// Looks zone and saving time up on every day, as far as they were not typed.
    [[nodiscard]] bool follow(const PlaceChoice& choice, const core::Settings& settings,
                              Console& console, ExitCode& code)
    {
        places_ = openPlaces(settings, console, code);
        if (!places_) {
            return false;
        }
        const core::Result<std::uint32_t> chosen = choosePlace(*places_, choice.text);
        if (!chosen) {
            console.error(chosen.error().text());
            code = ExitCode::Usage;
            return false;
        }
        place_ = chosen.value();
        zoneOfPlace_ = choice.zone;
        savingOfPlace_ = choice.daylightSaving;
        return true;
    }

    /// Hours before Universal Time at the noon of a date.
    [[nodiscard]] double offsetOn(double julianDay0h) const
    {
        double zone = zone_;
        int saving = daylightSaving_;
        if (places_) {
            core::DateTimeRecord noon = timing::recordOfDay(julianDay0h);
            noon.localTime = 12.0;
            const data::PlaceTime time =
                data::answerAt(*places_, places_->place(place_), noon).time;
            zone = zoneOfPlace_ ? time.zone : zone;
            saving = savingOfPlace_ ? time.daylightSaving : saving;
        }
        return zone + saving;
    }

private:
    double zone_;
    int daylightSaving_;
    std::optional<data::Places> places_;
    std::uint32_t place_ = 0;
    bool zoneOfPlace_ = false;
    bool savingOfPlace_ = false;
};

// The Moon of the native, if there is one.
struct Native
{
    std::optional<double> moon; ///< sidereal degrees
    bool signKnown = true;
};

std::optional<Native> findNative(const Arguments& arguments, const CallData& call, Console& console,
                                 ExitCode& code)
{
    Native native;
    if (hasNativeChart(arguments)) {
        const core::Result<BirthData> birth = readNative(arguments);
        if (!birth) {
            console.error(birth.error().text());
            code = ExitCode::Usage;
            return std::nullopt;
        }
        const std::optional<ComputedChart> chart = computeChart(call, birth.value(), console, code);
        if (!chart) {
            return std::nullopt;
        }
        native.moon = chart->chart.longitude[core::kMoon];
        return native;
    }
    const core::Result<std::optional<BirthStar>> star = readBirthStar(arguments);
    if (!star) {
        console.error(star.error().text());
        code = ExitCode::Usage;
        return std::nullopt;
    }
    if (star.value()) {
        native.moon = star.value()->moonLongitude;
        native.signKnown = star.value()->signKnown;
    }
    return native;
}

// The place of the days with its clock.
struct DayPlace
{
    ComputedChart chart;
    DayClock clock;
};

std::optional<DayPlace> findPlace(const CallData& call, const BirthData& birth, bool isSpan,
                                  Console& console, ExitCode& code)
{
    const std::optional<PlaceChoice> toFind = birth.placeToFind;
    std::optional<ComputedChart> chart = computeChart(call, birth, console, code);
    if (!chart) {
        return std::nullopt;
    }
    DayClock clock(chart->chart);
    if (isSpan && toFind && (toFind->zone || toFind->daylightSaving) &&
        !clock.follow(*toFind, call.settings, console, code)) {
        return std::nullopt;
    }
    return DayPlace{std::move(*chart), std::move(clock)};
}

// The days, or nothing when Ctrl+C was pressed.
std::optional<std::vector<timing::PanchangaDay>> makeDays(timing::Panchanga& panchanga,
                                                          const PanchangaDays& days,
                                                          const DayPlace& place,
                                                          const Native& native)
{
    std::vector<timing::PanchangaDay> made;
    if (days.atMoment) {
        made.push_back(panchanga.dayOf(place.chart.chart));
    } else {
        Progress progress(L"Days");
        const auto total = std::size_t(days.last - days.first + 1.0);
        astro::Observer observer = astro::observerOf(place.chart.chart);
        for (std::size_t i = 0; i < total; ++i) {
            const double day = days.first + double(i);
            observer.clockOffset = place.clock.offsetOn(day);
            made.push_back(panchanga.day(day, observer));
            progress.show(i + 1, total);
            if (Progress::cancelled()) {
                return std::nullopt;
            }
        }
    }
    if (!native.signKnown) {
        for (timing::PanchangaDay& day : made) {
            day.chandraBala.reset();
        }
    }
    return made;
}

} // namespace

PanchangaCommand::PanchangaCommand()
    : Command({"panchanga",
               "Make the panchanga of a day, a month or a span of days at a place",
               {},
               {kDayOptions, kPanchangaOptions, kNativeOptions, kSetOptions, kCommonOptions}})
{}

ExitCode PanchangaCommand::run(const Arguments& arguments, Console& console) const
{
    const auto usageError = [&console](const core::Error& error) {
        console.error(error.text());
        return ExitCode::Usage;
    };
    Arguments own = arguments;
    if (own.has("--native") && !own.has("--name") && !own.has("--line")) {
        own.store("--db", {}); // the database has the native only
    }
    const core::Result<PanchangaDays> days = readPanchangaDays(own);
    if (!days) {
        return usageError(days.error());
    }
    const core::Result<BirthData> birth = readBirthData(own, PlaceNeed::Required);
    if (!birth) {
        return usageError(birth.error());
    }
    ExitCode code = ExitCode::Done;
    const std::optional<CallData> call = openCall(arguments, console, code);
    const std::optional<Native> native =
        call ? findNative(arguments, *call, console, code) : std::nullopt;
    const std::optional<DayPlace> place =
        native ? findPlace(*call, birth.value(), days.value().isSpan, console, code) : std::nullopt;
    if (!place) {
        return code;
    }
    timing::Panchanga panchanga(call->data.series, call->settings);
    panchanga.setNative(native->moon);
    const auto made = makeDays(panchanga, days.value(), *place, *native);
    if (!made) {
        console.error("stopped");
        return ExitCode::Failed;
    }
    if (arguments.has("--json")) {
        Json object = commandObject(info().name);
        Json list = Json::array();
        for (const timing::PanchangaDay& day : *made) {
            list.push_back(panchangaDayJson(day));
        }
        object["days"] = std::move(list);
        console.print(jsonText(object));
        return ExitCode::Done;
    }
    const bool twelveHour = call->settings.twelveHourClock;
    console.print(panchangaPlaceText(place->chart, *made) + L"\n" +
                  (days.value().isSpan ? panchangaTableText(*made, twelveHour)
                                       : panchangaDayText(made->front(), twelveHour)));
    return ExitCode::Done;
}

} // namespace kestrav::cli
