// Every table of a chart by its name, for commands, reports and panels.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "astro/DataFile.h"
#include "core/Result.h"
#include "yoga/YogaLibrary.h"

#include <functional>
#include <span>
#include <string_view>

namespace kestrav::present
{

/// What tables are made from.
struct TableSource
{
    const ComputedChart& computed;
    const astro::Series& series;
    int varga = 0;       ///< of the tables that show one divisional chart
    int nameLetter = 0;  ///< group 1 to 5 of the first sound of the name; 0 when not known
    int levels = 2;      ///< of dasha lists, 1 to 5
    long long lines = 0; ///< most periods of a dasha list; 0 for as many as fit in a life
    double moment = 0.0; ///< Julian day (Universal Time) of running periods and of the first day
    int days = 0;        ///< of tables of days; 0 for the usual number of each
    const yoga::YogaLibrary* yogas = nullptr;              ///< none when no yoga file is loaded
    const core::Chart* bride = nullptr;                    ///< of the comparison
    const core::Chart* groom = nullptr;                    ///< of the comparison
    const astro::MatchingTables* matchingTables = nullptr; ///< needed with the two
};

struct TableInfo
{
    std::string_view id;
    std::wstring_view meaning; ///< one line for lists and help
    std::function<core::Result<Table>(const TableSource&)> maker;

    /// The table, with a mark at points whose positions the user changed.
    [[nodiscard]] core::Result<Table> make(const TableSource& source) const;
};

/// All tables in the order in which they are listed.
[[nodiscard]] std::span<const TableInfo> allTables();

/// The table of a name, or nothing.
[[nodiscard]] const TableInfo* findTable(std::string_view id);

} // namespace kestrav::present
