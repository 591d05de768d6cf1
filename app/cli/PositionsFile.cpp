#include "app/cli/PositionsFile.h"

#include "app/cli/JsonValues.h"
#include "core/FileText.h"
#include "core/Files.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr std::uintmax_t kLargestFile = 1U << 20U;
constexpr std::size_t kLongestShown = 40;

long lineOf(const std::vector<std::uint8_t>& bytes, std::size_t place)
{
    const auto end = bytes.begin() + std::ptrdiff_t(std::min(place, bytes.size()));
    return 1 + long(std::count(bytes.begin(), end, std::uint8_t{'\n'}));
}

Result<Json> parse(const std::vector<std::uint8_t>& bytes)
{
    try {
        return Json::parse(bytes.begin(), bytes.end());
    } catch (const nlohmann::json::parse_error& problem) {
        // The place counts from 1 and stands behind what was not understood.
        return Error{"is no JSON", {}, lineOf(bytes, problem.byte > 0 ? problem.byte - 1 : 0)};
    } catch (const nlohmann::json::exception&) {
        return Error{"holds a number that is too large"};
    }
}

// A value for a message. A list or an object may be nested too deeply to be written out.
std::string shown(const Json& value)
{
    if (value.is_structured()) {
        return value.is_array() ? "[...]" : "{...}";
    }
    return std::string(core::cutUtf8(value.dump(), kLongestShown));
}

Result<void> checkKeys(const Json& object, std::initializer_list<std::string_view> known)
{
    if (!object.is_object()) {
        return Error{"is no object"};
    }
    for (const auto& item : object.items()) {
        if (std::find(known.begin(), known.end(), item.key()) == known.end()) {
            return Error{"has the unknown key '" +
                         std::string(core::cutUtf8(item.key(), kLongestShown)) + "'"};
        }
    }
    return {};
}

Result<int> readIndex(const Json& entry)
{
    const auto found = entry.find("index");
    if (found == entry.end()) {
        return Error{"has no index"};
    }
    const bool known = found->is_number_integer() && *found >= 0 && *found < core::kPointCount;
    if (!known) {
        return Error{"index " + shown(*found) + " is no whole number from 0 to 62"};
    }
    return found->get<int>();
}

Result<GivenPosition> readPosition(const Json& entry, int point)
{
    const auto longitude = entry.find("longitude");
    if (longitude == entry.end()) {
        return Error{"has no longitude"};
    }
    GivenPosition position;
    position.longitude = longitude->is_number() ? longitude->get<double>() : -1.0;
    if (!(position.longitude >= 0.0 && position.longitude < 360.0)) {
        return Error{"longitude " + shown(*longitude) + " is no number from 0 to under 360"};
    }
    position.retrograde = point == core::kRahu || point == core::kKetu;
    if (const auto retrograde = entry.find("retrograde"); retrograde != entry.end()) {
        if (!retrograde->is_boolean()) {
            return Error{"retrograde " + shown(*retrograde) + " is not true or false"};
        }
        position.retrograde = retrograde->get<bool>();
    }
    return position;
}

Result<void> readEntry(const Json& entry, GivenPositions& positions)
{
    if (Result<void> keys = checkKeys(entry, {"index", "longitude", "retrograde"}); !keys) {
        return keys;
    }
    const Result<int> index = readIndex(entry);
    if (!index) {
        return index.error();
    }
    const Result<GivenPosition> position = readPosition(entry, index.value());
    if (!position) {
        return position.error();
    }
    std::optional<GivenPosition>& place = core::at(positions, index.value());
    if (place) {
        return Error{"index " + std::to_string(index.value()) + " is there already"};
    }
    place = position.value();
    return {};
}

Result<GivenPositions> readPoints(const Json& file)
{
    if (const Result<void> keys = checkKeys(file, {"points"}); !keys) {
        return keys.error();
    }
    const auto list = file.find("points");
    if (list == file.end() || !list->is_array()) {
        return Error{"has no list 'points'"};
    }
    GivenPositions positions;
    for (std::size_t i = 0; i < list->size(); ++i) {
        if (const Result<void> read = readEntry((*list)[i], positions); !read) {
            return Error{"points[" + std::to_string(i) + "]: " + read.error().message};
        }
    }
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        if (!core::at(positions, point)) {
            return Error{"point " + std::to_string(point) + " is missing"};
        }
    }
    return positions;
}

} // namespace

Result<GivenPositions> readPositionsFile(const std::string& path)
{
    const Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    const Result<Json> file = parse(bytes.value());
    if (!file) {
        return Error{file.error().message, path, file.error().line};
    }
    Result<GivenPositions> positions = readPoints(file.value());
    if (!positions) {
        return Error{positions.error().message, path};
    }
    return positions;
}

} // namespace kestrav::cli
