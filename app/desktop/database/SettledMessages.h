// Questions that the user has switched off, answered without being asked.
#pragma once

#include "core/Messages.h"
#include "core/Settings.h"

#include <string>
#include <utility>
#include <vector>

namespace kestrav::desktop
{

/// Passes everything on but the questions that the settings switch off, which are agreed to.
class SettledMessages : public core::Messages
{
public:
    SettledMessages(core::Messages& asked, const core::Settings& settings)
        : asked_(asked), settings_(settings)
    {}

    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override;

private:
    core::Messages& asked_;
    const core::Settings& settings_;
};

/// Notes what is said on a worker, where nobody can be asked; everything is agreed to for the time
/// being.
class NotedMessages : public core::Messages
{
public:
    struct Said
    {
        std::wstring caption;
        std::wstring text;
        core::Buttons buttons = core::Buttons::Ok;
    };

    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons buttons) override;

    [[nodiscard]] const std::vector<Said>& said() const
    {
        return said_;
    }

private:
    std::vector<Said> said_;
};

/// Shows what was noted. False as soon as the user answers Cancel.
bool repeat(const std::vector<NotedMessages::Said>& said, core::Messages& messages);

} // namespace kestrav::desktop
