// The answers that a command gives to the questions of the program.
#pragma once

#include "app/cli/Console.h"
#include "core/Messages.h"

#include <string>
#include <string_view>

namespace kestrav::cli
{

class Progress;

/// Shows every message as one line on standard error. A question is answered with yes when --yes
/// was given, else by the user at the terminal, else with the button that changes nothing; what was
/// answered stands behind the question.
class ConsoleMessages : public core::Messages
{
public:
    ConsoleMessages(Console& console, bool yes) : console_(console), yes_(yes)
    {}

    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override;

    /// Answers this one question beforehand, whatever else would.
    void answerBeforehand(std::wstring_view question, core::Answer answer)
    {
        question_ = question;
        answer_ = answer;
    }

    /// The progress line that gives way to messages; null for none.
    void setProgress(Progress* progress)
    {
        progress_ = progress;
    }

private:
    Console& console_;
    bool yes_;
    std::wstring_view question_;
    core::Answer answer_ = core::Answer::Cancel;
    Progress* progress_ = nullptr;
};

} // namespace kestrav::cli
