// The reference positions of tests/data/sky.csv and the largest differences from them.
#pragma once

#include "core/DateTime.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <limits>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace kestrav::tests
{

/// One line of the file: equal terrestrial time, no nutation.
struct SkyRow
{
    core::TimeArguments time;
    std::string body;
    double longitude; ///< degrees
    double latitude;  ///< degrees
    double distance;  ///< astronomical units
    double speed;     ///< degrees per day

    [[nodiscard]] double year() const
    {
        return 1900.0 + 100.0 * time.T;
    }
    [[nodiscard]] bool isWithin(double firstYear, double lastYear) const
    {
        return year() >= firstYear && year() < lastYear;
    }
};

inline std::vector<SkyRow> skyRows()
{
    std::vector<SkyRow> rows;
    std::ifstream file(std::string(KESTRAV_TEST_DATA) + "/sky.csv");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') {
            continue;
        }
        std::replace(line.begin(), line.end(), ',', ' ');
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        double julianDay = 0.0;
        SkyRow row{};
        words >> julianDay >> row.body >> row.longitude >> row.latitude >> row.distance >>
            row.speed;
        row.time = core::timeArguments((julianDay - core::kEpoch1900) / core::kDaysPerCentury);
        rows.push_back(row);
    }
    return rows;
}

/// The largest of a number of differences and where it was met. A difference that is not a number
/// counts as infinite.
struct Largest
{
    double value = 0.0;
    double year = 0.0;
    int count = 0;

    void add(double difference, double atYear)
    {
        const double size = std::isnan(difference) ? std::numeric_limits<double>::infinity()
                                                   : std::fabs(difference);
        ++count;
        if (size >= value) {
            value = size;
            year = atYear;
        }
    }
};

/// Signed difference of two angles in arc seconds.
inline double arcSeconds(double degrees, double wanted)
{
    return std::remainder(degrees - wanted, 360.0) * 3600.0;
}

} // namespace kestrav::tests
