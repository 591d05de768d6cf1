#include "timing/DashaTable.h"

#include "core/FileText.h"
#include "core/Settings.h"

#include <gtest/gtest.h>

namespace kestrav::timing
{
namespace
{

TEST(DashaTable, NamesAreThoseOfTheSetting)
{
    const core::SettingInfo* const info = core::findSetting("dashaSystem");
    ASSERT_NE(info, nullptr);
    for (int system = 0; system < kNamedDashaSystems; ++system) {
        EXPECT_EQ(core::toUtf8(dashaRow(system).name), core::choiceName(*info, system));
    }
    EXPECT_TRUE(core::choiceName(*info, kNamedDashaSystems).empty());
}

// The sums that the source also checks say nothing about the order.
TEST(DashaTable, SharesOfVimshottari)
{
    EXPECT_NEAR(dashaRow(kTribhagi).years[8], 13.3333, 1e-4);
    EXPECT_NEAR(dashaRow(kTribhagi).years[2], 4.6667, 1e-4);
    EXPECT_NEAR(dashaRow(kAnnualVimshottari).years[1], 0.083333, 1e-6);
    EXPECT_NEAR(dashaRow(kAnnualVimshottari).years[5], 0.158333, 1e-6);
}

} // namespace
} // namespace kestrav::timing
