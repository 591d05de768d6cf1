#include "timing/DashaTable.h"

#include "core/Points.h"

#include <cstddef>

namespace kestrav::timing
{

namespace
{

constexpr double kTwoThirds = 2.0 / 3.0;

// The system's own years times a factor.
constexpr std::array<double, 12> vimshottariTimes(double factor)
{
    return {6 * factor,  10 * factor, 7 * factor, 18 * factor, 16 * factor,
            19 * factor, 17 * factor, 7 * factor, 20 * factor};
}

constexpr std::array<double, 12> vimshottariShares()
{
    constexpr double kCycle = 120.0;
    return {6 / kCycle,  10 / kCycle, 7 / kCycle, 18 / kCycle, 16 / kCycle,
            19 / kCycle, 17 / kCycle, 7 / kCycle, 20 / kCycle};
}

// clang-format off
constexpr std::array<int, 12>    kNineLords     = {1, 2, 3, 8, 5, 7, 4, 9, 6};
constexpr std::array<int, 12>    kTwelve        = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
constexpr std::array<int, 12>    kYoginiLords   = {2, 1, 5, 3, 4, 7, 6, 8};
constexpr std::array<double, 12> kYoginiYears   = {1, 2, 3, 4, 5, 6, 7, 8};

// Name, flag, count, offset, lords, years, total.
constexpr std::array<DashaRow, kDashaSystems> kRows = {{
    {L"Vimshottari",       1,  9, -7, kNineLords, vimshottariTimes(1.0), 120},
    {L"Astottari",         0,  8,  5, {1, 2, 3, 4, 7, 5, 8, 6}, {6, 15, 8, 17, 10, 19, 12, 21}, 108},
    {L"Shodsottari",       0,  8,  7, {1, 3, 5, 7, 9, 2, 4, 6}, {11, 12, 13, 14, 15, 16, 17, 18}, 116},
    {L"Dwadashottari",     0,  8, 26, {1, 5, 9, 4, 8, 3, 7, 2}, {7, 9, 11, 13, 15, 17, 19, 21}, 112},
    {L"Panchottari",       0,  7, 16, {1, 4, 7, 3, 6, 2, 5}, {12, 13, 14, 15, 16, 17, 18}, 105},
    {L"Shatabdika",        0,  7, 26, {1, 2, 6, 4, 5, 3, 7}, {5, 5, 10, 10, 20, 20, 30}, 100},
    {L"Chaturashiti sama", 0,  7, 14, {1, 2, 3, 4, 5, 6, 7}, {12, 12, 12, 12, 12, 12, 12}, 84},
    {L"Dwisaptati sama",   0,  8, 18, {1, 2, 3, 4, 5, 6, 7, 8}, {9, 9, 9, 9, 9, 9, 9, 9}, 72},
    {L"Shastihayani",      0,  8,  0, {5, 1, 3, 2, 4, 6, 7, 8}, {10, 10, 10, 6, 6, 6, 6, 6}, 60},
    {L"Shat-trimshat sama", 0, 8, 21, {2, 1, 5, 3, 4, 7, 6, 8}, {1, 2, 3, 4, 5, 6, 7, 8}, 36},
    {L"Sudarshana Chakra", 0, 12,  0, kTwelve, {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, 12},
    {L"Tribhagi",          0,  9, -7, kNineLords, vimshottariTimes(kTwoThirds), 80},
    {L"Yogini",            0,  8, -3, kYoginiLords, kYoginiYears, 36},
    {L"Jaimini Chara",     0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"Kala Chakra",       1, 12,  0, {3, 6, 4, 2, 1, 4, 6, 3, 5}, {7, 16, 9, 21, 5, 9, 16, 7, 10, 4, 4, 10}, 118},
    {L"Narayana",          0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"Su/ShriLgKendradi", 0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"LagnKendradi(Rs)",  0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"AtmaKendradi(Rs)",  0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"Drig",              0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"Shoola",            0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"NiryanaShoola",     0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"Moola",             1,  9,  0, kNineLords, vimshottariTimes(1.0), 120},
    {L"Tithi Astottari",   0, 12,  0, kYoginiLords, kYoginiYears, 36},
    {L"",                  1,  9, -7, kNineLords, vimshottariShares(), 1},
}};
// clang-format on

// The years of every row make up its total, and nothing stands beyond its count.
constexpr bool rowsAddUp()
{
    for (const DashaRow& row : kRows) {
        double sum = 0.0;
        for (std::size_t i = 0; i < row.years.size(); ++i) {
            sum += row.years[i];
            if (int(i) >= row.count && (row.years[i] != 0.0 || row.lords[i] != 0)) {
                return false;
            }
        }
        if (sum - row.total > 1e-12 || row.total - sum > 1e-12) {
            return false;
        }
    }
    return true;
}

constexpr int sumOfLords()
{
    int sum = 0;
    for (const DashaRow& row : kRows) {
        for (const int lord : row.lords) {
            sum += lord;
        }
    }
    return sum;
}

constexpr int sum(const std::array<int, 8>& counts)
{
    int total = 0;
    for (const int count : counts) {
        total += count;
    }
    return total;
}

constexpr bool pointYearsMatch()
{
    for (std::size_t i = 0; i < 9; ++i) {
        if (kYearsOfPoint[std::size_t(kNineLords[i])] != kRows[kVimshottari].years[i]) {
            return false;
        }
    }
    return true;
}

static_assert(rowsAddUp());
static_assert(sumOfLords() == 4 * 45 + 78 + 34 + 11 * 36 + 37 + 39 + 3 * 28 + 3 * 36);
static_assert(sum(kAstottariCounts) == 27 && sum(kShastihayaniCounts) == 27);
static_assert(pointYearsMatch());

} // namespace

const DashaRow& dashaRow(int system)
{
    return core::at(kRows, system);
}

bool startsFromNakshatra(int system)
{
    return system < kSudarshanaChakra || system == kTribhagi || system == kYogini ||
           system == kKalaChakra || system == kAnnualVimshottari;
}

bool isSignDasha(int system)
{
    return system == kJaiminiChara || (system >= kNarayana && system <= kNiryanaShoola);
}

} // namespace kestrav::timing
