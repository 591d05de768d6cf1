// The pages that come with the program.
#pragma once

#include "app/present/PageLayout.h"

#include <vector>

namespace kestrav::desktop
{

/// The delivered pages for the screen in the order of the page strip. A file that is missing or
/// damaged is left out, with a sentence in `problems`.
[[nodiscard]] std::vector<present::PageLayout> deliveredPages(std::vector<std::string>& problems);

} // namespace kestrav::desktop
