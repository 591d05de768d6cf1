// The contact information inside the extra text of a chart line.
#pragma once

#include "core/Identity.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kestrav::data
{

/// One field of the contact information: where it is kept and how long it may be.
struct ContactField
{
    std::wstring core::Contact::*text;
    std::size_t most;
};

inline constexpr std::size_t kContactFieldCount = 11;

/// The fields in their order, which is also that of the contact export.
[[nodiscard]] const std::array<ContactField, kContactFieldCount>& contactFields();

/// The contact information of an extra text that begins with "^". Further sub-fields are ignored.
[[nodiscard]] core::Contact parseContact(std::wstring_view extra);

/// The extra text of the contact information; empty when there is none. What a line could not
/// carry is cleaned and cut as cleanContact does it.
[[nodiscard]] std::wstring formatContact(const core::Contact& contact);

/// Takes carets, double quotes and control characters out, cuts each field to its capacity and then
/// the longest ones until the extra text fits into the 300 characters that are read back.
void cleanContact(core::Contact& contact);

} // namespace kestrav::data
