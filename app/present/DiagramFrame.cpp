#include "app/present/DiagramFrame.h"

#include "analysis/Aspects.h"
#include "analysis/DignityTables.h"
#include "core/DisplayFlags.h"
#include "core/PointNames.h"

namespace kestrav::present
{

double DiagramFrame::startOfCircle() const
{
    const double start = (first - 1) * 30.0;
    if (options.firstSign != 0 || !hasHouses) {
        return start;
    }
    return start + diagramPosition(subject.chart, subject.varga, core::kAscendant);
}

void addPoint(const DiagramFrame& frame, DisplayList& list, const DiagramLabel& label,
              const Box& box, int region, int house)
{
    list.texts.push_back(frame.text(label.text, box, label.role, region));
    if (label.point == kBinduLabel) {
        return;
    }
    Region spot;
    spot.kind = RegionKind::Point;
    spot.index = label.point;
    spot.house = house;
    spot.layer = label.layer;
    spot.sign = label.sign;
    spot.polygon = cornersOf(box);
    spot.tip = label.tip;
    spot.spoken = label.spoken;
    list.regions.push_back(std::move(spot));
}

std::wstring moreText(int hidden)
{
    return L"+" + std::to_wstring(hidden);
}

void addMore(const DiagramFrame& frame, DisplayList& list, std::span<const DiagramLabel> hidden,
             const Box& box, int region, int house)
{
    const ColourRole role = hidden.front().layer == 1 ? ColourRole::Outer : ColourRole::Text;
    list.texts.push_back(frame.text(moreText(int(hidden.size())), box, role, region));
    Region spot;
    spot.kind = RegionKind::More;
    spot.index = int(hidden.size());
    spot.house = house;
    spot.layer = hidden.front().layer;
    spot.polygon = cornersOf(box);
    for (const DiagramLabel& label : hidden) {
        spot.tip += (spot.tip.empty() ? L"" : L"\n") + label.tip;
        spot.spoken += (spot.spoken.empty() ? L"" : L", ") + label.spoken;
        spot.points.push_back(label.point);
    }
    list.regions.push_back(std::move(spot));
}

std::wstring signTip(int sign, int house)
{
    const bool english = (core::DisplayFlags() & core::kEnglishNames) != 0;
    std::wstring tip(core::signNameLong(sign));
    if (house != 0) {
        tip += (english ? L", house " : L", bhava ") + std::to_wstring(house);
    }
    return tip + L", lord " + longPointName(analysis::signLord(sign));
}

std::vector<DrawnAspect> drawnAspects(const DiagramFrame& frame)
{
    std::vector<DrawnAspect> aspects;
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        const int sign = frame.options.aspectsOf[std::size_t(planet)]
                             ? diagramSign(frame.subject.chart, frame.subject.varga, planet)
                             : 0;
        for (int house = 1; sign != 0 && house <= 12; ++house) {
            if (analysis::fullGrahaAspect(planet, house, frame.subject.settings)) {
                aspects.push_back({planet, sign, core::norm12(sign + house - 1)});
            }
        }
    }
    return aspects;
}

} // namespace kestrav::present
