// Which of two signs, or of two lords of one sign, is the stronger one, after Jaimini. Arudhas,
// and the dashas of signs, ask this of the rashi chart and of divisional charts.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

#include <array>
#include <functional>

namespace kestrav::analysis
{

/// The signs and the degrees in sign of points 0 to 9 in one divisional chart. The sign of a point
/// that was not computed is 0; it stands in no sign and aspects none.
struct SignView
{
    std::array<int, 10> sign = {};
    std::array<double, 10> degree = {};
    int nodeScheme = 0; ///< nodeDignityScheme of the settings
};

/// The view of a chart's rashi (varga 0) or of another varga, whose placements must be there.
[[nodiscard]] SignView signView(const core::Chart& chart, int varga,
                                const core::Settings& settings);

/// Whether sign `from` aspects sign `to`: movable signs aspect the fixed ones except the next,
/// fixed signs the movable ones except the previous, dual signs the other dual ones.
[[nodiscard]] bool signAspects(int from, int to);

/// 0 movable, 1 fixed, 2 dual.
[[nodiscard]] int signModality(int sign);

/// How many of the planets 1 to 9 stand in a sign.
[[nodiscard]] int planetsInSign(const SignView& view, int sign);

/// How far a planet has moved through its sign; the nodes, which move backwards, count 30 - degree.
[[nodiscard]] double advancement(const SignView& view, int planet);

/// A further rule between the sign's modality and the degree, which the dashas of signs have:
/// positive when the first lord wins, negative when the second does, 0 when it does not decide.
using CoLordRule = std::function<int(int first, int second)>;

/// The stronger of the planet and the node that share a sign; the planet when nothing decides, and
/// the other one when one was not computed.
[[nodiscard]] int strongerCoLord(const SignView& view, int sign, int planet, int node,
                                 const CoLordRule& yearsRule = {});

/// The lord of a sign. With co-lords Scorpio has Mars and Ketu, Aquarius Saturn and Rahu, and the
/// stronger one is the lord.
[[nodiscard]] int lordOfSign(const SignView& view, int sign, bool coLords,
                             const CoLordRule& yearsRule = {});

/// The stronger of two signs; `first` when nothing decides.
[[nodiscard]] int strongerSign(const SignView& view, int first, int second,
                               const CoLordRule& yearsRule = {});

} // namespace kestrav::analysis
