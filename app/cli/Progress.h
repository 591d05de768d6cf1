// Long work in the terminal: a line that shows how far it is, and Ctrl+C that stops it.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <string>

namespace kestrav::cli
{

/// While it lives Ctrl+C asks the work to stop instead of ending the program; a second Ctrl+C ends
/// it. The line is written on standard error when that is a terminal, and taken away at the end.
/// One at a time, to be used from the thread that made it; `cancelFlag` may be read from any.
class Progress
{
public:
    /// What the line says when `done` of `total` parts are done; `total` is 0 when it is not known.
    using Text = std::function<std::wstring(std::size_t done, std::size_t total)>;

    explicit Progress(Text text);
    /// "label: done of total".
    explicit Progress(std::wstring label);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Shows how far the work is, at most ten times a second.
    void show(std::size_t done, std::size_t total);

    /// Takes the line away before something else is written.
    void clear();

    /// Whether Ctrl+C was pressed.
    [[nodiscard]] static bool cancelled();
    [[nodiscard]] static const std::atomic<bool>* cancelFlag();

private:
    using Clock = std::chrono::steady_clock;

    Text text_;
    bool terminal_;
    std::size_t shown_ = 0; ///< characters that stand in the line
    Clock::time_point next_{};
};

} // namespace kestrav::cli
