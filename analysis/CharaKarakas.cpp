#include "analysis/CharaKarakas.h"

#include <algorithm>
#include <cstddef>

namespace kestrav::analysis
{

namespace
{

// The list of seven leaves out Pitri.
constexpr std::array<std::wstring_view, 7> kSevenNames = {L"Atma",  L"Amatya", L"Bhratri", L"Matri",
                                                          L"Putra", L"Jnati",  L"Dara"};
constexpr std::array<std::wstring_view, 8> kEightNames = {L"Atma",  L"Amatya", L"Bhratri", L"Matri",
                                                          L"Pitri", L"Putra",  L"Jnati",   L"Dara"};

template <std::size_t Count>
std::optional<std::array<int, Count>> ranked(const core::Chart& chart)
{
    std::array<int, Count> planets{};
    for (std::size_t i = 0; i < Count; ++i) {
        planets[i] = int(i) + core::kSun;
        if (!chart.computed(planets[i])) {
            return std::nullopt;
        }
    }
    std::sort(planets.begin(), planets.end(), [&](int left, int right) {
        const double first = karakaAdvancement(chart, left);
        const double second = karakaAdvancement(chart, right);
        return first > second || (first == second && left < right);
    });
    return planets;
}

} // namespace

double karakaAdvancement(const core::Chart& chart, int planet)
{
    const double degree = core::at(chart.degreeInSign, planet);
    return planet == core::kRahu ? 30.0 - degree : degree;
}

std::span<const std::wstring_view, 7> sevenKarakaNames()
{
    return kSevenNames;
}

std::span<const std::wstring_view, 8> eightKarakaNames()
{
    return kEightNames;
}

std::optional<std::array<int, 7>> sevenKarakas(const core::Chart& chart)
{
    return ranked<7>(chart);
}

std::optional<std::array<int, 8>> eightKarakas(const core::Chart& chart)
{
    return ranked<8>(chart);
}

} // namespace kestrav::analysis
