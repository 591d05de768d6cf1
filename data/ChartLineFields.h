// The greatest lengths, in characters, of the fields of a chart line.
#pragma once

#include <cstddef>

namespace kestrav::data
{

inline constexpr std::size_t kLabelLength = 29;
inline constexpr std::size_t kNameLength = 46;
inline constexpr std::size_t kSexLength = 1;
inline constexpr std::size_t kCodeLength = 3;
inline constexpr std::size_t kNumberLength = 10; ///< of every number inside a compound
inline constexpr std::size_t kTimeLength = 10;
inline constexpr std::size_t kPlaceLength = 50;
inline constexpr std::size_t kCountryLength = 20;
inline constexpr std::size_t kZoneLength = 11;
inline constexpr std::size_t kLongitudeLength = 11;
inline constexpr std::size_t kLatitudeLength = 10;
inline constexpr std::size_t kSoundLength = 2;
inline constexpr std::size_t kOccupationLength = 30;
inline constexpr std::size_t kStatusLength = 1;
inline constexpr std::size_t kFreeTextLength = 20;
inline constexpr std::size_t kNotesLength = 7000; ///< a line break counts as one
inline constexpr std::size_t kExtraLength = 300;
inline constexpr std::size_t kOrderCodeLength = 12;
inline constexpr std::size_t kEventNameLength = 46;
inline constexpr std::size_t kShortNameLength = 9;

/// Lines with fewer characters are no chart lines. The shortest that is written has 114.
inline constexpr std::size_t kShortestLine = 50;

/// The name of a chart that has none.
inline constexpr wchar_t kNoNameText[] = L"No Name";

} // namespace kestrav::data
