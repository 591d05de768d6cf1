// The commands of the program.
#pragma once

#include "app/cli/Command.h"

#include <span>

namespace kestrav::cli
{

/// Every command in the order of the help.
[[nodiscard]] std::span<const Command* const> allCommands();

/// The words under which several commands stand.
[[nodiscard]] std::span<const GroupInfo> commandGroups();

} // namespace kestrav::cli
