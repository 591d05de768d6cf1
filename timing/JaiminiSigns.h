// The signs of a chart as the dashas of signs weigh them: lords, years and strength.
#pragma once

#include "analysis/SignStrength.h"
#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::timing
{

/// Whether the sign 1 to 12 is odd-footed: 1 2 3 and 7 8 9.
[[nodiscard]] bool oddFooted(int sign);

/// The rashi of one chart, whose points 0 to 9 must be there.
class JaiminiSigns
{
public:
    JaiminiSigns(const core::Chart& chart, const core::Settings& settings);

    [[nodiscard]] const analysis::SignView& view() const
    {
        return view_;
    }

    /// The sign of a point 0 to 9.
    [[nodiscard]] int signOf(int point) const;

    /// The lord of a sign, with the nodes as co-lords of Scorpio and Aquarius.
    [[nodiscard]] int lordOf(int sign) const;

    /// Years 0 to 13 of a sign: the signs from it to that in which its lord stands, forward for
    /// odd-footed signs, 12 in its own; with `exaltation` a year more for an exalted lord and one
    /// less for a debilitated one.
    [[nodiscard]] double years(int sign, bool exaltation) const;

    /// The stronger of two signs; `first` when nothing decides.
    [[nodiscard]] int stronger(int first, int second) const;

    /// The stronger of a sign and its seventh.
    [[nodiscard]] int strongerOfBoth(int sign) const;

private:
    [[nodiscard]] double yearsUnder(int sign, int lord, bool exaltation) const;
    [[nodiscard]] analysis::CoLordRule yearsRule() const;

    analysis::SignView view_;
};

} // namespace kestrav::timing
