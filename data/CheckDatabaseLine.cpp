#include "data/CheckDatabaseLine.h"

#include "analysis/ComputeChart.h"
#include "analysis/Upagrahas.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/DatabaseMessages.h"
#include "data/FieldReader.h"
#include "data/ResearchLine.h"

namespace kestrav::data
{

namespace
{

bool goesOn(core::Messages& messages, const std::wstring& text)
{
    return messages.show(kNoticeCaption, text, core::Buttons::OkCancel) != core::Answer::Cancel;
}

bool nameMissing(std::string_view line)
{
    FieldReader fields(line);
    fields.unquoted(1);
    fields.skipText(1);
    return fields.text(kNameLength).empty();
}

} // namespace

bool testLine(ChartDatabase& database, std::size_t index, core::Messages& messages, bool& cancelled)
{
    const std::string_view line = database.line(index);
    if (isShortLine(line)) {
        cancelled = !goesOn(messages, shortLineMessage(index, line, true));
        return false;
    }
    if (!nameMissing(line)) {
        return true;
    }
    cancelled = !goesOn(messages, noNameMessage(index, line));
    if (cancelled) {
        return false;
    }
    // The parser has put the name in already.
    core::Chart chart;
    database.replace(index, database.read(index, chart));
    return true;
}

LineCheck CheckDatabaseLine(ChartDatabase& database, std::size_t index, CheckMode mode,
                            const core::Settings& settings, astro::EphemerisContext& context,
                            core::Chart& chart, core::Messages& messages)
{
    LineCheck check;
    if (!testLine(database, index, messages, check.cancelled)) {
        return check;
    }
    database.read(index, chart);
    computeForResearch(chart, settings, context);
    check.computed = true;
    if (mode == CheckMode::Research) {
        check.researchLine = FormatResearchLine(chart);
    }
    return check;
}

void computeForResearch(core::Chart& chart, const core::Settings& settings,
                        astro::EphemerisContext& context)
{
    analysis::ComputeChart(chart, settings, context);
    analysis::computeUpagrahas(chart, settings.upagrahaAtMiddle);
}

} // namespace kestrav::data
