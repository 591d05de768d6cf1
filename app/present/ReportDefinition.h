// Which sections a report has, and the small file that says so.
#pragma once

#include "app/present/DiagramOptions.h"
#include "core/Result.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

enum class ReportSection : std::uint8_t
{
    BirthData,
    Chart, ///< diagrams of divisional charts
    Positions,
    Vargas,
    Dignities,
    Strengths,
    Ashtakavarga,
    Dashas,
    Panchanga,
    Yogas,
    Transits,
    Notes,
    Events,
    PageBreak,
};

inline constexpr int kReportSections = 14;

/// The name in files and options: "birth-data", "chart" and so on.
[[nodiscard]] std::string_view reportSectionName(ReportSection section);
[[nodiscard]] std::optional<ReportSection> findReportSection(std::string_view name);

/// A section with its choices. Those that a section does not have keep their defaults.
struct ReportPart
{
    ReportSection section = ReportSection::BirthData;
    std::vector<int> vargas = {0, 5};  ///< chart: the diagrams; ashtakavarga: the first one counts
    std::optional<DiagramStyle> style; ///< chart; none for the one the user has chosen
    int levels = 2;                    ///< dashas, 1 to 5
    int lines = 100;                   ///< dashas: most periods, 1 to 10000
    int days = 30;                     ///< transits from the day of the report, 1 to 366

    bool operator==(const ReportPart&) const = default;
};

struct ReportDefinition
{
    std::string name;
    std::vector<ReportPart> parts;

    bool operator==(const ReportDefinition&) const = default;
};

/// Reads a definition. The error names what is wrong and its line.
[[nodiscard]] core::Result<ReportDefinition> readReportDefinition(std::string_view bytes);

/// The file of a definition, which reads back equal.
[[nodiscard]] std::string writeReportDefinition(const ReportDefinition& definition);

/// A report of sections by their names with their usual choices. The error names what is unknown.
[[nodiscard]] core::Result<ReportDefinition>
reportOfSections(const std::vector<std::string>& names);

} // namespace kestrav::present
