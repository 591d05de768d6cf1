// The plan of one dasha: whose periods follow each other, how long they are and how they divide.
#pragma once

#include "core/Points.h"
#include "timing/DashaTable.h"

#include <array>

namespace kestrav::timing
{

/// What the lords of a system are.
enum class LordKind
{
    Planet, ///< points 1 to 9
    Sign,   ///< 1 to 12
    House,  ///< 1 to 12, counted from each of three references
};

/// How a period divides into its sub-periods.
enum class Division
{
    Proportional, ///< by the years of the lords, from the parent's own lord on
    Twelfths,     ///< twelve equal parts, in the order that the system gives a parent's sign
    KalaChakra,   ///< by the years of the nine signs of the row, from the parent's place on
};

/// Twelve signs in an order.
using SignOrder = std::array<int, 12>;

/// The lords of one cycle in the order of their mahadashas, with their years.
struct DashaCycle
{
    std::array<int, 12> lords = {};
    std::array<double, 12> years = {};
};

/// Everything that the periods of a chart follow from. Filled by dashaPlan, or directly for a
/// sequence of one's own; then finish() must be called.
struct DashaPlan
{
    int system = 0;
    LordKind lordKind = LordKind::Planet;
    Division division = Division::Proportional;
    int count = 0;        ///< lords in a cycle
    int first = 0;        ///< place of the first mahadasha in its cycle
    double elapsed = 0.0; ///< years of the first mahadasha that lie before birth
    int kalaChakraRow = -1;
    double scale = 1.0; ///< what the years of Kala Chakra signs are multiplied with
    /// The first cycle and the second; the third is as the first, and so on.
    std::array<DashaCycle, 2> cycles = {};
    std::array<double, 2> totals = {};        ///< years of each cycle, set by finish
    std::array<SignOrder, 13> subOrders = {}; ///< of the sub-periods of each sign; entry 0 unused

    /// Multiplies all years, elapsed ones too, so that the first cycle lasts `cycleYears`; 0 leaves
    /// them. Sets the totals. False when the first cycle has no length.
    [[nodiscard]] bool finish(double cycleYears);

    /// The number of sub-periods of every period.
    [[nodiscard]] int childCount() const;
};

/// One period of a plan and its place among its neighbours.
struct DashaNode
{
    int lord = 0;
    int place = 0; ///< in the list of its level: of the cycle, or of the sub-periods of its parent
    int cycle = 0; ///< 0 or 1, which of the plan's cycles it belongs to
    int kalaChakraRow = -1;
    double start = 0.0;  ///< age in years
    double length = 0.0; ///< years

    [[nodiscard]] double end() const
    {
        return start + length;
    }
};

/// Sub-period `number` (0 to childCount - 1) of a period, which begins at the age `start`.
[[nodiscard]] DashaNode childOf(const DashaPlan& plan, const DashaNode& parent, int number,
                                double start);

/// The lord `offset` places after the period in the list of its own level, round and round;
/// `parent` is null for a mahadasha.
[[nodiscard]] int lordBeside(const DashaPlan& plan, const DashaNode* parent, const DashaNode& node,
                             int offset);

/// Walks the mahadashas, from the first one that may begin before birth, without end.
class MahadashaWalk
{
public:
    /// The plan must outlive the walk.
    explicit MahadashaWalk(const DashaPlan& plan);

    [[nodiscard]] const DashaNode& node() const
    {
        return node_;
    }

    /// Goes to the next mahadasha. Signs without years are passed over.
    void next();

private:
    void readPlan();

    const DashaPlan* plan_;
    int index_ = 0;
    DashaNode node_;
};

} // namespace kestrav::timing
