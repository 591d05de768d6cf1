#include "app/cli/Console.h"

#include "core/FileText.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace kestrav::cli
{

namespace
{

// What was typed can hold line ends and other control characters; a message stays one line.
std::string oneLine(std::wstring text)
{
    std::replace_if(
        text.begin(), text.end(),
        [](wchar_t character) {
            return character < L' ' || (character >= 0x7F && character < 0xA0) ||
                   character == 0x2028 || character == 0x2029;
        },
        L' ');
    return core::toUtf8(text) + "\n";
}

void write(std::FILE* stream, std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stream);
}

} // namespace

core::Answer Console::show(const std::wstring& caption, const std::wstring& text,
                           core::Buttons buttons)
{
    write(stderr, oneLine(caption + L": " + text));
    switch (buttons) {
    case core::Buttons::Ok:
        return core::Answer::Ok;
    case core::Buttons::YesNo:
        return core::Answer::No;
    case core::Buttons::OkCancel:
    case core::Buttons::YesNoCancel:
        break;
    }
    return core::Answer::Cancel;
}

void Console::error(std::string_view text)
{
    notice(L"Error", core::fromFileBytes(text));
}

void Console::warning(std::string_view text)
{
    notice(L"Warning", core::fromFileBytes(text));
}

void Console::print(std::string_view text)
{
    write(stdout, text);
}

void Console::print(std::wstring_view text)
{
    write(stdout, core::toUtf8(text));
}

core::Result<void> Console::finish()
{
    errno = 0;
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        const int reason = errno;
        return core::Error{"cannot write the output" +
                           (reason != 0 ? ": " + std::string(std::strerror(reason)) : "")};
    }
    return {};
}

} // namespace kestrav::cli
