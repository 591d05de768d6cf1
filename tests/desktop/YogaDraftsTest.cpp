// What becomes of edited yogas: steps, and drafts after an end without saving.
#include "app/desktop/yogas/YogaDrafts.h"
#include "app/desktop/yogas/TYogaConditionDlg.h"
#include "app/desktop/yogas/YogaFilePaths.h"
#include "tests/desktop/YogaForTests.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <QUndoStack>

namespace kestrav::desktop
{
namespace
{

class YogaDraftsTest : public YogaWindowTest
{
protected:
    // An end without closing, and a new start.
    void killAndOpen()
    {
        openWindow();
        openYogas();
    }

    void keep()
    {
        window().findChild<YogaDrafts*>()->keep();
    }
    bool offered()
    {
        return !find<QWidget>("YogaDraftBar")->isHidden();
    }
    void click(const char* action)
    {
        auto* const found = find<QAction>(action, form_);
        ASSERT_TRUE(found->isEnabled()) << action;
        found->trigger();
        settle();
    }
    void typeTitle(const char* text)
    {
        auto* const title = find<QLineEdit>("TitleEdit", form_);
        title->setFocus();
        title->selectAll();
        QTest::keyClicks(title, QLatin1String(text));
        QTest::keyClick(title, Qt::Key_Return);
        settle();
    }
};

TEST_F(YogaDraftsTest, UnsavedYogasAreOfferedAfterAnEndWithoutSaving)
{
    EXPECT_FALSE(offered());
    click("NewYogaButton");
    EXPECT_TRUE(find<QLineEdit>("TitleEdit", form_)->hasSelectedText()) << "a new yoga is named";
    typeTitle("Half done");
    auto* const text = find<QPlainTextEdit>("InterpretationMemo", form_);
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("Still typed"));
    keep();
    EXPECT_EQ(text->toPlainText(), "Still typed");
    ASSERT_EQ(keptYogaDrafts().size(), 1U);

    killAndOpen();
    EXPECT_TRUE(offered());
    EXPECT_EQ(find<QLabel>("YogaDraftLabel")->text(),
              "Changes of yogas that were not saved were kept: myyogas.ksy");
    // What is edited before the user decides is a draft of its own.
    click("NewYogaButton");
    keep();
    EXPECT_EQ(keptYogaDrafts().size(), 2U);
    find<QPushButton>("ContinueYogaDraftButton")->click();
    settle();
    EXPECT_FALSE(offered());
    ASSERT_NE(desk().yoga(), nullptr);
    EXPECT_EQ(desk().yoga()->title, "Half done");
    EXPECT_EQ(desk().yoga()->interpretation, "Still typed");
    EXPECT_FALSE(std::filesystem::exists(ownYogaPath())) << "written without being asked";
    keep();
    EXPECT_EQ(keptYogaDrafts().size(), 1U);

    click("SaveFileButton");
    keep();
    EXPECT_TRUE(keptYogaDrafts().empty());
    const auto saved = yoga::readYogaFile(ownYogaPath());
    ASSERT_TRUE(saved.ok());
    EXPECT_EQ(saved.value().yogas.at(0).title, "Half done");
}

TEST_F(YogaDraftsTest, DraftsGoWhenTheyAreNotWanted)
{
    click("NewYogaButton");
    typeTitle("First");
    click("SaveFileButton");
    typeTitle("Second");
    keep();
    killAndOpen();
    // The file was written by another program meanwhile: saving what was kept asks.
    yoga::YogaFile other;
    other.yogas.resize(3);
    ASSERT_TRUE(yoga::writeYogaFile(ownYogaPath(), other).ok());
    find<QPushButton>("ContinueYogaDraftButton")->click();
    settle();
    TMessages::prepare(core::Answer::No);
    click("SaveFileButton");
    ASSERT_EQ(TMessages::takeShown().size(), 1U);
    EXPECT_EQ(yoga::readYogaFile(ownYogaPath()).value().yogas.size(), 3U);
    click("UndoYogaButton");
    EXPECT_EQ(desk().yoga()->title, "") << "the file as it is";
    keep();
    EXPECT_TRUE(keptYogaDrafts().empty()) << "nothing is unsaved";

    // Leaving without saving is a decision.
    core::Settings settings = workspace().settings();
    settings.confirmLeave = false;
    workspace().changeSettings(settings);
    click("RedoYogaButton");
    keep();
    ASSERT_EQ(keptYogaDrafts().size(), 1U);
    TMessages::prepare(core::Answer::No);
    EXPECT_TRUE(window().close());
    EXPECT_EQ(TMessages::takeShown().size(), 1U);
    EXPECT_TRUE(keptYogaDrafts().empty());

    // So is the other button; damaged drafts are not offered.
    killAndOpen();
    EXPECT_FALSE(offered());
    click("NewYogaButton");
    keep();
    ASSERT_EQ(keptYogaDrafts().size(), 1U);
    ASSERT_TRUE(writeYogaDraft(newYogaDraftPath(), {ownYogaPath(), {}, {'<', 'k'}}).ok());
    killAndOpen();
    find<QPushButton>("DiscardYogaDraftButton")->click();
    EXPECT_FALSE(offered());
    EXPECT_TRUE(keptYogaDrafts().empty());
}

TEST_F(YogaDraftsTest, OneEditIsOneStep)
{
    click("NewYogaButton");
    typeTitle("Moon strong");
    ASSERT_NE(desk().steps(), nullptr);
    EXPECT_EQ(desk().steps()->count(), 2);
    click("UndoYogaButton");
    EXPECT_EQ(find<QLineEdit>("TitleEdit", form_)->text(), "New yoga");
    click("RedoYogaButton");
    EXPECT_EQ(find<QLineEdit>("TitleEdit", form_)->text(), "Moon strong");
    EXPECT_FALSE(find<QAction>("RedoYogaButton", form_)->isEnabled());
}

TEST_F(YogaDraftsTest, PartsOfARuleAreMovedSoThatBracketsReachItsBeginning)
{
    click("NewYogaButton");
    auto* const text = find<QLineEdit>("RuleTextEdit", form_);
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("Retrograde,,Mar\\Retrograde,,Jup"));
    QTest::keyClick(text, Qt::Key_Return);
    settle();
    auto* const list = find<QTableWidget>("RuleList", form_);
    list->setFocus();
    list->setCurrentCell(0, 0);
    EXPECT_FALSE(find<QAction>("MoveUpButton", form_)->isEnabled());
    click("OpenBracketButton");
    QTest::keyClick(list, Qt::Key_Up, Qt::ControlModifier);
    settle();
    EXPECT_EQ(desk().yoga()->rule, "(\\Retrograde,,Mar\\Retrograde,,Jup");
    EXPECT_EQ(list->currentRow(), 0) << "what was moved stays selected";
    click("MoveDownButton");
    click("MoveDownButton");
    EXPECT_EQ(desk().yoga()->rule, "Retrograde,,Mar\\Retrograde,,Jup\\(");
    EXPECT_FALSE(find<QAction>("MoveDownButton", form_)->isEnabled());
    click("UndoYogaButton");
    EXPECT_EQ(desk().yoga()->rule, "Retrograde,,Mar\\(\\Retrograde,,Jup");
}

TEST_F(YogaDraftsTest, PointsAreTypedByWordOrName)
{
    TYogaConditionDlg dialog(workspace(), {}, &window());
    auto* const kinds = find<QTreeWidget>("KindsTree", &dialog);
    kinds->setCurrentItem(
        kinds->findItems(QStringLiteral("Retrograde"), Qt::MatchExactly | Qt::MatchRecursive)
            .value(0));
    auto* const point = find<QComboBox>("PointComboBox", find<QWidget>("Parameter0", &dialog));
    for (const char* const typed : {"Mar", "mar", "Mars", "mars", "Mar \u2013 Mars"}) {
        point->setEditText(QString::fromUtf8(typed));
        EXPECT_TRUE(dialog.condition().ends_with(",Mar")) << typed << ": " << dialog.condition();
    }
    // A word of its own is not taken for a name.
    point->setEditText(QStringLiteral("L1"));
    EXPECT_TRUE(dialog.condition().ends_with(",L1")) << dialog.condition();
}

} // namespace
} // namespace kestrav::desktop
