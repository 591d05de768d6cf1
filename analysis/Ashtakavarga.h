// Ashtakavarga: bindus of the signs, their sums and reductions, kakshyas.
#pragma once

#include "core/Chart.h"

#include <array>
#include <string_view>

namespace kestrav::analysis
{

/// Contributors and receivers: 0 the ascendant, 1 to 7 the planets Sun to Saturn.
inline constexpr int kAshtakavargaPoints = 8;

/// One value per sign, index 0 is Aries.
using SignRow12 = std::array<int, 12>;

/// One row per receiver.
using ReceiverRows = std::array<SignRow12, kAshtakavargaPoints>;

struct Pinda
{
    int rashi = 0;
    int graha = 0;
    [[nodiscard]] int total() const
    {
        return rashi + graha;
    }
};

struct Ashtakavarga
{
    int varga = 0;
    ReceiverRows bindus = {};
    SignRow12 sarva = {};          ///< sum over the planets 1 to 7
    SignRow12 sarvaWithLagna = {}; ///< with the ascendant's row
    SignRow12 occupants = {};      ///< how many of the planets 1 to 7 stand in the sign
    bool reduced = false;          ///< whether the following are filled
    ReceiverRows trikona = {};
    ReceiverRows ekadhipatya = {};
    std::array<Pinda, kAshtakavargaPoints> pinda = {};
};

/// The houses, counted from the contributor's sign, in which it gives the receiver a bindu, as a
/// text of digits in which ":" is 10, ";" 11 and "<" 12.
[[nodiscard]] std::string_view binduHouses(int receiver, int contributor);

/// Whether the contributor gives the receiver a bindu in the house-th sign (1 to 12) from its own.
[[nodiscard]] bool givesBindu(int receiver, int contributor, int house);

/// The number of bindus that a receiver has in every chart.
[[nodiscard]] int binduTotal(int receiver);

/// The tables of a varga (0 is the rashi) from the signs of points 0 to 7 in it; with reductions
/// also the trikona and ekadhipatya reductions and the pindas. A point without a position gives no
/// bindu and occupies no sign, so that the rows do not reach their totals.
[[nodiscard]] Ashtakavarga computeAshtakavarga(const core::Chart& chart, int varga,
                                               bool withReductions);

/// How many of the planets 1 to 7 stand in each sign of a varga.
[[nodiscard]] SignRow12 countOccupants(const core::Chart& chart, int varga);

/// b - a when a is below b, else 0.
[[nodiscard]] constexpr int reductionStep(int a, int b)
{
    return a < b ? b - a : 0;
}

/// Trikona reduction of a row: in each triple of signs four apart the smallest is taken off all.
[[nodiscard]] SignRow12 trikonaReduction(const SignRow12& row);

/// Ekadhipatya reduction of a row: the two signs of one lord. Cancer and Leo are never touched.
[[nodiscard]] SignRow12 ekadhipatyaReduction(const SignRow12& row, const SignRow12& occupants);

/// Weight of a sign 1 to 12 in the rashi pinda and of a planet 1 to 7 in the graha pinda.
[[nodiscard]] int pindaSignWeight(int sign);
[[nodiscard]] int pindaPlanetWeight(int planet);

/// A kakshya is an eighth of a sign, 3 degrees 45 minutes.
struct Kakshya
{
    int part; ///< 0 to 7
    int lord; ///< point 0 to 7: Saturn, Jupiter, Mars, Sun, Venus, Mercury, Moon, ascendant
};

[[nodiscard]] Kakshya kakshyaOf(double degreeInSign);

/// Whether a planet 1 to 7 that stands at a longitude finds a bindu there: the lord of the kakshya,
/// as contributor in the chart, gives one to that sign in the planet's own ashtakavarga.
[[nodiscard]] bool kakshyaBindu(const core::Chart& chart, int planet, double longitude);

} // namespace kestrav::analysis
