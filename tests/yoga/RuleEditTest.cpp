#include "yoga/RuleEdit.h"
#include "tests/data_floor/PreparedMessages.h"
#include "yoga/RuleCheck.h"
#include "yoga/YogaListEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrav::yoga
{

namespace
{

using core::Answer;
using data::PreparedMessages;
using testing::ElementsAre;
using testing::HasSubstr;

} // namespace

TEST(RuleEdit, BuildsARule)
{
    RuleEdit edit;
    EXPECT_TRUE(edit.addOpen());
    EXPECT_TRUE(edit.addCondition("InSign,,Sun,Leo"));
    EXPECT_TRUE(edit.addClose());
    edit.select(1);
    EXPECT_TRUE(edit.addOr());
    edit.toggleNot();
    EXPECT_TRUE(edit.addCondition("InSign,,Moo,Leo"));
    EXPECT_FALSE(edit.notGiven()) << "it counts for one condition";
    EXPECT_EQ(edit.rule(), "(\\InSign,,Sun,Leo\\OR\\InSign,!,Moo,Leo\\)");
    EXPECT_EQ(edit.selected(), 3U);

    for (const char* const wrong : {"", "OR", "(", "a\\b"}) {
        EXPECT_FALSE(edit.addCondition(wrong)) << wrong;
    }
    EXPECT_TRUE(edit.negateSelected());
    EXPECT_EQ(edit.tokens()[3], "InSign,,Moo,Leo");
    edit.select(2);
    EXPECT_FALSE(edit.negateSelected()) << "OR is no condition";
    EXPECT_TRUE(edit.removeSelected());
    EXPECT_EQ(edit.selected(), 1U);
    edit.select(99);
    EXPECT_FALSE(edit.removeSelected());
    EXPECT_EQ(edit.rule(), "(\\InSign,,Sun,Leo\\InSign,,Moo,Leo\\)");

    PreparedMessages no({Answer::No});
    EXPECT_FALSE(edit.clear(no));
    no.expectOne(L"Query", L"Delete entire rule? (No undo)");
    PreparedMessages yes({Answer::Yes});
    EXPECT_TRUE(edit.clear(yes));
    EXPECT_EQ(edit.rule(), "");

    EXPECT_TRUE(edit.addCondition(std::string(kLongestRule - 3, 'x')));
    EXPECT_TRUE(edit.addOpen());
    EXPECT_FALSE(edit.addOpen()) << "the rule would be too long";
    EXPECT_EQ(edit.tokens().size(), 2U);
}

TEST(RuleEdit, NegationChangesItsMarkOnly)
{
    const struct
    {
        const char* plain;
        const char* negated;
    } cases[] = {
        {"DayBirth", "DayBirth,!"},
        {"InSign,,Sun,Leo", "InSign,!,Sun,Leo"},
        {"*o1,Nava,Rasi,Sun,,,1", "*o1,Nava,Rasi,Sun,,,1,!"},
        {"*o1,Nava,Rasi,Sun,,,1,,5", "*o1,Nava,Rasi,Sun,,,1,!,5"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(withNegation(one.plain, true), one.negated);
        EXPECT_EQ(withNegation(one.negated, false), one.plain);
        EXPECT_EQ(withNegation(one.negated, true), one.negated);
        EXPECT_EQ(withNegation(one.plain, false), one.plain);
    }
    EXPECT_EQ(withNegation("InSign,\"!,Sun,\"Leo", false), "InSign,,Sun,\"Leo");
    EXPECT_EQ(withNegation("*", true), "*,,,,,,,!");
}

TEST(RuleCheck, FindsProblems)
{
    const auto texts = [](const std::string& rule) {
        std::vector<std::string> result;
        for (const RuleProblem& problem : ruleProblems(rule)) {
            result.push_back((problem.fatal ? "fatal: " : "") + problem.text);
        }
        return result;
    };
    EXPECT_THAT(texts("InSign,,Sun,Leo\\(\\InSign,,Moo,5\\OR\\DayBirth\\)"), ElementsAre());
    EXPECT_THAT(texts(""), ElementsAre("fatal: the rule is empty"));
    EXPECT_THAT(texts("\\\\"), ElementsAre("fatal: the rule is empty"));
    EXPECT_THAT(texts(")\\("), ElementsAre("fatal: The number of opening and closing brakets are "
                                           "not equal, please correct and try again"));
    EXPECT_THAT(texts(std::string(kLongestRule + 1, 'x')),
                ElementsAre("fatal: the rule is longer than 65536 bytes"));
    for (const char* const rule : {"OR\\DayBirth", "DayBirth\\OR", "DayBirth\\OR\\OR\\DayBirth",
                                   "DayBirth\\(\\)", "(\\DayBirth\\OR\\)"}) {
        EXPECT_THAT(texts(rule), ElementsAre("there is nothing in a group or beside an OR"))
            << rule;
    }
    EXPECT_THAT(texts("DayBirth\\InSign,,Sunn,Leo"),
                ElementsAre(testing::AllOf(HasSubstr("condition 2"), HasSubstr("Sunn"),
                                           HasSubstr("never holds"), HasSubstr("is not known"))));
    EXPECT_THAT(texts("InSign,,Sun"), ElementsAre(HasSubstr("condition 1")));
    EXPECT_THAT(texts("InSign,!,Sunn,Leo"), ElementsAre(HasSubstr("always holds: the word")));
    EXPECT_THAT(texts("InSign,!,Sun"), ElementsAre(HasSubstr("always holds")));
    EXPECT_THAT(texts("InSign,Sun,Sun,Leo"), ElementsAre(HasSubstr("negation mark")));
    EXPECT_FALSE(readCheckedRule("("));
    EXPECT_FALSE(readCheckedRule(""));
    EXPECT_TRUE(readCheckedRule("InSign,,Sunn,Leo"));
}

TEST(YogaList, Commands)
{
    YogaFile file;
    Yoga& yoga = file.yogas.emplace_back();
    yoga.title = "beta";
    PreparedMessages messages;
    EXPECT_TRUE(changeRule(yoga, "*o3,Nava,Rasi,Sun,,,1,,5\\DayBirth", messages));
    EXPECT_EQ(yoga.options, "1,3");
    EXPECT_EQ(yoga.vargas, "Rasi,Nava");
    EXPECT_FALSE(changeRule(yoga, "(\\DayBirth", messages));
    messages.expectOne(
        L"Notice",
        L"The number of opening and closing brakets are not equal, please correct and try again");
    EXPECT_EQ(yoga.rule, "*o3,Nava,Rasi,Sun,,,1,,5\\DayBirth");

    importYogas(file, std::vector<CustomYoga>{{"Alpha", "DayBirth"}, {"\xC3\xA4lpha", "("}});
    EXPECT_EQ(file.yogas[1].options, "1");
    file.yogas[2].chapter = "Second";
    importYogas(file, file);
    EXPECT_EQ(file.yogas.size(), 6U);
    EXPECT_THAT(chaptersOf(file), ElementsAre("", "Second"));
    sortYogas(file);
    EXPECT_EQ(file.yogas[0].title, "Alpha");
    EXPECT_EQ(file.yogas[5].title, "beta");
    EXPECT_EQ(asCustomYogas(file)[5].rule, file.yogas[5].rule);

    PreparedMessages answers({Answer::No, Answer::Yes});
    EXPECT_FALSE(deleteYoga(file, 0, answers));
    answers.expectOne(L"Query", L"Delete Yoga from List?");
    EXPECT_TRUE(deleteYoga(file, 0, answers));
    EXPECT_EQ(file.yogas.size(), 5U);
    EXPECT_FALSE(deleteYoga(file, 5, answers)) << "there is none";
}

} // namespace kestrav::yoga
