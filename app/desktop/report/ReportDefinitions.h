// The report definitions that can be chosen: delivered ones and the user's own.
#pragma once

#include "app/present/ReportDefinition.h"
#include "core/Result.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kestrav::desktop
{

/// Delivered definitions, then those of $XDG_CONFIG_HOME/kestrav/reports; one of the same name
/// replaces the delivered one. Files that cannot be used give a sentence in `problems`.
[[nodiscard]] std::vector<present::ReportDefinition>
reportDefinitions(std::vector<std::string>& problems);

/// Keeps a definition under its name for the next time.
[[nodiscard]] core::Result<void> keepReportDefinition(const present::ReportDefinition& definition);

} // namespace kestrav::desktop
