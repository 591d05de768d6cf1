// The moments at which a continuous quantity reaches a value, and those at which it turns.
#pragma once

#include "timing/FunctionRef.h"

#include <optional>
#include <vector>

namespace kestrav::timing
{

/// The quantity: its value at a time in days, of any origin. It may jump by whole multiples of its
/// wrap, as a longitude does at 360 degrees, and is continuous otherwise.
using Curve = FunctionRef<double(double)>;

/// How a curve is walked.
struct CurveShape
{
    /// The modulus of the values; 0 for values that do not wrap.
    double wrap = 360.0;

    /// Days between two samples. In one step the value changes by less than half the wrap, and in
    /// any three steps on end the curve turns at most once. Within these bounds nothing is missed,
    /// whatever the curve does between two samples: neither two crossings around a station nor
    /// several values that are crossed in one step.
    double step = 1.0;

    /// Whether the curve never turns, which spares the search for stations.
    bool monotone = false;

    /// Days to which a moment is found.
    double tolerance = 1e-6;
};

/// Days from `from` to `to`; when `to` lies before `from` there is nothing in it.
struct Span
{
    double from = 0.0;
    double to = 0.0;
};

/// The values that are looked for: `first` and every further one at a distance of `spacing`. The
/// spacing divides the wrap; 0 means that only `first` is looked for.
struct Levels
{
    double first = 0.0;
    double spacing = 0.0;
};

/// The curve reaches a level.
struct Crossing
{
    double day = 0.0;
    /// Which one: the value is first + level x spacing. Counted from 0 to wrap/spacing - 1 when the
    /// values wrap.
    int level = 0;
    /// Whether the curve comes from below. Then the level has just been reached; else it is just
    /// being left downwards.
    bool rising = true;
};

/// The curve turns.
struct TurningPoint
{
    double day = 0.0;
    double value = 0.0;
    bool highest = true; ///< a maximum; else a minimum
};

/// Calls `visit` for every crossing in order of time until it returns false; returns whether it
/// never did. A rising crossing at `from` and a falling one at `to` belong to the spans before and
/// after, so spans laid end to end find every crossing exactly once. A curve that touches a level
/// from below without passing it gives a rising and a falling crossing of nearly the same moment;
/// one that touches it from above gives none.
/// A step or a span that is not finite, or a step that is not above 0, finds nothing, nor does a
/// stretch where the curve is no number.
bool forEachCrossing(Curve curve, const CurveShape& shape, Span span, Levels levels,
                     FunctionRef<bool(const Crossing&)> visit);

/// All crossings of a span.
[[nodiscard]] std::vector<Crossing> crossingsIn(Curve curve, const CurveShape& shape, Span span,
                                                Levels levels);

/// The first crossing of a span.
[[nodiscard]] std::optional<Crossing> firstCrossing(Curve curve, const CurveShape& shape, Span span,
                                                    Levels levels);

/// The last crossing of a span, searched backwards from its end.
[[nodiscard]] std::optional<Crossing> lastCrossing(Curve curve, const CurveShape& shape, Span span,
                                                   Levels levels);

/// The moments in a span at which the curve turns, in order of time: stations. A moment is where
/// the difference of the values a thousandth of a step to both sides vanishes.
[[nodiscard]] std::vector<TurningPoint> turningPointsIn(Curve curve, const CurveShape& shape,
                                                        Span span);

/// The zero of a continuous function between two days at which its values have opposite signs (or
/// one of them is zero), within the tolerance; the end with the smaller value when they have not.
[[nodiscard]] double zeroBetween(Curve function, double a, double b, double tolerance);

} // namespace kestrav::timing
