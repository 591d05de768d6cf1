#include "core/SettingsFile.h"

#include "core/FileText.h"
#include "core/Files.h"
#include "core/LittleEndian.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <system_error>

namespace kestrav::core
{

namespace
{

constexpr std::size_t kMarkSize = 8;
constexpr std::size_t kCountSize = 4;
constexpr std::size_t kTextSize = 256;
constexpr std::size_t kRecordSize = 36;
constexpr std::size_t kNameOffset = 20;
constexpr std::uintmax_t kLargestFile = 1U << 20U;

// A year, a value and a rate beyond these are damage, not an ayanamsa.
constexpr int kLargestEpoch = 100000;
constexpr double kLargestValue = 360.0;
constexpr double kLargestRate = 3600.0;

bool isDouble(const SettingInfo& info)
{
    return std::holds_alternative<double Settings::*>(info.field);
}

std::size_t fieldSize(const SettingInfo& info)
{
    if (settingIsText(info)) {
        return kTextSize;
    }
    return isDouble(info) ? sizeof(double) : sizeof(std::int32_t);
}

// A text that is not UTF-8 is damage and counts as empty.
void decodeText(std::span<const std::uint8_t> bytes, Settings& settings, const SettingInfo& info)
{
    const std::string text(bytes.begin(), std::find(bytes.begin(), bytes.end(), std::uint8_t{0}));
    storeSettingText(settings, info, fromUtf8(text) ? text : std::string());
}

// Stores the fields of the block and returns the bytes that this version does not know.
std::span<const std::uint8_t> decodeBlock(std::span<const std::uint8_t> block, Settings& settings)
{
    std::size_t offset = 0;
    for (const SettingInfo& info : settingsTable()) {
        const std::size_t size = fieldSize(info);
        if (block.size() - offset < size) {
            return {};
        }
        if (settingIsText(info)) {
            decodeText(block.subspan(offset, size), settings, info);
        } else {
            storeSetting(settings, info,
                         isDouble(info) ? readDouble(block, offset)
                                        : double(readInteger<std::int32_t>(block, offset)));
        }
        offset += size;
    }
    return block.subspan(offset);
}

void decodeRecord(std::span<const std::uint8_t> bytes, AyanamsaRow& row)
{
    AyanamsaRow read;
    read.epochYear = readInteger<std::int32_t>(bytes, 0);
    read.valueAtEpoch = readDouble(bytes, 4);
    read.annualRate = readDouble(bytes, 12);
    std::transform(bytes.begin() + kNameOffset, bytes.begin() + kRecordSize, read.name.begin(),
                   [](std::uint8_t byte) { return static_cast<char>(byte); });
    const bool sound = std::abs(double(read.epochYear)) <= kLargestEpoch &&
                       std::fabs(read.valueAtEpoch) <= kLargestValue &&
                       std::fabs(read.annualRate) <= kLargestRate &&
                       fromUtf8(read.nameText()).has_value();
    if (sound) {
        read.setName(std::string(read.nameText()));
        row = read;
    }
}

} // namespace

bool hasSettingsMark(std::span<const std::uint8_t> bytes)
{
    return bytes.size() >= sizeof(double) && readDouble(bytes, 0) == kSettingsMark;
}

StoredSettings decodeSettings(std::span<const std::uint8_t> bytes)
{
    StoredSettings stored;
    if (bytes.size() < kMarkSize + kCountSize || readDouble(bytes, 0) != kSettingsMark) {
        return stored;
    }
    const std::span<const std::uint8_t> rest = bytes.subspan(kMarkSize);
    const std::size_t count = readInteger<std::uint32_t>(rest, 0);
    if (count < kCountSize) {
        return stored;
    }
    if (count > rest.size()) {
        // The file was cut inside the block; what follows the known fields is not to be trusted.
        static_cast<void>(decodeBlock(rest.subspan(kCountSize), stored.settings));
        return stored;
    }
    const auto later = decodeBlock(rest.subspan(kCountSize, count - kCountSize), stored.settings);
    stored.laterFields.assign(later.begin(), later.end());
    std::size_t offset = count;
    for (AyanamsaRow& row : stored.settings.ayanamsaTable) {
        if (rest.size() - offset < kRecordSize) {
            break;
        }
        decodeRecord(rest.subspan(offset, kRecordSize), row);
        offset += kRecordSize;
    }
    return stored;
}

std::vector<std::uint8_t> encodeSettings(const StoredSettings& stored)
{
    std::vector<std::uint8_t> block;
    for (const SettingInfo& info : settingsTable()) {
        const double value = settingValue(stored.settings, info);
        if (settingIsText(info)) {
            std::string text = settingText(stored.settings, info);
            text.resize(kTextSize, '\0');
            block.insert(block.end(), text.begin(), text.end());
        } else if (isDouble(info)) {
            appendDouble(block, value);
        } else {
            appendInteger(block, std::int32_t(value));
        }
    }
    block.insert(block.end(), stored.laterFields.begin(), stored.laterFields.end());

    std::vector<std::uint8_t> bytes;
    appendDouble(bytes, kSettingsMark);
    appendInteger(bytes, std::uint32_t(kCountSize + block.size()));
    bytes.insert(bytes.end(), block.begin(), block.end());
    for (const AyanamsaRow& row : stored.settings.ayanamsaTable) {
        appendInteger(bytes, row.epochYear);
        appendDouble(bytes, row.valueAtEpoch);
        appendDouble(bytes, row.annualRate);
        bytes.insert(bytes.end(), row.name.begin(), row.name.end());
    }
    return bytes;
}

Result<StoredSettings> readSettingsFile(const std::filesystem::path& path)
{
    std::error_code problem;
    if (!std::filesystem::exists(path, problem) && !problem) {
        return StoredSettings{};
    }
    const Result<std::vector<std::uint8_t>> bytes = readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    return decodeSettings(bytes.value());
}

Result<void> writeSettingsFile(const std::filesystem::path& path, const StoredSettings& stored)
{
    if (path.has_parent_path()) {
        std::error_code problem;
        std::filesystem::create_directories(path.parent_path(), problem);
        if (problem) {
            return Error{"cannot make the folder: " + problem.message(), path.string()};
        }
    }
    return writeFileSafely(path, encodeSettings(stored));
}

} // namespace kestrav::core
