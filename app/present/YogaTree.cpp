#include "app/present/YogaTree.h"

#include "core/FileText.h"
#include "data/Chooser.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace kestrav::present
{

YogaTruths yogaTruths(const yoga::YogaLibrary& library, yoga::Subject& subject)
{
    YogaTruths truths;
    for (const yoga::LoadedYogaFile& file : library.files()) {
        std::vector<bool>& ofFile = truths.emplace_back();
        for (const std::optional<yoga::YogaRule>& rule : file.rules) {
            ofFile.push_back(rule && yoga::ruleHolds(*rule, subject));
        }
    }
    return truths;
}

bool holdsIn(const YogaTruths& truths, const yoga::YogaPlace& place)
{
    return place.file < truths.size() && place.yoga < truths[place.file].size() &&
           truths[place.file][place.yoga];
}

std::vector<YogaTreeFile> yogaTree(const yoga::YogaLibrary& library, const YogaTruths& truths,
                                   const YogaTreeChoice& choice)
{
    const std::string filter = data::nameSortKey(core::toUtf8(choice.filter));
    const auto matches = [&](const std::string& text) {
        return data::nameSortKey(text).find(filter) != std::string::npos;
    };
    std::vector<YogaTreeFile> tree;
    for (std::size_t file = 0; file < library.files().size(); ++file) {
        const std::vector<yoga::Yoga>& yogas = library.files()[file].file.yogas;
        YogaTreeFile shown;
        shown.file = file;
        std::map<std::string_view, std::size_t> chapters;
        for (std::size_t i = 0; i < yogas.size(); ++i) {
            const yoga::Yoga& yoga = yogas[i];
            const bool holds = holdsIn(truths, {file, i});
            if ((choice.onlyHolding && !holds) ||
                (!filter.empty() && !matches(yoga.title) && !matches(yoga.chapter))) {
                continue;
            }
            const auto [place, isNew] = chapters.try_emplace(yoga.chapter, shown.chapters.size());
            if (isNew) {
                shown.chapters.push_back({core::fromFileBytes(yoga.chapter), {}, 0});
            }
            YogaTreeChapter& chapter = shown.chapters[place->second];
            chapter.yogas.push_back({file, i});
            chapter.holding += holds ? 1 : 0;
            shown.holding += holds ? 1 : 0;
            ++shown.yogas;
        }
        if (choice.sorted) {
            for (YogaTreeChapter& chapter : shown.chapters) {
                std::vector<std::pair<std::string, std::size_t>> keys;
                for (const yoga::YogaPlace& place : chapter.yogas) {
                    keys.emplace_back(data::nameSortKey(yogas[place.yoga].title), place.yoga);
                }
                std::sort(keys.begin(), keys.end());
                for (std::size_t i = 0; i < keys.size(); ++i) {
                    chapter.yogas[i].yoga = keys[i].second;
                }
            }
        }
        if (shown.yogas > 0 || (yogas.empty() && filter.empty() && !choice.onlyHolding)) {
            tree.push_back(std::move(shown));
        }
    }
    return tree;
}

std::wstring yogaFileLabel(const yoga::LoadedYogaFile& file)
{
    return core::fromFileBytes(file.file.name.empty() ? file.path.filename().string()
                                                      : file.file.name);
}

} // namespace kestrav::present
