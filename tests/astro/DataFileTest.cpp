#include "astro/DataFile.h"

#include "core/Angles.h"
#include "core/FileText.h"
#include "core/LittleEndian.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <locale>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace kestrav::astro
{
namespace
{

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

// The places of the file are written out here again, so that an error in the layout shows.
constexpr std::size_t kFileSize = 64757;
constexpr std::size_t kHeaderAt = 666;
constexpr std::size_t kTermsAt = 1008;
constexpr std::size_t kChecksumAt = 64296;

using Bytes = std::vector<std::uint8_t>;

Bytes readBytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeBytes(const fs::path& path, const Bytes& bytes)
{
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
}

const Bytes& builtFile()
{
    static const Bytes bytes = readBytes(fs::path(KESTRAV_BIN) / "JRaam.nam");
    return bytes;
}

// A folder of its own, removed at the end.
class Folder
{
public:
    Folder()
    {
        std::string name = (fs::temp_directory_path() / "kestrav-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~Folder()
    {
        fs::remove_all(path_);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] fs::path file() const
    {
        return path_ / "JRaam.nam";
    }
    [[nodiscard]] const fs::path& path() const
    {
        return path_;
    }

private:
    fs::path path_;
};

// The text form of the series: all terms, and for each of the 162 blocks how many there are.
struct SeriesText
{
    std::vector<std::size_t> counts;
    std::vector<std::array<double, 3>> terms;
};

SeriesText readSeriesText()
{
    SeriesText text;
    std::ifstream file(fs::path(KESTRAV_RESOURCES) / "series" / "planets.txt");
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        if (line.starts_with("block ")) {
            std::string skipped;
            words >> skipped >> skipped >> skipped >> text.counts.emplace_back();
        } else if (!line.starts_with('#') && !line.starts_with("entry ")) {
            std::array<double, 3>& term = text.terms.emplace_back();
            words >> term[0] >> term[1] >> term[2];
        }
        EXPECT_TRUE(words) << line;
    }
    return text;
}

TEST(DataFile, HoldsEveryTermOfTheSeriesBitForBit)
{
    ASSERT_EQ(builtFile().size(), kFileSize);
    const core::Result<ProgramData> data = decodeDataFile(builtFile());
    ASSERT_TRUE(data) << data.error().text();
    const Series& series = data.value().series;
    const SeriesText text = readSeriesText();
    ASSERT_EQ(text.counts.size(), 162U);
    ASSERT_EQ(text.terms.size(), 2637U);

    const auto bits = [](double value) {
        return std::bit_cast<std::uint64_t>(value);
    };
    std::size_t next = 0;
    for (std::size_t b = 0; b < text.counts.size(); ++b) {
        const SeriesBlock& block = series.entries[b / 18].blocks[b % 18];
        ASSERT_EQ(block.count, text.counts[b]) << "block " << b;
        for (std::size_t i = block.first; i < block.first + block.count; ++i, ++next) {
            ASSERT_EQ(bits(series.amplitude[i]), bits(text.terms[next][0])) << "term " << next;
            ASSERT_EQ(bits(series.phase[i]), bits(text.terms[next][1])) << "term " << next;
            ASSERT_EQ(bits(series.frequency[i]), bits(text.terms[next][2])) << "term " << next;
        }
    }
    EXPECT_EQ(next, 2637U);
}

TEST(DataFile, HoldsBodiesInTheirOrder)
{
    const core::Result<ProgramData> data = decodeDataFile(builtFile());
    ASSERT_TRUE(data);
    // Mean heliocentric distances in astronomical units, from the orbits' textbook elements: the
    // constant term of the radius must come close, so a pair of exchanged entries is seen.
    constexpr std::array<double, 9> kDistances = {1.000, 1.530,  0.395,  5.209, 0.723,
                                                  9.557, 19.213, 30.070, 1.000};
    for (std::size_t e = 0; e < kDistances.size(); ++e) {
        const SeriesBlock& radius = data.value().series.entries[e].blocks[12];
        EXPECT_NEAR(data.value().series.amplitude[radius.first], kDistances[e],
                    0.01 * kDistances[e])
            << "entry " << e;
    }
}

class MatchingTablesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const core::Result<ProgramData> data = decodeDataFile(builtFile());
        ASSERT_TRUE(data) << data.error().text();
        tables = data.value().matching;
    }
    [[nodiscard]] static int starOf(double moon)
    {
        return int(moon * 27.0 / 360.0);
    }

    MatchingTables tables;
};

TEST_F(MatchingTablesTest, ObeyTheLawsOfTheNakshatras)
{
    std::map<int, int> lords;
    std::map<int, int> ganas;
    std::map<int, int> animals;
    for (std::size_t star = 0; star < 27; ++star) {
        ++lords[tables.lord[star]];
        ++ganas[tables.gana[star]];
        ++animals[tables.yoni[star]];
        EXPECT_EQ(tables.lord[star], tables.lord[star % 9]);
        EXPECT_EQ(tables.rajju[star], 4 - std::abs(4 - int(star % 9)));
        // 0 1 2 and then backwards 2 1 0.
        EXPECT_EQ(tables.nadi[star], star / 3 % 2 == 0 ? int(star % 3) : 2 - int(star % 3));
    }
    EXPECT_EQ(lords.size(), 9U);
    EXPECT_EQ(tables.lord[0], 9) << "Ashwini belongs to Ketu";
    EXPECT_EQ(tables.lord[3], 2) << "Rohini belongs to the Moon";
    EXPECT_EQ(tables.lord[7], 7) << "Pushya belongs to Saturn";
    EXPECT_EQ(ganas, (std::map<int, int>{{0, 9}, {1, 9}, {2, 9}}));
    // Every animal has a male and a female star; the mongoose alone has no mate.
    EXPECT_EQ(animals.size(), 14U);
    EXPECT_EQ(animals[12], 1);
    EXPECT_EQ(std::count_if(animals.begin(), animals.end(),
                            [](const auto& animal) { return animal.second == 2; }),
              13);
}

TEST_F(MatchingTablesTest, ObstructExactlyThePairsThatAreKnown)
{
    const std::set<std::pair<int, int>> pairs = {{0, 17},  {1, 16},  {2, 15}, {3, 14},  {5, 21},
                                                 {6, 20},  {7, 19},  {8, 18}, {9, 26},  {10, 25},
                                                 {11, 24}, {12, 23}, {4, 13}, {13, 22}, {4, 22}};
    for (int a = 0; a < 27; ++a) {
        for (int b = 0; b < 27; ++b) {
            EXPECT_EQ(obstruct(tables, a, b), pairs.contains({std::min(a, b), std::max(a, b)}))
                << a << " and " << b;
        }
    }
}

TEST_F(MatchingTablesTest, GiveThePointsOfKnownCouples)
{
    const auto yoni = [&](double groom, double bride) {
        const int a = tables.yoni[std::size_t(starOf(groom))];
        const int b = tables.yoni[std::size_t(starOf(bride))];
        EXPECT_EQ(tables.yoniPoints[std::size_t(a)][std::size_t(b)],
                  tables.yoniPoints[std::size_t(b)][std::size_t(a)]);
        return tables.yoniPoints[std::size_t(a)][std::size_t(b)];
    };
    const auto gana = [&](double groom, double bride) {
        return tables.ganaPoints[std::size_t(tables.gana[std::size_t(starOf(groom))])]
                                [std::size_t(tables.gana[std::size_t(starOf(bride))])];
    };
    // Groom's Moon in Ashwini, bride's in Pushya, and the other way round.
    EXPECT_EQ(yoni(10.0, 95.0), 2);
    EXPECT_EQ(gana(10.0, 95.0), 6);
    // Shatabhisha (Horse, Rakshasa) and Swati (Buffalo, Deva): enemies.
    EXPECT_EQ(yoni(311.29, 186.96), 0);
    EXPECT_EQ(gana(311.29, 186.96), 0);
    EXPECT_EQ(gana(186.96, 311.29), 1) << "a Deva groom and a Rakshasa bride";
    // Seven pairs of animals are deadly enemies, the same animal is best.
    int enemies = 0;
    for (std::size_t i = 0; i < 14; ++i) {
        EXPECT_EQ(tables.yoniPoints[i][i], 4);
        enemies += int(std::count(tables.yoniPoints[i].begin(), tables.yoniPoints[i].end(), 0));
    }
    EXPECT_EQ(enemies, 2 * 7);

    // Cancer before Aries before Virgo before Aquarius; each rank has the three signs of an
    // element.
    EXPECT_EQ(tables.varna[4], 4);
    EXPECT_EQ(tables.varna[1], 3);
    EXPECT_EQ(tables.varna[6], 2);
    EXPECT_EQ(tables.varna[11], 1);
    for (std::size_t sign = 1; sign <= 12; ++sign) {
        EXPECT_EQ(tables.varna[sign], tables.varna[(sign + 3) % 12 + 1]) << "sign " << sign;
    }

    // Bride in Cancer (Jalachara), groom in Aries (Chatushpada): one point. A bride of Leo's group
    // suits no other, while a groom of Leo's group suits the four-footed by half a point.
    EXPECT_EQ(tables.vashyaHalfPoints[2][0], 2);
    EXPECT_EQ(tables.vashyaHalfPoints[3], (std::array{0, 0, 0, 4, 0}));
    EXPECT_EQ(tables.vashyaHalfPoints[0][3], 1);
}

// A kind of damage and what the message must say about it.
struct Damage
{
    const char* name;
    std::function<void(Bytes&)> inflict;
    const char* message;
};

void PrintTo(const Damage& damage, std::ostream* out)
{
    *out << damage.name;
}

template <typename Integer>
void put(Bytes& bytes, std::size_t offset, Integer value)
{
    Bytes piece;
    core::appendInteger(piece, value);
    std::copy(piece.begin(), piece.end(), bytes.begin() + std::ptrdiff_t(offset));
}

void putNumber(Bytes& bytes, std::size_t offset, double value)
{
    put(bytes, offset, std::bit_cast<std::uint64_t>(value));
}

class DamagedFile : public testing::TestWithParam<Damage>
{};

TEST_P(DamagedFile, IsFound)
{
    Bytes bytes = builtFile();
    ASSERT_EQ(bytes.size(), kFileSize);
    GetParam().inflict(bytes);
    const core::Result<ProgramData> data = decodeDataFile(bytes);
    ASSERT_FALSE(data);
    EXPECT_THAT(data.error().text(), StartsWith("JRaam.nam: is damaged: "));
    EXPECT_THAT(data.error().message, HasSubstr(GetParam().message));
}

constexpr std::size_t kMarsAt = kHeaderAt + 38;

INSTANTIATE_TEST_SUITE_P(
    DataFile, DamagedFile,
    testing::Values(
        Damage{"Empty", [](Bytes& b) { b.clear(); }, "it has 0 bytes"},
        Damage{"Truncated", [](Bytes& b) { b.pop_back(); }, "64756 bytes instead of 64757"},
        Damage{"Longer", [](Bytes& b) { b.push_back(0); }, "64758 bytes instead of 64757"},
        Damage{"VedhaBeyondTheStars", [](Bytes& b) { put<std::int16_t>(b, 6, 27); },
               "the value 27 at byte 6 (vedha)"},
        Damage{"VedhaNegative", [](Bytes& b) { put<std::int16_t>(b, 6, -1); },
               "the value -1 at byte 6 (vedha)"},
        // Star 0 would lead to 16, 1, 16, 1 and so on, never back.
        Damage{"VedhaWithoutReturn", [](Bytes& b) { put<std::int16_t>(b, 0, 16); },
               "the vedha chain is broken at nakshatra 1"},
        Damage{"VedhaOfItself",
               [](Bytes& b) {
                   put<std::int16_t>(b, 0, 0);
                   put<std::int16_t>(b, 34, 17);
               },
               "the vedha chain is broken at nakshatra 0"},
        Damage{"Lord", [](Bytes& b) { b[54 + 26] = 10; }, "byte 80 (Vimshottari lord)"},
        Damage{"Gana", [](Bytes& b) { b[81] = 3; }, "byte 81 (gana)"},
        Damage{"Nadi", [](Bytes& b) { b[108 + 10] = 3; }, "byte 118 (nadi)"},
        Damage{"Yoni", [](Bytes& b) { b[108 + 261] = 14; }, "byte 369 (yoni animal)"},
        Damage{"Rajju", [](Bytes& b) { b[110] = 255; }, "byte 110 (rajju)"},
        Damage{"YoniPoints", [](Bytes& b) { b[582] = 5; }, "byte 582 (yoni points)"},
        Damage{"GanaPoints", [](Bytes& b) { b[583] = 7; }, "byte 583 (gana points)"},
        Damage{"Varna", [](Bytes& b) { b[603] = 0; }, "byte 603 (varna rank)"},
        Damage{"Vashya", [](Bytes& b) { b[628] = 5; }, "byte 628 (vashya points)"},
        Damage{"FirstTermNotZero", [](Bytes& b) { put<std::int16_t>(b, kHeaderAt, 1); },
               "entry 0 begins at term 1 instead of 0"},
        Damage{"RunningSumWrong", [](Bytes& b) { b[kMarsAt] ^= 1U; }, "entry 1 begins at term"},
        Damage{"CountRaised", [](Bytes& b) { ++b[kHeaderAt + 2]; }, "entry 1 begins at term"},
        Damage{"CountNegative", [](Bytes& b) { put<std::int16_t>(b, kHeaderAt + 2, -1); },
               "the value -1 at byte 668 (term count)"},
        Damage{"CountTooLarge", [](Bytes& b) { put<std::int16_t>(b, kHeaderAt + 2, 2638); },
               "the value 2638 at byte 668 (term count)"},
        Damage{"LastCountChanged", [](Bytes& b) { --b[kTermsAt - 12]; },
               "add up to 2636 instead of 2637"},
        Damage{
            "NotANumber",
            [](Bytes& b) { putNumber(b, kTermsAt + 24, std::numeric_limits<double>::quiet_NaN()); },
            "term 1 holds no usable number"},
        Damage{"Infinite",
               [](Bytes& b) {
                   putNumber(b, kChecksumAt - 8, -std::numeric_limits<double>::infinity());
               },
               "term 2636 holds no usable number"},
        Damage{"FrequencyBeyondAllSense", [](Bytes& b) { putNumber(b, kTermsAt + 16, 1e300); },
               "term 0 holds no usable number"},
        Damage{"BitOfACoefficient", [](Bytes& b) { b[kTermsAt + 24 * 1000] ^= 1U; }, "checksum"},
        Damage{"ReservedByte", [](Bytes& b) { b[640] = 1; }, "checksum"},
        Damage{"Checksum", [](Bytes& b) { b[kChecksumAt] ^= 1U; }, "checksum"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(DataFile, NeedsNoChecksum)
{
    Bytes bytes = builtFile();
    putNumber(bytes, kTermsAt, 1.5);
    ASSERT_FALSE(decodeDataFile(bytes));
    put<std::uint32_t>(bytes, kChecksumAt, 0);
    const core::Result<ProgramData> data = decodeDataFile(bytes);
    ASSERT_TRUE(data) << data.error().text();
    EXPECT_EQ(data.value().series.amplitude[0], 1.5);
}

TEST(DataFile, IsDecodedOrRefusedWhateverItsBytes)
{
    const unsigned seed = 20240117;
    std::mt19937 random(seed);
    int accepted = 0;
    for (int round = 0; round < 300; ++round) {
        Bytes bytes = builtFile();
        put<std::uint32_t>(bytes, kChecksumAt, 0);
        for (unsigned change = random() % 4; change > 0; --change) {
            // Half of the changes hit the tables and the header, where a wrong value could lead
            // astray.
            const std::size_t range = random() % 2 == 0 ? kTermsAt : kFileSize;
            bytes[random() % range] = static_cast<std::uint8_t>(random());
        }
        const core::Result<ProgramData> data = decodeDataFile(bytes);
        if (!data) {
            EXPECT_THAT(data.error().message, StartsWith("is damaged: ")) << "seed " << seed;
            continue;
        }
        ++accepted;
        for (const SeriesEntry& entry : data.value().series.entries) {
            ASSERT_LE(entry.first + entry.length, data.value().series.amplitude.size());
        }
        for (int star = 0; star < 27; ++star) {
            EXPECT_FALSE(obstruct(data.value().matching, star, star));
        }
    }
    EXPECT_GT(accepted, 0) << "seed " << seed;
    EXPECT_LT(accepted, 300) << "seed " << seed;
}

TEST(LoadSeries, TellsAMissingFileFromADamagedOne)
{
    const Folder folder;
    LoadResult result = LoadSeries(folder.file());
    EXPECT_FALSE(result.ok());
    EXPECT_EQ(result.problem, DataFileProblem::Missing);
    EXPECT_EQ(result.error.message, "Can't find the Ram file");
    EXPECT_EQ(result.error.file, folder.file().string());

    Bytes bytes = builtFile();
    writeBytes(folder.file(), bytes);
    result = LoadSeries(folder.file());
    EXPECT_TRUE(result.ok()) << result.error.text();

    for (const std::size_t size : {std::size_t(0), kFileSize - 1, kFileSize + 1}) {
        bytes.resize(size);
        writeBytes(folder.file(), bytes);
        result = LoadSeries(folder.file());
        EXPECT_FALSE(result.ok());
        EXPECT_EQ(result.problem, DataFileProblem::Damaged) << size << " bytes";
        EXPECT_THAT(result.error.text(), StartsWith(folder.file().string() + ": is damaged: "));
    }

    fs::remove(folder.file());
    fs::create_directory(folder.file());
    result = LoadSeries(folder.file());
    EXPECT_EQ(result.problem, DataFileProblem::Missing);
    EXPECT_EQ(result.error.message, "Can't find the Ram file (not a regular file)");
}

TEST(LoadSeries, CountsAFileWithoutPermissionAsMissing)
{
    const Folder folder;
    // Longer than it may be, which must not matter for a file that cannot be opened.
    writeBytes(folder.file(), Bytes(kFileSize + 1));
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(folder.file().c_str(), 0), 0);
    const auto loadUnprivileged = [&] {
        constexpr uid_t kNobody = 65534;
        if (::geteuid() == 0 && ::setuid(kNobody) != 0) {
            std::_Exit(2);
        }
        const LoadResult result = LoadSeries(folder.file());
        std::fputs(result.error.message.c_str(), stderr);
        std::_Exit(!result.ok() && result.problem == DataFileProblem::Missing ? 0 : 1);
    };
    EXPECT_EXIT(loadUnprivileged(), testing::ExitedWithCode(0),
                "^Can't find the Ram file \\(cannot open: .+\\)$");
}

TEST(LoadSeries, LooksInTheCurrentFolderFirstAndThenBesideTheProgram)
{
    const Folder folder;
    const auto loadThere = [&] {
        // In a child process, whose folder and environment are nobody else's.
        ::setenv("XDG_CONFIG_HOME", folder.path().c_str(), 1);
        ::setenv("XDG_DATA_HOME", folder.path().c_str(), 1);
        fs::current_path(folder.path());
        if (!LoadSeries().ok()) {
            std::_Exit(1);
        }
        writeBytes("JRaam.nam", Bytes(7));
        const LoadResult result = LoadSeries();
        std::fputs(result.error.text().c_str(), stderr);
        std::_Exit(result.problem == DataFileProblem::Damaged ? 0 : 2);
    };
    EXPECT_EXIT(loadThere(), testing::ExitedWithCode(0),
                "^JRaam.nam: is damaged: it has 7 bytes instead of 64757$");
}

} // namespace
} // namespace kestrav::astro
