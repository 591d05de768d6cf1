// The list of a dasha's periods, made one record at a time while it is read.
#pragma once

#include "timing/Dasha.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace kestrav::timing
{

/// A list that is not ended by its budget ends at this age.
inline constexpr double kLastAge = 10000.0;

/// One period of the list.
struct DashaPeriod
{
    int level = 0;                            ///< 1 (mahadasha) to 5
    std::array<int, kDashaLevels> lords = {}; ///< of each level down to its own, 0 below it
    double startAge = 0.0;                    ///< years from birth, negative before it
    double length = 0.0;                      ///< years
    double startJulianDay = 0.0;              ///< Universal Time; not-a-number without moment
    int kalaChakraRow = -1;                   ///< row of the mahadasha; -1 in other systems

    [[nodiscard]] int lord() const
    {
        return lords[static_cast<std::size_t>(level - 1)];
    }
    [[nodiscard]] double endAge() const
    {
        return startAge + length;
    }
};

/// Which periods a list holds.
struct DashaSpan
{
    int levels = 2; ///< 1 to 5; others are brought into this range
    /// A period is listed when it ends after the start age and begins not after the end age, so the
    /// first record of a list from birth usually has a negative start age.
    double startAge = 0.0;
    double endAge = kLastAge;
    long long budget = 1000; ///< records of all levels together
};

/// Walks the periods in the order of their beginnings, parents before their children. Each step
/// computes one record; periods before the start age are passed over as a whole. Allocates nothing.
class DashaWalk
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = DashaPeriod;
    using difference_type = std::ptrdiff_t;
    using pointer = const DashaPeriod*;
    using reference = const DashaPeriod&;

    /// The dasha must outlive the walk.
    DashaWalk(const Dasha& dasha, const DashaSpan& span);

    [[nodiscard]] const DashaPeriod& operator*() const
    {
        return period_;
    }
    [[nodiscard]] const DashaPeriod* operator->() const
    {
        return &period_;
    }
    DashaWalk& operator++();
    void operator++(int)
    {
        ++*this;
    }

    [[nodiscard]] bool done() const
    {
        return level_ == 0;
    }
    friend bool operator==(const DashaWalk& walk, std::default_sentinel_t)
    {
        return walk.done();
    }

private:
    struct Step
    {
        DashaNode node;
        int number = 0; ///< among the children of the level above
    };

    [[nodiscard]] DashaNode& nodeAt(int level)
    {
        return core::at(steps_, level - 1).node;
    }
    void firstChild();
    void following();
    void passOver();
    void store();

    const Dasha* dasha_;
    DashaSpan span_;
    MahadashaWalk mahadashas_;
    std::array<Step, kDashaLevels> steps_ = {};
    int level_ = 1; ///< of the period at which the walk stands; 0 at the end
    long long listed_ = 0;
    DashaPeriod period_;
};

/// The periods of a dasha for a range-based loop.
class DashaList
{
public:
    /// The dasha must outlive the list.
    DashaList(const Dasha& dasha, const DashaSpan& span) : dasha_(&dasha), span_(span)
    {}
    DashaList(Dasha&&, const DashaSpan&) = delete;

    [[nodiscard]] DashaWalk begin() const
    {
        return {*dasha_, span_};
    }
    [[nodiscard]] std::default_sentinel_t end() const
    {
        return std::default_sentinel;
    }

private:
    const Dasha* dasha_;
    DashaSpan span_;
};

} // namespace kestrav::timing
