// Reader of the lunar series as text (resources/series/elpmpp02-de405.txt and moon.txt), shared by
// the programs that make data files and by the tests.
#pragma once

#include <array>
#include <cstddef>
#include <fstream>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace kestrav::tools
{

/// One term amplitude * T^power * sin(phase[0] + phase[1] T + ... + phase[4] T^4).
struct LunarTerm
{
    double amplitude = 0.0;
    std::array<double, 5> phase{};
    std::string text; // the line as it stands in the file
};

struct LunarBlock
{
    char coordinate = ' '; // 'L' and 'B' in arc seconds, 'R' in kilometres
    int power = 0;
    std::vector<LunarTerm> terms;
};

struct LunarSeries
{
    std::string error; // empty when the file was read completely
    std::array<double, 5> meanLongitude{};
    std::string meanLongitudeText;
    std::vector<LunarBlock> blocks;
};

/// Reads a lunar series. On a line that does not fit, `error` names its number and the rest is not
/// read.
[[nodiscard]] inline LunarSeries readLunarSeries(const std::string& path)
{
    LunarSeries series;
    std::ifstream file(path);
    if (!file) {
        series.error = path + ": cannot be opened";
        return series;
    }
    std::string line;
    std::size_t missing = 0;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty() || line.front() == '#') {
            continue;
        }
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        std::string word;
        if (missing > 0) {
            LunarTerm term;
            words >> term.amplitude;
            for (double& coefficient : term.phase) {
                words >> coefficient;
            }
            term.text = line;
            series.blocks.back().terms.push_back(term);
            --missing;
        } else if (line.starts_with("W1 ")) {
            words >> word;
            for (double& coefficient : series.meanLongitude) {
                words >> coefficient;
            }
            series.meanLongitudeText = line;
        } else {
            LunarBlock block;
            words >> word >> block.coordinate >> block.power >> missing;
            series.blocks.push_back(block);
        }
        if (words.fail() || !(words >> std::ws).eof() ||
            (!word.empty() && word != "W1" && word != "block")) {
            series.error = path + ": line " + std::to_string(number) + " does not fit";
            return series;
        }
    }
    if (missing > 0) {
        series.error = path + ": the last block is too short";
    } else if (series.meanLongitudeText.empty()) {
        series.error = path + ": the mean longitude is missing";
    }
    return series;
}

} // namespace kestrav::tools
