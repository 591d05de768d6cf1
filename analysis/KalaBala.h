// Kala bala: the strength of a planet by the time.
#pragma once

#include "analysis/Benefics.h"
#include "analysis/StrengthInputs.h"
#include "core/Chart.h"

namespace kestrav::analysis
{

struct KalaBala
{
    Strength nathonnatha; ///< nearness to noon or midnight, 0 to 60
    Strength paksha;      ///< phase of the Moon, 0 to 60, doubled for the Moon
    Strength tribhaga;    ///< lord of the third of the day or night, 0 or 60
    Strength varsha;      ///< lord of the year, 0 or 15
    Strength masa;        ///< lord of the month, 0 or 30
    Strength vara;        ///< lord of the weekday, 0 or 45
    Strength hora;        ///< lord of the planetary hour, 0 or 60
    Strength ayana;       ///< declination, 0 to 60, doubled for the Sun
    Strength yuddha;      ///< won or lost in planetary wars

    /// The parts that a planetary war compares: all but ayana and yuddha.
    [[nodiscard]] Strength beforeWar() const;
    [[nodiscard]] Strength total() const;
};

/// Time strength of planet 1 to 7, without yuddha, which is left empty.
[[nodiscard]] KalaBala kalaBala(const core::Chart& chart, const StrengthInputs& inputs,
                                const NaturalBenefics& benefic, int planet);

/// The planet that rules a third of the day or night.
[[nodiscard]] int thirdLord(const DayThird& third);

/// Lord 1 to 7 of the year of 360 days in which a day falls, counted from the creation of the Surya
/// Siddhanta. `julianDay0h` ends in .5.
[[nodiscard]] int yearLord(double julianDay0h);

/// Lord of the month of 30 days in the same count.
[[nodiscard]] int monthLord(double julianDay0h);

/// The declination that belongs to a tropical longitude (degrees) in the table of six steps of 15
/// degrees: -24 to 24 degrees, north positive. It differs from the true one by up to half a degree
/// on purpose.
[[nodiscard]] double tabularDeclination(double tropicalLongitude);

} // namespace kestrav::analysis
