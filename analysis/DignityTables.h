// The classical tables of lordship, exaltation, debilitation, moolatrikona and natural friendship.
#pragma once

namespace kestrav::analysis
{

/// Lord of a sign 1 to 12, a planet 1 to 7.
[[nodiscard]] int signLord(int sign);

/// Lord of a sign when Rahu or Ketu is judged: Rahu owns Gemini, Virgo and Aquarius, Ketu
/// Sagittarius and Pisces.
[[nodiscard]] int nodeSignLord(int sign);

/// Exaltation sign of points 1 to 14 in a node dignity scheme 0 to 2 (schemes differ for Rahu and
/// Ketu only); 0 for other points.
[[nodiscard]] int exaltationSign(int point, int nodeScheme);

/// Debilitation sign, as exaltationSign.
[[nodiscard]] int debilitationSign(int point, int nodeScheme);

/// Moolatrikona sign of points 1 to 9; 0 when it has none.
[[nodiscard]] int moolatrikonaSign(int point, int nodeScheme);

/// Degree up to which the moolatrikona stretch of planet 1 to 7 reaches, inclusive.
[[nodiscard]] double moolatrikonaLimit(int planet);

/// Degree up to which the Moon (3) and Mercury (15) are exalted in their exaltation sign,
/// inclusive; 30 for the others.
[[nodiscard]] double exaltationLimit(int planet);

/// Longitude of deepest exaltation of planet 1 to 7 in degrees.
[[nodiscard]] double deepExaltation(int planet);

/// Natural relationship of planet 1 to 7 towards another: 1 friend, 0 neutral, -1 enemy.
[[nodiscard]] int naturalRelationship(int planet, int other);

/// Relationship code of Rahu or Ketu in a sign, which depends on the sign and the scheme alone:
/// -3 to 4. Its values 4 and -3 show only when it is asked directly.
[[nodiscard]] int nodeRelationship(int node, int sign, int nodeScheme);

} // namespace kestrav::analysis
