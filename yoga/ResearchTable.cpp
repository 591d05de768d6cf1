#include "yoga/ResearchTable.h"

#include "core/FileText.h"
#include "data/Chooser.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <numeric>
#include <utility>

namespace kestrav::yoga
{

namespace
{

const ResearchColumn& columnAt(std::size_t column)
{
    return researchColumns()[column];
}

bool isText(ColumnType type)
{
    return type == ColumnType::Text || type == ColumnType::Motion;
}

// The whole circle of a column whose values go round; 0 for others.
double circleOf(ColumnType type)
{
    return type == ColumnType::Angle ? 360.0 : type == ColumnType::Clock ? 24.0 : 0.0;
}

class Average
{
public:
    explicit Average(ColumnType type) : circle_(circleOf(type)), plain_(type == ColumnType::Number)
    {}

    void add(std::optional<double> value)
    {
        if (!value) {
            return;
        }
        ++count_;
        if (circle_ > 0.0) {
            const double angle = *value / circle_ * 2.0 * std::numbers::pi;
            sine_ += std::sin(angle);
            cosine_ += std::cos(angle);
        } else {
            sum_ += *value;
        }
    }

    [[nodiscard]] std::optional<double> value() const
    {
        if (count_ == 0 || (circle_ == 0.0 && !plain_)) {
            return std::nullopt;
        }
        if (plain_) {
            return sum_ / double(count_);
        }
        constexpr double kCancelled = 1.0e-9;
        if (std::hypot(sine_, cosine_) < kCancelled * double(count_)) {
            return std::nullopt;
        }
        const double turns = std::atan2(sine_, cosine_) / (2.0 * std::numbers::pi);
        const double inCircle = (turns < 0.0 ? turns + 1.0 : turns) * circle_;
        return inCircle < circle_ ? inCircle : 0.0;
    }

private:
    double circle_;
    bool plain_;
    std::size_t count_ = 0;
    double sum_ = 0.0;
    double sine_ = 0.0;
    double cosine_ = 0.0;
};

// What rows are ordered and grouped by. Rows without a value come last.
struct Key
{
    bool missing = false;
    double number = 0.0;
    std::string folded;
    std::wstring text;

    auto operator<=>(const Key&) const = default;
};

Key keyOf(std::string_view line, const ResearchColumn& column)
{
    Key key;
    if (isText(column.type)) {
        key.text = columnText(line, column);
        key.folded = data::nameSortKey(core::toUtf8(key.text));
        key.missing = key.text.empty();
    } else {
        const std::optional<double> value = columnNumber(line, column);
        key.number = value.value_or(0.0);
        key.missing = !value;
    }
    return key;
}

} // namespace

ResearchTable::ResearchTable(const data::LineList& research) : research_(research)
{
    for (std::size_t i = 0; i < research.size(); ++i) {
        if (!research.line(i).empty()) {
            lines_.push_back(i);
        }
    }
}

ResearchTable::ResearchTable(const data::LineList& research, const data::ChartDatabase& database,
                             wchar_t tag)
    : research_(research)
{
    for (std::size_t i = 0; i < std::min(research.size(), database.size()); ++i) {
        if (!research.line(i).empty() && data::tagOfLine(database.line(i)) == tag) {
            lines_.push_back(i);
        }
    }
}

ResearchTable::ResearchTable(const data::LineList& research, const std::vector<std::size_t>& lines)
    : research_(research)
{
    for (const std::size_t line : lines) {
        if (line < research.size() && !research.line(line).empty()) {
            lines_.push_back(line);
        }
    }
}

std::optional<double> ResearchTable::number(std::size_t row, std::size_t column) const
{
    return columnNumber(research_.line(lines_[row]), columnAt(column));
}

std::wstring ResearchTable::text(std::size_t row, std::size_t column) const
{
    return columnText(research_.line(lines_[row]), columnAt(column));
}

std::vector<std::size_t> ResearchTable::sortedRows(std::size_t column) const
{
    std::vector<Key> keys;
    keys.reserve(lines_.size());
    for (const std::size_t line : lines_) {
        keys.push_back(keyOf(research_.line(line), columnAt(column)));
    }
    std::vector<std::size_t> rows(lines_.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    std::stable_sort(rows.begin(), rows.end(),
                     [&](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    return rows;
}

std::vector<TableGroup> ResearchTable::groups(std::size_t column,
                                              std::span<const std::size_t> averaged) const
{
    struct Collected
    {
        std::size_t count = 0;
        std::vector<Average> averages;
    };
    std::vector<Average> none;
    for (const std::size_t other : averaged) {
        none.emplace_back(columnAt(other).type);
    }
    std::map<Key, Collected> collected;
    for (std::size_t row = 0; row < lines_.size(); ++row) {
        Collected& group = collected
                               .try_emplace(keyOf(research_.line(lines_[row]), columnAt(column)),
                                            Collected{0, none})
                               .first->second;
        ++group.count;
        for (std::size_t i = 0; i < averaged.size(); ++i) {
            group.averages[i].add(number(row, averaged[i]));
        }
    }
    std::vector<TableGroup> groups;
    const bool texts = isText(columnAt(column).type);
    for (const auto& [key, one] : collected) {
        TableGroup& group = groups.emplace_back();
        if (texts) {
            group.label = key.text;
        } else if (!key.missing) {
            group.label = columnValueText(key.number, columnAt(column));
            group.value = key.number;
        }
        group.count = one.count;
        for (const Average& average : one.averages) {
            group.averages.push_back(average.value());
        }
    }
    return groups;
}

std::optional<double> ResearchTable::average(std::size_t column) const
{
    Average average(columnAt(column).type);
    for (std::size_t row = 0; row < lines_.size(); ++row) {
        average.add(number(row, column));
    }
    return average.value();
}

std::vector<GraphBar> ResearchTable::graph(std::size_t column, std::size_t bars) const
{
    constexpr int kTwelve = 12;
    constexpr int kNakshatras = 27;
    switch (columnAt(column).type) {
    case ColumnType::Sign:
    case ColumnType::House:
        return categoryBars(column, kTwelve);
    case ColumnType::Nakshatra:
        return categoryBars(column, kNakshatras);
    case ColumnType::Number:
    case ColumnType::Angle:
    case ColumnType::Clock:
        return rangeBars(column, std::max<std::size_t>(bars, 1));
    case ColumnType::Text:
    case ColumnType::Motion:
        break;
    }
    std::vector<GraphBar> result;
    for (const TableGroup& group : groups(column, {})) {
        if (!group.label.empty()) {
            const double place = double(result.size());
            result.push_back({group.label, place, place + 1.0, group.count});
        }
    }
    return result;
}

std::vector<GraphBar> ResearchTable::categoryBars(std::size_t column, int count) const
{
    std::vector<GraphBar> bars;
    for (int value = 1; value <= count; ++value) {
        bars.push_back({columnValueText(value, columnAt(column)), double(value), value + 1.0, 0});
    }
    for (std::size_t row = 0; row < lines_.size(); ++row) {
        if (const std::optional<double> value = number(row, column)) {
            ++bars[std::size_t(*value) - 1].count;
        }
    }
    return bars;
}

std::vector<GraphBar> ResearchTable::rangeBars(std::size_t column, std::size_t count) const
{
    std::vector<double> values;
    for (std::size_t row = 0; row < lines_.size(); ++row) {
        if (const std::optional<double> value = number(row, column)) {
            values.push_back(*value);
        }
    }
    if (values.empty()) {
        return {};
    }
    const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
    const double circle = circleOf(columnAt(column).type);
    const double low = circle > 0.0 ? 0.0 : *lowest;
    const double high = circle > 0.0 ? circle : *highest;
    // Equal values make one bar of no width.
    const std::size_t used = high > low ? count : 1;
    const double width = (high - low) / double(used);
    std::vector<GraphBar> bars;
    for (std::size_t i = 0; i < used; ++i) {
        const double begin = low + width * double(i);
        const double end = i + 1 == used ? high : low + width * double(i + 1);
        const ResearchColumn& shown = columnAt(column);
        bars.push_back(
            {columnValueText(begin, shown) + L" - " + columnValueText(end, shown), begin, end, 0});
    }
    for (const double value : values) {
        const double place = width > 0.0 ? std::floor((value - low) / width) : 0.0;
        // The highest value belongs to the last bar.
        ++bars[std::min(std::size_t(std::max(place, 0.0)), used - 1)].count;
    }
    return bars;
}

} // namespace kestrav::yoga
