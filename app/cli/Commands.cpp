#include "app/cli/Commands.h"

#include "app/cli/AnalysisCommands.h"
#include "app/cli/AyanamsaCommands.h"
#include "app/cli/ChartCommands.h"
#include "app/cli/DashaCommand.h"
#include "app/cli/MatchCommand.h"
#include "app/cli/PanchangaCommand.h"
#include "app/cli/SettingsCommands.h"
#include "app/cli/TransitCommand.h"

#include <array>

namespace kestrav::cli
{

std::span<const Command* const> allCommands()
{
    static const ChartCommand chart;
    static const PositionsCommand positions;
    static const HousesCommand houses;
    static const SunCommand sun;
    static const VargasCommand vargas;
    static const DignitiesCommand dignities;
    static const StrengthsCommand strengths;
    static const AshtakavargaCommand ashtakavarga;
    static const PointsCommand points;
    static const MatchCommand match;
    static const DashaCommand dasha;
    static const PanchangaCommand panchanga;
    static const TransitsCommand transits;
    static const ListSettingsCommand listSettings;
    static const GetSettingCommand getSetting;
    static const SetSettingCommand setSetting;
    static const ResetSettingsCommand resetSettings;
    static const ListAyanamsasCommand listAyanamsas;
    static const SetAyanamsaCommand setAyanamsa;
    static const ResetAyanamsasCommand resetAyanamsas;
    static const auto kAll = std::to_array<const Command*>({
        &chart,
        &positions,
        &houses,
        &sun,
        &vargas,
        &dignities,
        &strengths,
        &ashtakavarga,
        &points,
        &match,
        &dasha,
        &panchanga,
        &transits,
        &listSettings,
        &getSetting,
        &setSetting,
        &resetSettings,
        &listAyanamsas,
        &setAyanamsa,
        &resetAyanamsas,
    });
    return kAll;
}

std::span<const GroupInfo> commandGroups()
{
    static constexpr auto kGroups = std::to_array<GroupInfo>({
        {"settings", "Show and change the stored settings"},
        {"settings ayanamsa", "Show and change the table of ayanamsas"},
    });
    return kGroups;
}

} // namespace kestrav::cli
