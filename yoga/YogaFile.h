// Yoga files (.ksy): XML documents that hold a collection of yogas.
#pragma once

#include "core/Files.h"
#include "core/Result.h"
#include "data/import/XmlDocument.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace kestrav::yoga
{

inline constexpr std::uintmax_t kLargestYogaFile = std::uintmax_t{16} << 20;
inline constexpr std::size_t kMostYogas = 50'000;

/// The file of the user's own yogas.
inline constexpr char kOwnYogaFile[] = "myyogas.ksy";

/// Where something was read, so that what the program does not know is written again.
struct XmlOrigin
{
    /// Shared, because yogas of one file can be moved into another and outlive the first.
    std::shared_ptr<const data::XmlDocument> document;
    const _xmlNode* element = nullptr; ///< none for what was made by the program
};

/// One yoga; all texts are UTF-8. The names of the fields in the file stand beside them.
struct Yoga
{
    std::string options;        ///< op: the divisional-chart options that the rule uses
    std::string title;          ///< tl
    std::string rule;           ///< rl
    std::string interpretation; ///< in
    std::string comment;        ///< cm
    std::string vargas;         ///< vs: short names of the divisional charts that the rule uses
    std::string chapter;        ///< ch
    std::string further;        ///< un
    XmlOrigin origin;
};

/// A collection of yogas.
struct YogaFile
{
    std::string version = "1"; ///< ver: version of the file's form
    std::string rights;        ///< cpy
    std::string name;          ///< nm
    std::string author;        ///< au
    std::string introduction;  ///< intro: shown before the yogas
    std::string closing;       ///< post: shown after them
    std::vector<Yoga> yogas;
    XmlOrigin origin;
};

/// Reads a yoga file. A field is a child element or an attribute, without blanks at both ends; the
/// element is taken when it is not empty. Files of other programs with the same extension, document
/// types, and more than kMostYogas yogas are refused. Rules are not looked into.
[[nodiscard]] core::Result<YogaFile> parseYogaFile(std::span<const std::uint8_t> bytes);
[[nodiscard]] core::Result<YogaFile> readYogaFile(const std::filesystem::path& path);

/// The bytes of the file. Fields are written as child elements; elements, attributes, comments and
/// processing instructions that the program does not know stay, those before a yoga with it.
/// Characters that XML cannot hold become blanks.
[[nodiscard]] core::Result<std::vector<std::uint8_t>> formatYogaFile(const YogaFile& file);

/// Writes the file as a whole and keeps the previous one as ".BAK". What could not be read again is
/// not written.
[[nodiscard]] core::Result<void>
writeYogaFile(const std::filesystem::path& path, const YogaFile& file,
              const std::function<void(core::WriteStep)>& afterStep = {});

} // namespace kestrav::yoga
