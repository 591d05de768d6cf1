#include "app/cli/ConsoleMessages.h"

#include "app/cli/Progress.h"

#include <iostream>
#include <unistd.h>

namespace kestrav::cli
{

namespace
{

using core::Answer;
using core::Buttons;

bool atTerminal()
{
    return ::isatty(STDIN_FILENO) == 1 && ::isatty(STDERR_FILENO) == 1;
}

Answer agreement(Buttons buttons)
{
    return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
}

// The button that changes nothing.
Answer refusal(Buttons buttons)
{
    return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

std::wstring choices(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok:
        break;
    case Buttons::OkCancel:
        return L" [ok/cancel]";
    case Buttons::YesNo:
        return L" [yes/no]";
    case Buttons::YesNoCancel:
        return L" [yes/no/cancel]";
    }
    return {};
}

std::wstring word(Answer answer)
{
    switch (answer) {
    case Answer::Ok:
        return L"ok";
    case Answer::Cancel:
        return L"cancel";
    case Answer::Yes:
        return L"yes";
    case Answer::No:
        break;
    }
    return L"no";
}

// What was typed, by the beginning of its word.
Answer typedAnswer(const std::string& typed, Buttons buttons)
{
    const char first = typed.empty() ? ' ' : typed.front();
    if (first == 'y' || first == 'Y' || first == 'o' || first == 'O') {
        return agreement(buttons);
    }
    const bool no = first == 'n' || first == 'N';
    return no && buttons == Buttons::YesNoCancel ? Answer::No : refusal(buttons);
}

} // namespace

Answer ConsoleMessages::show(const std::wstring& caption, const std::wstring& text, Buttons buttons)
{
    if (progress_ != nullptr) {
        progress_->clear();
    }
    if (buttons == Buttons::Ok) {
        return console_.show(caption, text, buttons);
    }
    const bool beforehand = !question_.empty() && text == question_;
    if (beforehand || yes_) {
        const Answer answer = beforehand ? answer_ : agreement(buttons);
        console_.notice(caption, text + L" (" + word(answer) + L")");
        return answer;
    }
    if (atTerminal()) {
        console_.notice(caption, text + choices(buttons));
        std::string typed;
        std::getline(std::cin, typed);
        return typedAnswer(typed, buttons);
    }
    const Answer answer = refusal(buttons);
    console_.notice(caption, text + L" (" + word(answer) + L"; --yes agrees)");
    return answer;
}

} // namespace kestrav::cli
