// The panchanga of a day: everything that its page, listing and JSON object show.
#pragma once

#include "astro/RiseSet.h"
#include "core/Chart.h"
#include "core/Settings.h"
#include "timing/DayDivisions.h"
#include "timing/LunarMonth.h"
#include "timing/MoonStrength.h"
#include "timing/PanchangaElements.h"

#include <optional>
#include <vector>

namespace kestrav::timing
{

/// An element with its times in hours of the civil day.
struct DayElement
{
    int number = 0; ///< tithi 0 to 29, nakshatra and yoga 0 to 26, karana 1 to 60
    HourSpan hours;
};

/// A varjyam or amrita kalam and the nakshatra that it belongs to.
struct NakshatraKalam
{
    int nakshatra = 0;
    HourSpan hours;
};

/// What the Sun does on a date. On the first and last days near the poles one of rise and set can
/// exist without the other.
enum class SunCourse
{
    RisesAndSets,
    StaysUp,   ///< a rise or set is missing on the summer side
    StaysDown, ///< a rise or set is missing on the winter side
};

/// One day. Hours are local clock hours from 0h of the civil date, below 0 and above 24 where they
/// lie outside it. The day runs from sunrise to the next sunrise; where one of them does not exist,
/// from or to midnight, as the weekday does there.
struct PanchangaDay
{
    core::DateTimeRecord date; ///< the civil date; the clock time is 0h
    double julianDay0h = 0.0;  ///< of that date, as a date and not a moment
    double clockOffset = 0.0;  ///< hours of the clock before Universal Time
    int weekday = 1;           ///< 1 = Sunday to 7 = Saturday
    SunCourse sun = SunCourse::RisesAndSets;

    std::optional<double> sunrise;
    std::optional<double> sunset;
    std::optional<double> nextSunrise; ///< of the date after, above 24 as a rule
    std::optional<double> moonrise;    ///< on the civil date; a day may lack one
    std::optional<double> moonset;

    /// Every element in force between the sunrises, with its whole period.
    std::vector<DayElement> tithis;
    std::vector<DayElement> nakshatras;
    std::vector<DayElement> yogas;
    std::vector<DayElement> karanas;

    /// The moment that the following belong to: the day's beginning, or the moment of a chart.
    double hour = 0.0;
    double sunLongitude = 0.0; ///< sidereal degrees
    double moonLongitude = 0.0;
    ElementNumbers elements;
    LunarMonth month;
    int purnimanta = 0;    ///< month 1 to 12 counted from full moon to full moon
    int ritu = 0;          ///< 0 to 5
    int ayana = 0;         ///< by the sidereal Sun: 0 Uttarayana, 1 Dakshinayana
    int tropicalAyana = 0; ///< by the tropical Sun
    LunarYear year;

    std::vector<DayPart> horas; ///< 24, of the day 12 only where there is no night, and so on
    std::vector<DayPart> choghadia;
    std::vector<DayPart> kalaVelas;
    std::optional<HourSpan> rahuKalam;
    std::optional<HourSpan> yamaganda;
    std::optional<HourSpan> gulika;
    std::optional<HourSpan> abhijit; ///< none on Wednesday
    std::vector<HourSpan> durmuhurta;
    std::vector<NakshatraKalam> varjyam; ///< those that overlap the day
    std::vector<NakshatraKalam> amritaKalam;

    // When a native is given.
    std::optional<TaraBala> taraBala;
    std::optional<int> chandraBala;
};

/// Makes the panchanga of days. Days may be asked for in any order; going through them in sequence
/// is fastest, for the positions are then at hand. An object belongs to one thread.
class Panchanga
{
public:
    /// The series must outlive the object.
    Panchanga(const astro::Series& series, const core::Settings& settings);

    /// The birth Moon (sidereal degrees) for tara bala and chandra bala.
    void setNative(std::optional<double> moonLongitude);

    /// The day of the civil date that begins at a Julian day (its 0h, a number that ends in .5), at
    /// a place and on its clock. A walk over many days counts these numbers up, which also leads
    /// over the change of calendar.
    [[nodiscard]] PanchangaDay day(double julianDay0h, const astro::Observer& observer);

    /// The day of a record's date.
    [[nodiscard]] PanchangaDay day(const core::DateTimeRecord& date,
                                   const astro::Observer& observer);

    /// The day that runs at the moment of a chart that has one; before sunrise it is that of the
    /// date before, to which its hours belong. Month, years and elements are those of the moment.
    [[nodiscard]] PanchangaDay dayOf(const core::Chart& chart);

    [[nodiscard]] SiderealSky& sky()
    {
        return sky_;
    }

private:
    void storeSun(PanchangaDay& day, const astro::Observer& observer);
    void storeMoon(PanchangaDay& day, const astro::Observer& observer);
    void storeElements(PanchangaDay& day);
    void storeDivisions(PanchangaDay& day) const;
    void storeMoment(PanchangaDay& day, double hour);
    [[nodiscard]] core::DateTimeRecord recordWithDeltaT(double julianDay0h) const;
    [[nodiscard]] std::vector<DayElement> elementsOfDay(const PanchangaDay& day, Element element);

    astro::EphemerisContext context_;
    SiderealSky sky_;
    std::optional<double> nativeMoon_;
};

} // namespace kestrav::timing
