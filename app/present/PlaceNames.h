// Places in words, and what is known about one at a moment.
#pragma once

#include "data/PlaceLookup.h"
#include "data/Places.h"

#include <string>

namespace kestrav::present
{

/// What is known about the place when the clocks of the world stand at a moment in seconds since
/// 1970.
[[nodiscard]] data::PlaceAnswer answerAtMoment(const data::Places& places, const data::Place& place,
                                               double unixSeconds);

/// The state of a place in the United States, else its country.
[[nodiscard]] std::wstring countryOrState(const data::Places& places, const data::Place& place);

/// "Portland, Oregon, United States of America".
[[nodiscard]] std::wstring fullName(const data::Places& places, const data::Place& place);

} // namespace kestrav::present
