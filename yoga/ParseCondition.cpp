#include "yoga/ParseCondition.h"

#include "analysis/VargaNames.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Varga.h"
#include "yoga/RuleText.h"

#include <algorithm>
#include <array>
#include <optional>

namespace kestrav::yoga
{

namespace
{

constexpr std::size_t kPrefixWords = 7;
constexpr std::size_t kShortestKeyword = 4; // a word of digits; shorter ones are numbers
constexpr int kNamedPoints = 51;
constexpr int kShortNameStyle = 3;
constexpr int kOptions = 9;

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

// From the third character on; options that do not exist are the first.
int optionOf(std::string_view word)
{
    const int option = word.size() < 3 ? 1 : core::readLeadingInteger(word.substr(2));
    return option >= 1 && option <= kOptions ? option : 1;
}

class Reader
{
public:
    Reader(std::string_view token, const ConditionNames& names, std::vector<std::string>* unknown)
        : words_(wordsOf(token)), names_(names), unknown_(unknown)
    {
        condition_.text = token;
    }

    Condition read()
    {
        std::size_t mark = 1;
        if (words_[0].starts_with('*')) {
            readPrefix();
            mark = kPrefixWords;
        } else {
            condition_.kind = known(names_.kindOfKeyword(words_[0]), words_[0]);
        }
        condition_.negated = word(mark) == kNegationMark;
        readParameters(mark + 1);
        return std::move(condition_);
    }

private:
    [[nodiscard]] std::string_view word(std::size_t index) const
    {
        return index < words_.size() ? words_[index] : std::string_view();
    }

    int known(int found, std::string_view name)
    {
        if (found < 0) {
            condition_.unknownName = true;
            if (unknown_ != nullptr) {
                unknown_->emplace_back(name);
            }
        }
        return found;
    }

    // Nothing is no name: kinds that need none leave it out.
    int knownOrEmpty(int (*find)(std::string_view), std::string_view name)
    {
        return name.empty() ? -1 : known(find(name), name);
    }

    void readPrefix()
    {
        condition_.hasPrefix = true;
        condition_.option = optionOf(words_[0]);
        for (std::size_t i = 0; i < condition_.vargas.size(); ++i) {
            condition_.vargas[i] = knownOrEmpty(vargaOfShortName, word(1 + i));
        }
        for (std::size_t i = 0; i < condition_.points.size(); ++i) {
            condition_.points[i] = knownOrEmpty(pointOfShortName, word(3 + i));
        }
        const std::string_view kind = word(kPrefixWords - 1);
        condition_.kind = known(core::parseInteger(kind).value_or(-1), kind);
    }

    void readParameters(std::size_t first)
    {
        for (std::size_t i = first; i < words_.size(); ++i) {
            const std::string_view text = words_[i];
            int& value = condition_.parameters[i - first];
            value = -1;
            if (text.empty()) {
                continue;
            }
            const bool number = isDigit(text[0]) && text.size() < kShortestKeyword;
            value = number ? core::readLeadingInteger(text) : known(names_.keywordCode(text), text);
            condition_.parameterCount = i - first + 1;
        }
    }

    std::vector<std::string_view> words_;
    const ConditionNames& names_;
    std::vector<std::string>* unknown_;
    Condition condition_;
};

} // namespace

Condition ParseCondition(std::string_view token, const ConditionNames& names,
                         std::vector<std::string>* unknown)
{
    return Reader(token, names, unknown).read();
}

std::size_t markIndex(std::string_view condition)
{
    const std::vector<std::string_view> words = wordsOf(condition);
    return words[0].starts_with('*') ? kPrefixWords : 1;
}

int pointOfShortName(std::string_view name)
{
    static const std::array<std::string, kNamedPoints> kNames = [] {
        const core::DisplayFlagsOverride english(core::kEnglishNames);
        std::array<std::string, kNamedPoints> names;
        for (int point = 0; point < kNamedPoints; ++point) {
            core::at(names, point) = core::toUtf8(core::PointName(kShortNameStyle, point));
        }
        return names;
    }();
    const auto* const found = std::find(kNames.begin(), kNames.end(), name);
    return found == kNames.end() ? -1 : int(found - kNames.begin());
}

int vargaOfShortName(std::string_view name)
{
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        const std::wstring_view shortName = analysis::vargaShortName(varga);
        if (std::equal(shortName.begin(), shortName.end(), name.begin(), name.end(),
                       [](wchar_t a, char b) { return a == wchar_t(b); })) {
            return varga;
        }
    }
    return -1;
}

} // namespace kestrav::yoga
