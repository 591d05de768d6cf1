#include "analysis/Explain.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/Sahams.h"
#include "analysis/Sphutas.h"
#include "analysis/VargaNames.h"
#include "core/DisplayFlags.h"
#include "tests/analysis/ExplainCharts.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace kestrav::analysis
{

namespace
{

using testing::HasSubstr;
using testing::Not;

const std::vector<std::string> kParts = {
    "uccha",      "saptavargaja", "ojayugma",    "kendradi", "drekkana", "sthana",
    "dig",        "paksha",       "nathonnatha", "tribhaga", "varsha",   "masa",
    "vara",       "hora",         "ayana",       "yuddha",   "kala",     "cheshta",
    "naisargika", "drik",         "total",       "ishta",    "kashta"};

// What may stand for a word in capitals of a form.
std::vector<std::string> possible(const std::string& word, int point, bool alone)
{
    std::vector<std::string> values;
    const auto numbers = [&](int first, int last) {
        for (int number = first; number <= last; ++number) {
            if (number != point) {
                values.push_back(std::to_string(number));
            }
        }
    };
    if (word == "VARGA") {
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            values.push_back(core::toUtf8(vargaName(varga)));
        }
    } else if (word == "PLANET") {
        numbers(core::kSun, core::kSaturn);
    } else if (word == "POINT") {
        numbers(0, core::kPointCount - 1);
    } else if (word == "SIGN") {
        values = {"aries", "Lib", "virgo", "12"};
    } else if (word == "SET") {
        values = {"Shodasha", "dasha", "sapta", "SHAD"};
    } else if (word == "FAMILY") {
        values = {"baladi", "jagradadi", "deeptadi", "lajjitadi", "shayanadi"};
    } else if (word == "PART") {
        for (const std::string& part : kParts) {
            // Without the word before them these two are divisional charts.
            if (!alone || (part != "hora" && part != "drekkana")) {
                values.push_back(part);
            }
        }
    }
    return values;
}

std::vector<std::string> namesOf(std::string_view form)
{
    std::vector<std::string> names;
    if (form.substr(0, 5) == "saham") {
        for (const std::wstring_view name : sahamNames()) {
            names.push_back(core::toUtf8(name));
        }
    } else {
        for (const Sphuta& sphuta : sphutas(core::Chart())) {
            names.push_back(core::toUtf8(sphuta.name));
        }
    }
    return names;
}

// Every query of a form for a point, or for none (-1).
std::vector<std::string> queriesOf(const ExplainTopic& topic, int point)
{
    const std::string form(topic.form);
    const std::size_t last = form.rfind(':') + 1;
    const std::string word = form.substr(last);
    std::string start = form.substr(0, last);
    if (point >= 0) {
        start = std::to_string(point) + start.substr(start.find(':'));
    }
    const bool alone = form.find(':') + 1 == last;
    std::vector<std::string> values = point < 0 ? namesOf(form) : possible(word, point, alone);
    if (values.empty()) {
        return {start + word};
    }
    for (std::string& value : values) {
        value.insert(0, start);
    }
    return values;
}

std::vector<std::string> allQueries()
{
    std::vector<std::string> queries;
    for (const ExplainTopic& topic : explainTopics()) {
        bool any = false;
        for (int point = 0; point < core::kPointCount; ++point) {
            if (topic.appliesTo(point)) {
                any = true;
                for (std::string& each : queriesOf(topic, point)) {
                    queries.push_back(std::move(each));
                }
            }
        }
        if (!any) {
            for (std::string& each : queriesOf(topic, -1)) {
                queries.push_back(std::move(each));
            }
        }
    }
    return queries;
}

std::string errorOf(const core::Chart& chart, const std::string& text)
{
    const core::Result<Explanation> result = explain(chart, {}, text);
    EXPECT_FALSE(result.ok()) << text;
    return result.ok() ? std::string() : result.error().message;
}

TEST(Explain, AnswersEveryTopicForEveryPointInCompleteSentences)
{
    const std::vector<std::string> queries = allQueries();
    ASSERT_GT(queries.size(), 2900U);
    for (const core::Chart& chart : chartsToExplain()) {
        for (const std::string& each : queries) {
            const Explanation explanation = explained(chart, each);
            ASSERT_FALSE(explanation.subject.empty() || explanation.result.empty() ||
                         explanation.steps.empty())
                << each;
            for (const std::wstring& step : explanation.steps) {
                const std::string text = core::toUtf8(step);
                ASSERT_TRUE(step.back() == L'.' && step[step.size() - 2] != L'.') << text;
                ASSERT_FALSE(text[0] >= 'a' && text[0] <= 'z') << text;
                ASSERT_EQ(text.find("--"), std::string::npos) << each << ": " << text;
                ASSERT_EQ(text.find("nan"), text.find("nant")) << each << ": " << text;
            }
            for (const std::wstring& setting : explanation.settings) {
                const std::string text = core::toUtf8(setting);
                ASSERT_NE(core::findSetting(text.substr(0, text.find(' '))), nullptr) << text;
            }
        }
    }
}

TEST(Explain, TopicsCarryExamplesThatAnswer)
{
    const core::Chart chart = chartsToExplain()[0];
    std::set<std::string_view> forms;
    for (const ExplainTopic& topic : explainTopics()) {
        EXPECT_TRUE(forms.insert(topic.form).second) << topic.form;
        EXPECT_EQ(topic.meaning.back(), '.') << topic.form;
        EXPECT_NE(explained(chart, std::string(topic.example)).result, L"not computed");
    }
}

TEST(Explain, ReadsNamesInSeveralForms)
{
    const core::Chart chart = chartsToExplain()[0];
    const std::map<std::string, std::vector<std::string>> same = {
        {"mars:navamsha", {"MARS:Navamsha", "mar:nava", " mars : D-9 ", "3:5", "Mars:d9"}},
        {"sun:tajik panchamsha", {"sun:TajikPanchamsha", "sun:16", "Sun:D-5"}},
        {"moon:navadwadasha", {"moon:NavaDwadasha.", "moon:D-108"}},
        {"house4:rashi", {"Hs4:rashi", "cusp 4:rashi", "38:rashi", "H4:rashi"}},
        {"h10:longitude", {"house10:longitude", "44:longitude"}},
        {"arudha7:navamsha", {"a7:navamsha", "53:navamsha"}},
        {"upapada:longitude", {"a12:longitude", "UpapadLg:longitude", "58:longitude"}},
        {"hora:longitude", {"horalagna:longitude", "Hora Lagna:longitude"}},
        {"fortune:longitude", {"part of fortune:longitude", "PFor:longitude"}},
        {"lagna:drekkana22", {"ascendant:drekkana22", "asc:drekkana22"}},
        {"moon:bindu:libra", {"moon:bindu:7", "moon:bindu:Libr"}},
        {"mars:strength:hora", {"mars:kala.hora", "mars:strength:Kala.Hora"}},
        {"mars:strength", {"mars:total", "mars:strength:total"}},
        {"saham:punya", {"Saham:Punya"}},
    };
    for (const auto& [first, others] : same) {
        const Explanation expected = explained(chart, first);
        for (const std::string& other : others) {
            const Explanation explanation = explained(chart, other);
            EXPECT_EQ(explanation.subject, expected.subject) << other;
            EXPECT_EQ(explanation.result, expected.result) << other;
        }
    }
    // The bare words are divisional charts, the parts have longer names.
    EXPECT_EQ(explained(chart, "mars:hora").subject, L"Mars in the Hora");
    EXPECT_EQ(explained(chart, "mars:drekkana").subject, L"Mars in the Drekkana");
    EXPECT_EQ(explained(chart, "mars:sthana.drekkana").subject, L"Drekkana bala of Mars");
}

TEST(Explain, ErrorsNameThePartAndWhatIsPossible)
{
    const core::Chart chart = chartsToExplain()[0];
    struct Case
    {
        std::string text;
        std::vector<std::string> fragments;
    };
    const std::vector<Case> cases = {
        {"", {"POINT:RESULT"}},
        {"mars", {"explain 'mars'", "POINT:RESULT"}},
        {"marz:navamsha", {"the point 'marz'", "ascendant"}},
        {":navamsha", {"the point ''"}},
        {"63:navamsha", {"the point '63'"}},
        {"-1:motion", {"Sun"}},
        {"mars:navamshaa", {"Mars has no result 'navamshaa'", "a varga, dignity", "strength part"}},
        {"mars:", {"Mars has no result ''"}},
        {"rahu:bindu:leo", {"Rahu has no result 'bindu'", "longitude"}},
        {"rahu:uccha", {"Rahu has no result 'uccha'"}},
        {"sun:combust", {"the Sun has no result 'combust'"}},
        {"s2:navamsha", {"has no result 'navamsha'", "longitude"}},
        {"mars:bhavabala", {"no result 'bhavabala'"}},
        {"house4:strength", {"house 4 has no result 'strength'", "bhavabala"}},
        {"mars:bindu", {"'bindu' needs a detail", "SIGN"}},
        {"mars:bindu:ophiuchus", {"the sign 'ophiuchus'", "libra"}},
        {"mars:vimshopaka:", {"needs a detail", "SET"}},
        {"mars:vimshopaka:ten", {"'ten'", "shodasha, dasha, sapta or shad"}},
        {"mars:dignity:D-13", {"the varga 'D-13'", "navamsha"}},
        {"mars:relationship:mars", {"'mars'", "jupiter"}},
        {"mars:relationship:rahu", {"'rahu'", "saturn"}},
        {"mars:aspect:mars", {"'mars'"}},
        {"mars:strength:force", {"'force'", "saptavargaja", "kashta, total"}},
        {"mars:strength:sthana.hora", {"'sthana.hora'"}},
        {"mars:avastha:happy", {"'happy'", "lajjitadi"}},
        {"mars:combust:now", {"'combust' takes no detail", "'now'"}},
        {"mars:navamsha:x", {"'navamsha' takes no detail"}},
        {"mars:uccha:x", {"takes no detail"}},
        {"saham:luck", {"the saham 'luck'", "punya", "labha"}},
        {"saham:punya:x", {"takes no detail"}},
        {"sphuta:", {"needs a detail"}},
        {"sphuta:zeta", {"beeja", "mrityu"}},
    };
    for (const Case& each : cases) {
        if (each.text == "-1:motion") {
            // Only letters and digits count in names, so this is the Sun.
            EXPECT_EQ(explained(chart, each.text).subject, L"Motion of the Sun");
            continue;
        }
        for (const std::string& fragment : each.fragments) {
            EXPECT_THAT(errorOf(chart, each.text), HasSubstr(fragment)) << each.text;
        }
    }
    // A long query is cut in the message, without splitting a character.
    std::string longName = "m";
    for (int i = 0; i < 500; ++i) {
        longName += "\u00e4";
    }
    const std::string message = errorOf(chart, longName + ":navamsha");
    EXPECT_LT(message.size(), 400U);
    EXPECT_TRUE(core::fromUtf8(message).has_value());
}

TEST(Explain, SaysWhyAChartOfPositionsLacksAResult)
{
    const core::Chart bare = chartsToExplain()[3];
    const std::string why = "its moment and place are not known";
    for (const char* const each :
         {"gulika:longitude", "gulika:navamsha", "horalagna:longitude", "saturn:motion",
          "mars:strength", "mars:ayana", "mars:vara", "sphuta:tri", "mars:avastha:shayanadi"}) {
        EXPECT_THAT(resultOf(bare, each), HasSubstr("not computed")) << each;
        EXPECT_THAT(stepsOf(bare, each) + resultOf(bare, each), HasSubstr(why)) << each;
    }
    // What the positions give is there, and the sentence about its source is honest.
    EXPECT_EQ(resultOf(bare, "mars:uccha"), "37.17 virupas");
    EXPECT_THAT(stepsOf(bare, "mars:longitude"), HasSubstr("was given with the chart"));
    EXPECT_THAT(stepsOf(bare, "mars:longitude"), Not(HasSubstr("ayanamsa")));
    EXPECT_THAT(stepsOf(bare, "house3:bhavabala"), HasSubstr("no middle"));
    const core::Chart noNodes = chartsToExplain()[4];
    EXPECT_THAT(stepsOf(noNodes, "rahu:nature"), HasSubstr("the chart was made without it"));
}

TEST(Explain, SaysWhyAPolarChartLacksAResult)
{
    const core::Chart polar = chartsToExplain()[2];
    ASSERT_FALSE(polar.vedicDay.has_value());
    for (const char* const each : {"mandi:longitude", "mars:strength:hora", "ghati:longitude"}) {
        EXPECT_EQ(resultOf(polar, each), "not computed") << each;
        EXPECT_THAT(stepsOf(polar, each), HasSubstr("does not rise and set")) << each;
    }
    EXPECT_THAT(stepsOf(polar, "muntha:longitude"), HasSubstr("annual charts"));
}

TEST(Explain, NamesFollowTheLanguageAndQueriesDoNot)
{
    const core::Chart chart = chartsToExplain()[0];
    const core::DisplayFlagsOverride sanskrit(0);
    const Explanation explanation = explained(chart, "moon:dignity");
    EXPECT_EQ(explanation.subject, L"Dignity of Chandra in the Rashi");
    EXPECT_THAT(stepsOf(explanation), HasSubstr("Kumbha"));
    EXPECT_THAT(errorOf(chart, "chandra:dignity"), HasSubstr("'chandra'"));
}

} // namespace

} // namespace kestrav::analysis
