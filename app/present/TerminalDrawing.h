// Diagrams drawn with characters.
#pragma once

#include "app/present/Diagram.h"
#include "app/present/DisplayList.h"

#include <string>

namespace kestrav::present
{

/// The side of a diagram on a grid of characters: it takes one column more, and half as many rows
/// and one.
inline constexpr double kTerminalSize = 72.0;

/// A diagram of kTerminalSize as lines of at most 73 columns, each ended with a line feed and
/// without blanks at its end. Points for which there is no room follow below, and after them the
/// sentences of the description.
[[nodiscard]] std::wstring terminalDiagram(const DiagramSubject& subject, DiagramStyle style,
                                           const DiagramOptions& options);

/// Draws a list that was laid out on a grid of characters. Aspects are not drawn.
[[nodiscard]] std::wstring drawWithCharacters(const DisplayList& list);

} // namespace kestrav::present
