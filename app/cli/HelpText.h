// The texts of --help, made from the tables of the commands.
#pragma once

#include <string>
#include <string_view>

namespace kestrav::cli
{

/// The help of a command or of a group by its words; of the program when the name is empty.
[[nodiscard]] std::string helpText(std::string_view name);

} // namespace kestrav::cli
