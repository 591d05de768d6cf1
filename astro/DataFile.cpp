#include "astro/DataFile.h"

#include "core/Angles.h"
#include "core/FileText.h"
#include "core/Files.h"
#include "core/LittleEndian.h"
#include "core/Locations.h"

#include <cassert>
#include <cmath>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace kestrav::astro
{

namespace
{

namespace fs = std::filesystem;

using Counts = std::array<std::array<int, kSeriesBlocks>, kSeriesEntries>;
using Terms = std::vector<std::array<double, 3>>;

core::Error damage(const std::string& what)
{
    return {"is damaged: " + what, kDataFileName};
}

core::Error outOfRange(std::string_view name, std::size_t offset, int value, int low, int high)
{
    return damage("the value " + std::to_string(value) + " at byte " + std::to_string(offset) +
                  " (" + std::string(name) + ") lies outside " + std::to_string(low) + " to " +
                  std::to_string(high));
}

// The callers give a target of as many entries as the table has.
core::Result<void> readTable(core::ByteSpan bytes, const ByteTable& table, std::span<int> target)
{
    assert(target.size() == table.count);
    for (std::size_t i = 0; i < table.count; ++i) {
        const std::size_t offset = table.offset + i * table.stride;
        const int value = bytes[offset];
        if (value < table.lowest || value > table.highest) {
            return outOfRange(table.name, offset, value, table.lowest, table.highest);
        }
        target[i] = value;
    }
    return {};
}

template <std::size_t size>
core::Result<void> readTable(core::ByteSpan bytes, const ByteTable& table,
                             std::array<std::array<int, size>, size>& target)
{
    std::array<int, size * size> values{};
    core::Result<void> read = readTable(bytes, table, std::span<int>(values));
    for (std::size_t i = 0; i < values.size(); ++i) {
        target[i / size][i % size] = values[i];
    }
    return read;
}

// A star that two others obstruct would leave a chain that never comes back to its start.
core::Result<void> readVedha(core::ByteSpan bytes, PerNakshatra<int>& vedha)
{
    PerNakshatra<bool> obstructed{};
    for (std::size_t star = 0; star < vedha.size(); ++star) {
        const std::size_t offset = kVedhaOffset + sizeof(std::int16_t) * star;
        const int target = core::readInteger<std::int16_t>(bytes, offset);
        const int last = int(kNakshatras) - 1;
        if (target < 0 || target > last) {
            return outOfRange("vedha", offset, target, 0, last);
        }
        bool& taken = obstructed[static_cast<std::size_t>(target)];
        if (taken || std::size_t(target) == star) {
            return damage("the vedha chain is broken at nakshatra " + std::to_string(star));
        }
        taken = true;
        vedha[star] = target;
    }
    return {};
}

core::Result<MatchingTables> readMatchingTables(core::ByteSpan bytes)
{
    MatchingTables tables;
    const std::span<int> signs = std::span<int>(tables.varna).subspan(1);
    for (const core::Result<void>& read :
         {readVedha(bytes, tables.vedha), readTable(bytes, kLordBytes, tables.lord),
          readTable(bytes, kGanaBytes, tables.gana), readTable(bytes, kNadiBytes, tables.nadi),
          readTable(bytes, kYoniBytes, tables.yoni), readTable(bytes, kRajjuBytes, tables.rajju),
          readTable(bytes, kYoniPoints, tables.yoniPoints),
          readTable(bytes, kGanaPoints, tables.ganaPoints), readTable(bytes, kVarnaBytes, signs),
          readTable(bytes, kVashyaPoints, tables.vashyaHalfPoints)}) {
        if (!read) {
            return read.error();
        }
    }
    return tables;
}

// Every first index must be the sum of the counts before it, so no count can lead out of the table.
core::Result<Counts> readHeader(core::ByteSpan bytes)
{
    Counts counts{};
    int sum = 0;
    std::size_t offset = kHeaderOffset;
    const auto nextWord = [&] {
        const int word = core::readInteger<std::int16_t>(bytes, offset);
        offset += sizeof(std::int16_t);
        return word;
    };
    for (std::size_t e = 0; e < counts.size(); ++e) {
        const int first = nextWord();
        if (first != sum) {
            return damage("entry " + std::to_string(e) + " begins at term " +
                          std::to_string(first) + " instead of " + std::to_string(sum));
        }
        for (int& count : counts[e]) {
            count = nextWord();
            if (count < 0 || count > kSeriesTerms) {
                return outOfRange("term count", offset - sizeof(std::int16_t), count, 0,
                                  kSeriesTerms);
            }
            sum += count;
        }
    }
    if (sum != kSeriesTerms) {
        return damage("the term counts add up to " + std::to_string(sum) + " instead of " +
                      std::to_string(kSeriesTerms));
    }
    return counts;
}

core::Result<Terms> readTerms(core::ByteSpan bytes)
{
    Terms terms(kSeriesTerms);
    std::size_t offset = kTermsOffset;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        for (double& coefficient : terms[i]) {
            coefficient = core::readDouble(bytes, offset);
            offset += sizeof(double);
            // Said this way round, the test also fails for what is not a number.
            if (!(std::fabs(coefficient) <= kLargestCoefficient)) {
                return damage("term " + std::to_string(i) + " holds no usable number");
            }
        }
    }
    return terms;
}

core::Result<void> testChecksum(core::ByteSpan bytes)
{
    const auto stored = core::readInteger<std::uint32_t>(bytes, kTailOffset);
    const std::uint32_t actual =
        core::ByteChecksum(bytes.data(), static_cast<std::ptrdiff_t>(kTailOffset));
    if (stored != 0 && stored != actual) {
        return damage("its bytes do not give the checksum that it states");
    }
    return {};
}

LoadResult failure(DataFileProblem problem, core::Error error)
{
    LoadResult result;
    result.problem = problem;
    result.error = std::move(error);
    return result;
}

LoadResult missing(const std::string& file, const std::string& why)
{
    const std::string text = core::toUtf8(kMissingDataText);
    return failure(DataFileProblem::Missing, {why.empty() ? text : text + " (" + why + ")", file});
}

LoadResult damaged(core::Error error, const fs::path& path)
{
    error.file = path.string();
    return failure(DataFileProblem::Damaged, std::move(error));
}

// Whether a file could be opened but has more bytes than it may have.
bool isTooLong(const fs::path& path)
{
    std::error_code problem;
    const std::uintmax_t size = fs::file_size(path, problem);
    return !problem && size > kDataFileSize && std::ifstream(path).is_open();
}

} // namespace

bool obstruct(const MatchingTables& tables, int a, int b)
{
    const auto next = [&](int star) {
        return tables.vedha[static_cast<std::size_t>(star)];
    };
    // Tables that were never read hold no chain, so the walk is bounded.
    int star = next(a);
    for (std::size_t step = 0; step < tables.vedha.size() && star != a; ++step) {
        if (star == b) {
            return true;
        }
        star = next(star);
    }
    return false;
}

core::Result<ProgramData> decodeDataFile(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() != kDataFileSize) {
        return damage("it has " + std::to_string(bytes.size()) + " bytes instead of " +
                      std::to_string(kDataFileSize));
    }
    const core::Result<MatchingTables> matching = readMatchingTables(bytes);
    if (!matching) {
        return matching.error();
    }
    const core::Result<Counts> counts = readHeader(bytes);
    if (!counts) {
        return counts.error();
    }
    const core::Result<Terms> terms = readTerms(bytes);
    if (!terms) {
        return terms.error();
    }
    const core::Result<void> sound = testChecksum(bytes);
    if (!sound) {
        return sound.error();
    }
    return ProgramData{makeSeries(counts.value(), terms.value()), matching.value()};
}

LoadResult LoadSeries()
{
    const std::optional<fs::path> path = core::findFile(kDataFileName);
    return path ? LoadSeries(*path) : missing(kDataFileName, {});
}

LoadResult LoadSeries(const fs::path& path)
{
    std::error_code problem;
    if (fs::status(path, problem).type() == fs::file_type::not_found) {
        return missing(path.string(), {});
    }
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kDataFileSize);
    if (!bytes) {
        return isTooLong(path)
                   ? damaged(damage("it has more than " + std::to_string(kDataFileSize) + " bytes"),
                             path)
                   : missing(path.string(), bytes.error().message);
    }
    core::Result<ProgramData> data = decodeDataFile(bytes.value());
    if (!data) {
        return damaged(data.error(), path);
    }
    LoadResult result;
    result.data = std::move(data.value());
    return result;
}

} // namespace kestrav::astro
