// How well what was typed fits an entry of the command palette.
#pragma once

#include <QString>

#include <optional>

namespace kestrav::desktop
{

/// The worth of an entry for the typed letters, larger being better; nothing when they do not
/// occur in it in their order. Beginnings of words, letters that follow each other and short
/// entries are worth more. Case and accents do not count.
[[nodiscard]] std::optional<int> paletteMatch(const QString& typed, const QString& entry);

} // namespace kestrav::desktop
