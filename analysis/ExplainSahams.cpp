#include "analysis/ExplainTopics.h"

#include "analysis/DayParts.h"
#include "analysis/DignityTables.h"
#include "analysis/Sahams.h"
#include "analysis/Sphutas.h"
#include "core/Angles.h"

#include <cmath>
#include <cstdlib>

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

std::string nameList(const auto& names)
{
    std::string list;
    for (const std::wstring_view name : names) {
        list += (list.empty() ? "" : ", ") + plainName(name);
    }
    return list;
}

std::wstring termText(const Request& request, const SahamTerm& term)
{
    const core::Chart& chart = request.chart;
    const auto lordOf = [&](int point, int house) {
        return chart.computed(point)
                   ? L", " + nameOf(signLord(core::norm12(at(chart.rashi, point) + house - 1)))
                   : std::wstring();
    };
    switch (term.kind) {
    case SahamTermKind::Body:
        return nameOf(term.number);
    case SahamTermKind::House:
        return text(L"the ascendant's degree in house ", term.number);
    case SahamTermKind::HouseLord:
        return text(L"the lord of house ", term.number, lordOf(core::kAscendant, term.number));
    case SahamTermKind::Dispositor:
        return text(L"the lord of the sign of ", nameOf(term.number), lordOf(term.number, 1));
    case SahamTermKind::Saham:
        return text(L"the ", at(sahamNames(), term.number), L" saham");
    case SahamTermKind::Degree:
        return L"the middle of Cancer";
    }
    return {};
}

std::wstring termWithPlace(const Request& request, const SahamTerm& term)
{
    return text(termText(request, term), L" (", placeText(term.longitude), L")");
}

std::wstring longitudeText(double longitude)
{
    return text(placeText(longitude), L" (", angle(longitude), L")");
}

} // namespace

void addSahamSteps(Explanation& explanation, const Request& request, int saham)
{
    const std::optional<bool> night = isNight(request.chart);
    if (!night) {
        step(explanation, L"whether it is day or night is not known: ",
             whyIncomplete(request.chart));
        return;
    }
    const SahamReckoning reckoning = sahamReckoning(request.chart, saham, *night);
    step(explanation, L"it is ", *night ? L"night" : L"day", L", so the ", at(sahamNames(), saham),
         L" saham is ", termText(request, reckoning.a), L" less ", termText(request, reckoning.b),
         L" plus ", termText(request, reckoning.c));
    step(explanation, L"the values are ", termWithPlace(request, reckoning.a), L", ",
         termWithPlace(request, reckoning.b), L" and ", termWithPlace(request, reckoning.c));
    if (std::isfinite(reckoning.longitude)) {
        step(explanation, L"the third point lies ", reckoning.onTheWay ? L"on" : L"outside",
             L" the way from the second to the first, so ",
             reckoning.onTheWay ? L"nothing is" : L"30 degrees are", L" added");
    }
}

Answer explainSaham(const Request& request)
{
    const auto& names = sahamNames();
    for (int saham = 0; saham < kSahamCount; ++saham) {
        if (plainName(at(names, saham)) != plainName(request.detail)) {
            continue;
        }
        Explanation explanation = about(text(L"the ", at(names, saham), L" saham"));
        const std::optional<double> longitude = at(sahams(request.chart), saham);
        explanation.result = longitude ? longitudeText(*longitude) : L"not computed";
        addSahamSteps(explanation, request, saham);
        if (!longitude) {
            step(explanation, L"one of its points is missing: ", whyIncomplete(request.chart));
        }
        return explanation;
    }
    return unknown("the saham", request.detail, nameList(names));
}

Answer explainSphuta(const Request& request)
{
    const auto all = sphutas(request.chart);
    std::vector<std::wstring_view> names;
    for (int place = 0; place < int(all.size()); ++place) {
        const Sphuta& sphuta = at(all, place);
        names.push_back(sphuta.name);
        if (plainName(sphuta.name) != plainName(request.detail)) {
            continue;
        }
        Explanation explanation = about(text(L"the ", sphuta.name, L" sphuta"));
        std::vector<std::wstring> addends;
        for (const SphutaAddend& addend : sphutaAddends(place)) {
            const int factor = std::abs(addend.factor);
            addends.push_back(text(addend.factor < 0 ? L"less " : L"",
                                   factor > 1 ? text(factor, L" x ") : L"", nameOf(addend.point),
                                   L" (",
                                   request.chart.computed(addend.point)
                                       ? placeText(at(request.chart.longitude, addend.point))
                                       : std::wstring(L"no position"),
                                   L")"));
        }
        step(explanation, L"the longitudes are added and reduced into the circle: ",
             listText(addends));
        if (!sphuta.longitude) {
            return notComputed(explanation, whyIncomplete(request.chart));
        }
        explanation.result = longitudeText(*sphuta.longitude);
        return explanation;
    }
    return unknown("the sphuta", request.detail, nameList(names));
}

} // namespace kestrav::analysis::explaining
