#include "app/present/BarChart.h"

#include "app/present/TextValues.h"

#include <algorithm>
#include <utility>

namespace kestrav::present
{

namespace
{

constexpr double kRow = 1.7;      // of the font size
constexpr double kBarOfRow = 0.7; // of the row
constexpr double kGap = 0.6;      // of the font size
constexpr double kMostOfWidth = 0.4;
constexpr double kPercent = 100.0;

double widthOf(std::wstring_view text, const BarChartOptions& options)
{
    return (options.measure ? options.measure(text) : textWidth(text)) * options.fontSize;
}

// The text, cut with an ellipsis where it is wider.
std::wstring cutTo(std::wstring text, double width, const BarChartOptions& options)
{
    if (widthOf(text, options) <= width) {
        return text;
    }
    while (!text.empty() && widthOf(text + L"\u2026", options) > width) {
        text.pop_back();
    }
    return text + L"\u2026";
}

void addText(DisplayList& list, std::wstring words, double left, double middle,
             const BarChartOptions& options)
{
    Text text;
    const double half = options.fontSize / 2.0;
    text.box = {left, middle - half, left + widthOf(words, options), middle + half};
    text.text = std::move(words);
    text.size = options.fontSize;
    list.texts.push_back(std::move(text));
}

} // namespace

std::wstring shareText(std::size_t count, std::size_t whole)
{
    return whole == 0 ? std::wstring()
                      : fixedNumber(kPercent * double(count) / double(whole), 1) + L" %";
}

DisplayList layoutBarChart(const BarChartModel& model, const BarChartOptions& options)
{
    DisplayList list;
    const double size = options.fontSize;
    const double row = size * kRow;
    const double gap = size * kGap;
    list.scheme = options.scheme;
    list.title = model.title;
    list.width = options.width;
    list.height = row * double(model.bars.size()) + gap;
    std::size_t whole = 0;
    std::size_t most = 1;
    for (const CountBar& bar : model.bars) {
        whole += bar.count;
        most = std::max(most, bar.count);
    }
    double labels = 0.0;
    double counts = 0.0;
    std::vector<std::wstring> values;
    for (const CountBar& bar : model.bars) {
        const std::wstring share = shareText(bar.count, whole);
        values.push_back(std::to_wstring(bar.count) + (share.empty() ? L"" : L"  " + share));
        labels = std::max(labels, widthOf(bar.label, options));
        counts = std::max(counts, widthOf(values.back(), options));
    }
    labels = std::min(labels, options.width * kMostOfWidth);
    const double left = labels + 2.0 * gap;
    const double room = std::max(0.0, options.width - left - counts - 2.0 * gap);
    for (std::size_t i = 0; i < model.bars.size(); ++i) {
        const CountBar& bar = model.bars[i];
        const double top = gap / 2.0 + row * double(i);
        const double middle = top + row / 2.0;
        const double right = left + room * double(bar.count) / double(most);
        const Box area{left, middle - row * kBarOfRow / 2.0, right, middle + row * kBarOfRow / 2.0};
        if (bar.count > 0) {
            list.shapes.push_back(
                {cornersOf(area), ColourRole::AscendantCell, ColourRole::Border, 1.0});
        }
        std::wstring label = cutTo(bar.label, labels, options);
        const double wide = widthOf(label, options);
        addText(list, std::move(label), gap + labels - wide, middle, options);
        addText(list, values[i], right + gap, middle, options);
        Region region;
        region.kind = RegionKind::Span;
        region.index = int(i);
        region.polygon = cornersOf({0.0, top, options.width, top + row});
        region.spoken = bar.label + L": " + values[i];
        region.tip = region.spoken + L"\n";
        list.description += region.spoken + L".\n";
        list.regions.push_back(std::move(region));
    }
    list.lines.push_back({{left, gap / 2.0}, {left, list.height - gap / 2.0}});
    return list;
}

} // namespace kestrav::present
