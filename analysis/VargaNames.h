// Names, divisions and meanings of the divisional charts.
#pragma once

#include <optional>
#include <string_view>

namespace kestrav::analysis
{

/// The number by which a sign is divided, for varga 0 to 20.
[[nodiscard]] int vargaDivision(int varga);

/// The span of one part in degrees, 30 / division.
[[nodiscard]] double partSpan(int varga);

/// Names as the tables show them: "NavaDwadasha." has its full stop and "Trimshamsa" its spelling.
[[nodiscard]] std::wstring_view vargaName(int varga);
[[nodiscard]] std::wstring_view vargaShortName(int varga);
[[nodiscard]] std::wstring_view vargaMeaning(int varga);

/// The varga of a long or short name without regard to case, of an index "0" to "20", or of a
/// division "D-9" or "D9".
[[nodiscard]] std::optional<int> findVarga(std::string_view text);

} // namespace kestrav::analysis
