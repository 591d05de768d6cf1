// "cusyog2.txt": a plain list of yogas, one a line, title TAB rule, in UTF-8.
#pragma once

#include "core/Result.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace kestrav::yoga
{

inline constexpr char kCustomYogaFile[] = "cusyog2.txt";

struct CustomYoga
{
    std::string title;
    std::string rule;

    bool operator==(const CustomYoga&) const = default;
};

/// The yogas of the list. Lines without a TAB have a title only, empty lines are left out, and a
/// line that is no UTF-8 is read as Windows-1252. The rule ends with the line.
[[nodiscard]] core::Result<std::vector<CustomYoga>>
parseCustomYogas(std::span<const std::uint8_t> bytes);
[[nodiscard]] core::Result<std::vector<CustomYoga>>
readCustomYogas(const std::filesystem::path& path);

/// The list as text; TABs, line breaks and control characters inside a text become blanks.
[[nodiscard]] std::string formatCustomYogas(std::span<const CustomYoga> yogas);

/// Writes the file as a whole and keeps the previous one as ".BAK".
[[nodiscard]] core::Result<void> writeCustomYogas(const std::filesystem::path& path,
                                                  std::span<const CustomYoga> yogas);

} // namespace kestrav::yoga
