// The states of a body by its company: which bodies stand with it or aspect it, and what follows.
#pragma once

#include "analysis/Avasthas.h"
#include "analysis/Benefics.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <bitset>
#include <vector>

namespace kestrav::analysis
{

/// A set of bodies Sun to Ketu by point index.
using BodySet = std::bitset<10>;

/// The other bodies that bear on one body.
struct Company
{
    BodySet with;       ///< in the same sign
    BodySet aspectedBy; ///< with a full aspect on the sign
    BodySet malefics;   ///< all natural malefics of the chart, whether they bear on it or not
};

/// The company of a body 1 to 9 that has a position. Bodies without one are in no set.
[[nodiscard]] Company companyOf(const core::Chart& chart, const NaturalBenefics& benefic, int body,
                                const core::Settings& settings);

/// The bodies towards which a body is by nature friendly (1) or hostile (-1), without itself; the
/// nodes have none.
[[nodiscard]] BodySet naturalRelations(int body, int wanted);

/// Relationship code of a body 1 to 9 towards the lord of its sign, also where it is debilitated
/// there. 3 is the body itself; the nodes have theirs by the sign, with 4 and -3 for exaltation and
/// debilitation.
[[nodiscard]] int relationshipToLord(const core::Chart& chart, int body,
                                     const core::Settings& settings);

/// The states that hold, in the order of the enumeration. Needs the compound relationships.
/// Friendship is that which the body feels towards the other; the nodes are malefics, but nobody's
/// natural enemies, and have no natural friends or enemies themselves.
[[nodiscard]] std::vector<Lajjitadi> lajjitadiOf(const core::Chart& chart, int body,
                                                 const Company& company,
                                                 const core::Settings& settings);

} // namespace kestrav::analysis
