// Makes the program data file from the series and the tables of chart comparison as text.
//
// Usage: make_data_file planets.txt matching-tables.txt JRaam.nam
//
// The two text files explain their own form. An input that breaks a rule of its form or a law of
// its tables ends the program with 1 and one line that names the file and the line.
#include "astro/DataFileLayout.h"
#include "core/Angles.h"
#include "core/LittleEndian.h"
#include "core/NumberText.h"
#include "core/Result.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace
{

using namespace kestrav::astro;
using kestrav::core::Error;
using kestrav::core::Result;

// The lines of a text file without remarks and empty lines, as words.
class LineReader
{
public:
    explicit LineReader(std::string path) : path_(std::move(path)), file_(path_)
    {}

    [[nodiscard]] bool isOpen() const
    {
        return file_.is_open();
    }

    // Goes on to the next line that says something; false at the end.
    bool next()
    {
        std::string line;
        while (std::getline(file_, line)) {
            ++number_;
            std::istringstream text(line.substr(0, line.find('#')));
            words_.clear();
            for (std::string word; text >> word;) {
                words_.push_back(word);
            }
            if (!words_.empty()) {
                return true;
            }
        }
        words_.clear();
        return false;
    }

    [[nodiscard]] const std::vector<std::string>& words() const
    {
        return words_;
    }
    [[nodiscard]] bool wordIs(std::size_t index, const std::string& text) const
    {
        return index < words_.size() && words_[index] == text;
    }
    // The word as a whole number; nothing when it is missing or something else.
    [[nodiscard]] std::optional<int> integer(std::size_t index) const
    {
        return index < words_.size() ? kestrav::core::parseInteger(words_[index]) : std::nullopt;
    }
    [[nodiscard]] long number() const
    {
        return number_;
    }
    [[nodiscard]] Error error(const std::string& message) const
    {
        return errorAt(number_, message);
    }
    [[nodiscard]] Error errorAt(long line, const std::string& message) const
    {
        return {message, path_, line};
    }

private:
    std::string path_;
    std::ifstream file_;
    std::vector<std::string> words_;
    long number_ = 0;
};

struct Column
{
    std::string name;
    int lowest;
    int highest;
};

struct Row
{
    long line;
    std::vector<int> values;
};

// A table of the text file; its rows are numbered from `firstRow` on.
struct Table
{
    std::string name;
    int firstRow;
    std::size_t rowCount;
    std::vector<Column> columns;
    std::vector<Row> rows = {};
};

struct MatchingText
{
    Table stars;
    Table yoniPoints;
    Table ganaPoints;
    Table varna;
    Table vashyaPoints;
};

Column column(const ByteTable& table)
{
    return {std::string(table.name), table.lowest, table.highest};
}

MatchingText emptyTables()
{
    const auto square = [](const char* name, std::size_t size, const ByteTable& table) {
        return Table{name, 0, size, std::vector<Column>(size, column(table))};
    };
    const Column vedha{"vedha", 0, int(kNakshatras) - 1};
    return {{"nakshatras",
             0,
             kNakshatras,
             {vedha, column(kLordBytes), column(kGanaBytes), column(kNadiBytes), column(kYoniBytes),
              column(kRajjuBytes)}},
            square("yoni-points", kYoniAnimals, kYoniPoints),
            square("gana-points", kGanas, kGanaPoints),
            {"varna", 1, kSigns, {column(kVarnaBytes)}},
            square("vashya-points", kVashyaGroups, kVashyaPoints)};
}

Result<void> readRow(LineReader& reader, Table& table)
{
    const int expected = table.firstRow + int(table.rows.size());
    if (!reader.next() || reader.integer(0) != expected) {
        return reader.error("row " + std::to_string(expected) + " of table " + table.name +
                            " is missing");
    }
    if (reader.words().size() != table.columns.size() + 1) {
        return reader.error("a row of table " + table.name + " has " +
                            std::to_string(table.columns.size()) + " values");
    }
    Row row{reader.number(), {}};
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
        const Column& rule = table.columns[c];
        const std::optional<int> value = reader.integer(c + 1);
        if (!value || *value < rule.lowest || *value > rule.highest) {
            return reader.error("\"" + reader.words()[c + 1] + "\" (" + rule.name +
                                ") is no whole number from " + std::to_string(rule.lowest) +
                                " to " + std::to_string(rule.highest));
        }
        row.values.push_back(*value);
    }
    table.rows.push_back(std::move(row));
    return {};
}

Result<void> readTable(LineReader& reader, Table& table)
{
    if (!reader.next() || reader.words().size() != 2 || !reader.wordIs(0, "table") ||
        !reader.wordIs(1, table.name)) {
        return reader.error("the line \"table " + table.name + "\" is missing");
    }
    while (table.rows.size() < table.rowCount) {
        Result<void> read = readRow(reader, table);
        if (!read) {
            return read;
        }
    }
    return {};
}

// Following the chain must lead back to the start, so every star is obstructed by one other.
Result<void> testVedha(const LineReader& reader, const Table& stars)
{
    std::array<long, kNakshatras> obstructedInLine{};
    for (std::size_t star = 0; star < stars.rows.size(); ++star) {
        const Row& row = stars.rows[star];
        const auto target = static_cast<std::size_t>(row.values[0]);
        if (target == star) {
            return reader.errorAt(row.line, "a nakshatra does not obstruct itself");
        }
        if (obstructedInLine[target] != 0) {
            return reader.errorAt(
                row.line, "nakshatra " + std::to_string(target) + " is obstructed in line " +
                              std::to_string(obstructedInLine[target]) + " already");
        }
        obstructedInLine[target] = row.line;
    }
    return {};
}

Result<void> testSymmetry(const LineReader& reader, const Table& table)
{
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (table.rows[i].values[j] != table.rows[j].values[i]) {
                return reader.errorAt(table.rows[i].line, "column " + std::to_string(j) +
                                                              " differs from line " +
                                                              std::to_string(table.rows[j].line) +
                                                              ", but the table is symmetric");
            }
        }
    }
    return {};
}

Result<MatchingText> readMatchingTables(const std::string& path)
{
    LineReader reader(path);
    if (!reader.isOpen()) {
        return reader.error("cannot be opened");
    }
    MatchingText text = emptyTables();
    for (Table* const table :
         {&text.stars, &text.yoniPoints, &text.ganaPoints, &text.varna, &text.vashyaPoints}) {
        const Result<void> read = readTable(reader, *table);
        if (!read) {
            return read.error();
        }
    }
    if (reader.next()) {
        return reader.error("the tables are complete, but more follows");
    }
    for (const Result<void>& lawful :
         {testVedha(reader, text.stars), testSymmetry(reader, text.yoniPoints)}) {
        if (!lawful) {
            return lawful.error();
        }
    }
    return text;
}

struct SeriesText
{
    std::array<std::vector<int>, kSeriesEntries> counts;
    std::vector<std::array<double, 3>> terms;
};

Result<std::array<double, 3>> readTerm(LineReader& reader)
{
    if (!reader.next() || reader.words().size() != 3) {
        return reader.error("a term \"A B C\" is missing");
    }
    std::array<double, 3> term{};
    for (std::size_t i = 0; i < term.size(); ++i) {
        const std::optional<double> value = kestrav::core::parseNumber(reader.words()[i]);
        if (!value || *value < -kLargestCoefficient || *value > kLargestCoefficient) {
            return reader.error("\"" + reader.words()[i] + "\" is no usable number");
        }
        term[i] = *value;
    }
    return term;
}

Result<void> readBlock(LineReader& reader, std::size_t block, std::size_t entry, SeriesText& series)
{
    const std::string coordinate(1, "LBR"[block / kPowersPerCoordinate]);
    const std::string power = std::to_string(block % kPowersPerCoordinate);
    if (!reader.next() || reader.words().size() != 4 || !reader.wordIs(0, "block") ||
        !reader.wordIs(1, coordinate) || !reader.wordIs(2, power)) {
        return reader.error("the line \"block " + coordinate + " " + power + " COUNT\" of entry " +
                            std::to_string(entry) + " is missing");
    }
    const std::optional<int> count = reader.integer(3);
    const int room = kSeriesTerms - int(series.terms.size());
    if (!count || *count < 0 || *count > room) {
        return reader.error("\"" + reader.words()[3] + "\" is no number of terms up to " +
                            std::to_string(room));
    }
    series.counts[entry].push_back(*count);
    for (int i = 0; i < *count; ++i) {
        const Result<std::array<double, 3>> term = readTerm(reader);
        if (!term) {
            return term.error();
        }
        series.terms.push_back(term.value());
    }
    return {};
}

Result<SeriesText> readSeries(const std::string& path)
{
    LineReader reader(path);
    if (!reader.isOpen()) {
        return reader.error("cannot be opened");
    }
    SeriesText series;
    for (std::size_t entry = 0; entry < series.counts.size(); ++entry) {
        if (!reader.next() || !reader.wordIs(0, "entry") || reader.integer(1) != int(entry)) {
            return reader.error("the line \"entry " + std::to_string(entry) + " NAME\" is missing");
        }
        for (std::size_t block = 0; block < std::size_t(kSeriesBlocks); ++block) {
            const Result<void> read = readBlock(reader, block, entry, series);
            if (!read) {
                return read.error();
            }
        }
    }
    if (reader.next()) {
        return reader.error("the entries are complete, but more follows");
    }
    if (series.terms.size() != std::size_t(kSeriesTerms)) {
        return reader.error("there are " + std::to_string(series.terms.size()) +
                            " terms instead of " + std::to_string(kSeriesTerms));
    }
    return series;
}

// The bytes of the file in their order.
class Composer
{
public:
    void byte(int value)
    {
        bytes_.push_back(static_cast<std::uint8_t>(value));
    }
    void word(int value)
    {
        kestrav::core::appendInteger(bytes_, static_cast<std::int16_t>(value));
    }
    void number(double value)
    {
        kestrav::core::appendDouble(bytes_, value);
    }
    void allOf(const Table& table)
    {
        for (const Row& row : table.rows) {
            for (const int value : row.values) {
                byte(value);
            }
        }
    }
    void zerosUpTo(std::size_t offset)
    {
        bytes_.resize(offset);
    }
    void checksum()
    {
        kestrav::core::appendInteger(
            bytes_, kestrav::core::ByteChecksum(bytes_.data(), std::ptrdiff_t(bytes_.size())));
    }
    [[nodiscard]] const std::vector<std::uint8_t>& bytes() const
    {
        return bytes_;
    }

private:
    std::vector<std::uint8_t> bytes_;
};

std::vector<std::uint8_t> compose(const MatchingText& text, const SeriesText& series)
{
    Composer file;
    for (const Row& star : text.stars.rows) {
        file.word(star.values[0]);
    }
    for (const std::size_t columnIndex : {1U, 2U}) {
        for (const Row& star : text.stars.rows) {
            file.byte(star.values[columnIndex]);
        }
    }
    for (std::size_t i = 0; i < text.stars.rows.size(); ++i) {
        for (const std::size_t columnIndex : {3U, 4U, 5U}) {
            file.byte(text.stars.rows[i].values[columnIndex]);
        }
        file.zerosUpTo(kStarRecordOffset + (i + 1) * kStarRecordSize);
    }
    file.zerosUpTo(kPointsOffset);
    file.allOf(text.yoniPoints);
    file.allOf(text.ganaPoints);
    file.allOf(text.varna);
    file.allOf(text.vashyaPoints);

    file.zerosUpTo(kHeaderOffset);
    int first = 0;
    for (const std::vector<int>& counts : series.counts) {
        file.word(first);
        for (const int count : counts) {
            file.word(count);
            first += count;
        }
    }
    for (const std::array<double, 3>& term : series.terms) {
        for (const double coefficient : term) {
            file.number(coefficient);
        }
    }
    file.checksum();
    file.zerosUpTo(kDataFileSize);
    return file.bytes();
}

bool write(const char* path, const std::vector<std::uint8_t>& bytes)
{
    std::ofstream file(path, std::ios::binary);
    for (const std::uint8_t byte : bytes) {
        file.put(static_cast<char>(byte));
    }
    file.close();
    return !file.fail();
}

int fail(const Error& error)
{
    std::fprintf(stderr, "make_data_file: %s\n", error.text().c_str());
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fputs("Usage: make_data_file planets.txt matching-tables.txt JRaam.nam\n", stderr);
        return 2;
    }
    const Result<SeriesText> series = readSeries(argv[1]);
    if (!series) {
        return fail(series.error());
    }
    const Result<MatchingText> tables = readMatchingTables(argv[2]);
    if (!tables) {
        return fail(tables.error());
    }
    if (!write(argv[3], compose(tables.value(), series.value()))) {
        std::remove(argv[3]);
        return fail({"cannot be written", argv[3]});
    }
    return 0;
}
