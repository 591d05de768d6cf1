// What the user is told and asked about databases. The texts are fixed.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace kestrav::data
{

inline constexpr wchar_t kNoticeCaption[] = L"Notice";
inline constexpr wchar_t kWarningCaption[] = L"Warning";
inline constexpr wchar_t kErrorCaption[] = L"Error";
inline constexpr wchar_t kQuitCaption[] = L"Quit";
inline constexpr wchar_t kResearchCaption[] = L"notice";

inline constexpr wchar_t kFileNotFound[] =
    L"This file is not found, please use 'File/Open Database' to open it";
inline constexpr wchar_t kNoPermission[] =
    L"You don't have permission to open this file, check with your system administrator";
inline constexpr wchar_t kOverwrite[] = L"File exists. Overwrite?";
inline constexpr wchar_t kNewFilePrompt[] = L"Enter the Name for your New Data File";
inline constexpr wchar_t kSavingError[] = L"Saving File Error :";
inline constexpr wchar_t kNameExists[] =
    L"Name already exists, update? Click [No] to save as Nnnnnn~";
inline constexpr wchar_t kShortYear[] =
    L"The year you have entered has less than four digits (e.g. 60 means 60AD not 1960). "
    L"Continue?\n\r(Switch this message off by unchecking the appropriate item in the 'Confirm' "
    L"menu.)";
inline constexpr wchar_t kSaveAsNow[] = L"Save as 'Now' record?";
inline constexpr wchar_t kNotSavedYet[] = L"No need to Delete because not yet saved";
inline constexpr wchar_t kChangeGroupA[] = L"Change A group tags and update file?";
inline constexpr wchar_t kChangeGroupB[] = L"Change B group tags and update file?";
inline constexpr wchar_t kInsertDrive[] =
    L"Insert a flash drive, CD or other memory device in a USB port or other spare drive.\n"
    L"Then a dialog will open to save the Kestrav data file there.\n"
    L"If necessary navigate to the right device.";
inline constexpr wchar_t kRefreshResearch[] = L"Your Research Database needs refreshing. Go ahead?";
inline constexpr wchar_t kTryRefreshing[] =
    L"Try refreshing your Research Database?\n\nYou may have found no charts because this needs "
    L"refreshing.\nAfter refreshing, search again.";
inline constexpr wchar_t kOptionsMovePlanets[] =
    L"The Option changes you made could affect planetary positions in signs and\nNakshatras. This "
    L"requires the research database to be refreshed for\naccurate sorting, Yoga and Time Search "
    L"and Research Table and Graph results. Refresh it now?";
inline constexpr wchar_t kCannotFindImport[] = L"Can't find the file";
inline constexpr wchar_t kQckNamePrompt[] = L"Give the QCK file you are creating a name";
inline constexpr wchar_t kNoJdfExport[] = L"Can't export to this name, don't use '.jdf' extension";

/// File types as "caption|pattern" filters.
inline constexpr wchar_t kDatabaseFilter[] = L"Kestrav data files (*.ksc or *.dat)|*.ksc;*.dat";
inline constexpr wchar_t kBackupFilter[] = L"Kestrav backup of data files (*.bak)|*.bak";
inline constexpr wchar_t kResearchFilter[] = L"Kestrav research database (*.txt)|*.txt";
inline constexpr wchar_t kBirthdatFilter[] = L"Birthdat.txt (*.txt)|*.txt";

/// "Enter the Name to Save '...' As".
[[nodiscard]] std::wstring saveAsPrompt(const std::filesystem::path& database);
/// "Add ... to ...?".
[[nodiscard]] std::wstring addQuestion(const std::filesystem::path& file,
                                       const std::filesystem::path& database);
/// "Delete '...' from file?".
[[nodiscard]] std::wstring deleteQuestion(std::wstring_view name);
/// "Leave ...?".
[[nodiscard]] std::wstring leaveQuestion(std::wstring_view program);
/// "upd count ...".
[[nodiscard]] std::wstring updateCount(std::size_t count);

/// A line too short to be a chart, found by a listing or, with `walk`, by a walk over the file that
/// can be stopped. `index` counts from 0, the message from 1. The line's text is cut to 200
/// characters.
[[nodiscard]] std::wstring shortLineMessage(std::size_t index, std::string_view line, bool walk);
/// A line whose chart has no name.
[[nodiscard]] std::wstring noNameMessage(std::size_t index, std::string_view line);

/// The file was changed by another program since it was read.
[[nodiscard]] std::wstring changedOnDiskQuestion(const std::filesystem::path& database);

/// The name of a file for a message.
[[nodiscard]] std::wstring fileText(const std::filesystem::path& path);

} // namespace kestrav::data
