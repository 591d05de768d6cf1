// The names of the fields in a yoga file.
#pragma once

#include "yoga/YogaFile.h"

#include <array>
#include <string>

namespace kestrav::yoga
{

inline constexpr char kRootName[] = "ksy";
inline constexpr char kYogaName[] = "yg";

template <typename Record>
struct FileField
{
    const char* name;
    std::string Record::*text;
};

// In the order in which new ones are written.
// clang-format off
inline constexpr std::array<FileField<YogaFile>, 6> kCollectionFields = {{
    {"ver",   &YogaFile::version},
    {"cpy",   &YogaFile::rights},
    {"nm",    &YogaFile::name},
    {"au",    &YogaFile::author},
    {"intro", &YogaFile::introduction},
    {"post",  &YogaFile::closing},
}};
inline constexpr std::array<FileField<Yoga>, 8> kYogaFields = {{
    {"op", &Yoga::options},
    {"tl", &Yoga::title},
    {"rl", &Yoga::rule},
    {"in", &Yoga::interpretation},
    {"cm", &Yoga::comment},
    {"vs", &Yoga::vargas},
    {"ch", &Yoga::chapter},
    {"un", &Yoga::further},
}};
// clang-format on

/// The value of a field of an element: of the first child of that name, or of the attribute.
[[nodiscard]] std::string fieldText(const _xmlNode* element, const char* name);

/// The first child element of that name, or nothing.
[[nodiscard]] const _xmlNode* childNamed(const _xmlNode* element, const char* name);

/// Whether the node is an element of that name.
[[nodiscard]] bool isElement(const _xmlNode* node, const char* name);

} // namespace kestrav::yoga
