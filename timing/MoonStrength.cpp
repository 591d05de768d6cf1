#include "timing/MoonStrength.h"

#include "core/Angles.h"
#include "core/numeric.h"
#include "timing/PanchangaNames.h"

namespace kestrav::timing
{

TaraBala taraBala(double nakshatraPosition, double birthNakshatraPosition)
{
    const int d =
        core::ModFrom(kNakshatras, 0,
                      core::truncated(nakshatraPosition) - core::truncated(birthNakshatraPosition));
    const int r = d % 9;
    int score = 1;
    if (d == 0) {
        score = 0;
    } else if (r == 2 || r == 4 || r == 6) {
        score = -1;
    }
    return {score, taraBalaText(score)};
}

int chandraBala(int sign, int birthSign)
{
    switch (core::ModFrom(12, 0, sign - birthSign) + 1) {
    case 1:
    case 3:
    case 6:
    case 7:
    case 10:
    case 11:
        return 1;
    case 4:
    case 8:
    case 12:
        return -1;
    default:
        return 0;
    }
}

} // namespace kestrav::timing
