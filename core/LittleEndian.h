// Numbers in files: little-endian, unaligned, the same on every system.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

namespace kestrav::core
{

using ByteSpan = std::span<const std::uint8_t>;

/// The integer that stands at `offset`. The caller has checked that its bytes lie inside.
template <std::integral Integer>
[[nodiscard]] Integer readInteger(ByteSpan bytes, std::size_t offset)
{
    std::make_unsigned_t<Integer> value = 0;
    for (std::size_t i = 0; i < sizeof(Integer); ++i) {
        const auto byte = static_cast<std::make_unsigned_t<Integer>>(bytes[offset + i]);
        value = static_cast<std::make_unsigned_t<Integer>>(value | (byte << (8 * i)));
    }
    return static_cast<Integer>(value);
}

/// The IEEE double that stands at `offset`.
[[nodiscard]] inline double readDouble(ByteSpan bytes, std::size_t offset)
{
    return std::bit_cast<double>(readInteger<std::uint64_t>(bytes, offset));
}

template <std::integral Integer>
void appendInteger(std::vector<std::uint8_t>& bytes, Integer value)
{
    const auto bits = static_cast<std::make_unsigned_t<Integer>>(value);
    for (std::size_t i = 0; i < sizeof(Integer); ++i) {
        bytes.push_back(static_cast<std::uint8_t>(bits >> (8 * i)));
    }
}

inline void appendDouble(std::vector<std::uint8_t>& bytes, double value)
{
    appendInteger(bytes, std::bit_cast<std::uint64_t>(value));
}

} // namespace kestrav::core
