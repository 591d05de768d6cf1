// The commands that change the charts of a database.
#pragma once

#include "app/cli/DatabaseCommand.h"

namespace kestrav::cli
{

/// Begins an empty database.
class NewDatabaseCommand : public DatabaseCommand
{
public:
    NewDatabaseCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Saves a typed chart.
class AddChartCommand : public DatabaseCommand
{
public:
    AddChartCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Changes what was typed of a chart.
class UpdateChartCommand : public DatabaseCommand
{
public:
    UpdateChartCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

class DeleteChartCommand : public DatabaseCommand
{
public:
    DeleteChartCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Decides which charts are group A or B.
class GroupChartsCommand : public DatabaseCommand
{
public:
    GroupChartsCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Saves the database in a date order.
class OrderDatesCommand : public DatabaseCommand
{
public:
    OrderDatesCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

} // namespace kestrav::cli
