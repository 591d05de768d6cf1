// The tests of the kinds of conditions, one for each row of the catalogue.
#pragma once

#include "yoga/conditions/Evaluation.h"

namespace kestrav::yoga
{

/// The test of a kind by its number, or null.
[[nodiscard]] ConditionFunction testOfKind(int number);

namespace conditions
{

// Places.
bool inSign(Evaluation& e);
bool inHouse(Evaluation& e);
bool inNakshatra(Evaluation& e);
bool inPada(Evaluation& e);
bool inDegree(Evaluation& e);
bool inArc(Evaluation& e);
bool with(Evaluation& e);
bool near(Evaluation& e);
bool apart(Evaluation& e);
bool between(Evaluation& e);
bool inBhava(Evaluation& e);
bool sameBhava(Evaluation& e);
bool sandhi(Evaluation& e);
bool gandanta(Evaluation& e);
bool vargottama(Evaluation& e);
bool nakshatraFrom(Evaluation& e);
bool is(Evaluation& e);

// Groups of planets.
bool hemmed(Evaluation& e);
bool fill(Evaluation& e);
bool run(Evaluation& e);
bool occupied(Evaluation& e);
bool cluster(Evaluation& e);

// Aspects.
bool aspect(Evaluation& e);
bool mutual(Evaluation& e);
bool influences(Evaluation& e);
bool related(Evaluation& e);

// Lords.
bool exchange(Evaluation& e);
bool parivartana(Evaluation& e);
bool finalDispositor(Evaluation& e);
bool owns(Evaluation& e);
bool inSignOf(Evaluation& e);

// Dignities and motion.
bool dignity(Evaluation& e);
bool dignityMin(Evaluation& e);
bool dignityMax(Evaluation& e);
bool regards(Evaluation& e);
bool debCancelled(Evaluation& e);
bool retrograde(Evaluation& e);
bool motion(Evaluation& e);
bool combust(Evaluation& e);
bool atWar(Evaluation& e);

// Strengths.
bool shadbala(Evaluation& e);
bool required(Evaluation& e);
bool ishta(Evaluation& e);
bool bhavaBala(Evaluation& e);
bool bindus(Evaluation& e);
bool bindusAt(Evaluation& e);
bool sarva(Evaluation& e);
bool vimshopaka(Evaluation& e);
bool strongest(Evaluation& e);
bool weakest(Evaluation& e);
bool stronger(Evaluation& e);

// Nature.
bool functional(Evaluation& e);
bool natural(Evaluation& e);

// Birth and time.
bool dayBirth(Evaluation& e);
bool weekday(Evaluation& e);
bool tithi(Evaluation& e);
bool paksha(Evaluation& e);
bool nityaYoga(Evaluation& e);
bool karana(Evaluation& e);
bool sex(Evaluation& e);
bool dasha(Evaluation& e);

} // namespace conditions

} // namespace kestrav::yoga
