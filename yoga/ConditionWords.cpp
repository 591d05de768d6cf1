// A condition as a sentence, made from the pattern in its row of the catalogue.
#include "analysis/ExplainText.h"
#include "yoga/Keywords.h"
#include "yoga/Subject.h"
#include "yoga/conditions/Arguments.h"
#include "yoga/conditions/Parts.h"

namespace kestrav::yoga
{

namespace
{

// The nakshatras of a list count from 1; codes of words have them from 0.
std::wstring nakshatras(std::uint64_t list)
{
    std::vector<std::wstring> names;
    for (int number = 1; number <= 27; ++number) {
        if (((list >> unsigned(number)) & 1U) != 0) {
            names.push_back(codeWords((int(WordClass::Nakshatra) << 27) | (number - 1)));
        }
    }
    return orList(names);
}

std::wstring repeatedText(const Parameter& parameter, std::uint64_t list)
{
    switch (parameter.type) {
    case ParameterType::Houses:
        return list == 0 ? L"any" : houseWords(std::uint32_t(list));
    case ParameterType::Signs:
        return signWords(std::uint32_t(list));
    case ParameterType::Nakshatra:
        return nakshatras(list);
    case ParameterType::Word:
        return plainListWords(list);
    default:
        return listWords(list);
    }
}

// What a test takes for a plain word that was left out; nothing where the word only narrows it.
std::wstring wordLeftOut(const Parameter& parameter)
{
    for (const PlainWord usual : {kWordGraha, kWordDay, kWordCompound}) {
        if ((parameter.words >> unsigned(usual) & 1U) != 0) {
            return codeWords((int(WordClass::Plain) << 27) | usual);
        }
    }
    return {};
}

std::wstring parameterText(const Arguments& arguments, std::size_t index)
{
    const Parameter& parameter = arguments.kind->parameters[index];
    const int value = arguments.values[index];
    if (parameter.repeated) {
        return repeatedText(parameter, arguments.list);
    }
    if (isPointLike(parameter.type)) {
        // A set in a test has a quantifier, also when none was written.
        if (wordClass(value) == WordClass::Set && parameter.type == ParameterType::Subject) {
            return quantifierWords(setWord(value)) + setWords(setWord(value));
        }
        return value < 0 ? explaining::nameOf(core::kAscendant) : codeWords(value);
    }
    if (parameter.type == ParameterType::Word) {
        return value < 0 ? wordLeftOut(parameter)
                         : codeWords((int(WordClass::Plain) << 27) | value);
    }
    if (value >= 0 && value < parameter.lowest) {
        return {}; // a house that is not asked for
    }
    return value < 0 ? L"of the settings" : std::to_wstring(value);
}

// Whether the sentence is about several planets.
bool isPlural(const Arguments& arguments)
{
    const int value = arguments.values[0];
    if (!isPointLike(arguments.kind->parameters[0].type) || wordClass(value) != WordClass::Set) {
        return false;
    }
    const SetWord word = setWord(value);
    return word.count > 1 || word.quantifier == Quantifier::AtMost;
}

} // namespace

std::wstring conditionWords(const Condition& condition)
{
    const Arguments arguments = layOut(condition);
    if (!arguments.fits) {
        return L"?";
    }
    std::wstring words;
    const std::string_view pattern = arguments.kind->sentence;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] != '{') {
            words += wchar_t(pattern[i]);
            continue;
        }
        const std::size_t end = pattern.find('}', i);
        const std::string_view field = pattern.substr(i + 1, end - i - 1);
        words += field == "is" ? (isPlural(arguments) ? L"are" : L"is")
                               : parameterText(arguments, std::size_t(field[0] - '0'));
        i = end;
    }
    while (words.ends_with(L' ') || words.ends_with(L':')) {
        words.pop_back();
    }
    words = contextWords(arguments) + words;
    return explaining::capitalised(condition.negated ? L"not: " + words : words);
}

} // namespace kestrav::yoga
