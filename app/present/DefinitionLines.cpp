#include "app/present/DefinitionLines.h"

#include "core/FileText.h"
#include "core/NumberText.h"

#include <algorithm>

namespace kestrav::present
{

namespace
{

constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Takes the next word off the front.
std::string_view nextWord(std::string_view& text)
{
    text = trimmed(text);
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    text.remove_prefix(word.size());
    return word;
}

DefinitionLine splitLine(std::string_view text, long number)
{
    DefinitionLine line;
    line.number = number;
    line.word = nextWord(text);
    line.rest = trimmed(text);
    for (std::string_view word = nextWord(text); !word.empty(); word = nextWord(text)) {
        const std::size_t equals = word.find('=');
        if (equals == std::string_view::npos) {
            line.words.emplace_back(word);
        } else {
            line.options.emplace_back(word.substr(0, equals), word.substr(equals + 1));
        }
    }
    return line;
}

} // namespace

std::optional<std::string> DefinitionLine::option(std::string_view key) const
{
    const auto found = std::find_if(options.begin(), options.end(),
                                    [&](const auto& option) { return option.first == key; });
    return found == options.end() ? std::nullopt : std::optional(found->second);
}

core::Error definitionError(const DefinitionLine& line, const std::string& message)
{
    return {message, {}, line.number};
}

core::Result<std::vector<DefinitionLine>> readDefinition(std::string_view bytes,
                                                         std::string_view head)
{
    if (bytes.size() > kLongestDefinition) {
        return core::Error{"is longer than " + std::to_string(kLongestDefinition) + " bytes"};
    }
    if (!core::fromUtf8(bytes)) {
        return core::Error{"is no UTF-8 text"};
    }
    std::vector<DefinitionLine> lines;
    bool headSeen = false;
    long number = 0;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        const std::string_view text = trimmed(bytes.substr(0, end));
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
        ++number;
        if (!headSeen) {
            if (text != head) {
                return core::Error{"does not begin with '" + std::string(head) + "'", {}, number};
            }
            headSeen = true;
        } else if (!text.empty() && text.front() != '#') {
            if (lines.size() == kMostDefinitionLines) {
                return core::Error{
                    "has more than " + std::to_string(kMostDefinitionLines) + " lines", {}, number};
            }
            lines.push_back(splitLine(text, number));
        }
    }
    if (!headSeen) {
        return core::Error{"is empty"};
    }
    return lines;
}

core::Result<void> checkOptionKeys(const DefinitionLine& line,
                                   const std::vector<std::string_view>& known)
{
    for (const auto& [key, value] : line.options) {
        if (std::find(known.begin(), known.end(), key) == known.end()) {
            return definitionError(line, "'" + key + "' is no option of '" + line.word + "' here");
        }
    }
    return {};
}

core::Result<int> integerOption(const DefinitionLine& line, std::string_view key, int least,
                                int most, int byDefault)
{
    const std::optional<std::string> text = line.option(key);
    if (!text) {
        return byDefault;
    }
    const std::optional<int> value = core::parseInteger(*text);
    if (!value || *value < least || *value > most) {
        return definitionError(line, std::string(key) + "=" + *text + " is not a whole number " +
                                         std::to_string(least) + " to " + std::to_string(most));
    }
    return *value;
}

} // namespace kestrav::present
