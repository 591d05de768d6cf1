#include "yoga/YogaFile.h"
#include "tests/data_floor/Folders.h"
#include "yoga/CustomYogaList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <regex>
#include <string>
#include <string_view>

namespace kestrav::yoga
{

namespace
{

using testing::HasSubstr;

std::span<const std::uint8_t> bytesOf(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

YogaFile parsed(std::string_view text)
{
    core::Result<YogaFile> file = parseYogaFile(bytesOf(text));
    EXPECT_TRUE(file.ok()) << (file.ok() ? "" : file.error().text());
    return file.ok() ? std::move(file.value()) : YogaFile();
}

std::string formatted(const YogaFile& file)
{
    const auto bytes = formatYogaFile(file);
    EXPECT_TRUE(bytes.ok());
    return {bytes.value().begin(), bytes.value().end()};
}

// The text without the blanks between elements, which the program lays out anew.
std::string compact(const std::string& text)
{
    static const std::regex kBetween(">\\s+<");
    static const std::regex kDeclaration("^\\s*<\\?xml[^>]*>\\s*");
    return std::regex_replace(std::regex_replace(text, kDeclaration, ""), kBetween, "><");
}

const char* const kForeignContent = R"(<?xml version="1.0"?>
<!-- written by hand -->
<ksy xmlns:x="urn:x" ver="1" x:made="2020" nm="Mine">
  <au>Somebody</au>
  <licence kind="free">yes</licence>
  <!-- the first -->
  <yg tl="One" hidden="7">
    <rl>A\OR\B</rl>
    <!-- inside -->
    <in><![CDATA[a < b & c]]></in>
    <x:colour>red</x:colour>
  </yg>
  <?layout wide?>
  <!-- the second -->
  <yg><tl>Two</tl><rl>B</rl></yg>
  <post>The end</post>
  <!-- last -->
</ksy>
<!-- after all -->
)";

} // namespace

TEST(YogaFile, WritesEveryFieldAsAnElement)
{
    YogaFile file;
    file.version = "1";
    file.rights = "free";
    file.name = "Names \xE0\xA4\xAF\xE0\xA5\x8B\xE0\xA4\x97";
    file.author = "A & B";
    file.introduction = "Before\nafter";
    file.closing = "end";
    Yoga yoga;
    yoga.options = "1,3";
    yoga.title = "Title <one>";
    yoga.rule = "A\\OR\\B,,\"x\"";
    yoga.interpretation = "what\r\nit does";
    yoga.comment = "c";
    yoga.vargas = "Rasi,Nava";
    yoga.chapter = "ch";
    yoga.further = "further";
    file.yogas = {yoga, Yoga{}};
    file.yogas[1].title = "bell \x07 and \xEF\xBF\xBE in \xC3\xA4 text";
    const std::string text = formatted(file);
    EXPECT_EQ(compact(text).find("<ksy><ver>1</ver><cpy>free</cpy><nm>"), 0U) << text;
    EXPECT_THAT(compact(text), HasSubstr("<yg><op>1,3</op><tl>Title &lt;one&gt;</tl><rl>A\\OR\\B"));
    const YogaFile again = parsed(text);
    EXPECT_EQ(again.name, file.name);
    EXPECT_EQ(again.author, file.author);
    EXPECT_EQ(again.introduction, file.introduction);
    EXPECT_EQ(again.closing, file.closing);
    ASSERT_EQ(again.yogas.size(), 2U);
    EXPECT_EQ(again.yogas[0].options, yoga.options);
    EXPECT_EQ(again.yogas[0].title, yoga.title);
    EXPECT_EQ(again.yogas[0].rule, yoga.rule);
    EXPECT_EQ(again.yogas[0].interpretation, yoga.interpretation);
    EXPECT_EQ(again.yogas[0].comment, yoga.comment);
    EXPECT_EQ(again.yogas[0].vargas, yoga.vargas);
    EXPECT_EQ(again.yogas[0].chapter, yoga.chapter);
    EXPECT_EQ(again.yogas[0].further, yoga.further);
    EXPECT_EQ(again.yogas[1].title, "bell   and   in \xC3\xA4 text");
    EXPECT_EQ(formatted(again), text);
}

TEST(YogaFile, ReadsElementsAndAttributesAndKeepsTheRest)
{
    YogaFile file = parsed(kForeignContent);
    EXPECT_EQ(file.version, "1");
    EXPECT_EQ(file.name, "Mine");
    EXPECT_EQ(file.author, "Somebody");
    EXPECT_EQ(file.closing, "The end");
    ASSERT_EQ(file.yogas.size(), 2U);
    EXPECT_EQ(file.yogas[0].title, "One");
    EXPECT_EQ(file.yogas[0].rule, "A\\OR\\B");
    EXPECT_EQ(file.yogas[0].interpretation, "a < b & c");
    file.yogas[0].interpretation = "new";
    file.yogas[1].comment = "added";
    EXPECT_EQ(compact(formatted(file)),
              "<!-- written by hand --><ksy xmlns:x=\"urn:x\" x:made=\"2020\"><au>Somebody</au>"
              "<licence kind=\"free\">yes</licence><ver>1</ver><nm>Mine</nm><!-- the first -->"
              "<yg hidden=\"7\"><rl>A\\OR\\B</rl><!-- inside --><in>new</in>"
              "<x:colour>red</x:colour><tl>One</tl></yg><?layout wide?><!-- the second -->"
              "<yg><tl>Two</tl><rl>B</rl><cm>added</cm></yg><post>The end</post><!-- last -->"
              "</ksy><!-- after all -->\n");
}

TEST(YogaFile, MovedCopiedAndRemovedYogas)
{
    YogaFile file = parsed(kForeignContent);
    std::swap(file.yogas[0], file.yogas[1]);
    std::string text = compact(formatted(file));
    EXPECT_THAT(text, HasSubstr("<!-- the second --><yg><tl>Two</tl><rl>B</rl></yg><!-- the first "
                                "--><yg hidden=\"7\">"));
    file.yogas.erase(file.yogas.begin());
    text = compact(formatted(file));
    EXPECT_THAT(text, testing::Not(HasSubstr("Two")));
    EXPECT_THAT(text, HasSubstr("<!-- the second --><post>")) << "comments stay";

    YogaFile other;
    other.yogas = {file.yogas[0], file.yogas[0]};
    file = YogaFile();
    text = compact(formatted(other));
    EXPECT_EQ(std::count(text.begin(), text.end(), '!'), 5) << text;
    EXPECT_THAT(text, HasSubstr("xmlns:x=\"urn:x\""));
    EXPECT_EQ(parsed(text).yogas.size(), 2U);
}

TEST(YogaFile, RefusesWhatIsNoYogaFile)
{
    const struct
    {
        std::string text;
        const char* message;
        long line;
    } cases[] = {
        {"meta:\n  id: png\n  endian: be\nseq: []\n", "belong to another program", 0},
        {"", "belong to another program", 0},
        {"<charts/>", "root element is not ksy", 1},
        {"<ksy><yg></ksy>", "not well-formed XML", 1},
        {"<ksy>\n<yg><tl>&other;</tl></yg></ksy>", "not well-formed XML", 2},
        {"<!DOCTYPE ksy [<!ENTITY a \"b\">]><ksy><yg><tl>&a;</tl></yg></ksy>", "document type", 0},
        {"<!DOCTYPE ksy SYSTEM \"http://localhost/x.dtd\"><ksy/>", "document type", 0},
        {std::string("<ksy>\0</ksy>", 12), "not well-formed XML", 1},
    };
    for (const auto& one : cases) {
        const core::Result<YogaFile> file = parseYogaFile(bytesOf(one.text));
        ASSERT_FALSE(file.ok()) << one.text;
        EXPECT_THAT(file.error().message, HasSubstr(one.message));
        EXPECT_EQ(file.error().line, one.line) << one.text;
    }
}

TEST(YogaFile, BombsAndLargeFilesTakeBoundedTime)
{
    const auto begin = std::chrono::steady_clock::now();
    std::string bomb = "<!DOCTYPE ksy [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaa\">";
    for (char name = 'b'; name <= 'z'; ++name) {
        bomb += std::string("<!ENTITY ") + name + " \"";
        for (int i = 0; i < 20; ++i) {
            bomb += std::string("&") + char(name - 1) + ";";
        }
        bomb += "\">";
    }
    EXPECT_FALSE(parseYogaFile(bytesOf(bomb + "]><ksy><yg><tl>&z;</tl></yg></ksy>")).ok());

    std::string deep = "<ksy>";
    for (int i = 0; i < 100'000; ++i) {
        deep += "<yg>";
    }
    EXPECT_FALSE(parseYogaFile(bytesOf(deep)).ok());

    std::string many = "<ksy>";
    for (int i = 0; i < 10'000; ++i) {
        many += "<!--" + std::to_string(i) + "--><yg tl=\"Yoga " + std::to_string(i) +
                "\"><rl>A\\B\\OR\\C</rl></yg>";
    }
    YogaFile file = parsed(many + "</ksy>");
    ASSERT_EQ(file.yogas.size(), 10'000U);
    std::reverse(file.yogas.begin(), file.yogas.end());
    const YogaFile again = parsed(formatted(file));
    ASSERT_EQ(again.yogas.size(), 10'000U);
    EXPECT_EQ(again.yogas[0].title, "Yoga 9999");
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

class YogaFiles : public data::FolderTest
{};

TEST_F(YogaFiles, SaveKeepsTheOldFileOrABackup)
{
    const auto path = put("my.ksy", kForeignContent);
    core::Result<YogaFile> file = readYogaFile(path);
    ASSERT_TRUE(file.ok());
    file.value().author = "Another";
    ASSERT_TRUE(writeYogaFile(path, file.value()).ok());
    EXPECT_EQ(get("my.BAK"), kForeignContent);
    EXPECT_THAT(get("my.ksy"), HasSubstr("<au>Another</au>"));

    const std::string before = get("my.ksy");
    EXPECT_EQ(data::onFullDisk(100, [&] { return writeYogaFile(path, file.value()).ok() ? 1 : 0; }),
              0);
    EXPECT_EQ(get("my.ksy"), before);
    // A text longer than the reader takes is not written.
    file.value().closing = std::string(17'000'000, 'x');
    const core::Result<void> tooLong = writeYogaFile(path, file.value());
    ASSERT_FALSE(tooLong.ok());
    EXPECT_THAT(tooLong.error().text(), HasSubstr("is not written"));
    EXPECT_EQ(get("my.ksy"), before);
    EXPECT_EQ(names(), (std::set<std::string>{"my.ksy", "my.BAK"}));
    EXPECT_FALSE(readYogaFile(folder / "none.ksy").ok());
}

TEST_F(YogaFiles, CustomList)
{
    const std::vector<CustomYoga> yogas = {{"Gaja Kesari", "A\\B"}, {"Only a title", ""}};
    const auto path = folder / kCustomYogaFile;
    ASSERT_TRUE(writeCustomYogas(path, yogas).ok());
    EXPECT_EQ(get(kCustomYogaFile), "Gaja Kesari\tA\\B\nOnly a title\t\n");
    const auto read = readCustomYogas(path);
    ASSERT_TRUE(read.ok());
    EXPECT_EQ(read.value(), yogas);
    ASSERT_TRUE(writeCustomYogas(path, std::vector<CustomYoga>{{"a\tb", "c\nd"}}).ok());
    EXPECT_EQ(get(kCustomYogaFile), "a b\tc d\n");
    EXPECT_EQ(get("cusyog2.BAK"), "Gaja Kesari\tA\\B\nOnly a title\t\n");

    put(kCustomYogaFile, "\xEF\xBB\xBF\xEF\xBB\xBFOne\tA\r\n\r\nna\xEFve\tB\r\nno rule");
    const auto foreign = readCustomYogas(path);
    ASSERT_TRUE(foreign.ok());
    EXPECT_EQ(foreign.value(),
              (std::vector<CustomYoga>{{"One", "A"}, {"na\xC3\xAFve", "B"}, {"no rule", ""}}));
}

} // namespace kestrav::yoga
