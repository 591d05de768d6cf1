#include "timing/JaiminiSigns.h"

#include "analysis/DignityTables.h"
#include "core/Angles.h"

namespace kestrav::timing
{

bool oddFooted(int sign)
{
    return (sign - 1) % 6 < 3;
}

JaiminiSigns::JaiminiSigns(const core::Chart& chart, const core::Settings& settings)
    : view_(analysis::signView(chart, core::kRashi, settings))
{}

int JaiminiSigns::signOf(int point) const
{
    return core::at(view_.sign, point);
}

int JaiminiSigns::lordOf(int sign) const
{
    return analysis::lordOfSign(view_, sign, true, yearsRule());
}

double JaiminiSigns::years(int sign, bool exaltation) const
{
    return yearsUnder(sign, lordOf(sign), exaltation);
}

int JaiminiSigns::stronger(int first, int second) const
{
    return analysis::strongerSign(view_, first, second, yearsRule());
}

int JaiminiSigns::strongerOfBoth(int sign) const
{
    return stronger(sign, core::norm12(sign + 6));
}

double JaiminiSigns::yearsUnder(int sign, int lord, bool exaltation) const
{
    const int place = signOf(lord);
    double years = core::norm12(oddFooted(sign) ? place - sign : sign - place);
    if (exaltation && place == analysis::exaltationSign(lord, view_.nodeScheme)) {
        years += 1.0;
    }
    if (exaltation && place == analysis::debilitationSign(lord, view_.nodeScheme)) {
        years -= 1.0;
    }
    return years;
}

// Of two lords of one sign the one who gives it the longer years; which sign it is, they tell.
analysis::CoLordRule JaiminiSigns::yearsRule() const
{
    return [this](int first, int second) {
        const int sign = first == core::kMars || first == core::kKetu ? 8 : 11;
        const double difference = yearsUnder(sign, first, true) - yearsUnder(sign, second, true);
        return difference > 0.0 ? 1 : difference < 0.0 ? -1 : 0;
    };
}

} // namespace kestrav::timing
