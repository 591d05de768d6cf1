// The icons of the program.
#pragma once

#include <QIcon>

namespace kestrav::desktop
{

/// The icon of a name of the freedesktop naming scheme: from the theme of the system, else the
/// program's own for light or dark windows; empty when there is none.
[[nodiscard]] QIcon icon(const char* name);

} // namespace kestrav::desktop
