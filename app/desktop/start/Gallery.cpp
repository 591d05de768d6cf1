#include "app/desktop/start/Gallery.h"

#include "app/desktop/options/Ks6customayan.h"
#include "app/desktop/options/Ks6vargaoptions.h"
#include "app/desktop/options/TChangePointDlg.h"
#include "app/desktop/options/TColoursDlg.h"
#include "app/desktop/options/TOptionWizardForm.h"
#include "app/desktop/options/TOptionsDlg.h"
#include "app/desktop/options/TSelectDashaDlg.h"
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
        {"OptionsDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TOptionsDlg(window, &window);
         }},
        {"SelectDashaDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TSelectDashaDlg(window, &window);
         }},
        {"VargaOptionsDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TVargaOptionsDlg(window, &window);
         }},
        {"CustomAyanamsaDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TCustomAyanamsaDlg(window.workspace(), window.workspace().settings(),
                                           &window);
         }},
        {"ColoursDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TColoursDlg(window, &window);
         }},
        {"ChangePointDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TChangePointDlg(window, &window);
         }},
        {"OptionWizardForm",
         [](TKSVform1& window) -> QWidget* {
             return new TOptionWizardForm(window, &window);
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
