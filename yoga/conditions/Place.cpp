#include "yoga/conditions/Place.h"

#include "analysis/Arudhas.h"
#include "analysis/DayParts.h"
#include "analysis/DignityTables.h"
#include "analysis/NakshatraLords.h"
#include "analysis/SignStrength.h"
#include "core/Angles.h"

namespace kestrav::yoga
{

namespace
{

using core::norm12;

constexpr Place kNowhere = {};

int runningLord(Frame& frame, int base)
{
    if (!frame.isWhole() || !frame.chart().hasMoment) {
        return -1;
    }
    const core::Chart& chart = frame.chart();
    // The planets of the weekdays are those of the point index.
    return base == kWeekdayLord ? chart.weekday : analysis::runningHoraLord(chart).value_or(-1);
}

Place basePlace(int base, Frame& frame)
{
    if (base < core::kPointCount) {
        return {&frame, base, 0};
    }
    const int planet = base >= kWeekdayLord
                           ? runningLord(frame, base)
                           : (frame.exists() ? frame.karaka(base - kKarakaBase) : 0);
    return planet > 0 ? Place{&frame, planet, 0} : kNowhere;
}

// The planet exalted in a sign; of the nodes none is.
int exaltedIn(int sign)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (analysis::exaltationSign(planet, 0) == sign) {
            return planet;
        }
    }
    return 0;
}

Place planetPlace(const Place& from, int planet)
{
    return planet > 0 ? Place{from.frame, planet, 0} : kNowhere;
}

Place arudhaOf(const Place& from, int varga)
{
    Frame& frame = *from.frame;
    const int planet = from.planet();
    const int own = planet > 0 ? from.sign(varga) : 0;
    if (own == 0) {
        return kNowhere;
    }
    const analysis::SignView view = analysis::signView(frame.chart(varga), varga, frame.settings());
    const int arudha = analysis::arudhaOfPlanet(view, planet);
    return arudha == 0 ? kNowhere : Place{&frame, planet, norm12(arudha - own) % 12};
}

Place stepFrom(const Place& from, int step, int varga, Frame& native, Frame& second)
{
    if (step == kSecondChart) {
        return {from.frame == &native ? &second : &native, from.point, from.shift};
    }
    if (step >= kPlaceOfHouse2 && step < kArudhaStep) {
        return {from.frame, from.point, (from.shift + step - kPlaceOfHouse2 + 1) % 12};
    }
    if (step == kArudhaStep) {
        return arudhaOf(from, varga);
    }
    const int sign = from.sign(varga);
    if (sign == 0) {
        return kNowhere;
    }
    if (step <= 12) {
        return planetPlace(from, analysis::signLord(norm12(sign + step - 1)));
    }
    switch (step) {
    case kDispositor:
        return planetPlace(from, analysis::signLord(sign));
    case kNakshatraStep: {
        const double longitude = from.longitude(varga);
        return longitude < 0.0 ? kNowhere
                               : planetPlace(from, analysis::nakshatraLord(longitude * 0.075));
    }
    case kNavamshaLord: {
        const int navamsha = from.sign(core::kNavamsha);
        return navamsha == 0 ? kNowhere : planetPlace(from, analysis::signLord(navamsha));
    }
    case kExaltationLord: {
        const int planet = from.planet();
        const int exaltation = planet >= core::kSun && planet <= core::kSaturn
                                   ? analysis::exaltationSign(planet, 0)
                                   : 0;
        return exaltation == 0 ? kNowhere : planetPlace(from, analysis::signLord(exaltation));
    }
    case kExaltedHere:
        return planetPlace(from, exaltedIn(sign));
    default:
        return from;
    }
}

} // namespace

int Place::sign(int varga) const
{
    const int own = point < 0 ? 0 : frame->sign(point, varga);
    if (own == 0) {
        return 0;
    }
    return own + shift > 12 ? own + shift - 12 : own + shift;
}

double Place::longitude(int varga) const
{
    const double own = point < 0 ? -1.0 : frame->longitude(point, varga);
    return own < 0.0 ? own : core::Normalize360(own + 30.0 * shift);
}

int Place::planet() const
{
    return shift == 0 && point >= core::kSun && point <= core::kKetu ? point : 0;
}

Place placeOf(int code, Frame& native, Frame& second, int varga)
{
    Place place = basePlace(pointBase(code), native);
    // All that stands behind the last "R." of the text is found in the rashi.
    int inRashi = 0;
    for (int i = 0; i < kMaxPointSteps; ++i) {
        if (pointStep(code, i) == kInRashi) {
            inRashi = i;
        }
    }
    for (int i = 0; i < kMaxPointSteps && place.point >= 0; ++i) {
        const int step = pointStep(code, i);
        if (step == kNoStep) {
            break;
        }
        place = stepFrom(place, step, i < inRashi ? int(core::kRashi) : varga, native, second);
    }
    return place;
}

} // namespace kestrav::yoga
