#include "timing/PanchangaNames.h"

#include "core/DisplayFlags.h"
#include "core/PointNames.h"
#include "core/Points.h"

#include <array>
#include <cstddef>

namespace kestrav::timing
{

namespace
{

using core::at;

struct Entry
{
    std::wstring_view name;
    std::wstring_view keyword;
};

struct KaranaEntry
{
    std::wstring_view name;
    std::wstring_view animal;
    std::wstring_view note;
};

// clang-format off
// By the day of the half month modulo 15: Purnima stands at 0, Amavasya behind the list.
constexpr std::array<Entry, 16> kTithiEntries = {{
    {L"Purnima (full Moon)", L"Happiness"},
    {L"Prathama",            L"Initiative"},
    {L"Dwitiya",             L"Increase"},
    {L"Trittiya",            L"Nice"},
    {L"Chaturthi",           L"Obstacles-"},
    {L"Panchami",            L"Virtuous"},
    {L"Shashti",             L"Fiery"},
    {L"Saptami",             L"Power"},
    {L"Ashtami",             L"Desire"},
    {L"Navami",              L"Forceful-"},
    {L"Dashami",             L"Prosperous"},
    {L"Ekadashi",            L""},
    {L"Dwadashami",          L"Fortunate"},
    {L"Trayodashi",          L"Strong will"},
    {L"Chaturdashi",         L"Fiery-"},
    {L"Amavasya (new Moon)", L"Weak, focussed-"},
}};

constexpr std::array<Entry, kYogas> kYogaEntries = {{
    {L"Vishkambha-", L"Overcomes, gains"},
    {L"Priti",       L"Attracted"},
    {L"Ayushman",    L"Health"},
    {L"Saubhagya",   L"Happiness"},
    {L"Shobhana",    L"Shining"},
    {L"Atigandha-",  L"Deceptive"},
    {L"Sukarma",     L"Good work"},
    {L"Dhriti",      L"Controls"},
    {L"Shula-",      L"Painful"},
    {L"Gandha-",     L"Attachments"},
    {L"Vrriti",      L"Growing"},
    {L"Dhruva",      L"Firm"},
    {L"Vyaghat-",    L"Dangerous"},
    {L"Harshana",    L"Joyous"},
    {L"Vajra-",      L"Power"},
    {L"Siddhi",      L"Success"},
    {L"Vyatipata-",  L""},
    {L"Variyan",     L"Ambition"},
    {L"Parigha-",    L"Inimical, successful"},
    {L"Shiva",       L"Auspicious"},
    {L"Siddha",      L"Skillful"},
    {L"Satya",       L"Truthful"},
    {L"Shubha",      L"Brilliant"},
    {L"Shukla",      L"Pure"},
    {L"Brahma",      L"Wise"},
    {L"Indra",       L"Power, wealth"},
    {L"Vaidhriti-",  L"Poor support"},
}};

constexpr std::array<KaranaEntry, 11> kKaranaEntries = {{
    {L"Kinstughna-",  L"Worm",     L"Avoid"},
    {L"Bava",         L"Lion",     L"Good for starting ventures"},
    {L"Balava",       L"Leopard",  L""},
    {L"Kaulava",      L"",         L""},
    {L"Taitila",      L"Donkey",   L"Good for marriage"},
    {L"Gara",         L"Elephant", L""},
    {L"Vanija",       L"",         L""},
    {L"Vishti-",      L"Poison",   L""},
    {L"Shakuna-",     L"Pullu",    L""},
    {L"Chatushpada-", L"Cattle",   L""},
    {L"Naga-",        L"Snake",    L""},
}};

constexpr std::array<std::wstring_view, 7> kChoghadiaNames = {
    L"Udvega",
    L"Chala",
    L"Laabha",
    L"Amrita",
    L"Kaala",
    L"Shubha",
    L"Roga",
};
// clang-format on

// The sequences of the day and of the night as places in the list of names, and where the weekdays
// begin in them, Sunday first.
constexpr std::array<std::array<int, 7>, 2> kChoghadiaSequence = {
    {{0, 1, 2, 3, 4, 5, 6}, {5, 3, 1, 6, 4, 2, 0}}};
constexpr std::array<std::array<int, 7>, 2> kChoghadiaStart = {
    {{0, 3, 6, 2, 5, 1, 4}, {0, 2, 4, 6, 1, 3, 5}}};

constexpr std::wstring_view kNoRuler = L"----";
constexpr std::array<std::wstring_view, 8> kKalaVelaNames = {
    kNoRuler, L"Kaala", L"Chandra", L"Mrityu", L"ArdhPra", L"Yama", L"Sukra", L"Gulika"};
constexpr std::array<std::wstring_view, 8> kKalaVelaLongNames = {
    kNoRuler,         L"Kaala",        L"Chandra", L"Mrityu",
    L"Ardha Prahara", L"Yamaghantaka", L"Sukra",   L"Gulika"};

template <typename Value, std::size_t Size>
bool isInside(const std::array<Value, Size>&, int index)
{
    return index >= 0 && std::size_t(index) < Size;
}

bool inEnglish()
{
    return (core::DisplayFlags() & core::kEnglishNames) != 0;
}

const Entry* tithiEntry(int tithi)
{
    if (tithi < 0 || tithi >= kTithis) {
        return nullptr;
    }
    return &at(kTithiEntries, tithi == kTithis - 1 ? 15 : (tithi + 1) % 15);
}

const KaranaEntry* karanaEntry(int karana)
{
    const int kind = karanaKind(karana);
    return kind < 0 ? nullptr : &at(kKaranaEntries, kind);
}

} // namespace

std::wstring_view tithiName(int tithi)
{
    const Entry* const entry = tithiEntry(tithi);
    return entry != nullptr ? entry->name : core::kNoName;
}

std::wstring_view tithiKeyword(int tithi)
{
    const Entry* const entry = tithiEntry(tithi);
    return entry != nullptr ? entry->keyword : core::kNoName;
}

int tithiOfPaksha(int tithi)
{
    return tithi % 15 + 1;
}

bool isKrishna(int tithi)
{
    return tithi >= kTithis / 2;
}

std::wstring_view pakshaText(bool krishna)
{
    if (inEnglish()) {
        return krishna ? L"Waning Moon" : L"Waxing Moon";
    }
    return krishna ? L"Krishna Paksha" : L"Shukla Paksha";
}

std::wstring_view yogaName(int yoga)
{
    return isInside(kYogaEntries, yoga) ? at(kYogaEntries, yoga).name : core::kNoName;
}

std::wstring_view yogaKeyword(int yoga)
{
    return isInside(kYogaEntries, yoga) ? at(kYogaEntries, yoga).keyword : core::kNoName;
}

int karanaKind(int karana)
{
    if (karana < 1 || karana > kKaranas) {
        return -1;
    }
    if (karana == 1) {
        return 0;
    }
    return karana <= 57 ? (karana - 2) % 7 + 1 : karana - 50;
}

std::wstring_view karanaName(int karana)
{
    const KaranaEntry* const entry = karanaEntry(karana);
    return entry != nullptr ? entry->name : core::kNoName;
}

std::wstring_view karanaAnimal(int karana)
{
    const KaranaEntry* const entry = karanaEntry(karana);
    return entry != nullptr ? entry->animal : core::kNoName;
}

std::wstring_view karanaNote(int karana)
{
    const KaranaEntry* const entry = karanaEntry(karana);
    return entry != nullptr ? entry->note : core::kNoName;
}

bool isUnfavourable(std::wstring_view text)
{
    return !text.empty() && text.back() == L'-';
}

std::wstring_view choghadiaName(int choghadia)
{
    return isInside(kChoghadiaNames, choghadia) ? at(kChoghadiaNames, choghadia) : core::kNoName;
}

int choghadiaOf(int weekday, bool night, int part)
{
    const std::size_t half = night ? 1 : 0;
    return at(kChoghadiaSequence[half], (at(kChoghadiaStart[half], weekday - 1) + part) % 7);
}

std::wstring_view kalaVelaName(int planet)
{
    return isInside(kKalaVelaNames, planet) ? at(kKalaVelaNames, planet) : core::kNoName;
}

std::wstring_view kalaVelaLongName(int planet)
{
    return isInside(kKalaVelaLongNames, planet) ? at(kKalaVelaLongNames, planet) : core::kNoName;
}

std::wstring_view taraBalaText(int score)
{
    if (score == 0) {
        return inEnglish() ? L"Birth Star, mainly favourable" : L"Janma Nakshatra, mainly Shubha";
    }
    if (score > 0) {
        return inEnglish() ? L"Favourable star for you" : L"Shubha Tara Bal";
    }
    return inEnglish() ? L"Less favourable star for you" : L"Ashubha Tara Bal";
}

} // namespace kestrav::timing
