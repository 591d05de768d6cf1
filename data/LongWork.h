// How long work is watched and stopped.
#pragma once

#include <atomic>
#include <cstddef>
#include <functional>

namespace kestrav::data
{

struct LongWork
{
    /// Called now and then, on the thread that started the work, with what is done and the total.
    std::function<void(std::size_t done, std::size_t total)> progress;
    /// Set by another thread, or inside `progress`, to stop the work.
    const std::atomic<bool>* cancel = nullptr;
    /// Number of threads; 0 for all cores.
    unsigned threads = 0;

    [[nodiscard]] bool cancelled() const
    {
        return cancel != nullptr && cancel->load(std::memory_order_relaxed);
    }
};

} // namespace kestrav::data
