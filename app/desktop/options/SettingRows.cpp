#include "app/desktop/options/SettingRows.h"

#include "app/desktop/shell/Convert.h"
#include "app/present/TextValues.h"
#include "core/Points.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace kestrav::desktop
{

namespace
{

using Page = OptionsPage;

constexpr char kContext[] = "SettingRows";

// The labels are those of the help page that "What is this?" opens.
// clang-format off
constexpr std::array<SettingRow, 69> kRows = {{
    {"ayanamsaRow", Page::Calculation, "Ayanamsa and houses", "Ayanamsa"},
    {"houseSystem", Page::Calculation, "Ayanamsa and houses", "House system"},
    {"deltaTOn", Page::Calculation, "Time and sky", "Delta T"},
    {"preciseMoon", Page::Calculation, "Time and sky", "Precise Moon"},
    {"magnitudes", Page::Calculation, "Time and sky", "Magnitudes and phases"},
    {"daylightSavingHours", Page::Calculation, "Time and sky", "Hours of saving time", "", " h"},
    {"horaMethod", Page::Calculation, "Divisional charts", "Hora",
     "Leo and Cancer|Counted on from Aries|Sign and its 7th|Table of half signs"},
    {"shodashamshaVariant", Page::Calculation, "Divisional charts", "Shodashamsha",
     "Counted on from Aries|Backwards in even signs", "",
     "Which of the two rules makes the Shodashamsha chart"},
    {"rudramshaVariant", Page::Calculation, "Divisional charts", "Rudramsha",
     "Counted on from Aries|Backwards from Aries", "",
     "Which of the two rules makes the Rudramsha chart"},
    {"arudhasInVargas", Page::Calculation, "Divisional charts", "Arudhas in divisional charts"},
    {"sandhiMinutes", Page::Calculation, "Divisional charts", "Near a boundary", "", "'"},
    {"nodeDignityScheme", Page::Calculation, "Dignities and strengths",
     "Dignity of Rahu and Ketu",
     "Taurus and Scorpio|Scorpio for both|Gemini and Sagittarius"},
    {"exaltedCountsAsOwn", Page::Calculation, "Dignities and strengths",
     "Exaltation in the vimshopaka"},
    {"vargaCompoundRelationships", Page::Calculation, "Dignities and strengths",
     "Compound relationships in divisional charts"},
    {"naturalRelationshipsOnly", Page::Calculation, "Dignities and strengths",
     "Natural relationships only"},
    {"directCombustionOrbsOnly", Page::Calculation, "Dignities and strengths",
     "Combustion orbs of retrograde planets"},
    {"charaKarakas", Page::Calculation, "Special points", "Number of chara karakas",
     "7|8, with Rahu"},
    {"coLords", Page::Calculation, "Special points", "Co-lords"},
    {"upagrahaAtMiddle", Page::Calculation, "Special points", "Gulika and its kin at the middle"},
    {"saham2", Page::Calculation, "Special points", "Saham S2"},
    {"saham3", Page::Calculation, "Special points", "Saham S3"},

    {"dashaSystem", Page::Dashas, "Periods", "Dasha system"},
    {"dashaStartPoint", Page::Dashas, "Periods", "Start point", "", "",
     "Point from whose nakshatra the first dasha is found; Kshema, Utpanna, Sadha and Adhana are "
     "counted from the Moon"},
    {"dashaTotalLength", Page::Dashas, "Periods", "Length of the cycle"},
    {"nakshatraFraction", Page::Dashas, "Periods", "Elapsed part of the nakshatra",
     "By longitude|By time", "",
     "How the elapsed part of the birth nakshatra is measured"},
    {"dashaLevels", Page::Dashas, "Periods", "Levels"},
    {"dashaYearLength", Page::Dashas, "Length of the year", "Length of the year"},
    {"customYearDays", Page::Dashas, "Length of the year", "Days of the custom year", "", " days"},
    {"dashaSubPeriodStart", Page::Dashas, "Single systems", "Sub-periods of sign dashas"},
    {"charaOwnSignLast", Page::Dashas, "Single systems", "Chara: own sign last"},
    {"charaExaltationYears", Page::Dashas, "Single systems",
     "Chara: exaltation and debilitation"},
    {"dwisaptatiLordInAscendant", Page::Dashas, "Single systems",
     "Dwisaptati sama with the lord in the ascendant"},

    {"allPasses", Page::Transits, "Listings", "Every pass"},
    {"nodeOption", Page::Transits, "Listings", "Transits of the nodes",
     "Rahu and Ketu are listed|Ketu is left out|Both are left out", "",
     "Whether transits of Rahu and Ketu stand in the listings"},
    {"nodeAspectOption", Page::Transits, "Aspects", "Aspects of the nodes",
     "5th and 9th|2nd, 5th and 9th|5th, 9th and 12th", "",
     "Which houses Rahu and Ketu aspect"},

    {"diagramStyle", Page::Display, "Diagrams", "Style"},
    {"diagramDegrees", Page::Display, "Diagrams", "Degrees"},
    {"diagramLabels", Page::Display, "Diagrams", "Numbers of the cells"},
    {"diagramMarks", Page::Display, "Diagrams", "Marks"},
    {"diagramArudhas", Page::Display, "Points in diagrams", "Arudha padas"},
    {"diagramUpagrahas", Page::Display, "Points in diagrams", "Upagrahas"},
    {"diagramLagnas", Page::Display, "Points in diagrams", "Special lagnas"},
    {"diagramOuterPlanets", Page::Display, "Points in diagrams", "Outer planets"},
    {"circleBounds", Page::Display, "Circle charts", "Houses of the circle"},
    {"navamshaRing", Page::Display, "Circle charts", "Ring of navamshas"},
    {"quickTips", Page::Display, "At the start", "Quick tips"},
    {"wizardDone", Page::Display, "At the start", "Option wizard seen"},

    {"displayFlags", Page::Names, "Names", "Names and glyphs", "", "",
     "English or Sanskrit names, letters or glyphs"},
    {"diagramNameLetters", Page::Names, "Names", "Letters of a planet", "2, such as Jp|3, such as Jup"},
    {"monthFirst", Page::Names, "Dates and clocks", "Month before day"},
    {"twelveHourClock", Page::Names, "Dates and clocks", "Twelve-hour clock"},

    {"restoreSession", Page::Files, "At the start", "Open where you left"},
    {"atlasPath", Page::Files, "Outside atlas", "Folder of the atlas"},
    {"atlasVersion", Page::Files, "Outside atlas", "Version of the atlas"},
    {"nowCity", Page::Files, "Now location", "City"},
    {"nowCountry", Page::Files, "Now location", "Country"},
    {"nowLongitude", Page::Files, "Now location", "Longitude", "", "\u00B0"},
    {"nowLatitude", Page::Files, "Now location", "Latitude", "", "\u00B0"},
    {"nowZone", Page::Files, "Now location", "Zone", "", " h"},
    {"nowZoneName", Page::Files, "Now location", "Name of the zone"},

    {"colourScheme", Page::Colours, "Colours and letters", "Colours"},
    {"fontPercent", Page::Colours, "Colours and letters", "Size of letters", "", " %"},

    {"confirmShortYear", Page::Questions, "Ask before", "Short years"},
    {"confirmNowRecord", Page::Questions, "Ask before", "Now record"},
    {"confirmDelete", Page::Questions, "Ask before", "Deleting"},
    {"confirmGroups", Page::Questions, "Ask before", "Groups"},
    {"confirmLeave", Page::Questions, "Ask before", "Leaving"},
    {"confirmRefresh", Page::Questions, "Ask before", "Refreshing"},
    {"warnAtlasValues", Page::Questions, "Warnings", "Atlas warning"},
}};
// clang-format on

QStringList startPoints()
{
    QStringList names;
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        names += toQt(present::pointLabel(point));
    }
    return names << QStringLiteral("Kshema (4th)") << QStringLiteral("Utpanna (5th)")
                 << QStringLiteral("Sadha (6th)") << QStringLiteral("Adhana (8th)");
}

QString capital(const QString& text)
{
    return text.left(1).toUpper() + text.mid(1);
}

} // namespace

QString optionsPageTitle(OptionsPage page)
{
    static constexpr std::array<const char*, kOptionsPages> kTitles = {
        "Calculation", "Dashas", "Transits", "Display", "Names", "Files", "Colours", "Questions"};
    return QCoreApplication::translate(kContext, kTitles[std::size_t(page)]);
}

std::span<const SettingRow> settingRows()
{
    return kRows;
}

const SettingRow& settingRow(std::string_view name)
{
    return *std::find_if(kRows.begin(), kRows.end(),
                         [&](const SettingRow& row) { return row.name == name; });
}

QString settingLabel(const SettingRow& row)
{
    return QCoreApplication::translate(kContext, row.label);
}

QString settingMeaning(const core::SettingInfo& info)
{
    const char* const own = settingRow(info.name).meaning;
    return *own == '\0' ? capital(toQt(info.meaning)) : QCoreApplication::translate(kContext, own);
}

QStringList settingChoices(const core::SettingInfo& info, const core::Settings& settings)
{
    if (info.name == "ayanamsaRow") {
        QStringList rows;
        for (const core::AyanamsaRow& row : settings.ayanamsaTable) {
            rows += toQt(row.nameText());
        }
        return rows;
    }
    if (info.name == "dashaStartPoint") {
        return startPoints();
    }
    if (!info.choices.empty()) {
        QStringList choices = toQt(info.choices).split(QLatin1Char('|'));
        std::transform(choices.begin(), choices.end(), choices.begin(), capital);
        return choices;
    }
    const char* const own = settingRow(info.name).choices;
    return *own == '\0' ? QStringList()
                        : QCoreApplication::translate(kContext, own).split(QLatin1Char('|'));
}

QString settingWords(const core::SettingInfo& info, const core::Settings& settings)
{
    if (info.name == "displayFlags") {
        const auto flags = static_cast<unsigned>(settings.displayFlags);
        return QCoreApplication::translate(kContext, (flags & core::kEnglishNames) != 0
                                                         ? "English names"
                                                         : "Sanskrit names") +
               QStringLiteral(", ") +
               QCoreApplication::translate(kContext,
                                           (flags & core::kGlyphNames) != 0 ? "glyphs" : "letters");
    }
    if (std::holds_alternative<bool core::Settings::*>(info.field)) {
        return QCoreApplication::translate(
            kContext, core::settingValue(settings, info) != 0.0 ? "on" : "off");
    }
    if (core::settingIsText(info)) {
        const QString text = toQt(core::settingText(settings, info));
        return text.isEmpty() ? QCoreApplication::translate(kContext, "empty") : text;
    }
    const QStringList choices = settingChoices(info, settings);
    const int index = int(core::settingValue(settings, info)) - int(info.lowest);
    if (index >= 0 && index < choices.size()) {
        return choices[index];
    }
    return toQt(core::settingText(settings, info)) + toQt(settingRow(info.name).unit);
}

} // namespace kestrav::desktop
