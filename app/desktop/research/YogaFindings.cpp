#include "app/desktop/research/YogaFindings.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "yoga/RuleEdit.h"

#include <optional>
#include <utility>

namespace kestrav::desktop
{

yoga::YogaSearch SearchedYoga::search() const
{
    yoga::YogaSearch made(rule, research->lines, research->charts, settings, data->series);
    made.setSecondChart(second ? &second->chart : nullptr);
    made.setMoment(moment);
    return made;
}

YogaFindings& YogaFindings::of(Workspace& workspace)
{
    auto* const found = workspace.findChild<YogaFindings*>(QString(), Qt::FindDirectChildrenOnly);
    return found != nullptr ? *found : *new YogaFindings(workspace);
}

YogaFindings::YogaFindings(Workspace& workspace)
    : QObject(&workspace), workspace_(workspace), desk_(ResearchDesk::of(workspace))
{
    OpenDatabase& database = workspace.database();
    connect(&database, &OpenDatabase::reset, this, [this, &database] {
        // Lines are known by their number.
        if (last_ && (last_->research->charts.path() != database.path() ||
                      last_->research->charts.size() != database.charts().size())) {
            forget();
        }
    });
    connect(&database, &OpenDatabase::lineInserted, this, &YogaFindings::forget);
    connect(&database, &OpenDatabase::lineRemoved, this, &YogaFindings::forget);
}

void YogaFindings::forget()
{
    if (last_) {
        last_.reset();
        emit changed();
    }
}

void YogaFindings::search(const yoga::Yoga& yoga)
{
    TMessages messages;
    if (!yoga::tellsMatchingBrackets(yoga.rule, messages)) {
        return;
    }
    core::Result<yoga::YogaRule> rule = yoga::readCheckedRule(yoga.rule);
    if (!rule) {
        workspace_.tellProblem(toQt(rule.error().text()));
        return;
    }
    auto wanted = std::make_shared<SearchedYoga>();
    wanted->title = core::fromFileBytes(yoga.title);
    wanted->text = yoga.rule;
    wanted->rule = std::move(rule.value());
    wanted->settings = workspace_.settings();
    wanted->data = workspace_.data();
    wanted->second = workspace_.secondChart();
    wanted->moment = workspace_.moment();
    desk_.prepare([this, wanted](ResearchPointer research) {
        wanted->research = std::move(research);
        run(wanted, true);
    });
}

void YogaFindings::run(std::shared_ptr<SearchedYoga> wanted, bool mayAsk)
{
    const auto find = [wanted](const WorkHandle& handle) {
        data::LongWork work;
        work.progress = [&](std::size_t done, std::size_t total) {
            handle.progress(done, total);
        };
        work.cancel = handle.cancelFlag();
        return wanted->search().run(work);
    };
    desk_.work().start(find, [this, wanted, mayAsk](std::optional<yoga::YogaFinds> finds) {
        if (!finds) {
            return;
        }
        wanted->finds = std::move(*finds);
        last_ = wanted;
        emit changed();
        TMessages messages;
        if (wanted->finds.lines.empty() && mayAsk && yoga::triesRefreshing(messages)) {
            desk_.refresh([this, wanted](ResearchPointer research) {
                auto again = std::make_shared<SearchedYoga>(*wanted);
                again->research = std::move(research);
                run(again, false);
            });
        }
    });
}

bool YogaFindings::makeGroupB(core::Messages& messages)
{
    if (!last_) {
        return false;
    }
    SettledMessages settled(messages, workspace_.settings());
    const yoga::YogaFinds finds = last_->finds;
    return workspace_.database().change(tr("B Group Tags"), [&](data::ChartDatabase& charts) {
        return yoga::makeGroupB(charts, finds, settled) ? data::Outcome::Done
                                                        : data::Outcome::Cancelled;
    }) == data::Outcome::Done;
}

} // namespace kestrav::desktop
