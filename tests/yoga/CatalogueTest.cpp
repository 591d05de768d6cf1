#include "yoga/Catalogue.h"

#include "tests/yoga/ConditionCharts.h"
#include "yoga/YogaRuleParser.h"
#include "yoga/conditions/Tests.h"

#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace kestrav::yoga
{

namespace
{

TEST(Catalogue, everyKindHasItsTestAndAnExampleOfItself)
{
    std::set<std::string_view> keywords;
    for (const Kind& kind : kinds()) {
        SCOPED_TRACE(kind.keyword);
        EXPECT_TRUE(keywords.insert(kind.keyword).second);
        EXPECT_NE(testOfKind(kind.number), nullptr);
        const Condition example = conditionOf(kind.example);
        EXPECT_EQ(example.kind % kSecondChartKinds, kind.number);
        EXPECT_FALSE(kind.exampleMeaning.empty());
        const std::wstring words = conditionWords(example);
        EXPECT_GT(words.size(), 5U);
        EXPECT_EQ(words.find_first_of(L"{}?"), std::wstring::npos);
        // Only the last parameter takes all the words that are left.
        const auto parameters = kind.used();
        for (std::size_t i = 0; i + 1 < parameters.size(); ++i) {
            EXPECT_FALSE(parameters[i].repeated);
        }
    }
    for (int number = -1; number <= kMaxKindNumber; ++number) {
        EXPECT_EQ(testOfKind(number) != nullptr, findKind(number) != nullptr) << number;
    }
}

TEST(Catalogue, theRulesOfThePageFitTheirKinds)
{
    for (const RuleExample& example : ruleExamples()) {
        const core::Result<YogaRule> rule = YogaRule::read(example.rule);
        ASSERT_TRUE(rule.ok()) << example.rule;
        EXPECT_TRUE(bracketsBalanced(rule.value())) << example.rule;
        EXPECT_TRUE(rule.value().unknownWords().empty()) << example.rule;
        for (const Condition& condition : rule.value().conditions()) {
            EXPECT_EQ(conditionProblem(condition), "") << condition.text;
        }
    }
}

TEST(Catalogue, thePageOfTheDocumentationIsThatOfTheTable)
{
    std::ifstream file(KESTRAV_RESOURCES "/../docs/yoga-conditions.md", std::ios::binary);
    const std::string page((std::istreambuf_iterator<char>(file)), {});
    EXPECT_EQ(page, catalogueDocument()) << "make_yoga_conditions writes it";
}

TEST(Catalogue, needsAreThoseOfKindPointsAndDivisions)
{
    const auto needs = [](std::string_view text) {
        return needsOf(conditionOf(text));
    };
    const auto chart = [&](std::string_view text) {
        return needs(text).chart;
    };
    EXPECT_EQ(chart("InHouse,,Mar,Moo,7"), Needs::Signs);
    EXPECT_EQ(chart("InHouse,,L9,Asc,7"), Needs::Signs);
    EXPECT_EQ(chart("InHouse,,any.kenL,7"), Needs::Signs);
    EXPECT_EQ(chart("InHouse,,any.ben,7"), Needs::Positions);
    EXPECT_EQ(chart("InHouse,,AK,7"), Needs::Positions);
    EXPECT_EQ(chart("InHouse,,Mar,UpL,7"), Needs::Positions);
    EXPECT_EQ(chart("InHouse,,Gul,7"), Needs::Chart);
    EXPECT_EQ(chart("*-1,Nava,Nava,Mar,Asc,,2,,7"), Needs::Positions);
    EXPECT_EQ(chart("*-1,Rasi,Rasi,Gul,Asc,,2,,7"), Needs::Chart);
    EXPECT_EQ(chart("Aspect,,Jup,Moo"), Needs::Signs);
    EXPECT_EQ(chart("Aspect,,Jup,Moo,value,30"), Needs::Positions);
    EXPECT_EQ(chart("Strongest,,Sun,pla,degree"), Needs::Positions);
    EXPECT_EQ(chart("Strongest,,Sun,pla,req"), Needs::Strengths);
    EXPECT_EQ(chart("Shadbala,,Jup,60"), Needs::Strengths);
    EXPECT_EQ(needsOf(ParseCondition("NoSuch,,Jup", kCatalogueNames)).chart, Needs::Nothing);
    EXPECT_TRUE(needs("Tithi,,15").researchSuffices());
    EXPECT_FALSE(needs("DayBirth,").researchSuffices());

    EXPECT_FALSE(needs("InHouse,,Mar,Moo,7").secondChart);
    EXPECT_TRUE(needs("InHouse,,T.Mar,Moo,7").secondChart);
    EXPECT_TRUE(needs("InHouse,,any.T.ben,Moo,7").secondChart);
    EXPECT_TRUE(needs("T.Shadbala,,Jup,60").secondChart);
    EXPECT_TRUE(needs("T.Shadbala,,Jup,60").researchSuffices());
    EXPECT_TRUE(needs("Dasha,,L9").dasha);
    EXPECT_FALSE(needs("Dasha,,L9").researchSuffices());
}

} // namespace

} // namespace kestrav::yoga
