#include "yoga/YogaRuleParser.h"

#include <algorithm>

namespace kestrav::yoga
{

void YogaRuleParser::reset()
{
    next_ = 0;
    depth_ = 0;
    value_ = false;
}

Step YogaRuleParser::step(bool evaluating)
{
    if (next_ >= rule_.tokens().size()) {
        return Step::End;
    }
    const RuleToken& token = rule_.tokens()[next_++];
    switch (token.kind) {
    case TokenKind::Open:
        ++depth_;
        return Step::Open;
    case TokenKind::Close:
        --depth_;
        return Step::Close;
    case TokenKind::Or:
        return Step::Or;
    case TokenKind::Condition:
        break;
    }
    if (evaluating) {
        const Condition& condition = rule_.conditions()[token.condition];
        value_ = (!condition.unknownName && test_(condition)) != condition.negated;
        if (tested_ != nullptr) {
            tested_->push_back({token.condition, value_});
        }
    }
    return value_ ? Step::True : Step::False;
}

bool YogaRuleParser::bracketsBalanced()
{
    reset();
    bool never = true;
    while (step(false) != Step::End) {
        never = never && depth_ >= 0;
    }
    return never && depth_ == 0;
}

bool YogaRuleParser::evaluate()
{
    reset();
    while (true) {
        switch (step(true)) {
        case Step::End:
            return value_;
        case Step::Open:
        case Step::True:
            break;
        case Step::False:
            skipSettles();
            break;
        case Step::Close:
            if (!value_) {
                skipSettles();
            }
            break;
        case Step::Or:
            if (value_ && skipSettles()) {
                return true;
            }
            break;
        }
    }
}

// Passes over what cannot change the result. Returns whether the whole rule is settled as true.
bool YogaRuleParser::skipSettles()
{
    if (depth_ == 0 && value_) {
        return true;
    }
    int depth = depth_;
    for (Step met = step(false); met != Step::End; met = step(false)) {
        if (value_) {
            // The rest of an alternative group that is already true, up to its closing bracket.
            if (depth_ < depth) {
                break;
            }
            continue;
        }
        // An alternative to what is false: behind an OR of this group or of one around it.
        depth = std::min(depth, depth_);
        if (met == Step::Or && depth_ <= depth) {
            break;
        }
    }
    return false;
}

bool bracketsBalanced(const YogaRule& rule)
{
    const auto none = [](const Condition&) {
        return false;
    };
    return YogaRuleParser(rule, none).bracketsBalanced();
}

bool evaluateRule(const YogaRule& rule, ConditionTest test, std::vector<TestedCondition>* tested)
{
    return YogaRuleParser(rule, test, tested).evaluate();
}

} // namespace kestrav::yoga
