// The editable table of ayanamsa definitions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestrav::core
{

/// One definition: the ayanamsa is a linear function of the decimal year.
struct AyanamsaRow
{
    std::int32_t epochYear = 0;  ///< year at whose start the value holds
    double valueAtEpoch = 0.0;   ///< degrees
    double annualRate = 0.0;     ///< arc seconds a year; 0 or less makes the row tropical
    std::array<char, 16> name{}; ///< UTF-8, padded with NUL; 16 bytes may leave no NUL

    /// The name without its padding.
    [[nodiscard]] std::string_view nameText() const;

    /// Stores a name, cut to 16 bytes without splitting a character.
    void setName(std::string_view text);

    bool operator==(const AyanamsaRow&) const = default;
};

inline constexpr int kAyanamsaRows = 10;
using AyanamsaTable = std::array<AyanamsaRow, static_cast<std::size_t>(kAyanamsaRows)>;

/// The ten rows that a new installation has and that the reset action restores.
[[nodiscard]] const AyanamsaTable& factoryAyanamsaTable();

/// Degrees from the whole degrees, minutes and seconds that the user enters.
[[nodiscard]] double ayanamsaValue(int degrees, int minutes, int seconds);

} // namespace kestrav::core
