// Diagrams for screen readers: a house holds its points, each with its words and its place.
#pragma once

namespace kestrav::desktop
{

class DiagramView;

/// Makes diagrams known to screen readers. Calling it again does nothing.
void installDiagramAccessibility();

/// Tells that the keyboard is now at a region; -1 for the diagram itself.
void tellFocusOfRegion(DiagramView& view, int region);

} // namespace kestrav::desktop
