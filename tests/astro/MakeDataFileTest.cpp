// The program that makes the data file refuses every input that breaks a rule, with file and line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrav::astro
{
namespace
{

namespace fs = std::filesystem;

std::string readText(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Replaces the first `from` behind `after`.
struct Change
{
    const char* name;
    const char* file; // planets.txt or matching-tables.txt
    const char* after;
    const char* from;
    const char* to;
    long below;          // how many lines below the change it is noticed
    const char* message; // how the message begins
};

void PrintTo(const Change& change, std::ostream* out)
{
    *out << change.name;
}

class MakeDataFile : public testing::TestWithParam<Change>
{
protected:
    MakeDataFile()
    {
        std::string name = (fs::temp_directory_path() / "kestrav-XXXXXX").string();
        folder = ::mkdtemp(name.data());
        for (const char* const file : {"planets.txt", "matching-tables.txt"}) {
            fs::copy_file(fs::path(KESTRAV_RESOURCES) / "series" / file, folder / file);
        }
    }
    ~MakeDataFile() override
    {
        fs::remove_all(folder);
    }

    // Runs the program in the folder; its messages are kept in `output`.
    int run()
    {
        const std::string command = "cd '" + folder.string() + "' && '" + KESTRAV_BIN +
                                    "/make_data_file' planets.txt matching-tables.txt made 2>&1";
        std::FILE* const pipe = ::popen(command.c_str(), "r");
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) {
            output += static_cast<char>(c);
        }
        const int status = ::pclose(pipe);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path folder;
    std::string output;
};

TEST_F(MakeDataFile, MakesTheSameFileAgain)
{
    ASSERT_EQ(run(), 0) << output;
    EXPECT_EQ(output, "");
    EXPECT_TRUE(readText(folder / "made") == readText(fs::path(KESTRAV_BIN) / "JRaam.nam"));
}

TEST_P(MakeDataFile, RefusesWhatBreaksARule)
{
    const Change& change = GetParam();
    std::string text = readText(folder / change.file);
    const std::size_t begin = text.find(change.from, text.find(change.after));
    ASSERT_NE(begin, std::string::npos);
    text.replace(begin, std::string(change.from).size(), change.to);
    std::ofstream(folder / change.file, std::ios::binary) << text;

    EXPECT_EQ(run(), 1);
    const long line =
        1 + change.below + std::count(text.begin(), text.begin() + std::ptrdiff_t(begin), '\n');
    EXPECT_THAT(output, testing::StartsWith("make_data_file: " + std::string(change.file) + ":" +
                                            std::to_string(line) + ": " + change.message));
    EXPECT_EQ(output.find('\n'), output.size() - 1) << "the message is one line";
    EXPECT_FALSE(fs::exists(folder / "made"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Inputs, MakeDataFile,
    testing::Values(
        Change{"EntryOrder", "planets.txt", "entry 1", "entry 1", "entry 2",
               0, "the line \"entry 1 NAME\" is missing"},
        Change{"BlockOrder", "planets.txt", "entry 0", "block L 1", "block B 1",
               0, "the line \"block L 1 COUNT\" of entry 0 is missing"},
        Change{"CountTooLow", "planets.txt", "entry 0", "L 0 194", "L 0 193",
               194, "the line \"block L 1 COUNT\" of entry 0 is missing"},
        Change{"CountTooHigh", "planets.txt", "entry 0", "L 0 194", "L 0 195",
               195, "a term \"A B C\" is missing"},
        Change{"CountBeyondTheTable", "planets.txt", "entry 0", "L 0 194", "L 0 9999",
               0, "\"9999\" is no number of terms up to 2637"},
        Change{"TermNotFinite", "planets.txt", "block L 0", "1.7540357337940435", "nan",
               0, "\"nan\" is no usable number"},
        Change{"TermWithComma", "planets.txt", "block L 0", "1.7540357337940435", "1,75",
               0, "\"1,75\" is no usable number"},
        Change{"TooFewTerms", "planets.txt", "block L 0", "L 0 194\n1.7540357337940435 0 0", "L 0 193",
               2805, "there are 2636 terms instead of 2637"},
        Change{"MoreBehind", "matching-tables.txt", "4   2 2 2 0 4", "4   2 2 2 0 4", "4 2 2 2 0 4\n5",
               1, "the tables are complete, but more follows"},
        Change{"TableMissing", "matching-tables.txt", "table varna", "table varna", "",
               1, "the line \"table varna\" is missing"},
        Change{"RowMissing", "matching-tables.txt", "25   10", "25   10", "26   10",
               0, "row 25 of table nakshatras is missing"},
        Change{"ValueMissing", "matching-tables.txt", "table gana-points", "6 5 1", "6 5",
               0, "a row of table gana-points has 3 values"},
        Change{"ValueOutOfRange", "matching-tables.txt", "table varna", "1   3", "1   5",
               0, "\"5\" (varna rank) is no whole number from 1 to 4"},
        Change{"ValueNoNumber", "matching-tables.txt", "table vashya-points", "4 2 2 1 2", "4 2 2 .5 2",
               0, "\".5\" (vashya points) is no whole number from 0 to 4"},
        Change{"StarObstructsItself", "matching-tables.txt", "table nakshatras", " 0   17", " 0    0",
               0, "a nakshatra does not obstruct itself"},
        Change{"StarObstructedTwice", "matching-tables.txt", "table nakshatras", " 1   16", " 1   17",
               0, "nakshatra 17 is obstructed in line "},
        Change{"YoniNotSymmetric", "matching-tables.txt", "table yoni-points", " 1   2 4", " 1   3 4",
               0, "column 0 differs from line "}),
    [](const auto& test) { return std::string(test.param.name); });
// clang-format on

} // namespace
} // namespace kestrav::astro
