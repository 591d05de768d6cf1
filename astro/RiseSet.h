// Rise, set and culmination of the bodies, and the astrological day that begins at sunrise.
#pragma once

#include "astro/Engine.h"
#include "astro/SunTrack.h"
#include "core/Chart.h"
#include "core/DateTime.h"

#include <optional>

namespace kestrav::astro
{

/// A place on the Earth with its clock.
struct Observer
{
    double geoLongitude = 0.0; ///< degrees, positive east
    double geoLatitude = 0.0;  ///< degrees, positive north
    double clockOffset =
        0.0; ///< hours of the local clock before Universal Time, saving time included
};

[[nodiscard]] Observer observerOf(const core::Chart& chart);

enum class HorizonEvent
{
    Rise,
    Set,
    UpperCulmination,
    LowerCulmination,
};

/// The Sun around local mean noon of a civil date, for the events of that date and its neighbours.
/// Of the record the date and Delta T are read.
[[nodiscard]] SunTrack sunTrack(EphemerisContext& context, const core::DateTimeRecord& date,
                                const Observer& observer);

/// The local clock hour of an event of the Sun on a civil date, counted from 0h of that date: the
/// one nearest to local mean noon, so sunrise can lie below 0 and sunset above 24, but sunset is
/// never before sunrise; the lower culmination is the one after noon. Rise and set are the moments
/// when the centre of the Sun stands at a geometric altitude of -0.5833333 degrees. Nothing when
/// there is no such event on the date, as near the poles. Of the record the date and Delta T are
/// read.
[[nodiscard]] std::optional<double> sunEvent(EphemerisContext& context,
                                             const core::DateTimeRecord& date,
                                             const Observer& observer, HorizonEvent event);

/// The same with the Sun of a track that is at hand.
[[nodiscard]] std::optional<double> sunEvent(const SunTrack& track,
                                             const core::DateTimeRecord& date,
                                             const Observer& observer, HorizonEvent event);

/// The local clock hour, 0 to under 24, of an event of any body of the point table that has a
/// latitude of its own (Sun to Saturn, Uranus to Pluto) on a civil date; the earlier one when there
/// are two. Nothing when there is none: near the poles, or for the Moon about once a month.
/// The Moon's centre stands at 0.7275 x parallax - 0.5667 degrees, that of a planet at -0.5667.
[[nodiscard]] std::optional<double> bodyEvent(EphemerisContext& context,
                                              const core::DateTimeRecord& date,
                                              const Observer& observer, int point,
                                              HorizonEvent event);

/// The day running at a record's local time; nothing where the Sun does not rise or set.
[[nodiscard]] std::optional<core::VedicDay>
vedicDay(EphemerisContext& context, const core::DateTimeRecord& moment, const Observer& observer);

/// The same with the Sun of a track of the moment's date that is at hand.
[[nodiscard]] std::optional<core::VedicDay>
vedicDay(const SunTrack& track, const core::DateTimeRecord& moment, const Observer& observer);

} // namespace kestrav::astro
