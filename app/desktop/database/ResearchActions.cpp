#include "app/desktop/database/ResearchActions.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "data/CheckDatabaseLine.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchDatabase.h"
#include "data/ResearchRebuild.h"

#include <utility>
#include <vector>

namespace kestrav::desktop
{

/// What one refreshing works on: a copy of the charts, so that the window's own stay untouched.
struct ResearchRun
{
    data::ChartDatabase charts;
    core::Settings settings;
    DataPointer data;
    NotedMessages notes;
    bool ready = false; ///< false when the work was cancelled
    std::optional<core::Error> problem;
};

namespace
{

constexpr std::size_t kLinesBetweenLooks = 1024;

QString countText(std::size_t count)
{
    return toQt(data::updateCount(count));
}

// Finds the damaged lines, which are told on the window's thread afterwards. Charts without a name
// are called "No Name" as if the user had agreed to it.
void walk(ResearchRun& run, const WorkHandle& handle)
{
    for (std::size_t i = 0; i < run.charts.size(); ++i) {
        if (i % kLinesBetweenLooks == 0) {
            if (handle.cancelled()) {
                return;
            }
            handle.progress(0, run.charts.size());
        }
        bool cancelled = false;
        static_cast<void>(data::testLine(run.charts, i, run.notes, cancelled));
    }
    run.ready = true;
}

void buildLines(ResearchRun& run, const WorkHandle& handle)
{
    data::LongWork work;
    work.cancel = handle.cancelFlag();
    work.progress = [&handle](std::size_t done, std::size_t total) {
        handle.progress(done, total);
    };
    // What is wrong with the lines has been told.
    NotedMessages told;
    const auto lines =
        data::rebuildResearch(run.charts, run.settings, run.data->series, told, work);
    run.ready = lines.has_value();
    if (lines) {
        if (const auto saved = data::saveResearch(run.charts, run.settings, *lines); !saved) {
            run.problem = saved.error();
        }
    }
}

} // namespace

ResearchActions::ResearchActions(TKSVform1& window) : QObject(&window), window_(window)
{
    window.addCommand(MenuName::File,
                      {"RefreshResearchAction",
                       tr("Refresh Research Data&base..."),
                       {},
                       tr("Computes the positions of all charts for sorting, searches and tables"),
                       "view-refresh"},
                      [this] { refresh(); });
}

void ResearchActions::refresh()
{
    TMessages messages;
    SettledMessages settled(messages, window_.workspace().settings());
    if (data::agreesToRefresh(settled)) {
        refreshNow();
    }
}

void ResearchActions::refreshNow()
{
    OpenDatabase& database = window_.workspace().database();
    auto* const actions = window_.findChild<DatabaseActions*>();
    // The research file stands beside the database, so there has to be a place for both.
    if (!database.writable() && (actions == nullptr || !actions->saveAs())) {
        return;
    }
    beginWalk();
}

void ResearchActions::beginWalk()
{
    // Shared, because the work may outlive the window.
    auto run = std::make_shared<ResearchRun>();
    run->charts = window_.workspace().database().charts();
    run->settings = window_.workspace().settings();
    run->data = window_.workspace().data();
    workWithBox(
        &window_, tr("Looking through the charts"), {},
        [run](const WorkHandle& handle) {
            walk(*run, handle);
            return run;
        },
        [this](const std::shared_ptr<ResearchRun>& walked) {
            TMessages messages;
            if (!walked->ready || !repeat(walked->notes.said(), messages)) {
                return;
            }
            if (!walked->notes.said().empty()) {
                // Charts that got a name are changed in the window's database as well.
                window_.workspace().database().change(tr("Name of Nameless Charts"),
                                                      [&walked](data::ChartDatabase& charts) {
                                                          charts = walked->charts;
                                                          return data::Outcome::Done;
                                                      });
            }
            build(walked);
        });
}

void ResearchActions::build(std::shared_ptr<ResearchRun> run)
{
    workWithBox(
        &window_, tr("Refreshing the research database"), countText,
        [run](const WorkHandle& handle) {
            buildLines(*run, handle);
            return run;
        },
        [this](const std::shared_ptr<ResearchRun>& built) { finish(*built); });
}

void ResearchActions::finish(ResearchRun& run)
{
    if (run.problem) {
        window_.workspace().tellProblem(
            tr("The research database could not be saved: %1").arg(toQt(run.problem->text())));
    } else if (run.ready) {
        window_.workspace().tell(
            tr("The research database has been refreshed: %1 lines").arg(run.charts.size()));
        emit refreshed();
    }
}

void refreshResearch(TKSVform1& window)
{
    if (auto* const actions = window.findChild<ResearchActions*>()) {
        actions->refresh();
    }
}

bool optionsMovePlanets(const core::Settings& before, const core::Settings& after)
{
    return data::researchSettingsText(before) != data::researchSettingsText(after);
}

} // namespace kestrav::desktop
