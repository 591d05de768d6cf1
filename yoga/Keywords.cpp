#include "yoga/Keywords.h"

#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "yoga/Catalogue.h"
#include "yoga/KeywordTables.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrav::yoga
{

namespace
{

using core::at;

constexpr int kClassShift = 27;
constexpr int kStepBits = 5;
constexpr int kBaseBits = 7;

int codeOf(WordClass wordClass, int content)
{
    return (int(wordClass) << kClassShift) | content;
}

// A number of one or two digits up to `highest`, which is the whole text; 0 when it is none.
int smallNumber(std::string_view text, int highest)
{
    if (text.empty() || text.size() > 2 || text[0] < '1' || text[0] > '9') {
        return 0;
    }
    const int number = core::parseInteger(text).value_or(0);
    return number >= 1 && number <= highest ? number : 0;
}

// English three-letter names; of equal ones the first counts, so that of the arudha of the first
// house is never found.
int pointOfName(std::string_view name)
{
    static const std::array<std::string, core::kPointCount> kNames = [] {
        constexpr int kShortNames = 3;
        const core::DisplayFlagsOverride english(core::kEnglishNames);
        std::array<std::string, core::kPointCount> names;
        for (int point = 0; point < core::kPointCount; ++point) {
            at(names, point) = core::toUtf8(core::PointName(kShortNames, point));
        }
        return names;
    }();
    const auto* const found = std::find(kNames.begin(), kNames.end(), name);
    return found == kNames.end() ? kUnknownWord : int(found - kNames.begin());
}

int baseOf(std::string_view word)
{
    for (std::size_t i = 0; i < kBaseWords.size(); ++i) {
        if (kBaseWords[i].word == word) {
            return kKarakaBase + int(i);
        }
    }
    return pointOfName(word);
}

// "L5" or "B5", or one of the letters; kNoStep when it is no step and kUnknownWord for "B1", which
// leads nowhere.
int stepOf(std::string_view word)
{
    if (word.size() >= 2 && (word[0] == 'L' || word[0] == 'B')) {
        const int house = smallNumber(word.substr(1), 12);
        if (house == 0) {
            return kNoStep;
        }
        if (word[0] == 'L') {
            return house;
        }
        return house == 1 ? kUnknownWord : kPlaceOfHouse2 + house - 2;
    }
    for (const StepWord& step : kStepWords) {
        if (step.word == word) {
            return step.step;
        }
    }
    return kNoStep;
}

int pointExpression(std::string_view word)
{
    std::array<int, kMaxPointSteps> steps{}; // in the order of the text: the last one is done first
    int count = 0;
    int base = kUnknownWord;
    for (bool more = true; more;) {
        const std::size_t dot = word.find('.');
        more = dot != std::string_view::npos;
        const std::string_view part = word.substr(0, dot);
        const int step = stepOf(part);
        const bool isHouse = step == kUnknownWord || (step >= 1 && step <= 12) ||
                             (step >= kPlaceOfHouse2 && step < kArudhaStep);
        if (!more && !isHouse) {
            base = baseOf(part);
            break;
        }
        if (step == kNoStep || (step > 0 && count == kMaxPointSteps)) {
            return kUnknownWord;
        }
        if (step > 0) {
            at(steps, count++) = step;
        }
        if (!more) {
            base = core::kAscendant; // "L5" alone is counted from the ascendant
        } else {
            word.remove_prefix(dot + 1);
        }
    }
    if (base < 0) {
        return kUnknownWord;
    }
    int content = base;
    for (int i = 0; i < count; ++i) {
        content |= at(steps, count - 1 - i) << (kBaseBits + kStepBits * i);
    }
    return codeOf(WordClass::Point, content);
}

std::uint32_t namedPlanets(std::string_view word)
{
    for (const MaskWord& group : kPlanetGroups) {
        if (group.word == word) {
            return group.mask;
        }
    }
    const int point = pointOfName(word);
    return point >= core::kSun && point <= core::kKetu ? 1U << unsigned(point) : 0;
}

bool readQuantifier(std::string_view part, SetWord& set)
{
    if (part == "any") {
        set.quantifier = Quantifier::Any;
    } else if (part == "all") {
        set.quantifier = Quantifier::All;
    } else if (part == "no") {
        set.quantifier = Quantifier::No;
    } else if (part.size() == 4) {
        const std::string_view name = part.substr(0, 3);
        set.count = smallNumber(part.substr(3), 9);
        set.quantifier = name == "min"   ? Quantifier::AtLeast
                         : name == "max" ? Quantifier::AtMost
                         : name == "eqs" ? Quantifier::Exactly
                                         : Quantifier::None;
        return set.count > 0 && set.quantifier != Quantifier::None;
    } else {
        return false;
    }
    return true;
}

// The planets of "Mar+Sat", "pla-Sun" or "ben+Mer"; false when a word is unknown or planets are
// both added to and taken from a set that depends on the chart.
bool readMembers(std::string_view text, SetWord& set)
{
    bool added = false;
    char sign = '+';
    for (bool first = true; first || !text.empty(); first = false) {
        const std::size_t end = text.find_first_of("+-");
        const std::string_view word = text.substr(0, end);
        const std::uint32_t planets = namedPlanets(word);
        if (planets != 0) {
            if (set.set == kNamedPlanets) {
                set.mask = sign == '+' ? set.mask | planets : set.mask & ~planets;
            } else if (set.mask != 0 && set.without != (sign == '-')) {
                return false;
            } else {
                set.without = sign == '-';
                set.mask |= planets;
            }
            added = true;
        } else if (first) {
            const auto* const found = std::find(kSetWords.begin(), kSetWords.end(), word);
            if (found == kSetWords.end()) {
                return false;
            }
            set.set = PlanetSet(int(found - kSetWords.begin()) + kBenefics);
            added = true;
        } else {
            return false;
        }
        if (end == std::string_view::npos) {
            break;
        }
        sign = text[end];
        text.remove_prefix(end + 1);
        if (text.empty()) {
            return false;
        }
    }
    return added && (set.set != kNamedPlanets || set.mask != 0);
}

int planetSet(std::string_view word)
{
    SetWord set;
    std::size_t dot = word.find('.');
    if (dot != std::string_view::npos && readQuantifier(word.substr(0, dot), set)) {
        word.remove_prefix(dot + 1);
    }
    if (word.starts_with("T.")) {
        set.secondChart = true;
        word.remove_prefix(2);
    }
    return readMembers(word, set) ? setCode(set) : kUnknownWord;
}

// "h1+4+7" and the words for groups of houses.
std::uint32_t houseList(std::string_view word)
{
    for (const MaskWord& group : kHouseWords) {
        if (group.word == word) {
            return group.mask;
        }
    }
    if (word.size() < 2 || word[0] != 'h') {
        return 0;
    }
    std::uint32_t mask = 0;
    word.remove_prefix(1);
    while (true) {
        const std::size_t plus = word.find('+');
        const int house = smallNumber(word.substr(0, plus), 12);
        if (house == 0) {
            return 0;
        }
        mask |= 1U << unsigned(house);
        if (plus == std::string_view::npos) {
            return mask;
        }
        word.remove_prefix(plus + 1);
    }
}

// "Ari+Leo" and the words for groups of signs.
std::uint32_t signList(std::string_view word)
{
    std::uint32_t mask = 0;
    while (true) {
        const std::size_t plus = word.find('+');
        const std::string_view name = word.substr(0, plus);
        const auto* const found =
            std::find_if(kSignWords.begin(), kSignWords.end(),
                         [&](const MaskWord& row) { return row.word == name; });
        if (found == kSignWords.end()) {
            return 0;
        }
        mask |= found->mask;
        if (plus == std::string_view::npos) {
            return mask;
        }
        word.remove_prefix(plus + 1);
    }
}

template <typename Table>
int indexIn(const Table& table, std::string_view word)
{
    const auto found = std::find(table.begin(), table.end(), word);
    return found == table.end() ? kUnknownWord : int(found - table.begin());
}

} // namespace

int keywordCode(std::string_view word)
{
    if (word.empty()) {
        return kUnknownWord;
    }
    if (const int plain = indexIn(kPlainTexts, word); plain >= 0) {
        return codeOf(WordClass::Plain, plain);
    }
    if (const std::uint32_t houses = houseList(word); houses != 0) {
        return codeOf(WordClass::Houses, int(houses));
    }
    if (const std::uint32_t signs = signList(word); signs != 0) {
        return codeOf(WordClass::Signs, int(signs));
    }
    if (const int nakshatra = indexIn(kNakshatraWords, word); nakshatra >= 0) {
        return codeOf(WordClass::Nakshatra, nakshatra);
    }
    if (const int point = pointExpression(word); point >= 0) {
        return point;
    }
    return planetSet(word);
}

int kindOfKeyword(std::string_view word)
{
    int exchanged = 0;
    if (word.starts_with("T.")) {
        exchanged = kSecondChartKinds;
        word.remove_prefix(2);
    }
    const Kind* kind = findKind(word);
    return kind == nullptr ? kUnknownWord : kind->number + exchanged;
}

SetWord setWord(int code)
{
    const auto content = unsigned(wordContent(code));
    SetWord word;
    word.mask = (content & 511U) << 1U;
    word.without = ((content >> 9U) & 1U) != 0;
    word.set = PlanetSet((content >> 10U) & 31U);
    word.secondChart = ((content >> 15U) & 1U) != 0;
    word.quantifier = Quantifier((content >> 16U) & 7U);
    word.count = int((content >> 19U) & 15U);
    return word;
}

int setCode(const SetWord& word)
{
    const unsigned content = (word.mask >> 1U) | (unsigned(word.without) << 9U) |
                             (unsigned(word.set) << 10U) | (unsigned(word.secondChart) << 15U) |
                             (unsigned(word.quantifier) << 16U) | (unsigned(word.count) << 19U);
    return codeOf(WordClass::Set, int(content));
}

std::uint32_t twelveMask(int code, WordClass wanted)
{
    const WordClass found = wordClass(code);
    if (found == WordClass::Number) {
        return code >= 1 && code <= 12 ? 1U << unsigned(code) : 0;
    }
    return found == wanted ? std::uint32_t(wordContent(code)) : 0;
}

std::optional<PlainWord> plainWord(int code)
{
    if (wordClass(code) != WordClass::Plain) {
        return std::nullopt;
    }
    return PlainWord(wordContent(code));
}

std::string_view plainWordText(PlainWord word)
{
    return at(kPlainTexts, word);
}

} // namespace kestrav::yoga
