#include "analysis/Lajjitadi.h"

#include "analysis/Aspects.h"
#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "core/Angles.h"

#include <cstddef>
#include <initializer_list>

namespace kestrav::analysis
{

namespace
{

using core::at;

BodySet setOf(std::initializer_list<int> bodies)
{
    BodySet set;
    for (const int body : bodies) {
        set.set(std::size_t(body));
    }
    return set;
}

bool inFifth(const core::Chart& chart, int body)
{
    return chart.computed(core::kAscendant) &&
           core::norm12(at(chart.rashi, body) - chart.rashi[core::kAscendant] + 1) == 5;
}

bool inWaterySign(const core::Chart& chart, int body)
{
    return at(chart.rashi, body) % 4 == 0;
}

} // namespace

Company companyOf(const core::Chart& chart, const NaturalBenefics& benefic, int body,
                  const core::Settings& settings)
{
    Company company;
    const int sign = at(chart.rashi, body);
    for (int other = core::kSun; other <= core::kKetu; ++other) {
        if (other == body || !chart.computed(other)) {
            continue;
        }
        const auto slot = std::size_t(other);
        company.with[slot] = at(chart.rashi, other) == sign;
        company.aspectedBy[slot] = fullyAspects(chart, other, sign, settings);
        company.malefics[slot] = !at(benefic, other);
    }
    return company;
}

BodySet naturalRelations(int body, int wanted)
{
    BodySet set;
    if (body > core::kSaturn) {
        return set;
    }
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        if (other != body && naturalRelationship(body, other) == wanted) {
            set.set(std::size_t(other));
        }
    }
    return set;
}

int relationshipToLord(const core::Chart& chart, int body, const core::Settings& settings)
{
    const int sign = at(chart.rashi, body);
    if (body > core::kSaturn) {
        return nodeRelationship(body, sign, settings.nodeDignityScheme);
    }
    const int lord = signLord(sign);
    return chart.computed(lord) ? at(at(chart.compound, body), lord) : kNeutral;
}

std::vector<Lajjitadi> lajjitadiOf(const core::Chart& chart, int body, const Company& company,
                                   const core::Settings& settings)
{
    const BodySet enemies = naturalRelations(body, kEnemy);
    const BodySet friends = naturalRelations(body, kFriend);
    const BodySet near = company.with | company.aspectedBy;
    const int toLord = relationshipToLord(chart, body, settings);
    const std::optional<int> display = rashiDisplay(chart, body, settings);
    std::vector<Lajjitadi> states;
    const auto addIf = [&states](bool holds, Lajjitadi state) {
        if (holds) {
            states.push_back(state);
        }
    };

    const BodySet shaming =
        setOf({core::kSun, core::kMars, core::kSaturn, core::kRahu, core::kKetu});
    addIf(inFifth(chart, body) && (company.with & shaming).any(), Lajjitadi::Lajjita);
    addIf(display == kDisplayMoolatrikona || display == kDisplayExalted, Lajjitadi::Garvita);
    addIf(toLord == kEnemy || toLord == kGreatEnemy || (near & enemies).any() ||
              company.with[core::kSaturn],
          Lajjitadi::Kshudhita);
    const BodySet hostile = enemies | company.malefics;
    addIf(inWaterySign(chart, body) && (company.aspectedBy & hostile).any() &&
              (company.aspectedBy & ~company.malefics).none(),
          Lajjitadi::Trishita);
    addIf(toLord == kFriend || toLord == kGreatFriend || (near & friends).any() ||
              company.with[core::kJupiter],
          Lajjitadi::Mudita);
    addIf(company.with[core::kSun] && (near & hostile & ~setOf({core::kSun})).any(),
          Lajjitadi::Kshobhita);
    return states;
}

} // namespace kestrav::analysis
