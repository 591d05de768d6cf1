#include "yoga/Keywords.h"

#include "core/DisplayFlags.h"
#include "core/Points.h"
#include "yoga/Catalogue.h"
#include "yoga/KeywordTables.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace kestrav::yoga
{

namespace
{

TEST(Keywords, wordsOfAllTablesAreFoundAndDistinct)
{
    std::set<std::string> words;
    std::set<int> codes;
    const auto expect = [&](std::string_view word, WordClass wanted) {
        const int code = keywordCode(word);
        EXPECT_EQ(wordClass(code), wanted) << word;
        EXPECT_TRUE(words.insert(std::string(word)).second) << word;
        EXPECT_TRUE(codes.insert(code).second) << word;
        EXPECT_GT(code, 999) << word; // no number of a rule
        EXPECT_NE(codeWords(code), L"?") << word;
    };
    for (const std::string_view word : kPlainTexts) {
        expect(word, WordClass::Plain);
    }
    for (const MaskWord& word : kHouseWords) {
        expect(word.word, WordClass::Houses);
    }
    for (const MaskWord& word : kSignWords) {
        expect(word.word, WordClass::Signs);
    }
    for (const std::string_view word : kNakshatraWords) {
        expect(word, WordClass::Nakshatra);
    }
    for (const std::string_view word : kSetWords) {
        expect(word, WordClass::Set);
    }
    for (const MaskWord& word : kPlanetGroups) {
        expect(word.word, WordClass::Set);
    }
    for (const BaseWord& word : kBaseWords) {
        expect(word.word, WordClass::Point);
    }
    for (const std::string_view word : {"Asc", "Sun", "Ket", "Gul", "ArL", "a2", "a11", "UpL",
                                        "Hs1", "H10", "YoP", "PF", "S3", "Plu"}) {
        expect(word, WordClass::Point);
    }
    // They would hide words if they began like numbers.
    for (const std::string& word : words) {
        EXPECT_FALSE(word[0] >= '0' && word[0] <= '9') << word;
    }
}

TEST(Keywords, doNotDependOnTheLanguageOfTheDisplay)
{
    const int moon = keywordCode("Moo");
    const core::DisplayFlagsOverride sanskrit(0);
    EXPECT_EQ(keywordCode("Moo"), moon);
    EXPECT_EQ(keywordCode("Cha"), kUnknownWord);
    EXPECT_EQ(pointBase(wordContent(keywordCode("ArL"))), core::kArudhaLagna);
}

TEST(Keywords, stepsOfPointsAreReadFromRightToLeft)
{
    const auto steps = [](std::string_view word) {
        const int code = keywordCode(word);
        std::string text = std::to_string(pointBase(code));
        for (int i = 0; i < kMaxPointSteps && pointStep(code, i) != kNoStep; ++i) {
            text += ' ' + std::to_string(pointStep(code, i));
        }
        return code < 0 ? "unknown" : text;
    };
    EXPECT_EQ(steps("Mar"), "3");
    EXPECT_EQ(steps("L5"), "0 5");
    EXPECT_EQ(steps("L12.Moo"), "2 12");
    EXPECT_EQ(steps("D.L9"), "0 9 13");
    EXPECT_EQ(steps("B7"), "0 25");
    EXPECT_EQ(steps("B1.Moo"), "2");
    EXPECT_EQ(steps("B12.Moo"), "2 30");
    EXPECT_EQ(steps("T.N.V.AmK"), "65 15 14 18");
    EXPECT_EQ(steps("R.L7.A.E.X"), "unknown");
    EXPECT_EQ(steps("D.R.L7.A.Mar"), "3 31 7 19 13");
    for (const std::string_view word :
         {"L0", "L13", "L05", "B", "L5.", ".Mar", "D.", "D", "D..Mar", "Q.Mar", "mar", "Mar ",
          "D.D.D.D.D.Mar", "L5.Xyz", "L5.ken"}) {
        EXPECT_EQ(steps(word), "unknown") << word;
    }
    EXPECT_EQ(codeWords(keywordCode("D.L9.Moo")),
              L"the dispositor of the lord of the 9th from the Moon");
    EXPECT_EQ(codeWords(keywordCode("T.B4.Asc")),
              L"the 4th from the ascendant in the second chart");
}

TEST(Keywords, setsAreNamedPlanetsOrGroupsWithAdditionsOrRemovals)
{
    const SetWord named = setWord(keywordCode("min3.T.pla-Sun+Rah-Mar"));
    EXPECT_EQ(named.quantifier, Quantifier::AtLeast);
    EXPECT_EQ(named.count, 3);
    EXPECT_TRUE(named.secondChart);
    EXPECT_EQ(named.set, kNamedPlanets);
    EXPECT_EQ(named.mask, bitsOf({2, 4, 5, 6, 7, 8}));

    const SetWord malefics = setWord(keywordCode("no.mal-Sun-Sat"));
    EXPECT_EQ(malefics.quantifier, Quantifier::No);
    EXPECT_EQ(malefics.set, kMalefics);
    EXPECT_TRUE(malefics.without);
    EXPECT_EQ(malefics.mask, bitsOf({1, 7}));
    EXPECT_FALSE(setWord(keywordCode("ben+Mer")).without);
    EXPECT_EQ(setWord(keywordCode("all.Mar")).mask, bitsOf({3}));
    // A planet alone is a point.
    EXPECT_EQ(wordClass(keywordCode("Mar")), WordClass::Point);

    for (const std::string_view word :
         {"any.", "any.Asc", "min0.pla", "min.pla", "min10.pla", "pla-", "+Mar", "ben+Mer-Moo",
          "Mar+ben", "pla-pla", "Sun-Sun", "any.all.pla", "Mar+Gul", "T.any.ben", "some.ben"}) {
        EXPECT_EQ(keywordCode(word), kUnknownWord) << word;
    }
    EXPECT_EQ(codeWords(keywordCode("max2.mal-Sun")),
              L"at most 2 of the natural malefics besides the Sun");
}

TEST(Keywords, housesAndSignsMayBeJoined)
{
    EXPECT_EQ(twelveMask(keywordCode("h1+4+12"), WordClass::Houses), bitsOf({1, 4, 12}));
    EXPECT_EQ(twelveMask(keywordCode("Ari+water"), WordClass::Signs), bitsOf({1, 4, 8, 12}));
    EXPECT_EQ(twelveMask(keywordCode("Ari"), WordClass::Houses), 0U);
    EXPECT_EQ(twelveMask(5, WordClass::Signs), bitsOf({5}));
    EXPECT_EQ(twelveMask(0, WordClass::Signs), 0U);
    EXPECT_EQ(twelveMask(13, WordClass::Signs), 0U);
    for (const std::string_view word : {"h", "h0", "h13", "h1+", "h1+ken", "Ari+", "Ari+1", ""}) {
        EXPECT_EQ(keywordCode(word), kUnknownWord) << word;
    }
}

TEST(Keywords, kindsAreFoundByNameAlsoExchanged)
{
    for (const Kind& kind : kinds()) {
        EXPECT_EQ(kindOfKeyword(kind.keyword), kind.number);
        EXPECT_EQ(kindOfKeyword("T." + std::string(kind.keyword)), kind.number + kSecondChartKinds);
        EXPECT_EQ(findKind(kind.number), &kind);
    }
    EXPECT_EQ(kindOfKeyword("inHouse"), kUnknownWord);
    EXPECT_EQ(kindOfKeyword("T.T.InHouse"), kUnknownWord);
    EXPECT_EQ(kindOfKeyword(""), kUnknownWord);
}

} // namespace

} // namespace kestrav::yoga
