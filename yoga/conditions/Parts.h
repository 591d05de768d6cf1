// Small pieces that several tests share.
#pragma once

#include "analysis/ExplainText.h"
#include "core/Angles.h"
#include "yoga/conditions/Evaluation.h"

#include <string>
#include <string_view>

namespace kestrav::yoga
{

namespace explaining = analysis::explaining;
using explaining::decimal;
using explaining::ordinal;
using explaining::signText;
using explaining::text;

/// The house, 1 to 12, of a sign 1 to 12 counted from another one.
[[nodiscard]] constexpr int houseFrom(int sign, int reference)
{
    return sign - reference + (sign < reference ? 13 : 1);
}

/// The way from one longitude to another in the order of the zodiac, 0 to under 360.
[[nodiscard]] inline double wayTo(double from, double to)
{
    return core::Normalize360(to - from);
}

/// Degrees and minutes as degrees.
[[nodiscard]] inline double withMinutes(int degrees, int minutes)
{
    constexpr double kMinutes = 60.0;
    return degrees + (minutes < 0 ? 0 : minutes) / kMinutes;
}

/// Whether a planet casts a full graha aspect from one sign on another.
[[nodiscard]] bool aspectsSign(int planet, int from, int to, const core::Settings& settings);

/// The sign of a place as "Leo", or its degrees as text.
[[nodiscard]] inline std::wstring degreesText(double longitude)
{
    return explaining::angle(longitude);
}

/// Numbers or plain words of a list: "3, 5 or 7".
[[nodiscard]] std::wstring listWords(std::uint64_t list);
[[nodiscard]] std::wstring plainListWords(std::uint64_t list);

/// "In the Navamsha: " and the like, in small letters; empty for the rashi of the native.
[[nodiscard]] std::wstring contextWords(const Arguments& arguments);

} // namespace kestrav::yoga
