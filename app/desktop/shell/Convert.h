// Texts and paths on their way between the program's own types and those of the toolkit.
#pragma once

#include "core/FileText.h"

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>

namespace kestrav::desktop
{

[[nodiscard]] inline QString toQt(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), qsizetype(text.size()));
}

/// UTF-8, as file names, ids and error messages are.
[[nodiscard]] inline QString toQt(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

// Paths are made from strings without being asked; these take the strings first.
[[nodiscard]] inline QString toQt(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

[[nodiscard]] inline QString toQt(const wchar_t* text)
{
    return QString::fromWCharArray(text);
}

[[nodiscard]] inline QString toQt(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

[[nodiscard]] inline QString toQt(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

[[nodiscard]] inline QString toQt(const std::filesystem::path& path)
{
    return QString::fromLocal8Bit(path.native().data(), qsizetype(path.native().size()));
}

[[nodiscard]] inline std::wstring toWide(const QString& text)
{
    return text.toStdWString();
}

[[nodiscard]] inline std::string toUtf8(const QString& text)
{
    return text.toStdString();
}

[[nodiscard]] inline std::filesystem::path toPath(const QString& text)
{
    return std::filesystem::path(text.toLocal8Bit().toStdString());
}

} // namespace kestrav::desktop
