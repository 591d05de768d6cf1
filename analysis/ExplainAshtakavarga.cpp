#include "analysis/ExplainTopics.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

namespace kestrav::analysis::explaining
{

namespace
{

using core::at;

std::wstring rowText(const SignRow12& row)
{
    std::vector<std::wstring> items;
    for (int sign = 1; sign <= 12; ++sign) {
        items.push_back(text(signText(sign), L" ", at(row, sign - 1)));
    }
    return listText(items);
}

std::vector<std::wstring> missingContributors(const core::Chart& chart)
{
    std::vector<std::wstring> missing;
    for (int point = 0; point < kAshtakavargaPoints; ++point) {
        if (!chart.computed(point)) {
            missing.push_back(nameOf(point));
        }
    }
    return missing;
}

void addMissing(Explanation& explanation, const core::Chart& chart)
{
    const std::vector<std::wstring> missing = missingContributors(chart);
    if (!missing.empty()) {
        step(explanation, L"without a position in this chart, and so without bindus to give: ",
             listText(missing));
    }
}

std::wstring pindaText(std::wstring_view rule, const std::vector<std::wstring>& products, int sum)
{
    return text(rule, products.empty() ? std::wstring(L"nothing") : listText(products), L"; sum ",
                sum);
}

void addPinda(Explanation& explanation, const Request& request, const Ashtakavarga& table)
{
    const SignRow12& row = at(table.ekadhipatya, request.point);
    const Pinda& pinda = at(table.pinda, request.point);
    std::vector<std::wstring> products;
    for (int sign = 1; sign <= 12; ++sign) {
        if (at(row, sign - 1) != 0) {
            products.push_back(
                text(signText(sign), L" ", at(row, sign - 1), L" x ", pindaSignWeight(sign)));
        }
    }
    step(explanation,
         pindaText(L"rashi pinda, each sign times its weight: ", products, pinda.rashi));
    products.clear();
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const int sign = signInVarga(request.chart, table.varga, planet);
        if (sign != 0 && at(row, sign - 1) != 0) {
            products.push_back(
                text(nameOf(planet), L" ", at(row, sign - 1), L" x ", pindaPlanetWeight(planet)));
        }
    }
    step(explanation,
         pindaText(L"graha pinda, the value in the sign of each planet times the weight of the "
                   L"planet: ",
                   products, pinda.graha));
    step(explanation, L"together the pinda is ", pinda.total());
}

} // namespace

Answer explainBindu(const Request& request)
{
    const core::Chart& chart = request.chart;
    const std::optional<int> sign = findSign(request.detail);
    if (!sign) {
        return unknown("the sign", request.detail, "a name such as libra, or 1 to 12");
    }
    const Ashtakavarga table = computeAshtakavarga(chart, core::kRashi, false);
    const int bindus = at(at(table.bindus, request.point), *sign - 1);
    Explanation explanation =
        about(text(L"bindus of ", nameOf(request.point), L" in ", signText(*sign)));
    explanation.result = text(bindus, L" of 8");
    for (int contributor = 0; contributor < kAshtakavargaPoints; ++contributor) {
        const int from = signInVarga(chart, core::kRashi, contributor);
        if (from == 0) {
            continue;
        }
        const int house = core::norm12(*sign - from + 1);
        step(explanation, signText(*sign), L" is the ", ordinal(house), L" from ",
             nameOf(contributor), L" in ", signText(from),
             givesBindu(request.point, contributor, house) ? L", which gives a bindu"
                                                           : L", which gives none");
    }
    addMissing(explanation, chart);
    step(explanation, L"the sign has ", at(table.sarva, *sign - 1),
         L" bindus of all seven planets, ", at(table.sarvaWithLagna, *sign - 1),
         L" with those of the ascendant");
    return explanation;
}

Answer explainAshtakavarga(const Request& request)
{
    const core::Chart& chart = request.chart;
    const std::optional<int> varga =
        request.detail.empty() ? std::optional(int(core::kRashi)) : findVargaName(request.detail);
    if (!varga) {
        return unknown("the varga", request.detail,
                       "a name such as navamsha, an index 0 to 20 or a division such as D-9");
    }
    const Ashtakavarga table = computeAshtakavarga(chart, *varga, true);
    const SignRow12& row = at(table.bindus, request.point);
    Explanation explanation =
        about(text(L"ashtakavarga of ", nameOf(request.point), L" in the ", vargaText(*varga)));
    addPlacementSettings(explanation, request.settings, *varga);
    explanation.result =
        text(L"pinda ", at(table.pinda, request.point).total(), L", bindus ", rowText(row));
    int sum = 0;
    for (const int bindus : row) {
        sum += bindus;
    }
    step(explanation, L"eight contributors give bindus in houses counted from their signs; ",
         nameOf(request.point), L" has ", sum, L" of ", binduTotal(request.point),
         L" that it has in every complete chart");
    addMissing(explanation, chart);
    step(explanation,
         L"trikona reduction takes the smallest of each three signs four apart off "
         L"all three: ",
         rowText(at(table.trikona, request.point)));
    std::vector<std::wstring> occupied;
    for (int sign = 1; sign <= 12; ++sign) {
        if (at(table.occupants, sign - 1) > 0) {
            occupied.push_back(signText(sign));
        }
    }
    step(explanation,
         L"ekadhipatya reduction compares the two signs of one lord; signs with "
         L"planets are ",
         listText(occupied));
    step(explanation,
         L"nothing changes when one of the two has 0 or both have planets; when "
         L"neither has, equal values become 0 and unequal ones the smaller; when one "
         L"has, it stays and its value is taken off the other, which becomes 0 when "
         L"it is not greater: ",
         rowText(at(table.ekadhipatya, request.point)));
    addPinda(explanation, request, table);
    return explanation;
}

Answer explainKakshya(const Request& request)
{
    const core::Chart& chart = request.chart;
    const int planet = request.point;
    Explanation explanation = about(L"kakshya of " + nameOf(planet));
    if (!chart.computed(planet)) {
        return notComputed(explanation, whyNoPosition(chart, planet));
    }
    const double longitude = at(chart.longitude, planet);
    const Kakshya kakshya = kakshyaOf(at(chart.degreeInSign, planet));
    const bool bindu = kakshyaBindu(chart, planet, longitude);
    explanation.result = text(ordinal(kakshya.part + 1), L" kakshya, lord ", nameOf(kakshya.lord),
                              bindu ? L", with a bindu" : L", without a bindu");
    step(explanation, L"each sign has eight kakshyas of 3\u00B045', of Saturn, Jupiter, Mars, the "
                      L"Sun, Venus, Mercury, the Moon and the ascendant");
    step(explanation, nameOf(planet), L" stands at ", placeText(longitude), L", in the ",
         ordinal(kakshya.part + 1), L", that of ", nameOf(kakshya.lord));
    step(explanation, L"as contributor to the ashtakavarga of ", nameOf(planet), L", ",
         nameOf(kakshya.lord), bindu ? L" gives" : L" does not give", L" a bindu to ",
         signText(at(chart.rashi, planet)));
    return explanation;
}

} // namespace kestrav::analysis::explaining
