// The command that draws chart diagrams.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

class DiagramCommand : public Command
{
public:
    DiagramCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
