#include "core/Names.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "core/PointNames.h"
#include "core/Points.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <thread>

namespace kestrav::core
{
namespace
{

using NameOf = std::function<std::wstring_view(int)>;

// FNV-1a over the names in UTF-8, each with a line feed. The expected values were computed from the
// published lists by another program, so every letter of every cell counts.
std::uint64_t hashOf(int first, int last, const NameOf& nameOf)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (int index = first; index <= last; ++index) {
        for (const char byte : toUtf8(nameOf(index)) + "\n") {
            hash = (hash ^ static_cast<std::uint8_t>(byte)) * 0x100000001b3U;
        }
    }
    return hash;
}

std::uint64_t pointHash(int style)
{
    return hashOf(0, 62, [style](int point) { return PointName(style, point); });
}

TEST(PointNames, TablesHaveEveryCellInBothLanguages)
{
    {
        const DisplayFlagsOverride english(kEnglishNames);
        EXPECT_EQ(pointHash(4), 0xc63c94ad0eaff9a7U);
        EXPECT_EQ(pointHash(3), 0x811d80643a761eb2U);
        EXPECT_EQ(pointHash(0), 0xbdbcb40cd37e3631U);
        EXPECT_EQ(PointName(4, kSun), L"Sun ");
        EXPECT_EQ(PointName(3, kDivyaLagna), L"DiL");
        EXPECT_EQ(PointName(0, 44), L"mc");
    }
    const DisplayFlagsOverride sanskrit(0);
    EXPECT_EQ(pointHash(4), 0x8c640cbad02dfe99U);
    EXPECT_EQ(pointHash(3), 0xe6f1e36a2f33179aU);
    EXPECT_EQ(pointHash(0), 0xa7207d57afcb9f1cU);
    EXPECT_EQ(PointName(3, kVarnadaLagna), L"SrL");
    EXPECT_EQ(PointName(3, kDivyaLagna), L"VaL");
    EXPECT_EQ(PointName(0, 60), L"F ");
}

TEST(PointNames, StyleChoosesTheLengthAndHighIndexesReachTheBlocksDirectly)
{
    for (const std::uint32_t flags : {0U, kEnglishNames}) {
        const DisplayFlagsOverride letters(flags);
        for (int point = 0; point < kPointCount; ++point) {
            EXPECT_EQ(PointName(1, point), PointName(0, point));
            EXPECT_EQ(PointName(2, point), PointName(0, point));
            EXPECT_EQ(PointName(99, point), PointName(4, point));
            EXPECT_EQ(PointName(-7, point), PointName(4, point));
            for (const int style : {-1, 0, 2, 3, 4}) {
                EXPECT_EQ(PointName(style, point + 63), PointName(3, point));
            }
        }
        for (int index = 126; index <= 129; ++index) {
            EXPECT_EQ(PointName(3, index), PointName(0, index - 126));
        }
        for (const int index : {-1, 130, 188, 189, 2147483647, -2147483647}) {
            EXPECT_EQ(PointName(4, index), L"--");
            EXPECT_EQ(PointName(0, index), L"--");
        }
    }
}

TEST(PointNames, GlyphModeReplacesOnlyWhatHasAGlyph)
{
    const DisplayFlagsOverride glyphs(kEnglishNames | kGlyphNames);
    const auto code = [](int style, int index) {
        const std::wstring_view text = PointName(style, index);
        return text.size() == 1 ? int(text.front()) : -1;
    };
    for (const int style : {-3, 0, 1, 2, 3}) {
        EXPECT_EQ(code(style, 1), 208);
        EXPECT_EQ(code(style, 9), 216);
        EXPECT_EQ(code(style, 32), 217);
        EXPECT_EQ(code(style, 34), 219);
        EXPECT_EQ(code(style, 63), 237);
        EXPECT_EQ(code(style, 71), 245);
        EXPECT_EQ(code(style, 72), 246);
        EXPECT_EQ(PointName(style, 73), L"--");
        EXPECT_EQ(PointName(style, 74), L"Vya");
    }
    EXPECT_EQ(PointName(3, 0), L"Asc");
    EXPECT_EQ(PointName(3, 10), L"Dhu");
    EXPECT_EQ(PointName(0, 35), L"As");
    EXPECT_EQ(PointName(4, 1), L"Sun ");
}

TEST(SignNames, BothLengthsInBothLanguages)
{
    {
        const DisplayFlagsOverride english(kEnglishNames);
        EXPECT_EQ(hashOf(1, 12, SignName3), 0xd089a0c88321bd28U);
        EXPECT_EQ(hashOf(1, 12, SignName2), 0x43c027e47d9940bcU);
        EXPECT_EQ(hashOf(1, 12, signNameLong), 0x948b1a548a80b88fU);
    }
    const DisplayFlagsOverride sanskrit(0);
    EXPECT_EQ(hashOf(1, 12, SignName3), 0x3818c64a429560fdU);
    EXPECT_EQ(hashOf(1, 12, SignName2), 0xaa0dfe4026ab1419U);
    EXPECT_EQ(hashOf(1, 12, signNameLong), 0xcfaaacdef00c17bcU);
    for (const NameOf& nameOf : {NameOf(SignName3), NameOf(SignName2), NameOf(signNameLong)}) {
        EXPECT_EQ(nameOf(0), L"x");
        EXPECT_EQ(nameOf(13), L"--");
        EXPECT_EQ(nameOf(-1), L"--");
    }
    const DisplayFlagsOverride glyphs(kGlyphNames);
    EXPECT_EQ(SignName3(1), std::wstring(1, wchar_t(220)));
    EXPECT_EQ(SignName2(12), std::wstring(1, wchar_t(231)));
    EXPECT_EQ(signNameLong(12), L"Mina");
}

TEST(NameLists, HaveEveryNameAndRefuseOtherNumbers)
{
    EXPECT_EQ(hashOf(0, 26, nakshatraName), 0x4ebcbc9aecb93adaU);
    EXPECT_EQ(hashOf(0, 26, nakshatraName3), 0xc873e25e331b4405U);
    EXPECT_EQ(hashOf(0, 59, samvatsaraName), 0xb666029c03b4be70U);
    EXPECT_EQ(hashOf(1, 12, lunarMonthName), 0xc9a493faa5810ec8U);
    EXPECT_EQ(rituName(5), L"Shishira");
    EXPECT_EQ(ayanaName(0), L"Uttarayana");
    {
        const DisplayFlagsOverride english(kEnglishNames);
        EXPECT_EQ(weekdayName(7), L"Saturday");
    }
    const DisplayFlagsOverride sanskrit(0);
    EXPECT_EQ(weekdayName(4), L"Budhavara");
    for (const std::wstring_view name :
         {nakshatraName(-1), nakshatraName(27), nakshatraName3(27), weekdayName(0), weekdayName(8),
          lunarMonthName(0), lunarMonthName(13), rituName(6), ayanaName(2), samvatsaraName(60)}) {
        EXPECT_EQ(name, L"--");
    }
}

TEST(DisplayFlagsWord, AnOverrideBelongsToItsThreadAndItsScope)
{
    const std::uint32_t before = DisplayFlags();
    SetDisplayFlags(kEnglishNames);
    {
        const DisplayFlagsOverride outer(0);
        {
            const DisplayFlagsOverride inner(kGlyphNames);
            EXPECT_EQ(DisplayFlags(), kGlyphNames);
            std::wstring seen;
            std::thread([&] { seen = PointName(4, kMoon); }).join();
            EXPECT_EQ(seen, L"Moon");
        }
        EXPECT_EQ(PointName(4, kMoon), L"Chandra");
        // The program's word changes beneath the override and is seen after it.
        SetDisplayFlags(kEnglishNames | 0x80000000U);
        EXPECT_EQ(DisplayFlags(), 0U);
    }
    EXPECT_EQ(DisplayFlags(), kEnglishNames | 0x80000000U);
    SetDisplayFlags(before);
}

} // namespace
} // namespace kestrav::core
