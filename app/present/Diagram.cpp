#include "app/present/Diagram.h"

#include "analysis/VargaNames.h"
#include "app/present/CircleDiagram.h"
#include "app/present/DiagramFrame.h"
#include "app/present/EastDiagram.h"
#include "app/present/NorthDiagram.h"
#include "app/present/SouthDiagram.h"
#include "core/DisplayFlags.h"

#include <algorithm>
#include <array>
#include <cassert>

namespace kestrav::present
{

namespace
{

// Shares of the side of a diagram.
constexpr double kFontShare = 0.036;
constexpr double kCircleFontShare = 0.036;
constexpr double kDoubleFontShare = 0.026;
constexpr double kStrokeShare = 0.0028;
constexpr double kLeastStroke = 0.7;
constexpr double kLeastFont = 8.0;

constexpr std::array<std::string_view, kDiagramStyles> kStyleNames = {"north", "south", "east",
                                                                      "circle"};
constexpr std::array<std::wstring_view, kDiagramStyles> kStyleTitles = {
    L"North Indian", L"South Indian", L"East Indian", L"Circle"};

double fontOf(const DiagramSubject& subject, DiagramStyle style, const DiagramOptions& options,
              double size)
{
    if (options.characterGrid) {
        return 2.0;
    }
    if (options.fontSize > 0.0) {
        return options.fontSize;
    }
    double share = style == DiagramStyle::Circle ? kCircleFontShare : kFontShare;
    if (subject.outer != nullptr) {
        share = kDoubleFontShare;
    }
    return std::max(share * size, kLeastFont);
}

DiagramFrame frameOf(const DiagramSubject& subject, DiagramStyle style,
                     const DiagramOptions& options, double size)
{
    int first = options.firstSign;
    if (first == 0) {
        first = diagramSign(subject.chart, subject.varga, core::kAscendant);
    }
    return {subject,
            options,
            size,
            fontOf(subject, style, options, size),
            std::max(kStrokeShare * size, kLeastStroke),
            first == 0 ? 1 : first,
            first != 0};
}

std::wstring titleOf(const DiagramSubject& subject, DiagramStyle style)
{
    std::wstring title = std::wstring(analysis::vargaName(subject.varga)) + L" (D-" +
                         std::to_wstring(analysis::vargaDivision(subject.varga)) + L"), " +
                         std::wstring(diagramStyleTitle(style));
    const std::wstring name = oneLine(subject.chart.name);
    return name.empty() ? title : name + L": " + title;
}

std::wstring descriptionOf(const DiagramSubject& subject, const DiagramOptions& options)
{
    std::wstring text;
    if (subject.outer != nullptr) {
        const std::wstring name = oneLine(subject.outer->name);
        text += L"Outside: " + (name.empty() ? L"the second chart" : name) + L".\n";
    }
    if (options.bindus) {
        text += options.bindus->receiver == BinduChoice::kSarva
                    ? L"Bindus of the sarvashtakavarga.\n"
                    : L"Bindus of " + longPointName(options.bindus->receiver) + L".\n";
    }
    const std::wstring missing = missingPoints(subject, options);
    return missing.empty() ? text : text + missing + L"\n";
}

// Texts keep the lines of aspects away with the colour of the area that they stand on.
void addHalos(DisplayList& list)
{
    for (Text& text : list.texts) {
        const auto area =
            std::find_if(list.shapes.rbegin(), list.shapes.rend(), [&text](const Shape& shape) {
                return shape.fill && contains(shape.points, text.box.centre());
            });
        text.halo = area == list.shapes.rend() ? ColourRole::Paper : *area->fill;
    }
}

std::uint32_t namesOf(const DiagramOptions& options)
{
    return (options.english ? core::kEnglishNames : 0) | (options.glyphs ? core::kGlyphNames : 0);
}

} // namespace

std::string_view diagramStyleName(DiagramStyle style)
{
    return kStyleNames[static_cast<std::size_t>(style)];
}

std::wstring_view diagramStyleTitle(DiagramStyle style)
{
    return kStyleTitles[static_cast<std::size_t>(style)];
}

std::optional<DiagramStyle> findDiagramStyle(std::string_view name)
{
    const auto* const found = std::find(kStyleNames.begin(), kStyleNames.end(), name);
    if (found == kStyleNames.end()) {
        return std::nullopt;
    }
    return static_cast<DiagramStyle>(found - kStyleNames.begin());
}

PointSet mainDiagramPoints()
{
    PointSet points;
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        points.set(std::size_t(point));
    }
    return points;
}

PointSet arudhaPoints()
{
    PointSet points;
    for (int point = core::kArudhaPada1; point <= core::kUpapada; ++point) {
        points.set(std::size_t(point));
    }
    return points;
}

DisplayList layoutDiagram(const DiagramSubject& subject, DiagramStyle style,
                          const DiagramOptions& options, double size)
{
    assert(size > 0.0 && subject.varga >= 0 && subject.varga < core::kVargaCount);
    assert(options.firstSign >= 0 && options.firstSign <= 12);
    const core::DisplayFlagsOverride names(namesOf(options));
    const DiagramFrame frame = frameOf(subject, style, options, size);
    DisplayList list;
    list.width = size;
    list.height = size;
    list.scheme = options.scheme;
    list.title = titleOf(subject, style);
    list.description = descriptionOf(subject, options);
    list.shapes.reserve(16);
    list.lines.reserve(32);
    list.texts.reserve(40);
    list.regions.reserve(32);
    list.shapes.push_back(
        {cornersOf({0.0, 0.0, size, size}), ColourRole::Paper, std::nullopt, 0.0});
    switch (style) {
    case DiagramStyle::North:
        layoutCells(frame, northPlan(), list);
        break;
    case DiagramStyle::South:
        layoutCells(frame, southPlan(), list);
        break;
    case DiagramStyle::East:
        layoutCells(frame, eastPlan(), list);
        break;
    case DiagramStyle::Circle:
        layoutCircle(frame, list);
        break;
    }
    if (options.aspectsOf.any()) {
        addHalos(list);
    }
    return list;
}

} // namespace kestrav::present
