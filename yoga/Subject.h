// What conditions are tested on: a chart, or a research line of which only the fields needed are
// read, and a second chart beside it.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"
#include "core/Settings.h"
#include "yoga/Catalogue.h"
#include "yoga/Condition.h"
#include "yoga/conditions/Frame.h"

#include <optional>
#include <string>
#include <string_view>

namespace kestrav::yoga
{

/// A native chart, an optional second one and a moment. What follows from them is computed when a
/// condition asks for it and kept until another chart is set. An object belongs to one thread and
/// is made once for a search; setting a research line allocates nothing.
class Subject
{
public:
    /// Dashas need the series, which must outlive the object; without them no dasha runs.
    explicit Subject(const core::Settings& settings, const astro::Series* series = nullptr);

    /// Tests an analysed chart from now on, which must outlive the tests. It was computed with the
    /// settings of this object.
    void setChart(const core::Chart& chart);

    /// Tests a research line from now on. False, and no condition holds, when its fields are not
    /// there. The text must outlive the tests.
    bool setResearchLine(std::string_view line);

    /// The second chart, a transit or another native; null for none.
    void setSecondChart(const core::Chart* chart);

    /// The moment of running dashas, a Julian day of Universal Time. Without it the moment of the
    /// second chart is taken.
    void setMoment(std::optional<double> julianDay);

    /// Forgets the divisional-chart option of the last condition. A rule parser does this when it
    /// begins.
    void resetOption();

    /// Prepares the divisional charts for the option of a condition, 1 without a prefix, so that
    /// its truth never depends on the conditions before it. Nothing is done when it is the one last
    /// used. Of a chart the divisions under another option are kept until the next one asks for a
    /// third.
    void prepareOption(int option);

    /// How often an option was prepared, for tests.
    [[nodiscard]] int optionsPrepared() const
    {
        return optionsPrepared_;
    }

    [[nodiscard]] Frame& native()
    {
        return native_;
    }
    [[nodiscard]] Frame& second()
    {
        return second_;
    }
    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_;
    }
    [[nodiscard]] const astro::Series* series() const
    {
        return series_;
    }
    /// The moment of running dashas, if there is one.
    [[nodiscard]] std::optional<double> moment() const;

private:
    core::Settings settings_; ///< with the option last prepared
    core::Settings ownSettings_;
    const astro::Series* series_;
    Frame native_;
    Frame second_;
    std::optional<double> moment_;
    int option_ = kPlainOption;
    int optionsPrepared_ = 0;
};

/// The truth of a condition, without its negation. False when it has an unknown name, when its
/// words do not fit its kind, and when a point has no position.
[[nodiscard]] bool testCondition(const Condition& condition, Subject& subject);

struct ConditionResult
{
    bool truth = false;  ///< without negation, as testCondition
    std::wstring reason; ///< "Mars is in the 7th from the Moon, not in 1, 4, 7 or 10"
};

/// The truth with the reason in words.
[[nodiscard]] ConditionResult explainCondition(const Condition& condition, Subject& subject);

/// What a condition reads.
struct ConditionNeeds
{
    Needs chart = Needs::Signs; ///< of the native chart
    bool secondChart = false;
    bool dasha = false;

    /// Whether a research line has all that the native chart is asked for.
    [[nodiscard]] bool researchSuffices() const
    {
        return chart <= Needs::Positions && !dasha;
    }
};

[[nodiscard]] ConditionNeeds needsOf(const Condition& condition);

/// What is wrong with the words of a condition, as a sentence without full stop; empty when they
/// fit the kind. A condition with something wrong never holds.
[[nodiscard]] std::string conditionProblem(const Condition& condition);

/// The condition as a sentence: "Mars is in the 1st, 4th, 7th or 10th from the Moon".
[[nodiscard]] std::wstring conditionWords(const Condition& condition);

} // namespace kestrav::yoga
