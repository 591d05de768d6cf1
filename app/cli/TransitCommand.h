// The command that lists transits.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class TransitsCommand : public Command
{
public:
    TransitsCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
