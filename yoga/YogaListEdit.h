// The commands of the yoga editor on the list of yogas.
#pragma once

#include "core/Messages.h"
#include "yoga/CustomYogaList.h"
#include "yoga/YogaFile.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

inline constexpr wchar_t kDeleteYoga[] = L"Delete Yoga from List?";

/// Gives a yoga another rule, and the options and divisional charts that it uses. A rule whose
/// brackets do not match is told, and the yoga stays as it is.
[[nodiscard]] bool changeRule(Yoga& yoga, std::string_view rule, core::Messages& messages);

/// The same without a word about brackets, which need not match while a rule is under work.
void setRule(Yoga& yoga, std::string_view rule);

/// Removes a yoga when the user agrees.
bool deleteYoga(YogaFile& file, std::size_t index, core::Messages& messages);

/// Sorts by title, without regard to case and accents.
void sortYogas(YogaFile& file);

/// Appends the yogas of another file, or of a plain list.
void importYogas(YogaFile& file, const YogaFile& from);
void importYogas(YogaFile& file, std::span<const CustomYoga> from);

/// The yogas as a plain list.
[[nodiscard]] std::vector<CustomYoga> asCustomYogas(const YogaFile& file);

/// The chapters in the order in which they come first.
[[nodiscard]] std::vector<std::string> chaptersOf(const YogaFile& file);

} // namespace kestrav::yoga
