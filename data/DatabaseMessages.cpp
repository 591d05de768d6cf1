#include "data/DatabaseMessages.h"

#include "data/FieldReader.h"

namespace kestrav::data
{

namespace
{

constexpr std::size_t kShownCharacters = 200;

// The line's number and its text, which is data of a file and never part of a format.
std::wstring lineTail(std::size_t index, std::string_view line)
{
    // Four bytes a character at most, so that the cut is the same for every encoding.
    std::wstring text = wideField(line.substr(0, 4 * kShownCharacters));
    if (text.size() > kShownCharacters) {
        text.resize(kShownCharacters);
    }
    return L"Line #" + std::to_wstring(index + 1) + L" \"" + text + L"\"";
}

} // namespace

std::wstring fileText(const std::filesystem::path& path)
{
    return wideField(path.filename().string());
}

std::wstring saveAsPrompt(const std::filesystem::path& database)
{
    return L"Enter the Name to Save '" + fileText(database) + L"' As";
}

std::wstring addQuestion(const std::filesystem::path& file, const std::filesystem::path& database)
{
    return L"Add " + fileText(file) + L" to " + fileText(database) + L"?";
}

std::wstring deleteQuestion(std::wstring_view name)
{
    return L"Delete '" + std::wstring(name) + L"' from file?";
}

std::wstring leaveQuestion(std::wstring_view program)
{
    return L"Leave " + std::wstring(program) + L"?";
}

std::wstring updateCount(std::size_t count)
{
    return L"upd count " + std::to_wstring(count);
}

std::wstring shortLineMessage(std::size_t index, std::string_view line, bool walk)
{
    std::wstring text = L"Your database may be corrupted, a very short line was detected";
    text += walk ? L" and processing stopped.\n" : L".\n";
    text += L"Try opening the file with the same name but the extension '.BAK' which will be there "
            L"if you used the file before.\n";
    if (walk) {
        text += L"Click Cancel if you wish to stop processing.\n";
    }
    return text + lineTail(index, line);
}

std::wstring noNameMessage(std::size_t index, std::string_view line)
{
    return L"Your database may be corrupted, a record seems to have no name. Try opening the file "
           L"with the same name but the extension '.BAK' which will be there if you used the file "
           L"before.\nClick Cancel if you wish to stop processing (may crash).\n" +
           lineTail(index, line);
}

std::wstring changedOnDiskQuestion(const std::filesystem::path& database)
{
    return L"The file " + fileText(database) +
           L" was changed by another program since it was opened. Saving replaces what was "
           L"changed there; it will be kept with the extension '.BAK'.\nSave anyway?";
}

} // namespace kestrav::data
