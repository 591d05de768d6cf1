// The explanations of derived results that --explain asks for.
#pragma once

#include "analysis/Explain.h"
#include "app/cli/Arguments.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"
#include "core/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

/// Whether "--explain list" was typed, which needs no chart.
[[nodiscard]] bool asksForTopics(const Arguments& arguments);

/// What can be explained.
[[nodiscard]] std::wstring topicsText();
[[nodiscard]] Json topicsJson(std::string_view command);

/// The explanations in the order of the queries. The error names a query that is not understood.
[[nodiscard]] core::Result<std::vector<analysis::Explanation>>
explanationsOf(const Arguments& arguments, const ComputedChart& computed);

/// Nothing when there are none.
[[nodiscard]] std::wstring explanationsText(const std::vector<analysis::Explanation>& explanations);
[[nodiscard]] Json explanationsJson(const std::vector<analysis::Explanation>& explanations);

} // namespace kestrav::cli
