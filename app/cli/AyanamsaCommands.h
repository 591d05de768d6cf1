// The commands that show and change the table of ayanamsas.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class ListAyanamsasCommand : public Command
{
public:
    ListAyanamsasCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class SetAyanamsaCommand : public Command
{
public:
    SetAyanamsaCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

class ResetAyanamsasCommand : public Command
{
public:
    ResetAyanamsasCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
