#include "timing/DashaWalk.h"

#include "core/Angles.h"

#include <algorithm>
#include <cmath>

namespace kestrav::timing
{

DashaWalk::DashaWalk(const Dasha& dasha, const DashaSpan& span)
    : dasha_(&dasha), span_(span), mahadashas_(dasha.plan)
{
    span_.levels = core::ClampRange(1, kDashaLevels, span.levels);
    span_.endAge = std::min(span.endAge, kLastAge);
    // Above the last age, and where an age is no number, nothing is listed.
    if (!(span.startAge <= kLastAge) || std::isnan(span.endAge)) {
        level_ = 0;
        return;
    }
    nodeAt(1) = mahadashas_.node();
    passOver();
    store();
}

DashaWalk& DashaWalk::operator++()
{
    if (level_ < span_.levels) {
        firstChild();
    } else {
        following();
    }
    passOver();
    store();
    return *this;
}

void DashaWalk::firstChild()
{
    const DashaNode parent = nodeAt(level_);
    ++level_;
    core::at(steps_, level_ - 1) = {childOf(dasha_->plan, parent, 0, parent.start), 0};
}

// The next period that is not inside the present one.
void DashaWalk::following()
{
    while (level_ > 1) {
        Step& step = core::at(steps_, level_ - 1);
        if (step.number + 1 < dasha_->plan.childCount()) {
            ++step.number;
            step.node = childOf(dasha_->plan, nodeAt(level_ - 1), step.number, step.node.end());
            return;
        }
        --level_;
    }
    mahadashas_.next();
    nodeAt(1) = mahadashas_.node();
}

// Goes on to the first period that reaches beyond the start age.
void DashaWalk::passOver()
{
    while (!(nodeAt(level_).end() > span_.startAge)) {
        following();
    }
}

void DashaWalk::store()
{
    const DashaNode& node = nodeAt(level_);
    if (node.start > span_.endAge || listed_ >= span_.budget) {
        level_ = 0;
        return;
    }
    ++listed_;
    period_.level = level_;
    for (int level = 1; level <= kDashaLevels; ++level) {
        core::at(period_.lords, level - 1) = level <= level_ ? nodeAt(level).lord : 0;
    }
    const bool sameStart = listed_ > 1 && node.start == period_.startAge;
    period_.startAge = node.start;
    period_.length = node.length;
    period_.kalaChakraRow = node.kalaChakraRow;
    if (!sameStart) {
        period_.startJulianDay = dasha_->calendar.julianDayOf(node.start);
    }
}

} // namespace kestrav::timing
