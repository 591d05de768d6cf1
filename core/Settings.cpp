#include "core/Settings.h"

#include "core/Angles.h"
#include "core/FileText.h"
#include "core/NumberText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace kestrav::core
{

namespace
{

using S = Settings;

constexpr std::string_view kHouseSystems =
    "By Rashi|Equal House|Sri Pati|Placidus (Vedic)|Placidus (KP/West)";
constexpr std::string_view kDashaSystems =
    "Vimshottari|Astottari|Shodsottari|Dwadashottari|Panchottari|Shatabdika|Chaturashiti sama|"
    "Dwisaptati sama|Shastihayani|Shat-trimshat sama|Sudarshana Chakra|Tribhagi|Yogini|"
    "Jaimini Chara|Kala Chakra|Narayana|Su/ShriLgKendradi|LagnKendradi(Rs)|AtmaKendradi(Rs)|Drig|"
    "Shoola|NiryanaShoola|Moola|Tithi Astottari";
constexpr std::string_view kYearLengths =
    "True Solar|Mean Tropical|Mean Sidereal|360 days|354 days|Jovian|Custom";
constexpr std::string_view kSahams =
    "Punya|Vidya|Yashas|Mitra|Mahatmya|Asha|Samartha|Bhratri|Gaurava|Pitri|Rajya|Matri|Putra|Jiva|"
    "Karma|Roga|Kali|Shastra|Bandhu|Mrityu|Paradesha|Artha|Paradara|Vanik|Karyasiddhi|Vivaha|"
    "Santapa|Shraddha|Priti|Jadya|Vyapara|Shatru|Jalapatana|Bandhana|Apamrityu|Labha";
constexpr std::string_view kTotalLengths =
    "Standard|1 year|1/4 year|1/8 yr (1 1/2mth)|1/12yr (1 mth)";

// The order is that of the settings file: it only ever grows at the end.
// clang-format off
constexpr std::array<SettingInfo, 69> kTable = {{
    {"displayFlags", &S::displayFlags, 0, 2147483647,
     "sum of 1 for English instead of Sanskrit names and 64 for glyphs instead of letters"},
    {"ayanamsaRow", &S::ayanamsaRow, 0, 9,
     "row of the ayanamsa table that turns tropical into sidereal longitudes"},
    {"houseSystem", &S::houseSystem, 0, 4, "how the twelve house cusps are computed", kHouseSystems},
    {"deltaTOn", &S::deltaTOn, 0, 1,
     "whether Delta T is added to Universal Time for the positions"},
    {"preciseMoon", &S::preciseMoon, 0, 1,
     "whether the Moon comes from the precise lunar theory instead of the short series"},
    {"magnitudes", &S::magnitudes, 0, 1,
     "whether phase and visual magnitude of the planets are computed"},
    {"daylightSavingHours", &S::daylightSavingHours, 0, 3,
     "whole hours that saving time adds where it is in force"},
    {"monthFirst", &S::monthFirst, 0, 1, "whether dates are written month before day"},
    {"twelveHourClock", &S::twelveHourClock, 0, 1, "whether clock times are written with am and pm"},
    {"horaMethod", &S::horaMethod, 0, 3, "which of the four rules makes the Hora chart"},
    {"shodashamshaVariant", &S::shodashamshaVariant, 0, 1,
     "1 counts the Shodashamsha backwards in even signs"},
    {"rudramshaVariant", &S::rudramshaVariant, 0, 1, "1 counts the Rudramsha backwards from Aries"},
    {"nodeDignityScheme", &S::nodeDignityScheme, 0, 2,
     "which exaltation, debilitation and moolatrikona signs Rahu and Ketu have"},
    {"exaltedCountsAsOwn", &S::exaltedCountsAsOwn, 0, 1,
     "whether exaltation counts as own sign in the vimshopaka"},
    {"arudhasInVargas", &S::arudhasInVargas, 0, 1,
     "whether arudhas are computed anew inside each divisional chart"},
    {"sandhiMinutes", &S::sandhiMinutes, 0, 60,
     "arc minutes from a boundary within which a placement is flagged"},
    {"vargaCompoundRelationships", &S::vargaCompoundRelationships, 0, 1,
     "whether relationships are compounded from the positions in each divisional chart"},
    {"naturalRelationshipsOnly", &S::naturalRelationshipsOnly, 0, 1,
     "whether temporary relationships are left out"},
    {"directCombustionOrbsOnly", &S::directCombustionOrbsOnly, 0, 1,
     "whether retrograde planets have the combustion orbs of direct ones"},
    {"charaKarakas", &S::charaKarakas, 7, 8, "number of chara karakas; 8 includes Rahu"},
    {"coLords", &S::coLords, 0, 1,
     "whether Ketu and Rahu share Scorpio and Aquarius when arudhas are computed"},
    {"dashaSystem", &S::dashaSystem, 0, 23, "which dasha system is shown", kDashaSystems},
    {"dashaStartPoint", &S::dashaStartPoint, 0, 13,
     "point from which the first dasha is found: 0 to 9 a point, 10 Kshema, 11 Utpanna, 12 Sadha, "
     "13 Adhana"},
    {"dashaTotalLength", &S::dashaTotalLength, 0, 4, "length of the whole dasha cycle",
     kTotalLengths},
    {"nakshatraFraction", &S::nakshatraFraction, 0, 1,
     "0 takes the elapsed part of the birth nakshatra by longitude, 1 by time"},
    {"dashaLevels", &S::dashaLevels, 1, 5, "number of levels of dasha periods"},
    {"dashaYearLength", &S::dashaYearLength, 0, 6, "length of a dasha year", kYearLengths},
    {"customYearDays", &S::customYearDays, 200, 500, "days of the custom dasha year"},
    {"nodeOption", &S::nodeOption, 0, 2,
     "1 leaves transits of Ketu out of the listings, 2 those of Rahu and Ketu"},
    {"nodeAspectOption", &S::nodeAspectOption, 0, 2,
     "1 gives the nodes the second house as aspect besides the others, 2 the twelfth"},
    {"allPasses", &S::allPasses, 0, 1,
     "whether transit listings take every exact pass from the event search"},
    {"upagrahaAtMiddle", &S::upagrahaAtMiddle, 0, 1,
     "whether Kaala to Gulika stand at the middle of their part of the day instead of its start"},
    {"saham2", &S::saham2, 0, 35, "saham that point 61 shows", kSahams},
    {"saham3", &S::saham3, 0, 35, "saham that point 62 shows", kSahams},
    {"dashaSubPeriodStart", &S::dashaSubPeriodStart, 0, 2,
     "sign from which the sub-periods of sign dashas are counted",
     "own sign|stronger of it and its 7th|sign of its lord"},
    {"charaOwnSignLast", &S::charaOwnSignLast, 0, 1,
     "whether the parent's sign closes its sub-periods in the Jaimini Chara dasha"},
    {"charaExaltationYears", &S::charaExaltationYears, 0, 1,
     "whether an exalted or debilitated lord adds or takes a year in the Jaimini Chara dasha"},
    {"dwisaptatiLordInAscendant", &S::dwisaptatiLordInAscendant, 0, 1,
     "whether Dwisaptati sama also applies with the lord of the ascendant in it"},
    {"atlasVersion", &S::atlasVersion, 0, 1, "which set of files the outside atlas has",
     "plain|indexed"},
    {"atlasPath", &S::atlasPath, 0, 255, "folder of the outside atlas; empty for none"},
    {"diagramStyle", &S::diagramStyle, 0, 3, "style of the chart diagrams in the window",
     "North Indian|South Indian|East Indian|Circle"},
    {"diagramDegrees", &S::diagramDegrees, 0, 2, "how much of the degree in sign diagrams show",
     "none|degrees|degrees and minutes"},
    {"diagramLabels", &S::diagramLabels, 0, 2, "what the cells of diagrams are numbered by",
     "none|signs|houses"},
    {"diagramNameLetters", &S::diagramNameLetters, 2, 3, "letters of a planet's name in diagrams"},
    {"diagramMarks", &S::diagramMarks, 0, 1,
     "whether diagrams mark retrograde, combust, exalted and debilitated planets"},
    {"diagramArudhas", &S::diagramArudhas, 0, 1, "whether diagrams show the arudha padas"},
    {"diagramUpagrahas", &S::diagramUpagrahas, 0, 1, "whether diagrams show the upagrahas"},
    {"diagramLagnas", &S::diagramLagnas, 0, 1, "whether diagrams show the special lagnas"},
    {"diagramOuterPlanets", &S::diagramOuterPlanets, 0, 1,
     "whether diagrams show Uranus, Neptune and Pluto"},
    {"circleBounds", &S::circleBounds, 0, 4, "where the houses of circle charts begin",
     "automatic|signs|equal|cusps|sandhis"},
    {"navamshaRing", &S::navamshaRing, 0, 1,
     "whether circle charts of the rashi have a ring of navamshas"},
    {"colourScheme", &S::colourScheme, 0, 2, "colours of the window", "system|light|dark"},
    {"fontPercent", &S::fontPercent, 50, 300, "size of the window's letters in percent"},
    {"quickTips", &S::quickTips, 0, 1, "whether a quick tip is shown at the start"},
    {"restoreSession", &S::restoreSession, 0, 1,
     "whether the last database, chart and pages are opened at the start"},
    {"wizardDone", &S::wizardDone, 0, 1, "whether the option wizard of the first start was seen"},
    {"confirmShortYear", &S::confirmShortYear, 0, 1,
     "whether a year of fewer than four digits is asked about"},
    {"confirmNowRecord", &S::confirmNowRecord, 0, 1,
     "whether saving the chart of the moment is asked about"},
    {"confirmDelete", &S::confirmDelete, 0, 1, "whether deleting a chart is asked about"},
    {"confirmGroups", &S::confirmGroups, 0, 1, "whether a change of group tags is asked about"},
    {"confirmLeave", &S::confirmLeave, 0, 1, "whether leaving the program is asked about"},
    {"confirmRefresh", &S::confirmRefresh, 0, 1,
     "whether refreshing the research database is asked about"},
    {"warnAtlasValues", &S::warnAtlasValues, 0, 1,
     "whether values that were looked up come with the atlas warning"},
    {"nowCity", &S::nowCity, 0, 50, "city of the Now chart and of transits"},
    {"nowCountry", &S::nowCountry, 0, 40, "country or state of that city"},
    {"nowLongitude", &S::nowLongitude, -180, 180, "its longitude in degrees, east positive"},
    {"nowLatitude", &S::nowLatitude, -90, 90, "its latitude in degrees, north positive"},
    {"nowZone", &S::nowZone, -16, 16, "its time zone in hours, east positive"},
    {"nowZoneName", &S::nowZoneName, 0, 60, "name of its time zone; empty for fixed hours"},
}};
// clang-format on

bool isSwitch(const SettingInfo& info)
{
    return std::holds_alternative<bool S::*>(info.field);
}

bool isControl(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
}

// The C library's conversion depends on the locale: a Turkish one does not pair I with i.
char lowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool sameWithoutCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

std::optional<double> switchValue(std::string_view text)
{
    for (const std::string_view yes : {"true", "on", "yes"}) {
        if (sameWithoutCase(text, yes)) {
            return 1.0;
        }
    }
    for (const std::string_view no : {"false", "off", "no"}) {
        if (sameWithoutCase(text, no)) {
            return 0.0;
        }
    }
    return std::nullopt;
}

std::optional<double> choiceValue(const SettingInfo& info, std::string_view text)
{
    for (int value = int(info.lowest); value <= int(info.highest); ++value) {
        if (!info.choices.empty() && sameWithoutCase(choiceName(info, value), text)) {
            return value;
        }
    }
    return std::nullopt;
}

std::string allowedText(const SettingInfo& info)
{
    if (isSwitch(info)) {
        return "true or false";
    }
    std::string text =
        "a number from " + shortestNumber(info.lowest) + " to " + shortestNumber(info.highest);
    if (!info.choices.empty()) {
        text += " or one of " + std::string(info.choices);
        std::replace(text.begin(), text.end(), '|', ',');
    }
    return text;
}

} // namespace

std::span<const SettingInfo> settingsTable()
{
    return kTable;
}

const SettingInfo* findSetting(std::string_view name)
{
    const auto found = std::find_if(kTable.begin(), kTable.end(),
                                    [&](const SettingInfo& info) { return info.name == name; });
    return found == kTable.end() ? nullptr : &*found;
}

bool settingIsText(const SettingInfo& info)
{
    return std::holds_alternative<std::string S::*>(info.field);
}

double settingValue(const Settings& settings, const SettingInfo& info)
{
    if (const auto* field = std::get_if<bool S::*>(&info.field)) {
        return settings.**field ? 1.0 : 0.0;
    }
    if (const auto* number = std::get_if<int S::*>(&info.field)) {
        return settings.**number;
    }
    const auto* real = std::get_if<double S::*>(&info.field);
    return real != nullptr ? settings.**real : 0.0;
}

void storeSetting(Settings& settings, const SettingInfo& info, double value)
{
    if (std::isnan(value)) {
        return;
    }
    const double kept = ClampRange(info.lowest, info.highest, value);
    if (const auto* field = std::get_if<bool S::*>(&info.field)) {
        settings.** field = kept != 0.0;
    } else if (const auto* number = std::get_if<int S::*>(&info.field)) {
        settings.** number = int(kept);
    } else if (const auto* real = std::get_if<double S::*>(&info.field)) {
        settings.** real = kept;
    }
}

void storeSettingText(Settings& settings, const SettingInfo& info, std::string_view text)
{
    if (const auto* field = std::get_if<std::string S::*>(&info.field)) {
        std::string& stored = settings.**field;
        stored = cutUtf8(text, std::size_t(info.highest));
        std::erase_if(stored, isControl);
    }
}

void copySetting(Settings& settings, const Settings& from, const SettingInfo& info)
{
    std::visit([&](auto field) { settings.*field = from.*field; }, info.field);
}

std::string settingText(const Settings& settings, const SettingInfo& info)
{
    if (const auto* field = std::get_if<std::string S::*>(&info.field)) {
        return settings.**field;
    }
    const double value = settingValue(settings, info);
    if (isSwitch(info)) {
        return value != 0.0 ? "true" : "false";
    }
    return shortestNumber(value);
}

std::string_view choiceName(const SettingInfo& info, int value)
{
    std::string_view rest = value < info.lowest ? std::string_view{} : info.choices;
    for (int skip = value - int(info.lowest); skip > 0; --skip) {
        const std::size_t end = rest.find('|');
        rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
    }
    return rest.substr(0, rest.find('|'));
}

Result<void> setSetting(Settings& settings, std::string_view name, std::string_view text)
{
    const SettingInfo* const info = findSetting(name);
    if (info == nullptr) {
        return Error{"there is no setting '" + std::string(cutUtf8(name, 60)) + "'"};
    }
    if (settingIsText(*info)) {
        if (text.size() > std::size_t(info->highest) || !fromUtf8(text) ||
            std::any_of(text.begin(), text.end(), isControl)) {
            return Error{"setting " + std::string(name) + ": the text is longer than " +
                         shortestNumber(info->highest) +
                         " bytes or holds characters that are not allowed"};
        }
        storeSettingText(settings, *info, text);
        return {};
    }
    std::optional<double> value = parseNumber(text);
    if (!value) {
        value = isSwitch(*info) ? switchValue(text) : choiceValue(*info, text);
    }
    const bool whole =
        std::holds_alternative<double S::*>(info->field) || (value && *value == std::floor(*value));
    if (!value || !whole || *value < info->lowest || *value > info->highest) {
        return Error{"setting " + std::string(name) + ": '" + std::string(cutUtf8(text, 60)) +
                     "' is not allowed; write " + allowedText(*info)};
    }
    storeSetting(settings, *info, *value);
    return {};
}

} // namespace kestrav::core
