// The command that makes the panchanga of days.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class PanchangaCommand : public Command
{
public:
    PanchangaCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
