#include "app/present/TextTable.h"

#include "app/present/TextValues.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

namespace kestrav::present
{

namespace
{

constexpr std::size_t kGap = 2;

// Where the other columns are wider than this, a text that breaks stands below its row, so that it
// does not become a narrow strip.
constexpr std::size_t kWidestLead = 60;

void endLine(std::wstring& text)
{
    text.erase(text.find_last_not_of(L' ') + 1);
    text += L'\n';
}

// Tabs and line ends within a text would break the columns.
void makeOneLine(std::wstring& text)
{
    std::replace_if(
        text.begin(), text.end(), [](wchar_t character) { return character < L' '; }, L' ');
}

} // namespace

void TextTable::add(std::vector<std::wstring> cells)
{
    assert(cells.size() == columns_.size());
    std::for_each(cells.begin(), cells.end(), makeOneLine);
    rows_.push_back(std::move(cells));
}

std::wstring TextTable::text() const
{
    std::vector<std::size_t> widths;
    std::vector<std::wstring> headings;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        headings.push_back(columns_[i].heading);
        widths.push_back(columns_[i].heading.size());
        for (const std::vector<std::wstring>& row : rows_) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    std::wstring text;
    const auto addLine = [&](const std::vector<std::wstring>& cells) {
        std::wstring line;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (columns_[i].align == Align::Wrapped && !cells[i].empty()) {
                if (line.size() <= kWidestLead) {
                    text += wrapped(cells[i], line);
                } else {
                    endLine(line);
                    text += line + wrapped(cells[i], L"    ");
                }
                return;
            }
            const std::wstring padding(widths[i] - cells[i].size(), L' ');
            line += columns_[i].align == Align::Right ? padding + cells[i] : cells[i] + padding;
            line.append(gap_, L' ');
        }
        endLine(line);
        text += line;
    };
    const auto isEmpty = [](const std::wstring& heading) {
        return heading.empty();
    };
    if (!std::all_of(headings.begin(), headings.end(), isEmpty)) {
        addLine(headings);
    }
    for (const std::vector<std::wstring>& row : rows_) {
        addLine(row);
    }
    return text;
}

void LabelledLines::add(std::wstring label, std::wstring value)
{
    makeOneLine(value);
    lines_.emplace_back(std::move(label), std::move(value));
}

std::wstring LabelledLines::text() const
{
    std::size_t width = 0;
    for (const auto& [label, value] : lines_) {
        width = std::max(width, label.size());
    }
    std::wstring text;
    for (const auto& [label, value] : lines_) {
        std::wstring line = label;
        line.append(width - label.size() + kGap, L' ').append(value);
        endLine(line);
        text += line;
    }
    return text;
}

} // namespace kestrav::present
