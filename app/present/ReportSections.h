// The sections of a report.
#pragma once

#include "app/present/Report.h"

#include <vector>

namespace kestrav::present
{

/// The blocks of one section with its heading.
[[nodiscard]] std::vector<Block> reportSection(const ReportSource& source, const ReportPart& part);

} // namespace kestrav::present
