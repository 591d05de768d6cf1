// The planetary series read straight from their text file, independently of the program's loader.
#pragma once

#include "astro/Series.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace kestrav::tests
{

struct SeriesText
{
    std::array<std::array<int, astro::kSeriesBlocks>, astro::kSeriesEntries> counts = {};
    std::vector<std::array<double, 3>> terms; ///< A, B, C in the order of the file
};

/// The text file as it stands. A file of another form ends the test program, for no result could
/// mean anything.
inline const SeriesText& seriesText()
{
    static const SeriesText text = [] {
        SeriesText result;
        std::ifstream file(std::string(KESTRAV_RESOURCES) + "/series/planets.txt");
        int entry = -1;
        int block = 0;
        int missing = 0;
        for (std::string line; std::getline(file, line);) {
            std::istringstream words(line);
            words.imbue(std::locale::classic());
            std::string first;
            if (line.empty() || line[0] == '#') {
                continue;
            }
            if (line.rfind("entry ", 0) == 0) {
                words >> first >> entry;
                block = 0;
            } else if (line.rfind("block ", 0) == 0) {
                std::string coordinate;
                int power = 0;
                words >> first >> coordinate >> power >> missing;
                result.counts.at(std::size_t(entry)).at(std::size_t(block++)) = missing;
            } else {
                std::array<double, 3> term = {};
                words >> term[0] >> term[1] >> term[2];
                result.terms.push_back(term);
                --missing;
            }
            if (words.fail() || missing < 0) {
                std::abort();
            }
        }
        if (result.terms.size() != std::size_t(astro::kSeriesTerms)) {
            std::abort();
        }
        return result;
    }();
    return text;
}

/// The same series laid out for the engine.
inline const astro::Series& seriesForTests()
{
    static const astro::Series series = astro::makeSeries(seriesText().counts, seriesText().terms);
    return series;
}

} // namespace kestrav::tests
