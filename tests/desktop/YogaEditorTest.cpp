// The tree of yogas with its editor, and the search of the database.
#include "app/desktop/panels/TableModel.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/research/YogaFindings.h"
#include "app/desktop/yogas/RuleEditor.h"
#include "app/desktop/yogas/TYogaConditionDlg.h"
#include "app/desktop/yogas/YogaFilePaths.h"
#include "app/desktop/yogas/YogaTreeModel.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchDatabase.h"
#include "tests/desktop/YogaForTests.h"
#include "yoga/RuleEdit.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>

#include <functional>
#include <string>
#include <vector>

namespace kestrav::desktop
{
namespace
{

constexpr char kKendraFromMoon[] = "InHouse,,Jup,Moo,ken";

class YogaEditorTest : public YogaWindowTest
{
protected:
    RuleEditor& rule()
    {
        return *find<RuleEditor>("RuleEditor", form_);
    }
    void click(const char* action)
    {
        auto* const found = find<QAction>(action, form_);
        ASSERT_NE(found, nullptr);
        ASSERT_TRUE(found->isEnabled()) << action;
        found->trigger();
        settle();
    }
    // Fills the dialog of conditions while it is open.
    void addCondition(const std::function<void(TYogaConditionDlg&)>& fill)
    {
        QTimer::singleShot(0, [&fill] {
            auto* const dialog =
                qobject_cast<TYogaConditionDlg*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            fill(*dialog);
            dialog->accept();
        });
        click("AddConditionButton");
    }
    void chooseKind(TYogaConditionDlg& dialog, const QString& name)
    {
        auto* const kinds = find<QTreeWidget>("KindsTree", &dialog);
        const auto items = kinds->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(items.size(), 1);
        kinds->setCurrentItem(items.front());
    }
    void type(TYogaConditionDlg& dialog, const char* parameter, const QString& word)
    {
        auto* const chooser = find<QWidget>(parameter, &dialog);
        find<QComboBox>("PointComboBox", chooser)->setEditText(word);
    }
};

TEST_F(YogaEditorTest, BuildsARuleSavesItAndReadsItAgain)
{
    // A delivered yoga is copied before it can be changed.
    desk().select(yoga::YogaPlace{0, 0});
    settle();
    EXPECT_TRUE(find<QLineEdit>("TitleEdit", form_)->isReadOnly());
    EXPECT_FALSE(find<QAction>("AddConditionButton", form_)->isEnabled());
    const std::string delivered = desk().yoga()->rule;
    find<QAbstractButton>("CopyYogaButton", form_)->click();
    settle();
    ASSERT_EQ(desk().selected()->file, 1U);
    EXPECT_EQ(desk().yoga()->rule, delivered);
    EXPECT_TRUE(desk().isModified(1));

    click("NewYogaButton");
    auto* const title = find<QLineEdit>("TitleEdit", form_);
    title->setText(QStringLiteral("Prüfung"));
    QTest::keyClick(title, Qt::Key_Return);
    find<QPlainTextEdit>("InterpretationMemo", form_)->setPlainText(QStringLiteral("Two\nlines"));

    // ( Jupiter in a kendra from the Moon OR NOT one of the malefics in Leo ) Moon is the Moon
    click("OpenBracketButton");
    addCondition([this](TYogaConditionDlg& dialog) {
        chooseKind(dialog, QStringLiteral("In House"));
        EXPECT_EQ(find<QLabel>("SentenceLabel", &dialog)->text(), "Not complete yet");
        type(dialog, "Parameter0", QStringLiteral("Jup"));
        type(dialog, "Parameter1", QStringLiteral("Moo"));
        auto* const houses = find<QWidget>("Parameter2", &dialog);
        for (const char* const box : {"Box-1", "Box-4", "Box-7", "Box-10"}) {
            find<QCheckBox>(box, houses)->setChecked(true);
        }
        EXPECT_EQ(find<QLineEdit>("ConditionEdit", &dialog)->text(),
                  QLatin1String(kKendraFromMoon));
        // The truth of the dialog is that of the evaluation.
        const auto read = yoga::YogaRule::read(kKendraFromMoon);
        yoga::Subject subject(workspace().settings(), &data_->series);
        subject.setChart(workspace().chart()->chart);
        EXPECT_TRUE(find<QLabel>("TruthLabel", &dialog)
                        ->text()
                        .startsWith(yoga::ruleHolds(read.value(), subject)
                                        ? QStringLiteral("\u2713 holds")
                                        : QStringLiteral("\u2717 does not hold")));
    });
    click("OrButton");
    click("NotButton");
    addCondition([this](TYogaConditionDlg& dialog) {
        chooseKind(dialog, QStringLiteral("In Sign"));
        type(dialog, "Parameter0", QStringLiteral("mal"));
        find<QCheckBox>("Box-Leo", &dialog)->setChecked(true);
    });
    EXPECT_EQ(desk().yoga()->rule, "(\\InHouse,,Jup,Moo,ken\\OR\\InSign,!,any.mal,Leo");
    // What was typed before is in the file by now.
    EXPECT_EQ(desk().yoga()->title, "Pr\u00fcfung");
    EXPECT_EQ(desk().yoga()->interpretation, "Two\nlines");

    // Brackets that do not match are neither saved nor searched.
    const ShownMessage unequal = {QStringLiteral("Notice"), toQt(yoga::kUnequalBrackets)};
    EXPECT_EQ(unequal.text,
              "The number of opening and closing brakets are not equal, please correct and try "
              "again");
    for (const char* const action : {"SaveFileButton", "SearchButton"}) {
        click(action);
        const auto shown = TMessages::takeShown();
        ASSERT_EQ(shown.size(), 1U) << action;
        EXPECT_EQ(shown[0].caption, unequal.caption);
        EXPECT_EQ(shown[0].text, unequal.text);
    }
    const std::filesystem::path own = ownYogaPath();
    EXPECT_FALSE(std::filesystem::exists(own));

    click("CloseBracketButton");
    addCondition([this](TYogaConditionDlg& dialog) {
        chooseKind(dialog, QStringLiteral("Is"));
        type(dialog, "Parameter0", QStringLiteral("Moo"));
        type(dialog, "Parameter1", QStringLiteral("Moo"));
    });
    const std::string built = "(\\InHouse,,Jup,Moo,ken\\OR\\InSign,!,any.mal,Leo\\)\\Is,,Moo,Moo";
    EXPECT_EQ(desk().yoga()->rule, built);

    // The list shows what became of every condition.
    yoga::Subject subject(workspace().settings(), &data_->series);
    subject.setChart(workspace().chart()->chart);
    const auto read = yoga::YogaRule::read(built);
    const yoga::RuleOutcome outcome = yoga::explainRule(read.value(), subject);
    auto* const list = find<QTableWidget>("RuleList", form_);
    ASSERT_EQ(list->rowCount(), 6);
    std::size_t condition = 0;
    for (const int row : {1, 3, 5}) {
        const yoga::ConditionOutcome& one = outcome.conditions[condition++];
        EXPECT_EQ(list->item(row, 1)->text(), !one.tested ? "? not tested"
                                              : one.truth ? "\u2713 holds"
                                                          : "\u2717 does not hold");
        EXPECT_EQ(list->item(row, 2)->text(), toQt(one.reason));
    }
    EXPECT_TRUE(
        find<QLabel>("HoldsLabel", form_)
            ->text()
            .startsWith(outcome.truth ? QStringLiteral("\u2713") : QStringLiteral("\u2717")));

    // Steps are undone and done again; negation, removal.
    click("NegateButton");
    EXPECT_TRUE(desk().yoga()->rule.ends_with("Is,!,Moo,Moo"));
    click("UndoYogaButton");
    EXPECT_EQ(desk().yoga()->rule, built);
    click("RemoveButton");
    EXPECT_TRUE(desk().yoga()->rule.ends_with(")"));
    QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(desk().yoga()->rule, built);
    // What is being typed outlives a change of the shared date, and is taken over by saving.
    auto* const text = find<QLineEdit>("RuleTextEdit", form_);
    text->setFocus();
    text->end(false);
    QTest::keyClicks(text, QStringLiteral("\\Is,,Sun,Sun"));
    workspace().setMoment(workspace().moment() + 1.0);
    settle();
    EXPECT_TRUE(text->text().endsWith(QStringLiteral("Sun,Sun")));

    click("SaveFileButton");
    EXPECT_FALSE(desk().isModified(1));
    const auto saved = yoga::readYogaFile(own);
    ASSERT_TRUE(saved.ok()) << saved.error().text();
    ASSERT_EQ(saved.value().yogas.size(), 2U);
    EXPECT_EQ(saved.value().yogas[1].rule, built + "\\Is,,Sun,Sun");
    EXPECT_EQ(saved.value().yogas[1].title, "Pr\u00fcfung");
    EXPECT_EQ(saved.value().yogas[1].interpretation, "Two\nlines");
    EXPECT_EQ(saved.value().yogas[1].chapter, desk().library().yoga({1, 0}).chapter);
}

TEST_F(YogaEditorTest, AsksBeforeItDeletesAndKeepsToWhatCanBeUndone)
{
    desk().select(yoga::YogaPlace{0, 2});
    desk().copyToOwn();
    settle();
    const std::string rule = desk().yoga()->rule;
    TMessages::prepare(core::Answer::No);
    click("DeleteRuleButton");
    EXPECT_EQ(desk().yoga()->rule, rule);
    TMessages::prepare(core::Answer::Yes);
    click("DeleteRuleButton");
    EXPECT_EQ(desk().yoga()->rule, "");
    EXPECT_FALSE(find<QAction>("UndoYogaButton", form_)->isEnabled()) << "(No undo)";
    EXPECT_TRUE(desk().isModified(1));
    click("NewYogaButton");
    TMessages::prepare(core::Answer::Yes);
    click("DeleteYogaButton");
    EXPECT_EQ(desk().library().files()[1].file.yogas.size(), 1U);
    click("UndoYogaButton");
    EXPECT_EQ(desk().library().files()[1].file.yogas.size(), 2U);
    const auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 3U);
    EXPECT_EQ(shown[0].caption, "Query");
    EXPECT_EQ(shown[0].text, "Delete entire rule? (No undo)");
    EXPECT_EQ(shown[2].caption, "Query");
    EXPECT_EQ(shown[2].text, "Delete Yoga from List?");

    // Leaving asks about what was not saved; Cancel stays, Yes saves.
    TMessages messages;
    TMessages::prepare(core::Answer::Cancel);
    EXPECT_FALSE(desk().mayClose(messages));
    TMessages::prepare(core::Answer::Yes);
    EXPECT_TRUE(desk().mayClose(messages));
    EXPECT_TRUE(std::filesystem::exists(ownYogaPath()));
    EXPECT_FALSE(desk().anyModified());
    EXPECT_EQ(TMessages::takeShown().size(), 2U);

    // Another program writes the file.
    yoga::YogaFile other;
    other.yogas.resize(5);
    ASSERT_TRUE(yoga::writeYogaFile(ownYogaPath(), other).ok());
    desk().lookAtFiles();
    EXPECT_EQ(desk().library().files()[1].file.yogas.size(), 5U);
}

TEST_F(YogaEditorTest, TreeMarksWhatHoldsAndOpensFiles)
{
    auto* const tree = find<QTreeView>("YogaTree", form_);
    const QAbstractItemModelTester tester(tree->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    const auto* const model = static_cast<const YogaTreeModel*>(tree->model());
    yoga::Subject subject(workspace().settings(), &data_->series);
    subject.setChart(workspace().chart()->chart);
    subject.setMoment(workspace().moment());
    const auto holding = desk().library().holding(subject);
    ASSERT_FALSE(holding.empty());
    const QModelIndex one = model->indexOf(holding.front());
    EXPECT_TRUE(one.data().toString().startsWith(QStringLiteral("\u2713 ")));
    EXPECT_EQ(one.siblingAtColumn(1).data().toString(), "holds");

    const auto shownYogas = [&] {
        std::size_t count = 0;
        for (const yoga::YogaPlace& place : desk().library().all()) {
            count += model->indexOf(place).isValid() ? 1 : 0;
        }
        return count;
    };
    find<QCheckBox>("OnlyHoldingCheckBox", form_)->setChecked(true);
    EXPECT_EQ(shownYogas(), holding.size());
    find<QCheckBox>("OnlyHoldingCheckBox", form_)->setChecked(false);
    EXPECT_EQ(shownYogas(), desk().library().all().size());
    find<QToolButton>("ContractButton", form_)->click();
    EXPECT_FALSE(tree->isExpanded(model->index(0, 0)));
    find<QToolButton>("ExpandButton", form_)->click();
    EXPECT_TRUE(tree->isExpanded(model->index(0, 0)));

    // A file of another program with the same extension changes nothing.
    const std::filesystem::path foreign = sample_.parent_path() / "format.ksy";
    QFile file(toQt(foreign));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("meta:\n  id: png\n");
    file.close();
    QString told;
    QObject::connect(&workspace(), &Workspace::news,
                     [&](const QString& text, bool problem) { told = problem ? text : told; });
    EXPECT_FALSE(openYogaFile(workspace(), foreign));
    EXPECT_FALSE(told.isEmpty());
    EXPECT_EQ(desk().library().files().size(), 1U);
    EXPECT_TRUE(openYogaFile(workspace(),
                             std::filesystem::path(KESTRAV_RESOURCES) / "yogas" / "dhana.ksy"));
    settle();
    EXPECT_EQ(desk().library().files().size(), 2U);
    EXPECT_EQ(desk().selected()->file, 1U);
}

TEST_F(YogaEditorTest, SearchesTheDatabaseAndMakesTheBGroup)
{
    // A yoga that some of the sample charts have, but not all.
    yoga::Yoga wanted;
    wanted.title = "Moon in an odd sign";
    wanted.rule = "InSign,,Moo,odd";
    YogaFindings& findings = YogaFindings::of(workspace());
    TMessages::prepare(core::Answer::Ok); // the research database is missing
    findings.search(wanted);
    settle();
    settle();
    const auto shown = TMessages::takeShown();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].text, "Your Research Database needs refreshing. Go ahead?");
    ASSERT_NE(findings.last(), nullptr);

    // The same charts as those tested one by one.
    std::vector<std::size_t> expected;
    const auto rule = yoga::YogaRule::read(wanted.rule);
    const std::size_t count = workspace().database().charts().size();
    for (std::size_t line = 0; line < count; ++line) {
        ASSERT_TRUE(workspace().showLine(line));
        yoga::Subject subject(workspace().settings(), &data_->series);
        subject.setChart(workspace().chart()->chart);
        if (yoga::ruleHolds(rule.value(), subject)) {
            expected.push_back(line);
        }
    }
    ASSERT_FALSE(expected.empty());
    ASSERT_LT(expected.size(), count);
    EXPECT_EQ(findings.last()->finds.lines, expected);
    settle();
    auto* const natives = find<TableView>("NativesView");
    EXPECT_TRUE(natives->table().title.starts_with(L"Natives with Yoga (" +
                                                   std::to_wstring(expected.size()) + L" of " +
                                                   std::to_wstring(count) + L")"));
    ASSERT_EQ(natives->table().rows.size(), expected.size());
    EXPECT_EQ(find<TableView>("ReasonsView")->table().rows.size(), 1U);

    // Enter opens the chart and leaves the list as it is.
    natives->setCurrentIndex(natives->model()->index(int(expected.size()) - 1, 0));
    QTest::keyClick(natives, Qt::Key_Return);
    settle();
    EXPECT_EQ(workspace().chartLine(), expected.back());
    EXPECT_EQ(natives->currentIndex().row(), int(expected.size()) - 1);

    TMessages::prepare(core::Answer::Yes);
    find<QToolButton>("GroupBButton")->click();
    settle();
    const auto asked = TMessages::takeShown();
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].text, toQt(data::kChangeGroupB));
    std::vector<std::size_t> tagged;
    for (std::size_t line = 0; line < count; ++line) {
        if (data::tagOfLine(workspace().database().charts().line(line)) == L'B') {
            tagged.push_back(line);
        }
    }
    EXPECT_EQ(tagged, expected);
    EXPECT_EQ(findings.last()->finds.lines, expected) << "tags do not change what was found";

    // Nothing found asks whether to refresh.
    wanted.rule = "Is,,Sun,Moo";
    findings.search(wanted);
    settle();
    const auto none = TMessages::takeShown();
    ASSERT_EQ(none.size(), 1U);
    EXPECT_EQ(none[0].text, toQt(data::kTryRefreshing));
    EXPECT_TRUE(findings.last()->finds.lines.empty());
}

} // namespace
} // namespace kestrav::desktop
