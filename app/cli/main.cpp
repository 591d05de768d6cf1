// kestrav-cli, the program for the terminal.
#include "app/cli/Command.h"
#include "app/cli/CommandLine.h"
#include "app/cli/Console.h"

#include <exception>
#include <string>
#include <vector>

namespace
{

using kestrav::cli::Console;
using kestrav::cli::ExitCode;

ExitCode runProgram(const std::vector<std::string>& words, Console& console)
{
    const auto request = kestrav::cli::parseCommandLine(words);
    if (!request) {
        console.error(request.error().text());
        return ExitCode::Usage;
    }
    ExitCode code = ExitCode::Done;
    if (request.value().command == nullptr) {
        console.print(request.value().text);
    } else {
        code = request.value().command->run(request.value().arguments, console);
    }
    const auto finished = console.finish();
    if (!finished && code == ExitCode::Done) {
        console.error(finished.error().text());
        code = ExitCode::Failed;
    }
    return code;
}

} // namespace

int main(int count, char** words)
{
    Console console;
    try {
        return int(runProgram({words + (count > 0 ? 1 : 0), words + count}, console));
    } catch (const std::exception& problem) {
        console.error(problem.what());
        return int(ExitCode::Failed);
    }
}
