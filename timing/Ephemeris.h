// Tables of positions: where the bodies stand from step to step.
#pragma once

#include "core/DateTime.h"
#include "core/Result.h"
#include "timing/EventSearch.h"
#include "timing/SiderealSky.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrav::timing
{

/// Years (historical numbering) within which tables, phases and eclipses are given. The series are
/// made for the middle of them.
inline constexpr int kFirstTableYear = -4000;
inline constexpr int kLastTableYear = 8000;

/// The most positions, rows times bodies, and the most days of one table.
inline constexpr std::int64_t kMostTablePositions = 500'000;
inline constexpr double kLongestTable = 366'000.0; // a thousand years

enum class StepUnit
{
    Minute,
    Hour,
    Day,
    Month,
};

/// The distance of two rows.
struct TableStep
{
    int count = 1;
    StepUnit unit = StepUnit::Day;
};

/// A step such as "10min", "6h", "1d" or "1mo"; the words minutes, hours, days, months and their
/// singulars too, with or without a blank. The count is a whole number, which is not checked.
[[nodiscard]] core::Result<TableStep> parseTableStep(std::string_view text);

/// Which table is wanted.
struct EphemerisPlan
{
    core::DateTimeRecord first; ///< date and clock time of the first row
    core::DateTimeRecord last;  ///< date whose end is the end of the table
    TableStep step;
    double clockOffset = 0.0; ///< hours of the clock before Universal Time
    std::vector<int> bodies;  ///< points, in the order of the columns
};

/// What is wrong with a plan.
enum class PlanProblem
{
    None,
    StepNotPositive,
    FirstOutOfReach, ///< the first date lies outside the years of the tables
    LastOutOfReach,
    Reversed, ///< the last date lies before the first one
    TooLong,  ///< more days than a table may have
    TooManyPositions,
};

[[nodiscard]] PlanProblem checkPlan(const EphemerisPlan& plan);

/// Whether a date lies within the years of the tables.
[[nodiscard]] bool isInTables(const core::DateTimeRecord& date);

/// From the first row to the end of the last date, in Julian days of Universal Time.
[[nodiscard]] Span spanOf(const EphemerisPlan& plan);

/// The civil date and clock time of a Julian day (Universal Time) on a clock that is `clockOffset`
/// hours before Universal Time. Within three million years of 2000.
[[nodiscard]] core::DateTimeRecord clockRecord(double julianDay, double clockOffset);

struct EphemerisPosition
{
    int point = 0;
    SkyPosition sky;
};

struct EphemerisRow
{
    double julianDay = 0.0;    ///< Universal Time
    core::DateTimeRecord date; ///< civil date and clock time
    int weekday = 1;           ///< of the civil date: 1 = Sunday to 7 = Saturday
    std::vector<EphemerisPosition> bodies;
};

/// The rows of a table, computed one after the other as they are asked for.
class EphemerisRows
{
public:
    /// The sky must outlive the object, and the plan must have no problem. The sky's clock becomes
    /// that of the plan.
    EphemerisRows(SiderealSky& sky, EphemerisPlan plan);

    /// The next row, nothing behind the last one. A step of months keeps the day of the month, or
    /// takes the last day before it where the month has no such day, without forgetting it for the
    /// months after.
    [[nodiscard]] std::optional<EphemerisRow> next();

    /// The number of rows at most; exact unless the step is in months.
    [[nodiscard]] std::int64_t rowsAtMost() const;

private:
    SiderealSky& sky_;
    EphemerisPlan plan_;
    std::int64_t index_ = 0;
};

} // namespace kestrav::timing
