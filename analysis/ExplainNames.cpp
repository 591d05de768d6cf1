#include "analysis/ExplainText.h"

#include "analysis/VargaNames.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/PointNames.h"

#include <array>
#include <string>

namespace kestrav::analysis::explaining
{

namespace
{

struct Alias
{
    std::string_view name;
    int point;
};

// Names besides those of the tables, as plainName writes them.
constexpr std::array<Alias, 10> kAliases = {{
    {"lagna", core::kAscendant},
    {"arudhalagna", core::kArudhaLagna},
    {"upapada", core::kUpapada},
    {"upapadalagna", core::kUpapada},
    {"yogi", core::kYogiPoint},
    {"yogipoint", core::kYogiPoint},
    {"fortune", core::kPartOfFortune},
    {"partoffortune", core::kPartOfFortune},
    {"saham2", core::kSaham2},
    {"saham3", core::kSaham3},
}};

// The first letters of a sign that tell it from the others.
constexpr std::size_t kSignLetters = 3;

// The point of "house4", "hs4", "cusp4", "bhava4", "arudha4" or "a4", counted from the first point
// of its row.
std::optional<int> numberedPoint(std::string_view name)
{
    struct Row
    {
        std::string_view word;
        int first;
    };
    constexpr std::array<Row, 7> kRows = {{{"house", core::kCusp1},
                                           {"hs", core::kCusp1},
                                           {"h", core::kCusp1},
                                           {"cusp", core::kCusp1},
                                           {"bhava", core::kCusp1},
                                           {"arudha", core::kArudhaPada1},
                                           {"a", core::kArudhaPada1}}};
    for (const Row& row : kRows) {
        if (name.substr(0, row.word.size()) != row.word) {
            continue;
        }
        const std::optional<int> number = core::parseInteger(name.substr(row.word.size()));
        if (number && *number >= 1 && *number <= 12) {
            return row.first + *number - 1;
        }
    }
    return std::nullopt;
}

bool isNamed(int point, std::string_view name)
{
    if (plainName(core::PointName(4, point)) == name ||
        plainName(core::PointName(3, point)) == name) {
        return true;
    }
    const bool lagna = point >= core::kBhavaLagna && point <= core::kDivyaLagna;
    return lagna && plainName(core::PointName(4, point)) + "lagna" == name;
}

template <typename Letter>
std::string plain(std::basic_string_view<Letter> name)
{
    std::string result;
    for (const Letter letter : name) {
        if (letter >= 'A' && letter <= 'Z') {
            result += char(letter - 'A' + 'a');
        } else if ((letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9')) {
            result += char(letter);
        }
    }
    return result;
}

} // namespace

std::string plainName(std::string_view name)
{
    return plain(name);
}

std::string plainName(std::wstring_view name)
{
    return plain(name);
}

std::optional<int> findPoint(std::string_view name)
{
    const core::DisplayFlagsOverride englishNames(core::kEnglishNames);
    const std::string wanted = plainName(name);
    if (const std::optional<int> index = core::parseInteger(wanted)) {
        return *index < core::kPointCount ? index : std::nullopt;
    }
    for (int point = 0; !wanted.empty() && point < core::kPointCount; ++point) {
        if (isNamed(point, wanted)) {
            return point;
        }
    }
    for (const Alias& alias : kAliases) {
        if (alias.name == wanted) {
            return alias.point;
        }
    }
    return numberedPoint(wanted);
}

std::optional<int> findVargaName(std::string_view name)
{
    if (const std::optional<int> varga = findVarga(name)) {
        return varga;
    }
    const std::string wanted = plainName(name);
    for (int varga = 0; !wanted.empty() && varga < core::kVargaCount; ++varga) {
        if (plainName(vargaName(varga)) == wanted) {
            return varga;
        }
    }
    return std::nullopt;
}

std::optional<int> findSign(std::string_view name)
{
    const core::DisplayFlagsOverride englishNames(core::kEnglishNames);
    const std::string wanted = plainName(name);
    const std::optional<int> number = core::parseInteger(wanted);
    for (int sign = 1; sign <= 12; ++sign) {
        const bool begins = wanted.size() >= kSignLetters &&
                            plainName(core::signNameLong(sign)).substr(0, wanted.size()) == wanted;
        if (number == sign || begins) {
            return sign;
        }
    }
    return std::nullopt;
}

std::string pointList(int first, int last)
{
    const core::DisplayFlagsOverride englishNames(core::kEnglishNames);
    std::string list;
    for (int point = first; point <= last; ++point) {
        list += (list.empty() ? "" : ", ") + plainName(core::PointName(4, point));
    }
    return list;
}

} // namespace kestrav::analysis::explaining
