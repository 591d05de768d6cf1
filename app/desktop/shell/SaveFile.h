// Files that the user exports.
#pragma once

#include <QString>

#include <string_view>

namespace kestrav::desktop
{

class Workspace;

/// Writes the bytes under the name, after asking where a file would be replaced, and tells the
/// news. False when the user declined or the file could not be written.
bool saveBytes(std::string_view bytes, const QString& file, Workspace& workspace);

} // namespace kestrav::desktop
