// The research lines that a command works on.
#pragma once

#include "app/cli/Command.h"
#include "app/cli/DatabaseCommand.h"
#include "astro/Series.h"
#include "core/Result.h"
#include "data/LineList.h"

#include <array>
#include <optional>

namespace kestrav::cli
{

/// Part of a database.
inline constexpr std::array<OptionInfo, 1> kTagOption = {{
    {"--group", "TAG", "only the charts with this tag, such as A or B"},
}};

/// The tag of --group; nothing when it was not typed.
[[nodiscard]] core::Result<std::optional<wchar_t>> typedTag(const Arguments& arguments);

/// Reads the research lines of the database. When they are out of date the user is told and asked
/// whether to refresh them. Nothing after a failure, which has been reported with its exit code in
/// `code`.
[[nodiscard]] std::optional<data::LineList>
openResearch(DatabaseCall& call, const astro::Series& series, ExitCode& code);

/// Builds and stores the research lines anew. Nothing after a failure, as above.
[[nodiscard]] std::optional<data::LineList>
refreshedResearch(DatabaseCall& call, const astro::Series& series, ExitCode& code);

} // namespace kestrav::cli
