#include "app/cli/JsonValues.h"

#include "core/FileText.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace kestrav::cli
{

Json commandObject(std::string_view command)
{
    Json object;
    object["program"]["name"] = "Kestrav";
    object["program"]["version"] = KESTRAV_VERSION;
    object["command"] = std::string(command);
    return object;
}

std::string jsonText(const Json& object)
{
    return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

Json numberJson(double value)
{
    return std::isfinite(value) ? Json(value) : Json();
}

Json numberJson(const std::optional<double>& value)
{
    return value ? numberJson(*value) : Json();
}

Json textJson(std::wstring_view text)
{
    return core::toUtf8(text);
}

Json textOrNull(std::wstring_view text)
{
    return text.empty() ? Json() : textJson(text);
}

Json dateJson(const core::DateTimeRecord& record)
{
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%s%04d-%02d-%02d", record.year < 0 ? "-" : "",
                  std::abs(record.year), record.month, record.day);
    return text.data();
}

} // namespace kestrav::cli
