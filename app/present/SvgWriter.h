// Display lists as SVG.
#pragma once

#include "app/present/DisplayList.h"

#include <string>
#include <string_view>

namespace kestrav::present
{

struct SvgOptions
{
    double margin = -1.0;      ///< around the drawing; below 0 for a hundredth of the width
    bool tips = true;          ///< the tips of the regions as titles that show under the pointer
    std::string_view idPrefix; ///< for several pictures in one page
};

/// A whole SVG file in UTF-8. Texts stay texts; the title and the accessible text of the list are
/// its title and description.
[[nodiscard]] std::string writeSvg(const DisplayList& list, const SvgOptions& options = {});

} // namespace kestrav::present
