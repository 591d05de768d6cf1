#include "core/DisplayFlags.h"
#include "yoga/ParseCondition.h"
#include "yoga/YogaRuleParser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

namespace
{

// In these tests a condition is one letter, and kind 0 to 25 says which.
int kindOfLetter(std::string_view word)
{
    return word.size() == 1 && word[0] >= 'A' && word[0] <= 'Z' ? word[0] - 'A' : -1;
}

int codeOfLength(std::string_view word)
{
    return word.size() > 3 ? int(1000 + word.size()) : -1;
}

constexpr ConditionNames kLetters{codeOfLength, kindOfLetter};

YogaRule readRule(std::string_view text)
{
    core::Result<YogaRule> rule = YogaRule::read(text, kLetters);
    EXPECT_TRUE(rule.ok());
    return std::move(rule.value());
}

struct Outcome
{
    bool truth = false;
    std::string tested; ///< the letters in the order of testing

    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome)
{
    return out << outcome.truth << " after " << outcome.tested;
}

// Letter k is true when bit k is set.
Outcome evaluated(const YogaRule& rule, unsigned truths)
{
    std::vector<TestedCondition> tested;
    Outcome outcome;
    outcome.truth = evaluateRule(
        rule,
        [&](const Condition& condition) {
            return ((truths >> unsigned(condition.kind)) & 1U) != 0;
        },
        &tested);
    for (const TestedCondition& one : tested) {
        const Condition& condition = rule.conditions()[one.condition];
        outcome.tested += char('A' + condition.kind);
        const bool truth = ((truths >> unsigned(condition.kind)) & 1U) != 0;
        EXPECT_EQ(one.truth, truth != condition.negated);
    }
    return outcome;
}

// Ordinary logic by recursive descent over a rule with matching brackets, with the law of empty
// pieces: what is empty is true only behind a true factor of its chain with nothing but "("
// between.
class PlainLogic
{
public:
    PlainLogic(std::string_view rule, unsigned truths) : tokens_(splitRule(rule)), truths_(truths)
    {}

    Outcome evaluate()
    {
        outcome_.truth = alternatives(false, true);
        return outcome_;
    }

private:
    [[nodiscard]] bool at(std::string_view token) const
    {
        return next_ < tokens_.size() && tokens_[next_] == token;
    }

    // `live` says whether conditions are tested; every token is passed over in any case.
    bool alternatives(bool emptyIsTrue, bool live)
    {
        bool truth = chain(emptyIsTrue, live);
        while (at("OR")) {
            ++next_;
            const bool other = chain(false, live && !truth);
            truth = truth || other;
        }
        return truth;
    }

    bool chain(bool emptyIsTrue, bool live)
    {
        bool truth = emptyIsTrue;
        bool first = true;
        while (next_ < tokens_.size() && !at("OR") && !at(")")) {
            const bool alive = live && (first || truth);
            const bool factor =
                at("(") ? group(first ? emptyIsTrue : true, alive) : condition(alive);
            truth = (first || truth) && factor;
            first = false;
        }
        return truth;
    }

    bool group(bool emptyIsTrue, bool live)
    {
        ++next_;
        const bool truth = alternatives(emptyIsTrue, live);
        ++next_;
        return truth;
    }

    bool condition(bool live)
    {
        const std::string_view token = tokens_[next_++];
        if (live) {
            outcome_.tested += token[0];
        }
        const bool truth = ((truths_ >> unsigned(token[0] - 'A')) & 1U) != 0;
        return truth != token.ends_with('!');
    }

    std::vector<std::string_view> tokens_;
    unsigned truths_;
    std::size_t next_ = 0;
    Outcome outcome_;
};

// Every string of up to `most` tokens whose brackets match, its conditions A, B, C in order.
class AllRules
{
public:
    explicit AllRules(int most) : most_(most)
    {}

    template <typename Use>
    void forEach(const Use& use)
    {
        extend("", 0, 0, 0, use);
    }

private:
    template <typename Use>
    void extend(const std::string& rule, int tokens, int depth, int conditions, const Use& use)
    {
        if (depth == 0) {
            use(rule, conditions);
        }
        if (tokens == most_) {
            return;
        }
        const std::string head = rule.empty() ? "" : rule + "\\";
        extend(head + "OR", tokens + 1, depth, conditions, use);
        extend(head + char('A' + conditions), tokens + 1, depth, conditions + 1, use);
        if (depth + 1 <= most_ - tokens - 1) {
            extend(head + "(", tokens + 1, depth + 1, conditions, use);
        }
        if (depth > 0) {
            extend(head + ")", tokens + 1, depth - 1, conditions, use);
        }
    }

    int most_;
};

// A random rule without empty pieces.
class RandomRules
{
public:
    explicit RandomRules(unsigned seed) : random_(seed)
    {}

    std::string alternatives(int depth)
    {
        std::string text = chain(depth);
        for (int more = whole(0, 2); more > 0; --more) {
            text += "\\OR\\" + chain(depth);
        }
        return text;
    }
    unsigned truths()
    {
        return unsigned(random_());
    }

private:
    int whole(int low, int high)
    {
        return std::uniform_int_distribution<int>(low, high)(random_);
    }
    std::string chain(int depth)
    {
        std::string text = factor(depth);
        for (int more = whole(0, 2); more > 0; --more) {
            text += "\\" + factor(depth);
        }
        return text;
    }
    std::string factor(int depth)
    {
        if (depth > 0 && whole(0, 2) == 0) {
            return "(\\" + alternatives(depth - 1) + "\\)";
        }
        return std::string(1, char('A' + whole(0, 25))) + (whole(0, 3) == 0 ? ",!" : "");
    }

    std::mt19937 random_;
};

} // namespace

TEST(RuleParser, AgreesWithPlainLogicOnEveryShortRule)
{
    int evaluations = 0;
    AllRules(9).forEach([&](const std::string& text, int conditions) {
        const YogaRule rule = readRule(text);
        ASSERT_TRUE(bracketsBalanced(rule)) << text;
        for (unsigned truths = 0; truths < (1U << unsigned(conditions)); ++truths) {
            ++evaluations;
            ASSERT_EQ(evaluated(rule, truths), PlainLogic(text, truths).evaluate())
                << text << " " << truths;
        }
    });
    EXPECT_GT(evaluations, 200'000);
}

TEST(RuleParser, AgreesWithPlainLogicOnLargeRules)
{
    const unsigned seed = 20261121;
    RandomRules rules(seed);
    for (int i = 0; i < 20'000; ++i) {
        const std::string text = rules.alternatives(5);
        const YogaRule rule = readRule(text);
        const unsigned truths = rules.truths();
        ASSERT_EQ(evaluated(rule, truths), PlainLogic(text, truths).evaluate())
            << "seed " << seed << ": " << text << " " << truths;
    }
}

// Truths are bits: A is 1, B is 2, C is 4.
TEST(RuleParser, KnownResults)
{
    struct Case
    {
        const char* rule;
        unsigned truths;
        Outcome outcome;
    };
    const std::vector<Case> cases = {
        {"", 0, {false, ""}},
        {"A\\B", 1, {false, "AB"}},
        {"A\\B", 3, {true, "AB"}},
        {"A\\OR\\B", 2, {true, "AB"}},
        {"A\\OR\\B", 1, {true, "A"}},
        {"(\\A\\OR\\B\\)\\C", 1, {false, "AC"}},
        {"(\\A\\OR\\B\\)\\C", 5, {true, "AC"}},
        // Empty pieces.
        {"A\\(\\OR\\B\\)", 1, {true, "A"}},
        {"A\\(\\(\\OR\\B\\)\\)", 1, {true, "A"}},
        {"A\\(\\)", 1, {true, "A"}},
        {"A\\(\\)\\B", 1, {false, "AB"}},
        {"(\\)\\A", 1, {false, ""}},
        {"(\\OR\\A\\)", 0, {false, "A"}},
        {"OR\\A", 1, {true, "A"}},
        {"A\\OR", 0, {false, "A"}},
        {"A\\(\\B\\OR\\)", 1, {false, "AB"}},
        {"A\\OR\\OR\\B", 2, {true, "AB"}},
        {"OR", 0, {false, ""}},
        {"(\\OR\\)", 0, {false, ""}},
        // Brackets that do not match.
        {"(\\A\\OR\\B", 2, {true, "AB"}},
        {")\\A", 1, {false, ""}},
        {"A\\OR\\B\\)\\C", 1, {true, "A"}},
        {"A\\)\\OR\\B", 2, {true, "AB"}},
        {")\\(", 0, {false, ""}},
        {")\\A\\(", 1, {false, ""}},
        // Nothing between separators is no token.
        {"\\A\\\\B\\", 3, {true, "AB"}},
        // Negation.
        {"A,!", 0, {true, "A"}},
        {"A,!\\OR\\B", 1, {false, "AB"}},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(evaluated(readRule(one.rule), one.truths), one.outcome) << one.rule;
    }
}

TEST(RuleParser, ChecksBrackets)
{
    for (const char* const rule : {"", "A", "(\\)", "(\\A\\(\\B\\)\\)\\OR\\(\\C\\)", "((\\A"}) {
        EXPECT_TRUE(bracketsBalanced(readRule(rule))) << rule;
    }
    for (const char* const rule : {")\\(", "(", ")", "(\\A\\)\\)\\(", "A\\(\\B"}) {
        EXPECT_FALSE(bracketsBalanced(readRule(rule))) << rule;
    }
}

TEST(RuleParser, Steps)
{
    const YogaRule rule = readRule("(\\A\\OR\\B\\)");
    const auto test = [](const Condition& condition) {
        return condition.kind == 0;
    };
    YogaRuleParser parser(rule, test);
    EXPECT_EQ(parser.step(true), Step::Open);
    EXPECT_EQ(parser.depth(), 1);
    EXPECT_EQ(parser.step(true), Step::True);
    EXPECT_EQ(parser.step(true), Step::Or);
    EXPECT_EQ(parser.step(false), Step::True) << "the value is kept without a test";
    EXPECT_EQ(parser.step(true), Step::Close);
    EXPECT_EQ(parser.depth(), 0);
    EXPECT_EQ(parser.step(true), Step::End);
    EXPECT_EQ(parser.step(true), Step::End);
    parser.reset();
    EXPECT_EQ(parser.step(false), Step::Open);
    EXPECT_EQ(parser.step(false), Step::False);
}

TEST(RuleParser, LargestRules)
{
    std::string brackets;
    for (int i = 0; i < 15'000; ++i) {
        brackets += "(\\";
    }
    brackets += "A";
    for (int i = 0; i < 15'000; ++i) {
        brackets += "\\)";
    }
    const auto begin = std::chrono::steady_clock::now();
    const YogaRule deep = readRule(brackets);
    EXPECT_TRUE(bracketsBalanced(deep));
    EXPECT_TRUE(evaluated(deep, 1).truth);
    EXPECT_FALSE(evaluated(deep, 0).truth);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));

    const std::string longest(kLongestRule, 'x');
    EXPECT_TRUE(YogaRule::read(longest, kLetters).ok());
    const core::Result<YogaRule> longer = YogaRule::read(longest + "x", kLetters);
    ASSERT_FALSE(longer.ok());
    EXPECT_EQ(longer.error().message, "the rule is longer than 65536 bytes");
}

TEST(Conditions, WithoutPrefix)
{
    const Condition condition = ParseCondition("\"C,!,7,\"12a,1234,long,,2,", kLetters);
    EXPECT_FALSE(condition.hasPrefix);
    EXPECT_EQ(condition.kind, 2);
    EXPECT_TRUE(condition.negated);
    EXPECT_FALSE(condition.unknownName);
    ASSERT_EQ(condition.parameterCount, 6U);
    const std::vector<int> expected = {7, 12, 1004, 1004, -1, 2};
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), condition.parameters.begin()));
    // A parameter in the place of the mark is no mark, and exact texts only are tokens.
    EXPECT_FALSE(ParseCondition("C, !", kLetters).negated);
    for (const char* const text : {"or", " OR", "((", "OR "}) {
        EXPECT_EQ(tokenKind(text), TokenKind::Condition) << text;
    }
}

TEST(Conditions, WithPrefix)
{
    const Condition condition =
        ParseCondition("*o3,Nava,NvDw,Moo,a4,,17,!,1,2,3,4,5,6,7,8,9", kLetters);
    EXPECT_TRUE(condition.hasPrefix);
    EXPECT_EQ(condition.option, 3);
    EXPECT_EQ(condition.vargas, (std::array<int, 2>{5, 20}));
    EXPECT_EQ(condition.points, (std::array<int, 3>{2, 50, -1}));
    EXPECT_EQ(condition.kind, 17);
    EXPECT_TRUE(condition.negated);
    EXPECT_EQ(condition.parameterCount, 7U) << "word 16 and later ones are not read";
    EXPECT_EQ(condition.parameters[6], 7);
    EXPECT_FALSE(condition.unknownName);
    for (const char* const first : {"*", "*o", "*o0", "*o10", "*ox", "*o99999999999"}) {
        EXPECT_EQ(ParseCondition(std::string(first) + ",Rasi,Rasi,,,,1", kLetters).option, 1)
            << first;
    }
    EXPECT_TRUE(ParseCondition("*o1", kLetters).unknownName) << "no kind";
}

TEST(Conditions, UnknownNamesNeverHold)
{
    for (const char* const text : {"*o1,nava,Rasi,,,,1", "*o1,Rasi,Rasi,Mars,,,1",
                                   "*o1,Rasi,Rasi,,,,x", "A,,wha", "Q9,,1"}) {
        std::vector<std::string> unknown;
        EXPECT_TRUE(ParseCondition(text, kLetters, &unknown).unknownName) << text;
        EXPECT_EQ(unknown.size(), 1U) << text;
        const auto always = [](const Condition&) {
            return true;
        };
        EXPECT_FALSE(evaluateRule(readRule(text), always)) << text;
    }
    // Its negation is the opposite.
    EXPECT_TRUE(evaluateRule(readRule("A,!,wha"), [](const Condition&) { return true; }));
}

TEST(Conditions, ShortNamesDoNotDependOnTheLanguage)
{
    for (const std::uint32_t flags : {0U, core::kEnglishNames, core::kGlyphNames}) {
        const core::DisplayFlagsOverride shown(flags);
        EXPECT_EQ(pointOfShortName("Asc"), 0);
        EXPECT_EQ(pointOfShortName("Sun"), 1);
        EXPECT_EQ(pointOfShortName("ArL"), 31);
        EXPECT_EQ(pointOfShortName("H12"), 46);
        EXPECT_EQ(pointOfShortName("a4"), 50);
        for (const char* const none : {"a5", "Sur", "sun", "Sun ", ""}) {
            EXPECT_EQ(pointOfShortName(none), -1) << none;
        }
    }
    EXPECT_EQ(vargaOfShortName("Rasi"), 0);
    EXPECT_EQ(vargaOfShortName("NvDw"), 20);
    for (const char* const none : {"Rashi", "rasi", "Ras", "Rasi ", ""}) {
        EXPECT_EQ(vargaOfShortName(none), -1) << none;
    }
}

} // namespace kestrav::yoga
