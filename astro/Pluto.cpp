#include "astro/Pluto.h"

#include "astro/BranchFreeTrig.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::astro
{

namespace
{

// Multipliers of the mean longitudes of Jupiter, Saturn and Pluto, then the coefficients of sine
// and cosine in longitude and latitude (millionths of a degree) and radius (ten-millionths of an
// astronomical unit). Astronomical Algorithms, second edition, Table 37.A.
struct PlutoTerm
{
    int jupiter;
    int saturn;
    int pluto;
    int longitudeSin;
    int longitudeCos;
    int latitudeSin;
    int latitudeCos;
    int radiusSin;
    int radiusCos;
};

// clang-format off
constexpr std::array<PlutoTerm, 43> kTerms = {{
    {0,  0,  1, -19799805,  19850055, -5452852, -14974862,  66865439,  68951812},
    {0,  0,  2,    897144,  -4954829,  3527812,   1672790, -11827535,   -332538},
    {0,  0,  3,    611149,   1211027, -1050748,    327647,   1593179,  -1438890},
    {0,  0,  4,   -341243,   -189585,   178690,   -292153,    -18444,    483220},
    {0,  0,  5,    129287,    -34992,    18650,    100340,    -65977,    -85431},
    {0,  0,  6,    -38164,     30893,   -30697,    -25823,     31174,     -6032},
    {0,  1, -1,     20442,     -9987,     4878,     11248,     -5794,     22161},
    {0,  1,  0,     -4063,     -5071,      226,       -64,      4601,      4032},
    {0,  1,  1,     -6016,     -3336,     2030,      -836,     -1729,       234},
    {0,  1,  2,     -3956,      3039,       69,      -604,      -415,       702},
    {0,  1,  3,      -667,      3572,     -247,      -567,       239,       723},
    {0,  2, -2,      1276,       501,      -57,         1,        67,       -67},
    {0,  2, -1,      1152,      -917,     -122,       175,      1034,      -451},
    {0,  2,  0,       630,     -1277,      -49,      -164,      -129,       504},
    {1, -1,  0,      2571,      -459,     -197,       199,       480,      -231},
    {1, -1,  1,       899,     -1449,      -25,       217,         2,      -441},
    {1,  0, -3,     -1016,      1043,      589,      -248,     -3359,       265},
    {1,  0, -2,     -2343,     -1012,     -269,       711,      7856,     -7832},
    {1,  0, -1,      7042,       788,      185,       193,        36,     45763},
    {1,  0,  0,      1199,      -338,      315,       807,      8663,      8547},
    {1,  0,  1,       418,       -67,     -130,       -43,      -809,      -769},
    {1,  0,  2,       120,      -274,        5,         3,       263,      -144},
    {1,  0,  3,       -60,      -159,        2,        17,      -126,        32},
    {1,  0,  4,       -82,       -29,        2,         5,       -35,       -16},
    {1,  1, -3,       -36,       -29,        2,         3,       -19,        -4},
    {1,  1, -2,       -40,         7,        3,         1,       -15,         8},
    {1,  1, -1,       -14,        22,        2,        -1,        -4,        12},
    {1,  1,  0,         4,        13,        1,        -1,         5,         6},
    {1,  1,  1,         5,         2,        0,        -1,         3,         1},
    {1,  1,  3,        -1,         0,        0,         0,         6,        -2},
    {2,  0, -6,         2,         0,        0,        -2,         2,         2},
    {2,  0, -5,        -4,         5,        2,         2,        -2,        -2},
    {2,  0, -4,         4,        -7,       -7,         0,        14,        13},
    {2,  0, -3,        14,        24,       10,        -8,       -63,        13},
    {2,  0, -2,       -49,       -34,       -3,        20,       136,      -236},
    {2,  0, -1,       163,       -48,        6,         5,       273,      1065},
    {2,  0,  0,         9,       -24,       14,        17,       251,       149},
    {2,  0,  1,        -4,         1,       -2,         0,       -25,        -9},
    {2,  0,  2,        -3,         1,        0,         0,         9,        -2},
    {2,  0,  3,         1,         3,        0,         0,        -8,         7},
    {3,  0, -2,        -3,        -1,        0,         1,         2,       -10},
    {3,  0, -1,         5,        -3,        0,         0,        19,        35},
    {3,  0,  0,         0,         0,        1,         0,        10,         3},
}};
// clang-format on

constexpr long long magnitudeOf(int value)
{
    return value < 0 ? -value : value;
}

constexpr long long tableTotal()
{
    long long total = 0;
    for (const PlutoTerm& term : kTerms) {
        total += magnitudeOf(term.longitudeSin) + magnitudeOf(term.longitudeCos) +
                 magnitudeOf(term.latitudeSin) + magnitudeOf(term.latitudeCos) +
                 magnitudeOf(term.radiusSin) + magnitudeOf(term.radiusCos);
    }
    return total;
}
static_assert(tableTotal() == 227685373);

// The angles of all terms with their sines and cosines, padded to whole vectors.
struct Waves
{
    std::array<double, 48> angle = {};
    std::array<double, 48> sine;
    std::array<double, 48> cosine;
};

KESTRAV_CLONES
void evaluateWaves(Waves& waves)
{
    for (std::size_t i = 0; i < waves.angle.size(); ++i) {
        const SineCosine wave = sineCosineBranchFree(waves.angle[i]);
        waves.sine[i] = wave.sine;
        waves.cosine[i] = wave.cosine;
    }
}

// Obliquity of J2000.0 for Pluto. The rotation of the Sun below uses another value on purpose.
constexpr double kCosObliquity = 0.917482062;
constexpr double kSinObliquity = 0.397777156;

} // namespace

HeliocentricPosition plutoHeliocentric(double centuries)
{
    const double jupiter = 34.35 + 3034.9057 * centuries;
    const double saturn = 50.08 + 1222.1138 * centuries;
    const double pluto = 238.96 + 144.96 * centuries;
    Waves waves;
    for (std::size_t i = 0; i < kTerms.size(); ++i) {
        const PlutoTerm& term = kTerms[i];
        waves.angle[i] = (term.jupiter * jupiter + term.saturn * saturn + term.pluto * pluto) *
                         core::kRadiansPerDegree;
    }
    evaluateWaves(waves);
    double longitude = 0.0;
    double latitude = 0.0;
    double radius = 0.0;
    for (std::size_t i = 0; i < kTerms.size(); ++i) {
        const PlutoTerm& term = kTerms[i];
        longitude += term.longitudeSin * waves.sine[i] + term.longitudeCos * waves.cosine[i];
        latitude += term.latitudeSin * waves.sine[i] + term.latitudeCos * waves.cosine[i];
        radius += term.radiusSin * waves.sine[i] + term.radiusCos * waves.cosine[i];
    }
    // The three constants belong to an earlier fit than the table. They are kept together: the
    // longitude is then off by up to 5.5 arc seconds between 1900 and 2100.
    return {(238.956785 + 144.96 * centuries + 1e-6 * longitude) * core::kRadiansPerDegree,
            (-3.908202 + 1e-6 * latitude) * core::kRadiansPerDegree, 40.7247248 + 1e-7 * radius};
}

Rectangular equatorialJ2000(const HeliocentricPosition& position)
{
    const double inPlane = position.R * std::cos(position.B);
    const double x = inPlane * std::cos(position.L);
    const double y = inPlane * std::sin(position.L);
    const double z = position.R * std::sin(position.B);
    return {x, y * kCosObliquity - z * kSinObliquity, y * kSinObliquity + z * kCosObliquity};
}

Rectangular sunEquatorialJ2000(const HeliocentricPosition& earth)
{
    const double inPlane = -earth.R * std::cos(earth.B);
    const double X = inPlane * std::cos(earth.L);
    const double Y = inPlane * std::sin(earth.L);
    const double Z = -earth.R * std::sin(earth.B);
    return {X + 0.000000440360 * Y - 0.000000190919 * Z,
            -0.000000479966 * X + 0.917482137087 * Y - 0.397776982902 * Z,
            0.397776982902 * Y + 0.917482137087 * Z};
}

EclipticJ2000 eclipticJ2000(const Rectangular& equatorial)
{
    const double distance = std::sqrt(equatorial.x * equatorial.x + equatorial.y * equatorial.y +
                                      equatorial.z * equatorial.z);
    const double a = std::atan2(equatorial.y, equatorial.x);
    const double declination = std::asin(equatorial.z / distance);
    const double longitude = std::atan2(
        std::sin(a) * kCosObliquity + std::tan(declination) * kSinObliquity, std::cos(a));
    const double latitude = std::asin(std::sin(declination) * kCosObliquity -
                                      std::cos(declination) * kSinObliquity * std::sin(a));
    return {core::Normalize360(longitude * core::kDegreesPerRadian), latitude};
}

} // namespace kestrav::astro
