// The group of the first sound of a name.
#pragma once

#include <string_view>

namespace kestrav::data
{

/// The group 1 to 5 of a first sound, given in its Sanskrit equivalent of one or two letters. Upper
/// and lower case differ. A sound that is not known, and an empty one, has group 1.
[[nodiscard]] int soundGroup(std::wstring_view sound);

} // namespace kestrav::data
