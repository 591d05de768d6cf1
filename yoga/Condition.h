// One condition of a yoga rule, taken apart into its fields.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace kestrav::yoga
{

/// Words of a condition that are read; word 16 and later ones are ignored.
inline constexpr std::size_t kMaxConditionWords = 15;

/// A condition token with all its words looked up. A name that is in no table reads as -1, and the
/// condition then never holds.
struct Condition
{
    bool hasPrefix = false;          ///< begins with the divisional-chart prefix of seven words
    int option = 1;                  ///< divisional-chart option, 1-based; 1 without a prefix
    std::array<int, 2> vargas{0, 0}; ///< the two divisional charts, 0 to 20; rashi without a prefix
    std::array<int, 3> points{-1, -1, -1}; ///< point indexes 0 to 50; -1 when empty or unknown
    int kind = -1;                         ///< number of the kind in the catalogue
    bool negated = false;
    std::array<int, kMaxConditionWords> parameters{}; ///< numbers, or codes of keywords
    std::size_t parameterCount = 0;
    bool unknownName = false; ///< a word that should name something is in no table
    std::string text;         ///< the token as it stands in the rule
};

} // namespace kestrav::yoga
