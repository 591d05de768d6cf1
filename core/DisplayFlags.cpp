#include "core/DisplayFlags.h"

#include <atomic>

namespace kestrav::core
{

namespace
{

std::atomic<std::uint32_t> programFlags{kEnglishNames};
thread_local std::optional<std::uint32_t> threadFlags;

} // namespace

std::uint32_t DisplayFlags()
{
    return threadFlags.value_or(programFlags.load(std::memory_order_relaxed));
}

void SetDisplayFlags(std::uint32_t flags)
{
    programFlags.store(flags, std::memory_order_relaxed);
}

DisplayFlagsOverride::DisplayFlagsOverride(std::uint32_t flags) : previous_(threadFlags)
{
    threadFlags = flags;
}

DisplayFlagsOverride::~DisplayFlagsOverride()
{
    threadFlags = previous_;
}

} // namespace kestrav::core
