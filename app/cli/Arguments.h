// What was typed after the name of a command, by the names of the option table.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrav::cli
{

class Arguments
{
public:
    /// The values given to an option ("--date") or a positional argument ("NAME"), in their order.
    /// A switch that was given has one empty value.
    [[nodiscard]] const std::vector<std::string>& values(std::string_view name) const
    {
        static const std::vector<std::string> kNone;
        const auto found = values_.find(name);
        return found == values_.end() ? kNone : found->second;
    }

    [[nodiscard]] bool has(std::string_view name) const
    {
        return !values(name).empty();
    }

    /// The first value, or nothing.
    [[nodiscard]] std::optional<std::string> value(std::string_view name) const
    {
        const std::vector<std::string>& all = values(name);
        return all.empty() ? std::nullopt : std::optional(all.front());
    }

    void store(std::string_view name, std::vector<std::string> values)
    {
        values_[std::string(name)] = std::move(values);
    }

private:
    std::map<std::string, std::vector<std::string>, std::less<>> values_;
};

} // namespace kestrav::cli
