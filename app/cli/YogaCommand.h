// What the commands on yogas have in common, and those that need no chart.
#pragma once

#include "app/cli/Command.h"
#include "app/cli/Console.h"
#include "core/Result.h"
#include "yoga/YogaLibrary.h"

#include <array>
#include <optional>
#include <string>

namespace kestrav::cli
{

/// The yoga files of a call.
inline constexpr std::array<OptionInfo, 1> kYogaFileOption = {{
    {"--file", "FILE",
     "a yoga file to take instead of the delivered ones and your own; may be repeated", true},
}};

/// One yoga.
inline constexpr std::array<OptionInfo, 2> kOneYogaOptions = {{
    {"--yoga", "TITLE", "the yoga of this title"},
    {"--rule", "TEXT", "a rule instead of a yoga, such as \"InHouse,,Jup,Moo,ken\""},
}};

/// The moment of running dashas.
inline constexpr std::array<OptionInfo, 1> kYogaMomentOption = {{
    {"--at", "DATE[THH:MM]",
     "moment in Universal Time for conditions on running dashas, or now; without it that of the "
     "second chart, or now"},
}};

/// Loads the files of --file, or the standard ones, of which a damaged one is only warned of.
/// Nothing after a failure, which has been reported with its exit code in `code`.
[[nodiscard]] std::optional<yoga::YogaLibrary> loadYogas(const Arguments& arguments,
                                                         Console& console, ExitCode& code);

/// The rule of --yoga or --rule.
struct ChosenRule
{
    std::string title; ///< empty for a typed rule
    std::string text;
    yoga::YogaRule rule;
};

/// Finds and reads it, after warnings about what probably is not meant. Nothing after a failure, as
/// above.
[[nodiscard]] std::optional<ChosenRule> chosenRule(const Arguments& arguments, Console& console,
                                                   ExitCode& code);

/// The Julian day of --at; nothing when it was not typed.
[[nodiscard]] core::Result<std::optional<double>> typedMoment(const Arguments& arguments);

/// The present Julian day.
[[nodiscard]] core::Result<double> presentJulianDay();

class ListYogasCommand : public Command
{
public:
    ListYogasCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class CheckYogasCommand : public Command
{
public:
    CheckYogasCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class YogaKindsCommand : public Command
{
public:
    YogaKindsCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
