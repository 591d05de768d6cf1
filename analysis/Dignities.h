// Relationships between planets, dignities in every varga, combustion.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

#include <string_view>

namespace kestrav::analysis
{

/// Dignity codes.
inline constexpr int kDebilitated = -3;
inline constexpr int kGreatEnemy = -2;
inline constexpr int kEnemy = -1;
inline constexpr int kNeutral = 0;
inline constexpr int kFriend = 1;
inline constexpr int kGreatFriend = 2;
inline constexpr int kOwn = 3;
inline constexpr int kExalted = 4;

/// Display indexes beyond those of the codes.
inline constexpr int kDisplayMoolatrikona = 7;
inline constexpr int kDisplayExalted = 8;
inline constexpr int kDisplayCancelled = 9;
inline constexpr int kDisplayRetrograde = 10;
inline constexpr int kDisplayCount = 11;

/// Fills the chart's compound relationships of the rashi for planets 1 to 7.
void computeCompoundRelationships(core::Chart& chart, const core::Settings& settings);

/// Relationship of a planet 1 to 7 towards the lord of a sign in a varga: -2 to 3 (own). For Rahu
/// and Ketu it depends on the sign and the node scheme alone and can be -3 to 4.
[[nodiscard]] int relationship(const core::Chart& chart, int planet, int lord, int varga, int sign,
                               const core::Settings& settings);

/// Dignity code -3 to 4 of a point in a sign of a varga. A sign of 0 is taken as 1. The ascendant
/// and points above 12 have 0, points 10 to 12 only 4, -3 and 0.
[[nodiscard]] int vargaDignity(const core::Chart& chart, int point, int sign, int varga,
                               const core::Settings& settings);

/// 0 own, 1 moolatrikona, 2 exalted, for a point whose rashi dignity is 3 or more.
[[nodiscard]] int rashiDignityBand(const core::Chart& chart, int point,
                                   const core::Settings& settings);

/// Display index 0 to 8: the code + 3, refined by the band in the rashi.
[[nodiscard]] int displayDignity(const core::Chart& chart, int point, int sign, int varga,
                                 const core::Settings& settings);

/// Display index of a point in the rashi as reports show it: displayDignity, but 9 for a
/// debilitated planet whose debilitation is cancelled and 10 for one that is retrograde.
[[nodiscard]] int reportDignity(const core::Chart& chart, int point,
                                const core::Settings& settings);

/// Display index of a point in any varga as tables show it: reportDignity in the rashi; elsewhere
/// displayDignity, but 8 for an exalted point, whose word would otherwise be that of a
/// moolatrikona. A point that was not computed gives -1.
[[nodiscard]] int shownDignity(const core::Chart& chart, int point, int varga,
                               const core::Settings& settings);

/// The condition that cancels the debilitation of a planet 1 to 7 in the rashi, 1 to 6, or 0: (1)
/// the lord of its sign, (2) the lord of its exaltation sign, (3) the planet exalted in its sign in
/// a kendra from the ascendant or the Moon; (4) the lord of its sign in it or fully aspecting it;
/// (5) exalted in the navamsha; (6) fully aspected by another debilitated planet.
[[nodiscard]] int debilitationCancelledBy(const core::Chart& chart, int planet,
                                          const core::Settings& settings);

/// Word of a display index 0 to 10 in the language of the display flags, long or short. The short
/// Sanskrit "Sama " keeps its blank, so that its column is five characters wide.
[[nodiscard]] std::wstring_view dignityWord(int displayIndex, bool shortForm);

/// Whether planet 2 to 7 of the chart is combust by the Sun of `sunChart`. A planet and the Sun on
/// opposite sides of 0 degrees Aries never are; that is meant.
[[nodiscard]] bool isCombust(const core::Chart& chart, const core::Chart& sunChart, int planet,
                             const core::Settings& settings);

/// Combustion orb in degrees of planet 2 to 7, direct or retrograde.
[[nodiscard]] double combustionOrb(int planet, bool retrograde);

/// Fills the combust flags of a chart from its own Sun.
void computeCombustion(core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::analysis
