#include "app/desktop/research/ResearchDesk.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchRebuild.h"

#include <optional>
#include <utility>
#include <vector>

namespace kestrav::desktop
{

namespace
{

// What a worker built of the lines of a database.
struct Rebuilt
{
    data::ChartDatabase charts;
    core::Settings settings;
    std::vector<NotedMessages::Said> said;
    std::optional<data::ResearchLines> lines;
};

data::LineList listOf(const data::ResearchLines& lines)
{
    data::LineList list;
    for (const std::string& line : lines) {
        list.append(line);
    }
    return list;
}

} // namespace

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
    if (workspace_.database().path().empty()) {
        workspace_.tellProblem(tr("No database is open."));
        return;
    }
    const auto build = [charts = workspace_.database().charts(), settings = workspace_.settings(),
                        data = workspace_.data()](const WorkHandle& handle) mutable {
        NotedMessages noted;
        data::LongWork work;
        work.progress = [&](std::size_t done, std::size_t total) {
            handle.progress(done, total);
        };
        work.cancel = handle.cancelFlag();
        auto built = std::make_shared<Rebuilt>();
        built->lines = data::rebuildResearch(charts, settings, data->series, noted, work);
        built->charts = std::move(charts);
        built->settings = settings;
        built->said = noted.said();
        return built;
    };
    work_.start(build, [this, then = std::move(then)](const std::shared_ptr<Rebuilt>& built) {
        TMessages messages;
        if (!built->lines || !repeat(built->said, messages)) {
            workspace_.tell(tr("The research database was not changed."));
            return;
        }
        keepNames(built->charts);
        if (const auto saved = data::saveResearch(built->charts, built->settings, *built->lines);
            !saved) {
            messages.notice(data::kErrorCaption,
                            data::kSavingError +
                                (L" " + core::fromFileBytes(saved.error().text())));
            return;
        }
        auto fresh = std::make_shared<ResearchData>();
        fresh->lines = listOf(*built->lines);
        fresh->charts = built->charts;
        fresh->settings = built->settings;
        fresh->state = data::ResearchState::Fresh;
        research_ = std::move(fresh);
        workspace_.tell(tr("The research database is fresh: %1.")
                            .arg(toQt(data::updateCount(research_->lines.size()))));
        emit changed();
        if (then) {
            then(research_);
        }
    });
}

// Charts without a name have one in their research lines, so that they get it in the database too.
void ResearchDesk::keepNames(const data::ChartDatabase& named)
{
    if (!named.modified() || named.path() != workspace_.database().path()) {
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
