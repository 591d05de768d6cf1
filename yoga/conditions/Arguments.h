// The words of a condition, laid out over the parameters of its kind.
#pragma once

#include "yoga/Catalogue.h"
#include "yoga/Condition.h"

#include <array>
#include <cstdint>
#include <string>

namespace kestrav::yoga
{

struct Arguments
{
    const Kind* kind = nullptr;
    bool exchanged = false; ///< the two charts change their places
    /// The code or number of each parameter; -1 when a word was left out. Of houses, signs,
    /// nakshatras and repeated parameters the values stand in `list`.
    std::array<int, kMaxParameters> values = {};
    std::uint64_t list = 0;         ///< bit n for number, nakshatra (from 1), or plain word n
    std::array<int, 2> vargas = {}; ///< of the first and of all further points
    bool fits = false;
};

/// Lays the words out. When they do not fit, `fits` is false and `problem`, if there is one, says
/// why.
[[nodiscard]] Arguments layOut(const Condition& condition, std::string* problem = nullptr);

} // namespace kestrav::yoga
