#include "analysis/FunctionalNature.h"

#include "AnalysisCharts.h"

#include <gtest/gtest.h>

namespace kestrav::analysis
{
namespace
{

// Four letters Y, B, M, K for the fields that are set.
std::string fields(const Nature& nature)
{
    return std::string(nature.yogakaraka ? "Y" : "") + (nature.benefic ? "B" : "") +
           (nature.malefic ? "M" : "") + (nature.maraka ? "K" : "");
}

// Rahu and Ketu in the chart of these signs of the ascendant, Sun .. Ketu.
std::array<std::string, 2> nodes(const std::vector<int>& signs)
{
    const NatureTable table = chartNatures(chartOfSigns(signs));
    return {fields(table[core::kRahu]), fields(table[core::kKetu])};
}

using Nodes = std::array<std::string, 2>;

TEST(FunctionalNature, LabelsOfTheTable)
{
    // Sun to Saturn by ascendant, the first letter of YogK, Benef, Marak, Papa, Neut.
    constexpr std::array<std::string_view, 12> kLabels = {
        "BNBPBMM", "BMMBMMY", "PMPNPBN", "MBYPBPM", "BNBPBPM", "NPPYPYN",
        "MYMYMNB", "YYNMBMM", "YNBYNMM", "NPPBPYM", "MPMNMYB", "PBYMYPM"};
    for (int ascendant = 1; ascendant <= 12; ++ascendant) {
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            EXPECT_EQ(char(functionalLabel(ascendant, planet).front()),
                      core::at(kLabels, ascendant - 1)[std::size_t(planet - 1)])
                << ascendant << " " << planet;
        }
        EXPECT_EQ(functionalLabel(ascendant, core::kRahu), L"Neut");
    }
    EXPECT_EQ(functionalLabel(1, core::kAscendant), L" ");
    EXPECT_EQ(functionalLabel(1, core::kDhuma), L" ");
    // Fields that a label hides.
    EXPECT_EQ(fields(initialNatures(12)[core::kMars]), "YBK");
    EXPECT_EQ(fields(initialNatures(8)[core::kSun]), "Y");
    EXPECT_EQ(fields(initialNatures(1)[core::kVenus]), "MK");
}

TEST(FunctionalNature, NodesTakeHouseAndCompany)
{
    const NatureTable printed = chartNatures(printedHoroscope());
    EXPECT_EQ(natureLabel(printed[core::kRahu]), L"Papa");
    EXPECT_EQ(natureLabel(printed[core::kKetu]), L"Benef");

    // Alone in each house of an Aries ascendant, the planets being in Aries: the house decides.
    // Ketu stands in the opposite house.
    constexpr std::array<std::string_view, 12> kHouses = {"",  "K", "M", "", "B", "M",
                                                          "K", "M", "B", "", "M", "M"};
    for (int house = 2; house <= 12; ++house) {
        if (house != 7) {
            EXPECT_EQ(nodes({1, 1, 1, 1, 1, 1, 1, 1, house, (house + 5) % 12 + 1}),
                      (Nodes{std::string(core::at(kHouses, house - 1)),
                             std::string(core::at(kHouses, (house + 5) % 12))}));
        }
    }
    // With Mercury (malefic) and Saturn (malefic, maraka) in the second; Saturn rules the tenth,
    // but neither house is a trikona.
    EXPECT_EQ(nodes({1, 1, 1, 1, 2, 1, 1, 2, 2, 8}), (Nodes{"MK", "M"}));
    // In the tenth with the Sun, lord of the fifth; in the fourth alone.
    EXPECT_EQ(nodes({1, 10, 1, 1, 1, 1, 1, 1, 10, 4}), (Nodes{"YB", ""}));
    // In the tenth with Saturn, lord of the tenth: no trikona lord, so his malefic field stays.
    EXPECT_EQ(nodes({1, 1, 1, 1, 1, 1, 1, 10, 10, 4}), (Nodes{"MK", ""}));
    // In the fifth with Venus, lord of the seventh: malefic cleared, maraka stays.
    EXPECT_EQ(nodes({1, 1, 1, 1, 1, 1, 5, 1, 5, 11}), (Nodes{"YBK", "M"}));
    // In the first, which is kendra and trikona: with its own lord, and with the ninth's.
    EXPECT_EQ(nodes({1, 2, 2, 1, 2, 2, 2, 2, 1, 7}), (Nodes{"YB", "K"}));
    EXPECT_EQ(nodes({1, 2, 2, 2, 2, 1, 2, 2, 1, 7}), (Nodes{"YB", "K"}));
}

TEST(FunctionalNature, ReportLabels)
{
    const auto label = [](bool yogakaraka, bool benefic, bool malefic, bool maraka) {
        return natureReportLabel({yogakaraka, benefic, malefic, maraka});
    };
    EXPECT_EQ(label(false, false, true, true), L"Most Malefic");
    EXPECT_EQ(label(true, true, true, true), L"Most Malefic");
    EXPECT_EQ(label(false, false, true, false), L" Functional Malefic");
    EXPECT_EQ(label(false, true, true, false), L"");
    EXPECT_EQ(label(true, false, false, false), L"Functional Benefic");
    EXPECT_EQ(label(false, true, false, true), L"Functional Benefic");
    EXPECT_EQ(label(false, false, false, true), L"");
    // A maraka shows before a malefic, a yogakaraka before all.
    EXPECT_EQ(natureLabel({false, false, true, true}), L"Marak");
    EXPECT_EQ(natureLabel({true, true, true, true}), L"YogK");
}

} // namespace
} // namespace kestrav::analysis
