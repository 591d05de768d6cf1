// The command that lists eclipses.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class EclipsesCommand : public Command
{
public:
    EclipsesCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
