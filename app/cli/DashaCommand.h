// The command that lists the periods of a dasha.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class DashaCommand : public Command
{
public:
    DashaCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
