// The commands that walk over every chart of a database.
#pragma once

#include "app/cli/DatabaseCommand.h"

namespace kestrav::cli
{

/// Reports the lines that are damaged.
class CheckDatabaseCommand : public DatabaseCommand
{
public:
    CheckDatabaseCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

/// Builds the research database again.
class RefreshResearchCommand : public DatabaseCommand
{
public:
    RefreshResearchCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

} // namespace kestrav::cli
