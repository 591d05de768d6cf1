#include "analysis/Matching.h"

#include "analysis/DignityTables.h"
#include "core/Names.h"
#include "core/PointNames.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

std::wstring starName(int star)
{
    return std::wstring(core::nakshatraName(star));
}

Dosha rajju(const MoonPlace& groom, const MoonPlace& bride, const astro::MatchingTables& tables)
{
    constexpr std::array<std::wstring_view, 5> kParts = {L"foot", L"hip", L"navel", L"neck",
                                                         L"head"};
    const int his = at(tables.rajju, groom.star);
    const int hers = at(tables.rajju, bride.star);
    const std::wstring part(at(kParts, his));
    if (his != hers) {
        return {L"Rajju", false, false,
                starName(groom.star) + L" belongs to the " + part + L", " + starName(bride.star) +
                    L" to the " + std::wstring(at(kParts, hers)) + L"."};
    }
    const bool head = his == int(kParts.size()) - 1;
    return {L"Rajju", true, false,
            starName(groom.star) + L" and " + starName(bride.star) + L" both belong to the " +
                part + (head ? L", the worst of the five." : L".")};
}

Dosha vedha(const MoonPlace& groom, const MoonPlace& bride, const astro::MatchingTables& tables)
{
    const bool holds = astro::obstruct(tables, groom.star, bride.star);
    return {L"Vedha", holds, false,
            starName(groom.star) + L" and " + starName(bride.star) +
                (holds ? L" obstruct each other." : L" do not obstruct each other.")};
}

Dosha bhakuta(const MoonPlace& groom, const MoonPlace& bride, const KutaScore& kuta)
{
    const bool holds = kuta.points == 0.0;
    const bool cancelled = holds && lordsAgree(groom.sign, bride.sign);
    std::wstring why = kuta.why;
    if (cancelled) {
        const int his = signLord(groom.sign);
        const int hers = signLord(bride.sign);
        why.back() = L';';
        why += his == hers ? L" void because " + planetLabel(his) + L" is the lord of both signs."
                           : L" void because their lords " + planetLabel(his) + L" and " +
                                 planetLabel(hers) + L" are friends of each other.";
    }
    return {L"Bhakuta", holds, cancelled, why};
}

Dosha nadi(const MoonPlace& groom, const MoonPlace& bride, const KutaScore& kuta)
{
    const bool holds = kuta.points == 0.0;
    const bool sameStar = groom.star == bride.star;
    const bool otherPada = sameStar && groom.pada != bride.pada;
    const bool otherStar = !sameStar && groom.sign == bride.sign;
    std::wstring why = kuta.why;
    if (holds && otherPada) {
        why.back() = L';';
        why += L" void because of the different padas " + std::to_wstring(groom.pada) + L" and " +
               std::to_wstring(bride.pada) + L" of one star.";
    } else if (holds && otherStar) {
        why.back() = L';';
        why += L" void because of the different stars in " +
               std::wstring(core::signNameLong(groom.sign)) + L".";
    }
    return {L"Nadi", holds, holds && (otherPada || otherStar), why};
}

Dosha mangal(std::wstring_view name, const MangalDosha& dosha)
{
    return {name, dosha.holds(), dosha.cancelled(), dosha.why()};
}

} // namespace

core::Result<Matching> matchCharts(const core::Chart& groom, const core::Chart& bride,
                                   const astro::MatchingTables& tables,
                                   const core::Settings& settings)
{
    for (const core::Chart* const chart : {&groom, &bride}) {
        if (!chart->computed(core::kMoon)) {
            return core::Error{chart == &groom ? "the groom's Moon has no position"
                                               : "the bride's Moon has no position"};
        }
    }
    const MoonPlace his = moonPlace(groom.longitude[core::kMoon]);
    const MoonPlace hers = moonPlace(bride.longitude[core::kMoon]);
    Matching matching;
    matching.kutas = computeKutas(his, hers, tables);
    matching.total = kutaTotal(matching.kutas);
    matching.groomMangal = mangalDosha(groom, settings);
    matching.brideMangal = mangalDosha(bride, settings);
    const bool inBoth = matching.groomMangal.holds() && matching.brideMangal.holds();
    matching.groomMangal.inBothCharts = inBoth;
    matching.brideMangal.inBothCharts = inBoth;
    matching.doshas = {rajju(his, hers, tables),
                       vedha(his, hers, tables),
                       bhakuta(his, hers, matching.kutas[kBhakutaKuta]),
                       nadi(his, hers, matching.kutas[kNadiKuta]),
                       mangal(L"Mangal of the groom", matching.groomMangal),
                       mangal(L"Mangal of the bride", matching.brideMangal)};
    return matching;
}

} // namespace kestrav::analysis
