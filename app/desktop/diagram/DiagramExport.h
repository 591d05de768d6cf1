// Diagrams in the clipboard and in files.
#pragma once

#include <QByteArray>

class QWidget;

namespace kestrav::desktop
{

class DiagramView;
class Workspace;

/// Puts the diagram into the clipboard as a picture, as SVG and as words, for light paper.
void copyDiagram(const DiagramView& view);

/// A picture with that many pixels on each side.
[[nodiscard]] QByteArray diagramPng(const DiagramView& view, int pixels);

/// A page of its own size with real text.
[[nodiscard]] QByteArray diagramPdf(const DiagramView& view);

/// Asks for a file, and for the size of a picture of pixels, and writes SVG, PNG or PDF as the
/// ending of the name says.
void saveDiagramAs(const DiagramView& view, Workspace& workspace, QWidget* parent);

} // namespace kestrav::desktop
