#include "data/CountryList.h"

#include "core/FileText.h"
#include "core/Files.h"
#include "data/PlaceText.h"
#include "data/TextFields.h"

#include <algorithm>

namespace kestrav::data
{

namespace
{

constexpr std::uintmax_t kLargestFile = std::uintmax_t{1} << 20;

} // namespace

CountryList CountryList::parse(std::string_view text)
{
    CountryList list;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        std::array<std::string_view, 3> fields;
        if (line.starts_with('#') || !splitFields(line, '\t', fields) || fields[0].size() != 2 ||
            fields[1].empty() || !core::fromUtf8(line)) {
            continue;
        }
        list.countries_.push_back({std::string(fields[0]), std::string(fields[1])});
        const std::size_t country = list.countries_.size() - 1;
        list.keys_.push_back({foldName(fields[1]), country});
        for (std::string_view others = fields[2]; !others.empty();) {
            list.keys_.push_back({foldName(takeUpTo(others, ';')), country});
        }
    }
    // The keys name countries by their place in the list, which therefore stays as it was read.
    std::sort(list.keys_.begin(), list.keys_.end(), [](const Key& a, const Key& b) {
        return a.key != b.key ? a.key < b.key : a.country < b.country;
    });
    return list;
}

core::Result<CountryList> CountryList::load(const std::filesystem::path& path)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    CountryList list = parse(std::string(bytes.value().begin(), bytes.value().end()));
    if (list.size() == 0) {
        return core::Error{"this is no list of countries", path.string()};
    }
    return list;
}

std::string_view CountryList::name(std::string_view code) const
{
    const auto found = std::find_if(countries_.begin(), countries_.end(),
                                    [&](const Country& country) { return country.code == code; });
    return found == countries_.end() ? code : std::string_view(found->name);
}

std::vector<std::string_view> CountryList::find(std::string_view key) const
{
    std::vector<std::string_view> codes;
    auto entry = std::lower_bound(
        keys_.begin(), keys_.end(), key,
        [](const Key& each, std::string_view wanted) { return each.key < wanted; });
    for (; entry != keys_.end() && entry->key == key; ++entry) {
        codes.push_back(countries_[entry->country].code);
    }
    return codes;
}

} // namespace kestrav::data
