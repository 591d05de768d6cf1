// Charts made of bare positions, for the tests of the analysis.
#pragma once

#include "analysis/Arudhas.h"
#include "analysis/Dignities.h"
#include "analysis/SignPositions.h"
#include "analysis/Vargas.h"
#include "analysis/Vimshopaka.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <random>
#include <vector>

namespace kestrav::analysis
{

inline void place(core::Chart& chart, int point, double longitude)
{
    core::at(chart.longitude, point) = longitude;
    computeSignData(chart, point);
}

/// Points 0, 1, 2 ... at the longitudes; a negative one leaves its point without a position.
inline core::Chart chartOf(const std::vector<double>& longitudes)
{
    core::Chart chart;
    for (int point = 0; point < int(longitudes.size()); ++point) {
        if (longitudes[std::size_t(point)] >= 0.0) {
            place(chart, point, longitudes[std::size_t(point)]);
        }
    }
    return chart;
}

/// Points 0, 1, 2 ... at 10 degrees of the signs; 0 leaves its point without a position.
inline core::Chart chartOfSigns(const std::vector<int>& signs)
{
    std::vector<double> longitudes;
    for (const int sign : signs) {
        longitudes.push_back(sign == 0 ? -1.0 : sign * 30.0 - 20.0);
    }
    return chartOf(longitudes);
}

/// Points 0 to 9 anywhere, Ketu opposite to Rahu.
inline core::Chart randomChart(std::mt19937& random)
{
    std::uniform_real_distribution<double> longitude(0.0, 360.0);
    core::Chart chart;
    for (int point = core::kAscendant; point <= core::kRahu; ++point) {
        place(chart, point, longitude(random));
    }
    const double rahu = chart.longitude[core::kRahu];
    place(chart, core::kKetu, rahu < 180.0 ? rahu + 180.0 : rahu - 180.0);
    return chart;
}

/// All that the analysis derives from the positions, in the order of the driver.
inline void analyse(core::Chart& chart, const core::Settings& settings)
{
    computeArudhaPoints(chart, settings);
    computeCompoundRelationships(chart, settings);
    computeCombustion(chart, settings);
    computeAllVargas(chart, settings);
    computeVimshopaka(chart, settings);
}

/// A printed horoscope of 1918 October 16, whose worked examples several tests use.
inline core::Chart printedHoroscope()
{
    return chartOf({298.45, 180.8986, 311.2886, 229.5094, 181.5261, 84.0136, 171.1656, 124.3781,
                    234.3964, 54.3964});
}

} // namespace kestrav::analysis
