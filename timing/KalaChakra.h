// The Kala Chakra: 24 rows of nine signs, one row for each pada of a group of three nakshatras.
#pragma once

#include <array>
#include <string>

namespace kestrav::timing
{

inline constexpr int kKalaChakraRows = 24;
inline constexpr int kKalaChakraSigns = 9;

/// Years of the signs 1 to 12; entry 0 is unused.
inline constexpr std::array<double, 13> kKalaChakraYears = {0,  7, 16, 9, 21, 5, 9,
                                                            16, 7, 10, 4, 4,  10};

struct KalaChakraRow
{
    std::array<int, kKalaChakraSigns> signs; ///< 1 to 12, in the order of their periods
    double span;                             ///< years of all nine
};

/// A row 0 to 23; the first twelve are savya, the others apasavya.
[[nodiscard]] const KalaChakraRow& kalaChakraRow(int row);

/// Where a chart stands in the rows.
struct KalaChakraStart
{
    int row = 0;
    double elapsed = 0.0; ///< years of the row passed at birth
};

/// The row of a nakshatra 0 to 26 of which `fraction` (0 to under 1) has passed: a pada is a row,
/// three nakshatras make a half of the rows, and every second group of three is apasavya.
[[nodiscard]] KalaChakraStart kalaChakraStart(int nakshatra, double fraction);

/// "Deh:%s/Jiv:%s" or, from row 11 on, "Jiv:%s/Deh:%s", with the names of the row's first and ninth
/// sign. Row 11 is still savya; that its text changes already is meant.
[[nodiscard]] std::wstring kalaChakraLabel(int row);

} // namespace kestrav::timing
