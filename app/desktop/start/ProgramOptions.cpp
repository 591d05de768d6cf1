#include "app/desktop/start/ProgramOptions.h"

#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::desktop
{

namespace
{

// clang-format off
constexpr std::array<OptionInfo, 15> kOptions = {{
    {"--help", "", "print this help"},
    {"--version", "", "print the version"},
    {"--chart", "NAME", "show this chart of the database"},
    {"--page", "NAME", "show this page"},
    {"--new", "", "open the form of a new chart"},
    {"--now", "", "show the chart of the moment"},
    {"--settings", "FILE", "use this settings file"},
    {"--batch", "", "no wizard, no quick tip, nothing restored and no question at the end"},
    {"--screenshot", "NAME FILE", "write a picture of a page, form or dialog and end; 'list' prints their names"},
    {"--scheme", "NAME", "colours for this run: light or dark"},
    {"--scale", "FACTOR", "pixels to a point of the screen, 1 to 4"},
    {"--font-percent", "NUMBER", "size of the letters for this run, 50 to 300"},
    {"--size", "WIDTHxHEIGHT", "size of the window"},
    {"--print-completion", "SHELL", "print the completions for bash, zsh or fish"},
    {"-h", "", "the same as --help"},
}};
// clang-format on

constexpr double kLargestScale = 4.0;
constexpr std::size_t kHelpColumn = 30;

struct Word
{
    std::string name;
    std::optional<std::string> value; ///< behind '='
};

Word splitWord(const std::string& word)
{
    const std::size_t sign = word.find('=');
    if (word.rfind("--", 0) != 0 || sign == std::string::npos) {
        return {word, std::nullopt};
    }
    return {word.substr(0, sign), word.substr(sign + 1)};
}

core::Result<double> numberIn(const std::string& option, const std::string& text, double lowest,
                              double highest)
{
    const std::optional<double> number = core::parseNumber(text);
    if (!number || *number < lowest || *number > highest) {
        return core::Error{option + " '" + text + "' is not a number from " +
                           core::shortestNumber(lowest) + " to " + core::shortestNumber(highest)};
    }
    return *number;
}

class Parser
{
public:
    explicit Parser(const std::vector<std::string>& words) : words_(words)
    {}

    core::Result<ProgramOptions> parse()
    {
        bool onlyFiles = false;
        while (next_ < words_.size()) {
            const std::string& word = words_[next_++];
            if (onlyFiles || word.empty() || word.front() != '-') {
                options_.files.push_back(word);
            } else if (word == "--") {
                onlyFiles = true;
            } else if (const core::Result<void> taken = take(splitWord(word)); !taken) {
                return taken.error();
            }
        }
        return options_;
    }

private:
    core::Result<std::string> value(const Word& word)
    {
        if (word.value) {
            return *word.value;
        }
        if (next_ >= words_.size()) {
            return core::Error{word.name + " needs a value"};
        }
        return words_[next_++];
    }

    core::Result<void> takeText(const Word& word, std::optional<std::string>& into)
    {
        core::Result<std::string> text = value(word);
        if (!text) {
            return text.error();
        }
        into = std::move(text.value());
        return {};
    }

    core::Result<void> takeSwitch(const Word& word, bool& into)
    {
        if (word.value) {
            return core::Error{word.name + " takes no value"};
        }
        into = true;
        return {};
    }

    core::Result<void> takeNumber(const Word& word, double lowest, double highest, double& into)
    {
        const core::Result<std::string> text = value(word);
        if (!text) {
            return text.error();
        }
        const core::Result<double> number = numberIn(word.name, text.value(), lowest, highest);
        if (!number) {
            return number.error();
        }
        into = number.value();
        return {};
    }

    core::Result<void> takeScreenshot(const Word& word)
    {
        core::Result<void> taken = takeText(word, options_.screenshot);
        if (!taken || *options_.screenshot == "list") {
            return taken;
        }
        if (next_ >= words_.size()) {
            return core::Error{"--screenshot needs the name of a page and a file"};
        }
        options_.screenshotFile = words_[next_++];
        return {};
    }

    core::Result<void> takeScheme(const Word& word)
    {
        core::Result<void> taken = takeText(word, options_.scheme);
        if (taken && *options_.scheme != "light" && *options_.scheme != "dark") {
            return core::Error{"--scheme '" + *options_.scheme + "' is not light or dark"};
        }
        return taken;
    }

    core::Result<void> take(const Word& word)
    {
        const std::string& name = word.name;
        if (name == "--help" || name == "-h") {
            return takeSwitch(word, options_.help);
        }
        if (name == "--version") {
            return takeSwitch(word, options_.version);
        }
        if (name == "--batch") {
            return takeSwitch(word, options_.batch);
        }
        if (name == "--new") {
            return takeSwitch(word, options_.newChart);
        }
        if (name == "--now") {
            return takeSwitch(word, options_.now);
        }
        if (name == "--chart") {
            return takeText(word, options_.chart);
        }
        if (name == "--page") {
            return takeText(word, options_.page);
        }
        if (name == "--settings") {
            return takeText(word, options_.settingsFile);
        }
        if (name == "--size") {
            return takeText(word, options_.size);
        }
        if (name == "--print-completion") {
            return takeText(word, options_.completion);
        }
        if (name == "--screenshot") {
            return takeScreenshot(word);
        }
        if (name == "--scheme") {
            return takeScheme(word);
        }
        if (name == "--scale") {
            return takeNumber(word, 1.0, kLargestScale, options_.scale.emplace());
        }
        if (name == "--font-percent") {
            double percent = 100.0;
            core::Result<void> taken = takeNumber(word, 50.0, 300.0, percent);
            options_.fontPercent = int(std::lround(percent));
            return taken;
        }
        return core::Error{"unknown option '" + name + "'; try --help"};
    }

    const std::vector<std::string>& words_;
    std::size_t next_ = 0;
    ProgramOptions options_;
};

std::string bashScript()
{
    std::string names;
    for (const OptionInfo& option : kOptions) {
        names += (names.empty() ? "" : " ") + std::string(option.name);
    }
    // One name a line: those of files have blanks.
    return "# Completions of kestrav for bash.\n"
           "_kestrav()\n{\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} file\n"
           "    COMPREPLY=()\n"
           "    case $previous in\n"
           "    --scheme) COMPREPLY=($(compgen -W 'light dark' -- \"$current\")); return ;;\n"
           "    --print-completion)\n"
           "        COMPREPLY=($(compgen -W 'bash zsh fish' -- \"$current\")); return ;;\n"
           "    esac\n"
           "    if [[ $current == -* ]]; then\n"
           "        COMPREPLY=($(compgen -W '" +
           names +
           "' -- \"$current\"))\n"
           "        return\n"
           "    fi\n"
           "    while IFS= read -r file; do\n"
           "        if [[ -d $file || $file =~ \\.(ksc|dat|ksy|KSC|DAT|KSY)$ ]]; then\n"
           "            COMPREPLY+=(\"$file\")\n"
           "        fi\n"
           "    done < <(compgen -f -- \"$current\")\n"
           "}\n"
           "complete -o filenames -F _kestrav kestrav\n";
}

std::string zshValues(const OptionInfo& option)
{
    return option.name == "--scheme"             ? "(light dark)"
           : option.name == "--print-completion" ? "(bash zsh fish)"
                                                 : "_files";
}

std::string zshScript()
{
    std::string text = "#compdef kestrav\n# Completions of kestrav for zsh.\n_arguments \\\n";
    for (const OptionInfo& option : kOptions) {
        std::string meaning(option.meaning);
        std::replace(meaning.begin(), meaning.end(), '\'', '`');
        std::replace(meaning.begin(), meaning.end(), ':', ',');
        text += "    '" + std::string(option.name) + "[" + meaning + "]" +
                (option.value.empty() ? ""
                                      : ":" + std::string(option.value) + ":" + zshValues(option)) +
                "' \\\n";
    }
    return text + "    '*:file:_files -g \"*.(ksc|dat|ksy)\"'\n";
}

std::string fishScript()
{
    std::string text = "# Completions of kestrav for fish.\n";
    for (const OptionInfo& option : kOptions) {
        const bool isLong = option.name.rfind("--", 0) == 0;
        std::string meaning(option.meaning);
        std::replace(meaning.begin(), meaning.end(), '\'', '`');
        text += std::string("complete -c kestrav ") + (isLong ? "-l " : "-s ") +
                std::string(option.name.substr(isLong ? 2 : 1)) +
                (option.value.empty() ? "" : " -r") + " -d '" + meaning + "'\n";
    }
    return text;
}

} // namespace

std::span<const OptionInfo> optionTable()
{
    return kOptions;
}

core::Result<ProgramOptions> parseOptions(const std::vector<std::string>& words)
{
    return Parser(words).parse();
}

std::string helpText()
{
    std::string text =
        "Usage: kestrav [options] [files]\n\n"
        "Kestrav, Vedic (sidereal) astrology. Files are chart databases (.ksc, .dat) "
        "and yoga files\n(.ksy). The program for the terminal is kestrav-cli.\n\n"
        "Options:\n";
    for (const OptionInfo& option : kOptions) {
        std::string line = "  " + std::string(option.name) +
                           (option.value.empty() ? "" : " " + std::string(option.value));
        line.resize(std::max(line.size() + 2, kHelpColumn), ' ');
        text += line + std::string(option.meaning) + "\n";
    }
    return text;
}

std::string completionScript(std::string_view shell)
{
    return shell == "bash"   ? bashScript()
           : shell == "zsh"  ? zshScript()
           : shell == "fish" ? fishScript()
                             : std::string();
}

} // namespace kestrav::desktop
