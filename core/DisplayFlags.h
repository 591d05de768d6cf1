// The one word of display preferences that every name lookup reads.
#pragma once

#include <cstdint>
#include <optional>

namespace kestrav::core
{

/// Set: English names. Clear: Sanskrit names.
inline constexpr std::uint32_t kEnglishNames = 1;
/// Set: symbols of the astrological glyph font instead of letters.
inline constexpr std::uint32_t kGlyphNames = 64;

/// The display flags in force for the calling thread.
[[nodiscard]] std::uint32_t DisplayFlags();

/// Sets the flags of the whole program.
void SetDisplayFlags(std::uint32_t flags);

/// Replaces the flags for the calling thread only, until the object goes. Other threads never see
/// the replacement. Overrides may be nested.
class DisplayFlagsOverride
{
public:
    explicit DisplayFlagsOverride(std::uint32_t flags);
    ~DisplayFlagsOverride();
    DisplayFlagsOverride(const DisplayFlagsOverride&) = delete;
    DisplayFlagsOverride& operator=(const DisplayFlagsOverride&) = delete;

private:
    std::optional<std::uint32_t> previous_;
};

} // namespace kestrav::core
