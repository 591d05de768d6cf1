// The words of conditions and the codes in which a parsed condition stores them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

/// The code of a word that is in no table.
inline constexpr int kUnknownWord = -1;

/// The code of a parameter word: a point expression ("Mar", "L5", "D.L9"), a set of planets with or
/// without a quantifier ("any.ben", "Mar+Sat"), a list of houses ("ken", "h1+4") or signs ("Leo",
/// "mov"), a nakshatra ("Rohini") or one of the plain words ("exa"). Codes are above every number
/// that a rule can hold. Words are compared exactly and never depend on the language of the
/// display. -1 when the word is none of these.
[[nodiscard]] int keywordCode(std::string_view word);

/// The number of the kind that the first word of a condition without prefix names; "T." before it
/// asks for the kind on the second chart. -1 when there is no such kind.
[[nodiscard]] int kindOfKeyword(std::string_view word);

/// Number added to a kind to test it with the two charts exchanged.
inline constexpr int kSecondChartKinds = 500;

/// What a code stands for.
enum class WordClass : int
{
    Number = 0, ///< the number itself, 0 to 999
    Point,
    Set,
    Houses,
    Signs,
    Nakshatra,
    Plain,
    Unknown,
};

/// The class of a code.
[[nodiscard]] constexpr WordClass wordClass(int code)
{
    constexpr int kClassBits = 27;
    return code < 0 ? WordClass::Unknown : WordClass(code >> kClassBits);
}

/// What of a code is not its class.
[[nodiscard]] constexpr int wordContent(int code)
{
    constexpr int kContentMask = (1 << 27) - 1;
    return code & kContentMask;
}

// --- Point expressions ------------------------------------------------------------------------

/// Points of an expression beyond the point index.
enum ExpressionPoint : int
{
    kKarakaBase = 64,  ///< 64 to 71: the chara karakas of the list of eight, Atma to Dara
    kWeekdayLord = 72, ///< lord of the running weekday
    kHoraLord = 73,    ///< lord of the running hora
};

/// A step of a point expression. Steps 1 to 12 lead to the lord of that house from the point.
enum PointStep : int
{
    kNoStep = 0,
    kDispositor = 13,     ///< D. lord of the sign in which the point stands
    kNakshatraStep = 14,  ///< N. Vimshottari lord of its nakshatra
    kNavamshaLord = 15,   ///< V. lord of its navamsha sign
    kExaltationLord = 16, ///< X. lord of the sign in which the planet is exalted
    kExaltedHere = 17,    ///< E. the planet that is exalted in its sign
    kSecondChart = 18,    ///< T. the same point in the second chart
    kInRashi = 19,        ///< R. what follows is found in the rashi
    kPlaceOfHouse2 = 20,  ///< B2. the place of the 2nd house from the point; 30 is B12.
    kArudhaStep = 31,     ///< A. the arudha of the planet
};

inline constexpr int kMaxPointSteps = 4;

/// The base of a point code: a point 0 to 62 or an ExpressionPoint.
[[nodiscard]] constexpr int pointBase(int code)
{
    return code & 127;
}

/// Step 0 to 3 of a point code; step 0 is done first.
[[nodiscard]] constexpr int pointStep(int code, int index)
{
    return (code >> (7 + 5 * index)) & 31;
}

/// The code of a point without steps.
[[nodiscard]] constexpr int pointCode(int point)
{
    return (int(WordClass::Point) << 27) | point;
}

// --- Sets of planets --------------------------------------------------------------------------

/// Sets whose members depend on the chart.
enum PlanetSet : int
{
    kNamedPlanets = 0, ///< the members stand in the mask
    kBenefics,         ///< natural benefics, Sun to Ketu
    kMalefics,         ///< natural malefics, Sun to Ketu
    kFunctionalBenefics,
    kFunctionalMalefics,
    kYogakarakas,
    kMarakas,
    kKendraLords,
    kTrikonaLords,
    kDusthanaLords,
    kUpachayaLords,
    kPanapharaLords,
    kApoklimaLords,
    kMarakaLords,
    kRetrogradePlanets,
    kCombustPlanets,
    kExaltedPlanets,
    kOwnSignPlanets,
    kDebilitatedPlanets,
    kClusterPlanets, ///< those that share the sign with the most planets, when these are four
    kPlanetSets
};

/// How many members of a set have to pass a test.
enum class Quantifier : int
{
    None = 0, ///< a set without quantifier; in a test it counts as Any
    Any,      ///< at least one; also "min1"
    All,      ///< every member, and there is one
    No,       ///< no member
    AtLeast,
    AtMost,
    Exactly,
};

struct SetWord
{
    Quantifier quantifier = Quantifier::None;
    int count = 0; ///< of the last three quantifiers
    bool secondChart = false;
    PlanetSet set = kNamedPlanets;
    bool without = false;   ///< the mask is taken off the set; otherwise it is added
    std::uint32_t mask = 0; ///< bit n is planet n, 1 to 9
};

[[nodiscard]] SetWord setWord(int code);
[[nodiscard]] int setCode(const SetWord& word);

// --- Houses and signs -------------------------------------------------------------------------

/// The houses or signs of a code or number, bit n for n = 1 to 12; 0 when it is none.
[[nodiscard]] std::uint32_t twelveMask(int code, WordClass wanted);

// --- Plain words ------------------------------------------------------------------------------

/// Words that stand for themselves. The order is that of their table.
enum PlainWord : int
{
    // Aspects.
    kWordGraha,
    kWordShare,
    kWordValue,
    kWordSign,
    // Dignities, from the lowest to the highest.
    kWordDebilitated,
    kWordGreatEnemy,
    kWordEnemy,
    kWordNeutral,
    kWordFriend,
    kWordGreatFriend,
    kWordOwn,
    kWordMoolatrikona,
    kWordExalted,
    // Exchanges.
    kWordMaha,
    kWordKhala,
    kWordDainya,
    // Wars.
    kWordWon,
    kWordLost,
    // Functional and natural nature.
    kWordYogakaraka,
    kWordBenefic,
    kWordMalefic,
    kWordMaraka,
    kWordNoNature,
    // Measures of strength.
    kWordShadbala,
    kWordRequired,
    kWordVimshopaka,
    kWordBindus,
    kWordSarva,
    kWordDegree,
    kWordIshta,
    // Sets of vimshopaka.
    kWordVim16,
    kWordVim10,
    kWordVim7,
    kWordVim6,
    // Motion.
    kWordFast,
    kWordSlow,
    kWordRetrograde,
    kWordDirect,
    kWordTurning,
    kWordStation,
    // Time and native.
    kWordDay,
    kWordNight,
    kWordWaxing,
    kWordWaning,
    kWordMale,
    kWordFemale,
    // Relationships.
    kWordNatural,
    kWordCompound,
    kPlainWords
};

/// The plain word of a code, or nothing.
[[nodiscard]] std::optional<PlainWord> plainWord(int code);

/// The word as rules write it.
[[nodiscard]] std::string_view plainWordText(PlainWord word);

// --- Words in sentences -----------------------------------------------------------------------

/// A point expression in words: "the lord of the 5th from the Moon".
[[nodiscard]] std::wstring pointWords(int code);

/// A set in words, without its quantifier: "the natural benefics besides the Moon".
[[nodiscard]] std::wstring setWords(const SetWord& word);

/// "one of ", "none of ", "at least 2 of " ...
[[nodiscard]] std::wstring quantifierWords(const SetWord& word);

/// Houses and signs of a mask: "1, 4, 7 or 10".
[[nodiscard]] std::wstring houseWords(std::uint32_t mask);
[[nodiscard]] std::wstring signWords(std::uint32_t mask);

/// "a, b or c".
[[nodiscard]] std::wstring orList(const std::vector<std::wstring>& items);

/// Any other code in words, as "1st, 4th, 7th or 10th" or "exalted".
[[nodiscard]] std::wstring codeWords(int code);

} // namespace kestrav::yoga
