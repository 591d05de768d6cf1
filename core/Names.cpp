#include "core/Names.h"

#include "core/DisplayFlags.h"
#include "core/PointNames.h"

#include <array>
#include <cstddef>

namespace kestrav::core
{

namespace
{

// clang-format off
constexpr std::array<std::wstring_view, 27> kNakshatras = {
    L"Ashwini",
    L"Bharani",
    L"Krittika",
    L"Rohini",
    L"Mrigashira",
    L"Ardra",
    L"Punarvasu",
    L"Pushya",
    L"Ashlesha",
    L"Magha",
    L"Purva Phalguni",
    L"Uttara Phalguni",
    L"Hasta",
    L"Chitra",
    L"Swati",
    L"Vishakha",
    L"Anuradha",
    L"Jyeshtha",
    L"Mula",
    L"Purva Ashadha",
    L"Uttara Ashadha",
    L"Shravana",
    L"Dhanishtha",
    L"Shatabhisha",
    L"Purva Bhadrapada",
    L"Uttara Bhadrapada",
    L"Revati",
};

constexpr std::array<std::wstring_view, 27> kNakshatras3 = {
    L"Ash",
    L"Bha",
    L"Kri",
    L"Roh",
    L"Mri",
    L"Ard",
    L"Pun",
    L"Pus",
    L"Asl",
    L"Mag",
    L"PPh",
    L"UPh",
    L"Has",
    L"Chi",
    L"Swa",
    L"Vis",
    L"Anu",
    L"Jye",
    L"Mul",
    L"PAs",
    L"UAs",
    L"Shr",
    L"Dha",
    L"Sha",
    L"PBh",
    L"UBh",
    L"Rev",
};

constexpr std::array<std::wstring_view, 7> kWeekdaysEnglish = {
    L"Sunday",
    L"Monday",
    L"Tuesday",
    L"Wednesday",
    L"Thursday",
    L"Friday",
    L"Saturday",
};

constexpr std::array<std::wstring_view, 7> kWeekdaysSanskrit = {
    L"Ravivara",
    L"Somavara",
    L"Mangalavara",
    L"Budhavara",
    L"Guruvara",
    L"Shukravara",
    L"Shanivara",
};

constexpr std::array<std::wstring_view, 12> kLunarMonths = {
    L"Chaitra",
    L"Vaishakha",
    L"Jyeshtha",
    L"Ashadha",
    L"Shravana",
    L"Bhadrapada",
    L"Ashvina",
    L"Kartika",
    L"Margashirsha",
    L"Pausha",
    L"Magha",
    L"Phalguna",
};

constexpr std::array<std::wstring_view, 6> kRitus = {
    L"Vasanta",
    L"Grishma",
    L"Varsha",
    L"Sharad",
    L"Hemanta",
    L"Shishira",
};

constexpr std::array<std::wstring_view, 2> kAyanas = {
    L"Uttarayana",
    L"Dakshinayana",
};

constexpr std::array<std::wstring_view, 60> kSamvatsaras = {
    L"Prabhava",
    L"Vibhava",
    L"Shukla",
    L"Pramoda",
    L"Prajapati",
    L"Angirasa",
    L"Shrimukha",
    L"Bhava",
    L"Yuva",
    L"Dhatu",
    L"Ishvara",
    L"Bahudhanya",
    L"Pramathi",
    L"Vikrama",
    L"Vrisha",
    L"Chitrabhanu",
    L"Svabhanu",
    L"Tarana",
    L"Parthiva",
    L"Vyaya",
    L"Sarvajit",
    L"Sarvadhari",
    L"Virodhi",
    L"Vikriti",
    L"Khara",
    L"Nandana",
    L"Vijaya",
    L"Jaya",
    L"Manmatha",
    L"Durmukha",
    L"Hevilambi",
    L"Vilambi",
    L"Vikari",
    L"Sharvari",
    L"Plava",
    L"Shubhakrit",
    L"Shobhana",
    L"Krodhi",
    L"Vishvavasu",
    L"Parabhava",
    L"Plavanga",
    L"Kilaka",
    L"Saumya",
    L"Sadharana",
    L"Virodhikrit",
    L"Paridhavi",
    L"Pramadi",
    L"Ananda",
    L"Rakshasa",
    L"Anala",
    L"Pingala",
    L"Kalayukti",
    L"Siddharthi",
    L"Raudra",
    L"Durmati",
    L"Dundubhi",
    L"Rudhirodgari",
    L"Raktakshi",
    L"Krodhana",
    L"Akshaya",
};
// clang-format on

template <std::size_t Size>
std::wstring_view entry(const std::array<std::wstring_view, Size>& names, int index)
{
    return index >= 0 && index < int(Size) ? names[std::size_t(index)] : kNoName;
}

} // namespace

std::wstring_view nakshatraName(int nakshatra)
{
    return entry(kNakshatras, nakshatra);
}

std::wstring_view nakshatraName3(int nakshatra)
{
    return entry(kNakshatras3, nakshatra);
}

std::wstring_view weekdayName(int weekday)
{
    const bool english = (DisplayFlags() & kEnglishNames) != 0;
    return entry(english ? kWeekdaysEnglish : kWeekdaysSanskrit, weekday - 1);
}

std::wstring_view lunarMonthName(int month)
{
    return entry(kLunarMonths, month - 1);
}

std::wstring_view rituName(int ritu)
{
    return entry(kRitus, ritu);
}

std::wstring_view ayanaName(int ayana)
{
    return entry(kAyanas, ayana);
}

std::wstring_view samvatsaraName(int year)
{
    return entry(kSamvatsaras, year);
}

} // namespace kestrav::core
