// Display lists on screens, pictures and paper.
#pragma once

#include "app/present/DisplayList.h"
#include "app/present/TextWidths.h"

#include <QColor>
#include <QFont>

#include <functional>

class QPainter;
class QWidget;

namespace kestrav::desktop
{

/// Paints the list with its corner at the painter's origin, one unit of the list to one of the
/// painter. Texts stay texts. `above` paints on the areas and below lines and texts.
void paintDisplayList(QPainter& painter, const present::DisplayList& list, const QFont& font,
                      const std::function<void(QPainter&)>& above = {});

[[nodiscard]] QColor toQt(present::Colour colour);

/// Widths in em of texts in a font, without hinting, for the layout of a list that is painted with
/// it.
[[nodiscard]] present::MeasureText measureWith(const QFont& font);

/// Light or dark, as the palette of a widget is.
[[nodiscard]] present::ColourScheme schemeOf(const QWidget& widget);

} // namespace kestrav::desktop
