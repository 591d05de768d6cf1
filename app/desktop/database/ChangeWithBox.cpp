#include "app/desktop/database/ChangeWithBox.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Ks6main.h"

#include <memory>
#include <utility>

namespace kestrav::desktop
{

void changeWithBox(TKSVform1& window, LongChange change, std::function<void(data::Outcome)> then)
{
    // Shared, because the work may outlive the window.
    auto charts =
        std::make_shared<const data::ChartDatabase>(window.workspace().database().charts());
    workWithBox(
        &window, change.working, {},
        [charts = std::move(charts), work = std::move(change.work)](const WorkHandle& handle) {
            return OpenDatabase::changedCopy(
                *charts, [&](data::ChartDatabase& copy) { return work(copy, handle.longWork()); });
        },
        [&window, revision = change.revision, step = std::move(change.step),
         then = std::move(then)](OpenDatabase::Changed changed) {
            OpenDatabase& database = window.workspace().database();
            if (database.revision() != revision) {
                window.workspace().tellProblem(TKSVform1::tr(
                    "The charts were changed meanwhile, so nothing was done. Try again."));
                return;
            }
            const data::Outcome outcome = changed.outcome;
            database.adoptChange(step, std::move(changed));
            then(outcome);
        });
}

} // namespace kestrav::desktop
