// The settings of the program: one struct, and one table of name, range, default and meaning that
// the file reader, the dialogs, the command line and the documentation share.
#pragma once

#include "core/AyanamsaTable.h"
#include "core/DisplayFlags.h"
#include "core/Result.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace kestrav::core
{

struct Settings
{
    // Names and display.
    int displayFlags = int(kEnglishNames);
    bool monthFirst = false;
    bool twelveHourClock = false;

    // Time and sky.
    bool deltaTOn = true;
    int daylightSavingHours = 1;
    bool preciseMoon = true;
    bool magnitudes = false;
    int ayanamsaRow = 1;
    int houseSystem = 0;

    // Divisional charts and dignities.
    int horaMethod = 0;
    int shodashamshaVariant = 0;
    int rudramshaVariant = 0;
    int nodeDignityScheme = 0;
    bool exaltedCountsAsOwn = false;
    bool arudhasInVargas = true;
    int sandhiMinutes = 2;
    bool vargaCompoundRelationships = true;
    bool naturalRelationshipsOnly = false;
    bool directCombustionOrbsOnly = false;
    int charaKarakas = 7;
    bool coLords = false;

    // Dashas.
    int dashaSystem = 0;
    int dashaStartPoint = 2;
    int dashaTotalLength = 0;
    int nakshatraFraction = 0;
    int dashaLevels = 2;
    int dashaYearLength = 2;
    double customYearDays = 365.25;

    // Transits.
    int nodeOption = 0;
    int nodeAspectOption = 0;
    bool allPasses = true;

    // Special points.
    bool upagrahaAtMiddle = false;
    int saham2 = 25;
    int saham3 = 14;

    // Sub-choices of dashas.
    int dashaSubPeriodStart = 0;
    bool charaOwnSignLast = true;
    bool charaExaltationYears = false;
    bool dwisaptatiLordInAscendant = false;

    // Places.
    int atlasVersion = 0;
    std::string atlasPath = {}; ///< UTF-8; empty means no atlas

    // Diagrams.
    int diagramStyle = 0;
    int diagramDegrees = 1;
    int diagramLabels = 1;
    int diagramNameLetters = 2;
    bool diagramMarks = true;
    bool diagramArudhas = false;
    bool diagramUpagrahas = false;
    bool diagramLagnas = false;
    bool diagramOuterPlanets = false;
    int circleBounds = 0;
    bool navamshaRing = false;

    // The window.
    int colourScheme = 0;
    int fontPercent = 100;
    bool quickTips = true;
    bool restoreSession = true;
    bool wizardDone = false;

    // Confirmations, as the Confirm menu switches them.
    bool confirmShortYear = true;
    bool confirmNowRecord = true;
    bool confirmDelete = true;
    bool confirmGroups = true;
    bool confirmLeave = true;
    bool confirmRefresh = true;
    bool warnAtlasValues = true;

    // The place of the Now chart and of transits.
    std::string nowCity = {};     ///< UTF-8; empty while no place was chosen
    std::string nowCountry = {};  ///< UTF-8
    double nowLongitude = 0.0;    ///< degrees, east positive
    double nowLatitude = 0.0;     ///< degrees
    double nowZone = 0.0;         ///< hours east of Greenwich
    std::string nowZoneName = {}; ///< of the zone table; empty where only nowZone is known

    /// The editable definitions from which ayanamsaRow chooses.
    AyanamsaTable ayanamsaTable = factoryAyanamsaTable();

    bool operator==(const Settings&) const = default;
};

/// Where a setting lives in the struct.
using SettingField =
    std::variant<bool Settings::*, int Settings::*, double Settings::*, std::string Settings::*>;

/// One row of the settings table.
struct SettingInfo
{
    std::string_view name;
    SettingField field;
    double lowest;
    double highest; ///< of a text its greatest length in bytes
    std::string_view meaning;
    /// Names of the values from `lowest` on, separated by '|'; empty when they are plain numbers.
    std::string_view choices = {};
};

/// Every setting in the order of the settings file. New settings are added at the end only.
[[nodiscard]] std::span<const SettingInfo> settingsTable();

/// The row of a name, or null. Names are compared exactly.
[[nodiscard]] const SettingInfo* findSetting(std::string_view name);

/// Whether a setting is a text, not a number or a switch.
[[nodiscard]] bool settingIsText(const SettingInfo& info);

/// The value as a number; false and true are 0 and 1, a text has the value 0.
[[nodiscard]] double settingValue(const Settings& settings, const SettingInfo& info);

/// Stores the value after clamping it into the range of the setting. A value that is no number
/// leaves the setting as it is, and so does any value for a text.
void storeSetting(Settings& settings, const SettingInfo& info, double value);

/// Stores a text, cut to its greatest length without splitting a character and without control
/// characters. Other settings stay as they are.
void storeSettingText(Settings& settings, const SettingInfo& info, std::string_view text);

/// Gives a setting the value that it has in other settings.
void copySetting(Settings& settings, const Settings& from, const SettingInfo& info);

/// Value as text: "true" or "false", a number, or the text itself.
[[nodiscard]] std::string settingText(const Settings& settings, const SettingInfo& info);

/// The name of a value among the choices of the setting; empty when it has none.
[[nodiscard]] std::string_view choiceName(const SettingInfo& info, int value);

/// Sets one setting from text: a number in its range, one of its choices (without regard to case),
/// or for a switch true, false, on, off, yes or no. Nothing changes when it fails.
[[nodiscard]] Result<void> setSetting(Settings& settings, std::string_view name,
                                      std::string_view text);

} // namespace kestrav::core
