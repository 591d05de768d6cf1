#include "analysis/Sphutas.h"

#include "core/Angles.h"

#include <algorithm>
#include <cstddef>

namespace kestrav::analysis
{

namespace
{

using core::at;

struct Sum
{
    std::wstring_view name;
    std::array<SphutaAddend, 5> addends; // the factor is 0 in an unused place
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

std::optional<double> longitudeOf(const core::Chart& chart, int sphuta)
{
    double total = 0.0;
    for (const SphutaAddend& addend : sphutaAddends(sphuta)) {
        if (!chart.computed(addend.point)) {
            return std::nullopt;
        }
        total += addend.factor * at(chart.longitude, addend.point);
    }
    return core::Normalize360(total);
}

} // namespace

std::span<const SphutaAddend> sphutaAddends(int sphuta)
{
    const auto& addends = at(kSums, sphuta).addends;
    const auto end = std::find_if(addends.begin(), addends.end(),
                                  [](const SphutaAddend& addend) { return addend.factor == 0; });
    return {addends.begin(), end};
}

std::array<Sphuta, 10> sphutas(const core::Chart& chart)
{
    std::array<Sphuta, 10> result{};
    for (std::size_t i = 0; i < kSums.size(); ++i) {
        result[i] = {kSums[i].name, longitudeOf(chart, int(i))};
    }
    return result;
}

} // namespace kestrav::analysis
