#include "analysis/Avasthas.h"

#include "analysis/Dignities.h"
#include "analysis/Lajjitadi.h"
#include "core/Angles.h"
#include "core/numeric.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

constexpr double kGhatisPerHour = 2.5;

// Added in the count of the sub-state, Sun to Ketu; entry 0 is unused.
constexpr std::array<int, 10> kPartConstants = {0, 5, 2, 2, 3, 5, 3, 3, 4, 4};

Baladi baladiOf(const core::Chart& chart, int body)
{
    const int fifth = core::ClampRange(0, 4, core::truncated(at(chart.degreeInSign, body) / 6.0));
    return Baladi(at(chart.rashi, body) % 2 == 0 ? 4 - fifth : fifth);
}

Jagradadi jagradadiOf(int display)
{
    if (display >= kOwn + 3) {
        return Jagradadi::Jagrat;
    }
    return display >= kNeutral + 3 ? Jagradadi::Swapna : Jagradadi::Sushupti;
}

Deeptadi deeptadiOf(int display)
{
    // By display index, debilitated to exalted.
    constexpr std::array<Deeptadi, 9> kStates = {
        Deeptadi::Khala,   Deeptadi::Khala,   Deeptadi::Dukhita,
        Deeptadi::Dina,    Deeptadi::Shanta,  Deeptadi::Pramudita,
        Deeptadi::Swastha, Deeptadi::Swastha, Deeptadi::Deepta};
    return at(kStates, display);
}

int starOf(const core::Chart& chart, int body)
{
    return core::truncated(at(chart.nakshatraPosition, body)) + 1;
}

std::optional<ShayanadiState> shayanadiOf(const core::Chart& chart, const StrengthInputs& inputs,
                                          int body, int nameLetterValue)
{
    const std::optional<ShayanadiCount> count = shayanadiCount(chart, inputs, body);
    if (!count) {
        return std::nullopt;
    }
    ShayanadiState state;
    state.state = Shayanadi(core::norm12(count->total()));
    if (nameLetterValue >= 1 && nameLetterValue <= 5) {
        state.part = shayanadiPart(state.state, body, nameLetterValue);
    }
    return state;
}

Avasthas avasthasOf(const core::Chart& chart, const StrengthInputs& inputs,
                    const NaturalBenefics& benefic, int body, int nameLetterValue,
                    const core::Settings& settings)
{
    Avasthas avasthas;
    avasthas.point = body;
    if (!chart.computed(body)) {
        return avasthas;
    }
    avasthas.baladi = baladiOf(chart, body);
    const Company company = companyOf(chart, benefic, body, settings);
    if (const std::optional<int> display = rashiDisplay(chart, body, settings)) {
        avasthas.jagradadi = jagradadiOf(*display);
        const bool vikala = (company.with & company.malefics).any();
        const bool kopa = chart.computed(core::kSun) && isCombust(chart, chart, body, settings);
        avasthas.deeptadi = DeeptadiState{deeptadiOf(*display), vikala, kopa};
    }
    avasthas.lajjitadi = lajjitadiOf(chart, body, company, settings);
    avasthas.shayanadi = shayanadiOf(chart, inputs, body, nameLetterValue);
    return avasthas;
}

} // namespace

std::array<Avasthas, 10> computeAvasthas(const core::Chart& chart, const StrengthInputs& inputs,
                                         int nameLetterValue, const core::Settings& settings)
{
    std::array<Avasthas, 10> avasthas;
    const NaturalBenefics benefic = naturalBenefics(chart);
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        at(avasthas, body) = avasthasOf(chart, inputs, benefic, body, nameLetterValue, settings);
    }
    return avasthas;
}

std::optional<ShayanadiCount> shayanadiCount(const core::Chart& chart, const StrengthInputs& inputs,
                                             int body)
{
    if (!inputs.hoursSinceSunrise || !chart.computed(core::kMoon) ||
        !chart.computed(core::kAscendant)) {
        return std::nullopt;
    }
    const int navamsha = core::ClampRange(
        1, 9, core::truncated(at(chart.degreeInSign, body) * 9.0 * (1.0 / 30.0)) + 1);
    const int ghati = core::truncated(*inputs.hoursSinceSunrise * kGhatisPerHour) + 1;
    return ShayanadiCount{starOf(chart, body),        body,  navamsha,
                          starOf(chart, core::kMoon), ghati, chart.rashi[core::kAscendant]};
}

ShayanadiPart shayanadiPart(Shayanadi state, int body, int nameLetterValue)
{
    // The square of the whole count leaves the same remainder as that of the state.
    const int n = int(state);
    return ShayanadiPart(((n * n + nameLetterValue) % 12 + at(kPartConstants, body)) % 3);
}

} // namespace kestrav::analysis
