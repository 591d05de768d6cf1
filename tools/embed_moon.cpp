// Turns the lunar series into a header of constant arrays.
//
// Usage: embed_moon moon.txt MoonSeriesData.h
//
// All terms stand in one sequence, longitude, latitude, distance, each by power of T. Every block
// is filled up with zero terms to a multiple of the lane count, so that sums run over whole lanes.
#include "tools/LunarSeriesFile.h"

#include <cstdio>
#include <fstream>

namespace
{

using kestrav::tools::LunarBlock;
using kestrav::tools::LunarSeries;
using kestrav::tools::LunarTerm;

constexpr std::size_t kLanes = 8;
constexpr std::string_view kCoordinates = "LBR";
constexpr int kPowers = 4;

struct Layout
{
    std::vector<LunarTerm> terms;
    std::string blocks;           // the rows of the block table
    std::size_t longitudeEnd = 0; // where the longitude terms end
    std::string error;
};

Layout layOut(const LunarSeries& series)
{
    Layout layout;
    std::size_t next = 0;
    for (const char coordinate : kCoordinates) {
        for (int power = 0; power < kPowers; ++power, ++next) {
            if (next >= series.blocks.size() || series.blocks[next].coordinate != coordinate ||
                series.blocks[next].power != power) {
                layout.error = "the blocks must be L, B, R with the powers 0 to 3 each";
                return layout;
            }
            const LunarBlock& block = series.blocks[next];
            const std::size_t begin = layout.terms.size();
            layout.terms.insert(layout.terms.end(), block.terms.begin(), block.terms.end());
            while (layout.terms.size() % kLanes != 0) {
                layout.terms.push_back({0.0, {}, "0 0 0 0 0 0"});
            }
            layout.blocks += "    MoonSeriesBlock{" + std::to_string(begin) + ", " +
                             std::to_string(layout.terms.size()) + "}, // " + coordinate + " T^" +
                             std::to_string(power) + '\n';
        }
        if (coordinate == 'L') {
            layout.longitudeEnd = layout.terms.size();
        }
    }
    return layout;
}

// Column `column` of a line of numbers, as it stands there.
std::string columnText(const std::string& line, int column)
{
    std::istringstream words(line);
    std::string word;
    for (int i = 0; i <= column; ++i) {
        words >> word;
    }
    return word;
}

void writeColumn(std::ostream& out, const Layout& layout, int column, const std::string& name)
{
    out << "alignas(64) inline constexpr std::array<double, kMoonTermCount> " << name << "{\n";
    for (const LunarTerm& term : layout.terms) {
        out << "    " << columnText(term.text, column) << ",\n";
    }
    out << "};\n\n";
}

void write(std::ostream& out, const LunarSeries& series, const Layout& layout)
{
    out << "// Lunar series, made by tools/embed_moon.cpp from resources/series/moon.txt.\n"
           "#pragma once\n\n#include <array>\n#include <cstddef>\n\n"
           "// clang-format off\nnamespace kestrav::astro\n{\n\n"
           "struct MoonSeriesBlock\n{\n    std::size_t begin;\n    std::size_t end;\n};\n\n"
        << "inline constexpr std::size_t kMoonLanes = " << kLanes << ";\n"
        << "inline constexpr std::size_t kMoonTermCount = " << layout.terms.size() << ";\n"
        << "inline constexpr std::size_t kMoonLongitudeEnd = " << layout.longitudeEnd << ";\n"
        << "inline constexpr std::size_t kMoonPowers = " << kPowers << ";\n\n"
        << "// Longitude, latitude, distance; of each the powers of T from 0 on.\n"
        << "inline constexpr std::array<MoonSeriesBlock, 3 * kMoonPowers> kMoonBlocks{\n"
        << layout.blocks << "};\n\n"
        << "inline constexpr std::array<double, 5> kMoonMeanLongitude{\n";
    for (int i = 1; i <= 5; ++i) {
        out << "    " << columnText(series.meanLongitudeText, i) << ",\n";
    }
    out << "};\n\n";
    writeColumn(out, layout, 0, "kMoonAmplitude");
    for (int i = 0; i < 5; ++i) {
        writeColumn(out, layout, i + 1, "kMoonPhase" + std::to_string(i));
    }
    out << "} // namespace kestrav::astro\n";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("Usage: embed_moon moon.txt MoonSeriesData.h\n", stderr);
        return 2;
    }
    const LunarSeries series = kestrav::tools::readLunarSeries(argv[1]);
    if (!series.error.empty()) {
        std::fprintf(stderr, "embed_moon: %s\n", series.error.c_str());
        return 1;
    }
    const Layout layout = layOut(series);
    if (!layout.error.empty()) {
        std::fprintf(stderr, "embed_moon: %s: %s\n", argv[1], layout.error.c_str());
        return 1;
    }
    std::ofstream file(argv[2], std::ios::binary);
    write(file, series, layout);
    file.close();
    if (!file) {
        std::fprintf(stderr, "embed_moon: %s: cannot be written\n", argv[2]);
        return 1;
    }
    return 0;
}
