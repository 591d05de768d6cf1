// The commands that show what a chart database holds.
#pragma once

#include "app/cli/DatabaseCommand.h"

namespace kestrav::cli
{

/// The charts in the order of the file.
class ListChartsCommand : public DatabaseCommand
{
public:
    ListChartsCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// The charts in the orders of the sort box, and by what the research database says about them.
class SortChartsCommand : public DatabaseCommand
{
public:
    SortChartsCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// One chart with everything that its line holds.
class ShowChartCommand : public DatabaseCommand
{
public:
    ShowChartCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

} // namespace kestrav::cli
