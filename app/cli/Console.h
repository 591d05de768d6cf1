// The terminal: results on standard output, messages on standard error.
#pragma once

#include "core/Messages.h"
#include "core/Result.h"

#include <string>
#include <string_view>

namespace kestrav::cli
{

/// Text is UTF-8 whatever the locale.
class Console : public core::Messages
{
public:
    /// Writes "caption: text" as one line on standard error. Nobody is there to answer, so a
    /// question is answered with the button that changes nothing.
    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override;

    /// One line on standard error, after "Error: " or "Warning: ".
    void error(std::string_view text);
    void warning(std::string_view text);

    /// Writes UTF-8 text to standard output.
    void print(std::string_view text);
    void print(std::wstring_view text);

    /// Makes sure that everything printed has arrived.
    [[nodiscard]] core::Result<void> finish();
};

} // namespace kestrav::cli
