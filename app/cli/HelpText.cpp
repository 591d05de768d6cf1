#include "app/cli/HelpText.h"

#include "app/cli/Commands.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrav::cli
{

namespace
{

constexpr std::size_t kMeaningColumn = 30;
constexpr std::size_t kLineWidth = 80;

constexpr std::array<OptionInfo, 1> kHelpOption = {{{"--help", "", "show this help"}}};
constexpr std::array<OptionInfo, 1> kVersionOption = {{{"--version", "", "show the version"}}};

// "  left          right", the right side broken between words.
std::string entry(std::string_view left, std::string_view right)
{
    std::string text = "  " + std::string(left);
    std::size_t column = text.size();
    if (column + 2 > kMeaningColumn) {
        text += '\n';
        column = 0;
    }
    text.append(kMeaningColumn - column, ' ');
    column = kMeaningColumn;
    while (!right.empty()) {
        const std::size_t end = std::min(right.find(' '), right.size());
        if (column + end > kLineWidth && column > kMeaningColumn) {
            text.back() = '\n';
            text.append(kMeaningColumn, ' ');
            column = kMeaningColumn;
        }
        text.append(right.substr(0, end));
        text += ' ';
        column += end + 1;
        right.remove_prefix(std::min(end + 1, right.size()));
    }
    text.back() = '\n';
    return text;
}

std::string optionEntries(std::span<const OptionInfo> options)
{
    std::string text;
    for (const OptionInfo& option : options) {
        std::string left(option.name);
        if (!option.valueName.empty()) {
            left += " " + std::string(option.valueName);
        }
        text += entry(left, option.meaning);
    }
    return text;
}

std::string positionalUsage(const PositionalInfo& positional)
{
    const std::string word = std::string(positional.name) + (positional.many ? "..." : "");
    return positional.required ? word : "[" + word + "]";
}

std::string commandHelp(const CommandInfo& info)
{
    std::string text = "Usage: kestrav-cli " + std::string(info.name);
    for (const PositionalInfo& positional : info.positionals) {
        text += " " + positionalUsage(positional);
    }
    text += " [options]\n" + std::string(info.description) + ".\n";
    if (!info.positionals.empty()) {
        text += "\nArguments:\n";
        for (const PositionalInfo& positional : info.positionals) {
            text += entry(positional.name, positional.meaning);
        }
    }
    text += "\nOptions:\n";
    for (const std::span<const OptionInfo> group : info.optionGroups) {
        text += optionEntries(group);
    }
    return text + optionEntries(kHelpOption);
}

std::string commandList(std::string_view prefix)
{
    std::string text = "\nCommands:\n";
    for (const Command* const command : allCommands()) {
        const CommandInfo& info = command->info();
        if (info.name.starts_with(prefix)) {
            text += entry(info.name, info.description);
        }
    }
    return text;
}

std::string groupHelp(const GroupInfo& group)
{
    const std::string name(group.name);
    return "Usage: kestrav-cli " + name + " COMMAND [options]\n" + std::string(group.description) +
           ".\n" + commandList(name + " ") + "\nOptions:\n" + optionEntries(kHelpOption);
}

std::string programHelp()
{
    return "Usage: kestrav-cli COMMAND [options]\n"
           "Vedic astrology on the command line.\n" +
           commandList("") + "\nOptions:\n" + optionEntries(kHelpOption) +
           optionEntries(kVersionOption) +
           "\nkestrav-cli COMMAND --help shows the options of a command.\n";
}

} // namespace

std::string helpText(std::string_view name)
{
    for (const Command* const command : allCommands()) {
        if (command->info().name == name) {
            return commandHelp(command->info());
        }
    }
    for (const GroupInfo& group : commandGroups()) {
        if (group.name == name) {
            return groupHelp(group);
        }
    }
    return programHelp();
}

} // namespace kestrav::cli
