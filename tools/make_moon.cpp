// Makes the program's lunar series from the complete one.
//
// Usage: make_moon elpmpp02-de405.txt moon.txt
//
// A term counts with |amplitude| * 2^k, its size in the year 2200, where T^k is largest in
// 1800 to 2200. Of each coordinate the largest terms are kept, unchanged and in their old order.
#include "tools/LunarSeriesFile.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace
{

using kestrav::tools::LunarBlock;
using kestrav::tools::LunarSeries;
using kestrav::tools::LunarTerm;

// Chosen so that longitude and latitude stay within 0.9 arc second of the complete series in 1800
// to 2200; 60 distance terms are within about 10 km.
constexpr std::size_t kLongitudeTerms = 400;
constexpr std::size_t kLatitudeTerms = 200;
constexpr std::size_t kDistanceTerms = 60;

std::size_t termsKept(char coordinate)
{
    return coordinate == 'L'   ? kLongitudeTerms
           : coordinate == 'B' ? kLatitudeTerms
                               : kDistanceTerms;
}

void truncate(LunarSeries& series, char coordinate)
{
    struct Ranked
    {
        double weight;
        std::size_t block;
        std::size_t term;
    };
    std::vector<Ranked> ranking;
    for (std::size_t b = 0; b < series.blocks.size(); ++b) {
        const LunarBlock& block = series.blocks[b];
        if (block.coordinate != coordinate) {
            continue;
        }
        for (std::size_t t = 0; t < block.terms.size(); ++t) {
            ranking.push_back({std::ldexp(std::fabs(block.terms[t].amplitude), block.power), b, t});
        }
    }
    std::stable_sort(ranking.begin(), ranking.end(),
                     [](const Ranked& a, const Ranked& b) { return a.weight > b.weight; });
    ranking.resize(std::min(ranking.size(), termsKept(coordinate)));
    std::sort(ranking.begin(), ranking.end(), [](const Ranked& a, const Ranked& b) {
        return a.block != b.block ? a.block < b.block : a.term < b.term;
    });
    std::vector<std::vector<LunarTerm>> kept(series.blocks.size());
    for (const Ranked& entry : ranking) {
        kept[entry.block].push_back(series.blocks[entry.block].terms[entry.term]);
    }
    for (std::size_t b = 0; b < series.blocks.size(); ++b) {
        if (series.blocks[b].coordinate == coordinate) {
            series.blocks[b].terms = std::move(kept[b]);
        }
    }
}

void write(std::ostream& out, const LunarSeries& series)
{
    out << "# Truncated lunar series: the " << kLongitudeTerms << " largest longitude terms, "
        << kLatitudeTerms << " latitude terms and " << kDistanceTerms << " distance terms\n"
        << "# of ELP/MPP02 (Chapront and Francou 2003, constants fitted to DE405), ranked by |A| "
           "2^k.\n"
        << "# Made by tools/make_moon.cpp from elpmpp02-de405.txt, whose head explains the lines. "
           "The\n"
        << "# coefficients come from the npm package astronomia 4.2.0:\n"
        << "# The MIT License, Copyright (c) 2013 Sonia Keys, Copyright (c) 2016 Commenthol.\n"
        << series.meanLongitudeText << '\n';
    for (const LunarBlock& block : series.blocks) {
        out << "block " << block.coordinate << ' ' << block.power << ' ' << block.terms.size()
            << '\n';
        for (const LunarTerm& term : block.terms) {
            out << term.text << '\n';
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("Usage: make_moon elpmpp02-de405.txt moon.txt\n", stderr);
        return 2;
    }
    LunarSeries series = kestrav::tools::readLunarSeries(argv[1]);
    if (!series.error.empty()) {
        std::fprintf(stderr, "make_moon: %s\n", series.error.c_str());
        return 1;
    }
    for (const char coordinate : {'L', 'B', 'R'}) {
        truncate(series, coordinate);
    }
    std::ofstream file(argv[2], std::ios::binary);
    write(file, series);
    file.close();
    if (!file) {
        std::fprintf(stderr, "make_moon: %s: cannot be written\n", argv[2]);
        return 1;
    }
    return 0;
}
