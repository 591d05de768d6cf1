// The dashas of signs against printed lists.
#include "timing/SignDashas.h"

#include "tests/analysis/AnalysisCharts.h"
#include "tests/timing/DashaCharts.h"
#include "timing/JaiminiSigns.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrav::timing
{
namespace
{

enum Sign : int
{
    Ar = 1,
    Ta,
    Ge,
    Cn,
    Le,
    Vi,
    Li,
    Sc,
    Sg,
    Cp,
    Aq,
    Pi,
};

using List = std::vector<LordAndYears>;

List listOf(const core::Chart& chart, int system, int count)
{
    return lordsAndYears(dashaFor(chart, system), count);
}

// Born 1911 February 6, 2:04.
constexpr BirthForTests kBirth1911 = {1911, 2, 6, clock(2, 4), -6.0, 41.633, -89.783};

std::vector<int> subLords(const Dasha& dasha, int parent)
{
    std::vector<int> lords;
    DashaSpan span;
    span.budget = 1000;
    for (const DashaPeriod& period : DashaList(dasha, span)) {
        if (period.level == 2 && period.lords[0] == parent) {
            lords.push_back(period.lord());
            if (lords.size() == 12) {
                break;
            }
        }
    }
    return lords;
}

TEST(SignDashas, YearsOfSigns)
{
    const JaiminiSigns signs(chartE(), {});
    const std::array<double, 12> wanted = {4, 5, 6, 9, 9, 9, 12, 4, 12, 10, 11, 3};
    for (int sign = 1; sign <= 12; ++sign) {
        EXPECT_EQ(signs.years(sign, true), wanted[std::size_t(sign - 1)]) << sign;
    }
}

TEST(SignDashas, JaiminiChara)
{
    const List wanted = {{Cp, 10}, {Sg, 12}, {Sc, 4}, {Li, 12}, {Vi, 9}, {Le, 9},
                         {Cn, 9},  {Ge, 6},  {Ta, 5}, {Ar, 4},  {Pi, 3}, {Aq, 11}};
    List twice = wanted;
    twice.insert(twice.end(), wanted.begin(), wanted.end());
    EXPECT_EQ(listOf(chartE(), kJaiminiChara, 24), twice);
}

TEST(SignDashas, Narayana)
{
    EXPECT_EQ(listOf(chartE(), kNarayana, 15), (List{{Cn, 9},
                                                     {Ge, 6},
                                                     {Ta, 5},
                                                     {Ar, 4},
                                                     {Pi, 3},
                                                     {Aq, 11},
                                                     {Cp, 10},
                                                     {Sg, 12},
                                                     {Sc, 4},
                                                     {Li, 12},
                                                     {Vi, 9},
                                                     {Le, 9},
                                                     {Cn, 3},
                                                     {Ge, 6},
                                                     {Ta, 7}}));
    const core::Chart chart = chartOfBirth({1912, 8, 8, clock(19, 38), 5.5, 13.0, 77.583});
    EXPECT_EQ(listOf(chart, kNarayana, 12), (List{{Le, 1},
                                                  {Cp, 8},
                                                  {Ge, 2},
                                                  {Sc, 9},
                                                  {Ar, 4},
                                                  {Vi, 1},
                                                  {Aq, 9},
                                                  {Cn, 3},
                                                  {Sg, 11},
                                                  {Ta, 3},
                                                  {Li, 10},
                                                  {Pi, 4}}));
}

TEST(SignDashas, SecondCycleSkipsSignsOfTwelveYears)
{
    // Sagittarius and Libra have 12 years in the first cycle, so nothing in the second.
    const List list = listOf(chartE(), kNarayana, 34);
    EXPECT_EQ(list[18], (LordAndYears{Cp, 2}));
    EXPECT_EQ(list[19], (LordAndYears{Sc, 8}));
    EXPECT_EQ(list[20], (LordAndYears{Vi, 3}));
    EXPECT_EQ(list[22], (LordAndYears{Cn, 9}));
    EXPECT_EQ(list[33], (LordAndYears{Le, 9}));
    for (const int system : {kSudasa, kLagnaKendradi, kAtmaKendradi, kDrig}) {
        const DashaPlan plan = dashaFor(chartE(), system).plan;
        for (std::size_t i = 0; i < 12; ++i) {
            EXPECT_EQ(plan.cycles[1].years[i], 12.0 - plan.cycles[0].years[i]) << system;
        }
    }
}

TEST(SignDashas, SudasaBeginsInsideItsFirstPeriod)
{
    const Dasha dasha = dashaFor(chartE(), kSudasa);
    EXPECT_EQ(lordsAndYears(dasha, 15), (List{{Aq, 11},
                                              {Ta, 5},
                                              {Le, 9},
                                              {Sc, 4},
                                              {Pi, 3},
                                              {Ge, 6},
                                              {Vi, 9},
                                              {Sg, 12},
                                              {Ar, 4},
                                              {Cn, 9},
                                              {Li, 12},
                                              {Cp, 10},
                                              {Aq, 1},
                                              {Ta, 7},
                                              {Le, 3}}));
    EXPECT_NEAR(mahadashas(dasha, 1)[0].endAge(), 10.87, 0.005);
}

TEST(SignDashas, YearsFollowTheNodeScheme)
{
    // Ketu with the Moon in Sagittarius is the lord of Scorpio; only the third scheme exalts him
    // there.
    const core::Chart chart = analysis::chartOfSigns({1, 1, 9, 7, 2, 2, 1, 5, 3, 9});
    core::Settings settings;
    EXPECT_EQ(JaiminiSigns(chart, settings).lordOf(Sc), core::kKetu);
    EXPECT_EQ(JaiminiSigns(chart, settings).years(Sc, true), 1.0);
    settings.nodeDignityScheme = 2;
    EXPECT_EQ(JaiminiSigns(chart, settings).years(Sc, true), 2.0);
}

// Saturn in Leo and Rahu in Taurus are alone, without helpers and dignity, both in fixed signs:
// Rahu gives Aquarius nine years, Saturn six. By degrees Saturn would win.
TEST(SignDashas, LongerYearsChooseTheCoLord)
{
    const core::Chart chart = analysis::chartOf({5, 155, 335, 335, 65, 65, 245, 130, 55, 235});
    core::Settings settings;
    settings.nodeDignityScheme = 2;
    const JaiminiSigns signs(chart, settings);
    EXPECT_EQ(signs.lordOf(Aq), core::kRahu);
    EXPECT_EQ(signs.years(Aq, true), 9.0);
    EXPECT_EQ(analysis::lordOfSign(signs.view(), Aq, true), core::kSaturn);
}

TEST(SignDashas, Kendradi)
{
    EXPECT_EQ(listOf(chartOfBirth(kBirth1911), kLagnaKendradi, 12), (List{{Ta, 9},
                                                                          {Aq, 10},
                                                                          {Sc, 11},
                                                                          {Le, 7},
                                                                          {Ar, 8},
                                                                          {Cp, 8},
                                                                          {Li, 4},
                                                                          {Cn, 3},
                                                                          {Pi, 5},
                                                                          {Sg, 10},
                                                                          {Vi, 9},
                                                                          {Ge, 6}}));
    EXPECT_EQ(listOf(chartE(), kAtmaKendradi, 12), (List{{Sg, 12},
                                                         {Pi, 3},
                                                         {Ge, 6},
                                                         {Vi, 9},
                                                         {Cp, 10},
                                                         {Ar, 4},
                                                         {Cn, 9},
                                                         {Li, 12},
                                                         {Aq, 11},
                                                         {Ta, 5},
                                                         {Le, 9},
                                                         {Sc, 4}}));
}

TEST(SignDashas, Drig)
{
    EXPECT_EQ(listOf(chartE(), kDrig, 12), (List{{Vi, 9},
                                                 {Ge, 6},
                                                 {Pi, 3},
                                                 {Sg, 12},
                                                 {Li, 12},
                                                 {Aq, 11},
                                                 {Ta, 5},
                                                 {Le, 9},
                                                 {Sc, 4},
                                                 {Cp, 10},
                                                 {Ar, 4},
                                                 {Cn, 9}}));
}

TEST(SignDashas, Shoola)
{
    const List fromE = listOf(chartE(), kShoola, 13);
    EXPECT_EQ(fromE[0], (LordAndYears{Cn, 9}));
    EXPECT_EQ(fromE[1], (LordAndYears{Le, 9}));
    EXPECT_EQ(fromE[12], (LordAndYears{Cn, 9}));
    const core::Chart chart = chartOfBirth({1917, 11, 19, clock(23, 3), 5.5, 25.467, 81.867});
    EXPECT_EQ(listOf(chart, kShoola, 2), (List{{Cp, 9}, {Aq, 9}}));
}

TEST(SignDashas, NiryanaShoola)
{
    const core::Chart chart = chartOfBirth({1944, 8, 20, clock(7, 11), 5.5, 18.967, 72.817});
    const List list = listOf(chart, kNiryanaShoola, 13);
    EXPECT_EQ(List(list.begin(), list.begin() + 6),
              (List{{Vi, 9}, {Le, 8}, {Cn, 7}, {Ge, 9}, {Ta, 8}, {Ar, 7}}));
    double years = 0.0;
    for (std::size_t i = 0; i < 12; ++i) {
        years += list[i].years;
    }
    EXPECT_EQ(years, 96.0);
    EXPECT_EQ(list[12], list[0]);
}

// Whatever the chart is, every order of periods and of sub-periods holds each sign once.
TEST(SignDashas, EverySignComesOnce)
{
    const int systems[] = {kJaiminiChara, kNarayana, kSudasa, kLagnaKendradi,
                           kAtmaKendradi, kDrig,     kShoola, kNiryanaShoola};
    for (int hour = 0; hour < 24; hour += 1) {
        BirthForTests birth = kBirthE;
        birth.hour = hour;
        birth.day = 1 + hour;
        const core::Chart chart = chartOfBirth(birth);
        for (const int system : systems) {
            for (const SubPeriodStart start :
                 {SubPeriodStart::OwnSign, SubPeriodStart::StrongerOfBoth,
                  SubPeriodStart::SignOfLord}) {
                DashaOptions options = optionsOf(system);
                options.subPeriodStart = start;
                const DashaPlan plan = dashaFor(chart, options).plan;
                for (int sign = 0; sign <= 12; ++sign) {
                    SignOrder order =
                        sign == 0 ? plan.cycles[0].lords : core::at(plan.subOrders, sign);
                    std::sort(order.begin(), order.end());
                    for (int i = 0; i < 12; ++i) {
                        ASSERT_EQ(core::at(order, i), i + 1) << system << ' ' << sign;
                    }
                }
            }
        }
    }
}

TEST(SignDashas, DrigCompletesItsListFromTheFirstHead)
{
    // A fixed head misses the two signs next to the aspected ones of the other heads.
    const Dasha dasha = dashaFor(chartE(), kDrig);
    EXPECT_EQ(subLords(dasha, Ta),
              (std::vector<int>{Ta, Cn, Li, Cp, Ge, Vi, Sg, Pi, Aq, Sc, Le, Ar}));
    EXPECT_EQ(subLords(dasha, Vi),
              (std::vector<int>{Vi, Ge, Pi, Sg, Li, Aq, Ta, Le, Sc, Cp, Ar, Cn}));
}

TEST(SignDashas, SaturnAndKetuTurnTheOrder)
{
    // In E Saturn and Ketu stand in Pisces together: Saturn prevails, the order is forward.
    EXPECT_EQ(subLords(dashaFor(chartE(), kNarayana), Pi),
              (std::vector<int>{Pi, Ar, Ta, Ge, Cn, Le, Vi, Li, Sc, Sg, Cp, Aq}));
    EXPECT_EQ(subLords(dashaFor(chartE(), kLagnaKendradi), Pi),
              (std::vector<int>{Pi, Ge, Vi, Sg, Ar, Cn, Li, Cp, Ta, Le, Sc, Aq}));
    // Taurus alone would run backwards in both; Ketu turns it.
    const core::Chart chart = analysis::chartOfSigns({1, 1, 1, 1, 1, 1, 1, 1, 8, 2});
    EXPECT_EQ(core::at(dashaFor(chart, kNarayana).plan.subOrders, Ta),
              (SignOrder{Ta, Li, Pi, Le, Cp, Ge, Sc, Ar, Vi, Aq, Cn, Sg}));
    EXPECT_EQ(core::at(dashaFor(chart, kLagnaKendradi).plan.subOrders, Ta),
              (SignOrder{Ta, Le, Sc, Aq, Ge, Vi, Sg, Pi, Cn, Li, Cp, Ar}));
}

TEST(SignDashas, CharaSubPeriodsCloseWithTheirParent)
{
    DashaOptions options = optionsOf(kJaiminiChara);
    EXPECT_EQ(subLords(dashaFor(chartE(), options), Cp),
              (std::vector<int>{Sg, Sc, Li, Vi, Le, Cn, Ge, Ta, Ar, Pi, Aq, Cp}));
    options.charaOwnSignLast = false;
    EXPECT_EQ(subLords(dashaFor(chartE(), options), Cp),
              (std::vector<int>{Cp, Sg, Sc, Li, Vi, Le, Cn, Ge, Ta, Ar, Pi, Aq}));
    // Capricorn's lord Saturn stands in Pisces, whose ninth Scorpio is odd-footed.
    options.subPeriodStart = SubPeriodStart::SignOfLord;
    EXPECT_EQ(subLords(dashaFor(chartE(), options), Cp),
              (std::vector<int>{Pi, Ar, Ta, Ge, Cn, Le, Vi, Li, Sc, Sg, Cp, Aq}));
}

TEST(SignDashas, CharaCountsExaltationOnlyWhenAsked)
{
    // In 1911 Saturn, debilitated in Aries, gives Capricorn nine signs backwards.
    const core::Chart chart = chartOfBirth(kBirth1911);
    ASSERT_EQ(chart.rashi[core::kSaturn], int(Ar));
    DashaOptions options = optionsOf(kJaiminiChara);
    const auto yearsOfCapricorn = [&] {
        for (const LordAndYears& entry : lordsAndYears(dashaFor(chart, options), 12)) {
            if (entry.lord == Cp) {
                return entry.years;
            }
        }
        return 0.0;
    };
    EXPECT_EQ(yearsOfCapricorn(), 9.0);
    options.charaExaltationYears = true;
    EXPECT_EQ(yearsOfCapricorn(), 8.0);
}

TEST(SignDashas, SudarshanaRings)
{
    // Age 25 is house 2.
    const Dasha dasha = dashaFor(chartE(), kSudarshanaChakra);
    const List list = lordsAndYears(dasha, 26);
    EXPECT_EQ(list[0], (LordAndYears{1, 1}));
    EXPECT_EQ(list[25], (LordAndYears{2, 1}));
    EXPECT_EQ(sudarshanaSigns(chartE(), 2), (std::array<int, 3>{Aq, Sc, Sg}));
    // Sub-periods of a month run from the parent's own house; after them come two and a half days.
    EXPECT_EQ(subLords(dasha, 3), (std::vector<int>{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 1, 2}));
    core::Chart bare;
    EXPECT_EQ(sudarshanaSigns(bare, 2), (std::array<int, 3>{0, 0, 0}));
}

} // namespace
} // namespace kestrav::timing
