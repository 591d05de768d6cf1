#include "app/desktop/panels/ShownColumns.h"

#include "app/desktop/panels/TColumnsDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace kestrav::desktop
{

namespace
{

// A table that has another number of columns by now is another table.
QString keyOf(const std::string& table, std::size_t count)
{
    return QStringLiteral("columns/%1-%2").arg(toQt(table)).arg(count);
}

std::vector<std::size_t> allColumns(std::size_t count)
{
    std::vector<std::size_t> all(count);
    std::iota(all.begin(), all.end(), std::size_t{0});
    return all;
}

} // namespace

std::vector<std::size_t> shownColumns(const std::string& table, std::size_t count)
{
    std::vector<std::size_t> shown;
    std::set<std::size_t> taken;
    for (const QString& word : stateOfWindow().value(keyOf(table, count)).toStringList()) {
        bool number = false;
        const std::size_t column = std::size_t(word.toULongLong(&number));
        if (number && column < count && taken.insert(column).second) {
            shown.push_back(column);
        }
    }
    return shown.empty() ? allColumns(count) : shown;
}

void keepShownColumns(const std::string& table, std::size_t count,
                      const std::vector<std::size_t>& shown)
{
    QStringList words;
    for (const std::size_t column : shown) {
        words += QString::number(qulonglong(column));
    }
    if (shown == allColumns(count)) {
        stateOfWindow().remove(keyOf(table, count));
    } else {
        stateOfWindow().setValue(keyOf(table, count), words);
    }
}

present::Table withColumns(const present::Table& table, const std::vector<std::size_t>& shown)
{
    if (shown == allColumns(table.columns.size())) {
        return table;
    }
    present::Table chosen = table;
    chosen.columns.clear();
    for (const std::size_t column : shown) {
        chosen.columns.push_back(table.columns[column]);
    }
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        chosen.rows[row].clear();
        for (const std::size_t column : shown) {
            chosen.rows[row].push_back(table.rows[row][column]);
        }
    }
    // Only the last column of a table may be broken between words.
    for (std::size_t i = 0; i + 1 < chosen.columns.size(); ++i) {
        if (chosen.columns[i].align == present::Align::Wrapped) {
            chosen.columns[i].align = present::Align::Left;
        }
    }
    return chosen;
}

bool chooseColumns(const present::Table& table, QWidget* parent)
{
    QStringList headings;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const QString heading = toQt(table.columns[i].heading).simplified();
        headings += heading.isEmpty() ? TColumnsDlg::tr("Column %1").arg(i + 1) : heading;
    }
    const std::size_t count = table.columns.size();
    const std::vector<std::size_t> before = shownColumns(table.id, count);
    TColumnsDlg dialog(headings, before, parent);
    if (dialog.exec() != QDialog::Accepted || dialog.shown() == before) {
        return false;
    }
    keepShownColumns(table.id, count, dialog.shown());
    return true;
}

} // namespace kestrav::desktop
