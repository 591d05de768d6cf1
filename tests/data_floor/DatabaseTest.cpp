#include "data/ChartDatabase.h"

#include "data/BirthTexts.h"
#include "data/DatabaseCommands.h"
#include "data/DatabaseMessages.h"
#include "data/Merge.h"
#include "tests/data_floor/Folders.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrav::data
{
namespace
{

namespace fs = std::filesystem;
using core::Answer;
using core::Buttons;

using DatabaseTest = FolderTest;

core::Chart chartNamed(const std::wstring& name)
{
    core::Chart chart;
    chart.name = name;
    chart.time.year = 1975;
    return chart;
}

std::string textOf(const ChartDatabase& database)
{
    const std::vector<std::uint8_t> bytes = database.bytes();
    return {bytes.begin(), bytes.end()};
}

TEST_F(DatabaseTest, UneditedLinesGoBackByteForByte)
{
    const std::string odd = "\tRen\xE9 \"x\"\tfree text that no parser would write like this";
    const std::string utf8 = lineOf("\u092E\u0940\u0930\u093E");
    for (const std::string& text :
         {std::string(), std::string("\n\n"), odd + "\r\n" + utf8 + "\r\nshort", odd + "\n" + utf8,
          "\xEF\xBB\xBF" + utf8 + "\n" + odd + "\r\n", std::string("\r\n"),
          std::string("a\0b", 3)}) {
        ChartDatabase database;
        ASSERT_TRUE(database.load(put("charts.ksc", text)));
        EXPECT_EQ(textOf(database), text);
    }
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("charts.ksc", odd + "\r\n" + utf8 + "\r\n" + odd)));
    EXPECT_FALSE(database.modified());
    database.replace(1, chartNamed(L"New"));
    const std::string line = FormatChartLine(chartNamed(L"New"), DateOrder::DayFirst);
    EXPECT_EQ(textOf(database), odd + "\r\n" + line + "\r\n" + odd);
    EXPECT_EQ(database.addLine("added"), 3U);
    EXPECT_EQ(textOf(database), odd + "\r\n" + line + "\r\n" + odd + "\r\nadded\r\n");
    database.remove(1);
    database.setTag(0, L'A');
    EXPECT_EQ(textOf(database), "A" + odd + "\r\n" + odd + "\r\nadded\r\n");
    EXPECT_TRUE(database.modified());
    database.insertLine(1, "between");
    database.insertLine(4, "last");
    EXPECT_EQ(textOf(database), "A" + odd + "\r\nbetween\r\n" + odd + "\r\nadded\r\nlast\r\n");
}

TEST_F(DatabaseTest, OpeningTellsWhatIsWrong)
{
    const fs::path path = put("charts.ksc", lineOf("Mira") + "\n");
    PreparedMessages messages;
    ChartDatabase database;
    EXPECT_EQ(openDatabase(database, path, messages), Outcome::Done);
    EXPECT_EQ(database.size(), 1U);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(openDatabase(database, folder / "none.ksc", messages), Outcome::Failed);
    messages.expectOne(L"Error",
                       L"This file is not found, please use 'File/Open Database' to open it");
    EXPECT_EQ(openDatabase(database, folder, messages), Outcome::Failed);
    messages.shown.clear();
    EXPECT_EQ(database.size(), 1U);
    EXPECT_EQ(database.path(), path);

    fs::permissions(path, fs::perms(0));
    EXPECT_EQ(withoutPrivileges([&] {
                  openDatabase(database, path, messages);
                  return messages.shown.size() == 1 &&
                                 messages.shown[0].text ==
                                     L"You don't have permission to open this file, check with "
                                     L"your system administrator"
                             ? 0
                             : 1;
              }),
              0);
}

TEST_F(DatabaseTest, NewSaveAsAndOverwriting)
{
    const fs::path path = put("charts.ksc", lineOf("Mira") + "\n");
    PreparedMessages messages({Answer::No, Answer::Yes, Answer::No, Answer::Yes});
    ChartDatabase database;
    EXPECT_EQ(newDatabase(database, path, messages), Outcome::Cancelled);
    messages.expectOne(L"Warning", L"File exists. Overwrite?");
    EXPECT_EQ(get("charts.ksc"), lineOf("Mira") + "\n");
    EXPECT_EQ(newDatabase(database, path, messages), Outcome::Done);
    EXPECT_EQ(get("charts.ksc"), "");
    EXPECT_EQ(get("charts.BAK"), lineOf("Mira") + "\n");
    database.addLine(lineOf("Sam"));
    EXPECT_EQ(saveDatabase(database, messages), Outcome::Done);
    EXPECT_FALSE(database.modified());
    put("other.ksc", "x");
    EXPECT_EQ(saveDatabaseAs(database, folder / "other.ksc", messages), Outcome::Cancelled);
    EXPECT_EQ(saveDatabaseAs(database, folder / "./charts.ksc", messages), Outcome::Done)
        << "the same file is not asked about";
    EXPECT_EQ(saveDatabaseAs(database, folder / "other.ksc", messages), Outcome::Done);
    EXPECT_EQ(database.path(), folder / "other.ksc");
    EXPECT_EQ(get("other.ksc"), lineOf("Sam") + "\n");
    EXPECT_EQ(saveAsPrompt(path), L"Enter the Name to Save 'charts.ksc' As");
    EXPECT_EQ(std::wstring(kNewFilePrompt), L"Enter the Name for your New Data File");
}

TEST_F(DatabaseTest, AChangeOnDiskIsNoticedBeforeWriting)
{
    const fs::path path = put("charts.ksc", lineOf("Mira") + "\n");
    ChartDatabase database;
    ASSERT_TRUE(database.load(path));
    EXPECT_FALSE(database.changedOnDisk());
    ChartDatabase other;
    ASSERT_TRUE(other.load(path));
    other.addLine(lineOf("Other"));
    PreparedMessages messages({Answer::No, Answer::Yes, Answer::Yes});
    EXPECT_EQ(saveDatabase(other, messages), Outcome::Done);
    database.addLine(lineOf("Ours"));
    EXPECT_EQ(saveDatabase(database, messages), Outcome::Cancelled);
    EXPECT_EQ(get("charts.ksc"), textOf(other));
    EXPECT_EQ(messages.shown.at(0).caption, L"Warning");
    EXPECT_EQ(saveDatabase(database, messages), Outcome::Done);
    EXPECT_EQ(get("charts.ksc"), textOf(database));
    EXPECT_EQ(get("charts.BAK"), textOf(other)) << "what the other program wrote is kept";
    EXPECT_EQ(saveDatabase(database, messages), Outcome::Done);
    fs::remove(path);
    EXPECT_TRUE(database.changedOnDisk());
    EXPECT_EQ(saveDatabase(database, messages), Outcome::Done);
}

TEST_F(DatabaseTest, AFailedSaveSaysWhyAndLosesNothing)
{
    const std::string old = lineOf("Mira") + "\n";
    const fs::path path = put("charts.ksc", old);
    put("charts.BAK", "oldest");
    const auto saveFails = [&] {
        ChartDatabase database;
        PreparedMessages messages;
        if (!database.load(path)) {
            return 2;
        }
        for (int i = 0; i < 100; ++i) {
            database.addLine(lineOf("Sam"));
        }
        const bool failed = saveDatabase(database, messages) == Outcome::Failed;
        return failed && database.modified() && messages.shown.size() == 1 &&
                       messages.shown[0].caption == L"Error" &&
                       messages.shown[0].text.starts_with(L"Saving File Error : " + path.wstring() +
                                                          L": ")
                   ? 0
                   : 1;
    };
    EXPECT_EQ(onFullDisk(4096, saveFails), 0);
    fs::permissions(folder, fs::perms(0555));
    fs::permissions(path, fs::perms(0666));
    EXPECT_EQ(withoutPrivileges(saveFails), 0) << "a folder that cannot be written";
    fs::permissions(folder, fs::perms(0777));
    fs::permissions(path, fs::perms(0444));
    EXPECT_EQ(withoutPrivileges(saveFails), 0) << "a file that must not be written";
    EXPECT_EQ(get("charts.ksc"), old);
    EXPECT_EQ(get("charts.BAK"), "oldest");
    EXPECT_EQ(names(), (std::set<std::string>{"charts.BAK", "charts.ksc"}));
}

TEST_F(DatabaseTest, AKilledSaveLeavesTheOldOrTheNewFile)
{
    const std::string old = lineOf("Mira") + "\n";
    for (const core::WriteStep last : {core::WriteStep::TemporaryWritten,
                                       core::WriteStep::BackupKept, core::WriteStep::Renamed}) {
        const fs::path path = put("charts.ksc", old);
        ChartDatabase database;
        ASSERT_TRUE(database.load(path));
        database.addLine(lineOf("Sam"));
        EXPECT_EQ(inChild([&] {
                      static_cast<void>(database.save(path, [last](core::WriteStep step) {
                          if (step == last) {
                              ::raise(SIGKILL);
                          }
                      }));
                      return 0;
                  }),
                  -1);
        EXPECT_EQ(get("charts.ksc"), last == core::WriteStep::Renamed ? textOf(database) : old);
        ChartDatabase again;
        ASSERT_TRUE(again.load(path));
        EXPECT_TRUE(again.save(path));
    }
}

TEST_F(DatabaseTest, ASaveKilledInTheMiddleOfWritingLosesNothing)
{
    const std::string old = lineOf("Mira") + "\n";
    const fs::path path = put("charts.ksc", old);
    ChartDatabase database;
    ASSERT_TRUE(database.load(path));
    for (int i = 0; i < 50; ++i) {
        database.addLine(lineOf("Sam"));
    }
    const std::size_t size = database.bytes().size();
    ASSERT_GT(size, 8000U);
    // The system ends the process when its file grows beyond the limit, after any number of bytes.
    for (rlim_t limit = 0; limit < size; limit += 997) {
        EXPECT_EQ(inChild([&] {
                      const rlimit room{limit, limit};
                      const bool limited = ::setrlimit(RLIMIT_FSIZE, &room) == 0;
                      return limited && database.save(path) ? 0 : 1;
                  }),
                  -1)
            << limit;
        EXPECT_EQ(get("charts.ksc"), old) << limit;
    }
    EXPECT_FALSE(fs::exists(folder / "charts.BAK"));
    EXPECT_TRUE(database.save(path));
    EXPECT_EQ(get("charts.ksc"), textOf(database));
}

TEST_F(DatabaseTest, SavingAChartAsks)
{
    ChartDatabase database;
    database.begin(folder / "charts.ksc");
    PreparedMessages messages(
        {Answer::Yes, Answer::No, Answer::No, Answer::Cancel, Answer::No, Answer::Yes, Answer::No});
    core::Chart chart = chartNamed(L"Mira");
    EXPECT_EQ(saveChart(database, chart, {}, messages), 0U);
    EXPECT_TRUE(messages.shown.empty());

    chart.place = L"Pune";
    EXPECT_EQ(saveChart(database, chart, {}, messages), 0U);
    messages.expectOne(L"Notice", L"Name already exists, update? Click [No] to save as Nnnnnn~");
    EXPECT_EQ(database.size(), 1U);
    EXPECT_EQ(database.read(0, chart).place, L"Pune");
    EXPECT_EQ(saveChart(database, chart, {}, messages), 1U);
    EXPECT_EQ(saveChart(database, chart, {}, messages), 2U);
    EXPECT_EQ(nameOfLine(database.line(1)), L"Mira~");
    EXPECT_EQ(nameOfLine(database.line(2)), L"Mira~~");
    EXPECT_EQ(saveChart(database, chart, {}, messages), std::nullopt);
    messages.shown.clear();

    for (const int year : {999, -44}) {
        chart = chartNamed(L"Old " + std::to_wstring(year));
        chart.time.year = year;
        const bool agreed = year < 0;
        EXPECT_EQ(saveChart(database, chart, {}, messages).has_value(), agreed);
        messages.expectOne(L"Warning",
                           L"The year you have entered has less than four digits (e.g. 60 means "
                           L"60AD not 1960). Continue?\n\r(Switch this message off by unchecking "
                           L"the appropriate item in the 'Confirm' menu.)");
    }
    chart.name = L"No question";
    EXPECT_TRUE(saveChart(database, chart, {.shortYear = false}, messages));
    chart = chartNamed(L"Now");
    chart.identity.tag = L'N';
    EXPECT_FALSE(saveChart(database, chart, {}, messages));
    messages.expectOne(L"Notice", L"Save as 'Now' record?");
}

TEST_F(DatabaseTest, ChangedNamesStayWithinTheirLength)
{
    const std::wstring name(46, L'x');
    const std::wstring first = unusedName({}, name);
    EXPECT_EQ(first, std::wstring(45, L'x') + L"~");
    EXPECT_EQ(unusedName({first}, name), std::wstring(44, L'x') + L"~~");
}

TEST_F(DatabaseTest, DeletingAsks)
{
    ChartDatabase database;
    database.addLine("damaged");
    database.addLine(lineOf("Mira"));
    PreparedMessages messages({Answer::No, Answer::Yes});
    for (const wchar_t* unknown : {L"mira", L"No Name"}) {
        EXPECT_EQ(deleteChart(database, unknown, messages), Outcome::Failed);
        messages.expectOne(L"Notice", L"No need to Delete because not yet saved");
    }
    EXPECT_EQ(deleteChart(database, L"Mira", messages), Outcome::Cancelled);
    messages.expectOne(L"Notice", L"Delete 'Mira' from file?");
    EXPECT_EQ(deleteChart(database, L"Mira", messages), Outcome::Done);
    EXPECT_EQ(database.size(), 1U);
}

TEST_F(DatabaseTest, GroupTagsChangeInOneGo)
{
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("charts.ksc", lineOf("a", "A\t") + "\n" + lineOf("b", "B\t") +
                                                    "\n" + lineOf("c", "\t") + "\n")));
    PreparedMessages messages({Answer::No, Answer::Yes});
    EXPECT_EQ(changeGroup(database, L'B', {1}, messages), Outcome::Cancelled);
    messages.expectOne(L"Notice", L"Change B group tags and update file?");
    EXPECT_EQ(changeGroup(database, L'A', {1, 2}, messages), Outcome::Done);
    messages.expectOne(L"Notice", L"Change A group tags and update file?");
    EXPECT_EQ(get("charts.ksc"),
              lineOf("a", " \t") + "\n" + lineOf("b", "A\t") + "\n" + lineOf("c", "A\t") + "\n");
}

TEST_F(DatabaseTest, TheOtherDateOrder)
{
    LineParts parts;
    parts.order = "\"\"/0/0/0";
    const std::string bare = parts.line();
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("charts.ksc", bare + "\nshort\n" + lineOf("b") + "\n")));
    PreparedMessages messages;
    ASSERT_EQ(saveInOtherOrder(database, messages), Outcome::Done);
    EXPECT_EQ(database.order(), DateOrder::MonthFirst);
    EXPECT_NE(get("charts.ksc").find("\t3/5/1975\t"), std::string::npos);
    EXPECT_EQ(get("charts.ksc").find("\t5/3/1975\t"), std::string::npos);
    ASSERT_EQ(saveInOtherOrder(database, messages), Outcome::Done);
    EXPECT_EQ(get("charts.ksc"), LineParts{}.line() + "\nshort\n" + lineOf("b") + "\n")
        << "the line without an order has one now";
}

TEST_F(DatabaseTest, BackupAndRestore)
{
    const std::string text = lineOf("Mira") + "\nR\xE9\n";
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("charts.ksc", text)));
    PreparedMessages messages({Answer::Yes});
    announceBackup(messages);
    messages.expectOne(
        L"Notice",
        L"Insert a flash drive, CD or other memory device in a USB port or other spare "
        L"drive.\nThen "
        L"a dialog will open to save the Kestrav data file there.\nIf necessary navigate to the "
        L"right device.");
    EXPECT_EQ(backUpDatabase(database, folder / "copy.ksc", messages), Outcome::Done);
    EXPECT_EQ(get("copy.ksc"), text);
    EXPECT_EQ(database.path(), folder / "charts.ksc");
    database.remove(0);
    ASSERT_TRUE(database.save(folder / "charts.ksc"));
    EXPECT_EQ(restoreDatabase(database, folder / "none.ksc", folder / "charts.ksc", messages),
              Outcome::Failed);
    EXPECT_EQ(database.size(), 1U);
    EXPECT_EQ(restoreDatabase(database, folder / "copy.ksc", folder / "charts.ksc", messages),
              Outcome::Done);
    EXPECT_EQ(get("charts.ksc"), text);
    EXPECT_EQ(database.path(), folder / "charts.ksc");
    EXPECT_EQ(database.size(), 2U);
}

TEST_F(DatabaseTest, AFailedBackupOrRestoreLeavesEverything)
{
    const std::string text = lineOf("Mira") + "\n";
    const fs::path path = put("charts.ksc", text);
    put("copy.ksc", lineOf("Sam") + "\n");
    const auto fails = [&](bool restore) {
        ChartDatabase database;
        PreparedMessages messages({Answer::Yes});
        if (!database.load(path)) {
            return 2;
        }
        const Outcome outcome = restore
                                    ? restoreDatabase(database, folder / "copy.ksc", path, messages)
                                    : backUpDatabase(database, folder / "copy.ksc", messages);
        return outcome == Outcome::Failed && textOf(database) == text && database.path() == path &&
                       messages.shown.size() == 2 &&
                       messages.shown[1].text.starts_with(L"Saving File Error : ")
                   ? 0
                   : 1;
    };
    for (const bool restore : {false, true}) {
        EXPECT_EQ(onFullDisk(16, [&] { return fails(restore); }), 0) << restore;
        fs::permissions(folder, fs::perms(0555));
        EXPECT_EQ(withoutPrivileges([&] { return fails(restore); }), 0) << restore;
        fs::permissions(folder, fs::perms(0777));
    }
    EXPECT_EQ(get("charts.ksc"), text);
    EXPECT_EQ(get("copy.ksc"), lineOf("Sam") + "\n");
    EXPECT_EQ(names(), (std::set<std::string>{"charts.ksc", "copy.ksc"}));
}

TEST_F(DatabaseTest, MergingShowsWhatIsNewChangedAndEqual)
{
    ChartDatabase ours;
    ours.addLine(lineOf("same"));
    ours.addLine(lineOf("twice"));
    ours.addLine(lineOf("changed"));
    ours.addLine(lineOf("twice"));
    LineParts changed;
    changed.name = "\"changed\"";
    changed.place = "\"Pune\"";
    LineParts otherOrder;
    otherOrder.name = "\"same\"";
    otherOrder.date = "3/5/1975";
    otherOrder.order = "\"\"/0/0/0";
    ChartDatabase theirs(DateOrder::MonthFirst);
    theirs.addLine(lineOf("new"));
    theirs.addLine(otherOrder.line());
    theirs.addLine("short");
    theirs.addLine(changed.line());
    theirs.addLine(lineOf("twice"));
    theirs.addLine(lineOf("twice"));
    theirs.addLine(lineOf("twice"));

    const MergePreview preview = previewMerge(ours, theirs);
    EXPECT_EQ(preview.count(MergeKind::New), 2U) << "new and the third of one name";
    EXPECT_EQ(preview.count(MergeKind::Equal), 3U);
    EXPECT_EQ(preview.count(MergeKind::Changed), 1U);
    EXPECT_EQ(preview.count(MergeKind::Damaged), 1U);
    EXPECT_EQ(preview.entries[1].kind, MergeKind::Equal) << "the same date in the other order";
    EXPECT_EQ(preview.entries[5].ourLine, 3U);

    ChartDatabase skipped = ours;
    EXPECT_EQ(merge(skipped, preview, MergeChanged::Skip).added, 2U);
    EXPECT_EQ(skipped.line(2), lineOf("changed"));
    ChartDatabase replaced = ours;
    EXPECT_EQ(merge(replaced, preview, MergeChanged::Replace).replaced, 1U);
    EXPECT_EQ(replaced.line(2), changed.line());
    EXPECT_EQ(replaced.size(), 6U);
    EXPECT_EQ(merge(ours, preview, MergeChanged::Both).added, 3U);
    EXPECT_TRUE(ours.find(L"changed~"));
    EXPECT_EQ(merge(ours, previewMerge(ours, theirs), MergeChanged::Skip).added, 0U);
}

TEST(DatabaseMessages, LinesThatLookDamaged)
{
    EXPECT_EQ(shortLineMessage(4, "bad %s line", true),
              L"Your database may be corrupted, a very short line was detected and processing "
              L"stopped.\nTry opening the file with the same name but the extension '.BAK' which "
              L"will be there if you used the file before.\nClick Cancel if you wish to stop "
              L"processing.\nLine #5 \"bad %s line\"");
    EXPECT_EQ(shortLineMessage(0, "x", false),
              L"Your database may be corrupted, a very short line was detected.\nTry opening the "
              L"file with the same name but the extension '.BAK' which will be there if you used "
              L"the file before.\nLine #1 \"x\"");
    EXPECT_EQ(noNameMessage(9, "y"),
              L"Your database may be corrupted, a record seems to have no name. Try opening the "
              L"file with the same name but the extension '.BAK' which will be there if you used "
              L"the file before.\nClick Cancel if you wish to stop processing (may crash).\nLine "
              L"#10 \"y\"");
    EXPECT_LT(noNameMessage(0, std::string(70000, 'x')).size(), 600U);
    PreparedMessages messages({Answer::No});
    EXPECT_FALSE(agreesToLeave(L"Kestrav", messages));
    messages.expectOne(L"Quit", L"Leave Kestrav?");
    EXPECT_EQ(addQuestion("/a/list.qck", "/b/My Charts.ksc"), L"Add list.qck to My Charts.ksc?");
    EXPECT_EQ(updateCount(12), L"upd count 12");
}

} // namespace
} // namespace kestrav::data
