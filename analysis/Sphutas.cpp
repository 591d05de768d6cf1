#include "analysis/Sphutas.h"

#include "core/Angles.h"

#include <cstddef>

namespace kestrav::analysis
{

namespace
{

using core::at;

struct Addend
{
    int point;
    int factor; // 0 in an unused place
};

struct Sum
{
    std::wstring_view name;
    std::array<Addend, 5> addends;
};

// clang-format off
constexpr std::array<Sum, 10> kSums = {{
    {L"Beeja",   {{{core::kSun, 1},       {core::kJupiter, 1}, {core::kVenus, 1}}}},
    {L"Kshetra", {{{core::kMoon, 1},      {core::kMars, 1},    {core::kJupiter, 1}}}},
    {L"Tithi",   {{{core::kMoon, 1},      {core::kSun, -1}}}},
    {L"Yoga",    {{{core::kSun, 1},       {core::kMoon, 1}}}},
    {L"Tri",     {{{core::kAscendant, 1}, {core::kMoon, 1},    {core::kGulika, 1}}}},
    {L"Chatur",  {{{core::kAscendant, 1}, {core::kMoon, 1},    {core::kGulika, 1}, {core::kSun, 1}}}},
    {L"Pancha",  {{{core::kAscendant, 1}, {core::kMoon, 1},    {core::kGulika, 1}, {core::kSun, 1},
                   {core::kRahu, 1}}}},
    {L"Prana",   {{{core::kAscendant, 5}, {core::kGulika, 1}}}},
    {L"Deha",    {{{core::kMoon, 8},      {core::kGulika, 1}}}},
    {L"Mrityu",  {{{core::kGulika, 7},    {core::kSun, 1}}}},
}};
// clang-format on

std::optional<double> longitudeOf(const core::Chart& chart, const Sum& sum)
{
    double total = 0.0;
    for (const Addend& addend : sum.addends) {
        if (addend.factor == 0) {
            break;
        }
        if (!chart.computed(addend.point)) {
            return std::nullopt;
        }
        total += addend.factor * at(chart.longitude, addend.point);
    }
    return core::Normalize360(total);
}

} // namespace

std::array<Sphuta, 10> sphutas(const core::Chart& chart)
{
    std::array<Sphuta, 10> result{};
    for (std::size_t i = 0; i < kSums.size(); ++i) {
        result[i] = {kSums[i].name, longitudeOf(chart, kSums[i])};
    }
    return result;
}

} // namespace kestrav::analysis
