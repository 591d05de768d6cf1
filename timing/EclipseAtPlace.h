// What a place on the Earth sees of an eclipse.
#pragma once

#include "astro/RiseSet.h"
#include "timing/Eclipses.h"

#include <optional>
#include <string_view>
#include <vector>

namespace kestrav::timing
{

/// The phases in the order in which they come. An eclipse of the Sun has no penumbral contacts; the
/// total ones are those of its annular phase, too.
enum class ContactKind
{
    PenumbralBegin,
    PartialBegin,
    TotalBegin,
    Greatest,
    TotalEnd,
    PartialEnd,
    PenumbralEnd,
};

/// "penumbral begins", "partial begins" ...; of an eclipse that is annular at the place "annular
/// begins".
[[nodiscard]] std::wstring_view contactName(ContactKind kind, EclipseType type);

struct EclipseContact
{
    ContactKind kind = ContactKind::Greatest;
    double julianDay = 0.0; ///< Universal Time
};

/// The same where the eclipsed body may be below the horizon.
struct ContactAtPlace
{
    ContactKind kind = ContactKind::Greatest;
    double julianDay = 0.0;
    double altitude = 0.0; ///< of the body's centre in degrees, without refraction
    bool up = false;       ///< whether the body is risen
};

/// The contacts of an eclipse of the Moon, which are the same for the whole Earth; none of one of
/// the Sun.
[[nodiscard]] std::vector<EclipseContact> lunarContacts(const Eclipse& eclipse);

struct EclipseAtPlace
{
    /// Whether the body is above the horizon at some moment between first and last contact. Sun and
    /// Moon are risen as for sunrise and moonrise. The first and last contacts of the Moon are
    /// those of the penumbra, which the eye hardly sees.
    bool visible = false;

    /// What the place would see, were the body up: of an eclipse of the Sun partial, annular or
    /// total; of one of the Moon its type. Nothing where the Moon's shadow would not come.
    std::optional<EclipseType> type;

    /// The greatest phase during which the body is up: of a total eclipse of the Moon that sets in
    /// the penumbra penumbral. Nothing when it is not visible.
    std::optional<EclipseType> seenType;

    /// At the greatest phase for the place. Of the Sun: (s + m - d) / 2s with the radii of Sun and
    /// Moon and the distance of their centres; of the Moon that of the eclipse.
    double magnitude = 0.0;

    /// The stretch from the first to the last moment at which the body is up during the eclipse, in
    /// Julian days; nothing when it is not visible.
    std::optional<Span> seen;

    std::vector<ContactAtPlace> contacts; ///< in order of time
};

/// An eclipse at a place. That of the Sun is searched within 3.5 hours of the greatest eclipse; the
/// place of the Moon is corrected for parallax on the flattened Earth, which gives the contacts to
/// about 20 seconds.
[[nodiscard]] EclipseAtPlace eclipseAtPlace(SiderealSky& sky, const Eclipse& eclipse,
                                            const astro::Observer& observer);

} // namespace kestrav::timing
