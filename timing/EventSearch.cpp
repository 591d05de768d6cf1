#include "timing/EventSearch.h"

#include <cmath>
#include <cstdint>

namespace kestrav::timing
{

namespace
{

constexpr double kSlopeFraction = 1e-3; // of a step, to both sides of a moment
constexpr double kMostSteps = 1e9;

// The distance of two values of the curve, the shorter way round.
double difference(double to, double from, double wrap)
{
    return wrap > 0.0 ? std::remainder(to - from, wrap) : to - from;
}

// One value of the curve: as it came, and without the jumps of the wrap.
struct Sample
{
    double day;
    double raw;
    double value;
};

// A stretch without a turning point between its ends.
struct Stretch
{
    Sample begin;
    Sample end;
};

class Walk
{
public:
    Walk(Curve curve, const CurveShape& shape) : curve_(curve), shape_(shape)
    {}

    // Calls `visit` for the stretches of the span in order until it returns false, and `turn` for
    // the turning points between them.
    bool run(Span span, FunctionRef<bool(const Stretch&)> visit,
             FunctionRef<void(const Sample&, bool)> turn) const
    {
        const double wholeSteps = std::ceil((span.to - span.from) / shape_.step);
        if (!(shape_.step > 0.0) || !(wholeSteps >= 1.0) || !(wholeSteps < kMostSteps)) {
            return true;
        }
        const auto steps = std::int64_t(wholeSteps);
        const double step = (span.to - span.from) / wholeSteps;
        const auto dayAt = [&](std::int64_t i) {
            return i == steps ? span.to : span.from + double(i) * step;
        };
        Sample here = first(span.from);
        Sample next = after(here, dayAt(1));
        Sample before = shape_.monotone ? here : after(here, dayAt(-1));
        for (std::int64_t i = 0; i < steps; ++i) {
            const bool last = i + 1 == steps;
            const Sample beyond = shape_.monotone && last ? next : after(next, dayAt(i + 2));
            if (!visitStep(before, here, next, beyond, visit, turn)) {
                return false;
            }
            before = here;
            here = next;
            next = beyond;
        }
        return true;
    }

private:
    [[nodiscard]] Sample first(double day) const
    {
        const double raw = curve_(day);
        return {day, raw, raw};
    }

    [[nodiscard]] Sample after(const Sample& from, double day) const
    {
        const double raw = curve_(day);
        return {day, raw, from.value + difference(raw, from.value, shape_.wrap)};
    }

    // Falls where this is negative. Zero counts as rising, for both stretches that meet there.
    [[nodiscard]] double slope(double day) const
    {
        const double reach = kSlopeFraction * shape_.step;
        return difference(curve_(day + reach), curve_(day - reach), shape_.wrap);
    }

    bool visitStep(const Sample& before, const Sample& here, const Sample& next,
                   const Sample& beyond, FunctionRef<bool(const Stretch&)> visit,
                   FunctionRef<void(const Sample&, bool)> turn) const
    {
        const double change = next.value - here.value;
        const bool mayTurn = !shape_.monotone && ((here.value - before.value) * change <= 0.0 ||
                                                  change * (beyond.value - next.value) <= 0.0);
        const bool rises = mayTurn && slope(here.day) >= 0.0;
        if (!mayTurn || rises == (slope(next.day) >= 0.0)) {
            return visit({here, next});
        }
        const double day = zeroBetween([this](double at) { return slope(at); }, here.day, next.day,
                                       shape_.tolerance);
        const Sample top = after(here, day);
        if (!visit({here, top})) {
            return false;
        }
        turn(top, rises);
        return visit({top, next});
    }

    Curve curve_;
    const CurveShape& shape_;
};

// Numbers the intervals between the levels.
class Ladder
{
public:
    Ladder(const CurveShape& shape, Levels levels)
        : wrap_(shape.wrap), first_(levels.first),
          spacing_(levels.spacing > 0.0 ? levels.spacing : shape.wrap),
          perTurn_(wrap_ > 0.0 ? std::llround(wrap_ / spacing_) : 0)
    {}

    // The number of the last level at or below the value. It follows from the value as the curve
    // gave it, so that two searches that meet in one moment agree about it.
    [[nodiscard]] std::int64_t rung(const Sample& sample) const
    {
        if (!(spacing_ > 0.0)) {
            return sample.raw >= first_ ? 0 : -1;
        }
        const auto inTurn = std::int64_t(std::floor((sample.raw - first_) / spacing_));
        return wrap_ > 0.0 ? inTurn + perTurn_ * std::llround((sample.value - sample.raw) / wrap_)
                           : inTurn;
    }

    [[nodiscard]] double valueOf(std::int64_t rung) const
    {
        return first_ + (spacing_ > 0.0 ? double(rung) * spacing_ : 0.0);
    }

    [[nodiscard]] int levelOf(std::int64_t rung) const
    {
        return int(perTurn_ > 0 ? (rung % perTurn_ + perTurn_) % perTurn_ : rung);
    }

private:
    double wrap_;
    double first_;
    double spacing_;
    std::int64_t perTurn_;
};

} // namespace

double zeroBetween(Curve function, double a, double b, double tolerance)
{
    double valueA = function(a);
    double valueB = function(b);
    if (valueA == 0.0 || valueB == 0.0 || (valueA < 0.0) == (valueB < 0.0)) {
        return std::fabs(valueA) <= std::fabs(valueB) ? a : b;
    }
    // Chandrupatla's method: inverse quadratic interpolation where the three last points allow it,
    // else bisection.
    double part = 0.5;
    while (true) {
        const double day = a + part * (b - a);
        const double value = function(day);
        double c = b;
        double valueC = valueB;
        if ((value < 0.0) == (valueA < 0.0)) {
            c = a;
            valueC = valueA;
        } else {
            b = a;
            valueB = valueA;
        }
        a = day;
        valueA = value;
        const double best = std::fabs(valueA) < std::fabs(valueB) ? a : b;
        const double room = 0.5 * tolerance / std::fabs(b - a);
        if (!(room < 0.5) || valueA == 0.0) {
            return best;
        }
        const double xi = (a - b) / (c - b);
        const double phi = (valueA - valueB) / (valueC - valueB);
        const bool smooth = phi * phi < xi && (1.0 - phi) * (1.0 - phi) < 1.0 - xi;
        part = 0.5;
        if (smooth) {
            part = valueA / (valueB - valueA) * valueC / (valueB - valueC) +
                   (c - a) / (b - a) * valueA / (valueC - valueA) * valueB / (valueC - valueB);
        }
        part = std::fmin(std::fmax(part, room), 1.0 - room);
        if (a + part * (b - a) == a) {
            return best; // the days cannot be told apart any more
        }
    }
}

bool forEachCrossing(Curve curve, const CurveShape& shape, Span span, Levels levels,
                     FunctionRef<bool(const Crossing&)> visit)
{
    const Ladder ladder(shape, levels);
    const auto inStretch = [&](const Stretch& stretch) {
        if (!std::isfinite(stretch.begin.raw) || !std::isfinite(stretch.end.raw)) {
            return true;
        }
        const std::int64_t from = ladder.rung(stretch.begin);
        const std::int64_t to = ladder.rung(stretch.end);
        const bool rising = to > from;
        // Rising, the first level met is the one above; falling, the one that was last passed.
        for (std::int64_t rung = from; rung != to; rung += rising ? 1 : -1) {
            const std::int64_t level = rising ? rung + 1 : rung;
            const double value = ladder.valueOf(level);
            const auto distance = [&](double day) {
                return difference(curve(day), value, shape.wrap);
            };
            const double day =
                zeroBetween(distance, stretch.begin.day, stretch.end.day, shape.tolerance);
            if (!visit({day, ladder.levelOf(level), rising})) {
                return false;
            }
        }
        return true;
    };
    return Walk(curve, shape).run(span, inStretch, [](const Sample&, bool) {});
}

std::vector<Crossing> crossingsIn(Curve curve, const CurveShape& shape, Span span, Levels levels)
{
    std::vector<Crossing> found;
    forEachCrossing(curve, shape, span, levels, [&](const Crossing& crossing) {
        found.push_back(crossing);
        return true;
    });
    return found;
}

std::optional<Crossing> firstCrossing(Curve curve, const CurveShape& shape, Span span,
                                      Levels levels)
{
    std::optional<Crossing> found;
    forEachCrossing(curve, shape, span, levels, [&](const Crossing& crossing) {
        found = crossing;
        return false;
    });
    return found;
}

std::optional<Crossing> lastCrossing(Curve curve, const CurveShape& shape, Span span, Levels levels)
{
    const auto reversed = [&](double day) {
        return curve(-day);
    };
    std::optional<Crossing> found = firstCrossing(reversed, shape, {-span.to, -span.from}, levels);
    if (found) {
        found->day = -found->day;
        found->rising = !found->rising;
    }
    return found;
}

std::vector<TurningPoint> turningPointsIn(Curve curve, const CurveShape& shape, Span span)
{
    std::vector<TurningPoint> found;
    Walk(curve, shape)
        .run(
            span, [](const Stretch&) { return true; },
            [&](const Sample& top, bool highest) {
                found.push_back({top.day, top.raw, highest});
            });
    return found;
}

} // namespace kestrav::timing
