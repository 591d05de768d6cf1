#include "timing/EclipseElements.h"

#include "core/numeric.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

constexpr double kFirstNewMoon = 2451550.09766; // mean new moon of 2000 January 6
constexpr double kMeanMonth = 29.530588861;     // days
constexpr double kLunationsPerCentury = 1236.85;
constexpr double kLargestNodeSine = 0.36; // of the argument of latitude

double sine(double degrees)
{
    return std::sin(degrees * core::kRadiansPerDegree);
}

double cosine(double degrees)
{
    return std::cos(degrees * core::kRadiansPerDegree);
}

} // namespace

double lunationNear(double julianDay)
{
    return std::floor((julianDay - kFirstNewMoon) / kMeanMonth);
}

std::optional<EclipseElements> eclipseElements(double lunation)
{
    const double k = lunation;
    const double T = k / kLunationsPerCentury;
    const double T2 = T * T;
    const double F = 160.7108 + 390.67050284 * k - 0.0016118 * T2;
    if (!(std::fabs(sine(F)) <= kLargestNodeSine)) {
        return std::nullopt;
    }
    const bool solar = k == std::floor(k);
    const double M = 2.5534 + 29.1053567 * k;
    const double moon = 201.5643 + 385.81693528 * k + 0.0107582 * T2;
    const double node = 124.7746 - 1.56375588 * k;
    const double F1 = F - 0.02665 * sine(node);
    const double E = 1.0 - 0.002516 * T;
    const double A1 = 299.77 + 0.107408 * k;

    const double ofAnomalies = solar ? -0.4075 * sine(moon) + 0.1721 * E * sine(M)
                                     : -0.4065 * sine(moon) + 0.1727 * E * sine(M);
    const double ofSmallTerms =
        0.0161 * sine(2.0 * moon) - 0.0097 * sine(2.0 * F1) + 0.0073 * E * sine(moon - M) -
        0.0050 * E * sine(moon + M) - 0.0023 * sine(moon - 2.0 * F1) + 0.0021 * E * sine(2.0 * M) +
        0.0012 * sine(moon + 2.0 * F1) + 0.0006 * E * sine(2.0 * moon + M) -
        0.0004 * sine(3.0 * moon) - 0.0003 * E * sine(M + 2.0 * F1) + 0.0003 * sine(A1) -
        0.0002 * E * sine(M - 2.0 * F1) - 0.0002 * E * sine(2.0 * moon - M) - 0.0002 * sine(node);

    const double P = 0.2070 * E * sine(M) + 0.0024 * E * sine(2.0 * M) - 0.0392 * sine(moon) +
                     0.0116 * sine(2.0 * moon) - 0.0073 * E * sine(moon + M) +
                     0.0067 * E * sine(moon - M) + 0.0118 * sine(2.0 * F1);
    const double Q = 5.2207 - 0.0048 * E * cosine(M) + 0.0020 * E * cosine(2.0 * M) -
                     0.3299 * cosine(moon) - 0.0060 * E * cosine(moon + M) +
                     0.0041 * E * cosine(moon - M);

    EclipseElements elements;
    elements.greatest =
        kFirstNewMoon + kMeanMonth * k + 0.00015437 * T2 + ofAnomalies + ofSmallTerms;
    elements.gamma = (P * cosine(F1) + Q * sine(F1)) * (1.0 - 0.0048 * std::fabs(cosine(F1)));
    elements.u = 0.0059 + 0.0046 * E * cosine(M) - 0.0182 * cosine(moon) +
                 0.0004 * cosine(2.0 * moon) - 0.0005 * cosine(M + moon);
    elements.moonAnomaly = moon;
    return elements;
}

} // namespace kestrav::timing
