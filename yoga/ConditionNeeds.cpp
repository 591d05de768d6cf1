// What the words of a condition read of a chart.
#include "core/Points.h"
#include "yoga/Keywords.h"
#include "yoga/Subject.h"
#include "yoga/conditions/Arguments.h"

#include <algorithm>
#include <utility>

namespace kestrav::yoga
{

namespace
{

class NeedsReader
{
public:
    explicit NeedsReader(const Arguments& arguments)
    {
        const Kind& kind = *arguments.kind;
        need(kind.needs);
        if (arguments.vargas[0] != core::kRashi || arguments.vargas[1] != core::kRashi) {
            need(Needs::Positions);
        }
        const auto parameters = kind.used();
        for (std::size_t i = 0; i < parameters.size(); ++i) {
            const int value = arguments.values[i];
            if (isPointLike(parameters[i].type)) {
                readPoint(value);
            } else if (parameters[i].type == ParameterType::Word && !parameters[i].repeated &&
                       value >= 0) {
                readWord(PlainWord(value));
            }
        }
        needs_.dasha = kind.keyword == "Dasha";
        if (arguments.exchanged) {
            // What is said of the native is asked of the second chart.
            std::swap(native_, second_);
            usesSecond_ = true;
        }
        needs_.chart = native_;
        needs_.secondChart = usesSecond_;
    }

    [[nodiscard]] ConditionNeeds result() const
    {
        return needs_;
    }

private:
    void need(Needs needs)
    {
        native_ = std::max(native_, needs);
    }

    void readPoint(int code)
    {
        switch (wordClass(code)) {
        case WordClass::Point:
            readBase(pointBase(code));
            for (int i = 0; i < kMaxPointSteps; ++i) {
                const int step = pointStep(code, i);
                if (step == kNakshatraStep || step == kNavamshaLord || step == kArudhaStep) {
                    need(Needs::Positions);
                }
                if (step == kSecondChart) {
                    usesSecond_ = true;
                    second_ = std::max(second_, Needs::Positions);
                }
            }
            break;
        case WordClass::Set:
            readSet(setWord(code));
            break;
        default:
            break;
        }
    }

    void readBase(int base)
    {
        const bool body = base <= core::kKetu || (base >= core::kUranus && base <= core::kPluto);
        const bool arudha =
            base == core::kArudhaLagna || (base >= core::kArudhaPada1 && base <= core::kUpapada);
        const bool karaka = base >= kKarakaBase && base < kWeekdayLord;
        need(body ? Needs::Signs : arudha || karaka ? Needs::Positions : Needs::Chart);
    }

    void readSet(const SetWord& word)
    {
        const bool lords = word.set >= kKendraLords && word.set <= kMarakaLords;
        const bool signs = word.set == kNamedPlanets || lords || word.set == kClusterPlanets;
        if (word.secondChart) {
            usesSecond_ = true;
            second_ = std::max(second_, Needs::Positions);
        } else {
            need(signs ? Needs::Signs : Needs::Positions);
        }
    }

    void readWord(PlainWord word)
    {
        switch (word) {
        case kWordShadbala:
        case kWordRequired:
        case kWordIshta:
            need(Needs::Strengths);
            break;
        case kWordVimshopaka:
            need(Needs::Chart);
            break;
        case kWordValue:
        case kWordBindus:
        case kWordSarva:
        case kWordDegree:
            need(Needs::Positions);
            break;
        default:
            break;
        }
    }

    Needs native_ = Needs::Nothing;
    Needs second_ = Needs::Nothing;
    bool usesSecond_ = false;
    ConditionNeeds needs_;
};

} // namespace

ConditionNeeds needsOf(const Condition& condition)
{
    const Arguments arguments = layOut(condition);
    if (!arguments.fits) {
        return {Needs::Nothing, false, false};
    }
    return NeedsReader(arguments).result();
}

} // namespace kestrav::yoga
