#include "app/cli/DashaOutput.h"

#include "app/cli/ChartText.h"
#include "app/present/TableWriters.h"
#include "timing/Balance.h"
#include "timing/DashaTable.h"
#include "timing/KalaChakra.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace kestrav::cli
{

namespace
{

using timing::DashaPeriod;
using timing::LordKind;

Json periodJson(const DashaPeriod& period, const timing::Dasha& dasha)
{
    Json object;
    object["level"] = period.level;
    object["lord"] = period.lord();
    object["lords"] = Json(std::vector<int>(period.lords.begin(),
                                            period.lords.begin() + std::ptrdiff_t(period.level)));
    object["startAge"] = numberJson(period.startAge + 0.0); // no negative zero
    object["length"] = numberJson(period.length);
    object["startJulianDay"] = numberJson(period.startJulianDay);
    object["startDate"] = std::isfinite(period.startJulianDay)
                              ? dateJson(dasha.calendar.dateOf(period.startJulianDay))
                              : Json();
    return object;
}

Json periodsJson(const std::vector<DashaPeriod>& periods, const timing::Dasha& dasha)
{
    Json list = Json::array();
    for (const DashaPeriod& period : periods) {
        list.push_back(periodJson(period, dasha));
    }
    return list;
}

Json balanceJson(const core::Chart& chart)
{
    const std::optional<timing::DashaBalance> balance = timing::balanceAtBirth(chart);
    if (!balance) {
        return {};
    }
    Json object;
    object["lord"] = balance->lord;
    object["years"] = balance->years;
    object["months"] = balance->months;
    object["days"] = balance->days;
    object["text"] = textJson(timing::balanceLine(*balance));
    return object;
}

Json systemJson(int system)
{
    Json object;
    object["index"] = system;
    object["name"] = textJson(present::dashaSystemName(system));
    object["lords"] = std::string(present::lordKindName(present::dashaLordKind(system)));
    return object;
}

Json conditionalJson(const std::optional<std::vector<int>>& systems)
{
    if (!systems) {
        return {};
    }
    Json list = Json::array();
    for (const int system : *systems) {
        list.push_back(systemJson(system));
    }
    return list;
}

Json referencesJson(const core::Chart& chart)
{
    Json list = Json::array();
    for (const int point : present::kSudarshanaReferences) {
        Json object;
        object["point"] = point;
        object["sign"] = chart.computed(point) ? Json(core::at(chart.rashi, point)) : Json();
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace

std::wstring dashaSystemsText()
{
    return present::tableText(present::dashaSystemsTable());
}

Json dashaSystemsJson()
{
    Json list = Json::array();
    for (int system = 0; system < timing::kNamedDashaSystems; ++system) {
        Json object = systemJson(system);
        object["cycleYears"] = numberJson(present::dashaCycleYears(system));
        object["fromNakshatra"] = timing::startsFromNakshatra(system);
        object["conditional"] = present::isConditionalDasha(system);
        list.push_back(std::move(object));
    }
    return list;
}

std::wstring dashaText(const ComputedChart& computed, const DashaResult& result)
{
    std::vector<present::Table> tables = {present::dashaSummary(computed, result)};
    if (result.conditional) {
        tables.push_back(present::conditionalDashasTable(*result.conditional));
    }
    tables.push_back(result.moment ? present::runningDashasTable(computed, result)
                                   : present::dashaPeriodsTable(computed, result));
    return tablesText(tables);
}

void addDashaJson(Json& object, const ComputedChart& computed, const DashaResult& result)
{
    const timing::DashaPlan& plan = result.dasha.plan;
    object["system"] = systemJson(result.options.system);
    object["balance"] = balanceJson(computed.chart);
    object["periods"] = periodsJson(result.periods, result.dasha);
    object["running"] = result.moment ? periodsJson(result.running, result.dasha) : Json();
    object["label"] =
        plan.kalaChakraRow >= 0 ? textJson(timing::kalaChakraLabel(plan.kalaChakraRow)) : Json();
    object["conditional"] = conditionalJson(result.conditional);
    object["references"] =
        plan.lordKind == LordKind::House ? referencesJson(computed.chart) : Json();
}

} // namespace kestrav::cli
