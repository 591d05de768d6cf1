// Names of places: the key under which they are found, and how lists show them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// The search key: small letters without accents, words parted by one blank. Latin letters lose
/// their marks, Greek and Cyrillic ones their case; apostrophes and full stops go, other signs part
/// words. The result is UTF-8. "Saint-Étienne" gives "saint etienne", "U.S.A." gives "usa".
[[nodiscard]] std::string foldName(std::wstring_view name);
/// The same of valid UTF-8.
[[nodiscard]] std::string foldName(std::string_view utf8);

/// The parts of a typed text between its commas, without blanks around them and without empty ones.
[[nodiscard]] std::vector<std::wstring_view> commaParts(std::wstring_view text);

/// A line of the city list: the latitude, four blanks, the name. Only the latitude is shown.
[[nodiscard]] std::wstring cityListText(double latitude, std::wstring_view name);

} // namespace kestrav::data
