// The functions that explain the single results. Each takes a point that has such a result; the
// error of one names the detail that is unknown.
#pragma once

#include "analysis/ExplainText.h"

#include <string_view>

namespace kestrav::analysis::explaining
{

// Divisional charts.
[[nodiscard]] Answer explainVarga(const Request& request, int varga);
[[nodiscard]] Answer explainVimshopaka(const Request& request);
[[nodiscard]] Answer explainTwentySecondDrekkana(const Request& request);

// Dignities.
[[nodiscard]] Answer explainDignity(const Request& request);
[[nodiscard]] Answer explainRelationship(const Request& request);
[[nodiscard]] Answer explainCombustion(const Request& request);
[[nodiscard]] Answer explainNature(const Request& request);

// Strengths.
[[nodiscard]] Answer explainStrength(const Request& request);
[[nodiscard]] Answer explainBhavaBala(const Request& request);
[[nodiscard]] Answer explainRashmi(const Request& request);
[[nodiscard]] Answer explainAvastha(const Request& request);
[[nodiscard]] Answer explainKaraka(const Request& request);
[[nodiscard]] Answer explainAspect(const Request& request);
[[nodiscard]] Answer explainMotion(const Request& request);

// Ashtakavarga.
[[nodiscard]] Answer explainBindu(const Request& request);
[[nodiscard]] Answer explainAshtakavarga(const Request& request);
[[nodiscard]] Answer explainKakshya(const Request& request);

// Longitudes.
[[nodiscard]] Answer explainLongitude(const Request& request);
[[nodiscard]] Answer explainArudha(const Request& request);
[[nodiscard]] Answer explainSaham(const Request& request);
[[nodiscard]] Answer explainSphuta(const Request& request);

/// The names of the parts of shadbala, as explainStrength knows them.
[[nodiscard]] bool isStrengthPart(std::string_view name);
[[nodiscard]] std::string strengthPartList();

/// Adds how points 24 to 30, 59 and 60 come about. They have a position.
void addLagnaSteps(Explanation& explanation, const Request& request);

/// Adds how a saham of the list comes about.
void addSahamSteps(Explanation& explanation, const Request& request, int saham);

/// Adds how the arudha of a house comes about in a varga.
void addArudhaSteps(Explanation& explanation, const Request& request, int varga, int house);

/// The house, 1 to 12, whose arudha a point is; 0 for every other point.
[[nodiscard]] int arudhaHouse(int point);

/// Adds the settings that choose the rule of a varga.
void addPlacementSettings(Explanation& explanation, const core::Settings& settings, int varga);

/// Adds the settings that choose the lords from which arudhas are computed.
void addCoLordSettings(Explanation& explanation, const core::Settings& settings);

/// Adds the relationship of a planet 1 to 7 towards another in a varga.
void addRelationshipSteps(Explanation& explanation, const Request& request, int planet, int other,
                          int varga, int sign);

} // namespace kestrav::analysis::explaining
