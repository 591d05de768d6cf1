// The catalogue of conditions as a page to read.
#include "analysis/VargaNames.h"
#include "core/FileText.h"
#include "core/Varga.h"
#include "timing/DashaTable.h"
#include "yoga/Catalogue.h"
#include "yoga/KeywordTables.h"

namespace kestrav::yoga
{

namespace
{

constexpr std::string_view kIntroduction = R"(# Conditions of yoga rules

A rule is a sequence of tokens separated by a backslash: conditions, `OR`, `(` and `)`. Conditions
that follow each other must all hold. This page lists every kind of condition. It is made from the
table by which the program tests them.

## Forms

A condition is a list of at most 15 words separated by commas, without blanks.

- Without prefix: keyword of the kind, mark, parameters. The mark is `!` for the opposite, or empty:
  `InHouse,,Jup,Moo,ken` and `InHouse,!,Jup,Moo,ken`.
- With prefix, for divisional charts: `*-` and the number of an option, two divisional charts, up to
  three points, the number of the kind, mark, parameters:
  `*-1,Nava,Nava,Jup,Asc,,2,,ken` says that Jupiter is in a kendra of the navamsha.
  Points take the places of the first parameters that are points; where a point is left empty, its
  word is read from the parameters, which is how sets and lords are written:
  `*-1,Nava,Nava,,,,2,,any.ben,Asc,ken`.

The first divisional chart is that of the first point, the second one that of all others: with
`*-1,Nava,Rasi,Jup,Asc,,2,,1` the navamsha sign of Jupiter is the sign of the ascendant in the rashi.
An empty first chart is the rashi, an empty second one the same as the first. In kinds marked "rashi
only" the divisional charts make no difference. The options are: 1 the settings as they are; 2 to 5
the methods 0 to 3 of the Hora; 6 and 7 the variants of the Shodashamsha; 8 and 9 those of the
Rudramsha.

A word that begins with a digit and has at most three characters is a number. An optional parameter
is left out by leaving its word out, or empty. Points that are left out as reference are the
ascendant. A condition with an unknown word, with words that do not fit, or with a point that has no
position does not hold, and is true with the mark `!`.

## Second chart

The second chart is a transit or another native. `T.` before a point takes the point there:
`InHouse,,T.Sat,Moo,12,1,2` is Saturn's transit about the Moon of birth; `T.L7` is where the native's
lord of the 7th stands in the second chart, `L7.T.Asc` the lord of the 7th of the second chart. `T.`
before the keyword (or 500 added to the number of a kind) tests the whole condition with the charts
exchanged: `T.With,,Sun,Moo`. Without a second chart such conditions do not hold.

## Points

A point is a name, or a name with steps before it, which are done from right to left, at most four of
them: `D.L9` is the dispositor of the lord of the 9th, `L5.Moo` the lord of the 5th from the Moon.

Names are the three-letter names of the points, `Asc Sun Moo Mar Mer Jup Ven Sat Rah Ket Ura Nep
Plu`, the upagrahas `Dhu Vya Par Ind Upa Kal Mri ArP Yam Gul PPd Mdi`, the lagnas `BhL HoL GaL InL SrL
VaL DiL`, the arudhas `ArL a2 a3 a4 a5 a6 a7 a8 a9 a10 a11 UpL`, the cusps `Hs1` to `Hs9`, `H10`, `H11`
and `H12`, `YoP`, `PF`, and these:

)";

constexpr std::string_view kSets = R"(
A place such as `B7` is a sign and no planet: it can be where something stands, aspects fall or houses
are counted from, but has no dignity. In a step, "sign" is that of the divisional chart.

## Sets of planets

A set stands for several planets; a quantifier before it says how many of them have to pass:

| word | passes when |
|---|---|
| `any.ben`, or `ben` alone | at least one does |
| `all.ben` | every one does, and there is one |
| `no.ben` | none does |
| `min2.ben` | at least two do; any number 1 to 9 |
| `max2.ben` | at most two do |
| `eqs2.ben` | exactly two do |

Parameters that are called set take a set without quantifier, or one planet. Planets are added with
`+` and taken off with `-`: `Mar+Sat`, `pla-Moo`, `mal-Sun`; sets that depend on the chart take either
additions or removals. `T.` before the set, behind the quantifier, means the planets of the second
chart: `any.T.mal`. Where two points are compared, a planet is not compared with itself.

)";

constexpr std::string_view kWordsHeading = R"(
## Houses, signs and nakshatras

Houses are numbers 1 to 12, lists `h1+4+7`, or these words:

)";

// clang-format off
constexpr std::array kRuleExamples = std::to_array<RuleExample>({
    {"InHouse,,Jup,ken\\Dignity,,Jup,own,exa", "Jupiter in a kendra, in his own sign or exalted"},
    {"InHouse,,any.tara,Moo,2\\InHouse,,no.tara,Moo,12", "planets other than the Sun in the 2nd from the Moon, and none in the 12th"},
    {"Hemmed,,Moo,tara", "such planets in the 2nd and in the 12th"},
    {"InHouse,,all.Mer+Jup+Ven,Moo,6,7,8", "all three benefics in the 6th, 7th and 8th from the Moon, in any order"},
    {"Between,,all.pla,Rah,Ket\\OR\\Between,,all.pla,Ket,Rah", "all planets on one side of the nodes"},
    {"InSign,,all.pla,mov", "all planets in movable signs"},
    {"Fill,,pla,h1+3+5+7+9+11", "the planets in all six odd houses and nowhere else"},
    {"Fill,,pla,h1+4\\OR\\Fill,,pla,h4+7\\OR\\Fill,,pla,h7+10\\OR\\Fill,,pla,h10+1", "the planets in two neighbouring kendras"},
    {"Run,,pla,7,2,3,5,6,8,9,11,12", "the planets in seven houses in a row that do not begin in a kendra"},
    {"Occupied,,pla,3,3", "the planets in exactly three signs"},
    {"Related,,any.kenL,any.triL", "a lord of a kendra and another planet that is lord of a trikona are related"},
    {"InHouse,,L6,dus\\(\\InHouse,,L8,dus\\OR\\InHouse,,L12,dus\\)", "the lord of the 6th and one of the lords of the 8th and 12th in dusthanas"},
    {"Dignity,,Sat,deb\\DebCancelled,,Sat", "Saturn debilitated, and his debilitation cancelled"},
    {"(\\Sex,,male\\DayBirth,\\InSign,,Asc,odd\\InSign,,all.lum,odd\\OR\\Sex,,female\\DayBirth,,night\\InSign,,Asc,even\\InSign,,all.lum,even\\)", "a man born by day with ascendant, Sun and Moon in odd signs, or a woman born by night with them in even signs"},
    {"Cluster,,pla,4\\Strongest,,Sat,cluP,shad", "four or more planets in one sign, Saturn the strongest of them"},
    {"*-1,Nava,Nava,,,,2,,any.ben,AK,tri", "in the navamsha a benefic in a trikona from the Atma karaka"},
    {"*-1,Rasi,Nava,Ven,,,2,,AK,1", "Venus of the rashi in the sign that is the navamsha of the Atma karaka"},
    {"Vargottama,,Asc\\*-1,Nava,Nava,,,,51,,R.L10,gfr", "a vargottama ascendant, and the lord of the 10th of the rashi well placed in the navamsha"},
    {"InHouse,,T.Sat,Moo,12,1,2", "Saturn of the second chart about the Moon"},
});
// clang-format on

void add(std::string& page, std::initializer_list<std::string_view> parts)
{
    for (const std::string_view part : parts) {
        page += part;
    }
}

void row(std::string& page, std::string_view word, std::wstring_view meaning)
{
    add(page, {"| `", word, "` | ", core::toUtf8(meaning), " |\n"});
}

void head(std::string& page)
{
    page += "| word | meaning |\n|---|---|\n";
}

void addPoints(std::string& page)
{
    head(page);
    for (const BaseWord& base : kBaseWords) {
        row(page, base.word, base.meaning);
    }
    page +=
        "| `L1.` to `L12.` | the lord of that house from what follows; `L5` alone is from the "
        "ascendant |\n| `B1.` to `B12.` | the place of that house from what follows; `B5` alone "
        "is from the ascendant |\n";
    for (const StepWord& step : kStepWords) {
        row(page, std::string(step.word) + ".",
            std::wstring(step.before) + L"what follows" + std::wstring(step.after));
    }
}

void addSets(std::string& page)
{
    head(page);
    for (const MaskWord& group : kPlanetGroups) {
        row(page, group.word, group.meaning);
    }
    for (std::size_t i = 0; i < kSetWords.size(); ++i) {
        row(page, kSetWords[i], kSetMeanings[i]);
    }
}

void addLists(std::string& page)
{
    head(page);
    for (const MaskWord& word : kHouseWords) {
        row(page, word.word, word.meaning);
    }
    page += "\nSigns are numbers 1 to 12, or these words, which `+` joins:\n\n";
    head(page);
    for (const MaskWord& word : kSignWords) {
        row(page, word.word, word.meaning);
    }
    page += "\nNakshatras are numbers 1 to 27, or their names:";
    for (const std::string_view name : kNakshatraWords) {
        add(page, {" `", name, "`"});
    }
    page += ".\n\n## Other words\n\n";
    head(page);
    for (std::size_t i = 0; i < kPlainTexts.size(); ++i) {
        row(page, kPlainTexts[i], kPlainMeanings[i]);
    }
    page += "\nDivisional charts in prefixes:";
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        add(page, {" `", core::toUtf8(analysis::vargaShortName(varga)), "`"});
    }
    page += ".\n\nDasha systems by number:";
    for (int system = 0; system < timing::kNamedDashaSystems; ++system) {
        add(page, {system == 0 ? " " : ", ", std::to_string(system), " ",
                   core::toUtf8(timing::dashaRow(system).name)});
    }
    page += ".\n";
}

std::string_view needsText(Needs needs)
{
    switch (needs) {
    case Needs::Nothing:
        return "nothing";
    case Needs::Signs:
        return "signs";
    case Needs::Positions:
        return "positions";
    case Needs::Chart:
        return "whole chart";
    case Needs::Strengths:
        return "whole chart and strengths";
    }
    return {};
}

std::string_view typeText(ParameterType type)
{
    switch (type) {
    case ParameterType::None:
        break;
    case ParameterType::Subject:
        return "a point, or a set with a quantifier";
    case ParameterType::Point:
        return "a point";
    case ParameterType::Set:
        return "a set without quantifier, or one planet";
    case ParameterType::Houses:
        return "houses";
    case ParameterType::Signs:
        return "signs";
    case ParameterType::Nakshatra:
        return "nakshatras";
    case ParameterType::Number:
        return "number";
    case ParameterType::Word:
        return "one of";
    }
    return {};
}

std::string parameterText(const Parameter& parameter)
{
    std::string text;
    add(text, {"- ", parameter.name, ": ", typeText(parameter.type)});
    if (parameter.type == ParameterType::Number) {
        add(text,
            {" ", std::to_string(parameter.lowest), " to ", std::to_string(parameter.highest)});
    }
    for (int word = 0; word < kPlainWords; ++word) {
        if (((parameter.words >> unsigned(word)) & 1U) != 0) {
            add(text, {" `", plainWordText(PlainWord(word)), "`"});
        }
    }
    text += parameter.repeated ? ", one or more" : "";
    if (parameter.optional) {
        text += "; may be left out";
        if (parameter.type == ParameterType::Number && parameter.fallback >= parameter.lowest) {
            add(text, {", then ", std::to_string(parameter.fallback)});
        }
    }
    return text + "\n";
}

void addKind(std::string& page, const Kind& kind)
{
    add(page, {"\n### ", std::to_string(kind.number), " ", kind.keyword, "\n\n`", kindForm(kind),
               "`\n\n", kind.meaning, "\n\n"});
    for (const Parameter& parameter : kind.used()) {
        page += parameterText(parameter);
    }
    add(page, {"\nNeeds ", needsText(kind.needs), kind.rashiOnly ? "; rashi only" : "",
               ". Example: `", kind.example, "`: ", kind.exampleMeaning, ".\n"});
}

} // namespace

std::span<const RuleExample> ruleExamples()
{
    return kRuleExamples;
}

std::string catalogueDocument()
{
    std::string page(kIntroduction);
    addPoints(page);
    page += kSets;
    addSets(page);
    page += kWordsHeading;
    addLists(page);
    page += "\n## Kinds\n\nWhat a kind needs is the least; points and sets in its words can need "
            "more. Signs and positions are read from a research line, anything else from a whole "
            "chart.\n\n| number | keyword | form |\n|---|---|---|\n";
    for (const Kind& kind : kinds()) {
        add(page, {"| ", std::to_string(kind.number), " | ", kind.keyword, " | `", kindForm(kind),
                   "` |\n"});
    }
    std::string_view group;
    for (const Kind& kind : kinds()) {
        if (kind.group != group) {
            group = kind.group;
            add(page, {"\n## ", group, "\n"});
        }
        addKind(page, kind);
    }
    page += "\n## Whole rules\n\n| rule | meaning |\n|---|---|\n";
    for (const RuleExample& example : kRuleExamples) {
        add(page, {"| `", example.rule, "` | ", example.meaning, " |\n"});
    }
    return page;
}

} // namespace kestrav::yoga
