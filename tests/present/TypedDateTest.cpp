#include "app/present/TypedDate.h"

#include <gtest/gtest.h>

namespace kestrav::present
{
namespace
{

using core::PlainDate;
using data::DateOrder;

PlainDate dayFirst(const wchar_t* text)
{
    const auto date = readRealDate(text, DateOrder::DayFirst);
    return date ? date.value() : PlainDate{};
}

std::string problem(const wchar_t* text, DateOrder order = DateOrder::DayFirst)
{
    const auto date = readRealDate(text, order);
    return date ? "" : date.error().message;
}

TEST(TypedDate, TakesTheOrderOfTheDatabaseAndManySeparators)
{
    for (const wchar_t* const text :
         {L"15/6/1990", L"15.6.1990", L" 15-06-1990 ", L"15, 6, 1990", L"1990-06-15"}) {
        EXPECT_EQ(dayFirst(text), (PlainDate{1990, 6, 15})) << text;
    }
    const auto american = readRealDate(L"6/15/1990", DateOrder::MonthFirst);
    ASSERT_TRUE(american.ok());
    EXPECT_EQ(american.value(), (PlainDate{1990, 6, 15}));
    EXPECT_EQ(dayFirst(L"15/3/-44"), (PlainDate{-44, 3, 15}));
    EXPECT_EQ(typedDate({-44, 3, 15}, DateOrder::MonthFirst), L"3/15/-44");
    EXPECT_EQ(typedDate({}, DateOrder::DayFirst), L"");
    // Plain dates may be incomplete.
    EXPECT_EQ(readPlainDate(L"0/6/1990", DateOrder::DayFirst).value(), (PlainDate{1990, 6, 0}));
}

TEST(TypedDate, SaysWhatIsWrong)
{
    EXPECT_EQ(problem(L"15/6"), "Write day, month and year, such as 15/6/1990.");
    EXPECT_EQ(problem(L"6.1990 x", DateOrder::MonthFirst),
              "Write month, day and year, such as 6/15/1990.");
    EXPECT_EQ(problem(L"15/13/1990"), "There is no month 13.");
    EXPECT_EQ(problem(L"29/2/1900"), "February 1900 has no day 29.");
    EXPECT_EQ(problem(L"29/2/1500"), ""); // Julian
    EXPECT_EQ(problem(L"10/10/1582"), "In October 1582 the 15th followed the 4th.");
    EXPECT_EQ(problem(L"15/10/1582"), "");
    EXPECT_EQ(dateWarning({1582, 10, 15}),
              "This day is read in the Julian calendar, as October 25 of the Gregorian one.");
    EXPECT_EQ(dateWarning({1582, 10, 16}), "");
    EXPECT_EQ(problem(L"1/1/0"), "There is no year 0; 1 BC is the year -1.");
    EXPECT_EQ(problem(L""), "The date is missing.");
    EXPECT_EQ(problem(L"1/1/99999999999999"), "Write day, month and year, such as 15/6/1990.");
}

} // namespace
} // namespace kestrav::present
