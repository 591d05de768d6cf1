// One chart's pre-computed positions as one line of a research database.
#pragma once

#include "core/Chart.h"

#include <array>
#include <string>
#include <string_view>

namespace kestrav::data
{

/// The points of a research line: Ascendant to Ketu and Uranus to Pluto.
inline constexpr std::array<int, 13> kResearchPoints = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 32, 33, 34};

/// The research line of a computed chart whose Gulika (point 19) was computed too, in UTF-8 and
/// without line end. Its 93 fields, each followed by a TAB, are in this order: name, occupation,
/// label, tropical sign of the Sun; signs, navamsha signs, nakshatras (1 to 27) and longitudes of
/// the points; ten speeds; ten motion letters; sign and whole arc minutes of Gulika; ayanamsa; sex,
/// geographic longitude and latitude, their texts with the latitude first, local sidereal time,
/// midheaven; birth time, sunrise, sunset (-1 where there is none), zone, saving time and day
/// count; a blank. An empty text is a blank too.
[[nodiscard]] std::string FormatResearchLine(const core::Chart& chart);

/// Clears the record and reads a research line into it, with the sign data of the points. Only the
/// motions direct and retrograde come back, Gulika in whole minutes, the date not at all. False
/// when a field is missing; a field without its TAB counts as missing.
[[nodiscard]] bool ParseResearchLine(std::string_view line, core::Chart& chart);

/// Reads the positions, speeds and motions of the 13 points of a research line as ParseResearchLine
/// does, and leaves all else of the record as it is. It allocates nothing. False when one of these
/// fields is missing.
[[nodiscard]] bool ReadResearchPositions(std::string_view line, core::Chart& chart);

/// One field of a research line, 0 to 92; empty when there is none.
[[nodiscard]] std::string_view researchField(std::string_view line, int index);

/// The index of the first of the 13 fields of a group.
inline constexpr int kTropicalSunField = 3;
inline constexpr int kSignFields = 4;
inline constexpr int kNavamshaFields = 17;
inline constexpr int kNakshatraFields = 30;
inline constexpr int kLongitudeFields = 43;
inline constexpr int kSexField = 79;

} // namespace kestrav::data
