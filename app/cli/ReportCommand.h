// The commands that write tables and reports in chosen forms.
#pragma once

#include "app/cli/Command.h"

namespace kestrav::cli
{

/// Tables of a chart by their names.
class TableCommand : public Command
{
public:
    TableCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

/// A report by a definition, or of chosen sections.
class ReportCommand : public Command
{
public:
    ReportCommand();
    [[nodiscard]] ExitCode run(const Arguments& arguments, Console& console) const override;
};

} // namespace kestrav::cli
