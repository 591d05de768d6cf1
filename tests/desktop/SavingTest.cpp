// Saving beside the window: what is changed, closed or goes wrong meanwhile.
#include "app/desktop/database/RecentFiles.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QDialog>
#include <QFrame>
#include <QLabel>

#include <fstream>
#include <iterator>

namespace kestrav::desktop
{
namespace
{

using core::Answer;

class SavingTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        core::Settings settings = workspace().settings();
        settings.confirmLeave = false;
        workspace().changeSettings(settings);
    }

    OpenDatabase& database()
    {
        return workspace().database();
    }

    std::filesystem::path inHome(const char* name)
    {
        return toPath(home_.filePath(QLatin1String(name)));
    }

    static std::string bytesOf(const std::filesystem::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    std::string bytesNow()
    {
        const std::vector<std::uint8_t> bytes = database().charts().bytes();
        return {bytes.begin(), bytes.end()};
    }

    void rename(std::size_t line, const char* name)
    {
        QString problem;
        ASSERT_TRUE(database().renameRecord(line, QLatin1String(name), problem)) << name;
    }

    // Without waiting for what it begins.
    void trigger(const char* name)
    {
        auto* const action = find<QAction>(name);
        ASSERT_NE(action, nullptr);
        action->trigger();
    }

    void expectMessages(const QStringList& expected)
    {
        QStringList texts;
        for (const ShownMessage& message : TMessages::takeShown()) {
            texts += message.caption + QLatin1Char('|') + message.text;
        }
        EXPECT_EQ(texts.join(QLatin1Char('\n')).toStdString(),
                  expected.join(QLatin1Char('\n')).toStdString());
    }
};

TEST_F(SavingTest, WhatIsChangedMeanwhileStaysUnsaved)
{
    const std::string before = bytesOf(sample_);
    rename(1, "Saved Name");
    const std::string saved = bytesNow();
    trigger("SaveAction");
    ASSERT_TRUE(database().saving()) << "writing must not hold the window";
    EXPECT_TRUE(window().isWindowModified());
    rename(2, "Later Name");
    settle();
    EXPECT_FALSE(database().saving());
    EXPECT_EQ(bytesOf(sample_), saved);
    EXPECT_EQ(bytesOf(inHome("Sample.BAK")), before);
    EXPECT_TRUE(window().isWindowModified());
    command("UndoAction");
    EXPECT_FALSE(window().isWindowModified());
    command("RedoAction");
    // Nobody else wrote the file.
    QTest::qWait(450);
    EXPECT_FALSE(find<QFrame>("ReloadBar")->isVisible());
    command("SaveAction");
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_EQ(bytesOf(sample_), bytesNow());

    // The second of two saves at once waits for the first.
    rename(3, "First");
    trigger("SaveAction");
    rename(3, "Second");
    trigger("SaveAction");
    settle();
    EXPECT_EQ(bytesOf(sample_), bytesNow());
    EXPECT_NE(bytesOf(inHome("Sample.BAK")).find("\"First\""), std::string::npos);
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(SavingTest, AFileThatCannotBeWrittenIsTold)
{
    const std::string before = bytesOf(sample_);
    // The previous file cannot be kept where a folder has its name.
    std::filesystem::create_directories(inHome("Sample.BAK/full"));
    rename(1, "Somebody");
    trigger("SaveAction");
    rename(2, "Somebody Else");
    settle();
    const std::vector<ShownMessage> shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].caption, QStringLiteral("Error"));
    EXPECT_TRUE(shown[0].text.startsWith(QStringLiteral("Saving File Error : ")))
        << shown[0].text.toStdString();
    EXPECT_EQ(bytesOf(sample_), before);
    command("UndoAction");
    EXPECT_TRUE(window().isWindowModified()) << "the first change is not saved either";

    // Somebody who wants to save before leaving stays.
    TMessages::prepare(Answer::Yes);
    EXPECT_FALSE(window().close());
    const std::vector<ShownMessage> asked = TMessages::takeShown();
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0].text,
              QStringLiteral("Sample.ksc has changes that are not saved. Save them?"));
    EXPECT_EQ(asked[1].text, shown[0].text);
    EXPECT_TRUE(window().isVisible());

    std::filesystem::remove_all(inHome("Sample.BAK"));
    command("SaveAction");
    EXPECT_EQ(bytesOf(sample_), bytesNow());
    EXPECT_FALSE(window().isWindowModified());
}

TEST_F(SavingTest, LeavingWaitsForTheFile)
{
    rename(1, "Somebody");
    trigger("SaveAction");
    ASSERT_TRUE(database().saving());
    EXPECT_TRUE(window().close());
    EXPECT_FALSE(database().saving());
    EXPECT_EQ(bytesOf(sample_), bytesNow());
    window().show();

    // Changes from after the beginning are asked about, and saved too.
    rename(1, "Nobody");
    trigger("SaveAction");
    rename(2, "Anybody");
    TMessages::prepare(Answer::Yes);
    EXPECT_TRUE(window().close());
    expectMessages(
        {QStringLiteral("Warning|Sample.ksc has changes that are not saved. Save them?")});
    EXPECT_EQ(bytesOf(sample_), bytesNow());

    // The file is written to its end also where the window goes without being closed.
    rename(1, "Everybody");
    const std::string last = bytesNow();
    trigger("SaveAction");
    window_.reset();
    workspace_.reset();
    settle();
    EXPECT_EQ(bytesOf(sample_), last);
}

TEST_F(SavingTest, SaveAsMovesToTheNewFile)
{
    const std::string before = bytesOf(sample_);
    rename(1, "Somebody");
    const std::filesystem::path other = inHome("Other.ksc");
    TMessages::prepare(toQt(other));
    trigger("SaveAsAction");
    ASSERT_TRUE(database().saving());
    EXPECT_EQ(database().path(), sample_);
    const std::string saved = bytesNow();
    rename(2, "Later");
    settle();
    TMessages::takeShown();
    EXPECT_EQ(database().path(), other);
    EXPECT_EQ(bytesOf(other), saved);
    EXPECT_EQ(bytesOf(sample_), before);
    EXPECT_EQ(recentFiles().front(), toQt(other));
    EXPECT_TRUE(window().isWindowModified());
    command("SaveAction");
    EXPECT_EQ(bytesOf(other), bytesNow());
    EXPECT_EQ(bytesOf(sample_), before);

    TMessages::prepare(toQt(sample_));
    TMessages::prepare(Answer::No);
    command("SaveAsAction");
    const std::vector<ShownMessage> shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].caption, QStringLiteral("Enter the Name to Save 'Other.ksc' As"));
    EXPECT_EQ(shown[1].text, QStringLiteral("File exists. Overwrite?"));
    EXPECT_EQ(bytesOf(sample_), before);
}

TEST_F(SavingTest, OtherDateOrderTurnsAllLinesInOneStep)
{
    const std::string before = bytesOf(sample_);
    const core::Chart first = *database().record(1);
    command("SaveInOtherOrderAction");
    EXPECT_TRUE(workspace().settings().monthFirst);
    const std::string turned = bytesOf(sample_);
    EXPECT_NE(turned, before);
    EXPECT_EQ(turned, bytesNow());
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_EQ(database().record(1)->time.day, first.time.day);
    EXPECT_EQ(database().record(1)->time.month, first.time.month);
    command("SaveInOtherOrderAction");
    EXPECT_FALSE(workspace().settings().monthFirst);
    EXPECT_EQ(database().record(1)->time.month, first.time.month);

    // It can be cancelled.
    const std::string again = bytesOf(sample_);
    trigger("SaveInOtherOrderAction");
    find<QDialog>("TProgressDlg")->reject();
    settle();
    EXPECT_FALSE(workspace().settings().monthFirst);
    EXPECT_EQ(bytesNow(), again);

    // A change meanwhile is not lost, nor mixed with lines that do not have it.
    trigger("SaveInOtherOrderAction");
    rename(1, "Meanwhile");
    settle();
    EXPECT_EQ(database().record(1)->name, L"Meanwhile");
    EXPECT_FALSE(workspace().settings().monthFirst);
    EXPECT_EQ(bytesOf(sample_), again);
    EXPECT_EQ(find<QLabel>("NewsLabel")->text(),
              QStringLiteral("The charts were changed meanwhile, so nothing was done. Try again."));
}

TEST_F(SavingTest, BackupAndRestore)
{
    const std::filesystem::path copy = inHome("Copy.ksc");
    const QString announcement = QStringLiteral(
        "Notice|Insert a flash drive, CD or other memory device in a USB port or other spare "
        "drive.\nThen a dialog will open to save the Kestrav data file there.\n"
        "If necessary navigate to the right device.");
    rename(1, "Not Yet Saved");
    TMessages::prepare(toQt(copy));
    TMessages::prepare(Answer::Ok);
    command("BackupAction");
    std::vector<ShownMessage> shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].caption + QLatin1Char('|') + shown[0].text, announcement);
    EXPECT_EQ(shown[1].caption, QStringLiteral("Backup"));
    EXPECT_EQ(bytesOf(copy), bytesNow());
    EXPECT_EQ(database().path(), sample_);
    EXPECT_TRUE(window().isWindowModified());

    const std::filesystem::path restored = inHome("Restored.ksc");
    std::ofstream(restored) << "in the way\n";
    for (const Answer overwrite : {Answer::No, Answer::Yes}) {
        TMessages::prepare(Answer::No);
        TMessages::prepare(overwrite);
        TMessages::prepare(toQt(copy));
        TMessages::prepare(toQt(restored));
        command("RestoreAction");
        shown = TMessages::takeShown();
        ASSERT_EQ(shown.size(), 4U);
        EXPECT_EQ(shown[0].text,
                  QStringLiteral("Sample.ksc has changes that are not saved. Save them?"));
        EXPECT_EQ(shown[1].caption, QStringLiteral("Restore From"));
        EXPECT_EQ(shown[2].caption, QStringLiteral("Restore As"));
        EXPECT_EQ(shown[3].text, QStringLiteral("File exists. Overwrite?"));
        EXPECT_EQ(database().path(), overwrite == Answer::No ? sample_ : restored);
    }
    EXPECT_EQ(bytesOf(restored), bytesOf(copy));
    EXPECT_EQ(bytesOf(inHome("Restored.BAK")), "in the way\n");
    EXPECT_EQ(bytesNow(), bytesOf(copy));
    EXPECT_FALSE(window().isWindowModified());
}

} // namespace
} // namespace kestrav::desktop
