// Taking the words of a condition apart.
#pragma once

#include "yoga/Condition.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

/// The tables in which the words of a condition are looked up; -1 for a word that they do not hold.
struct ConditionNames
{
    int (*keywordCode)(std::string_view word);   ///< the code of a parameter
    int (*kindOfKeyword)(std::string_view word); ///< the kind of a condition without prefix
};

/// Reads a condition token.
///
/// A first word that begins with "*" begins a prefix: from its third character on the
/// divisional-chart option, then two divisional charts, three points and the number of the kind.
/// Without a prefix the first word is the kind. The negation mark follows, "!" or an empty word,
/// then the parameters; empty ones at the end do not count, others read as -1. A name that is in no
/// table reads as -1 and is added to `unknown`.
[[nodiscard]] Condition ParseCondition(std::string_view token, const ConditionNames& names,
                                       std::vector<std::string>* unknown = nullptr);

/// The index of the word of a condition that holds its negation mark.
[[nodiscard]] std::size_t markIndex(std::string_view condition);

/// Index 0 to 50 of a point's English three-letter name, whatever language is shown; -1 for others.
/// Arudha lagna and the arudha of the first house share the name "ArL", which is the former.
[[nodiscard]] int pointOfShortName(std::string_view name);

/// Index 0 to 20 of a divisional chart's short name; -1 for others.
[[nodiscard]] int vargaOfShortName(std::string_view name);

} // namespace kestrav::yoga
