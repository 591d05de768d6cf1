// Avasthas: the states of the bodies in five families.
#pragma once

#include "analysis/StrengthInputs.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrav::analysis
{

/// By age: the fifth of the sign, counted backwards in even signs.
enum class Baladi
{
    Bala,
    Kumara,
    Yuva,
    Vriddha,
    Mrita,
};

/// By wakefulness.
enum class Jagradadi
{
    Jagrat,   ///< own sign, moolatrikona or exalted
    Swapna,   ///< neutral or friendly sign
    Sushupti, ///< hostile sign or debilitated
};

/// By dignity, best first.
enum class Deeptadi
{
    Deepta,    ///< exalted
    Swastha,   ///< own sign or moolatrikona
    Pramudita, ///< great friend's sign
    Shanta,    ///< friend's sign
    Dina,      ///< neutral sign
    Dukhita,   ///< enemy's sign
    Khala,     ///< great enemy's sign or debilitated
};

struct DeeptadiState
{
    Deeptadi state = Deeptadi::Deepta;
    bool vikala = false; ///< another natural malefic stands in the sign
    bool kopa = false;   ///< combust
};

/// By company and aspect; several can hold at once.
enum class Lajjitadi
{
    Lajjita,
    Garvita,
    Kshudhita,
    Trishita,
    Mudita,
    Kshobhita,
};

/// By occupation; the values are the remainders of the count.
enum class Shayanadi
{
    Shayana = 1,
    Upavesha,
    Netrapani,
    Prakasha,
    Gamana,
    Agamana,
    Sabha,
    Agama,
    Bhojana,
    Nrityalipsa,
    Kautuka,
    Nidra,
};

/// How strongly the occupation works; the values are the remainders of the count.
enum class ShayanadiPart
{
    Vicheshta = 0,
    Drishti = 1,
    Cheshta = 2,
};

struct ShayanadiState
{
    Shayanadi state = Shayanadi::Nidra;
    std::optional<ShayanadiPart> part; ///< empty without a name-letter value
};

struct Avasthas
{
    int point = 0;
    std::optional<Baladi> baladi;
    std::optional<Jagradadi> jagradadi;
    std::optional<DeeptadiState> deeptadi;
    std::vector<Lajjitadi> lajjitadi;        ///< in the order of the enumeration
    std::optional<ShayanadiState> shayanadi; ///< empty where the time since sunrise is not known
};

/// The states of the bodies Sun to Ketu; entry 0 is unused. Needs the compound relationships.
/// `nameLetterValue` is 1 to 5 from the first syllable of the name, 0 when unknown.
[[nodiscard]] std::array<Avasthas, 10> computeAvasthas(const core::Chart& chart,
                                                       const StrengthInputs& inputs,
                                                       int nameLetterValue,
                                                       const core::Settings& settings);

/// The numbers that are counted together for the occupation of a body.
struct ShayanadiCount
{
    int star = 0;      ///< nakshatra of the body, 1 to 27
    int body = 0;      ///< its number, Sun 1 to Ketu 9
    int navamsha = 0;  ///< its navamsha part in the sign, 1 to 9
    int moonStar = 0;  ///< nakshatra of the Moon
    int ghati = 0;     ///< running ghati since sunrise, the first is 1
    int ascendant = 0; ///< sign of the ascendant

    [[nodiscard]] int total() const
    {
        return star * body * navamsha + moonStar + ghati + ascendant;
    }
};

/// Nothing where the time since sunrise, the Moon or the ascendant is not known.
[[nodiscard]] std::optional<ShayanadiCount> shayanadiCount(const core::Chart& chart,
                                                           const StrengthInputs& inputs, int body);

/// The sub-state of an occupation of body 1 to 9 for a name-letter value 1 to 5.
[[nodiscard]] ShayanadiPart shayanadiPart(Shayanadi state, int body, int nameLetterValue);

/// The first syllables that have name-letter value 1 to 5; a dot marks a retroflex.
[[nodiscard]] std::wstring_view nameLetters(int nameLetterValue);

/// The names of the states.
[[nodiscard]] std::wstring_view avasthaName(Baladi state);
[[nodiscard]] std::wstring_view avasthaName(Jagradadi state);
[[nodiscard]] std::wstring_view avasthaName(Deeptadi state);
[[nodiscard]] std::wstring_view avasthaName(Lajjitadi state);
[[nodiscard]] std::wstring_view avasthaName(Shayanadi state);
[[nodiscard]] std::wstring_view avasthaName(ShayanadiPart part);
inline constexpr std::wstring_view kVikalaName = L"Vikala";
inline constexpr std::wstring_view kKopaName = L"Kopa";

} // namespace kestrav::analysis
