#include "app/desktop/options/OptionNotices.h"

#include "app/present/DiagramOptions.h"
#include "app/present/TextValues.h"
#include "astro/Houses.h"
#include "core/Points.h"
#include "data/DatabaseMessages.h"
#include "timing/YearLength.h"

namespace kestrav::desktop
{

namespace
{

using astro::HouseSystem;

// A circle whose houses are whole signs is the North Indian diagram bent round.
bool kundaliCircleUnderKp(const core::Settings& settings)
{
    return settings.houseSystem == int(HouseSystem::PlacidusKp) &&
           settings.circleBounds == int(present::CircleBounds::Signs);
}

} // namespace

bool usesMidheaven(int houseSystem)
{
    return houseSystem == int(HouseSystem::SriPati) ||
           houseSystem == int(HouseSystem::PlacidusVedic) ||
           houseSystem == int(HouseSystem::PlacidusKp);
}

std::wstring circleNotice()
{
    return L"Placidus (KP) doesn't work with the Circle Chart with a North Indian kundali "
           L"background.\nIts houses begin at the cusps, not with the signs; the houses of the "
           L"circle are set to automatic.";
}

std::wstring systemsApproachQuestion()
{
    return L"Systems Approach uses the Equal House system. Set the house system to Equal House?\n"
           L"Every house is then counted from the degree of the ascendant.";
}

std::wstring midheavenNotice(const std::wstring& point)
{
    return L"Changing the " + point +
           L" will not work for house systems that use the MC, house system set to Equal.\n"
           L"A changed point does not belong to any moment, so the cusps between ascendant and "
           L"midheaven cannot be found.";
}

bool leaveMidheavenHouses(core::Settings& settings, const ChangedPoints& changed,
                          core::Messages& messages)
{
    const bool ascendant = changed.contains(core::kAscendant);
    if (!usesMidheaven(settings.houseSystem) ||
        (!ascendant && !changed.contains(kMidheavenPoint))) {
        return false;
    }
    settings.houseSystem = int(HouseSystem::EqualHouse);
    messages.notice(data::kNoticeCaption,
                    midheavenNotice(ascendant ? present::pointLabel(core::kAscendant)
                                              : std::wstring(L"Midheaven")));
    return true;
}

bool leaveKundaliCircle(core::Settings& settings, const core::Settings& before,
                        core::Messages& messages)
{
    if (!kundaliCircleUnderKp(settings) || kundaliCircleUnderKp(before)) {
        return false;
    }
    settings.circleBounds = int(present::CircleBounds::Automatic);
    messages.notice(data::kNoticeCaption, circleNotice());
    return true;
}

void settleOptions(core::Settings& wanted, const core::Settings& before,
                   const ChangedPoints& changed, core::Messages& messages)
{
    leaveMidheavenHouses(wanted, changed, messages);
    leaveKundaliCircle(wanted, before, messages);
    timing::leaveTrueSolarYear(wanted, changed.contains(core::kSun), messages);
}

} // namespace kestrav::desktop
