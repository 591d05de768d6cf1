#include "app/cli/Progress.h"

#include "core/FileText.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <unistd.h>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::chrono::milliseconds kBetweenLines{100};

// A signal handler can reach nothing that is not global.
std::atomic<bool> cancelRequested{false};
static_assert(std::atomic<bool>::is_always_lock_free);
struct sigaction previousAction;

extern "C" void requestCancel(int /*signal*/)
{
    cancelRequested.store(true, std::memory_order_relaxed);
}

void writeLine(const std::wstring& text)
{
    const std::string bytes = core::toUtf8(text);
    std::fwrite(bytes.data(), 1, bytes.size(), stderr);
    std::fflush(stderr);
}

} // namespace

Progress::Progress(Text text) : text_(std::move(text)), terminal_(::isatty(STDERR_FILENO) == 1)
{
    cancelRequested = false;
    struct sigaction action = {};
    action.sa_handler = requestCancel;
    sigemptyset(&action.sa_mask);
    // The handler is good for one Ctrl+C, so that the second has its usual effect.
    action.sa_flags = static_cast<int>(static_cast<unsigned>(SA_RESTART) | SA_RESETHAND);
    ::sigaction(SIGINT, &action, &previousAction);
    // A program that was started with the signal ignored keeps ignoring it.
    if (previousAction.sa_handler == SIG_IGN) {
        ::sigaction(SIGINT, &previousAction, nullptr);
    }
}

Progress::Progress(std::wstring label)
    : Progress(Text([label = std::move(label)](std::size_t done, std::size_t total) {
          const std::wstring of = total > 0 ? L" of " + std::to_wstring(total) : std::wstring();
          return label + L": " + std::to_wstring(done) + of;
      }))
{}

Progress::~Progress()
{
    clear();
    ::sigaction(SIGINT, &previousAction, nullptr);
}

void Progress::show(std::size_t done, std::size_t total)
{
    const Clock::time_point now = Clock::now();
    if (!terminal_ || now < next_) {
        return;
    }
    next_ = now + kBetweenLines;
    std::wstring text = text_(done, total);
    const std::size_t length = text.size();
    text.resize(std::max(length, shown_), L' ');
    shown_ = length;
    writeLine(L"\r" + text);
}

void Progress::clear()
{
    if (shown_ > 0) {
        writeLine(L"\r" + std::wstring(shown_, L' ') + L"\r");
        shown_ = 0;
    }
}

bool Progress::cancelled()
{
    return cancelRequested.load(std::memory_order_relaxed);
}

const std::atomic<bool>* Progress::cancelFlag()
{
    return &cancelRequested;
}

} // namespace kestrav::cli
