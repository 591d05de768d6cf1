// Countries: codes, names and other names.
#pragma once

#include "core/Result.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

class CountryList
{
public:
    /// Reads the text form of docs/places.md. Lines that do not fit are left out.
    [[nodiscard]] static CountryList parse(std::string_view text);
    [[nodiscard]] static core::Result<CountryList> load(const std::filesystem::path& path);

    /// The name of a code in UTF-8; the code itself when it is not listed.
    [[nodiscard]] std::string_view name(std::string_view code) const;

    /// The codes of all countries with this search key as a name; "yugoslavia" gives several.
    [[nodiscard]] std::vector<std::string_view> find(std::string_view key) const;

    [[nodiscard]] std::size_t size() const
    {
        return countries_.size();
    }

private:
    struct Country
    {
        std::string code;
        std::string name;
    };
    struct Key
    {
        std::string key;
        std::size_t country;
    };

    std::vector<Country> countries_; ///< in the order of the file
    std::vector<Key> keys_;          ///< in the order of their keys
};

} // namespace kestrav::data
