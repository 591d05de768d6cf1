// The fixed texts of the panchanga: names, keywords and notes of its elements.
#pragma once

#include <string_view>

namespace kestrav::timing
{

inline constexpr int kTithis = 30;
inline constexpr int kKaranas = 60;
inline constexpr int kYogas = 27;
inline constexpr int kNakshatras = 27;

/// Name of tithi 0 (Prathama of the waxing Moon) to 29 (Amavasya); anything else gives "--", as
/// everywhere here. Both halves of the month use the same names up to the fourteenth.
[[nodiscard]] std::wstring_view tithiName(int tithi);

/// Its keyword, which ends in '-' when the tithi is unfavourable. Ekadashi has none.
[[nodiscard]] std::wstring_view tithiKeyword(int tithi);

/// The day of the half month, 1 to 15.
[[nodiscard]] int tithiOfPaksha(int tithi);

/// Whether a tithi belongs to the waning Moon: 15 to 29.
[[nodiscard]] bool isKrishna(int tithi);

/// The half month in the language of the display flags.
[[nodiscard]] std::wstring_view pakshaText(bool krishna);

/// Name of yoga 0 (Vishkambha) to 26 (Vaidhriti); it ends in '-' when the yoga is unfavourable.
[[nodiscard]] std::wstring_view yogaName(int yoga);

/// Its keyword. Vyatipata has none.
[[nodiscard]] std::wstring_view yogaKeyword(int yoga);

/// Which of the eleven karanas, 0 (Kinstughna) to 10 (Naga), number 1 to 60 of the month is: the
/// seven from Bava to Vishti run round eight times between the four fixed ones. -1 for other
/// numbers.
[[nodiscard]] int karanaKind(int karana);

/// Name of karana number 1 to 60; it ends in '-' when the karana is unfavourable.
[[nodiscard]] std::wstring_view karanaName(int karana);

/// What stands beside the name: its animal (for Vishti "Poison"). Some have none.
[[nodiscard]] std::wstring_view karanaAnimal(int karana);

/// What it is good for. Most have none.
[[nodiscard]] std::wstring_view karanaNote(int karana);

/// Whether a name or keyword marks something unfavourable.
[[nodiscard]] bool isUnfavourable(std::wstring_view text);

/// Name 0 (Udvega) to 6 (Roga) of a choghadia, in the order of the day sequence.
[[nodiscard]] std::wstring_view choghadiaName(int choghadia);

/// The choghadia, 0 to 6, of an eighth (0 to 7) of the day or night of a weekday (1 = Sunday). The
/// last eighth repeats the first.
[[nodiscard]] int choghadiaOf(int weekday, bool night, int part);

/// The kala vela of a ruling planet, 1 (Sun) to 7 (Saturn); "----" for 0, the eighth without ruler.
[[nodiscard]] std::wstring_view kalaVelaName(int planet);

/// The same with Ardha Prahara and Yamaghantaka written out.
[[nodiscard]] std::wstring_view kalaVelaLongName(int planet);

/// What a tara bala means, in the language of the display flags: score 0 is the birth star, 1 is
/// favourable, -1 less favourable.
[[nodiscard]] std::wstring_view taraBalaText(int score);

} // namespace kestrav::timing
