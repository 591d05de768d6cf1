// The eight kutas of chart comparison, scored from the Moons of a groom and a bride.
#pragma once

#include "astro/DataFile.h"

#include <array>
#include <string>
#include <string_view>

namespace kestrav::analysis
{

enum Kuta : int
{
    kVarnaKuta = 0,
    kVashyaKuta,
    kTaraKuta,
    kYoniKuta,
    kMaitriKuta,
    kGanaKuta,
    kBhakutaKuta,
    kNadiKuta,
};

inline constexpr int kKutaCount = 8;
inline constexpr double kFullKutas = 36.0;

/// What the comparison reads of a Moon.
struct MoonPlace
{
    int sign = 1; ///< 1 to 12
    double degreeInSign = 0.0;
    int star = 0; ///< nakshatra 0 to 26
    int pada = 1; ///< 1 to 4
};

/// The place of a sidereal longitude, 0 to under 360.
[[nodiscard]] MoonPlace moonPlace(double longitude);

struct KutaScore
{
    std::wstring_view name;
    double points = 0.0; ///< halves are possible
    double maximum = 0.0;
    std::wstring why; ///< one English sentence with the values that decided
};

using KutaScores = std::array<KutaScore, kKutaCount>;

/// The kutas in the order of the enumeration.
[[nodiscard]] KutaScores computeKutas(const MoonPlace& groom, const MoonPlace& bride,
                                      const astro::MatchingTables& tables);

/// The sum of the points, 0 to 36.
[[nodiscard]] double kutaTotal(const KutaScores& kutas);

/// Whether the lords of two signs are one planet or natural friends of each other.
[[nodiscard]] bool lordsAgree(int groomSign, int brideSign);

/// Names of the gana 0 to 2, nadi 0 to 2 and yoni 0 to 13 of the tables.
[[nodiscard]] std::wstring_view ganaName(int gana);
[[nodiscard]] std::wstring_view nadiName(int nadi);
[[nodiscard]] std::wstring_view yoniName(int yoni);

/// Name of a planet without the blank in which some names end.
[[nodiscard]] std::wstring planetLabel(int planet);

} // namespace kestrav::analysis
