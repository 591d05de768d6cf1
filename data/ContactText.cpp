#include "data/ContactText.h"

#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <algorithm>

namespace kestrav::data
{

namespace
{

// Together the other capacities and the carets exceed the 300 characters, so the last one is free.
constexpr std::size_t kSortCodeLength = 20;

// clang-format off
constexpr std::array<ContactField, kContactFieldCount> kFields = {{
    {&core::Contact::name,       36},
    {&core::Contact::street,     58},
    {&core::Contact::city,       26},
    {&core::Contact::state,      21},
    {&core::Contact::postcode,   12},
    {&core::Contact::country,    21},
    {&core::Contact::telephone1, 26},
    {&core::Contact::telephone2, 26},
    {&core::Contact::fax,        26},
    {&core::Contact::email,      51},
    {&core::Contact::sortCode,   kSortCodeLength},
}};
// clang-format on

std::size_t extraLength(const core::Contact& contact)
{
    std::size_t length = kFields.size();
    for (const ContactField& field : kFields) {
        length += (contact.*field.text).size();
    }
    return length;
}

} // namespace

const std::array<ContactField, kContactFieldCount>& contactFields()
{
    return kFields;
}

core::Contact parseContact(std::wstring_view extra)
{
    core::Contact contact;
    for (const ContactField& field : kFields) {
        if (extra.empty()) {
            break;
        }
        extra.remove_prefix(1); // the caret before the sub-field
        const std::size_t end = std::min(extra.find(L'^'), extra.size());
        contact.*field.text = extra.substr(0, std::min(end, field.most));
        extra.remove_prefix(end);
    }
    return contact;
}

std::wstring formatContact(const core::Contact& contact)
{
    core::Contact clean = contact;
    cleanContact(clean);
    if (clean == core::Contact{}) {
        return {};
    }
    std::wstring extra;
    for (const ContactField& field : kFields) {
        extra += L'^';
        extra += clean.*field.text;
    }
    return extra;
}

void cleanContact(core::Contact& contact)
{
    for (const ContactField& field : kFields) {
        std::wstring& text = contact.*field.text;
        std::replace(text.begin(), text.end(), L'^', L' ');
        // Inside the extra text every quote is an inner one, also at the end of a sub-field.
        std::replace(text.begin(), text.end(), L'"', L'\'');
        text = cleanText(text, field.most);
    }
    while (extraLength(contact) > kExtraLength) {
        const auto longest =
            std::max_element(kFields.begin(), kFields.end(), [&](const auto& a, const auto& b) {
                return (contact.*a.text).size() < (contact.*b.text).size();
            });
        (contact.*longest->text).pop_back();
    }
}

} // namespace kestrav::data
