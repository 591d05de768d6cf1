// The list from which the user chooses a chart.
#pragma once

#include "core/Identity.h"
#include "core/Messages.h"
#include "data/ChartDatabase.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// One chart of the list. Texts are UTF-8, so that a million rows stay small.
struct ChooserRow
{
    std::size_t line = 0; ///< index in the database
    std::string name;
    std::string time; ///< as it stands in the line
    std::string code;
    core::PlainDate date;
    wchar_t tag = L' ';
    char sex = ' '; ///< 'M', 'F' or blank
};

struct ChooserList
{
    std::vector<ChooserRow> rows;      ///< in file order
    std::size_t nameWidth = 0;         ///< characters of the widest name
    std::vector<std::size_t> tooShort; ///< lines that are no chart lines; they have no row
};

/// What the list shows of one chart line.
[[nodiscard]] ChooserRow chooserRow(std::string_view line, DateOrder& order,
                                    bool namesOnly = false);

/// Reads what the list shows of every line. With `namesOnly` dates, times and codes are left out,
/// which is faster. The date order in force may be flipped by lines without an order.
[[nodiscard]] ChooserList listCharts(ChartDatabase& database, bool namesOnly = false);

/// Tells the user about the first line that is too short. One message is enough: a file that is no
/// database at all would give thousands.
void tellShortLine(const ChooserList& list, const ChartDatabase& database,
                   core::Messages& messages);

/// "%-*s    %2d/%2d/%4d    %5s": name padded to the widest, date in the order, time.
[[nodiscard]] std::wstring chooserText(const ChooserRow& row, std::size_t nameWidth,
                                       DateOrder order);

/// The entries of the sort box, in its order.
enum class SortOrder : int
{
    Alphabetical = 0,
    FileOrder,
    NowAndLocation,
    GroupA,
    GroupB,
    Male,
    Female,
    LinkedToPrimary,
};

inline constexpr int kSortOrders = 8;

/// The text of an entry; empty outside the list.
[[nodiscard]] std::wstring_view sortOrderText(int order);

/// The rows that the order shows, as indexes into list.rows. Alphabetical folds case and accents.
/// Groups and sexes show their own rows in file order. Linked to Primary shows every primary (tag
/// P) followed by the charts that have its three-character code.
[[nodiscard]] std::vector<std::size_t> sortedRows(const ChooserList& list, SortOrder order);

/// A key that sorts names without regard to case and accents, the same in every locale.
[[nodiscard]] std::string nameSortKey(std::string_view utf8);

} // namespace kestrav::data
