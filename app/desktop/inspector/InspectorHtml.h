// Inspections as rich text with links.
#pragma once

#include "app/present/Inspector.h"

#include <QSet>
#include <QString>
#include <QUrl>

#include <optional>

namespace kestrav::desktop
{

/// What the inspector's page shows. Titles of sections are links "fold:id", cells lead on with the
/// links of linkText; the sections in `folded` show their title only.
[[nodiscard]] QString inspectionHtml(const present::Inspection& inspection,
                                     const QSet<QString>& folded);

/// A link as an address, and back; nothing for other addresses.
[[nodiscard]] QString linkText(const present::Link& link);
[[nodiscard]] std::optional<present::Link> linkOfText(const QString& text);

} // namespace kestrav::desktop
