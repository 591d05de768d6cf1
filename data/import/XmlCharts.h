// Charts in XML: the one-chart file and the export of a public bank of birth data.
#pragma once

#include "data/import/ImportReport.h"

#include <cstdint>
#include <span>

namespace kestrav::data
{

/// Whether the bytes begin with "<", after a mark of byte order and blanks, or with UTF-16.
[[nodiscard]] bool isXml(std::span<const std::uint8_t> bytes);

/// Reads the charts of a document. Nothing is fetched, no entity is replaced and a document type
/// is refused; depth and lengths are bounded by the parser.
void readXmlCharts(std::span<const std::uint8_t> bytes, ImportReport& report);

} // namespace kestrav::data
