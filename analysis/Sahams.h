// The thirty-six sahams of the Tajika.
#pragma once

#include "core/Chart.h"

#include <array>
#include <optional>
#include <string_view>

namespace kestrav::analysis
{

inline constexpr int kSahamCount = 36;

/// Places in the list of the sahams that points 61 and 62 show unless others are chosen.
inline constexpr int kKarmaSaham = 14;
inline constexpr int kVivahaSaham = 25;

/// The names of the sahams in the order of the list; a saham is known by its place 0 to 35.
[[nodiscard]] const std::array<std::wstring_view, kSahamCount>& sahamNames();

/// What a point of a saham is.
enum class SahamTermKind
{
    Body,       ///< number: point index
    House,      ///< number: house; its longitude is the ascendant's degree in the house's sign
    HouseLord,  ///< number: house, counted by sign
    Dispositor, ///< number: point index; the lord of the sign it stands in
    Saham,      ///< number: place in the list
    Degree,     ///< number: the longitude itself
};

struct SahamTerm
{
    SahamTermKind kind = SahamTermKind::Body;
    int number = 0;
    double longitude = 0.0; ///< degrees; a sum above 360 is not reduced, not-a-number is missing
};

/// How a saham comes about: the way from b to a, added to c.
struct SahamReckoning
{
    SahamTerm a;
    SahamTerm b;
    SahamTerm c;
    bool onTheWay = true;   ///< whether c lies on the way from b to a; if not, 30 degrees are added
    double longitude = 0.0; ///< degrees, 0 to under 360, or not-a-number
};

[[nodiscard]] SahamReckoning sahamReckoning(const core::Chart& chart, int saham, bool night);

/// The longitude of a saham in degrees, 0 to under 360: the distance from one point to another
/// added to a third, and 30 degrees more when the third does not lie on the way. By night most
/// sahams take the distance the other way round. Nothing when one of its points is not computed.
[[nodiscard]] std::optional<double> sahamLongitude(const core::Chart& chart, int saham, bool night);

/// All sahams of a chart, by day or night as isNight says.
[[nodiscard]] std::array<std::optional<double>, kSahamCount> sahams(const core::Chart& chart);

/// Fills points 61 and 62 with two chosen sahams. A saham that cannot be computed, or a choice
/// outside the list, leaves its point not computed.
void computeSahamPoints(core::Chart& chart, int saham2, int saham3);

} // namespace kestrav::analysis
