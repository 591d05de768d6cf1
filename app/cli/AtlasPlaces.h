// Places for the commands: from the outside atlas when one is set, else from the program's lists.
#pragma once

#include "app/cli/Command.h"
#include "app/present/PlaceNames.h"
#include "core/Result.h"
#include "core/Settings.h"
#include "data/PlaceLookup.h"
#include "data/Places.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrav::cli
{

/// Reads the atlas of the settings, or the program's own lists. Nothing after a failure, which has
/// been reported with its exit code in `code`.
[[nodiscard]] std::optional<data::Places> openPlaces(const core::Settings& settings,
                                                     Console& console, ExitCode& code);

/// The only place that the text names. The error says that there is none, or lists those that there
/// are, the largest first. Of several places of exactly this name one of the user's own is meant.
[[nodiscard]] core::Result<std::uint32_t> choosePlace(const data::Places& places,
                                                      std::wstring_view text);

using present::answerAtMoment;
using present::countryOrState;
using present::fullName;

/// Shows the atlas warning when the values have one, and why they have it.
void warnOfPlaceTime(const data::PlaceTime& time, Console& console);

} // namespace kestrav::cli
