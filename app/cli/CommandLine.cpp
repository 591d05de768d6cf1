#include "app/cli/CommandLine.h"

#include "app/cli/Commands.h"
#include "app/cli/HelpText.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <memory>
#include <string_view>

namespace kestrav::cli
{

namespace
{

constexpr char kVersionText[] = "kestrav-cli " KESTRAV_VERSION "\n";

// The parsers of the program and its commands, made from the tables.
class Parser
{
public:
    Parser()
    {
        prepare(root_);
        root_.add_flag("--version", version_);
        for (const GroupInfo& group : commandGroups()) {
            nodes_[std::string(group.name)] = addNode(group.name);
        }
        for (const Command* const command : allCommands()) {
            addCommand(*command);
        }
    }

    core::Result<Request> parse(std::vector<std::string> words)
    {
        // The parser takes the words from the back.
        std::reverse(words.begin(), words.end());
        try {
            root_.parse(words);
        } catch (const CLI::CallForHelp&) {
            return textRequest(helpText(chosenName()));
        } catch (const CLI::ParseError& problem) {
            return usageError(problem.what());
        }
        if (version_) {
            return textRequest(kVersionText);
        }
        return request();
    }

private:
    struct Leaf
    {
        const Command* command;
        std::map<std::string, std::vector<std::string>> values;
        std::map<std::string, bool> switches;
    };

    static void prepare(CLI::App& app)
    {
        app.set_help_flag("-h,--help", "");
        app.require_subcommand(0, 1);
    }

    CLI::App* addNode(std::string_view path)
    {
        const std::size_t blank = path.rfind(' ');
        CLI::App& parent = blank == std::string_view::npos
                               ? root_
                               : *nodes_.at(std::string(path.substr(0, blank)));
        CLI::App* const node = parent.add_subcommand(
            std::string(blank == std::string_view::npos ? path : path.substr(blank + 1)));
        prepare(*node);
        return node;
    }

    void addCommand(const Command& command)
    {
        CLI::App* const node = addNode(command.info().name);
        Leaf& leaf = leaves_[node];
        leaf.command = &command;
        for (const PositionalInfo& positional : command.info().positionals) {
            const std::string name(positional.name);
            CLI::Option* const option = node->add_option(name, leaf.values[name]);
            // An optional one of at most one word would take none.
            const int least = positional.required || !positional.many ? 1 : 0;
            option->expected(least, positional.many ? kManyWords : 1);
            option->required(positional.required)->allow_extra_args(positional.many);
        }
        for (const std::span<const OptionInfo> group : command.info().optionGroups) {
            for (const OptionInfo& option : group) {
                addOption(*node, leaf, option);
            }
        }
    }

    static void addOption(CLI::App& node, Leaf& leaf, const OptionInfo& info)
    {
        const std::string name(info.name);
        if (info.valueName.empty()) {
            node.add_flag(name, leaf.switches[name]);
            return;
        }
        CLI::Option* const option = node.add_option(name, leaf.values[name]);
        option->type_name(std::string(info.valueName));
        option->allow_extra_args(false);
        if (info.repeatable) {
            option->expected(1, kManyWords)->allow_extra_args(false);
        } else {
            option->expected(1);
        }
    }

    // The name of the command or group that was typed; empty for the program itself.
    [[nodiscard]] std::string chosenName() const
    {
        std::string name;
        for (const CLI::App* node = chosenBelow(root_); node != nullptr;
             node = chosenBelow(*node)) {
            name += (name.empty() ? "" : " ") + node->get_name();
        }
        return name;
    }

    static const CLI::App* chosenBelow(const CLI::App& node)
    {
        const std::vector<const CLI::App*> chosen =
            node.get_subcommands([](const CLI::App* below) { return below->parsed(); });
        return chosen.empty() ? nullptr : chosen.front();
    }

    [[nodiscard]] core::Error usageError(const std::string& what) const
    {
        const std::string name = chosenName();
        return {what + " (see kestrav-cli " + name + (name.empty() ? "" : " ") + "--help)"};
    }

    static bool isOption(const Leaf& leaf, const std::string& word)
    {
        return word.starts_with("--") &&
               (leaf.values.count(word) != 0 || leaf.switches.count(word) != 0);
    }

    static Request textRequest(std::string text)
    {
        Request result;
        result.text = std::move(text);
        return result;
    }

    core::Result<Request> request()
    {
        const CLI::App* node = &root_;
        while (const CLI::App* const below = chosenBelow(*node)) {
            node = below;
        }
        const auto found = leaves_.find(node);
        if (found == leaves_.end()) {
            return usageError("no command was given");
        }
        const Leaf& leaf = found->second;
        Request result;
        result.command = leaf.command;
        for (const auto& [name, values] : leaf.values) {
            const auto option =
                std::find_if(values.begin(), values.end(),
                             [&](const std::string& value) { return isOption(leaf, value); });
            if (option != values.end()) {
                std::string what = name;
                what.append(" has no value before ").append(*option);
                return usageError(what);
            }
            result.arguments.store(name, values);
        }
        for (const auto& [name, given] : leaf.switches) {
            if (given) {
                result.arguments.store(name, {""});
            }
        }
        return result;
    }

    static constexpr int kManyWords = 1000;

    CLI::App root_;
    bool version_ = false;
    std::map<std::string, CLI::App*> nodes_;
    std::map<const CLI::App*, Leaf> leaves_;
};

} // namespace

core::Result<Request> parseCommandLine(const std::vector<std::string>& words)
{
    // "--name=" would take the next word as its value.
    const auto cutOff = std::find_if(words.begin(), words.end(), [](const std::string& word) {
        return word.starts_with("--") && word.find('=') == word.size() - 1;
    });
    if (cutOff != words.end()) {
        return core::Error{"there is no value after " + *cutOff};
    }
    return Parser().parse(words);
}

} // namespace kestrav::cli
