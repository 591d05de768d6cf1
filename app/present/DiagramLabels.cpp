#include "app/present/DiagramLabels.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/Dignities.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "app/present/AccessibleText.h"
#include "app/present/Glyphs.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <algorithm>
#include <cmath>

namespace kestrav::present
{

namespace
{

using core::at;

constexpr wchar_t kUpArrow = 0x2191;
constexpr wchar_t kDownArrow = 0x2193;

ColourRole roleOf(int point, int layer)
{
    if (layer == 1) {
        return ColourRole::Outer;
    }
    if (point == core::kAscendant) {
        return ColourRole::Ascendant;
    }
    if (point == core::kArudhaLagna || (point >= core::kArudhaPada1 && point <= core::kUpapada)) {
        return ColourRole::Arudha;
    }
    const bool body = point <= core::kKetu || (point >= core::kUranus && point <= core::kPluto);
    return body ? ColourRole::Text : ColourRole::Minor;
}

bool isArudha(int point)
{
    return roleOf(point, 0) == ColourRole::Arudha;
}

bool isNode(int point)
{
    return point == core::kRahu || point == core::kKetu;
}

std::wstring degreeText(double position, DegreeForm form)
{
    if (form == DegreeForm::None) {
        return {};
    }
    const WholeDegrees whole = wholeDegrees(position);
    std::wstring text = L" " + std::to_wstring(whole.degrees) + L"\u00B0";
    if (form == DegreeForm::Minutes) {
        text += whole.minutes < 10 ? L"0" : L"";
        text += std::to_wstring(whole.minutes) + L"'";
    }
    return text;
}

class LabelMaker
{
public:
    LabelMaker(const DiagramSubject& subject, const DiagramOptions& options, int layer)
        : subject_(subject), options_(options), layer_(layer), chart_(chartOfLayer(subject, layer))
    {}

    [[nodiscard]] DiagramLabel label(int point, int sign) const
    {
        DiagramLabel label;
        label.point = point;
        label.layer = layer_;
        label.sign = sign;
        label.position = diagramPosition(chart_, subject_.varga, point);
        label.role = roleOf(point, layer_);
        const PointState state = stateOf(point);
        label.text = text(label, state);
        label.width = measured(options_, label.text);
        label.spoken = spokenPoint(point, label.position, state, options_.degrees);
        if (changed(point)) {
            label.spoken += L" changed";
        }
        if (nearBoundary(point)) {
            label.spoken += L" near a boundary";
        }
        label.tip = tip(label, state);
        return label;
    }

private:
    [[nodiscard]] PointState stateOf(int point) const
    {
        PointState state;
        if (point >= core::kSun && point <= core::kKetu && subject_.varga < core::kScoredVargas) {
            state.dignity =
                analysis::shownDignity(chart_, point, subject_.varga, subject_.settings);
        }
        state.retrograde = at(chart_.retrograde, point) && !isNode(point);
        state.combust = at(chart_.combust, point);
        return state;
    }

    [[nodiscard]] std::wstring text(const DiagramLabel& label, const PointState& state) const
    {
        std::wstring text = shortPointName(options_, label.point);
        if (changed(label.point)) {
            text += L'*';
        }
        if (nearBoundary(label.point)) {
            text += L'~';
        }
        if (options_.retrograde && state.retrograde) {
            text += L"(R)";
        }
        if (options_.dignity && state.exalted()) {
            text += kUpArrow;
        } else if (options_.dignity && state.debilitated()) {
            text += kDownArrow;
        }
        // An arudha is a sign; its degree is that of the ascendant.
        if (!isArudha(label.point)) {
            text += degreeText(label.position, options_.degrees);
        }
        // Behind the degrees, since "Mec" would read as a name.
        return options_.combust && state.combust ? text + L" c" : text;
    }

    [[nodiscard]] std::wstring tip(const DiagramLabel& label, const PointState& state) const
    {
        const double nakshatra = at(chart_.nakshatraPosition, label.point);
        std::wstring tip = longPointName(label.point) + L" ";
        if (subject_.varga != core::kRashi) {
            tip += std::wstring(core::signNameLong(label.sign)) + L" in " +
                   std::wstring(analysis::vargaName(subject_.varga)) + L"; ";
        }
        tip += core::FormatSignPosition(at(chart_.longitude, label.point)) + L", " +
               std::wstring(core::nakshatraName(nakshatraOf(nakshatra))) + L" " +
               std::to_wstring(padaOf(nakshatra));
        if (state.dignity >= 0) {
            tip += L", " + std::wstring(analysis::dignityWord(state.dignity, false));
        }
        tip += state.retrograde ? L", retrograde" : L"";
        tip += state.combust ? L", combust" : L"";
        tip += changed(label.point) ? L", changed by you" : L"";
        return nearBoundary(label.point) ? tip + L", near a boundary" : tip;
    }

    [[nodiscard]] bool changed(int point) const
    {
        return layer_ == 0 && options_.changed[std::size_t(point)];
    }

    [[nodiscard]] bool nearBoundary(int point) const
    {
        return options_.boundaries && at(at(chart_.nearBoundary, subject_.varga), point);
    }

    const DiagramSubject& subject_;
    const DiagramOptions& options_;
    int layer_;
    const core::Chart& chart_;
};

bool wanted(const DiagramOptions& options, int point, int layer)
{
    if (layer == 1 && options.outerPoints) {
        return (*options.outerPoints)[std::size_t(point)];
    }
    return options.points[std::size_t(point)] ||
           (options.arudhas && point >= core::kArudhaPada1 && point <= core::kUpapada);
}

} // namespace

const core::Chart& chartOfLayer(const DiagramSubject& subject, int layer)
{
    return layer == 0 || subject.outer == nullptr ? subject.chart : *subject.outer;
}

int diagramSign(const core::Chart& chart, int varga, int point)
{
    if (varga != core::kRashi && !chart.computed(point)) {
        return 0;
    }
    return analysis::signInVarga(chart, varga, point);
}

double diagramPosition(const core::Chart& chart, int varga, int point)
{
    const double position = varga == core::kRashi ? at(chart.degreeInSign, point)
                                                  : at(at(chart.vargas, varga), point).position;
    return std::clamp(position, 0.0, std::nextafter(30.0, 0.0));
}

std::vector<DiagramLabel> pointLabels(const DiagramSubject& subject, const DiagramOptions& options,
                                      int layer)
{
    std::vector<DiagramLabel> labels;
    labels.reserve(16);
    const LabelMaker maker(subject, options, layer);
    for (int point = 0; point < core::kPointCount; ++point) {
        if (!wanted(options, point, layer)) {
            continue;
        }
        const int sign = diagramSign(chartOfLayer(subject, layer), subject.varga, point);
        if (sign != 0) {
            labels.push_back(maker.label(point, sign));
        }
    }
    std::stable_sort(labels.begin(), labels.end(),
                     [](const DiagramLabel& one, const DiagramLabel& other) {
                         return one.longitude() < other.longitude();
                     });
    return labels;
}

std::vector<DiagramLabel> binduLabels(const DiagramSubject& subject, const DiagramOptions& options)
{
    std::vector<DiagramLabel> labels;
    if (!options.bindus) {
        return labels;
    }
    const analysis::Ashtakavarga table =
        analysis::computeAshtakavarga(subject.chart, subject.varga, false);
    const bool sarva = options.bindus->receiver == BinduChoice::kSarva;
    const analysis::SignRow12& row =
        sarva ? table.sarva : at(table.bindus, options.bindus->receiver);
    for (int sign = 1; sign <= 12; ++sign) {
        DiagramLabel label;
        label.point = kBinduLabel;
        label.sign = sign;
        label.role = ColourRole::Bindu;
        label.text = std::to_wstring(at(row, sign - 1));
        label.width = measured(options, label.text);
        label.spoken = label.text + (label.text == L"1" ? L" bindu" : L" bindus");
        label.tip = std::wstring(core::signNameLong(sign)) + L": " + label.spoken +
                    (sarva ? std::wstring(L" of the planets")
                           : L" of " + longPointName(options.bindus->receiver));
        labels.push_back(std::move(label));
    }
    return labels;
}

std::wstring missingPoints(const DiagramSubject& subject, const DiagramOptions& options)
{
    std::wstring names;
    for (int layer = 0; layer < (subject.outer == nullptr ? 1 : 2); ++layer) {
        for (int point = 0; point < core::kPointCount; ++point) {
            const core::Chart& chart = chartOfLayer(subject, layer);
            if (wanted(options, point, layer) && diagramSign(chart, subject.varga, point) == 0) {
                names += (names.empty() ? L"" : L", ") + longPointName(point);
                names += layer == 1 ? L" of the second chart" : L"";
            }
        }
    }
    return names.empty() ? names : L"Without a place here: " + names + L".";
}

std::wstring shortPointName(const DiagramOptions& options, int point)
{
    return glyphText(core::PointName(options.nameStyle == 3 ? 3 : 2, point));
}

std::wstring shortSignName(const DiagramOptions& options, int sign)
{
    return glyphText(options.nameStyle == 3 ? core::SignName3(sign) : core::SignName2(sign));
}

std::wstring longPointName(int point)
{
    return glyphText(core::PointName(4, point));
}

double measured(const DiagramOptions& options, std::wstring_view text)
{
    if (options.characterGrid) {
        return columnsOf(text) / 2.0;
    }
    return options.measure ? options.measure(text) : textWidth(text);
}

std::wstring oneLine(std::wstring_view text)
{
    std::wstring line(text);
    std::replace_if(
        line.begin(), line.end(),
        [](wchar_t c) { return c < L' ' || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; },
        L' ');
    const std::size_t last = line.find_last_not_of(L' ');
    return last == std::wstring::npos ? std::wstring() : line.substr(0, last + 1);
}

} // namespace kestrav::present
