#include "timing/DashaPlan.h"

#include "timing/KalaChakra.h"

#include <cmath>

namespace kestrav::timing
{

namespace
{

using core::at;

// The place moved round in a list of `count`.
int around(int place, int offset, int count)
{
    return ((place + offset) % count + count) % count;
}

int kalaChakraSign(int row, int place)
{
    return at(kalaChakraRow(row).signs, place);
}

} // namespace

bool DashaPlan::finish(double cycleYears)
{
    for (int cycle = 0; cycle < 2; ++cycle) {
        at(totals, cycle) = 0.0;
        for (const double years : at(cycles, cycle).years) {
            at(totals, cycle) += years;
        }
    }
    if (!(totals[0] > 0.0) || !std::isfinite(elapsed)) {
        return false;
    }
    if (cycleYears > 0.0) {
        scale = cycleYears / totals[0];
        elapsed *= scale;
        for (int cycle = 0; cycle < 2; ++cycle) {
            at(totals, cycle) *= scale;
            for (double& years : at(cycles, cycle).years) {
                years *= scale;
            }
        }
    }
    return true;
}

int DashaPlan::childCount() const
{
    switch (division) {
    case Division::Twelfths:
        return 12;
    case Division::KalaChakra:
        return kKalaChakraSigns;
    default:
        return count;
    }
}

DashaNode childOf(const DashaPlan& plan, const DashaNode& parent, int number, double start)
{
    DashaNode child = parent;
    child.start = start;
    switch (plan.division) {
    case Division::Twelfths:
        child.place = number;
        child.lord = at(at(plan.subOrders, parent.lord), number);
        child.length = parent.length / 12.0;
        break;
    case Division::KalaChakra:
        child.place = around(parent.place, number, kKalaChakraSigns);
        child.lord = kalaChakraSign(parent.kalaChakraRow, child.place);
        child.length = parent.length * at(kKalaChakraYears, child.lord) /
                       kalaChakraRow(parent.kalaChakraRow).span;
        break;
    default:
        child.place = around(parent.place, number, plan.count);
        child.lord = at(at(plan.cycles, parent.cycle).lords, child.place);
        child.length = parent.length * at(at(plan.cycles, parent.cycle).years, child.place) /
                       at(plan.totals, parent.cycle);
        break;
    }
    return child;
}

int lordBeside(const DashaPlan& plan, const DashaNode* parent, const DashaNode& node, int offset)
{
    switch (plan.division) {
    case Division::Twelfths: {
        const int place = around(node.place, offset % 12, 12);
        return parent != nullptr ? at(at(plan.subOrders, parent->lord), place)
                                 : at(at(plan.cycles, node.cycle).lords, place);
    }
    case Division::KalaChakra:
        return kalaChakraSign(node.kalaChakraRow,
                              around(node.place, offset % kKalaChakraSigns, kKalaChakraSigns));
    default:
        return at(at(plan.cycles, node.cycle).lords,
                  around(node.place, offset % plan.count, plan.count));
    }
}

MahadashaWalk::MahadashaWalk(const DashaPlan& plan) : plan_(&plan)
{
    node_.start = -plan.elapsed;
    readPlan();
    if (node_.length == 0.0) {
        next();
    }
}

void MahadashaWalk::readPlan()
{
    if (plan_->division == Division::KalaChakra) {
        node_.place = index_ % kKalaChakraSigns;
        node_.kalaChakraRow = (plan_->kalaChakraRow + index_ / kKalaChakraSigns) % kKalaChakraRows;
        node_.lord = kalaChakraSign(node_.kalaChakraRow, node_.place);
        node_.length = at(kKalaChakraYears, node_.lord) * plan_->scale;
        return;
    }
    node_.place = (plan_->first + index_) % plan_->count;
    node_.cycle = index_ / plan_->count % 2;
    node_.lord = at(at(plan_->cycles, node_.cycle).lords, node_.place);
    node_.length = at(at(plan_->cycles, node_.cycle).years, node_.place);
}

void MahadashaWalk::next()
{
    node_.start = node_.end();
    do {
        ++index_;
        readPlan();
    } while (node_.length == 0.0);
}

} // namespace kestrav::timing
