#include "app/present/Colour.h"

#include <gtest/gtest.h>

namespace kestrav::present
{

TEST(Colours, TextsAndLinesStandOutFromEveryArea)
{
    for (const ColourScheme scheme :
         {ColourScheme::Light, ColourScheme::Dark, ColourScheme::Print}) {
        for (int ink = 0; ink < kColourRoles; ++ink) {
            for (int area = 0; area < kColourRoles; ++area) {
                if (isArea(ColourRole(ink)) || !isArea(ColourRole(area))) {
                    continue;
                }
                EXPECT_GE(
                    contrast(colourOf(ColourRole(ink), scheme), colourOf(ColourRole(area), scheme)),
                    4.5)
                    << "scheme " << int(scheme) << ", ink " << ink << ", area " << area;
            }
        }
    }
}

TEST(Colours, TextsStandOutFromEveryShade)
{
    for (const ColourScheme scheme :
         {ColourScheme::Light, ColourScheme::Dark, ColourScheme::Print}) {
        const Colour ink = colourOf(ColourRole::Text, scheme);
        for (int shade = -3; shade <= 4; ++shade) {
            EXPECT_GE(contrast(ink, colourOfShade(shade, scheme)), 4.5) << shade;
            EXPECT_EQ(colourOfShade(shade, scheme) == colourOf(ColourRole::Paper, scheme),
                      shade == 0);
        }
        EXPECT_EQ(colourOfShade(-9, scheme), colourOfShade(-3, scheme));
        EXPECT_EQ(colourOfShade(9, scheme), colourOfShade(4, scheme));
    }
}

TEST(Colours, ContrastIsThatOfTheGuidelines)
{
    const Colour black{0, 0, 0};
    const Colour white{255, 255, 255};
    EXPECT_NEAR(contrast(black, white), 21.0, 1e-9);
    EXPECT_NEAR(contrast(white, white), 1.0, 1e-12);
    // The lightest grey that passes on white, as published with the guidelines.
    EXPECT_GE(contrast({0x76, 0x76, 0x76}, white), 4.5);
    EXPECT_LT(contrast({0x77, 0x77, 0x77}, white), 4.5);
    EXPECT_EQ(hexColour({0x0A, 0xB0, 0xFF}), "#0ab0ff");
}

} // namespace kestrav::present
