// The words and numbers of which explanations are made, and the names that queries use.
#pragma once

#include "analysis/Explain.h"
#include "analysis/StrengthParts.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::analysis::explaining
{

/// What a query asks of a point. `detail` is the last part of the query, or empty.
struct Request
{
    const core::Chart& chart;
    const core::Settings& settings;
    int point = 0;
    std::string_view detail = {};
};

using Answer = core::Result<Explanation>;

inline void append(std::wstring& out, std::wstring_view part)
{
    out += part;
}
inline void append(std::wstring& out, int number)
{
    out += std::to_wstring(number);
}

/// The parts, texts and whole numbers, one after the other.
template <typename... Parts>
[[nodiscard]] std::wstring text(const Parts&... parts)
{
    std::wstring out;
    (append(out, parts), ...);
    return out;
}

/// The text with a capital letter in front.
[[nodiscard]] std::wstring capitalised(std::wstring_view text);

/// Adds a step: the parts as a sentence with capital letter and full stop.
template <typename... Parts>
void step(Explanation& explanation, const Parts&... parts)
{
    explanation.steps.push_back(capitalised(text(parts..., L".")));
}

/// Adds the settings of these names: "horaMethod = 0: what the setting means".
void addSettings(Explanation& explanation, const core::Settings& settings,
                 std::initializer_list<std::string_view> names);

/// An explanation of a subject, with a capital letter in front.
[[nodiscard]] Explanation about(std::wstring_view subject);

/// A number with so many decimals, the same in every locale; never "-0.00".
[[nodiscard]] std::wstring decimal(double value, int places = 2);

/// "12.34 virupas", or "not computed".
[[nodiscard]] std::wstring virupas(const Strength& strength);

/// Degrees with minutes and seconds.
[[nodiscard]] std::wstring angle(double degrees);

/// Position in the sign of a longitude, which is reduced into the circle first.
[[nodiscard]] std::wstring placeText(double longitude);

/// A local clock time; '-' and '+' mark the day before and the day after.
[[nodiscard]] std::wstring clockText(const core::Settings& settings, double hours);

/// "1st", "2nd" ...
[[nodiscard]] std::wstring ordinal(int number);

/// "a, b and c"; "none" for an empty list.
[[nodiscard]] std::wstring listText(const std::vector<std::wstring>& items);

/// The point in a sentence: "the Sun", "Mars", "house 4", "the arudha of house 3".
[[nodiscard]] std::wstring nameOf(int point);

/// Name of a varga in a sentence, without the full stop that one of them has.
[[nodiscard]] std::wstring vargaText(int varga);

/// "Scorpio" and the like; "no sign" for 0.
[[nodiscard]] std::wstring signText(int sign);

/// The word of a dignity or relationship code, -3 to 4. Tables of divisional charts show the word
/// of code + 3 instead, which for an exalted point is that of moolatrikona.
[[nodiscard]] std::wstring_view codeText(int code);

/// Why a point has no position in the chart.
[[nodiscard]] std::wstring whyNoPosition(const core::Chart& chart, int point);

/// Why a chart lacks what belongs to its day or moment; without such a reason it lacks a position.
[[nodiscard]] std::wstring whyIncomplete(const core::Chart& chart);

/// An explanation of what could not be computed.
[[nodiscard]] Explanation notComputed(Explanation explanation, std::wstring_view why);

/// The letters and digits of a name in lower case, so that names compare without blanks.
[[nodiscard]] std::string plainName(std::string_view name);
[[nodiscard]] std::string plainName(std::wstring_view name);

/// The point, varga or sign of an English name in a query, or of its number.
[[nodiscard]] std::optional<int> findPoint(std::string_view name);
[[nodiscard]] std::optional<int> findVargaName(std::string_view name);
[[nodiscard]] std::optional<int> findSign(std::string_view name);

/// The error for a part of a query: "explain 'mars:x': ..." without the query.
[[nodiscard]] core::Error unknown(std::string_view what, std::string_view given,
                                  std::string_view possible);

/// The English names of points first to last for the list of an error.
[[nodiscard]] std::string pointList(int first, int last);

} // namespace kestrav::analysis::explaining
