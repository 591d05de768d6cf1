#include "yoga/YogaListEdit.h"

#include "data/Chooser.h"
#include "yoga/RuleCheck.h"
#include "yoga/RuleEdit.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace kestrav::yoga
{

bool changeRule(Yoga& yoga, std::string_view rule, core::Messages& messages)
{
    if (!tellsMatchingBrackets(rule, messages)) {
        return false;
    }
    setRule(yoga, rule);
    return true;
}

void setRule(Yoga& yoga, std::string_view rule)
{
    yoga.rule = rule;
    if (const core::Result<YogaRule> read = YogaRule::read(rule)) {
        yoga.options = optionsOfRule(read.value());
        yoga.vargas = vargasOfRule(read.value());
    }
}

bool deleteYoga(YogaFile& file, std::size_t index, core::Messages& messages)
{
    if (index >= file.yogas.size() ||
        messages.show(kQueryCaption, kDeleteYoga, core::Buttons::YesNo) != core::Answer::Yes) {
        return false;
    }
    file.yogas.erase(file.yogas.begin() + std::ptrdiff_t(index));
    return true;
}

void sortYogas(YogaFile& file)
{
    std::vector<std::pair<std::string, std::size_t>> keys;
    for (std::size_t i = 0; i < file.yogas.size(); ++i) {
        keys.emplace_back(data::nameSortKey(file.yogas[i].title), i);
    }
    std::sort(keys.begin(), keys.end());
    std::vector<Yoga> sorted;
    sorted.reserve(keys.size());
    for (const auto& [key, index] : keys) {
        sorted.push_back(std::move(file.yogas[index]));
    }
    file.yogas = std::move(sorted);
}

void importYogas(YogaFile& file, const YogaFile& from)
{
    // Through a copy, since a file may be appended to itself.
    const std::vector<Yoga> yogas = from.yogas;
    file.yogas.insert(file.yogas.end(), yogas.begin(), yogas.end());
}

void importYogas(YogaFile& file, std::span<const CustomYoga> from)
{
    for (const CustomYoga& one : from) {
        Yoga& yoga = file.yogas.emplace_back();
        yoga.title = one.title;
        yoga.rule = one.rule;
        if (const core::Result<YogaRule> rule = YogaRule::read(one.rule)) {
            yoga.options = optionsOfRule(rule.value());
            yoga.vargas = vargasOfRule(rule.value());
        }
    }
}

std::vector<CustomYoga> asCustomYogas(const YogaFile& file)
{
    std::vector<CustomYoga> yogas;
    for (const Yoga& yoga : file.yogas) {
        yogas.push_back({yoga.title, yoga.rule});
    }
    return yogas;
}

std::vector<std::string> chaptersOf(const YogaFile& file)
{
    std::vector<std::string> chapters;
    std::unordered_set<std::string_view> seen;
    for (const Yoga& yoga : file.yogas) {
        if (seen.insert(yoga.chapter).second) {
            chapters.push_back(yoga.chapter);
        }
    }
    return chapters;
}

} // namespace kestrav::yoga
