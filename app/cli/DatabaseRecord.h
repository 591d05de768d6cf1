// The record that a database keeps about a chart: typed, and shown.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "app/cli/JsonValues.h"
#include "core/Chart.h"
#include "core/Result.h"

#include <array>
#include <string>

namespace kestrav::cli
{

/// The fields that no computation reads.
inline constexpr std::array<OptionInfo, 16> kRecordOptions = {{
    {"--tag", "LETTER", "A or B for the groups, N now, L location, P primary; empty for none"},
    {"--label", "TEXT", "label, at most 29 characters"},
    {"--sex", "M|F", "sex; empty for none"},
    {"--code", "TEXT", "three characters that link a chart to its primary"},
    {"--country", "TEXT", "country or state, at most 20 characters"},
    {"--sound", "TEXT", "first sound of the name in its Sanskrit equivalent, one or two letters"},
    {"--occupation", "TEXT", "occupation, at most 30 characters"},
    {"--status", "LETTER", "status"},
    {"--free-text", "TEXT", "free text, at most 20 characters"},
    {"--second-date", "YYYY-MM-DD", "a second date; empty for none"},
    {"--third-date", "YYYY-MM-DD", "a third date; empty for none"},
    {"--numbers", "N,N", "the two numbers kept with the chart"},
    {"--notes", "TEXT", "notes, at most 7000 characters, line ends included"},
    {"--contact", "FIELD=TEXT",
     "name, street, city, state, postcode, country, telephone1, telephone2, fax, email or "
     "sortCode; "
     "may be repeated",
     true},
    {"--event", "DATE[THH:MM]=NAME", "an event of the life; may be repeated, 39 fit", true},
    {"--clear-events", "", "take the events away before those of --event"},
}};

/// Changes in the record what was typed. Texts that are too long are refused.
[[nodiscard]] core::Result<void> applyRecordOptions(const Arguments& arguments, core::Chart& chart);

/// Whether any of the record's options was typed.
[[nodiscard]] bool hasRecordOptions(const Arguments& arguments);

/// The record with every field under the names of the data model.
[[nodiscard]] Json recordJson(const core::Chart& chart);

/// The record in labelled lines, empty fields left out.
[[nodiscard]] std::wstring recordText(const core::Chart& chart);

} // namespace kestrav::cli
