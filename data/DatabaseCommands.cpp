#include "data/DatabaseCommands.h"

#include "core/FileText.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/DatabaseMessages.h"

#include <cerrno>
#include <cstdlib>
#include <set>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kestrav::data
{

namespace
{

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;

bool agrees(core::Messages& messages, const std::wstring& caption, const std::wstring& question)
{
    return messages.show(caption, question, Buttons::YesNo) == Answer::Yes;
}

Outcome writeTo(ChartDatabase& database, const fs::path& path, core::Messages& messages)
{
    const core::Result<void> saved = database.save(path);
    if (saved) {
        return Outcome::Done;
    }
    messages.notice(kErrorCaption,
                    kSavingError + (L" " + core::fromFileBytes(saved.error().text())));
    return Outcome::Failed;
}

// Whether the file may be written: there is none, or the user agrees to replace it.
bool mayReplace(const fs::path& path, core::Messages& messages)
{
    return !stampOf(path).exists() || agrees(messages, kWarningCaption, kOverwrite);
}

bool sameFile(const fs::path& a, const fs::path& b)
{
    std::error_code problem;
    return a == b || fs::equivalent(a, b, problem);
}

} // namespace

Outcome openDatabase(ChartDatabase& database, const fs::path& path, core::Messages& messages)
{
    if (::access(path.c_str(), R_OK) != 0) {
        messages.notice(kErrorCaption, errno == EACCES ? kNoPermission : kFileNotFound);
        return Outcome::Failed;
    }
    const core::Result<void> loaded = database.load(path);
    if (!loaded) {
        messages.notice(kErrorCaption, core::fromFileBytes(loaded.error().text()));
        return Outcome::Failed;
    }
    return Outcome::Done;
}

Outcome newDatabase(ChartDatabase& database, const fs::path& path, core::Messages& messages)
{
    if (!mayReplace(path, messages)) {
        return Outcome::Cancelled;
    }
    ChartDatabase fresh(database.order());
    fresh.begin(path);
    const Outcome outcome = writeTo(fresh, path, messages);
    if (outcome == Outcome::Done) {
        database = std::move(fresh);
    }
    return outcome;
}

Outcome saveDatabase(ChartDatabase& database, core::Messages& messages)
{
    if (database.changedOnDisk() &&
        !agrees(messages, kWarningCaption, changedOnDiskQuestion(database.path()))) {
        return Outcome::Cancelled;
    }
    return writeTo(database, database.path(), messages);
}

Outcome saveDatabaseAs(ChartDatabase& database, const fs::path& path, core::Messages& messages)
{
    if (sameFile(path, database.path())) {
        return saveDatabase(database, messages);
    }
    return mayReplace(path, messages) ? writeTo(database, path, messages) : Outcome::Cancelled;
}

Outcome saveInOtherOrder(ChartDatabase& database, core::Messages& messages)
{
    const DateOrder before = database.order();
    const DateOrder target = otherOrder(before);
    ChartDatabase turned = database;
    core::Chart chart;
    for (std::size_t i = 0; i < turned.size(); ++i) {
        if (!isShortLine(turned.line(i))) {
            turned.replaceLine(i, FormatChartLine(turned.read(i, chart), target));
        }
    }
    turned.setOrder(target);
    const Outcome outcome = saveDatabase(turned, messages);
    if (outcome == Outcome::Done) {
        database = std::move(turned);
    }
    return outcome;
}

void announceBackup(core::Messages& messages)
{
    messages.notice(kNoticeCaption, kInsertDrive);
}

Outcome backUpDatabase(const ChartDatabase& database, const fs::path& to, core::Messages& messages)
{
    if (!mayReplace(to, messages)) {
        return Outcome::Cancelled;
    }
    ChartDatabase copy = database;
    return writeTo(copy, to, messages);
}

Outcome restoreDatabase(ChartDatabase& database, const fs::path& from, const fs::path& to,
                        core::Messages& messages)
{
    ChartDatabase restored(database.order());
    if (openDatabase(restored, from, messages) == Outcome::Failed) {
        return Outcome::Failed;
    }
    if (!mayReplace(to, messages)) {
        return Outcome::Cancelled;
    }
    const Outcome outcome = writeTo(restored, to, messages);
    if (outcome == Outcome::Done) {
        database = std::move(restored);
    }
    return outcome;
}

std::unordered_set<std::wstring> namesOf(const ChartDatabase& database)
{
    std::unordered_set<std::wstring> names;
    for (std::size_t i = 0; i < database.size(); ++i) {
        names.insert(nameOfLine(database.line(i)));
    }
    return names;
}

std::wstring unusedName(const std::unordered_set<std::wstring>& taken, std::wstring_view name)
{
    std::wstring marks = L"~";
    for (; marks.size() < kNameLength; marks += L'~') {
        std::wstring candidate(name.substr(0, kNameLength - marks.size()));
        candidate += marks;
        if (!taken.contains(candidate)) {
            return candidate;
        }
    }
    return marks;
}

std::optional<std::size_t> saveChart(ChartDatabase& database, const core::Chart& chart,
                                     const SaveQuestions& questions, core::Messages& messages)
{
    constexpr int kFourDigits = 1000;
    const int year = chart.time.year;
    if (questions.shortYear && year > -kFourDigits && year < kFourDigits &&
        !agrees(messages, kWarningCaption, kShortYear)) {
        return std::nullopt;
    }
    if (chart.identity.tag == L'N' && !agrees(messages, kNoticeCaption, kSaveAsNow)) {
        return std::nullopt;
    }
    core::Chart entry = chart;
    cleanRecord(entry);
    const std::optional<std::size_t> known = database.find(entry.name);
    if (!known) {
        return database.add(entry);
    }
    switch (messages.show(kNoticeCaption, kNameExists, Buttons::YesNoCancel)) {
    case Answer::Yes:
        database.replace(*known, entry);
        return known;
    case Answer::No:
        entry.name = unusedName(namesOf(database), entry.name);
        return database.add(entry);
    default:
        return std::nullopt;
    }
}

Outcome deleteChart(ChartDatabase& database, std::wstring_view name, core::Messages& messages)
{
    const std::optional<std::size_t> line = database.find(name);
    if (!line) {
        messages.notice(kNoticeCaption, kNotSavedYet);
        return Outcome::Failed;
    }
    if (!agrees(messages, kNoticeCaption, deleteQuestion(name))) {
        return Outcome::Cancelled;
    }
    database.remove(*line);
    return Outcome::Done;
}

Outcome changeGroup(ChartDatabase& database, wchar_t group, const std::vector<std::size_t>& lines,
                    core::Messages& messages)
{
    if (!agrees(messages, kNoticeCaption, group == L'A' ? kChangeGroupA : kChangeGroupB)) {
        return Outcome::Cancelled;
    }
    const std::set<std::size_t> members(lines.begin(), lines.end());
    for (std::size_t i = 0; i < database.size(); ++i) {
        const bool tagged = tagOfLine(database.line(i)) == group;
        if (members.contains(i) != tagged) {
            database.setTag(i, tagged ? L' ' : group);
        }
    }
    return saveDatabase(database, messages);
}

bool agreesToLeave(std::wstring_view program, core::Messages& messages)
{
    return agrees(messages, kQuitCaption, leaveQuestion(program));
}

} // namespace kestrav::data
