// A command of the program: what it is called, which options it takes, and what it does.
#pragma once

#include "app/cli/Arguments.h"

#include <span>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

class Console;

enum class ExitCode : int
{
    Done = 0,   ///< the command did what it says
    Failed = 1, ///< a file is missing, damaged, unreadable or cannot be written
    Usage = 2,  ///< what was typed cannot be carried out
};

/// One option. The parser, the help texts and the checks of the manual all read this table.
struct OptionInfo
{
    std::string_view name;        ///< with its dashes
    std::string_view valueName{}; ///< what follows it; empty for a switch
    std::string_view meaning{};
    bool repeatable = false;
};

/// One argument that is told by its place.
struct PositionalInfo
{
    std::string_view name;
    std::string_view meaning;
    bool required = true;
    bool many = false; ///< takes all the words that follow
};

struct CommandInfo
{
    std::string_view name; ///< one word, or several for a command inside a group
    std::string_view description;
    std::vector<PositionalInfo> positionals{};
    std::vector<std::span<const OptionInfo>> optionGroups{};
};

/// A word under which several commands stand.
struct GroupInfo
{
    std::string_view name; ///< its words
    std::string_view description;
};

class Command
{
public:
    explicit Command(CommandInfo info) : info_(std::move(info))
    {}
    virtual ~Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    [[nodiscard]] const CommandInfo& info() const
    {
        return info_;
    }

    /// Carries the command out. Results go to the console's output, everything else in one line
    /// each to its messages.
    [[nodiscard]] virtual ExitCode run(const Arguments& arguments, Console& console) const = 0;

private:
    CommandInfo info_;
};

} // namespace kestrav::cli
