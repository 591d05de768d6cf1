// Compares the positions of the engine with the reference positions and writes docs/accuracy.md.
// Usage: accuracy sky.csv JRaam.nam head.md output.md
#include "astro/Bodies.h"
#include "astro/DataFile.h"
#include "astro/Moon.h"
#include "astro/PreciseMoon.h"
#include "core/NumberText.h"
#include "core/numeric.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using namespace kestrav;

struct Reference
{
    double julianDay;
    std::string body;
    double longitude; // degrees
    double latitude;  // degrees
    double speed;     // degrees a day
};

struct Position
{
    double longitude; // degrees
    double latitude;  // degrees
    double speed;     // degrees a day
};

struct Interval
{
    const char* name;
    double first; // decimal years
    double last;
};

constexpr std::array<Interval, 3> kIntervals = {
    {{"1800 to 2200", 1800, 2200}, {"-500 to 2500", -500, 2500}, {"-3000 to 2500", -3001, 2500}}};

struct Largest
{
    double longitude = 0.0;
    double latitude = 0.0;
    double speed = 0.0;
    double squares = 0.0;
    int count = 0;

    void add(const Position& position, const Reference& reference)
    {
        const auto seconds = [](double a, double b) {
            return std::fabs(std::remainder(a - b, 360.0)) * 3600.0;
        };
        const double error = seconds(position.longitude, reference.longitude);
        longitude = std::fmax(longitude, error);
        latitude = std::fmax(latitude, seconds(position.latitude, reference.latitude));
        speed = std::fmax(speed, seconds(position.speed, reference.speed));
        squares += error * error;
        ++count;
    }
};

std::vector<Reference> readReference(const char* path)
{
    std::vector<Reference> rows;
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        std::array<std::string, 6> cells;
        std::istringstream fields(line);
        for (std::string& cell : cells) {
            std::getline(fields, cell, ',');
        }
        rows.push_back({core::readLeadingNumber(cells[0]), cells[1],
                        core::readLeadingNumber(cells[2]), core::readLeadingNumber(cells[3]),
                        core::readLeadingNumber(cells[5])});
    }
    return rows;
}

struct Body
{
    const char* referenceName;
    const char* name;
    int code; // of the planetary engine, 0 for the Moon and the node
};

constexpr std::array<Body, 12> kBodies = {{{"Sun", "Sun", astro::kCodeSun},
                                           {"Moon", "Moon, precise", 0},
                                           {"Moon", "Moon, short series", 0},
                                           {"Mercury", "Mercury", astro::kCodeMercury},
                                           {"Venus", "Venus", astro::kCodeVenus},
                                           {"Mars", "Mars", astro::kCodeMars},
                                           {"Jupiter", "Jupiter", astro::kCodeJupiter},
                                           {"Saturn", "Saturn", astro::kCodeSaturn},
                                           {"Uranus", "Uranus", astro::kCodeUranus},
                                           {"Neptune", "Neptune", astro::kCodeNeptune},
                                           {"Pluto_J2000", "Pluto (J2000.0)", astro::kCodePluto},
                                           {"MeanNode", "Mean node", 0}}};

Position positionOf(astro::EphemerisContext& context, const Body& body, double T)
{
    const std::string name = body.name;
    if (body.code != 0) {
        context.setTime(core::timeArguments(T));
        astro::PlanetPosition(context, body.code);
        return {context.result.longitude, context.result.latitude * core::kDegreesPerRadian,
                context.result.speed};
    }
    if (name == "Moon, precise") {
        const astro::MoonPosition moon = astro::preciseMoon(T);
        return {moon.longitude, moon.latitude * core::kDegreesPerRadian, moon.speed};
    }
    const astro::ShortMoon moon = astro::shortMoon(core::timeArguments(T));
    if (name == "Mean node") {
        return {moon.node, 0.0, moon.nodeSpeed};
    }
    return {moon.longitude, moon.latitude * core::kDegreesPerRadian, moon.speed};
}

double decimalYear(double julianDay)
{
    return 2000.0 + (julianDay - 2451545.0) / 365.25;
}

std::string number(double value)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), value < 100.0 ? "%.2f" : "%.0f", value);
    return text.data();
}

void writeTables(std::ostream& out, const std::vector<Reference>& rows,
                 astro::EphemerisContext& context)
{
    for (const Interval& interval : kIntervals) {
        out << "\n### " << interval.name << "\n\n"
            << "| Body | moments | longitude, largest | longitude, rms | latitude, largest | "
               "speed a day, largest |\n"
            << "|---|---|---|---|---|---|\n";
        for (const Body& body : kBodies) {
            Largest largest;
            for (const Reference& row : rows) {
                const double year = decimalYear(row.julianDay);
                if (row.body == body.referenceName && year >= interval.first &&
                    year < interval.last) {
                    const double T = (row.julianDay - core::kEpoch1900) / core::kDaysPerCentury;
                    largest.add(positionOf(context, body, T), row);
                }
            }
            const bool node = std::string(body.name) == "Mean node";
            out << "| " << body.name << " | " << largest.count << " | " << number(largest.longitude)
                << " | " << number(std::sqrt(largest.squares / largest.count)) << " | "
                << (node ? "-" : number(largest.latitude)) << " | " << number(largest.speed)
                << " |\n";
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        std::cerr << "usage: accuracy sky.csv JRaam.nam head.md output.md\n";
        return 2;
    }
    const std::vector<Reference> rows = readReference(argv[1]);
    const astro::LoadResult loaded = astro::LoadSeries(argv[2]);
    std::ifstream head(argv[3]);
    if (rows.empty() || !loaded.data || !head) {
        std::cerr << "accuracy: cannot read " << (rows.empty() ? argv[1] : argv[2]) << " or "
                  << argv[3] << "\n";
        return 1;
    }
    std::ofstream out(argv[4]);
    out << head.rdbuf();
    astro::EphemerisContext context(loaded.data->series);
    writeTables(out, rows, context);
    return out.good() ? 0 : 1;
}
