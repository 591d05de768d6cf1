#include "timing/TransitKakshya.h"

#include "core/SignData.h"

#include <algorithm>

namespace kestrav::timing
{

std::vector<KakshyaStay> transitKakshyas(SiderealSky& sky, const core::Chart& native,
                                         const std::vector<int>& planets, Span span)
{
    constexpr double kKakshyaLength = 30.0 / 8.0;
    const analysis::Ashtakavarga tables =
        analysis::computeAshtakavarga(native, core::kRashi, false);
    std::vector<KakshyaStay> list;
    for (const int planet : planets) {
        if (planet < core::kSun || planet > core::kSaturn) {
            continue;
        }
        for (const TransitStay& stay : staysIn(sky, planet, kKakshyaLength, span)) {
            const double middle = (stay.part + 0.5) * kKakshyaLength;
            KakshyaStay entry;
            entry.planet = planet;
            entry.sign = core::signOfLongitude(middle);
            entry.kakshya = analysis::kakshyaOf(core::degreeInSignOf(middle));
            entry.bindu = analysis::kakshyaBindu(native, planet, middle);
            entry.bindusOfSign = core::at(core::at(tables.bindus, planet), entry.sign - 1);
            entry.stay = stay;
            list.push_back(entry);
        }
    }
    std::stable_sort(list.begin(), list.end(), [](const KakshyaStay& a, const KakshyaStay& b) {
        return a.stay.begin < b.stay.begin;
    });
    return list;
}

} // namespace kestrav::timing
