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
    tellSavingError(saved.error(), messages);
    return Outcome::Failed;
}

bool sameFile(const fs::path& a, const fs::path& b)
{
    std::error_code problem;
    return a == b || fs::equivalent(a, b, problem);
}

} // namespace

bool agreesToReplace(const fs::path& path, core::Messages& messages)
{
    return !stampOf(path).exists() || agrees(messages, kWarningCaption, kOverwrite);
}

std::optional<fs::path> agreeToSave(const ChartDatabase& database, const fs::path& path,
                                    core::Messages& messages)
{
    if (!sameFile(path, database.path())) {
        return agreesToReplace(path, messages) ? std::optional(path) : std::nullopt;
    }
    const bool agreed = !database.changedOnDisk() ||
                        agrees(messages, kWarningCaption, changedOnDiskQuestion(database.path()));
    return agreed ? std::optional(database.path()) : std::nullopt;
}

void tellSavingError(const core::Error& problem, core::Messages& messages)
{
    messages.notice(kErrorCaption, kSavingError + (L" " + core::fromFileBytes(problem.text())));
}

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
    if (!agreesToReplace(path, messages)) {
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
    return saveDatabaseAs(database, database.path(), messages);
}

Outcome saveDatabaseAs(ChartDatabase& database, const fs::path& path, core::Messages& messages)
{
    const std::optional<fs::path> target = agreeToSave(database, path, messages);
    return target ? writeTo(database, *target, messages) : Outcome::Cancelled;
}

bool turnDates(ChartDatabase& database, const LongWork& work)
{
    constexpr std::size_t kLinesBetweenLooks = 256;
    const DateOrder target = otherOrder(database.order());
    core::Chart chart;
    for (std::size_t i = 0; i < database.size(); ++i) {
        if (i % kLinesBetweenLooks == 0) {
            if (work.progress) {
                work.progress(i, database.size());
            }
            if (work.cancelled()) {
                return false;
            }
        }
        if (!isShortLine(database.line(i))) {
            database.replaceLine(i, FormatChartLine(database.read(i, chart), target));
        }
    }
    database.setOrder(target);
    return true;
}

Outcome saveInOtherOrder(ChartDatabase& database, core::Messages& messages)
{
    ChartDatabase turned = database;
    turnDates(turned);
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
    if (!agreesToReplace(to, messages)) {
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
    if (!agreesToReplace(to, messages)) {
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

std::optional<std::size_t> lineOfName(const ChartDatabase& database, std::wstring_view name,
                                      std::optional<std::size_t> own)
{
    const bool itself = own && *own < database.size() && nameOfLine(database.line(*own)) == name;
    return itself ? own : database.find(name);
}

std::optional<std::size_t> saveChart(ChartDatabase& database, const core::Chart& chart,
                                     const SaveQuestions& questions, core::Messages& messages,
                                     std::optional<std::size_t> own)
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
    const std::optional<std::size_t> known = lineOfName(database, entry.name, own);
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

bool agreesToChangeGroup(wchar_t group, core::Messages& messages)
{
    return agrees(messages, kNoticeCaption, group == L'A' ? kChangeGroupA : kChangeGroupB);
}

void setGroup(ChartDatabase& database, wchar_t group, const std::vector<std::size_t>& lines)
{
    const std::set<std::size_t> members(lines.begin(), lines.end());
    for (std::size_t i = 0; i < database.size(); ++i) {
        const bool tagged = tagOfLine(database.line(i)) == group;
        if (members.contains(i) != tagged) {
            database.setTag(i, tagged ? L' ' : group);
        }
    }
}

Outcome changeGroup(ChartDatabase& database, wchar_t group, const std::vector<std::size_t>& lines,
                    core::Messages& messages)
{
    if (!agreesToChangeGroup(group, messages)) {
        return Outcome::Cancelled;
    }
    setGroup(database, group, lines);
    return saveDatabase(database, messages);
}

bool agreesToLeave(std::wstring_view program, core::Messages& messages)
{
    return agrees(messages, kQuitCaption, leaveQuestion(program));
}

} // namespace kestrav::data
