#include "app/desktop/start/Gallery.h"

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/TPageLayoutDlg.h"
#include "app/desktop/shell/Ks6main.h"

#include <QWidget>

#include <vector>

namespace kestrav::desktop
{

std::span<const GalleryRow> gallery()
{
    static const std::vector<GalleryRow> kRows = {
        {"PageLayoutDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TPageLayoutDlg(window.pages().layout(0), &window);
         }},
    };
    return kRows;
}

QWidget* makeFromGallery(const QString& name, TKSVform1& window)
{
    for (const GalleryRow& row : gallery()) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return row.make(window);
        }
    }
    return nullptr;
}

} // namespace kestrav::desktop
