#include "app/desktop/research/ResearchDesk.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "data/CheckDatabaseLine.h"
#include "data/DatabaseCommands.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchRebuild.h"

#include <optional>
#include <utility>
#include <vector>

namespace kestrav::desktop
{

namespace
{

constexpr std::size_t kLinesBetweenLooks = 1024;

data::LineList listOf(const data::ResearchLines& lines)
{
    data::LineList list;
    for (const std::string& line : lines) {
        list.append(line);
    }
    return list;
}

} // namespace

// What one refreshing works on: a copy of the charts, so that the window's own stay untouched.
struct ResearchDesk::Run
{
    data::ChartDatabase charts;
    int revision = 0; ///< of the window's lines when they were copied
    core::Settings settings;
    DataPointer data;
    Then then;
    NotedMessages said; ///< of damaged lines
    std::optional<data::ResearchLines> lines;
    std::optional<core::Error> problem;

    // Finds the damaged lines, which are told on the window's thread afterwards. Charts without a
    // name are called "No Name" as if the user had agreed to it.
    void walk(const WorkHandle& handle)
    {
        for (std::size_t i = 0; i < charts.size(); ++i) {
            if (i % kLinesBetweenLooks == 0) {
                if (handle.cancelled()) {
                    return;
                }
                handle.progress(0, charts.size());
            }
            bool cancelled = false;
            static_cast<void>(data::testLine(charts, i, said, cancelled));
        }
    }

    void build(const WorkHandle& handle)
    {
        // What is wrong with the lines has been told.
        NotedMessages told;
        lines = data::rebuildResearch(charts, settings, data->series, told, handle.longWork());
        if (lines) {
            if (const auto saved = data::saveResearch(charts, settings, *lines); !saved) {
                problem = saved.error();
            }
        }
    }
};

ResearchDesk& ResearchDesk::of(Workspace& workspace)
{
    auto* const found = workspace.findChild<ResearchDesk*>(QString(), Qt::FindDirectChildrenOnly);
    return found != nullptr ? *found : *new ResearchDesk(workspace);
}

ResearchDesk::ResearchDesk(Workspace& workspace) : QObject(&workspace), workspace_(workspace)
{
    connect(&workspace.database(), &OpenDatabase::reset, this, [this] {
        if (research_ && research_->charts.path() != workspace_.database().path()) {
            work_.cancel();
            research_.reset();
            emit changed();
        }
    });
    // Whether the lines still belong to the charts is looked at again.
    const auto lookAgain = [this] {
        if (research_ && !work_.running()) {
            read();
        }
    };
    connect(&workspace.database(), &OpenDatabase::linesEdited, this, lookAgain);
    connect(&workspace, &Workspace::settingsChanged, this,
            [this, lookAgain](const core::Settings& before) {
                if (data::researchSettingsText(before) !=
                    data::researchSettingsText(workspace_.settings())) {
                    lookAgain();
                }
            });
}

void ResearchDesk::read()
{
    if (!workspace_.database().path().empty()) {
        load({});
    }
}

void ResearchDesk::load(Then then)
{
    work_.start(
        [charts = workspace_.database().charts(),
         settings = workspace_.settings()](const WorkHandle& /*handle*/) mutable {
            auto loaded = std::make_shared<ResearchData>();
            loaded->state = data::researchState(charts, settings);
            if (core::Result<data::LineList> lines = data::loadResearch(charts.path());
                lines && loaded->state != data::ResearchState::Foreign) {
                loaded->lines = std::move(lines.value());
            }
            loaded->charts = std::move(charts);
            loaded->settings = settings;
            return loaded;
        },
        [this, then = std::move(then)](std::shared_ptr<ResearchData> loaded) {
            research_ = std::move(loaded);
            emit changed();
            if (then) {
                then(research_);
            }
        });
}

void ResearchDesk::prepare(Then then)
{
    if (workspace_.database().path().empty()) {
        workspace_.tellProblem(tr("No database is open."));
        return;
    }
    load([this, then = std::move(then)](const ResearchPointer& loaded) {
        if (loaded->state == data::ResearchState::Fresh) {
            then(loaded);
        } else {
            ask(then);
        }
    });
}

void ResearchDesk::ask(const Then& then)
{
    workspace_.tell(toQt(data::researchStateText(research_->state)));
    if (research_->state == data::ResearchState::Foreign) {
        return;
    }
    TMessages asked;
    SettledMessages messages(asked, workspace_.settings());
    if (data::agreesToRefresh(messages)) {
        refresh(then);
    } else if (research_->state != data::ResearchState::Missing) {
        then(research_);
    }
}

void ResearchDesk::refresh(Then then)
{
    if (box_ && box_->work().running()) {
        return;
    }
    // The research file stands beside the database, so there has to be a place for both.
    if (!workspace_.database().writable() && (!place_.find || !place_.find())) {
        return;
    }
    work_.cancel();
    auto run = std::make_shared<Run>();
    // What was typed belongs to the copy, too.
    emit workspace_.database().editsDue();
    run->charts = workspace_.database().charts();
    run->revision = workspace_.database().revision();
    run->settings = workspace_.settings();
    run->data = workspace_.data();
    run->then = std::move(then);
    box_ = new TProgressDlg(tr("Looking through the charts"), {}, place_.window);
    box_->work().start(
        [run](const WorkHandle& handle) {
            run->walk(handle);
            return run;
        },
        [this](const std::shared_ptr<Run>& walked) {
            TMessages messages;
            if (!repeat(walked->said.said(), messages)) {
                workspace_.tell(tr("The research database was not changed."));
                return;
            }
            keepNames(*walked);
            build(walked);
        });
}

void ResearchDesk::build(const std::shared_ptr<Run>& run)
{
    box_ = new TProgressDlg(
        tr("Refreshing the research database"),
        [](std::size_t count) { return toQt(data::updateCount(count)); }, place_.window);
    box_->work().start(
        [run](const WorkHandle& handle) {
            run->build(handle);
            return run;
        },
        [this](const std::shared_ptr<Run>& built) { finish(*built); });
}

void ResearchDesk::finish(Run& run)
{
    if (run.problem) {
        TMessages messages;
        data::tellSavingError(*run.problem, messages);
        return;
    }
    if (!run.lines) {
        return;
    }
    auto fresh = std::make_shared<ResearchData>();
    fresh->lines = listOf(*run.lines);
    fresh->charts = std::move(run.charts);
    fresh->settings = run.settings;
    fresh->state = data::ResearchState::Fresh;
    // A look at the lines that were there before must not come after them.
    work_.cancel();
    research_ = std::move(fresh);
    workspace_.tell(
        tr("The research database has been refreshed: %1 lines").arg(research_->lines.size()));
    emit changed();
    emit refreshed();
    if (run.then) {
        run.then(research_);
    }
}

// Charts without a name have one in their research lines, so that they get it in the database too.
void ResearchDesk::keepNames(const Run& walked)
{
    const data::ChartDatabase& named = walked.charts;
    // Lines that were changed meanwhile are not replaced by what they were before.
    if (!named.modified() || named.path() != workspace_.database().path() ||
        walked.revision != workspace_.database().revision()) {
        return;
    }
    workspace_.database().change(tr("Name Charts"), [&](data::ChartDatabase& charts) {
        for (std::size_t i = 0; i < charts.size() && i < named.size(); ++i) {
            if (charts.line(i) != named.line(i)) {
                charts.replaceLine(i, std::string(named.line(i)));
            }
        }
        return data::Outcome::Done;
    });
}

} // namespace kestrav::desktop
