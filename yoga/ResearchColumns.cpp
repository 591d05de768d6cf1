#include "yoga/ResearchColumns.h"

#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "core/Names.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "data/ResearchLine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace kestrav::yoga
{

namespace
{

// Fields of a research line behind the groups of 13.
constexpr int kSpeedFields = 56;
constexpr int kMotionFields = 66;
constexpr std::array<int, 10> kSpeedPoints = {1, 2, 3, 4, 5, 6, 7, 32, 33, 34};
constexpr std::array<int, 10> kMotionPoints = {3, 4, 5, 6, 7, 8, 9, 32, 33, 34};
constexpr int kGulikaMinutes = 77;
constexpr int kLongNameStyle = 4;
constexpr double kMinutes = 60.0;
constexpr int kSigns = 12;
constexpr int kNakshatras = 27;

std::wstring longName(int point, std::uint32_t flags)
{
    const core::DisplayFlagsOverride shown(flags);
    std::wstring name(core::PointName(kLongNameStyle, point));
    while (name.ends_with(L' ')) {
        name.pop_back();
    }
    return name;
}

std::string lowered(std::string text)
{
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
    }
    return text;
}

std::string keyOf(int point, const char* what)
{
    return lowered(core::toUtf8(longName(point, core::kEnglishNames))) + "." + what;
}

class Columns
{
public:
    Columns()
    {
        addPlain("name", ColumnType::Text, 0);
        addPlain("occupation", ColumnType::Text, 1);
        addPlain("label", ColumnType::Text, 2);
        addPlain("tropical-sun", ColumnType::Sign, data::kTropicalSunField);
        addGroup("sign", ColumnType::Sign, data::kSignFields, data::kResearchPoints);
        addGroup("house", ColumnType::House, data::kSignFields, data::kResearchPoints);
        addGroup("navamsha", ColumnType::Sign, data::kNavamshaFields, data::kResearchPoints);
        addGroup("nakshatra", ColumnType::Nakshatra, data::kNakshatraFields, data::kResearchPoints);
        addGroup("longitude", ColumnType::Angle, data::kLongitudeFields, data::kResearchPoints);
        addGroup("speed", ColumnType::Number, kSpeedFields, kSpeedPoints);
        addGroup("motion", ColumnType::Motion, kMotionFields, kMotionPoints);
        columns_.push_back({"gulika.sign", ColumnType::Sign, 76, core::kGulika});
        columns_.push_back({"gulika.longitude", ColumnType::Angle, kGulikaMinutes, core::kGulika});
        addPlain("ayanamsa", ColumnType::Number, 78);
        addPlain("sex", ColumnType::Text, 79);
        addPlain("longitude", ColumnType::Number, 80);
        addPlain("latitude", ColumnType::Number, 81);
        addPlain("sidereal-time", ColumnType::Clock, 84);
        addPlain("midheaven", ColumnType::Angle, 85);
        addPlain("birth-time", ColumnType::Clock, 86);
        addPlain("sunrise", ColumnType::Clock, 87);
        addPlain("sunset", ColumnType::Clock, 88);
        addPlain("zone", ColumnType::Number, 89);
        addPlain("saving-time", ColumnType::Number, 90);
        addPlain("day-count", ColumnType::Number, 91);
    }

    [[nodiscard]] std::vector<ResearchColumn> take()
    {
        return std::move(columns_);
    }

private:
    void addPlain(const char* key, ColumnType type, int field)
    {
        columns_.push_back({key, type, field});
    }
    template <std::size_t Count>
    void addGroup(const char* what, ColumnType type, int first,
                  const std::array<int, Count>& points)
    {
        for (std::size_t i = 0; i < Count; ++i) {
            columns_.push_back({keyOf(points[i], what), type, first + int(i), points[i]});
        }
    }

    std::vector<ResearchColumn> columns_;
};

std::optional<double> wholeIn(std::string_view text, int highest)
{
    const std::optional<int> value = core::parseInteger(text);
    return value && *value >= 1 && *value <= highest ? std::optional<double>(*value) : std::nullopt;
}

std::optional<double> houseOf(std::string_view line, int field)
{
    const auto sign = wholeIn(data::researchField(line, field), kSigns);
    const auto ascendant = wholeIn(data::researchField(line, data::kSignFields), kSigns);
    if (!sign || !ascendant) {
        return std::nullopt;
    }
    return double((int(*sign) - int(*ascendant) + kSigns) % kSigns + 1);
}

std::wstring fixed(double value)
{
    constexpr double kHundredth = 100.0;
    return core::fromFileBytes(core::shortestNumber(std::round(value * kHundredth) / kHundredth));
}

} // namespace

std::span<const ResearchColumn> researchColumns()
{
    static const std::vector<ResearchColumn> kColumns = Columns().take();
    return kColumns;
}

std::optional<std::size_t> findResearchColumn(std::string_view key)
{
    const auto columns = researchColumns();
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&](const auto& column) { return column.key == key; });
    return found == columns.end() ? std::nullopt
                                  : std::optional(std::size_t(found - columns.begin()));
}

std::wstring columnHeading(const ResearchColumn& column)
{
    std::wstring what = core::fromFileBytes(column.key.substr(column.key.find('.') + 1));
    std::replace(what.begin(), what.end(), L'-', L' ');
    if (column.point >= 0) {
        const std::uint32_t letters = core::DisplayFlags() & ~core::kGlyphNames;
        return longName(column.point, letters) + L" " + what;
    }
    what[0] = wchar_t(what[0] - L'a' + L'A');
    return what;
}

std::optional<double> columnNumber(std::string_view line, const ResearchColumn& column)
{
    const std::string_view text = data::researchField(line, column.field);
    switch (column.type) {
    case ColumnType::Text:
    case ColumnType::Motion:
        return std::nullopt;
    case ColumnType::Sign:
        return wholeIn(text, kSigns);
    case ColumnType::House:
        return houseOf(line, column.field);
    case ColumnType::Nakshatra:
        return wholeIn(text, kNakshatras);
    case ColumnType::Number:
        return core::parseNumber(text);
    case ColumnType::Angle:
    case ColumnType::Clock:
        break;
    }
    std::optional<double> value = core::parseNumber(text);
    if (value && column.field == kGulikaMinutes) {
        *value /= kMinutes;
    }
    // 360 is the rounded form of an angle just below it; a clock of -1 says that there is no time.
    const double circle = column.type == ColumnType::Angle ? 360.0 : 24.0;
    if (value && *value == circle) {
        return 0.0;
    }
    return value && *value >= 0.0 && *value < circle ? value : std::nullopt;
}

std::wstring columnText(std::string_view line, const ResearchColumn& column)
{
    if (column.type == ColumnType::Text || column.type == ColumnType::Motion) {
        const std::string_view text = data::researchField(line, column.field);
        return text == " " ? std::wstring() : core::fromFileBytes(text);
    }
    const std::optional<double> value = columnNumber(line, column);
    return value ? columnValueText(*value, column) : std::wstring();
}

std::wstring columnValueText(double value, const ResearchColumn& column)
{
    switch (column.type) {
    case ColumnType::Sign:
        return std::wstring(core::signNameLong(int(value)));
    case ColumnType::Nakshatra:
        return std::wstring(core::nakshatraName(int(value) - 1));
    case ColumnType::House:
        return std::to_wstring(int(value));
    case ColumnType::Text:
    case ColumnType::Motion:
    case ColumnType::Number:
    case ColumnType::Angle:
    case ColumnType::Clock:
        break;
    }
    return fixed(value);
}

} // namespace kestrav::yoga
