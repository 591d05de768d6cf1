#include "yoga/Subject.h"

#include "analysis/VargaNames.h"
#include "astro/Series.h"
#include "core/DateTime.h"
#include "yoga/conditions/Parts.h"
#include "yoga/conditions/Tests.h"

namespace kestrav::yoga
{

namespace
{

// What an option of a condition's prefix sets; option 1 and others that do not exist set nothing.
void applyOption(core::Settings& settings, int option)
{
    if (option >= 2 && option <= 5) {
        settings.horaMethod = option - 2;
    } else if (option == 6 || option == 7) {
        settings.shodashamshaVariant = option - 6;
    } else if (option == 8 || option == 9) {
        settings.rudramshaVariant = option - 8;
    }
}

} // namespace

Subject::Subject(const core::Settings& settings, const astro::Series* series)
    : settings_(settings), ownSettings_(settings), series_(series), native_(settings_),
      second_(settings_)
{}

void Subject::setChart(const core::Chart& chart)
{
    resetOption();
    native_.setChart(chart);
}

bool Subject::setResearchLine(std::string_view line)
{
    resetOption();
    return native_.setLine(line);
}

void Subject::setSecondChart(const core::Chart* chart)
{
    resetOption();
    if (chart == nullptr) {
        second_.clear();
    } else {
        second_.setChart(*chart);
    }
}

void Subject::setMoment(std::optional<double> julianDay)
{
    moment_ = julianDay;
}

std::optional<double> Subject::moment() const
{
    if (moment_ || !second_.isWhole()) {
        return moment_;
    }
    return second_.momentOfChart();
}

void Subject::resetOption()
{
    if (option_ != kPlainOption) {
        prepareOption(kPlainOption);
    }
}

void Subject::prepareOption(int option)
{
    if (option == option_) {
        return;
    }
    option_ = option;
    ++optionsPrepared_;
    settings_.horaMethod = ownSettings_.horaMethod;
    settings_.shodashamshaVariant = ownSettings_.shodashamshaVariant;
    settings_.rudramshaVariant = ownSettings_.rudramshaVariant;
    applyOption(settings_, option);
    native_.setOption(option);
    second_.setOption(option);
}

bool testCondition(const Condition& condition, Subject& subject)
{
    const Arguments arguments = layOut(condition);
    if (!arguments.fits) {
        return false;
    }
    subject.prepareOption(condition.option);
    Evaluation evaluation(arguments, subject, false);
    return testOfKind(arguments.kind->number)(evaluation);
}

ConditionResult explainCondition(const Condition& condition, Subject& subject)
{
    std::string problem;
    const Arguments arguments = layOut(condition, &problem);
    if (!arguments.fits) {
        return {false, std::wstring(problem.begin(), problem.end())};
    }
    subject.prepareOption(condition.option);
    Evaluation evaluation(arguments, subject, true);
    ConditionResult result;
    result.truth = testOfKind(arguments.kind->number)(evaluation);
    result.reason = explaining::capitalised(contextWords(arguments) + evaluation.reason());
    return result;
}

std::string conditionProblem(const Condition& condition)
{
    std::string problem;
    return layOut(condition, &problem).fits ? std::string() : problem;
}

} // namespace kestrav::yoga
