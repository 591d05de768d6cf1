// What the commands have in common that compute one chart.
#pragma once

#include "app/cli/Command.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"

#include <string>

namespace kestrav::cli
{

/// Computes the chart of the options and prints it as text or JSON, with the explanations that
/// --explain asks for at the end.
class ComputingCommand : public Command
{
public:
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const final;

protected:
    explicit ComputingCommand(CommandInfo info, PlaceNeed need = PlaceNeed::Required)
        : Command(std::move(info)), need_(need)
    {}

    /// Checks the options of the command itself before anything is computed.
    [[nodiscard]] virtual core::Result<void> check(const Arguments& arguments) const;

    /// Adds the pieces of the command to its JSON object.
    virtual void addJson(Json& object, const ComputedChart& computed,
                         const Arguments& arguments) const = 0;

    [[nodiscard]] virtual std::wstring text(const ComputedChart& computed,
                                            const Arguments& arguments) const = 0;

private:
    PlaceNeed need_;
};

} // namespace kestrav::cli
