#include "tests/yoga/ConditionCharts.h"
#include "yoga/RuleCheck.h"
#include "yoga/YogaLibrary.h"
#include "yoga/YogaListEdit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

namespace
{

namespace fs = std::filesystem;

constexpr std::array kPlaces = {"Asc", "Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah"};

YogaLibrary deliveredLibrary()
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(KESTRAV_RESOURCES) / kYogaFolder)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    YogaLibrary library;
    for (const fs::path& file : files) {
        const core::Result<void> loaded = library.load(file);
        EXPECT_TRUE(loaded.ok()) << file;
    }
    return library;
}

std::string contents(const fs::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> splitAtBars(const std::string& line)
{
    std::vector<std::string> fields;
    std::size_t begin = 0;
    for (std::size_t bar = 0; bar != std::string::npos; begin = bar + 3) {
        bar = line.find(" | ", begin);
        fields.push_back(line.substr(begin, bar == std::string::npos ? bar : bar - begin));
    }
    return fields;
}

// The words of a chart of the table: places, then M, F or @.
struct TableChart
{
    std::array<std::string, kPlaces.size()> places;
    std::string sex;
    bool whole = false;
};

TableChart tableChart(const std::string& text)
{
    TableChart chart;
    std::istringstream words(text);
    for (std::string& place : chart.places) {
        EXPECT_TRUE(words >> place) << text;
    }
    for (std::string word; words >> word;) {
        if (word == "@") {
            chart.whole = true;
        } else {
            chart.sex = word;
        }
    }
    return chart;
}

// Makes the one change of a field, and tells whether it is one.
bool change(TableChart& chart, const std::string& text)
{
    std::istringstream words(text);
    std::string name;
    std::string place;
    if (words >> name && !(words >> place)) {
        std::swap(chart.sex, name);
        return chart.sex != name;
    }
    const auto found = std::find(kPlaces.begin(), kPlaces.end(), name);
    if (found == kPlaces.end()) {
        return false;
    }
    std::string& changed = chart.places[std::size_t(found - kPlaces.begin())];
    std::swap(changed, place);
    return changed != place;
}

// A whole chart of an arbitrary moment, for what the positions do not decide.
core::Chart wholeChart(const core::Settings& settings)
{
    core::Chart chart;
    chart.time.year = 2000;
    chart.time.month = 1;
    chart.time.day = 1;
    chart.time.localTime = 12.0;
    chart.zone = 5.0;
    chart.geoLatitude = 23.0;
    chart.geoLongitude = 75.0;
    astro::EphemerisContext context(tests::seriesForTests());
    analysis::ComputeChart(chart, settings, context);
    analysis::AnalyseChart(chart, settings, context);
    return chart;
}

core::Chart chartOfTable(const TableChart& row)
{
    const core::Settings settings;
    std::string text;
    for (std::size_t i = 0; i < kPlaces.size(); ++i) {
        text += std::string(kPlaces[i]) + " " + row.places[i] + " ";
    }
    const std::string& rahu = row.places.back();
    const int opposite = (std::stoi(rahu) + 5) % 12 + 1;
    text += "Ket " + std::to_string(opposite);
    if (const std::size_t colon = rahu.find(':'); colon != std::string::npos) {
        text += rahu.substr(colon);
    }
    core::Chart chart = chartOf(text, settings);
    if (row.whole) {
        core::Chart whole = wholeChart(settings);
        for (int point = core::kAscendant; point <= core::kKetu; ++point) {
            core::at(whole.longitude, point) = core::at(chart.longitude, point);
            core::at(whole.retrograde, point) = core::at(chart.retrograde, point);
            core::at(whole.motion, point) = core::at(chart.motion, point);
            analysis::computeSignData(whole, point);
        }
        analysis::computeArudhaPoints(whole, settings);
        analysis::analyseSigns(whole, settings);
        chart = whole;
    }
    chart.identity.sex = std::wstring(row.sex.begin(), row.sex.end());
    return chart;
}

bool yogaHolds(const YogaRule& rule, const TableChart& row)
{
    const core::Chart chart = chartOfTable(row);
    Subject subject{core::Settings{}};
    subject.setChart(chart);
    return ruleHolds(rule, subject);
}

} // namespace

TEST(DeliveredYogas, AreWellFormedAndSayTheirSource)
{
    const YogaLibrary library = deliveredLibrary();
    EXPECT_GE(library.all().size(), 200U);
    std::set<std::string> titles;
    for (const YogaPlace& place : library.all()) {
        const Yoga& yoga = library.yoga(place);
        SCOPED_TRACE(yoga.title);
        EXPECT_TRUE(titles.insert(yoga.title).second) << "two yogas of this title";
        for (const RuleProblem& problem : ruleProblems(yoga.rule)) {
            ADD_FAILURE() << problem.text;
        }
        ASSERT_TRUE(library.rule(place));
        EXPECT_EQ(yoga.options, optionsOfRule(*library.rule(place)));
        EXPECT_EQ(yoga.vargas, vargasOfRule(*library.rule(place)));
        EXPECT_GE(yoga.interpretation.size(), 20U);
        EXPECT_THAT(yoga.comment, testing::ContainsRegex(
                                      "^(Traditional|(Brihat Jataka|Phaladeepika), chapter [0-9]|"
                                      "(Saravali|Brihat Parashara Hora Shastra), chapter on |"
                                      "Jaimini Sutras, adhyaya [0-9])"));
    }
    std::set<std::string> chapters;
    for (const LoadedYogaFile& file : library.files()) {
        EXPECT_FALSE(file.file.name.empty()) << file.path;
        for (const std::string& chapter : chaptersOf(file.file)) {
            EXPECT_TRUE(chapters.insert(chapter).second) << chapter << " in two files";
        }
        const auto bytes = formatYogaFile(file.file);
        ASSERT_TRUE(bytes.ok());
        EXPECT_TRUE(contents(file.path) == std::string(bytes.value().begin(), bytes.value().end()))
            << file.path << " is laid out otherwise than the program writes it";
    }
    for (const char* const chapter :
         {"Pancha mahapurusha", "Lunar", "Solar", "Raja", "Dhana", "Maha parivartana",
          "Khala parivartana", "Dainya parivartana", "Viparita", "Neecha bhanga", "Arishta",
          "Daridra", "Sannyasa", "Marriage", "Kala Sarpa", "Jaimini: karakamsha",
          "Divisional charts"}) {
        EXPECT_TRUE(chapters.contains(chapter)) << chapter;
    }
    EXPECT_EQ(std::count_if(library.files().begin(), library.files().end(),
                            [](const LoadedYogaFile& file) {
                                return file.path.stem() == "nabhasa" &&
                                       file.file.yogas.size() == 32;
                            }),
              1)
        << "there are 32 nabhasa yogas";
}

TEST(DeliveredYogas, HoldInTheChartsOfTheTableAndMissTheOthersByOneCondition)
{
    const YogaLibrary library = deliveredLibrary();
    std::ifstream table(fs::path(KESTRAV_TEST_DATA) / "yogas" / "positions.txt");
    std::set<std::string> seen;
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        SCOPED_TRACE(line);
        const std::vector<std::string> fields = splitAtBars(line);
        ASSERT_GE(fields.size(), 3U) << "a chart that has it and one that misses it";
        const std::optional<YogaPlace> place = library.find(fields[0]);
        ASSERT_TRUE(place && library.rule(*place));
        seen.insert(fields[0]);
        const TableChart chart = tableChart(fields[1]);
        EXPECT_TRUE(yogaHolds(*library.rule(*place), chart));
        for (std::size_t i = 2; i < fields.size(); ++i) {
            TableChart other = chart;
            ASSERT_TRUE(change(other, fields[i])) << fields[i];
            EXPECT_FALSE(yogaHolds(*library.rule(*place), other)) << fields[i];
        }
    }
    EXPECT_EQ(seen.size(), library.all().size()) << "every yoga has its charts";
}

} // namespace kestrav::yoga
