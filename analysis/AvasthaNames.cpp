#include "analysis/Avasthas.h"

#include <array>
#include <cstddef>

namespace kestrav::analysis
{

namespace
{

using Name = std::wstring_view;

constexpr std::array<Name, 5> kBaladi = {L"Bala", L"Kumara", L"Yuva", L"Vriddha", L"Mrita"};

constexpr std::array<Name, 3> kJagradadi = {L"Jagrat", L"Swapna", L"Sushupti"};

constexpr std::array<Name, 7> kDeeptadi = {L"Deepta", L"Swastha", L"Pramudita", L"Shanta",
                                           L"Dina",   L"Dukhita", L"Khala"};

constexpr std::array<Name, 6> kLajjitadi = {L"Lajjita",  L"Garvita", L"Kshudhita",
                                            L"Trishita", L"Mudita",  L"Kshobhita"};

constexpr std::array<Name, 12> kShayanadi = {L"Shayana", L"Upavesha",    L"Netrapani", L"Prakasha",
                                             L"Gamana",  L"Agamana",     L"Sabha",     L"Agama",
                                             L"Bhojana", L"Nrityalipsa", L"Kautuka",   L"Nidra"};

constexpr std::array<Name, 3> kShayanadiParts = {L"Vicheshta", L"Drishti", L"Cheshta"};

constexpr std::array<Name, 5> kNameLetters = {
    L"a ka cha .da dha bha va", L"i kha ja .dha na ma sha", L"u ga jha ta pa ya .sa",
    L"e gha .ta tha pha ra sa", L"o chha .tha da ba la ha"};

} // namespace

std::wstring_view nameLetters(int nameLetterValue)
{
    return kNameLetters.at(std::size_t(nameLetterValue - 1));
}

std::wstring_view avasthaName(Baladi state)
{
    return kBaladi[std::size_t(state)];
}

std::wstring_view avasthaName(Jagradadi state)
{
    return kJagradadi[std::size_t(state)];
}

std::wstring_view avasthaName(Deeptadi state)
{
    return kDeeptadi[std::size_t(state)];
}

std::wstring_view avasthaName(Lajjitadi state)
{
    return kLajjitadi[std::size_t(state)];
}

std::wstring_view avasthaName(Shayanadi state)
{
    return kShayanadi[std::size_t(state) - 1];
}

std::wstring_view avasthaName(ShayanadiPart part)
{
    return kShayanadiParts[std::size_t(part)];
}

} // namespace kestrav::analysis
