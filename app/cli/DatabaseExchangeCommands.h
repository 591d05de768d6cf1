// The commands that bring charts from one file into another.
#pragma once

#include "app/cli/DatabaseCommand.h"

namespace kestrav::cli
{

/// Brings the charts of another database in.
class MergeDatabaseCommand : public DatabaseCommand
{
public:
    MergeDatabaseCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Adds the charts of foreign files.
class ImportChartsCommand : public DatabaseCommand
{
public:
    ImportChartsCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Writes the charts for other programs.
class ExportChartsCommand : public DatabaseCommand
{
public:
    ExportChartsCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

class BackUpDatabaseCommand : public DatabaseCommand
{
public:
    BackUpDatabaseCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

class RestoreDatabaseCommand : public DatabaseCommand
{
public:
    RestoreDatabaseCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

} // namespace kestrav::cli
