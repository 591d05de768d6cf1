#include "app/desktop/start/Gallery.h"

#include "app/desktop/database/DatabaseGallery.h"
#include "app/desktop/entry/PlaceSource.h"
#include "app/desktop/entry/TAtlasCitiesDlg.h"
#include "app/desktop/entry/TChooseChartDlg.h"
#include "app/desktop/entry/TDataEntryForm.h"
#include "app/desktop/entry/TEventsDlg.h"
#include "app/desktop/entry/TNowLocationDlg.h"
#include "app/desktop/entry/TPcAtlasVersionDlg.h"
#include "app/desktop/entry/TWorldMapForm.h"
#include "app/desktop/help/TAboutBox.h"
#include "app/desktop/help/THelpForm.h"
#include "app/desktop/help/TQuickTipsDlg.h"
#include "app/desktop/help/TShortcutsDlg.h"
#include "app/desktop/options/Ks6customayan.h"
#include "app/desktop/options/Ks6vargaoptions.h"
#include "app/desktop/options/TChangePointDlg.h"
#include "app/desktop/options/TColoursDlg.h"
#include "app/desktop/options/TOptionWizardForm.h"
#include "app/desktop/options/TOptionsDlg.h"
#include "app/desktop/options/TSelectDashaDlg.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/TPageLayoutDlg.h"
#include "app/desktop/palette/TPaletteDlg.h"
#include "app/desktop/panels/TColumnsDlg.h"
#include "app/desktop/printing/Printing.h"
#include "app/desktop/printing/TPrintPreviewForm.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/timing/Specialdate.h"
#include "app/desktop/timing/TTransitChoicesDlg.h"
#include "app/desktop/yogas/TYogaConditionDlg.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/desktop/yogas/Ytyogatree.h"

#include <QWidget>

#include <optional>
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
        {"MergePreviewDlg", sampleMergePreview},
        {"ImportReportDlg", sampleImportReport},
        {"ProgressDlg", sampleProgress},
        {"PaletteDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TPaletteDlg(window);
         }},
        {"PrintPreviewForm",
         [](TKSVform1& window) -> QWidget* {
             return new TPrintPreviewForm(paperOfPage(*window.pages().page(), window.workspace()),
                                          window.workspace(), &window);
         }},
        {"HelpForm",
         [](TKSVform1& window) -> QWidget* {
             return new THelpForm(&window);
         }},
        {"QuickTipsDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TQuickTipsDlg(window.workspace(), &window);
         }},
        {"ShortcutsDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TShortcutsDlg(window);
         }},
        {"AboutBox",
         [](TKSVform1& window) -> QWidget* {
             return new TAboutBox(&window);
         }},
        {"ColumnsDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TColumnsDlg({QStringLiteral("Planet"), QStringLiteral("Longitude"),
                                     QStringLiteral("Sign"), QStringLiteral("Nakshatra")},
                                    {0, 2}, &window);
         }},
        {"YogaConditionDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TYogaConditionDlg(window.workspace(), "InHouse,,Jup,Moo,ken", &window);
         }},
        {"YogaTreeForm",
         [](TKSVform1& window) -> QWidget* {
             YogaDesk::of(window.workspace()).select(yoga::YogaPlace{0, 0});
             return makeYogaWindow(window.workspace(), &window);
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
        {"DataEntryForm",
         [](TKSVform1& window) -> QWidget* {
             auto* const form = new TDataEntryForm(window.workspace(), &window);
             form->edit(window.workspace().record());
             return form;
         }},
        {"EventsDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TEventsDlg(window.workspace(), &window);
         }},
        {"WorldMapForm",
         [](TKSVform1& window) -> QWidget* {
             const PlacesPointer places = PlaceSource::of(window.workspace()).places();
             return places ? new TWorldMapForm(places, std::nullopt, &window) : nullptr;
         }},
        {"AtlasCitiesDlg",
         [](TKSVform1& window) -> QWidget* {
             const PlacesPointer places = PlaceSource::of(window.workspace()).places();
             return places ? new TAtlasCitiesDlg(
                                 places, places->places.find(L"Portland", {}).places, &window)
                           : nullptr;
         }},
        {"NowLocationDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TNowLocationDlg(window.workspace(), &window);
         }},
        {"PcAtlasVersionDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TPcAtlasVersionDlg(window.workspace(), &window);
         }},
        {"ChooseChartDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TChooseChartDlg(window.workspace().database(), QObject::tr("Compare With"),
                                        &window);
         }},
        {"SpecialDateDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TSpecialDateDlg(window.workspace(), &window);
         }},
        {"TransitChoicesDlg",
         [](TKSVform1& window) -> QWidget* {
             return new TTransitChoicesDlg(window.workspace(), &window);
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
