// The inspector: what it tells about points, signs, stars and periods.
#include "app/present/Inspector.h"
#include "analysis/DignityTables.h"
#include "app/present/VargaTables.h"
#include "tests/present/WorkingCharts.h"
#include "timing/DashaQuery.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace kestrav::present
{

namespace
{

yoga::YogaLibrary deliveredYogas()
{
    yoga::YogaLibrary library;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(KESTRAV_RESOURCES) + "/yogas")) {
        EXPECT_TRUE(library.load(entry.path())) << entry.path();
    }
    return library;
}

const Table* section(const Inspection& inspection, std::string_view id)
{
    for (const Table& table : inspection.sections) {
        if (table.id == id) {
            return &table;
        }
    }
    return nullptr;
}

std::string valueOf(const Inspection& inspection, std::string_view id, std::wstring_view label)
{
    const Table* const table = section(inspection, id);
    const Row* const row = table == nullptr ? nullptr : rowOf(*table, label);
    return row == nullptr ? "missing" : core::toUtf8((*row)[1].text);
}

} // namespace

TEST(Inspector, TellsOfEveryPointWhatItHas)
{
    const ComputedChart computed = delhiChart();
    const yoga::YogaLibrary yogas = deliveredYogas();
    TableSource source = sourceOf(computed);
    source.yogas = &yogas;
    for (int point = 0; point < core::kPointCount; ++point) {
        const Inspection inspection = inspect(source, {Subject::Point, point});
        EXPECT_FALSE(inspection.title.empty()) << point;
        std::set<std::string> ids;
        for (const Table& table : inspection.sections) {
            EXPECT_FALSE(table.title.empty()) << point;
            EXPECT_TRUE(ids.insert(table.id).second) << point << table.id;
            for (const Row& row : table.rows) {
                EXPECT_EQ(row.size(), table.columns.size());
            }
        }
        const bool planet = point >= core::kSun && point <= core::kSaturn;
        EXPECT_EQ(ids.count("relationships"), planet ? 1U : 0U) << point;
        EXPECT_EQ(ids.count("placements"),
                  computed.chart.computed(point) && point < kPlacedPoints ? 1U : 0U)
            << point;
        EXPECT_FALSE(section(inspection, "how-computed")->rows.empty()) << point;
    }
    const Inspection muntha = inspect(source, {Subject::Point, core::kMuntha});
    ASSERT_EQ(muntha.sections.front().notes.size(), 1U);
    EXPECT_NE(muntha.sections.front().notes[0].find(L"annual"), std::wstring::npos);
    for (const Link& nothing :
         {Link{}, Link{Subject::Point, 63}, Link{Subject::Sign, 0}, Link{Subject::House, 13}}) {
        EXPECT_TRUE(inspect(source, nothing).sections.empty());
    }
}

TEST(Inspector, RelationshipsAndStateOfMars)
{
    // Mars in Pisces; Jupiter and the Sun in the fourth sign from it, Mercury in the third, Saturn
    // in the eleventh, Venus in the second, the Moon in the twelfth: temporary friends all.
    const ComputedChart computed = delhiChart();
    const Inspection mars = inspect(sourceOf(computed), {Subject::Point, core::kMars});
    const Table* const table = section(mars, "relationships");
    EXPECT_EQ(columnOf(*table, 0), "Sun\nMoon\nMercury\nJupiter\nVenus\nSaturn\n");
    EXPECT_EQ(columnOf(*table, 1), "friend\nfriend\nenemy\nfriend\nneutral\nneutral\n");
    EXPECT_EQ(columnOf(*table, 2), "friend\nfriend\nfriend\nfriend\nfriend\nfriend\n");
    EXPECT_EQ(valueOf(mars, "position", L"Lord of the nakshatra"), "Mercury");
    EXPECT_EQ(valueOf(mars, "position", L"House"), "7");
    EXPECT_EQ(valueOf(mars, "state", L"Combustion"), "not combust");
    // His full aspects: the fourth, seventh and eighth sign.
    const Table* const given = section(mars, "aspects-given");
    std::set<double> full;
    for (const Row& row : given->rows) {
        if (row[1].text == L"full" && row[0].link.index >= core::kCusp1) {
            full.insert(row[0].link.index - core::kCusp1 + 1);
        }
    }
    EXPECT_EQ(full, (std::set<double>{1, 2, 10}));
}

TEST(Inspector, YogasNameThePointItselfOrByItsRole)
{
    const ComputedChart computed = delhiChart();
    const yoga::YogaLibrary yogas = deliveredYogas();
    TableSource source = sourceOf(computed);
    source.yogas = &yogas;
    const auto has = [&](int point, std::wstring_view title) {
        const Inspection inspection = inspect(source, {Subject::Point, point});
        return rowOf(*section(inspection, "yogas-of-point"), title) != nullptr;
    };
    EXPECT_TRUE(has(core::kKetu, L"Ketu in the karakamsha"));
    EXPECT_FALSE(has(core::kRahu, L"Ketu in the karakamsha"));
    // Of a lord: Mars rules the third from Virgo.
    EXPECT_TRUE(has(core::kMars, L"Shaurya"));
    EXPECT_FALSE(has(core::kJupiter, L"Shaurya"));
    // Of one of several planets: Mercury is in the twelfth from the Sun, Mars is not.
    EXPECT_TRUE(has(core::kMercury, L"Vasi"));
    EXPECT_FALSE(has(core::kMars, L"Vasi"));
    source.yogas = nullptr;
    EXPECT_EQ(section(inspect(source, {Subject::Point, core::kMars}), "yogas-of-point"), nullptr);
}

TEST(Inspector, SignsShareOutThePointsAndKnowTheirLords)
{
    const ComputedChart computed = delhiChart();
    const TableSource source = sourceOf(computed);
    for (const int varga : {int(core::kRashi), int(core::kNavamsha)}) {
        std::size_t points = 0;
        double sarva = 0.0;
        for (int sign = 1; sign <= 12; ++sign) {
            const Inspection inspection = inspect(source, {Subject::Sign, sign, varga});
            points += section(inspection, "occupants")->rows.size();
            sarva += *(*rowOf(*section(inspection, "bindus"), L"Sarva"))[1].sortKey;
            EXPECT_EQ((*rowOf(*section(inspection, "sign"), L"Lord"))[1].link.index,
                      analysis::signLord(sign));
        }
        EXPECT_EQ(points, placedPoints(computed).size());
        EXPECT_EQ(sarva, 337.0); // the classical total
    }
    // The ascendant is in Virgo, so the fourth house is Sagittarius.
    const Inspection house = inspect(source, {Subject::House, 4});
    EXPECT_EQ(house.title, L"House 4, Sagittarius");
    EXPECT_EQ(valueOf(house, "sign", L"Lord stands in"), "Gemini");
    EXPECT_EQ(columnOf(*section(house, "cusps"), 0), "4\n");

    ComputedChart bare = computed;
    core::at(bare.chart.degreeInSign, core::kAscendant) = core::kNotComputed;
    EXPECT_FALSE(inspect(sourceOf(bare), {Subject::House, 4}).sections.front().notes.empty());
}

TEST(Inspector, NakshatrasMomentsAndTithis)
{
    const ComputedChart computed = delhiChart();
    const TableSource source = sourceOf(computed);
    const Inspection star = inspect(source, {Subject::Nakshatra, 22});
    EXPECT_EQ(star.title, L"Dhanishtha");
    EXPECT_EQ(columnOf(*section(star, "quarters"), 2), "Leo\nVirgo\nLibra\nScorpio\n");
    EXPECT_EQ(valueOf(star, "nakshatra", L"Lord"), "Mars");
    EXPECT_EQ(valueOf(star, "nakshatra", L"From that of the birth Moon"), "27");
    std::size_t points = 0;
    for (int nakshatra = 0; nakshatra < 27; ++nakshatra) {
        const Inspection other = inspect(source, {Subject::Nakshatra, nakshatra});
        points += section(other, "occupants")->rows.size();
    }
    EXPECT_GE(points, placedPoints(computed).size());

    // 2015 November 23: the Moon at 6 Aries, the Sun at 7 Scorpio, which is the thirteenth tithi.
    const Inspection then = inspect(source, {Subject::Moment, 0, 0, 2457350.0});
    EXPECT_EQ(then.title, L"2015-11-23 17:30:00");
    EXPECT_EQ(valueOf(then, "elements", L"Tithi"), "Trayodashi");
    EXPECT_EQ(valueOf(then, "elements", L"Nakshatra"), "Ashwini");
    EXPECT_EQ(valueOf(inspectTithi(12), "tithi", L"Day of it"), "13");
    EXPECT_EQ(inspectTithi(27).title, L"Trayodashi");
}

TEST(Inspector, APeriodDividesIntoItsSubPeriods)
{
    const ComputedChart computed = delhiChart();
    const TableSource source = sourceOf(computed);
    const auto dasha = timing::dashaOf(computed.chart, computed.settings,
                                       timing::dashaOptions(computed.settings), source.series);
    ASSERT_TRUE(dasha);
    for (const double age : {0.0, 25.4}) {
        for (int level = 1; level <= 5; ++level) {
            const auto period = timing::periodAtAge(dasha.value(), age, level);
            ASSERT_TRUE(period);
            const Inspection inspection = inspectPeriod(source, *period);
            ASSERT_EQ(inspection.sections.size(), level < 5 ? 3U : 2U);
            const Table& inner = inspection.sections[1];
            if (level == 5) {
                EXPECT_EQ(inner.id, "position");
                continue;
            }
            ASSERT_EQ(inner.rows.size(), 9U) << age << " " << level;
            // The columns are period, from, to, age and years.
            double years = 0.0;
            for (const Row& row : inner.rows) {
                years += *row[4].sortKey;
            }
            EXPECT_NEAR(years, period->length, 1e-9 * period->length);
            EXPECT_NEAR(*inner.rows.front()[3].sortKey, period->startAge, 1e-9);
            EXPECT_EQ(inner.rows.front()[0].link.index, period->lord());
        }
    }
}

} // namespace kestrav::present
