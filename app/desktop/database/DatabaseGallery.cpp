#include "app/desktop/database/DatabaseGallery.h"

#include "app/desktop/database/ExchangeTables.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/TImportReportDlg.h"
#include "app/desktop/database/TMergePreviewDlg.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "data/DatabaseMessages.h"

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

QWidget* sampleMergePreview(TKSVform1& window)
{
    data::ChartDatabase ours = window.workspace().database().charts();
    data::ChartDatabase theirs = ours;
    core::Chart chart;
    for (std::size_t i = 0; i < std::min<std::size_t>(theirs.size(), 4); ++i) {
        theirs.read(i, chart);
        if (i % 2 == 0) {
            chart.name += L" (copy)";
        } else {
            chart.identity.notes += L".";
            chart.identity.occupation += L".";
        }
        theirs.replace(i, chart);
    }
    const data::MergePreview preview = data::previewMerge(ours, theirs);
    return new TMergePreviewDlg(preview, mergeTable(preview, ours, theirs), "Copy.ksc", ours.path(),
                                &window);
}

QWidget* sampleImportReport(TKSVform1& window)
{
    data::ImportReport report;
    report.file = "Friends.qck";
    report.format = "QCK chart list";
    OpenDatabase& database = window.workspace().database();
    for (std::size_t i = 0; i < database.charts().size() && report.charts.size() < 12; ++i) {
        if (auto chart = database.record(i)) {
            report.charts.push_back(std::move(*chart));
        }
    }
    report.refuse(5, "the month is not between 1 and 12");
    report.remarks.push_back({3, "two hours of daylight saving were taken into the zone"});
    return new TImportReportDlg({report}, &window);
}

QWidget* sampleProgress(TKSVform1& window)
{
    constexpr std::size_t kDone = 4'200;
    constexpr std::size_t kTotal = 10'000;
    auto* const box = new TProgressDlg(
        TProgressDlg::tr("Refreshing the research database"),
        [](std::size_t count) { return toQt(data::updateCount(count)); }, &window);
    box->showProgress(kDone, kTotal);
    return box;
}

} // namespace kestrav::desktop
