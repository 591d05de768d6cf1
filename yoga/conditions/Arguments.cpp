#include "yoga/conditions/Arguments.h"

#include "core/Points.h"
#include "core/Varga.h"
#include "yoga/Keywords.h"

#include <cstddef>

namespace kestrav::yoga
{

namespace
{

std::uint64_t bit(int number)
{
    return std::uint64_t{1} << unsigned(number);
}

class Layout
{
public:
    Layout(const Condition& condition, std::string* problem)
        : condition_(condition), problem_(problem)
    {}

    Arguments run()
    {
        arguments_.fits = start() && takeAll();
        return arguments_;
    }

private:
    bool wrong(std::string_view what, std::string_view name = {})
    {
        if (problem_ != nullptr && problem_->empty()) {
            *problem_ = what;
            if (!name.empty()) {
                *problem_ += " '";
                *problem_ += name;
                *problem_ += "'";
            }
        }
        return false;
    }

    bool start()
    {
        if (condition_.unknownName) {
            return wrong("a word is in no table");
        }
        arguments_.exchanged = condition_.kind >= kSecondChartKinds;
        const int number =
            arguments_.exchanged ? condition_.kind - kSecondChartKinds : condition_.kind;
        arguments_.kind = findKind(number);
        if (arguments_.kind == nullptr) {
            return wrong("there is no such kind of condition");
        }
        // A divisional chart that is left out is the rashi, a second one is the same as the first.
        const int first = condition_.vargas[0] < 0 ? int(core::kRashi) : condition_.vargas[0];
        const int second = condition_.vargas[1] < 0 ? first : condition_.vargas[1];
        arguments_.vargas = {first, second};
        if (first >= core::kVargaCount || second >= core::kVargaCount) {
            return wrong("there is no such divisional chart");
        }
        return true;
    }

    bool takeAll()
    {
        const std::span<const Parameter> parameters = arguments_.kind->used();
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            const Parameter& parameter = parameters[i];
            int& value = arguments_.values[i];
            value = -1;
            const bool taken = parameter.repeated            ? takeList(parameter)
                               : isPointLike(parameter.type) ? takePoint(parameter, value)
                               : parameter.type == ParameterType::Number
                                   ? takeNumber(parameter, value)
                                   : takeWord(parameter, value);
            if (!taken) {
                return false;
            }
        }
        if (next_ < condition_.parameterCount) {
            return wrong("there are more words than the condition takes");
        }
        for (; point_ < condition_.points.size(); ++point_) {
            if (condition_.hasPrefix && condition_.points[point_] >= 0) {
                return wrong("the prefix names more points than the condition takes");
            }
        }
        return true;
    }

    // The next word, or -1 where it is empty or there is none.
    [[nodiscard]] int word() const
    {
        return next_ < condition_.parameterCount ? condition_.parameters[next_] : kUnknownWord;
    }

    // An optional parameter whose word does not fit was left out; only an empty word is passed.
    bool leaveOut(const Parameter& parameter, std::string_view what)
    {
        if (!parameter.optional) {
            return wrong(what, parameter.name);
        }
        next_ += next_ < condition_.parameterCount && word() < 0 ? 1 : 0;
        return true;
    }

    bool takePoint(const Parameter& parameter, int& value)
    {
        if (condition_.hasPrefix && point_ < condition_.points.size()) {
            const int named = condition_.points[point_++];
            if (named >= 0) {
                value = pointCode(named);
                return true;
            }
        }
        const int code = word();
        const WordClass found = wordClass(code);
        const bool isSet =
            found == WordClass::Set && parameter.type != ParameterType::Point &&
            (parameter.type != ParameterType::Set || setWord(code).quantifier == Quantifier::None);
        if (found != WordClass::Point && !isSet) {
            return leaveOut(parameter, parameter.type == ParameterType::Set
                                           ? "a set of planets without quantifier is missing:"
                                           : "a point is missing:");
        }
        value = code;
        ++next_;
        return true;
    }

    bool takeNumber(const Parameter& parameter, int& value)
    {
        const int code = word();
        if (wordClass(code) != WordClass::Number) {
            value = parameter.fallback;
            return leaveOut(parameter, "a number is missing:");
        }
        if (code < parameter.lowest || code > parameter.highest) {
            return wrong("a number is out of its range:", parameter.name);
        }
        value = code;
        ++next_;
        return true;
    }

    bool takeWord(const Parameter& parameter, int& value)
    {
        const std::optional<PlainWord> found = plainWord(word());
        if (!found || (parameter.words & bit(*found)) == 0) {
            return leaveOut(parameter, "a word is missing:");
        }
        value = *found;
        ++next_;
        return true;
    }

    [[nodiscard]] std::uint64_t listValue(const Parameter& parameter, int code) const
    {
        switch (parameter.type) {
        case ParameterType::Houses:
            return twelveMask(code, WordClass::Houses);
        case ParameterType::Signs:
            return twelveMask(code, WordClass::Signs);
        case ParameterType::Nakshatra:
            if (wordClass(code) == WordClass::Nakshatra) {
                return bit(wordContent(code) + 1);
            }
            return code >= 1 && code <= 27 ? bit(code) : 0;
        case ParameterType::Number:
            return wordClass(code) == WordClass::Number && code >= parameter.lowest &&
                           code <= parameter.highest
                       ? bit(code)
                       : 0;
        case ParameterType::Word: {
            const std::optional<PlainWord> found = plainWord(code);
            return found ? parameter.words & bit(*found) : 0;
        }
        default:
            return 0;
        }
    }

    bool takeList(const Parameter& parameter)
    {
        for (; next_ < condition_.parameterCount; ++next_) {
            const std::uint64_t value = listValue(parameter, condition_.parameters[next_]);
            if (value == 0) {
                return wrong("a word does not fit:", parameter.name);
            }
            arguments_.list |= value;
        }
        return arguments_.list != 0 || parameter.optional
                   ? true
                   : wrong("a word is missing:", parameter.name);
    }

    const Condition& condition_;
    std::string* problem_;
    Arguments arguments_;
    std::size_t next_ = 0;
    std::size_t point_ = 0;
};

} // namespace

Arguments layOut(const Condition& condition, std::string* problem)
{
    return Layout(condition, problem).run();
}

} // namespace kestrav::yoga
