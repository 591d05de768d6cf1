#include "app/cli/DatabaseWalkCommands.h"

#include "app/cli/ChartSource.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/Progress.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/YogaCommandResearch.h"
#include "app/present/BirthRecord.h"
#include "app/present/TextTable.h"
#include "core/FileText.h"
#include "data/CheckDatabaseLine.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchDatabase.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kestrav::cli
{

namespace
{

constexpr std::size_t kShownNotices = 20;
constexpr char kInterrupted[] = "interrupted; no file was changed";

// Shows the first notices about damaged lines and lets the walk go on after each.
class WalkMessages : public core::Messages
{
public:
    explicit WalkMessages(core::Messages& shown) : shown_(shown)
    {}

    core::Answer show(const std::wstring& caption, const std::wstring& text,
                      core::Buttons /*buttons*/) override
    {
        if (count_++ < kShownNotices) {
            shown_.notice(caption, text);
        }
        return core::Answer::Ok;
    }

private:
    core::Messages& shown_;
    std::size_t count_ = 0;
};

struct LineProblem
{
    std::size_t line;
    std::string text;
};

struct DatabaseCheck
{
    std::size_t charts = 0;
    std::size_t named = 0; ///< charts that were given the name "No Name"
    std::vector<LineProblem> problems;
};

void checkLine(data::ChartDatabase& database, std::size_t index, core::Messages& messages,
               DatabaseCheck& check)
{
    const std::string before(database.line(index));
    bool cancelled = false;
    if (!data::testLine(database, index, messages, cancelled)) {
        check.problems.push_back({index, "the line is too short to be a chart"});
        return;
    }
    ++check.charts;
    if (database.line(index) != before) {
        ++check.named;
        check.problems.push_back({index, "the chart has no name"});
    }
    core::Chart chart;
    database.read(index, chart);
    const std::string problem = present::birthProblem(chart);
    if (!problem.empty()) {
        check.problems.push_back({index, problem});
    }
    for (const std::string& text : present::unreadTexts(chart)) {
        check.problems.push_back({index, text});
    }
}

Json checkJson(const DatabaseCall& call, const DatabaseCheck& check, data::ResearchState research)
{
    Json object = call.object();
    object["lines"] = call.database.size();
    object["charts"] = check.charts;
    object["problems"] = Json::array();
    for (const LineProblem& problem : check.problems) {
        Json entry;
        entry["line"] = problem.line + 1;
        entry["text"] = problem.text;
        object["problems"].push_back(std::move(entry));
    }
    object["research"] = textOrNull(data::researchStateText(research));
    return object;
}

std::wstring checkText(const DatabaseCall& call, const DatabaseCheck& check,
                       data::ResearchState research)
{
    present::LabelledLines lines;
    lines.add(L"Lines", std::to_wstring(call.database.size()));
    lines.add(L"Charts", std::to_wstring(check.charts));
    lines.add(L"Problems", std::to_wstring(check.problems.size()));
    const std::wstring state = data::researchStateText(research);
    lines.add(L"Research", state.empty() ? L"The research database is up to date." : state);
    std::wstring text = lines.text();
    for (const LineProblem& problem : check.problems) {
        text += L"line " + std::to_wstring(problem.line + 1) + L": " +
                core::fromFileBytes(problem.text) + L"\n";
    }
    return text;
}

// Charts without a name were given one in memory; the file gets it when the user agrees.
ExitCode offerNames(DatabaseCall& call, std::size_t named)
{
    const std::wstring question = L"Charts without a name: " + std::to_wstring(named) +
                                  L". Save the file with 'No Name' in their places?";
    const core::Answer answer =
        call.messages.show(data::kNoticeCaption, question, core::Buttons::YesNo);
    return answer == core::Answer::Yes ? saveCall(call) : ExitCode::Done;
}

ExitCode interrupted(DatabaseCall& call)
{
    call.console.error(kInterrupted);
    return ExitCode::Failed;
}

void printRefreshed(const DatabaseCall& call, bool refreshed)
{
    const std::string file = data::researchPath(call.path).string();
    if (call.json()) {
        Json object = call.object();
        object["file"] = file;
        object["lines"] = call.database.size();
        object["refreshed"] = refreshed;
        call.console.print(jsonText(object));
        return;
    }
    call.console.print(file + (refreshed ? ": refreshed, " : ": up to date, ") +
                       std::to_string(call.database.size()) + " lines\n");
}

} // namespace

CheckDatabaseCommand::CheckDatabaseCommand()
    : DatabaseCommand("db check",
                      "Report damaged lines, texts that are not understood and the state of the "
                      "research database",
                      {}, {kYesOption})
{}

ExitCode CheckDatabaseCommand::work(DatabaseCall& call) const
{
    const data::ResearchState research = data::researchState(call.database, call.settings);
    DatabaseCheck check;
    {
        Progress progress(L"lines checked");
        call.messages.setProgress(&progress);
        WalkMessages messages(call.messages);
        for (std::size_t i = 0; i < call.database.size() && !Progress::cancelled(); ++i) {
            progress.show(i, call.database.size());
            checkLine(call.database, i, messages, check);
        }
        call.messages.setProgress(nullptr);
        if (Progress::cancelled()) {
            progress.clear();
            return interrupted(call);
        }
    }
    if (call.json()) {
        call.console.print(jsonText(checkJson(call, check, research)));
    } else {
        call.console.print(checkText(call, check, research));
    }
    const ExitCode saved = check.named > 0 ? offerNames(call, check.named) : ExitCode::Done;
    return check.problems.empty() ? saved : ExitCode::Failed;
}

RefreshResearchCommand::RefreshResearchCommand()
    : DatabaseCommand("db refresh",
                      "Build the research database of a database again when it is out of date", {},
                      {kYesOption})
{}

ExitCode RefreshResearchCommand::work(DatabaseCall& call) const
{
    if (data::researchState(call.database, call.settings) == data::ResearchState::Fresh) {
        printRefreshed(call, false);
        return ExitCode::Done;
    }
    if (!data::agreesToRefresh(call.messages)) {
        return ExitCode::Failed;
    }
    ExitCode code = ExitCode::Done;
    const std::optional<CallData> data = openCall(call.arguments, call.console, code);
    if (!data) {
        return code;
    }
    if (!refreshedResearch(call, data->data.series, code)) {
        return code;
    }
    printRefreshed(call, true);
    return ExitCode::Done;
}

} // namespace kestrav::cli
