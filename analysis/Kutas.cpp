#include "analysis/Kutas.h"

#include "analysis/DignityTables.h"
#include "core/Angles.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "core/SignData.h"

#include <cmath>

namespace kestrav::analysis
{

namespace
{

using core::at;

// clang-format off
constexpr std::array<std::wstring_view, kKutaCount> kNames = {
    L"Varna", L"Vashya", L"Tara", L"Yoni", L"Maitri", L"Gana", L"Bhakuta", L"Nadi"};
constexpr std::array<double, kKutaCount> kMaximums = {1, 2, 3, 4, 5, 6, 7, 8};

// By rank 1 to 4; the other names by their numbers in the tables.
constexpr std::array<std::wstring_view, 5> kVarnas = {
    L"", L"Shudra", L"Vaishya", L"Kshatriya", L"Brahmin"};
constexpr std::array<std::wstring_view, astro::kVashyaGroups> kVashyas = {
    L"Chatushpada", L"Nara", L"Jalachara", L"Vanachara", L"Keeta"};
constexpr std::array<std::wstring_view, astro::kYoniAnimals> kYonis = {
    L"Horse", L"Elephant", L"Sheep", L"Serpent", L"Dog", L"Cat", L"Rat",
    L"Cow", L"Buffalo", L"Tiger", L"Deer", L"Monkey", L"Mongoose", L"Lion"};
constexpr std::array<std::wstring_view, astro::kGanas> kGanaNames = {
    L"Deva", L"Manushya", L"Rakshasa"};
constexpr std::array<std::wstring_view, 3> kNadis = {L"Adi", L"Madhya", L"Antya"};

// Points of two planets that regard each other as enemy, neutral or friend.
constexpr std::array<std::array<double, 3>, 3> kMaitriPoints = {{
    {{0.0, 0.5, 1.0}},
    {{0.5, 3.0, 4.0}},
    {{1.0, 4.0, 5.0}},
}};
// clang-format on

std::wstring starName(const MoonPlace& moon)
{
    return std::wstring(core::nakshatraName(moon.star));
}

std::wstring signName(const MoonPlace& moon)
{
    return std::wstring(core::signNameLong(moon.sign));
}

// "Groom A (a), bride B (b)"
std::wstring both(std::wstring_view groom, const std::wstring& groomPlace, std::wstring_view bride,
                  const std::wstring& bridePlace)
{
    return L"Groom " + std::wstring(groom) + L" (" + groomPlace + L"), bride " +
           std::wstring(bride) + L" (" + bridePlace + L")";
}

// 0 four-footed, 1 human, 2 living in water, 3 Leo, 4 Scorpio. Exactly 15 degrees belongs to the
// second half of a sign.
int vashyaGroup(const MoonPlace& moon)
{
    constexpr std::array<int, 13> kGroups = {0, 0, 0, 1, 2, 3, 1, 1, 4, 1, 0, 1, 2};
    const bool secondHalf = moon.degreeInSign >= 15.0;
    if (moon.sign == 9 && secondHalf) {
        return 0;
    }
    if (moon.sign == 10 && secondHalf) {
        return 2;
    }
    return at(kGroups, moon.sign);
}

KutaScore varna(const MoonPlace& groom, const MoonPlace& bride, const astro::MatchingTables& tables)
{
    const int his = at(tables.varna, groom.sign);
    const int hers = at(tables.varna, bride.sign);
    const bool enough = his >= hers;
    return {{},
            enough ? 1.0 : 0.0,
            {},
            both(at(kVarnas, his), signName(groom), at(kVarnas, hers), signName(bride)) +
                (enough ? L": his rank is not below hers." : L": his rank is below hers.")};
}

KutaScore vashya(const MoonPlace& groom, const MoonPlace& bride,
                 const astro::MatchingTables& tables)
{
    const int his = vashyaGroup(groom);
    const int hers = vashyaGroup(bride);
    return {{},
            at(at(tables.vashyaHalfPoints, hers), his) / 2.0,
            {},
            both(at(kVashyas, his), signName(groom), at(kVashyas, hers), signName(bride)) + L"."};
}

// Stars from one to the other, both counted.
int starCount(const MoonPlace& from, const MoonPlace& to)
{
    return core::ModFrom(27, 0, to.star - from.star) + 1;
}

bool goodTara(int count)
{
    const int rest = count % 9;
    return rest != 3 && rest != 5 && rest != 7;
}

std::wstring taraText(int count)
{
    return std::to_wstring(count) + (count == 1 ? L" star" : L" stars") + L", remainder " +
           std::to_wstring(count % 9) + L", " + (goodTara(count) ? L"good" : L"bad");
}

KutaScore tara(const MoonPlace& groom, const MoonPlace& bride)
{
    const int toGroom = starCount(bride, groom);
    const int toBride = starCount(groom, bride);
    return {{},
            (goodTara(toGroom) ? 1.5 : 0.0) + (goodTara(toBride) ? 1.5 : 0.0),
            {},
            L"From the bride's " + starName(bride) + L" to the groom's " + starName(groom) + L" " +
                taraText(toGroom) + L"; back " + taraText(toBride) + L"."};
}

KutaScore yoni(const MoonPlace& groom, const MoonPlace& bride, const astro::MatchingTables& tables)
{
    const int his = at(tables.yoni, groom.star);
    const int hers = at(tables.yoni, bride.star);
    return {{},
            double(at(at(tables.yoniPoints, his), hers)),
            {},
            both(at(kYonis, his), starName(groom), at(kYonis, hers), starName(bride)) + L"."};
}

std::wstring regard(int planet, int other)
{
    constexpr std::array<std::wstring_view, 3> kWords = {L"an enemy", L"neutral", L"a friend"};
    return planetLabel(other) + L" is " +
           std::wstring(at(kWords, naturalRelationship(planet, other) + 1)) + L" to " +
           planetLabel(planet);
}

KutaScore maitri(const MoonPlace& groom, const MoonPlace& bride)
{
    const int his = signLord(groom.sign);
    const int hers = signLord(bride.sign);
    if (his == hers) {
        return {{}, 5.0, {}, planetLabel(his) + L" is the lord of both signs."};
    }
    const int hisRegard = naturalRelationship(his, hers);
    const int herRegard = naturalRelationship(hers, his);
    return {{},
            at(at(kMaitriPoints, hisRegard + 1), herRegard + 1),
            {},
            L"Of the lords of " + signName(groom) + L" and " + signName(bride) + L" " +
                regard(his, hers) + L" and " + regard(hers, his) + L"."};
}

KutaScore gana(const MoonPlace& groom, const MoonPlace& bride, const astro::MatchingTables& tables)
{
    const int his = at(tables.gana, groom.star);
    const int hers = at(tables.gana, bride.star);
    return {{},
            double(at(at(tables.ganaPoints, his), hers)),
            {},
            both(at(kGanaNames, his), starName(groom), at(kGanaNames, hers), starName(bride)) +
                L"."};
}

KutaScore bhakuta(const MoonPlace& groom, const MoonPlace& bride)
{
    const int his = core::norm12(groom.sign - bride.sign + 1);
    const int hers = core::norm12(bride.sign - groom.sign + 1);
    bool apart = false;
    for (const int house : {2, 12, 5, 9, 6, 8}) {
        apart = apart || his == house;
    }
    return {{},
            apart ? 0.0 : 7.0,
            {},
            L"The groom's " + signName(groom) + L" is house " + std::to_wstring(his) +
                L" from the bride's " + signName(bride) + L", hers is house " +
                std::to_wstring(hers) + L" from his."};
}

KutaScore nadi(const MoonPlace& groom, const MoonPlace& bride, const astro::MatchingTables& tables)
{
    const int his = at(tables.nadi, groom.star);
    const int hers = at(tables.nadi, bride.star);
    return {{},
            his != hers ? 8.0 : 0.0,
            {},
            both(at(kNadis, his), starName(groom), at(kNadis, hers), starName(bride)) +
                (his != hers ? L": they differ." : L": they are the same.")};
}

} // namespace

MoonPlace moonPlace(double longitude)
{
    const double position = core::nakshatraPositionOf(longitude);
    const double star = std::floor(position);
    return {core::signOfLongitude(longitude), core::degreeInSignOf(longitude), int(star),
            int(std::floor((position - star) * 4.0)) + 1};
}

KutaScores computeKutas(const MoonPlace& groom, const MoonPlace& bride,
                        const astro::MatchingTables& tables)
{
    KutaScores scores = {varna(groom, bride, tables), vashya(groom, bride, tables),
                         tara(groom, bride),          yoni(groom, bride, tables),
                         maitri(groom, bride),        gana(groom, bride, tables),
                         bhakuta(groom, bride),       nadi(groom, bride, tables)};
    for (int kuta = 0; kuta < kKutaCount; ++kuta) {
        at(scores, kuta).name = at(kNames, kuta);
        at(scores, kuta).maximum = at(kMaximums, kuta);
    }
    return scores;
}

double kutaTotal(const KutaScores& kutas)
{
    double total = 0.0;
    for (const KutaScore& kuta : kutas) {
        total += kuta.points;
    }
    return total;
}

bool lordsAgree(int groomSign, int brideSign)
{
    const int his = signLord(groomSign);
    const int hers = signLord(brideSign);
    return his == hers ||
           (naturalRelationship(his, hers) == 1 && naturalRelationship(hers, his) == 1);
}

std::wstring_view ganaName(int gana)
{
    return at(kGanaNames, gana);
}

std::wstring_view nadiName(int nadi)
{
    return at(kNadis, nadi);
}

std::wstring_view yoniName(int yoni)
{
    return at(kYonis, yoni);
}

std::wstring planetLabel(int planet)
{
    std::wstring name(core::PointName(4, planet));
    name.erase(name.find_last_not_of(L' ') + 1);
    return name;
}

} // namespace kestrav::analysis
