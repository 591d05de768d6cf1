#include "app/cli/YogaCommandResearch.h"

#include "app/cli/Console.h"
#include "app/cli/Progress.h"
#include "core/FileText.h"
#include "data/DatabaseCommands.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchDatabase.h"
#include "data/ResearchRebuild.h"

#include <string>

namespace kestrav::cli
{

namespace
{

std::optional<data::ResearchLines> rebuilt(DatabaseCall& call, const astro::Series& series,
                                           Progress& progress)
{
    data::LongWork work;
    work.progress = [&](std::size_t done, std::size_t total) {
        progress.show(done, total);
    };
    work.cancel = Progress::cancelFlag();
    call.messages.setProgress(&progress);
    std::optional<data::ResearchLines> lines =
        data::rebuildResearch(call.database, call.settings, series, call.messages, work);
    call.messages.setProgress(nullptr);
    return lines;
}

} // namespace

core::Result<std::optional<wchar_t>> typedTag(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--group");
    if (!text) {
        return std::optional<wchar_t>();
    }
    const std::wstring tag = core::fromFileBytes(*text);
    if (tag.size() != 1) {
        return core::Error{"--group '" + *text + "' is no tag of one character"};
    }
    return std::optional(tag[0]);
}

std::optional<data::LineList> refreshedResearch(DatabaseCall& call, const astro::Series& series,
                                                ExitCode& code)
{
    // It lives until the files are written, so that Ctrl+C does not end the program in between.
    Progress progress(
        [](std::size_t done, std::size_t /*total*/) { return data::updateCount(done); });
    const std::optional<data::ResearchLines> lines = rebuilt(call, series, progress);
    progress.clear();
    code = ExitCode::Failed;
    if (!lines) {
        // Who answers Cancel to a notice knows it.
        if (Progress::cancelled()) {
            call.console.error("interrupted; no file was changed");
        }
        return std::nullopt;
    }
    if (call.database.modified() && saveCall(call) != ExitCode::Done) {
        return std::nullopt;
    }
    const core::Result<void> saved = data::saveResearch(call.database, call.settings, *lines);
    if (!saved) {
        data::tellSavingError(saved.error(), call.messages);
        return std::nullopt;
    }
    data::LineList list;
    for (const std::string& line : *lines) {
        list.append(line);
    }
    code = ExitCode::Done;
    return list;
}

std::optional<data::LineList> openResearch(DatabaseCall& call, const astro::Series& series,
                                           ExitCode& code)
{
    const data::ResearchState state = data::researchState(call.database, call.settings);
    if (state != data::ResearchState::Fresh) {
        call.messages.notice(data::kResearchCaption, data::researchStateText(state));
        const bool foreign = state == data::ResearchState::Foreign;
        if (!foreign && data::agreesToRefresh(call.messages)) {
            return refreshedResearch(call, series, code);
        }
        if (foreign || state == data::ResearchState::Missing) {
            code = ExitCode::Failed;
            return std::nullopt;
        }
    }
    core::Result<data::LineList> lines = data::loadResearch(call.path);
    if (!lines) {
        call.console.error(lines.error().text());
        code = ExitCode::Failed;
        return std::nullopt;
    }
    return std::move(lines.value());
}

} // namespace kestrav::cli
