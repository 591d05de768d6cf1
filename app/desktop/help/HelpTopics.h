// Which help page belongs to what.
#pragma once

#include <QString>
#include <QStringList>

namespace kestrav::desktop
{

/// The folder of the help pages; empty when they are not installed.
[[nodiscard]] QString helpFolder();

/// The page of a panel, form or dialog by its name, or the name itself where it is a page, with or
/// without an anchor ("settings.html#houseSystem"). The contents page for what has none.
[[nodiscard]] QString helpPage(const QString& panelOrForm);

/// The quick tips, one sentence each.
[[nodiscard]] QStringList quickTips();

} // namespace kestrav::desktop
