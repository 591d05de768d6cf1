// The options of the transits command.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "core/Chart.h"
#include "core/Result.h"
#include "timing/TransitListing.h"

#include <array>
#include <optional>

namespace kestrav::cli
{

inline constexpr std::array<OptionInfo, 13> kTransitOptions = {{
    {"--from", "YYYY-MM-DD", "first day; today when not given"},
    {"--to", "YYYY-MM-DD", "last day, at most 200 years later; 30 days in all when not given"},
    {"--clock", "+H:MM[:SS]",
     "zone of the clock of the days; the zone of the birth when not given, without its saving "
     "time"},
    {"--mode", "NAME",
     "what transiting bodies are compared with: native, the points of the chart, or transit, the "
     "other transiting bodies, which needs no chart; native when not given"},
    {"--bodies", "LIST",
     "transiting bodies by name or index, with commas between them: Sun to Ketu, Uranus to Pluto; "
     "all when not given"},
    {"--targets", "LIST",
     "points that they are compared with, with commas between them, or all; Ascendant to Ketu when "
     "not given, all bodies in the transit mode"},
    {"--aspects", "NAME|INDEX",
     "aspects: every (house-distance), graha, sign, both, or index 0 to 5; graha when not given"},
    {"--kinds", "LIST",
     "kinds of events, with commas between them: aspects, orbs, signs, nakshatras, padas, "
     "stations, combustion, all, none; all but nakshatras and padas when not given"},
    {"--orb", "DEGREES", "orb whose entry and exit are listed, 1 to 14; 1 when not given"},
    {"--offset", "DEGREES",
     "whole degrees by which exact places are moved forward, -360 to 360; 0 when not given"},
    {"--no-upagrahas", "", "leave bodies above Ketu out, so Uranus, Neptune and Pluto as well"},
    {"--kakshyas", "", "add the kakshyas of the transiting planets with their bindus"},
    {"--sade-sati", "", "add Saturn's passages around the birth Moon that touch the days"},
}};

/// What is asked for, before the chart is known.
struct TransitRequest
{
    timing::TransitOptions options;
    timing::TransitDays days;    ///< both 0 when not typed; see transitDays
    std::optional<double> first; ///< --from
    std::optional<double> last;  ///< --to
    std::optional<double> clock; ///< hours east of Greenwich
    bool targetsTyped = false;
    bool kakshyas = false;
    bool sadeSati = false;

    /// Whether a native's chart is needed.
    [[nodiscard]] bool needsNative() const
    {
        return options.mode == timing::TransitMode::Native || kakshyas || sadeSati;
    }
};

/// Reads the options of the listing. The error names the option.
[[nodiscard]] core::Result<TransitRequest> readTransitRequest(const Arguments& arguments);

/// Whether any option of a chart besides its zone was given.
[[nodiscard]] bool namesChart(const Arguments& arguments);

/// Fills the days on a clock; where --from is not given they begin with the present one. The error
/// names the option.
[[nodiscard]] core::Result<void> settleTransitDays(TransitRequest& request, double clock);

/// Leaves targets out that the chart has no position of; the error names one that was typed.
[[nodiscard]] core::Result<void> settleTransitTargets(TransitRequest& request,
                                                      const core::Chart& native);

} // namespace kestrav::cli
