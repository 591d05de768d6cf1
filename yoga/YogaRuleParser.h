// The walk over the tokens of a yoga rule that evaluates it.
#pragma once

#include "timing/FunctionRef.h"
#include "yoga/YogaRule.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kestrav::yoga
{

/// Whether a condition holds, its negation mark left aside.
using ConditionTest = timing::FunctionRef<bool(const Condition&)>;

/// What a step met. The numbers are fixed; the first two are the current value.
enum class Step : int
{
    False = 0,
    True = 1,
    End = 2,
    Open = 3,
    Close = 4,
    Or = 5,
};

/// A condition that was tested.
struct TestedCondition
{
    std::uint32_t condition = 0; ///< index into the conditions of the rule
    bool truth = false;          ///< after negation
};

/// Evaluates a rule by walking its tokens once, without a tree, whatever the depth of brackets.
/// Conditions that follow each other are joined by AND, and what cannot change the result any more
/// is not tested. Rules with matching brackets and without empty groups or alternatives have the
/// value of ordinary logic. An empty group or alternative is true when only "(" stands between it
/// and a true condition or group of the same chain before it, else false; that follows from the
/// walk and is meant.
class YogaRuleParser
{
public:
    /// Begins before the first token. Rule and test must live as long as the parser; conditions
    /// that are tested are added to `tested`, in the order of testing. A condition with a name that
    /// is in no table fails untried.
    YogaRuleParser(const YogaRule& rule, ConditionTest test,
                   std::vector<TestedCondition>* tested = nullptr)
        : rule_(rule), test_(test), tested_(tested)
    {}

    /// Goes back to before the first token.
    void reset();

    /// Moves to the next token. A condition is tested when evaluating, and its truth becomes the
    /// value; otherwise the value is kept, and is what the step gives.
    Step step(bool evaluating);

    /// Walks all tokens: true when the depth never goes below zero and ends at zero.
    [[nodiscard]] bool bracketsBalanced();

    /// The truth of the rule; an empty one is false.
    [[nodiscard]] bool evaluate();

    [[nodiscard]] int depth() const
    {
        return depth_;
    }
    [[nodiscard]] bool value() const
    {
        return value_;
    }

private:
    bool skipSettles();

    const YogaRule& rule_;
    ConditionTest test_;
    std::vector<TestedCondition>* tested_;
    std::size_t next_ = 0;
    int depth_ = 0;
    bool value_ = false;
};

/// Whether the brackets of a rule match.
[[nodiscard]] bool bracketsBalanced(const YogaRule& rule);

/// The truth of a rule under a test; see YogaRuleParser.
[[nodiscard]] bool evaluateRule(const YogaRule& rule, ConditionTest test,
                                std::vector<TestedCondition>* tested = nullptr);

} // namespace kestrav::yoga
