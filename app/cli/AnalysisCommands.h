// The commands for what is derived from the positions: vargas, dignities, strengths, ashtakavarga,
// points.
#pragma once

#include "app/cli/ComputingCommand.h"

namespace kestrav::cli
{

class VargasCommand : public ComputingCommand
{
public:
    VargasCommand();

protected:
    [[nodiscard]] core::Result<void> check(const Arguments& arguments) const override;
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class DignitiesCommand : public ComputingCommand
{
public:
    DignitiesCommand();

protected:
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class StrengthsCommand : public ComputingCommand
{
public:
    StrengthsCommand();

protected:
    [[nodiscard]] core::Result<void> check(const Arguments& arguments) const override;
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class AshtakavargaCommand : public ComputingCommand
{
public:
    AshtakavargaCommand();

protected:
    [[nodiscard]] core::Result<void> check(const Arguments& arguments) const override;
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

class PointsCommand : public ComputingCommand
{
public:
    PointsCommand();

protected:
    void addJson(Json& object, const ComputedChart& computed,
                 const Arguments& arguments) const override;
    [[nodiscard]] std::wstring text(const ComputedChart& computed,
                                    const Arguments& arguments) const override;
};

} // namespace kestrav::cli
