// The texts that stand for the points of a chart in a diagram.
#pragma once

#include "app/present/Diagram.h"
#include "app/present/DiagramOptions.h"
#include "app/present/DisplayList.h"
#include "core/Chart.h"

#include <string>
#include <vector>

namespace kestrav::present
{

/// One point, or the bindus of a sign, ready to be placed.
struct DiagramLabel
{
    int point = 0;         ///< kBinduLabel for bindus
    int layer = 0;         ///< 0 the chart, 1 the second one
    int sign = 0;          ///< 1 to 12 in the varga
    double position = 0.0; ///< degrees in that sign, 0 to 30
    ColourRole role = ColourRole::Text;
    std::wstring text;
    double width = 0.0; ///< em
    std::wstring tip;
    std::wstring spoken;

    /// The degree of the zodiac in the varga, 0 to 360.
    [[nodiscard]] double longitude() const
    {
        return (sign - 1) * 30.0 + position;
    }
};

inline constexpr int kBinduLabel = -1;

/// The chart of a layer.
[[nodiscard]] const core::Chart& chartOfLayer(const DiagramSubject& subject, int layer);

/// The sign 1 to 12 of a point in the varga of the diagram, 0 when it has no placement there.
[[nodiscard]] int diagramSign(const core::Chart& chart, int varga, int point);

/// Its degree in that sign. A varga can give a trace below 0 and up to 30; here it is 0 to
/// under 30.
[[nodiscard]] double diagramPosition(const core::Chart& chart, int varga, int point);

/// The labels of a layer's points, sorted by sign and degree.
[[nodiscard]] std::vector<DiagramLabel> pointLabels(const DiagramSubject& subject,
                                                    const DiagramOptions& options, int layer);

/// The labels of the bindus of signs 1 to 12 (index 0 is Aries); empty without bindus.
[[nodiscard]] std::vector<DiagramLabel> binduLabels(const DiagramSubject& subject,
                                                    const DiagramOptions& options);

/// The points that were asked for and have no place in the diagram, as a sentence; else empty.
[[nodiscard]] std::wstring missingPoints(const DiagramSubject& subject,
                                         const DiagramOptions& options);

/// The name of a point or a sign as cells show it.
[[nodiscard]] std::wstring shortPointName(const DiagramOptions& options, int point);
[[nodiscard]] std::wstring shortSignName(const DiagramOptions& options, int sign);

/// The long name of a point without the blank in which some names end.
[[nodiscard]] std::wstring longPointName(int point);

/// The width of a text in em by the options.
[[nodiscard]] double measured(const DiagramOptions& options, std::wstring_view text);

/// One line of text: control characters and line ends become blanks.
[[nodiscard]] std::wstring oneLine(std::wstring_view text);

} // namespace kestrav::present
