#include "analysis/NakshatraLords.h"

#include "core/Angles.h"
#include "core/Points.h"

#include <cassert>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace kestrav::analysis
{

namespace
{

constexpr double kNakshatras = 27.0;
constexpr double kPadas = 4.0;

static_assert(std::accumulate(kVimshottariYears.begin(), kVimshottariYears.end(), 0.0) == 120.0);
static_assert(std::accumulate(kNakshatraLords.begin(), kNakshatraLords.end(), 0) == 45);

} // namespace

int nakshatraOf(double nakshatraPosition)
{
    return int(core::NormalizeMod(kNakshatras, nakshatraPosition));
}

double nakshatraFraction(double nakshatraPosition)
{
    return nakshatraPosition - std::floor(nakshatraPosition);
}

int padaOf(double nakshatraPosition)
{
    return int(nakshatraFraction(nakshatraPosition) * kPadas) + 1;
}

int nakshatraLord(double nakshatraPosition)
{
    return core::at(kNakshatraLords, nakshatraOf(nakshatraPosition) % 9);
}

double vimshottariYears(int lord)
{
    for (std::size_t i = 0; i < kNakshatraLords.size(); ++i) {
        if (kNakshatraLords[i] == lord) {
            return kVimshottariYears[i];
        }
    }
    assert(false);
    return 0.0;
}

} // namespace kestrav::analysis
