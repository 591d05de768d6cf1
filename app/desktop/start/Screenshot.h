// Pictures of pages, forms and dialogs.
#pragma once

#include "core/Result.h"

#include <QString>

namespace kestrav::desktop
{

class TKSVform1;

/// The names that can be pictured, one a line: pages, then forms and dialogs.
[[nodiscard]] QString pictureNames(TKSVform1& window);

/// Writes a picture of the window with that page, or of that form or dialog, once everything in it
/// has been computed.
[[nodiscard]] core::Result<void> takePicture(TKSVform1& window, const QString& name,
                                             const QString& file);

} // namespace kestrav::desktop
