// The one interface through which the program talks to its user.
#pragma once

#include <string>

namespace kestrav::core
{

enum class Buttons
{
    Ok,
    OkCancel,
    YesNo,
    YesNoCancel,
};

enum class Answer
{
    Ok,
    Cancel,
    Yes,
    No,
};

/// A message to the user and the question it may hold. The desktop answers with a modal box, the
/// command line with standard error, tests with prepared answers.
class Messages
{
public:
    virtual ~Messages() = default;

    /// Shows the plain text under its caption and returns the button that was chosen.
    virtual Answer show(const std::wstring& caption, const std::wstring& text, Buttons buttons) = 0;

    /// A message with nothing to choose.
    void notice(const std::wstring& caption, const std::wstring& text)
    {
        show(caption, text, Buttons::Ok);
    }
};

} // namespace kestrav::core
