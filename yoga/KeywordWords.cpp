// The codes of words in sentences.
#include "analysis/ExplainText.h"
#include "core/Names.h"
#include "core/Points.h"
#include "yoga/KeywordTables.h"
#include "yoga/Keywords.h"

#include <string>
#include <vector>

namespace kestrav::yoga
{

namespace
{

using core::at;
namespace explaining = analysis::explaining;

std::wstring baseWords(int base)
{
    return base >= kKarakaBase ? std::wstring(at(kBaseWords, base - kKarakaBase).meaning)
                               : explaining::nameOf(base);
}

std::wstring stepWords(int step, const std::wstring& point)
{
    if (step <= 12) {
        return L"the lord of the " + explaining::ordinal(step) + L" from " + point;
    }
    if (step >= kPlaceOfHouse2 && step < kArudhaStep) {
        return L"the " + explaining::ordinal(step - kPlaceOfHouse2 + 2) + L" from " + point;
    }
    for (const StepWord& word : kStepWords) {
        if (word.step == step) {
            return std::wstring(word.before) + point + std::wstring(word.after);
        }
    }
    return point;
}

// The numbers of a mask, or the names that a table has for them.
template <typename Name>
std::wstring maskWords(std::uint32_t mask, Name name)
{
    std::vector<std::wstring> items;
    for (unsigned number = 1; number <= 12; ++number) {
        if (((mask >> number) & 1U) != 0) {
            items.push_back(name(int(number)));
        }
    }
    return orList(items);
}

} // namespace

std::wstring orList(const std::vector<std::wstring>& items)
{
    std::wstring text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        text += i == 0 ? L"" : i + 1 == items.size() ? L" or " : L", ";
        text += items[i];
    }
    return text;
}

std::wstring pointWords(int code)
{
    std::wstring words = baseWords(pointBase(code));
    for (int i = 0; i < kMaxPointSteps && pointStep(code, i) != kNoStep; ++i) {
        words = stepWords(pointStep(code, i), words);
    }
    return words;
}

std::wstring setWords(const SetWord& word)
{
    std::vector<std::wstring> planets;
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        if (((word.mask >> unsigned(planet)) & 1U) != 0) {
            planets.push_back(explaining::nameOf(planet));
        }
    }
    std::wstring words;
    if (word.set == kNamedPlanets) {
        words = explaining::listText(planets);
        for (const MaskWord& group : kPlanetGroups) {
            if (group.mask == word.mask) {
                words = group.meaning;
            }
        }
    } else {
        words = std::wstring(L"the ") + std::wstring(at(kSetMeanings, word.set - kBenefics));
        if (!planets.empty()) {
            words += word.without ? L" besides " : L" and ";
            words += explaining::listText(planets);
        }
    }
    return word.secondChart ? words + L" of the second chart" : words;
}

std::wstring quantifierWords(const SetWord& word)
{
    const std::wstring count = std::to_wstring(word.count);
    switch (word.quantifier) {
    case Quantifier::None:
    case Quantifier::Any:
        return L"one of ";
    case Quantifier::All:
        return L"every one of ";
    case Quantifier::No:
        return L"none of ";
    case Quantifier::AtLeast:
        return L"at least " + count + L" of ";
    case Quantifier::AtMost:
        return L"at most " + count + L" of ";
    case Quantifier::Exactly:
        return L"exactly " + count + L" of ";
    }
    return {};
}

std::wstring houseWords(std::uint32_t mask)
{
    return maskWords(mask, [](int house) { return std::to_wstring(house); });
}

std::wstring signWords(std::uint32_t mask)
{
    return maskWords(mask, explaining::signText);
}

std::wstring codeWords(int code)
{
    const int content = wordContent(code);
    switch (wordClass(code)) {
    case WordClass::Number:
        return std::to_wstring(code);
    case WordClass::Point:
        return pointWords(code);
    case WordClass::Set: {
        const SetWord word = setWord(code);
        return word.quantifier == Quantifier::None ? setWords(word)
                                                   : quantifierWords(word) + setWords(word);
    }
    case WordClass::Houses:
        return houseWords(std::uint32_t(content));
    case WordClass::Signs:
        return signWords(std::uint32_t(content));
    case WordClass::Nakshatra:
        return std::wstring(core::nakshatraName(content));
    case WordClass::Plain:
        return std::wstring(at(kPlainMeanings, content));
    case WordClass::Unknown:
        break;
    }
    return L"?";
}

} // namespace kestrav::yoga
