#include "app/present/TextWidths.h"

#include "app/present/Glyphs.h"
#include "app/present/TextWidthsTable.h"
#include "core/DisplayFlags.h"
#include "core/PointNames.h"

#include <gtest/gtest.h>

namespace kestrav::present
{

TEST(TextWidths, AreThoseOfTheFont)
{
    // Advances of the published font, in units of 2048 to the em.
    EXPECT_DOUBLE_EQ(textWidth(L" "), 651.0 / 2048.0);
    EXPECT_DOUBLE_EQ(textWidth(L"0"), 1303.0 / 2048.0);
    EXPECT_DOUBLE_EQ(textWidth(L"M"), 1767.0 / 2048.0);
    EXPECT_DOUBLE_EQ(textWidth(L"Mars"),
                     textWidth(L"M") + textWidth(L"a") + textWidth(L"r") + textWidth(L"s"));
    EXPECT_DOUBLE_EQ(textWidth(L""), 0.0);
    // Every character that diagrams use by themselves is in the table.
    for (const wchar_t character : std::wstring_view(L"()+-0123456789:'\u00B0\u2191\u2193\u2026"
                                                     L"\u2609\u263D\u2642\u260A\u2648\u2653")) {
        const WidthRun* found = nullptr;
        for (const WidthRun& run : widthRuns()) {
            if (run.first <= character && character <= run.last) {
                found = &run;
            }
        }
        EXPECT_NE(found, nullptr) << int(character);
    }
}

TEST(TextWidths, CharactersThatTheFontLacksHaveAWidth)
{
    EXPECT_DOUBLE_EQ(textWidth(L"\u4E2D"), 1.0);
    EXPECT_DOUBLE_EQ(textWidth(L"\u0915"), 0.75);
    EXPECT_DOUBLE_EQ(textWidth(L"\u0915\u094D"), 0.75);
    EXPECT_EQ(columnsOf(L"\u4E2D\u6587"), 4);
    EXPECT_EQ(columnsOf(L"e\u0301a"), 2);
    EXPECT_EQ(columnsOf(std::wstring_view(L"\u0915\u094D\u0937")), 2);
}

// The names of the characters are those of the Unicode character database.
TEST(Glyphs, StandForPlanetsAndSigns)
{
    const core::DisplayFlagsOverride glyphs(core::kEnglishNames | core::kGlyphNames);
    const wchar_t planets[] = {0x2609, 0x263D, 0x2642, 0x263F, 0x2643,
                               0x2640, 0x2644, 0x260A, 0x260B};
    for (int point = 1; point <= 9; ++point) {
        EXPECT_EQ(glyphText(core::PointName(2, point)), std::wstring(1, planets[point - 1]));
        EXPECT_EQ(glyphText(core::PointName(2, point + 63)), std::wstring(1, planets[point - 1]));
        EXPECT_TRUE(isGlyph(planets[point - 1]));
    }
    for (int point = 32; point <= 34; ++point) {
        EXPECT_EQ(glyphText(core::PointName(3, point)),
                  std::wstring(1, wchar_t(0x2645 + point - 32)));
    }
    for (int sign = 1; sign <= 12; ++sign) {
        EXPECT_EQ(glyphText(core::SignName2(sign)), std::wstring(1, wchar_t(0x2647 + sign)));
    }
    EXPECT_EQ(glyphText(core::PointName(2, 0)), L"As");
    EXPECT_EQ(glyphText(core::PointName(2, 60)), L"F");
    EXPECT_EQ(glyphCharacter(237), L'\0');
}

} // namespace kestrav::present
