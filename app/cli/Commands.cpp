#include "app/cli/Commands.h"

#include "app/cli/AnalysisCommands.h"
#include "app/cli/AtlasCommands.h"
#include "app/cli/AyanamsaCommands.h"
#include "app/cli/ChartCommands.h"
#include "app/cli/DashaCommand.h"
#include "app/cli/DatabaseEditCommands.h"
#include "app/cli/DatabaseExchangeCommands.h"
#include "app/cli/DatabaseListCommands.h"
#include "app/cli/DatabaseWalkCommands.h"
#include "app/cli/DiagramCommand.h"
#include "app/cli/EclipseCommand.h"
#include "app/cli/EphemerisCommand.h"
#include "app/cli/MatchCommand.h"
#include "app/cli/PanchangaCommand.h"
#include "app/cli/ReportCommand.h"
#include "app/cli/SettingsCommands.h"
#include "app/cli/TransitCommand.h"
#include "app/cli/YogaCommand.h"
#include "app/cli/YogaCommandChart.h"
#include "app/cli/YogaCommandSearch.h"

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
    static const DiagramCommand diagram;
    static const DashaCommand dasha;
    static const PanchangaCommand panchanga;
    static const TransitsCommand transits;
    static const ListChartsCommand listCharts;
    static const SortChartsCommand sortCharts;
    static const ShowChartCommand showChart;
    static const NewDatabaseCommand newDatabase;
    static const AddChartCommand addChart;
    static const UpdateChartCommand updateChart;
    static const DeleteChartCommand deleteChart;
    static const GroupChartsCommand groupCharts;
    static const OrderDatesCommand orderDates;
    static const CheckDatabaseCommand checkDatabase;
    static const RefreshResearchCommand refreshResearch;
    static const MergeDatabaseCommand mergeDatabase;
    static const ImportChartsCommand importCharts;
    static const ExportChartsCommand exportCharts;
    static const BackUpDatabaseCommand backUpDatabase;
    static const RestoreDatabaseCommand restoreDatabase;
    static const FindPlacesCommand findPlaces;
    static const PlaceZoneCommand placeZone;
    static const EphemerisCommand ephemeris;
    static const EclipsesCommand eclipses;
    static const TableCommand table;
    static const ReportCommand report;
    static const ListYogasCommand listYogas;
    static const CheckYogasCommand checkYogas;
    static const FindYogasCommand findYogas;
    static const SearchYogaCommand searchYoga;
    static const ExplainYogaCommand explainYoga;
    static const YogaKindsCommand yogaKinds;
    static const ResearchTableCommand researchTable;
    static const ListSettingsCommand listSettings;
    static const GetSettingCommand getSetting;
    static const SetSettingCommand setSetting;
    static const ResetSettingsCommand resetSettings;
    static const ListAyanamsasCommand listAyanamsas;
    static const SetAyanamsaCommand setAyanamsa;
    static const ResetAyanamsasCommand resetAyanamsas;
    static const auto kAll = std::to_array<const Command*>({
        &chart,           &positions,       &houses,        &sun,
        &vargas,          &dignities,       &strengths,     &ashtakavarga,
        &points,          &match,           &diagram,       &dasha,
        &panchanga,       &transits,        &listCharts,    &sortCharts,
        &showChart,       &newDatabase,     &addChart,      &updateChart,
        &deleteChart,     &groupCharts,     &orderDates,    &checkDatabase,
        &refreshResearch, &mergeDatabase,   &importCharts,  &exportCharts,
        &backUpDatabase,  &restoreDatabase, &findPlaces,    &placeZone,
        &ephemeris,       &eclipses,        &table,         &report,
        &listYogas,       &checkYogas,      &findYogas,     &searchYoga,
        &explainYoga,     &yogaKinds,       &researchTable, &listSettings,
        &getSetting,      &setSetting,      &resetSettings, &listAyanamsas,
        &setAyanamsa,     &resetAyanamsas,
    });
    return kAll;
}

std::span<const GroupInfo> commandGroups()
{
    static constexpr auto kGroups = std::to_array<GroupInfo>({
        {"db", "Keep charts in databases"},
        {"atlas", "Look places and their time zones up"},
        {"yogas", "Find yogas by rules, in charts and in databases"},
        {"settings", "Show and change the stored settings"},
        {"settings ayanamsa", "Show and change the table of ayanamsas"},
    });
    return kGroups;
}

} // namespace kestrav::cli
