// Reading the command line by the tables of the commands.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "core/Result.h"

#include <string>
#include <vector>

namespace kestrav::cli
{

/// What a command line asks for: a command with its arguments, or only a text.
struct Request
{
    const Command* command = nullptr; ///< null when there is only a text to print
    Arguments arguments;
    std::string text; ///< the help or the version
};

/// Reads the arguments after the program's name. The error says in one line what was wrong.
[[nodiscard]] core::Result<Request> parseCommandLine(const std::vector<std::string>& words);

} // namespace kestrav::cli
