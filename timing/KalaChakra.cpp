#include "timing/KalaChakra.h"

#include "core/PointNames.h"
#include "core/Points.h"

#include <cstddef>

namespace kestrav::timing
{

namespace
{

constexpr int kPadas = 4;
constexpr int kNakshatrasOfGroup = 3;
constexpr int kApasavyaRow = 12;
constexpr int kLastDehFirstRow = 10;

// clang-format off
constexpr std::array<KalaChakraRow, kKalaChakraRows> kRows = {{
    {{ 1,  2,  3,  4,  5,  6,  7,  8,  9}, 100}, // savya
    {{10, 11, 12,  8,  7,  6,  4,  5,  3},  85},
    {{ 2,  1, 12, 11, 10,  9,  1,  2,  3},  83},
    {{ 4,  5,  6,  7,  8,  9, 10, 11, 12},  86},
    {{ 8,  7,  6,  4,  5,  3,  2,  1, 12}, 100},
    {{11, 10,  9,  1,  2,  3,  4,  5,  6},  85},
    {{ 7,  8,  9, 10, 11, 12,  8,  7,  6},  83},
    {{ 4,  5,  3,  2,  1, 12, 11, 10,  9},  86},
    {{ 1,  2,  3,  4,  5,  6,  7,  8,  9}, 100},
    {{10, 11, 12,  8,  7,  6,  4,  5,  3},  85},
    {{ 2,  1, 12, 11, 10,  9,  1,  2,  3},  83},
    {{ 4,  5,  6,  7,  8,  9, 10, 11, 12},  86},
    {{ 9, 10, 11, 12,  1,  2,  3,  5,  4},  86}, // apasavya
    {{ 6,  7,  8, 12, 11, 10,  9,  8,  7},  83},
    {{ 6,  5,  4,  3,  2,  1,  9, 10, 11},  85},
    {{12,  1,  2,  3,  5,  4,  6,  7,  8}, 100},
    {{12, 11, 10,  9,  8,  7,  6,  5,  4},  86},
    {{ 3,  2,  1,  9, 10, 11, 12,  1,  2},  83},
    {{ 3,  5,  4,  6,  7,  8, 12, 11, 10},  85},
    {{ 9,  8,  7,  6,  5,  4,  3,  2,  1}, 100},
    {{12, 11, 10,  9,  8,  7,  6,  5,  4},  86},
    {{ 3,  2,  1,  9, 10, 11, 12,  1,  2},  83},
    {{ 3,  5,  4,  6,  7,  8, 12, 11, 10},  85},
    {{ 9,  8,  7,  6,  5,  4,  3,  2,  1}, 100},
}};
// clang-format on

constexpr bool rowsFillTheirSpans()
{
    for (const KalaChakraRow& row : kRows) {
        double years = 0.0;
        for (const int sign : row.signs) {
            years += kKalaChakraYears[std::size_t(sign)];
        }
        if (years != row.span) {
            return false;
        }
    }
    return true;
}

static_assert(rowsFillTheirSpans());

} // namespace

const KalaChakraRow& kalaChakraRow(int row)
{
    return core::at(kRows, row);
}

KalaChakraStart kalaChakraStart(int nakshatra, double fraction)
{
    const double padas = fraction * kPadas;
    const int pada = int(padas);
    const int group = nakshatra / kNakshatrasOfGroup;
    const int row = pada + (nakshatra - kNakshatrasOfGroup * group) * kPadas +
                    (group % 2 != 0 ? kApasavyaRow : 0);
    return {row, kalaChakraRow(row).span * (padas - pada)};
}

std::wstring kalaChakraLabel(int row)
{
    const KalaChakraRow& signs = kalaChakraRow(row);
    const bool dehFirst = row <= kLastDehFirstRow;
    std::wstring text = dehFirst ? L"Deh:" : L"Jiv:";
    text += core::signNameLong(signs.signs.front());
    text += dehFirst ? L"/Jiv:" : L"/Deh:";
    text += core::signNameLong(signs.signs.back());
    return text;
}

} // namespace kestrav::timing
