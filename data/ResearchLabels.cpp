#include "data/ResearchLabels.h"

#include "core/DisplayFlags.h"
#include "core/Names.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "data/ResearchLine.h"

#include <algorithm>
#include <cstdint>

namespace kestrav::data
{

namespace
{

constexpr int kSigns = 12;
constexpr int kNakshatras = 27;
constexpr int kThreeLetters = 3;
constexpr int kLongName = 4;

std::wstring pointText(int style, int point)
{
    // Labels stand between words, where a glyph would be in the wrong font.
    const std::uint32_t flags = core::DisplayFlags();
    const core::DisplayFlagsOverride letters((flags & core::kGlyphNames) != 0 ? core::kEnglishNames
                                                                              : flags);
    std::wstring name(core::PointName(style, point));
    while (name.ends_with(L' ')) {
        name.pop_back();
    }
    return name;
}

// The Sun, the Moon and the Ascendant have labels of their own.
std::wstring signLabel(const std::wstring& sign, int point)
{
    switch (point) {
    case core::kSun:
        return sign + L"  (Sid. Sun)";
    case core::kMoon:
        return sign + L"  (Sid. Moon)";
    case core::kAscendant:
        return sign + L"  (Sid. Asc.)";
    default:
        return sign + L"  (Sid. " + pointText(kThreeLetters, point) + L".)";
    }
}

} // namespace

std::optional<int> researchValue(std::string_view line, const ResearchKey& key)
{
    int field = kTropicalSunField;
    if (key.kind != ResearchKey::Kind::TropicalSun) {
        const auto* const place =
            std::find(kResearchPoints.begin(), kResearchPoints.end(), key.point);
        if (place == kResearchPoints.end()) {
            return std::nullopt;
        }
        field = int(place - kResearchPoints.begin()) +
                (key.kind == ResearchKey::Kind::Sign ? kSignFields : kNakshatraFields);
    }
    const std::optional<int> value = core::parseInteger(researchField(line, field));
    const int highest = key.kind == ResearchKey::Kind::Nakshatra ? kNakshatras : kSigns;
    return value && *value >= 1 && *value <= highest ? value : std::nullopt;
}

std::wstring researchLabel(int value, const ResearchKey& key)
{
    switch (key.kind) {
    case ResearchKey::Kind::TropicalSun:
        return std::wstring(core::signNameLong(value)) + L"  (Trop. Sun)";
    case ResearchKey::Kind::Sign:
        return signLabel(std::wstring(core::signNameLong(value)), key.point);
    case ResearchKey::Kind::Nakshatra:
        break;
    }
    const std::wstring nakshatra(core::nakshatraName(value - 1));
    const bool light = key.point == core::kSun || key.point == core::kMoon;
    return light ? nakshatra + L" (" + pointText(kLongName, key.point) + L")"
                 : nakshatra + L" (" + pointText(kThreeLetters, key.point) + L".)";
}

std::vector<LabelledRow> rowsByResearch(const ChooserList& list, const LineList& research,
                                        const ResearchKey& key)
{
    std::vector<LabelledRow> rows;
    rows.reserve(list.rows.size());
    for (const std::size_t row : sortedRows(list, SortOrder::Alphabetical)) {
        const std::size_t line = list.rows[row].line;
        const std::optional<int> value =
            line < research.size() ? researchValue(research.line(line), key) : std::nullopt;
        rows.push_back({row, value.value_or(0)});
    }
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
        constexpr int kLast = kNakshatras + 1;
        return (a.value == 0 ? kLast : a.value) < (b.value == 0 ? kLast : b.value);
    });
    return rows;
}

} // namespace kestrav::data
