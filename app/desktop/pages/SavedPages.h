// Pages that the user composed and saved by name, and the pages of the last run.
#pragma once

#include "app/present/PageLayout.h"
#include "core/Result.h"

#include <filesystem>
#include <string>
#include <vector>

namespace kestrav::desktop
{

class PageStrip;

/// $XDG_CONFIG_HOME/kestrav/pages.
[[nodiscard]] std::filesystem::path savedPagesFolder();

/// The saved pages sorted by name. A file that cannot be used is left out, with a sentence in
/// `problems`.
[[nodiscard]] std::vector<present::PageLayout> savedPages(std::vector<std::string>& problems);

/// Saves a page under its name, replacing one of that name; the file keeps its backup.
[[nodiscard]] core::Result<void> savePage(const present::PageLayout& layout);

/// The file name of a page: its letters and digits, others as hyphens.
[[nodiscard]] std::string pageFileName(const std::string& name);

/// Keeps the pages with the sizes of their cells for the next run.
void keepPages(const PageStrip& pages);

/// Brings the kept pages back. Pages that cannot be used are left out, with a sentence each; when
/// none can be used nothing changes.
std::vector<std::string> restorePages(PageStrip& pages);

} // namespace kestrav::desktop
