// Reads the bytes of atlas files into the lists of the look-up.
#pragma once

#include "core/Result.h"
#include "data/PlaceList.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// "ACSTT.DAT".
[[nodiscard]] core::Result<ZoneTable> readTimeFile(std::string_view bytes);

/// "TIMNDX.BIN" with "TIMTAB.BIN".
[[nodiscard]] core::Result<ZoneTable> readTimeFiles(std::string_view index,
                                                    std::string_view changes);

/// "ACSUA.DAT" or "ACSIA.DAT" with its name list, which gives the names of the records when it has
/// one line for each, and is not regarded otherwise.
[[nodiscard]] core::Result<void> readPlaceFile(std::string bytes, std::string nameList,
                                               const ZoneTable& zones, PlaceList& list);

/// Numbers of the regions in the list for the records of "COUNTY.BIN", from it and "CNTYUSA.TXT",
/// "CNTYINT.TXT".
[[nodiscard]] core::Result<std::vector<std::uint32_t>> readCountyFiles(std::string_view counties,
                                                                       std::string usaNames,
                                                                       std::string otherNames,
                                                                       PlaceList& list);

/// "USAATL.BIN", "USANDX.BIN" and "USANDX.TXT", or those of the other places.
[[nodiscard]] core::Result<void> readIndexedPlaces(std::string_view records, std::string_view index,
                                                   std::string names, const ZoneTable& zones,
                                                   const std::vector<std::uint32_t>& regions,
                                                   PlaceList& list);

} // namespace kestrav::data
