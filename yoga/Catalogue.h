// The catalogue of conditions: every kind with its number, keyword, parameters and meaning. The
// evaluator, the editor, the help and the documentation read this one table.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kestrav::yoga
{

/// What a parameter takes.
enum class ParameterType : int
{
    None = 0,
    Subject,   ///< a point expression, or a set of planets with a quantifier
    Point,     ///< a point expression
    Set,       ///< a set of planets without quantifier, or one planet
    Houses,    ///< numbers 1 to 12 and words for houses
    Signs,     ///< numbers 1 to 12 and words for signs
    Nakshatra, ///< names, or numbers 1 to 27
    Number,    ///< a number within the range of the parameter
    Word,      ///< one of the plain words of the parameter
};

struct Parameter
{
    ParameterType type = ParameterType::None;
    std::string_view name = {};
    bool optional = false;
    bool repeated = false; ///< takes every word that follows; only the last one does
    int lowest = 0;        ///< of a number
    int highest = 0;
    int fallback = 0;        ///< value of an absent number
    std::uint64_t words = 0; ///< the plain words that it takes, bit n for PlainWord n
};

inline constexpr std::size_t kMaxParameters = 6;

/// Numbers of kinds are above 0 and below this.
inline constexpr int kMaxKindNumber = 128;

/// What a condition reads of a chart. Every level contains the ones before it.
enum class Needs : int
{
    Nothing = 0,
    Signs,     ///< the signs of a research line
    Positions, ///< longitudes and motions of a research line
    Chart,     ///< an analysed chart
    Strengths, ///< an analysed chart and its shadbala
};

/// The kind that compares two divisional charts whatever its words say.
inline constexpr int kVargottamaKind = 15;

struct Kind
{
    int number = 0;
    std::string_view keyword;
    std::string_view group; ///< heading under which lists show it
    std::array<Parameter, kMaxParameters> parameters = {};
    std::string_view sentence; ///< the condition in words, with its parameters in braces
    std::string_view meaning;  ///< one or two sentences
    std::string_view example;  ///< a whole condition
    std::string_view exampleMeaning;
    Needs needs = Needs::Signs; ///< at least; points and sets in the words can need more
    bool rashiOnly = false;     ///< what it tests is the same in every divisional chart

    /// The parameters that there are.
    [[nodiscard]] std::span<const Parameter> used() const;
};

/// All kinds in the order of their numbers.
[[nodiscard]] std::span<const Kind> kinds();

/// The kind of a number below kSecondChartKinds, or null.
[[nodiscard]] const Kind* findKind(int number);

/// The kind of a keyword, or null.
[[nodiscard]] const Kind* findKind(std::string_view keyword);

/// "InHouse,,<subject>[,<from>],<houses>...", the form of a condition without prefix.
[[nodiscard]] std::string kindForm(const Kind& kind);

/// Whether a type of parameter takes its value from words 4 to 6 of a prefix when they name points.
[[nodiscard]] constexpr bool isPointLike(ParameterType type)
{
    return type == ParameterType::Subject || type == ParameterType::Point ||
           type == ParameterType::Set;
}

/// A whole rule as an example of how conditions work together.
struct RuleExample
{
    std::string_view rule;
    std::string_view meaning;
};

[[nodiscard]] std::span<const RuleExample> ruleExamples();

/// The catalogue as a Markdown page.
[[nodiscard]] std::string catalogueDocument();

} // namespace kestrav::yoga
