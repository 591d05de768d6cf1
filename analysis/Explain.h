// How a derived result came about: the rule in words, with the values it used and the settings in
// force.
#pragma once

#include "core/Chart.h"
#include "core/Result.h"
#include "core/Settings.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::analysis
{

struct Explanation
{
    std::wstring subject;               ///< "Mars in the Navamsha"
    std::wstring result;                ///< the value in words
    std::vector<std::wstring> steps;    ///< the rule with its values, one sentence each
    std::vector<std::wstring> settings; ///< "horaMethod = 0: what it means", those that take part
};

/// Explains a result of a chart that was computed and analysed under the same settings. The query
/// is "POINT:RESULT" or "POINT:RESULT:DETAIL" in English names without regard to case, such as
/// "mars:navamsha" or "moon:aspect:saturn"; blanks in names may be left out. A value that the chart
/// does not have, for want of a moment or a position, is explained as not computed. The error for a
/// part that is unknown, or that the point does not have, names it and lists what is possible.
[[nodiscard]] core::Result<Explanation>
explain(const core::Chart& chart, const core::Settings& settings, std::string_view query);

/// One form of query.
struct ExplainTopic
{
    std::string_view form;    ///< "POINT:dignity:VARGA"; words in capitals stand for names
    std::string_view meaning; ///< one sentence
    std::string_view example; ///< a query of this form
    bool (*appliesTo)(int);   ///< whether a point of the index has such a result
};

/// Every form of query, for help texts, documentation and completion.
[[nodiscard]] std::span<const ExplainTopic> explainTopics();

} // namespace kestrav::analysis
