// The table of the dasha systems: their lords, their years and where their cycles begin.
#pragma once

#include <array>
#include <string_view>

namespace kestrav::timing
{

/// The dasha systems in the order of their table and of the choosers.
enum DashaSystem : int
{
    kVimshottari = 0,
    kAstottari,
    kShodsottari,
    kDwadashottari,
    kPanchottari,
    kShatabdika,
    kChaturashitiSama,
    kDwisaptatiSama,
    kShastihayani,
    kShatTrimshatSama,
    kSudarshanaChakra,
    kTribhagi,
    kYogini,
    kJaiminiChara,
    kKalaChakra,
    kNarayana,
    kSudasa,
    kLagnaKendradi,
    kAtmaKendradi,
    kDrig,
    kShoola,
    kNiryanaShoola,
    kMoola,
    kTithiAstottari,
    kAnnualVimshottari, ///< not offered in choosers
};

inline constexpr int kDashaSystems = 25;
inline constexpr int kNamedDashaSystems = 24;
inline constexpr int kDashaLevels = 5;

/// One system. A lord is a point 1 to 9, or 1 to 12 for a sign or house.
struct DashaRow
{
    std::wstring_view name;
    int flag;   ///< kept with the row; nothing reads it
    int count;  ///< lords in the cycle
    int offset; ///< nakshatra of the cycle's first lord
    std::array<int, 12> lords;
    std::array<double, 12> years;
    double total; ///< years of the whole cycle
};

/// The row of a system 0 to 24. The lords and years of rows 13 and 15 to 23 do not hold for any
/// chart: the rule of the system replaces them.
[[nodiscard]] const DashaRow& dashaRow(int system);

/// Vimshottari years by point, 0 to 9; the ascendant has none.
inline constexpr std::array<double, 10> kYearsOfPoint = {0, 6, 10, 7, 17, 16, 20, 19, 18, 7};

/// How many nakshatras each lord of Astottari and of Shastihayani holds, in the order of the cycle.
inline constexpr std::array<int, 8> kAstottariCounts = {4, 3, 4, 3, 3, 3, 4, 3};
inline constexpr std::array<int, 8> kShastihayaniCounts = {3, 4, 3, 4, 3, 4, 2, 4};

/// Whether the first lord is found from a nakshatra, which the start point of the options names.
[[nodiscard]] bool startsFromNakshatra(int system);

/// Whether the system's rule gives the periods to signs, each divided into twelfths.
[[nodiscard]] bool isSignDasha(int system);

} // namespace kestrav::timing
