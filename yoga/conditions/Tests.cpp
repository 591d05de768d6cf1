#include "yoga/conditions/Tests.h"

#include <array>
#include <cstddef>

namespace kestrav::yoga
{

namespace
{

struct TestRow
{
    int number;
    ConditionFunction test;
};

constexpr std::array kTests = std::to_array<TestRow>({
    {1, conditions::inSign},
    {2, conditions::inHouse},
    {3, conditions::inNakshatra},
    {4, conditions::inPada},
    {5, conditions::inDegree},
    {6, conditions::inArc},
    {7, conditions::with},
    {8, conditions::near},
    {9, conditions::apart},
    {10, conditions::between},
    {11, conditions::inBhava},
    {12, conditions::sameBhava},
    {13, conditions::sandhi},
    {14, conditions::gandanta},
    {15, conditions::vargottama},
    {16, conditions::nakshatraFrom},
    {17, conditions::is},
    {20, conditions::hemmed},
    {21, conditions::fill},
    {22, conditions::run},
    {23, conditions::occupied},
    {24, conditions::cluster},
    {30, conditions::aspect},
    {31, conditions::mutual},
    {32, conditions::influences},
    {33, conditions::related},
    {40, conditions::exchange},
    {41, conditions::parivartana},
    {42, conditions::finalDispositor},
    {43, conditions::owns},
    {44, conditions::inSignOf},
    {50, conditions::dignity},
    {51, conditions::dignityMin},
    {52, conditions::dignityMax},
    {53, conditions::regards},
    {54, conditions::debCancelled},
    {55, conditions::retrograde},
    {56, conditions::motion},
    {57, conditions::combust},
    {58, conditions::atWar},
    {60, conditions::shadbala},
    {61, conditions::required},
    {62, conditions::ishta},
    {63, conditions::bhavaBala},
    {64, conditions::bindus},
    {65, conditions::bindusAt},
    {66, conditions::sarva},
    {67, conditions::vimshopaka},
    {68, conditions::strongest},
    {69, conditions::weakest},
    {70, conditions::stronger},
    {75, conditions::functional},
    {76, conditions::natural},
    {80, conditions::dayBirth},
    {81, conditions::weekday},
    {82, conditions::tithi},
    {83, conditions::paksha},
    {84, conditions::nityaYoga},
    {85, conditions::karana},
    {86, conditions::sex},
    {88, conditions::dasha},
});

constexpr auto kByNumber = [] {
    std::array<ConditionFunction, std::size_t(kMaxKindNumber)> tests{};
    for (const TestRow& row : kTests) {
        tests[std::size_t(row.number)] = row.test;
    }
    return tests;
}();

} // namespace

ConditionFunction testOfKind(int number)
{
    return number < 0 || number >= kMaxKindNumber ? nullptr : kByNumber[std::size_t(number)];
}

} // namespace kestrav::yoga
