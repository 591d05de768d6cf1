// What a chart record keeps about a person or an event besides name, place and birth data.
#pragma once

#include <array>
#include <string>

namespace kestrav::core
{

/// A date as it was entered; every part may be 0, and no calendar is applied to it.
struct PlainDate
{
    int year = 0; ///< historical numbering
    int month = 0;
    int day = 0;

    bool operator==(const PlainDate&) const = default;
};

/// One dated event of a life. A slot without a name is empty.
struct LifeEvent
{
    std::wstring name;
    PlainDate date;
    double hours = 0.0; ///< local clock time

    /// Whether reports and rectification may use the event. The month is not tested.
    [[nodiscard]] bool usable() const
    {
        return !name.empty() && date.day >= 1 && date.day <= 31 && date.year != 0 && hours >= 0.0 &&
               hours < 24.0;
    }

    bool operator==(const LifeEvent&) const = default;
};

inline constexpr int kLifeEvents = 39;

/// Where a person can be reached.
struct Contact
{
    std::wstring name;
    std::wstring street;
    std::wstring city;
    std::wstring state;
    std::wstring postcode;
    std::wstring country;
    std::wstring telephone1;
    std::wstring telephone2;
    std::wstring fax;
    std::wstring email;
    std::wstring sortCode;

    bool operator==(const Contact&) const = default;
};

/// The fields of a chart line that no computation reads. Line breaks in the notes are CR LF.
struct Identity
{
    wchar_t tag = L' '; ///< group: A, B, N (now), L (location), P (primary) or any other; ' ' none
    std::wstring label; ///< free text kept with the chart
    std::wstring sex;   ///< "M", "F" or empty
    std::wstring code;  ///< three characters that link a chart to its primary
    std::wstring country;
    std::wstring longitudeText; ///< geographic longitude as it is shown
    std::wstring latitudeText;
    std::wstring sound; ///< first sound of the name, in its Sanskrit equivalent
    int soundGroup = 1; ///< 1 to 5, from the sound
    std::wstring occupation;
    std::wstring status;
    std::wstring freeText;
    PlainDate secondDate;
    std::wstring notes;
    Contact contact;
    std::array<int, 2> numbers = {};
    PlainDate thirdDate;
    std::array<LifeEvent, kLifeEvents> events;
    std::wstring shortName;   ///< first word of the name, for narrow displays
    bool nameMissing = false; ///< the line that was read had no name at all

    bool operator==(const Identity&) const = default;
};

} // namespace kestrav::core
