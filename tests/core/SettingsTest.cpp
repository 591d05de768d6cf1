#include "core/Settings.h"
#include "core/SettingsFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::core
{
namespace
{

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kBlockStart = 12; // after the mark and the byte count

// Where the ten records of 36 bytes begin. The block before them grows with every new setting.
const std::size_t recordsStart = encodeSettings({}).size() - 360;

void putInt(Bytes& bytes, std::size_t offset, std::int32_t value)
{
    for (std::size_t i = 0; i < 4; ++i) {
        bytes.at(offset + i) =
            static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) >> 8 * i);
    }
}

// A double of which only the two highest bytes are not zero.
void putDouble(Bytes& bytes, std::size_t offset, std::uint8_t high, std::uint8_t low)
{
    std::fill_n(bytes.begin() + std::ptrdiff_t(offset), 6, std::uint8_t{0});
    bytes.at(offset + 6) = low;
    bytes.at(offset + 7) = high;
}

TEST(Settings, HaveTheirStatedDefaultsAndRanges)
{
    // Name, default, lowest and highest value.
    std::istringstream rows(
        "displayFlags 1 0 2147483647  ayanamsaRow 1 0 9  houseSystem 0 0 4  deltaTOn 1 0 1 "
        "daylightSavingHours 1 0 3  horaMethod 0 0 3  shodashamshaVariant 0 0 1 "
        "rudramshaVariant 0 0 1  nodeDignityScheme 0 0 2  exaltedCountsAsOwn 0 0 1 "
        "arudhasInVargas 1 0 1  vargaCompoundRelationships 1 0 1  naturalRelationshipsOnly 0 0 1 "
        "directCombustionOrbsOnly 0 0 1  coLords 0 0 1  dashaSystem 0 0 23  dashaStartPoint 2 0 13 "
        "dashaTotalLength 0 0 4  dashaLevels 2 1 5  dashaYearLength 2 0 6");
    std::string name;
    double value = 0.0;
    double lowest = 0.0;
    double highest = 0.0;
    while (rows >> name >> value >> lowest >> highest) {
        const SettingInfo* const info = findSetting(name);
        ASSERT_NE(info, nullptr) << name;
        EXPECT_EQ(settingValue(Settings{}, *info), value) << name;
        EXPECT_EQ(info->lowest, lowest) << name;
        EXPECT_EQ(info->highest, highest) << name;
    }
    EXPECT_EQ(name, "dashaYearLength");
    EXPECT_EQ(findSetting("HouseSystem"), nullptr);
}

TEST(Settings, TableIsSoundThroughout)
{
    for (const SettingInfo& info : settingsTable()) {
        EXPECT_EQ(findSetting(info.name), &info) << info.name << " twice";
        EXPECT_FALSE(info.meaning.empty());
        const double value = settingValue(Settings{}, info);
        EXPECT_TRUE(value >= info.lowest && value <= info.highest) << info.name;
        if (!info.choices.empty()) {
            EXPECT_FALSE(choiceName(info, int(info.highest)).empty()) << info.name;
            EXPECT_TRUE(choiceName(info, int(info.highest) + 1).empty()) << info.name;
            EXPECT_TRUE(choiceName(info, int(info.lowest) - 1).empty()) << info.name;
        }
        // What is shown can be entered again.
        Settings settings;
        storeSetting(settings, info, info.highest);
        storeSettingText(settings, info, "/atlas of mine");
        Settings again;
        EXPECT_TRUE(setSetting(again, info.name, settingText(settings, info)));
        EXPECT_EQ(again, settings) << info.name;
    }
    EXPECT_EQ(choiceName(*findSetting("dashaSystem"), 23), "Tithi Astottari");
    EXPECT_EQ(choiceName(*findSetting("houseSystem"), 3), "Placidus (Vedic)");
}

TEST(Settings, AreSetFromText)
{
    Settings settings;
    EXPECT_TRUE(setSetting(settings, "houseSystem", "sri pati"));
    EXPECT_EQ(settings.houseSystem, 2);
    EXPECT_TRUE(setSetting(settings, "dashaSystem", "YOGINI"));
    EXPECT_EQ(settings.dashaSystem, 12);
    EXPECT_TRUE(setSetting(settings, "deltaTOn", "Off"));
    EXPECT_FALSE(settings.deltaTOn);
    EXPECT_TRUE(setSetting(settings, "deltaTOn", "1"));
    EXPECT_TRUE(setSetting(settings, "customYearDays", "360.5"));
    EXPECT_EQ(settings.customYearDays, 360.5);

    const Settings before = settings;
    for (const std::string_view text :
         {"nothing=1", "houseSystem=5", "houseSystem=-1", "houseSystem=1.5",
          "houseSystem=", "houseSystem=By", "deltaTOn=2", "deltaTOn=maybe", "dashaLevels=0",
          "customYearDays=nan", "customYearDays=365,25"}) {
        const std::string name(text.substr(0, text.find('=')));
        const Result<void> result = setSetting(settings, name, text.substr(name.size() + 1));
        ASSERT_FALSE(result) << text;
        EXPECT_NE(result.error().message.find(name), std::string::npos);
    }
    EXPECT_EQ(settings, before);
}

TEST(SettingsFile, HasItsLayoutByteForByte)
{
    Settings settings;
    settings.ayanamsaTable[1].epochYear = -2;
    settings.daylightSavingHours = 2;
    settings.atlasPath = "/atlas/\xC3\xA9";
    const Bytes bytes = encodeSettings({settings, {}});
    ASSERT_EQ(bytes.size(), recordsStart + 360);
    const auto expectBytes = [&](std::size_t offset, const Bytes& expected) {
        const auto start = bytes.begin() + std::ptrdiff_t(offset);
        EXPECT_EQ(Bytes(start, start + std::ptrdiff_t(expected.size())), expected) << offset;
    };
    const std::size_t count = recordsStart - 8;
    expectBytes(
        0, {0, 0, 0, 0, 0, 0, 0x18, 0x40, std::uint8_t(count), std::uint8_t(count >> 8), 0, 0});
    // displayFlags, ayanamsaRow, houseSystem, deltaTOn, preciseMoon, magnitudes, saving hours
    expectBytes(12, {1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 2, 0});
    expectBytes(120, {0, 0, 0, 0, 0, 0xD4, 0x76, 0x40}); // customYearDays 365.25
    expectBytes(136, {1, 0, 0, 0});                      // allPasses
    expectBytes(172, {'/', 'a', 't', 'l', 'a', 's', '/', 0xC3, 0xA9, 0, 0}); // atlasPath
    // Second record: year -2, 23.15888888888889, 50.27, name.
    expectBytes(recordsStart + 36, {0xFE, 0xFF, 0xFF, 0xFF, 0xBE, 0x79, 0x35, 0xF1, 0xAC, 0x28,
                                    0x37, 0x40, 0xC3, 0xF5, 0x28, 0x5C, 0x8F, 0x22, 0x49, 0x40,
                                    'L',  'a',  'h',  'i',  'r',  'i',  0,    0,    0,    0});
    EXPECT_EQ(decodeSettings(bytes).settings, settings);
}

TEST(SettingsFile, ClampsWhatIsOutOfRangeAndIgnoresWhatIsNoNumber)
{
    Bytes bytes = encodeSettings({});
    putInt(bytes, kBlockStart + 4, 10);   // ayanamsaRow
    putInt(bytes, kBlockStart + 8, -1);   // houseSystem
    putInt(bytes, kBlockStart + 12, -7);  // deltaTOn
    putInt(bytes, kBlockStart + 76, 2);   // charaKarakas
    putInt(bytes, kBlockStart + 100, 99); // dashaLevels
    putDouble(bytes, 120, 0x7F, 0xF8);    // customYearDays not-a-number
    const Settings read = decodeSettings(bytes).settings;
    EXPECT_EQ(read.ayanamsaRow, 9);
    EXPECT_EQ(read.houseSystem, 0);
    EXPECT_FALSE(read.deltaTOn);
    EXPECT_EQ(read.charaKarakas, 7);
    EXPECT_EQ(read.dashaLevels, 5);
    EXPECT_EQ(read.customYearDays, 365.25);
    putDouble(bytes, 120, 0xFF, 0xF0); // minus infinity
    EXPECT_EQ(decodeSettings(bytes).settings.customYearDays, 200.0);
}

TEST(SettingsFile, AnotherMarkGivesTheDefaults)
{
    Settings changed;
    changed.houseSystem = 3;
    const Bytes good = encodeSettings({changed, {}});
    for (std::size_t i = 0; i < 8; ++i) {
        Bytes other = good;
        other[i] ^= 1;
        EXPECT_EQ(decodeSettings(other).settings, Settings{});
    }
    Bytes bytes = good;
    putInt(bytes, 8, 3); // a block cannot be shorter than its own count
    EXPECT_EQ(decodeSettings(bytes).settings, Settings{});
}

TEST(SettingsFile, KeepsWhatIsThereOfACutFile)
{
    Settings changed;
    changed.displayFlags = 64;
    changed.allPasses = false;
    changed.ayanamsaTable[0].setName("mine");
    changed.ayanamsaTable[9].annualRate = 7.0;
    const Bytes whole = encodeSettings({changed, {}});
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        // An exact copy, so that the sanitizer sees a read behind its end.
        const StoredSettings read =
            decodeSettings(Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(size)));
        EXPECT_TRUE(read.laterFields.empty());
        EXPECT_EQ(read.settings.displayFlags, size < 16 ? 1 : 64) << size;
        EXPECT_EQ(read.settings.allPasses, size < 140) << size;
        EXPECT_EQ(read.settings.ayanamsaTable[0].nameText(),
                  size < recordsStart + 36 ? "Rosicru Ephm" : "mine");
        EXPECT_EQ(read.settings.ayanamsaTable[9].annualRate, size < whole.size() ? 0.0 : 7.0)
            << size;
    }
}

TEST(SettingsFile, KeepsTheFieldsOfALaterVersion)
{
    StoredSettings stored;
    stored.settings.houseSystem = 4;
    stored.settings.ayanamsaTable[9].setName("last");
    stored.laterFields = {9, 8, 7, 6, 5};
    const Bytes bytes = encodeSettings(stored);
    EXPECT_EQ(bytes[8] + 256U * bytes[9], recordsStart - 8 + 5);
    const StoredSettings read = decodeSettings(bytes);
    EXPECT_EQ(read.settings, stored.settings);
    EXPECT_EQ(encodeSettings(read), bytes);
    // A shorter block is that of an earlier version; its records follow at once.
    Bytes shorter = bytes;
    shorter.erase(shorter.begin() + kBlockStart + 16,
                  shorter.begin() + std::ptrdiff_t(recordsStart + 5));
    putInt(shorter, 8, 20);
    EXPECT_EQ(decodeSettings(shorter).settings, stored.settings);
}

TEST(SettingsFile, DamagedAyanamsaRecordsTakeTheirFactoryRow)
{
    const Bytes good = encodeSettings({});
    const auto damaged = [&](auto change) {
        Bytes bytes = good;
        putInt(bytes, recordsStart + 36, 1951); // a sound edit, lost together with the damage
        change(bytes);
        return decodeSettings(bytes).settings.ayanamsaTable;
    };
    EXPECT_EQ(damaged([](Bytes&) {})[1].epochYear, 1951);
    const AyanamsaTable& factory = factoryAyanamsaTable();
    const std::size_t row = recordsStart + 36;
    EXPECT_EQ(damaged([&](Bytes& b) { putDouble(b, row + 4, 0x7F, 0xF8); }), factory);
    EXPECT_EQ(damaged([&](Bytes& b) { putDouble(b, row + 12, 0x7F, 0xF0); }), factory);
    EXPECT_EQ(damaged([&](Bytes& b) { putInt(b, row, 2000000000); }), factory);
    EXPECT_EQ(damaged([&](Bytes& b) { b[row + 20] = 0xFF; }), factory);
    // A name may fill all sixteen bytes.
    const auto full = damaged([&](Bytes& b) { std::fill_n(&b[row + 20], 16, 'n'); });
    EXPECT_EQ(full[1].nameText(), std::string(16, 'n'));
}

TEST(AyanamsaTable, FactoryRowsHaveTheirDegreesMinutesAndSeconds)
{
    const AyanamsaTable& rows = factoryAyanamsaTable();
    EXPECT_EQ(rows[0].valueAtEpoch, 22.460337962962964);
    EXPECT_NEAR(rows[0].valueAtEpoch, 22.0 + 27.0 / 60.0 + 37.2167 / 3600.0, 1e-8);
    EXPECT_EQ(rows[1].valueAtEpoch, 23.15888888888889);
    const std::vector<std::array<int, 3>> entered = {{23, 9, 32},  {21, 42, 47}, {21, 45, 55},
                                                     {23, 44, 55}, {23, 9, 7},   {22, 3, 47},
                                                     {23, 9, 32},  {0, 0, 0},    {0, 0, 0}};
    for (std::size_t i = 0; i < entered.size(); ++i) {
        const auto& [degrees, minutes, seconds] = entered[i];
        EXPECT_NEAR(rows[i + 1].valueAtEpoch, ayanamsaValue(degrees, minutes, seconds), 1e-14);
    }
    double rates = 0.0;
    int epochs = 0;
    std::string names;
    for (const AyanamsaRow& row : rows) {
        rates += row.annualRate;
        epochs += row.epochYear;
        names += row.nameText();
    }
    EXPECT_NEAR(rates, 456.022207771, 1e-9);
    EXPECT_EQ(epochs, 17771);
    EXPECT_EQ(names, "Rosicru EphmLahiriBV RamanSri YukteswarKP VarahMihirKP 'New'JN Bhasin"
                     "Lahiri/NewcomFagan BradleyNo Ayanamsha");
    AyanamsaRow row;
    row.setName("123456789012345\u00e9");
    EXPECT_EQ(row.nameText(), "123456789012345");
}

} // namespace
} // namespace kestrav::core
