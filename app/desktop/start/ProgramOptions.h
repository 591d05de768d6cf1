// The command line of the window's program.
#pragma once

#include "core/Result.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::desktop
{

/// One option; help, manual page and completions are made from or checked against this table.
struct OptionInfo
{
    std::string_view name;  ///< with its dashes
    std::string_view value; ///< what follows it, in capitals; empty for a switch
    std::string_view meaning;
};

[[nodiscard]] std::span<const OptionInfo> optionTable();

struct ProgramOptions
{
    bool help = false;
    bool version = false;
    bool batch = false;                    ///< no wizard, no tips, no session
    bool newChart = false;                 ///< opens the form of a new chart
    bool now = false;                      ///< shows the chart of the moment
    std::optional<std::string> completion; ///< bash, zsh or fish
    std::optional<std::string> settingsFile;
    std::optional<std::string> chart;      ///< name of the chart to show
    std::optional<std::string> page;       ///< name of the page to show
    std::optional<std::string> screenshot; ///< name of a page, form or dialog
    std::string screenshotFile;
    std::optional<std::string> scheme; ///< light or dark
    std::optional<double> scale;
    std::optional<int> fontPercent;
    std::optional<std::string> size; ///< WIDTHxHEIGHT
    std::vector<std::string> files;
};

/// The options of the words after the program's name. The error says what is not understood.
[[nodiscard]] core::Result<ProgramOptions> parseOptions(const std::vector<std::string>& words);

/// What --help prints.
[[nodiscard]] std::string helpText();

/// The completion script of a shell: bash, zsh or fish; empty for another.
[[nodiscard]] std::string completionScript(std::string_view shell);

} // namespace kestrav::desktop
