// The commands that show what the engine computes: chart, positions, houses, sun.
#pragma once

#include "app/cli/ComputingCommand.h"

namespace kestrav::cli
{

class ChartCommand : public ComputingCommand
{
public:
    ChartCommand();

protected:
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class PositionsCommand : public ComputingCommand
{
public:
    PositionsCommand();

protected:
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class HousesCommand : public ComputingCommand
{
public:
    HousesCommand();

protected:
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class SunCommand : public ComputingCommand
{
public:
    SunCommand();

protected:
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

} // namespace kestrav::cli
