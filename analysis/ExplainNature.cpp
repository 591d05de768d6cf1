#include "analysis/ExplainTopics.h"

#include "analysis/DignityTables.h"
#include "analysis/FunctionalNature.h"
#include "analysis/Motion.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

#include <array>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

std::wstring fieldsText(const Nature& nature)
{
    std::vector<std::wstring> fields;
    const auto add = [&fields](bool set, std::wstring_view field) {
        if (set) {
            fields.emplace_back(field);
        }
    };
    add(nature.yogakaraka, L"yogakaraka");
    add(nature.benefic, L"benefic");
    add(nature.malefic, L"malefic");
    add(nature.maraka, L"maraka");
    return fields.empty() ? L"neutral" : listText(fields);
}

std::vector<std::wstring> lordsIn(const core::Chart& chart, int sign,
                                  std::initializer_list<int> houses)
{
    std::vector<std::wstring> lords;
    for (const int house : houses) {
        const int lord = signLord(core::norm12(chart.rashi[core::kAscendant] + house - 1));
        if (signInVarga(chart, core::kRashi, lord) == sign) {
            lords.push_back(text(nameOf(lord), L" of the ", ordinal(house)));
        }
    }
    return lords;
}

void addNodeSteps(Explanation& explanation, const Request& request)
{
    const core::Chart& chart = request.chart;
    const int sign = at(chart.rashi, request.point);
    const int house = core::norm12(sign - chart.rashi[core::kAscendant] + 1);
    step(explanation, L"the table has no entry for the nodes; ", nameOf(request.point),
         L" is in the ", ordinal(house), L" house from the ascendant");
    step(explanation, L"houses 1, 5 and 9 make a node benefic, 3, 6, 8, 11 and 12 malefic, 2 and 7 "
                      L"maraka");
    std::vector<std::wstring> joined;
    const NatureTable table = chartNatures(chart);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (signInVarga(chart, core::kRashi, planet) == sign) {
            joined.push_back(text(nameOf(planet), L" (", fieldsText(at(table, planet)), L")"));
        }
    }
    step(explanation, L"it takes over what the planets in its sign are but for yogakaraka: ",
         listText(joined));
    step(explanation,
         L"it is yogakaraka, benefic and not malefic, in a kendra with the lord of the "
         L"5th or 9th or in a trikona with a lord of the 1st, 4th, 7th or 10th; lords "
         L"of trikonas with it: ",
         listText(lordsIn(chart, sign, {5, 9})), L"; lords of kendras: ",
         listText(lordsIn(chart, sign, {1, 4, 7, 10})));
}

} // namespace

Answer explainNature(const Request& request)
{
    const core::Chart& chart = request.chart;
    Explanation explanation = about(L"functional nature of " + nameOf(request.point));
    for (const int needed : {int(core::kAscendant), request.point}) {
        if (!chart.computed(needed)) {
            return notComputed(explanation, whyNoPosition(chart, needed));
        }
    }
    const int ascendant = chart.rashi[core::kAscendant];
    const Nature nature = at(chartNatures(chart), request.point);
    explanation.result = text(fieldsText(nature), L" (", natureLabel(nature), L")");
    step(explanation, L"the ascendant is ", signText(ascendant));
    if (request.point >= core::kRahu) {
        addNodeSteps(explanation, request);
    } else {
        step(explanation, L"the table of natures has for ", nameOf(request.point),
             L" under this ascendant: ", fieldsText(at(initialNatures(ascendant), request.point)));
    }
    step(explanation,
         L"the short label is that of the first field that is set of yogakaraka, "
         L"benefic, maraka and malefic: ",
         natureLabel(nature));
    return explanation;
}

Answer explainMotion(const Request& request)
{
    const core::Chart& chart = request.chart;
    const int point = request.point;
    Explanation explanation = about(L"motion of " + nameOf(point));
    if (!chart.computed(point)) {
        return notComputed(explanation, whyNoPosition(chart, point));
    }
    const core::Motion motion = at(chart.motion, point);
    if (motion == core::Motion::None) {
        return notComputed(explanation,
                           text(L"speeds are not known, because ", whyIncomplete(chart)));
    }
    constexpr std::array<std::wstring_view, 7> kWords = {L"not computed",
                                                         L"fast",
                                                         L"slow",
                                                         L"retrograde",
                                                         L"just turned direct",
                                                         L"about to turn retrograde",
                                                         L"stationary retrograde"};
    const double speed = at(chart.speed, point);
    explanation.result = text(at(kWords, int(motion)), L" (", std::wstring(1, motionLetter(motion)),
                              L"), ", decimal(speed, 4), L" degrees a day");
    if (point == core::kRahu || point == core::kKetu) {
        step(explanation, L"the mean nodes always move backwards and count as retrograde");
        return explanation;
    }
    step(explanation, nameOf(point), L" moves ", decimal(speed, 4),
         L" degrees a day; its mean motion is ", decimal(meanDailyMotion(point), 4));
    switch (motion) {
    case core::Motion::Fast:
        step(explanation, L"it is faster than its mean motion");
        break;
    case core::Motion::Slow:
        step(explanation, L"it is direct, not faster than its mean motion and not near a station");
        break;
    case core::Motion::Retrograde:
        step(explanation, L"its speed is below 0");
        break;
    case core::Motion::Station:
        step(explanation, L"its speed is below 0 and less than a tenth of the mean motion");
        break;
    default:
        step(explanation, L"it moves less than a tenth of its mean motion, and its speed ",
             motion == core::Motion::Direct ? L"grows" : L"falls");
        break;
    }
    return explanation;
}

} // namespace kestrav::analysis::explaining
