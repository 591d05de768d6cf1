// What the transits command prints.
#pragma once

#include "app/cli/JsonValues.h"
#include "timing/SadeSati.h"
#include "timing/TransitEvent.h"
#include "timing/TransitKakshya.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrav::cli
{

/// The lists; those that were not asked for are empty.
struct TransitResult
{
    std::vector<timing::TransitEvent> events;
    std::optional<std::vector<timing::KakshyaStay>> kakshyas;
    std::optional<std::vector<timing::SaturnPhase>> sadeSati;
    timing::TransitLineStyle style;
    double clock = 0.0; ///< hours east of Greenwich
};

/// Adds `events`, `kakshyas` and `sadeSati`.
void addTransitJson(Json& object, const TransitResult& result);

/// The heading and the tables.
[[nodiscard]] std::wstring transitText(const std::wstring& heading, const TransitResult& result);

} // namespace kestrav::cli
