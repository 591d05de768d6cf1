// The commands on the research lines of a database: the search for a yoga, and tables.
#pragma once

#include "app/cli/DatabaseCommand.h"

namespace kestrav::cli
{

class SearchYogaCommand : public DatabaseCommand
{
public:
    SearchYogaCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

class ResearchTableCommand : public DatabaseCommand
{
public:
    ResearchTableCommand();

protected:
    [[nodiscard]] ExitCode work(DatabaseCall& call) const override;
};

} // namespace kestrav::cli
