// The parts of a day and its night: horas, choghadia, kala velas, day eighths and muhurtas.
#pragma once

#include "analysis/DayParts.h"

#include <optional>
#include <vector>

namespace kestrav::timing
{

/// Local clock hours from 0h of the civil date of the day; they run below 0 and above 24.
struct HourSpan
{
    double start = 0.0;
    double end = 0.0;
};

/// The halves of a day. Near the poles one or both do not exist.
struct DayHalves
{
    std::optional<analysis::HalfDay> day;
    std::optional<analysis::HalfDay> night;
};

/// An equal part of a half-day, and whose it is.
struct DayPart
{
    int ruler = 0; ///< hora and kala vela: a planet 1 to 7, 0 for none; choghadia: 0 to 6
    bool night = false;
    HourSpan hours;
};

/// The 24 horas, those of the day first; only those of the halves that exist, as with all lists
/// here. Weekdays are counted 1 = Sunday to 7 = Saturday.
[[nodiscard]] std::vector<DayPart> horasOf(const DayHalves& halves, int weekday);

/// The 16 choghadia.
[[nodiscard]] std::vector<DayPart> choghadiaOfDay(const DayHalves& halves, int weekday);

/// The 16 kala velas; the last of each half has no ruler.
[[nodiscard]] std::vector<DayPart> kalaVelasOf(const DayHalves& halves, int weekday);

/// The eighths of the day that are avoided. Nothing when there is no day.
[[nodiscard]] std::optional<HourSpan> rahuKalam(const DayHalves& halves, int weekday);
[[nodiscard]] std::optional<HourSpan> yamaganda(const DayHalves& halves, int weekday);
[[nodiscard]] std::optional<HourSpan> gulikaKalam(const DayHalves& halves, int weekday);

/// The eighth of the fifteen muhurtas of the day; on Wednesday it is void and there is none.
[[nodiscard]] std::optional<HourSpan> abhijit(const DayHalves& halves, int weekday);

/// The one or two muhurtas to be avoided; the second of Tuesday lies in the night.
[[nodiscard]] std::vector<HourSpan> durmuhurtas(const DayHalves& halves, int weekday);

/// Varjyam and amrita kalam of a nakshatra 0 to 26 that lasts for the given hours: 4/60 of its
/// length, each nakshatra with a beginning of its own.
[[nodiscard]] HourSpan varjyamOf(int nakshatra, HourSpan hours);
[[nodiscard]] HourSpan amritaKalamOf(int nakshatra, HourSpan hours);

} // namespace kestrav::timing
