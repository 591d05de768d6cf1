// What the editor of yogas and the research table show.
#include "app/present/BarChart.h"
#include "app/present/ConditionDraft.h"
#include "app/present/ResearchTables.h"
#include "app/present/RuleLines.h"
#include "app/present/YogaTree.h"
#include "tests/present/WorkingCharts.h"
#include "yoga/ParseCondition.h"
#include "yoga/Subject.h"
#include "yoga/YogaRule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kestrav::present
{
namespace
{

using testing::ElementsAre;

yoga::Condition parsed(std::string_view condition)
{
    return yoga::ParseCondition(condition, yoga::kCatalogueNames);
}

std::string sentence(std::string_view condition)
{
    return core::toUtf8(yoga::conditionWords(parsed(condition)));
}

// A condition goes through its draft and comes out with the same meaning.
void expectSameThroughDraft(const std::string& condition)
{
    SCOPED_TRACE(condition);
    const std::optional<ConditionDraft> draft = readDraft(condition);
    ASSERT_TRUE(draft.has_value());
    const std::string text = conditionText(*draft);
    EXPECT_EQ(draftProblem(*draft), "") << text;
    EXPECT_EQ(sentence(text), sentence(condition)) << text;
    EXPECT_EQ(parsed(text).negated, parsed(condition).negated);
    EXPECT_EQ(readDraft(text), draft);
    // The fields of the dialog give the words of lists back in their own way.
    ConditionDraft chosen = *draft;
    for (std::size_t i = 0; i < draft->kind->used().size(); ++i) {
        const yoga::Parameter& parameter = draft->kind->parameters[i];
        if (parameter.repeated) {
            chosen.words[i] = wordsOfChoices(parameter, choicesOfWords(parameter, draft->words[i]));
        }
    }
    EXPECT_EQ(sentence(conditionText(chosen)), sentence(condition));
}

TEST(ConditionDraft, KeepsWhatEveryKindAndEveryDeliveredRuleSays)
{
    for (const yoga::Kind& kind : yoga::kinds()) {
        expectSameThroughDraft(std::string(kind.example));
    }
    std::size_t conditions = 0;
    yoga::YogaLibrary library;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(KESTRAV_RESOURCES) / "yogas")) {
        ASSERT_TRUE(library.load(entry.path()).ok());
    }
    for (const yoga::YogaPlace& place : library.all()) {
        for (const yoga::Condition& condition : library.rule(place)->conditions()) {
            expectSameThroughDraft(condition.text);
            ++conditions;
        }
    }
    EXPECT_GT(conditions, 500U);
}

TEST(ConditionDraft, WritesPrefixesMarksAndOptionalWords)
{
    ConditionDraft draft;
    draft.kind = yoga::findKind("InHouse");
    draft.words = {"Jup", "", "4"};
    EXPECT_EQ(conditionText(draft), "InHouse,,Jup,,4");
    draft.negated = true;
    draft.exchanged = true;
    EXPECT_EQ(conditionText(draft), "T.InHouse,!,Jup,,4");
    draft.inVargas = true;
    draft.vargas = {5, 0};
    draft.words = {"Jup", "L9", "ken"};
    // A lord is no name of the prefix and stands behind it.
    EXPECT_EQ(conditionText(draft), "*-1,Nava,Rasi,Jup,,,502,!,L9,ken");
    EXPECT_EQ(readDraft("*-1,Nava,Rasi,Jup,,,502,!,L9,ken"), draft);
    draft.words = {"", "L9", "ken"};
    EXPECT_NE(draftProblem(draft), "");
    EXPECT_EQ(readDraft("InHouse,,Jupiter,4"), std::nullopt);
    EXPECT_EQ(readDraft("Nonsense,,Jup"), std::nullopt);
    // Sixteen words would lose the last one silently.
    draft = {};
    draft.kind = yoga::findKind("Tithi");
    draft.words[0] = "1,2,3,4,5,6,7,8,9,10,11,12,13";
    EXPECT_EQ(draftProblem(draft), "");
    draft.words[0] += ",14";
    EXPECT_NE(draftProblem(draft), "");
}

TEST(RuleLines, ShowTruthsOfTestedConditionsAlone)
{
    const ComputedChart chart = delhiChart();
    yoga::Subject subject(chart.settings, &sourceOf(chart).series);
    subject.setChart(chart.chart);
    const std::string always = "Is,,Sun,Sun";
    const std::string never = "Is,,Sun,Moo";
    const std::string rule = "(\\" + always + "\\OR\\" + never + "\\)\\" + never;
    const auto read = yoga::YogaRule::read(rule);
    const yoga::RuleOutcome outcome = yoga::explainRule(read.value(), subject);
    const std::vector<RuleLine> lines = ruleLines(rule, &outcome);
    std::vector<int> depths;
    std::vector<LiveTruth> truths;
    for (const RuleLine& line : lines) {
        depths.push_back(line.depth);
        truths.push_back(line.truth);
    }
    EXPECT_THAT(depths, ElementsAre(0, 1, 1, 1, 0, 0));
    EXPECT_THAT(truths, ElementsAre(LiveTruth::None, LiveTruth::Holds, LiveTruth::None,
                                    LiveTruth::NotTested, LiveTruth::None, LiveTruth::Fails));
    EXPECT_EQ(ruleLines(rule, nullptr)[1].truth, LiveTruth::None);
    EXPECT_NE(lines[5].reason, L"");
    EXPECT_EQ(lines[3].reason, L"");
}

TEST(YogaTree, FiltersByTitleChapterAndTruth)
{
    yoga::YogaLibrary library;
    yoga::YogaFile file;
    const auto add = [&](const char* title, const char* chapter) {
        yoga::Yoga& yoga = file.yogas.emplace_back();
        yoga.title = title;
        yoga.chapter = chapter;
        yoga.rule = "Is,,Sun,Sun";
    };
    add("Zeta", "First");
    add("\u00c9clair", "First");
    add("Alpha", "Second");
    library.store("one.ksy", file);
    library.store("empty.ksy", {});
    const YogaTruths truths = {{false, true, true}, {}};
    const auto titles = [&](const YogaTreeChoice& choice) {
        std::string text;
        for (const YogaTreeFile& shown : yogaTree(library, truths, choice)) {
            for (const YogaTreeChapter& chapter : shown.chapters) {
                text += core::toUtf8(chapter.name) + ":";
                for (const yoga::YogaPlace& place : chapter.yogas) {
                    text += " " + library.yoga(place).title;
                }
                text += "; ";
            }
            text += std::to_string(shown.holding) + "/" + std::to_string(shown.yogas) + "\n";
        }
        return text;
    };
    EXPECT_EQ(titles({}), "First: Zeta \u00c9clair; Second: Alpha; 2/3\n0/0\n");
    EXPECT_EQ(titles({L"", false, true}), "First: \u00c9clair Zeta; Second: Alpha; 2/3\n0/0\n");
    EXPECT_EQ(titles({L"eclair", false, false}), "First: \u00c9clair; 1/1\n");
    EXPECT_EQ(titles({L"SECOND", false, false}), "Second: Alpha; 1/1\n");
    EXPECT_EQ(titles({L"", true, false}), "First: \u00c9clair; Second: Alpha; 2/2\n");
    EXPECT_EQ(titles({L"nothing", false, false}), "");
}

TEST(BarChart, BarsAreAsLongAsTheirCountsAndStayInside)
{
    const BarChartModel model = {
        L"Signs", {{L"Aries", 2}, {L"A label that is much too long for its place", 4}, {L"", 0}}};
    BarChartOptions options;
    options.width = 300.0;
    const DisplayList list = layoutBarChart(model, options);
    ASSERT_EQ(list.shapes.size(), 2U) << "an empty bar is not drawn";
    const auto length = [&](std::size_t bar) {
        return list.shapes[bar].points[1].x - list.shapes[bar].points[0].x;
    };
    EXPECT_NEAR(length(1), 2.0 * length(0), 1e-9);
    EXPECT_GT(length(0), 0.0);
    for (const Text& text : list.texts) {
        EXPECT_GE(text.box.left, 0.0);
        EXPECT_LE(text.box.right, options.width) << core::toUtf8(text.text);
    }
    EXPECT_EQ(list.regions[1].spoken, model.bars[1].label + L": 4  66.7 %");
    EXPECT_EQ(shareText(1, 0), L"");
}

} // namespace
} // namespace kestrav::present
