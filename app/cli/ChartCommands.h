// The commands that compute one chart: chart, positions, houses, sun.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class ChartCommand : public Command
{
public:
    ChartCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class PositionsCommand : public Command
{
public:
    PositionsCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class HousesCommand : public Command
{
public:
    HousesCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class SunCommand : public Command
{
public:
    SunCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
