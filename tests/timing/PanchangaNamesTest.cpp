#include "timing/PanchangaNames.h"
#include "core/DisplayFlags.h"
#include "timing/DayDivisions.h"
#include "timing/MoonStrength.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace kestrav::timing
{
namespace
{

TEST(PanchangaNames, bothHalvesOfTheMonthShareTheirNamesUpToTheLast)
{
    EXPECT_EQ(tithiName(0), L"Prathama");
    EXPECT_EQ(tithiName(13), L"Chaturdashi");
    EXPECT_EQ(tithiName(14), L"Purnima (full Moon)");
    EXPECT_EQ(tithiName(15), L"Prathama");
    EXPECT_EQ(tithiName(29), L"Amavasya (new Moon)");
    EXPECT_EQ(tithiKeyword(25), L"");
    EXPECT_EQ(tithiKeyword(29), L"Weak, focussed-");
    std::set<int> unfavourable;
    for (int tithi = 0; tithi < kTithis; ++tithi) {
        if (isUnfavourable(tithiKeyword(tithi))) {
            unfavourable.insert(tithi + 1);
        }
    }
    EXPECT_EQ(unfavourable, (std::set<int>{4, 9, 14, 19, 24, 29, 30}));
    EXPECT_EQ(tithiOfPaksha(14), 15);
    EXPECT_EQ(tithiOfPaksha(15), 1);
    EXPECT_FALSE(isKrishna(14));
    EXPECT_TRUE(isKrishna(15));
    EXPECT_EQ(tithiName(30), L"--");
    EXPECT_EQ(tithiName(-1), L"--");
}

TEST(PanchangaNames, karanasRunRoundBetweenTheFixedOnes)
{
    EXPECT_EQ(karanaName(1), L"Kinstughna-");
    EXPECT_EQ(karanaName(2), L"Bava");
    for (const int vishti : {8, 15, 22, 29, 36, 43, 50, 57}) {
        EXPECT_EQ(karanaName(vishti), L"Vishti-");
    }
    EXPECT_EQ(karanaName(42), L"Vanija");
    EXPECT_EQ(karanaName(58), L"Shakuna-");
    EXPECT_EQ(karanaName(59), L"Chatushpada-");
    EXPECT_EQ(karanaName(60), L"Naga-");
    EXPECT_EQ(karanaNote(9), L"Good for starting ventures");
    EXPECT_EQ(karanaAnimal(5), L"Donkey");
    EXPECT_EQ(karanaName(0), L"--");
    EXPECT_EQ(karanaName(61), L"--");
}

TEST(PanchangaNames, yogasInTheirOrder)
{
    const std::vector<std::wstring_view> last = {L"Siddha", L"Satya", L"Shubha",    L"Shukla",
                                                 L"Brahma", L"Indra", L"Vaidhriti-"};
    for (int i = 0; i < int(last.size()); ++i) {
        EXPECT_EQ(yogaName(20 + i), last[std::size_t(i)]);
    }
    EXPECT_EQ(yogaKeyword(22), L"Brilliant");
    EXPECT_EQ(yogaKeyword(16), L"");
    EXPECT_EQ(yogaName(27), L"--");
    int unfavourable = 0;
    for (int yoga = 0; yoga < kYogas; ++yoga) {
        unfavourable += isUnfavourable(yogaName(yoga)) ? 1 : 0;
    }
    EXPECT_EQ(unfavourable, 9);
}

std::wstring choghadiaRow(int weekday, bool night)
{
    std::wstring row;
    for (int part = 0; part < 8; ++part) {
        row += choghadiaName(choghadiaOf(weekday, night, part)).substr(0, 2);
    }
    return row;
}

TEST(PanchangaNames, choghadiaOfTheWeekdays)
{
    EXPECT_EQ(choghadiaRow(1, false), L"UdChLaAmKaShRoUd");
    EXPECT_EQ(choghadiaRow(1, true), L"ShAmChRoKaLaUdSh");
    EXPECT_EQ(choghadiaRow(4, true), L"UdShAmChRoKaLaUd");
    // A printed Saturday.
    EXPECT_EQ(choghadiaRow(7, false), L"KaShRoUdChLaAmKa");
    EXPECT_EQ(choghadiaRow(7, true), L"LaUdShAmChRoKaLa");
}

TEST(MoonStrength, taraBalaOfEveryDistance)
{
    for (int birth = 0; birth < kNakshatras; ++birth) {
        for (int d = 0; d < kNakshatras; ++d) {
            const TaraBala bala = taraBala((birth + d) % 27 + 0.99, birth + 0.01);
            const int tara = d % 9 + 1;
            const int wanted = d == 0 ? 0 : (tara == 3 || tara == 5 || tara == 7 ? -1 : 1);
            EXPECT_EQ(bala.score, wanted) << birth << " " << d;
            EXPECT_EQ(bala.text, taraBalaText(wanted));
        }
    }
    EXPECT_EQ(taraBala(5.5, 5.1).text, L"Birth Star, mainly favourable");
    EXPECT_EQ(taraBala(9.0, 0.0).text, L"Favourable star for you");
    const core::DisplayFlagsOverride sanskrit(0);
    EXPECT_EQ(taraBala(5.5, 5.1).text, L"Janma Nakshatra, mainly Shubha");
    EXPECT_EQ(taraBala(2.0, 0.0).text, L"Ashubha Tara Bal");
    EXPECT_EQ(pakshaText(true), L"Krishna Paksha");
}

TEST(MoonStrength, chandraBalaCountsFromTheBirthSign)
{
    const std::vector<int> wanted = {1, 0, 1, -1, 0, 1, 1, -1, 0, 1, 1, -1};
    for (int birth = 1; birth <= 12; ++birth) {
        for (int house = 1; house <= 12; ++house) {
            EXPECT_EQ(chandraBala((birth + house - 2) % 12 + 1, birth),
                      wanted[std::size_t(house - 1)]);
        }
    }
}

double clock(int hour, int minute)
{
    return hour + minute / 60.0;
}

void expectSpan(const HourSpan& span, double start, double end)
{
    EXPECT_NEAR(span.start, start, 1.0 / 60.0);
    EXPECT_NEAR(span.end, end, 1.0 / 60.0);
}

DayHalves halves(double sunrise, double sunset, double nextSunrise)
{
    return {analysis::HalfDay{false, sunrise, sunset},
            analysis::HalfDay{true, sunset, nextSunrise}};
}

TEST(DayDivisions, printedKalamsAndMuhurtas)
{
    const DayHalves monday = halves(clock(7, 13), clock(17, 54), clock(31, 13));
    expectSpan(*rahuKalam(monday, 2), clock(8, 33), clock(9, 53));
    expectSpan(*yamaganda(monday, 2), clock(11, 13), clock(12, 33));
    expectSpan(*abhijit(monday, 2), clock(12, 12), clock(12, 55));

    const DayHalves wednesday = halves(clock(7, 12), clock(17, 55), clock(31, 12));
    ASSERT_EQ(durmuhurtas(wednesday, 4).size(), 1U);
    expectSpan(durmuhurtas(wednesday, 4)[0], clock(12, 12), clock(12, 55));
    EXPECT_FALSE(abhijit(wednesday, 4));

    expectSpan(varjyamOf(16, {clock(10, 59), clock(37, 56)}), clock(15, 28), clock(17, 16));
    expectSpan(amritaKalamOf(16, {clock(10, 59), clock(37, 56)}), clock(26, 15), clock(28, 3));
}

TEST(DayDivisions, eachDayHasItsOwnEighths)
{
    const DayHalves even = halves(6.0, 18.0, 30.0);
    for (int weekday = 1; weekday <= 7; ++weekday) {
        const auto part = [&](const std::optional<HourSpan>& span) {
            return int((span->start - 6.0) / 1.5 + 1.5);
        };
        // The kalams of Saturn and Jupiter are the kala velas Gulika and Yama of the day.
        for (const DayPart& vela : kalaVelasOf(even, weekday)) {
            if (!vela.night && vela.ruler == 7) {
                EXPECT_DOUBLE_EQ(vela.hours.start, gulikaKalam(even, weekday)->start);
            }
            if (!vela.night && vela.ruler == 5) {
                EXPECT_DOUBLE_EQ(vela.hours.start, yamaganda(even, weekday)->start);
            }
        }
        EXPECT_NE(part(rahuKalam(even, weekday)), part(yamaganda(even, weekday)));
        EXPECT_NE(part(rahuKalam(even, weekday)), part(gulikaKalam(even, weekday)));
    }
    const std::vector<HourSpan> tuesday = durmuhurtas(even, 3);
    ASSERT_EQ(tuesday.size(), 2U);
    expectSpan(tuesday[0], 6.0 + 3 * 0.8, 6.0 + 4 * 0.8);
    expectSpan(tuesday[1], 18.0 + 6 * 0.8, 18.0 + 7 * 0.8);
}

TEST(DayDivisions, partsFillBothHalvesAndContinueByNight)
{
    const DayHalves day = halves(5.0, 19.4, 29.02);
    const std::vector<DayPart> horas = horasOf(day, 4);
    const std::vector<DayPart> velas = kalaVelasOf(day, 4);
    ASSERT_EQ(horas.size(), 24U);
    ASSERT_EQ(velas.size(), 16U);
    for (const std::vector<DayPart>& parts : {horas, velas, choghadiaOfDay(day, 4)}) {
        EXPECT_DOUBLE_EQ(parts.front().hours.start, 5.0);
        EXPECT_NEAR(parts[parts.size() / 2].hours.start, 19.4, 1e-12);
        EXPECT_NEAR(parts.back().hours.end, 29.02, 1e-12);
        for (std::size_t i = 1; i < parts.size(); ++i) {
            EXPECT_NEAR(parts[i].hours.start, parts[i - 1].hours.end, 1e-12);
        }
    }
    const std::vector<int> order = {4, 2, 7, 5, 3, 1, 6}; // Mercury's hora leads on Wednesday
    for (std::size_t i = 0; i < horas.size(); ++i) {
        EXPECT_EQ(horas[i].ruler, order[i % 7]);
    }
    EXPECT_EQ(kalaVelaName(velas[0].ruler), L"ArdhPra");
    EXPECT_EQ(kalaVelaName(velas[7].ruler), L"----");
    EXPECT_EQ(kalaVelaName(velas[8].ruler), L"Kaala");
    EXPECT_EQ(kalaVelaLongName(velas[1].ruler), L"Yamaghantaka");
    EXPECT_EQ(kalaVelaName(velas[15].ruler), L"----");
}

TEST(DayDivisions, nothingIsInventedWhereAHalfIsMissing)
{
    DayHalves none;
    EXPECT_TRUE(horasOf(none, 1).empty());
    EXPECT_TRUE(durmuhurtas(none, 3).empty());
    EXPECT_FALSE(rahuKalam(none, 1));
    EXPECT_FALSE(abhijit(none, 1));
    DayHalves dayOnly = halves(6.0, 18.0, 30.0);
    dayOnly.night.reset();
    EXPECT_EQ(horasOf(dayOnly, 1).size(), 12U);
    EXPECT_EQ(durmuhurtas(dayOnly, 3).size(), 1U);
    EXPECT_EQ(choghadiaOfDay(dayOnly, 1).size(), 8U);
}

} // namespace
} // namespace kestrav::timing
