// Bhava bala: the strength of the twelve houses.
#pragma once

#include "analysis/Shadbala.h"
#include "core/Chart.h"

#include <array>
#include <optional>

namespace kestrav::analysis
{

/// Four kinds of signs, after the creatures that they show.
enum class SignClass
{
    Nara,        ///< human
    Chatushpada, ///< four-footed
    Keeta,       ///< insect
    Jalachara,   ///< living in water
};

/// The class of a longitude. Sagittarius is nara in its first and chatushpada in its second half,
/// Capricorn chatushpada and jalachara; exactly 15 degrees belongs to the second half.
[[nodiscard]] SignClass signClassOf(double longitude);

/// The longitude of the middle of a house 1 to 12: its cusp, or under Placidus (KP), whose cusps
/// begin the houses, halfway to the next cusp. Empty when such a cusp does not exist.
[[nodiscard]] std::optional<double> houseMiddle(const core::Chart& chart, int house);

struct BhavaBala
{
    int house = 0;
    int lordPoint = 0; ///< lord of the sign of the house's middle; 0 without a middle
    Strength lord;     ///< shadbala total of the lord
    Strength dig;      ///< by the class of the middle, 0 to 60
    Strength drishti;  ///< aspects of the planets on the middle, can be negative
    Strength total;
};

/// The strengths of houses 1 to 12 (index 0 is house 1).
[[nodiscard]] std::array<BhavaBala, 12> computeBhavaBala(const core::Chart& chart,
                                                         const ShadbalaTable& shadbala);

} // namespace kestrav::analysis
