// The command that compares two charts for a marriage.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class MatchCommand : public Command
{
public:
    MatchCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
