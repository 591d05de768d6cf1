#include "timing/DayDivisions.h"

#include "core/Points.h"
#include "timing/PanchangaNames.h"

#include <array>

namespace kestrav::timing
{

namespace
{

using analysis::HalfDay;
using core::at;

constexpr int kWeekdays = 7;

// Which eighth of the day, 1 to 8, Sunday to Saturday.
constexpr std::array<int, kWeekdays> kRahuParts = {8, 2, 7, 5, 6, 4, 3};
constexpr std::array<int, kWeekdays> kYamagandaParts = {5, 4, 3, 2, 1, 7, 6};
constexpr std::array<int, kWeekdays> kGulikaParts = {7, 6, 5, 4, 3, 2, 1};

constexpr int kAbhijitMuhurta = 8;
constexpr int kWednesday = 4;

// Muhurtas 1 to 15 to be avoided; 0 for none.
struct BadMuhurtas
{
    int first;
    int second;
    bool secondByNight = false;
};

constexpr std::array<BadMuhurtas, kWeekdays> kDurmuhurtas = {{
    {14, 0},
    {9, 12},
    {4, 7, true},
    {8, 0},
    {6, 12},
    {4, 9},
    {1, 2},
}};

// Sixtieths of the nakshatra at which its varjyam and its amrita kalam begin, Ashwini to Revati.
// Some lists have a second varjyam at 20 in Mula, which is left out.
constexpr std::array<int, kNakshatras> kVarjyam = {50, 24, 30, 40, 14, 21, 30, 20, 32,
                                                   30, 20, 18, 21, 20, 14, 14, 10, 14,
                                                   56, 24, 20, 10, 10, 18, 16, 24, 30};
constexpr std::array<int, kNakshatras> kAmrita = {42, 48, 54, 52, 38, 35, 54, 44, 56,
                                                  54, 44, 42, 45, 44, 38, 38, 34, 38,
                                                  44, 48, 44, 34, 34, 42, 40, 48, 54};
constexpr double kSixtieths = 60.0;
constexpr double kKalamLength = 4.0; // sixtieths

constexpr int totalOf(const std::array<int, kNakshatras>& values)
{
    int total = 0;
    for (const int value : values) {
        total += value;
    }
    return total;
}
static_assert(totalOf(kVarjyam) == 630 && totalOf(kAmrita) == 1188);

// Part 0 to parts - 1.
HourSpan partOf(const HalfDay& half, int part, int parts)
{
    return {half.partStart(part, parts), half.partStart(part + 1, parts)};
}

template <typename RulerOf>
std::vector<DayPart> partsOf(const DayHalves& halves, int parts, RulerOf rulerOf)
{
    std::vector<DayPart> list;
    for (const std::optional<HalfDay>& half : {halves.day, halves.night}) {
        for (int part = 0; half && part < parts; ++part) {
            list.push_back({rulerOf(half->night, part), half->night, partOf(*half, part, parts)});
        }
    }
    return list;
}

std::optional<HourSpan> eighthOf(const DayHalves& halves, int number)
{
    if (!halves.day) {
        return std::nullopt;
    }
    return partOf(*halves.day, number - 1, analysis::kEighths);
}

HourSpan kalamOf(int beginning, HourSpan hours)
{
    const double sixtieth = (hours.end - hours.start) / kSixtieths;
    const double start = hours.start + beginning * sixtieth;
    return {start, start + kKalamLength * sixtieth};
}

} // namespace

std::vector<DayPart> horasOf(const DayHalves& halves, int weekday)
{
    return partsOf(halves, analysis::kHorasOfHalf, [&](bool night, int part) {
        return analysis::horaLord(weekday, part + (night ? analysis::kHorasOfHalf : 0));
    });
}

std::vector<DayPart> choghadiaOfDay(const DayHalves& halves, int weekday)
{
    return partsOf(halves, analysis::kEighths,
                   [&](bool night, int part) { return choghadiaOf(weekday, night, part); });
}

std::vector<DayPart> kalaVelasOf(const DayHalves& halves, int weekday)
{
    return partsOf(halves, analysis::kEighths, [&](bool night, int part) {
        return analysis::kalaVelaRuler(weekday, night, part);
    });
}

std::optional<HourSpan> rahuKalam(const DayHalves& halves, int weekday)
{
    return eighthOf(halves, at(kRahuParts, weekday - 1));
}

std::optional<HourSpan> yamaganda(const DayHalves& halves, int weekday)
{
    return eighthOf(halves, at(kYamagandaParts, weekday - 1));
}

std::optional<HourSpan> gulikaKalam(const DayHalves& halves, int weekday)
{
    return eighthOf(halves, at(kGulikaParts, weekday - 1));
}

std::optional<HourSpan> abhijit(const DayHalves& halves, int weekday)
{
    if (!halves.day || weekday == kWednesday) {
        return std::nullopt;
    }
    return partOf(*halves.day, kAbhijitMuhurta - 1, analysis::kMuhurtasOfHalf);
}

std::vector<HourSpan> durmuhurtas(const DayHalves& halves, int weekday)
{
    const BadMuhurtas& bad = at(kDurmuhurtas, weekday - 1);
    const std::optional<HalfDay>& secondHalf = bad.secondByNight ? halves.night : halves.day;
    std::vector<HourSpan> list;
    if (halves.day) {
        list.push_back(partOf(*halves.day, bad.first - 1, analysis::kMuhurtasOfHalf));
    }
    if (secondHalf && bad.second > 0) {
        list.push_back(partOf(*secondHalf, bad.second - 1, analysis::kMuhurtasOfHalf));
    }
    return list;
}

HourSpan varjyamOf(int nakshatra, HourSpan hours)
{
    return kalamOf(at(kVarjyam, nakshatra), hours);
}

HourSpan amritaKalamOf(int nakshatra, HourSpan hours)
{
    return kalamOf(at(kAmrita, nakshatra), hours);
}

} // namespace kestrav::timing
