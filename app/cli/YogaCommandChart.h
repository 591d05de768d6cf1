// The commands that test yogas on one chart.
#pragma once

#include "app/cli/Command.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "core/Result.h"
#include "yoga/Subject.h"

#include <optional>

namespace kestrav::cli
{

/// Whether a second chart was typed.
[[nodiscard]] bool hasSecondChart(const Arguments& arguments);

/// The moment for running dashas: that of --at; nothing when there is a second chart with a moment
/// of its own; else the present.
[[nodiscard]] core::Result<std::optional<double>>
dashaMoment(const Arguments& arguments, const std::optional<ComputedChart>& second);

class FindYogasCommand : public Command
{
public:
    FindYogasCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class ExplainYogaCommand : public Command
{
public:
    ExplainYogaCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
