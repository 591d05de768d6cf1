// The small text files that describe reports and pages: a first line with kind and version, then
// one thing a line, "word rest of the line". "#" begins a comment line.
#pragma once

#include "core/Result.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrav::present
{

/// Longest file that is read, in bytes, and most lines that mean something.
inline constexpr std::size_t kLongestDefinition = 65536;
inline constexpr std::size_t kMostDefinitionLines = 500;

struct DefinitionLine
{
    long number = 0; ///< of the line in the file, 1-based
    std::string word;
    std::string rest; ///< without blanks at its ends

    /// The words of the rest that have no "=".
    std::vector<std::string> words;
    /// The words of the rest that are "key=value".
    std::vector<std::pair<std::string, std::string>> options;

    [[nodiscard]] std::optional<std::string> option(std::string_view key) const;
};

/// The lines of a file that begins with `head`, such as "Kestrav report 1". The error names the
/// line.
[[nodiscard]] core::Result<std::vector<DefinitionLine>> readDefinition(std::string_view bytes,
                                                                       std::string_view head);

/// An error at a line.
[[nodiscard]] core::Error definitionError(const DefinitionLine& line, const std::string& message);

/// The first option of the line whose key is not among the known ones, as an error.
[[nodiscard]] core::Result<void> checkOptionKeys(const DefinitionLine& line,
                                                 const std::vector<std::string_view>& known);

/// A whole number in a range from an option; the default when the line does not have it.
[[nodiscard]] core::Result<int> integerOption(const DefinitionLine& line, std::string_view key,
                                              int least, int most, int byDefault);

} // namespace kestrav::present
