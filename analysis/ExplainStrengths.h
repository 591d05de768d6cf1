// The explanations of the parts of shadbala.
#pragma once

#include "analysis/ExplainTopics.h"
#include "analysis/Shadbala.h"

namespace kestrav::analysis::explaining
{

/// A planet 1 to 7 that has a position, with its strengths.
struct StrengthRequest
{
    const core::Chart& chart;
    const StrengthInputs& inputs;
    const ShadbalaTable& table;
    const Shadbala& bala;
    int planet = 0;
};

// The parts of kala bala.
void explainNathonnatha(Explanation& explanation, const StrengthRequest& request);
void explainPaksha(Explanation& explanation, const StrengthRequest& request);
void explainTribhaga(Explanation& explanation, const StrengthRequest& request);
void explainVarsha(Explanation& explanation, const StrengthRequest& request);
void explainMasa(Explanation& explanation, const StrengthRequest& request);
void explainVara(Explanation& explanation, const StrengthRequest& request);
void explainHora(Explanation& explanation, const StrengthRequest& request);
void explainAyana(Explanation& explanation, const StrengthRequest& request);
void explainYuddha(Explanation& explanation, const StrengthRequest& request);
void explainKala(Explanation& explanation, const StrengthRequest& request);

} // namespace kestrav::analysis::explaining
