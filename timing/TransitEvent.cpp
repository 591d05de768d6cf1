#include "timing/TransitEvent.h"

#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <array>
#include <cwchar>
#include <string_view>

namespace kestrav::timing
{

namespace
{

constexpr int kLongName = 4; // letters in glyph mode too
constexpr std::wint_t kDegreeSign = 176;

template <typename... Arguments>
std::wstring print(const wchar_t* format, const Arguments&... arguments)
{
    std::array<wchar_t, 160> buffer{};
    const int length = std::swprintf(buffer.data(), buffer.size(), format, arguments...);
    return {buffer.data(), length > 0 ? std::size_t(length) : 0};
}

// Some names and every clock text without marker end in a blank, which does not end a line.
std::wstring trimmed(std::wstring_view text)
{
    return std::wstring(text.substr(0, text.find_last_not_of(L' ') + 1));
}

std::wstring nameOf(int point)
{
    return trimmed(core::PointName(kLongName, point));
}

std::wstring clockOf(const TransitEvent& event, bool twelveHour)
{
    return core::FormatClock(event.hour, twelveHour, false);
}

const wchar_t* chartOfTarget(TransitMode mode)
{
    return mode == TransitMode::Native ? L"Nat" : L"Tr";
}

int degreesOf(const TransitEvent& event)
{
    return (event.houseDistance - 1) * 30;
}

std::wstring aspectLine(const TransitEvent& event, const TransitLineStyle& style)
{
    const std::wstring body = nameOf(event.body);
    const std::wstring target = nameOf(event.target);
    const std::wstring clock = clockOf(event, style.twelveHour);
    if (event.houseDistance == 1) {
        return print(L"Tr. %-7ls conjunct %ls. %ls at %ls", body.c_str(), chartOfTarget(style.mode),
                     target.c_str(), clock.c_str());
    }
    return print(L"Tr. %-7ls to %ls. %ls %d (%d%lc) aspect at %ls", body.c_str(),
                 chartOfTarget(style.mode), target.c_str(), event.houseDistance, degreesOf(event),
                 kDegreeSign, clock.c_str());
}

std::wstring orbLine(const TransitEvent& event, const TransitLineStyle& style)
{
    const wchar_t* const format = event.kind == TransitKind::OrbEnter
                                      ? L"Tr. %-7ls enters %d%lc orb of %ls. %ls "
                                      : L"Tr. %-7ls leaves %d%lc orb of %ls. %ls ";
    return print(format, nameOf(event.body).c_str(), style.orbDegrees, kDegreeSign,
                 chartOfTarget(style.mode), nameOf(event.target).c_str()) +
           shortTransitText(event, style.twelveHour);
}

std::wstring partName(const TransitEvent& event)
{
    switch (event.division) {
    case TransitDivision::Nakshatra:
        return L"nakshatra " + std::wstring(core::nakshatraName(event.part));
    case TransitDivision::Pada:
        return L"pada " + std::to_wstring(event.part % 4 + 1) + L" of " +
               std::wstring(core::nakshatraName(event.part / 4));
    case TransitDivision::Sign:
    case TransitDivision::None:
        break;
    }
    return std::wstring(core::signNameLong(event.sign));
}

std::wstring eventText(const TransitEvent& event)
{
    switch (event.kind) {
    case TransitKind::Ingress:
        return (event.backward ? L"re-enters (R) " : L"enters ") + partName(event);
    case TransitKind::Station:
        return event.backward ? L"turns retrograde" : L"turns direct";
    case TransitKind::CombustEnter:
        return L"becomes combust";
    default:
        return L"is no longer combust";
    }
}

} // namespace

std::wstring shortTransitText(const TransitEvent& event, bool twelveHour)
{
    const std::wstring clock = clockOf(event, twelveHour);
    return event.houseDistance == 1 ? print(L"conjunction at %ls", clock.c_str())
                                    : print(L"%d (%d%lc) aspect at %ls", event.houseDistance,
                                            degreesOf(event), kDegreeSign, clock.c_str());
}

std::wstring transitLine(const TransitEvent& event, const TransitLineStyle& style)
{
    switch (event.kind) {
    case TransitKind::Aspect:
    case TransitKind::Conjunction:
        return trimmed(aspectLine(event, style));
    case TransitKind::OrbEnter:
    case TransitKind::OrbLeave:
        return trimmed(orbLine(event, style));
    default:
        return trimmed(print(L"Tr. %-7ls %ls at %ls", nameOf(event.body).c_str(),
                             eventText(event).c_str(), clockOf(event, style.twelveHour).c_str()));
    }
}

} // namespace kestrav::timing
