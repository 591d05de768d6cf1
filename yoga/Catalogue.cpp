#include "yoga/Catalogue.h"

#include "yoga/Keywords.h"

#include <algorithm>

namespace kestrav::yoga
{

namespace
{

using enum ParameterType;

// The plain words from one to another of their table.
constexpr std::uint64_t wordRange(PlainWord first, PlainWord last)
{
    std::uint64_t mask = 0;
    for (int word = first; word <= last; ++word) {
        mask |= std::uint64_t{1} << unsigned(word);
    }
    return mask;
}

constexpr std::uint64_t kDignityWords = wordRange(kWordDebilitated, kWordExalted);
constexpr std::uint64_t kMeasureWords = wordRange(kWordShadbala, kWordIshta);

constexpr Parameter subject(std::string_view name = "subject")
{
    return {.type = Subject, .name = name};
}
constexpr Parameter point(std::string_view name)
{
    return {.type = Point, .name = name};
}
// A reference point that is the ascendant when it is left out.
constexpr Parameter from()
{
    return {.type = Point, .name = "from", .optional = true};
}
constexpr Parameter set()
{
    return {.type = Set, .name = "set"};
}
constexpr Parameter houses()
{
    return {.type = Houses, .name = "houses", .repeated = true};
}
constexpr Parameter anyHouses()
{
    return {.type = Houses, .name = "houses", .optional = true, .repeated = true};
}
constexpr Parameter number(std::string_view name, int lowest, int highest)
{
    return {.type = Number, .name = name, .lowest = lowest, .highest = highest};
}
constexpr Parameter numbers(std::string_view name, int lowest, int highest)
{
    return {.type = Number, .name = name, .repeated = true, .lowest = lowest, .highest = highest};
}
constexpr Parameter optionalNumber(std::string_view name, int lowest, int highest, int fallback)
{
    return {.type = Number,
            .name = name,
            .optional = true,
            .lowest = lowest,
            .highest = highest,
            .fallback = fallback};
}
constexpr Parameter word(std::string_view name, std::uint64_t words)
{
    return {.type = Word, .name = name, .words = words};
}
constexpr Parameter words(std::string_view name, std::uint64_t words)
{
    return {.type = Word, .name = name, .repeated = true, .words = words};
}
constexpr Parameter optionalWord(std::string_view name, std::uint64_t words)
{
    return {.type = Word, .name = name, .optional = true, .words = words};
}

constexpr Parameter kHow = optionalWord("how", wordRange(kWordGraha, kWordSign));
constexpr Parameter kLeast = optionalNumber("least", 0, 100, 0);
constexpr Parameter kMinutes = optionalNumber("minutes", 0, 59, 0);
constexpr Parameter kToMinutes = optionalNumber("to minutes", 0, 59, 0);

constexpr std::string_view kPlaces = "Places";
constexpr std::string_view kGroups = "Groups of planets";
constexpr std::string_view kAspects = "Aspects";
constexpr std::string_view kLords = "Lords";
constexpr std::string_view kDignities = "Dignities and motion";
constexpr std::string_view kStrengths = "Strengths";
constexpr std::string_view kNatures = "Nature";
constexpr std::string_view kTimes = "Birth and time";

// The numbers stand in the prefixes of rules and are never given to another kind.
// clang-format off
constexpr std::array kKinds = std::to_array<Kind>({
    {1, "InSign", kPlaces, {subject(), {.type = Signs, .name = "signs", .repeated = true}},
     "{0} {is} in {1}",
     "The subject stands in one of the signs.",
     "InSign,,Mar,Ari,Sco", "Mars is in Aries or Scorpio"},
    {2, "InHouse", kPlaces, {subject(), from(), houses()},
     "{0} {is} in {2} from {1}",
     "The subject stands in one of the houses, counted by signs from the other point.",
     "InHouse,,Jup,Moo,ken", "Jupiter is in a kendra from the Moon"},
    {3, "InNakshatra", kPlaces, {subject(), {.type = Nakshatra, .name = "nakshatras", .repeated = true}},
     "{0} {is} in {1}",
     "The subject stands in one of the nakshatras.",
     "InNakshatra,,Moo,Rohini,13", "the Moon is in Rohini or Hasta", Needs::Positions},
    {4, "InPada", kPlaces, {subject(), numbers("padas", 1, 4)},
     "{0} {is} in pada {1}",
     "The subject stands in one of these quarters of its nakshatra.",
     "InPada,,Moo,1,4", "the Moon is in the first or last pada", Needs::Positions},
    {5, "InDegree", kPlaces, {subject(), number("from", 0, 29), number("to", 0, 30), kMinutes, kToMinutes},
     "{0} {is} between {1}:{3} and {2}:{4} degrees of a sign",
     "The subject stands in its sign at or after the first and before the second degree; the minutes of both may follow.",
     "InDegree,,Sun,9,10,30", "the Sun is between 9 degrees 30 minutes and 10 degrees of a sign", Needs::Positions},
    {6, "InArc", kPlaces, {subject(), number("from", 0, 359), number("to", 0, 360), kMinutes, kToMinutes},
     "{0} {is} between longitude {1}:{3} and {2}:{4}",
     "The longitude of the subject is at or after the first and before the second, in the order of the zodiac.",
     "InArc,,Moo,350,10", "the Moon is within ten degrees of the beginning of Aries", Needs::Positions},
    {7, "With", kPlaces, {subject(), subject("other")},
     "{0} {is} in one sign with {1}",
     "Both stand in the same sign. A point is never with itself.",
     "With,,Moo,any.mal", "the Moon is with a natural malefic"},
    {8, "Near", kPlaces, {subject(), subject("other"), number("degrees", 0, 180), kMinutes},
     "{0} {is} within {2}:{3} degrees of {1}",
     "The two are no further apart than this, in any signs.",
     "Near,,Sun,Moo,12", "the Sun and the Moon are within 12 degrees", Needs::Positions},
    {9, "Apart", kPlaces, {subject(), point("other"), number("from", 0, 359), number("to", 0, 360)},
     "{0} {is} between {2} and {3} degrees beyond {1}",
     "The way from the other point to the subject in the order of the zodiac is at least the first and below the second number of degrees.",
     "Apart,,Moo,Sun,168,192", "the Moon is about full", Needs::Positions},
    {10, "Between", kPlaces, {subject(), point("begin"), point("end")},
     "{0} {is} on the way from {1} to {2}",
     "The subject stands on the way from the first point to the second in the order of the zodiac, both ends counted.",
     "Between,,all.pla,Rah,Ket", "all planets are between Rahu and Ketu", Needs::Positions},
    {11, "InBhava", kPlaces, {subject(), houses()},
     "{0} {is} in bhava {1}",
     "The subject stands in one of the houses as the cusps of the chart bound them.",
     "InBhava,,Sun,10", "the Sun is in the tenth bhava", Needs::Chart, true},
    {12, "SameBhava", kPlaces, {subject(), subject("other")},
     "{0} {is} in one bhava with {1}",
     "Both stand in the same house as the cusps bound it.",
     "SameBhava,,Mer,Sun", "Mercury shares the bhava of the Sun", Needs::Chart, true},
    {13, "Sandhi", kPlaces, {subject(), optionalNumber("minutes", 1, 900, 60)},
     "{0} {is} within {1} minutes of the end of a sign",
     "The subject stands within so many minutes of arc (60 when none are given) of either end of its sign.",
     "Sandhi,,Asc,30", "the ascendant is within half a degree of the end of a sign", Needs::Positions},
    {14, "Gandanta", kPlaces, {subject(), optionalNumber("minutes", 1, 900, 200)},
     "{0} {is} within {1} minutes of a gandanta",
     "The subject stands within so many minutes of arc (200, one pada, when none are given) of the junction of a watery and a fiery sign.",
     "Gandanta,,Moo", "the Moon is in gandanta", Needs::Positions},
    {15, "Vargottama", kPlaces, {subject()},
     "{0} {is} vargottama",
     "The subject has the same sign in both divisional charts; without prefix these are the rashi and the navamsha.",
     "Vargottama,,Asc", "the ascendant is vargottama", Needs::Positions},
    {16, "NakshatraFrom", kPlaces, {subject(), point("other"), numbers("counts", 1, 27)},
     "{0} {is} in star {2} from that of {1}",
     "The nakshatra of the subject is one of these, counted from that of the other point, which is the first.",
     "NakshatraFrom,,T.Moo,Moo,3,5,7", "the Moon of the second chart is in the 3rd, 5th or 7th star", Needs::Positions},
    {17, "Is", kPlaces, {subject("first"), subject("second")},
     "{0} {is} {1}",
     "Both words name the same planet.",
     "Is,,AK,any.lum", "the Sun or the Moon is Atma karaka"},

    {20, "Hemmed", kGroups, {subject(), set()},
     "{0} {is} hemmed between {1}",
     "Planets of the set stand in the sign before and in the sign after that of the subject, which itself does not count.",
     "Hemmed,,Moo,mal", "the Moon is hemmed between natural malefics"},
    {21, "Fill", kGroups, {set(), from(), houses()},
     "{0} fill {2} from {1}, all of them and no other",
     "All planets of the set stand in the houses, and none of these houses is without one.",
     "Fill,,pla,h1+4", "the planets fill the 1st and the 4th and no other house"},
    {22, "Run", kGroups, {set(), from(), number("length", 1, 12), anyHouses()},
     "{0} fill {2} houses that follow each other, the first of them one of {3} from {1}",
     "The planets of the set fill so many houses that follow each other and no others; the first of these is one of the houses, when any are given.",
     "Run,,pla,7,pan,apo", "the planets fill seven houses from a panaphara or apoklima on"},
    {23, "Occupied", kGroups, {set(), from(), number("least", 0, 12), number("most", 0, 12), anyHouses()},
     "{0} stand in {2} to {3} of the houses {4} from {1}",
     "The number of these houses (of all twelve when none are given) in which planets of the set stand is in the range.",
     "Occupied,,pla,5,5", "the planets stand in exactly five signs"},
    {24, "Cluster", kGroups, {set(), from(), number("least", 2, 9), anyHouses()},
     "{2} of {0} {is} together in one of the houses {3} from {1}",
     "So many planets of the set stand together in one sign, which is one of the houses when any are given.",
     "Cluster,,pla,4,ken", "four planets are together in a kendra"},

    {30, "Aspect", kAspects, {subject(), subject("target"), kHow, kLeast},
     "{0} aspects {1}: {2}, at least {3}",
     "The subject aspects the target: by a full graha aspect (graha, also when no word is given), by a sign aspect (sign), with at least so many percent of a graha aspect (share) or with at least so many virupas (value).",
     "Aspect,,Jup,Moo,value,45", "Jupiter aspects the Moon with 45 virupas or more"},
    {31, "Mutual", kAspects, {subject(), subject("other"), kHow, kLeast},
     "{0} and {1} aspect each other: {2}, at least {3}",
     "Each of the two aspects the other in this way.",
     "Mutual,,Mar,Sat", "Mars and Saturn aspect each other"},
    {32, "Influences", kAspects, {subject(), subject("target")},
     "{0} {is} with {1} or aspects it",
     "The subject stands with the target or has a full graha aspect on it.",
     "Influences,,no.mal,B7", "no malefic is in the 7th or aspects it"},
    {33, "Related", kAspects, {subject(), subject("other")},
     "{0} {is} related to {1}",
     "The two planets are with each other, have mutual full aspects or exchange their signs.",
     "Related,,L9,L10", "the lords of the 9th and the 10th are related"},

    {40, "Exchange", kLords, {subject(), subject("other")},
     "{0} exchanges signs with {1}",
     "Each planet stands in a sign of the other.",
     "Exchange,,L1,L4", "the lords of the 1st and the 4th exchange signs"},
    {41, "Parivartana", kLords, {optionalWord("class", wordRange(kWordMaha, kWordDainya)), optionalNumber("house", 1, 12, 0), optionalNumber("other house", 1, 12, 0)},
     "two houses exchange their lords: {0} {1} {2}",
     "The lords of two houses stand in each other's house: dainya when one of these is the 6th, 8th or 12th, else khala when one is the 3rd, else maha. Houses that are given have to be among the two.",
     "Parivartana,,maha", "two good houses exchange their lords"},
    {42, "FinalDispositor", kLords, {point("planet")},
     "{0} {is} the final dispositor",
     "The planet is in its own sign, and the dispositors of all seven planets lead to it.",
     "FinalDispositor,,Ven", "Venus is the final dispositor"},
    {43, "Owns", kLords, {subject(), from(), houses()},
     "{0} {is} lord of {2} from {1}",
     "The planet is lord of one of the houses from the other point.",
     "Owns,,any.ben,9,10", "a natural benefic is lord of the 9th or the 10th"},
    {44, "InSignOf", kLords, {subject(), subject("lord")},
     "{0} {is} in a sign of {1}",
     "The subject stands in a sign of which the other planet is lord.",
     "InSignOf,,Moo,any.ben", "the Moon is in a sign of a benefic"},

    {50, "Dignity", kDignities, {subject(), words("dignities", kDignityWords)},
     "{0} {is} {1}",
     "The dignity of the planet is one of these; own also holds in its moolatrikona.",
     "Dignity,,Mar,own,exa", "Mars is in its own sign or exalted", Needs::Positions},
    {51, "DignityMin", kDignities, {subject(), word("dignity", kDignityWords)},
     "{0} {is} {1} or better",
     "The dignity of the planet is this or a higher one.",
     "DignityMin,,L1,fri", "the lord of the 1st is in a friend's sign or better", Needs::Positions},
    {52, "DignityMax", kDignities, {subject(), word("dignity", kDignityWords)},
     "{0} {is} {1} or worse",
     "The dignity of the planet is this or a lower one.",
     "DignityMax,,Moo,ene", "the Moon is in an enemy's sign or worse", Needs::Positions},
    {53, "Regards", kDignities, {subject("planet"), subject("other"), optionalWord("relationship", wordRange(kWordNatural, kWordCompound)), words("regards", wordRange(kWordGreatEnemy, kWordGreatFriend))},
     "{1} {is} for {0} {3} ({2})",
     "The planet regards the other one so, by the compound relationship or by the natural one (nat).",
     "Regards,,Sun,L1,nat,fri", "the lord of the 1st is a natural friend of the Sun", Needs::Positions},
    {54, "DebCancelled", kDignities, {subject()},
     "{0} {is} debilitated, which is cancelled",
     "The planet is debilitated, and its debilitation is cancelled.",
     "DebCancelled,,any.pla", "a debilitation is cancelled", Needs::Positions},
    {55, "Retrograde", kDignities, {subject()},
     "{0} {is} retrograde",
     "The planet is retrograde.",
     "Retrograde,,any.tara", "one of Mars to Saturn is retrograde", Needs::Positions, true},
    {56, "Motion", kDignities, {subject(), words("motions", wordRange(kWordFast, kWordStation))},
     "{0} {is} {1}",
     "The planet moves so: fast, slow, retrograde, just turned direct, about to turn, or retrograde and hardly moving.",
     "Motion,,Sat,turn,station", "Saturn is turning or stationary", Needs::Chart, true},
    {57, "Combust", kDignities, {subject()},
     "{0} {is} combust",
     "The planet is combust.",
     "Combust,,L1", "the lord of the 1st is combust", Needs::Positions, true},
    {58, "AtWar", kDignities, {subject(), optionalWord("result", wordRange(kWordWon, kWordLost))},
     "{0} {is} in a planetary war: {1}",
     "The planet is in a planetary war, and has won or lost one when this is asked.",
     "AtWar,,Mar,lost", "Mars has lost a planetary war", Needs::Strengths, true},

    {60, "Shadbala", kStrengths, {subject(), number("least", 0, 999), optionalNumber("most", 0, 999, 999)},
     "the shadbala of {0} is {1} to {2} tenths of a rupa",
     "The shadbala of the planet in tenths of a rupa is in the range.",
     "Shadbala,,Jup,65", "Jupiter has 6.5 rupas or more", Needs::Strengths, true},
    {61, "Required", kStrengths, {subject(), number("least", 0, 999), optionalNumber("most", 0, 999, 999)},
     "the shadbala of {0} is {1} to {2} percent of what it should be",
     "The shadbala of the planet in percent of what it should reach is in the range.",
     "Required,,L1,100", "the lord of the 1st has the shadbala that it should have", Needs::Strengths, true},
    {62, "Ishta", kStrengths, {subject(), number("least", 0, 60), optionalNumber("most", 0, 60, 60)},
     "the ishta phala of {0} is {1} to {2}",
     "The ishta phala of the planet is in the range.",
     "Ishta,,Ven,30", "Venus has an ishta phala of 30 or more", Needs::Strengths, true},
    {63, "BhavaBala", kStrengths, {number("house", 1, 12), number("least", 0, 999), optionalNumber("most", 0, 999, 999)},
     "the strength of house {0} is {1} to {2} tenths of a rupa",
     "The strength of the house in tenths of a rupa is in the range.",
     "BhavaBala,,10,75", "the tenth house has 7.5 rupas or more", Needs::Strengths, true},
    {64, "Bindus", kStrengths, {subject(), number("least", 0, 8), optionalNumber("most", 0, 8, 8)},
     "{0} has {1} to {2} bindus in its sign",
     "The bindus of the planet, or the ascendant, in the sign where it stands are in the range.",
     "Bindus,,Jup,5", "Jupiter has five bindus or more in its sign", Needs::Positions},
    {65, "BindusAt", kStrengths, {subject("receiver"), point("place"), number("least", 0, 8), optionalNumber("most", 0, 8, 8)},
     "{0} has {2} to {3} bindus in the sign of {1}",
     "The bindus of the planet in the sign of the place are in the range.",
     "BindusAt,,Sat,B8.Moo,0,2", "Saturn has at most two bindus in the 8th from the Moon", Needs::Positions},
    {66, "Sarva", kStrengths, {subject("place"), number("least", 0, 56), optionalNumber("most", 0, 56, 56)},
     "the sign of {0} has {1} to {2} sarvashtakavarga bindus",
     "The sarvashtakavarga bindus of the sign of the place are in the range.",
     "Sarva,,B11,30", "the 11th has thirty bindus or more", Needs::Positions},
    {67, "Vimshopaka", kStrengths, {subject(), optionalWord("set", wordRange(kWordVim16, kWordVim6)), number("least", 0, 20), optionalNumber("most", 0, 20, 20)},
     "{0} has {2} to {3} points of vimshopaka {1}",
     "The vimshopaka of the planet out of 20, over sixteen divisions when no set is named, is in the range.",
     "Vimshopaka,,L10,vim7,15", "the lord of the 10th has 15 points or more over seven divisions", Needs::Chart, true},
    {68, "Strongest", kStrengths, {point("planet"), set(), word("measure", kMeasureWords)},
     "{0} has the most of {2} among {1}",
     "The planet belongs to the set and no other one of it has more of the measure.",
     "Strongest,,Sun,pla,shad", "the Sun has the most shadbala of all", Needs::Signs},
    {69, "Weakest", kStrengths, {point("planet"), set(), word("measure", kMeasureWords)},
     "{0} has the least of {2} among {1}",
     "The planet belongs to the set and no other one of it has less of the measure.",
     "Weakest,,Moo,lum,req", "the Moon is weaker than the Sun against what both should reach", Needs::Signs},
    {70, "Stronger", kStrengths, {subject(), subject("other"), word("measure", kMeasureWords)},
     "{0} has more of {2} than {1}",
     "The subject has more of the measure than the other planet.",
     "Stronger,,L1,L8,shad", "the lord of the 1st is stronger than that of the 8th", Needs::Signs},

    {75, "Functional", kNatures, {subject(), words("natures", wordRange(kWordYogakaraka, kWordNoNature))},
     "{0} {is} {1} for the ascendant",
     "The planet is one of these for the ascendant: yogakaraka, benefic, malefic, maraka, or none of them.",
     "Functional,,Sat,yogak", "Saturn is yogakaraka", Needs::Positions, true},
    {76, "Natural", kNatures, {subject(), word("nature", wordRange(kWordBenefic, kWordMalefic))},
     "{0} {is} {1} by nature",
     "The planet is a natural benefic or malefic in this chart.",
     "Natural,,Mer,malef", "Mercury counts as a malefic", Needs::Positions, true},

    {80, "DayBirth", kTimes, {optionalWord("half", wordRange(kWordDay, kWordNight))},
     "the birth was by {0}",
     "The birth was by day, or by night when this is asked.",
     "DayBirth,,night", "the birth was by night", Needs::Chart, true},
    {81, "Weekday", kTimes, {numbers("weekdays", 1, 7)},
     "the weekday is {0}",
     "The weekday, which begins at sunrise, is one of these; 1 is Sunday.",
     "Weekday,,3,7", "the day is Tuesday or Saturday", Needs::Chart, true},
    {82, "Tithi", kTimes, {numbers("tithis", 1, 30)},
     "the tithi is {0}",
     "The tithi is one of these; 15 is the full moon, 30 the new moon.",
     "Tithi,,14,29", "it is the fourteenth tithi of either half", Needs::Positions, true},
    {83, "Paksha", kTimes, {word("half", wordRange(kWordWaxing, kWordWaning))},
     "the Moon is {0}",
     "The Moon is waxing or waning.",
     "Paksha,,wax", "the Moon is waxing", Needs::Positions, true},
    {84, "NityaYoga", kTimes, {numbers("yogas", 1, 27)},
     "the yoga is {0}",
     "The yoga of the Sun and the Moon is one of these; 1 is Vishkambha, 17 Vyatipata, 27 Vaidhriti.",
     "NityaYoga,,17,27", "the yoga is Vyatipata or Vaidhriti", Needs::Positions, true},
    {85, "Karana", kTimes, {numbers("karanas", 1, 11)},
     "the karana is {0}",
     "The karana is one of these: 1 Kinstughna, 2 Bava, 3 Balava, 4 Kaulava, 5 Taitila, 6 Gara, 7 Vanija, 8 Vishti, 9 Shakuni, 10 Chatushpada, 11 Naga.",
     "Karana,,8", "the karana is Vishti", Needs::Positions, true},
    {86, "Sex", kTimes, {word("sex", wordRange(kWordMale, kWordFemale))},
     "the native is {0}",
     "The native is of this sex; when none is recorded it never holds.",
     "Sex,,female", "the native is a woman", Needs::Positions, true},
    {88, "Dasha", kTimes, {subject("lord"), optionalNumber("level", 1, 4, 1), optionalNumber("system", 0, 24, -1)},
     "the period of {0} runs, level {1}, system {2}",
     "The period of the planet runs at the moment of the search: its mahadasha (level 1) or sub-period (2 to 4) of a dasha system, by number, or the system of the settings. In systems of signs its sign has the period.",
     "Dasha,,L9,2,0", "the lord of the 9th rules the Vimshottari antardasha", Needs::Chart, true},
});
// clang-format on

constexpr bool numbersRise()
{
    for (std::size_t i = 1; i < kKinds.size(); ++i) {
        if (kKinds[i].number <= kKinds[i - 1].number) {
            return false;
        }
    }
    return kKinds.back().number < kMaxKindNumber && kKinds.front().number > 0;
}
static_assert(numbersRise());

constexpr auto kByNumber = [] {
    std::array<const Kind*, std::size_t(kMaxKindNumber)> rows{};
    for (const Kind& kind : kKinds) {
        rows[std::size_t(kind.number)] = &kind;
    }
    return rows;
}();

} // namespace

std::span<const Parameter> Kind::used() const
{
    std::size_t count = 0;
    while (count < kMaxParameters && parameters[count].type != ParameterType::None) {
        ++count;
    }
    return {parameters.data(), count};
}

std::span<const Kind> kinds()
{
    return kKinds;
}

const Kind* findKind(int number)
{
    return number < 0 || number >= kMaxKindNumber ? nullptr : kByNumber[std::size_t(number)];
}

const Kind* findKind(std::string_view keyword)
{
    const auto* const found = std::find_if(
        kKinds.begin(), kKinds.end(), [&](const Kind& kind) { return kind.keyword == keyword; });
    return found == kKinds.end() ? nullptr : found;
}

std::string kindForm(const Kind& kind)
{
    std::string form(kind.keyword);
    form += ",";
    for (const Parameter& parameter : kind.used()) {
        form += parameter.optional ? "[,<" : ",<";
        form += parameter.name;
        form += parameter.repeated ? ">..." : ">";
        if (parameter.optional) {
            form += "]";
        }
    }
    return form;
}

} // namespace kestrav::yoga
