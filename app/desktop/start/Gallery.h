// Every form and dialog by its name, for pictures and for the tests that look at all of them.
#pragma once

#include <QString>

#include <memory>
#include <span>

class QWidget;

namespace kestrav::desktop
{

class TKSVform1;

struct GalleryRow
{
    const char* name; ///< the class, without the T: "OptionsDlg"
    QWidget* (*make)(TKSVform1& window);
};

[[nodiscard]] std::span<const GalleryRow> gallery();

/// A form or dialog as it opens for the shown chart, a child of the window; null for another name.
[[nodiscard]] QWidget* makeFromGallery(const QString& name, TKSVform1& window);

} // namespace kestrav::desktop
