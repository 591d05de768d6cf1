#include "app/desktop/inspector/InspectorHtml.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "core/Points.h"
#include "core/Varga.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

using present::Subject;

// How far a subject's numbers reach; a link from elsewhere is checked against it.
struct Range
{
    Subject subject;
    int lowest;
    int highest;
};

constexpr Range kRanges[] = {
    {Subject::Point, 0, core::kPointCount - 1},
    {Subject::Sign, 1, 12},
    {Subject::House, 1, 12},
    {Subject::Varga, 0, core::kVargaCount - 1},
    {Subject::Nakshatra, 0, 26},
    {Subject::Moment, 0, 0},
};

// Tables with more columns have smaller letters.
constexpr std::size_t kMostColumns = 4;

QString escaped(const std::wstring& text)
{
    return toQt(text).trimmed().toHtmlEscaped();
}

QString cellHtml(const present::Cell& cell, bool right, bool small, const QString& tag)
{
    QString words = escaped(cell.text);
    if (small) {
        words = QStringLiteral("<small>%1</small>").arg(words);
    }
    if (cell.link.subject != Subject::None) {
        words = QStringLiteral("<a href='%1'>%2</a>").arg(linkText(cell.link), words);
    }
    return QStringLiteral("<%1 align='%2'>%3</%1>")
        .arg(tag, right ? QStringLiteral("right") : QStringLiteral("left"), words);
}

// The pane is narrow: of a placement the division says what its name would say again, and a column
// without any words, such as the dignities of the ascendant, says nothing.
bool isLeftOut(const present::Table& table, std::size_t column)
{
    if (table.id != "placements") {
        return false;
    }
    return table.columns[column].heading == L"Name" ||
           std::all_of(table.rows.begin(), table.rows.end(), [column](const present::Row& row) {
               return column < row.size() && row[column].text.empty();
           });
}

// Of a position inside of a division the minutes are enough beside its sign, house and dignity.
present::Cell shortened(const present::Table& table, std::size_t column, present::Cell cell)
{
    const std::size_t minutes = cell.text.find(L'\'');
    if (table.id == "placements" && table.columns[column].heading == L"Position" &&
        minutes != std::wstring::npos) {
        cell.text.erase(minutes + 1);
    }
    return cell;
}

QString tableHtml(const present::Table& table)
{
    if (table.columns.empty() || table.rows.empty()) {
        return {};
    }
    const bool small = table.columns.size() > kMostColumns;
    QString html = QStringLiteral("<table cellspacing='0' cellpadding='%1'>").arg(small ? 2 : 3);
    if (!table.withoutHeadings()) {
        html += QStringLiteral("<tr>");
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            if (!isLeftOut(table, i)) {
                html += cellHtml(table.columns[i].heading,
                                 table.columns[i].align == present::Align::Right, small,
                                 QStringLiteral("th"));
            }
        }
        html += QStringLiteral("</tr>");
    }
    for (const present::Row& row : table.rows) {
        html += QStringLiteral("<tr>");
        for (std::size_t i = 0; i < std::min(row.size(), table.columns.size()); ++i) {
            if (!isLeftOut(table, i)) {
                html += cellHtml(shortened(table, i, row[i]),
                                 table.columns[i].align == present::Align::Right, small,
                                 QStringLiteral("td"));
            }
        }
        html += QStringLiteral("</tr>");
    }
    return html + QStringLiteral("</table>");
}

// Sentences that explain one another stand better below than beside what they are about.
QString listHtml(const present::Table& table)
{
    QString html;
    for (const present::Row& row : table.rows) {
        html += QStringLiteral("<p><b>%1</b>: %2<br>%3</p>")
                    .arg(escaped(row[0].text), escaped(row[1].text), escaped(row[2].text));
    }
    return html;
}

bool isList(const present::Table& table)
{
    return table.columns.size() == 3 && table.columns.back().align == present::Align::Wrapped;
}

} // namespace

QString linkText(const present::Link& link)
{
    return QStringLiteral("about:%1,%2,%3,%4")
        .arg(int(link.subject))
        .arg(link.index)
        .arg(link.varga)
        .arg(link.moment, 0, 'f', 8);
}

std::optional<present::Link> linkOfText(const QString& text)
{
    const QStringList parts = text.startsWith(QLatin1String("about:"))
                                  ? text.mid(6).split(QLatin1Char(','))
                                  : QStringList();
    if (parts.size() != 4) {
        return std::nullopt;
    }
    present::Link link;
    link.index = parts[1].toInt();
    link.varga = parts[2].toInt();
    link.moment = parts[3].toDouble();
    for (const Range& range : kRanges) {
        if (int(range.subject) == parts[0].toInt() && link.index >= range.lowest &&
            link.index <= range.highest && link.varga >= 0 && link.varga < core::kVargaCount) {
            link.subject = range.subject;
            return link;
        }
    }
    return std::nullopt;
}

QString inspectionHtml(const present::Inspection& inspection, const QSet<QString>& folded)
{
    const QString plain =
        QStringLiteral("color:%1; text-decoration:none").arg(themeColour(ThemeRole::Accent).name());
    QString html = QStringLiteral("<style>a { text-decoration:none; color:%1 } "
                                  "th { font-weight:normal; color:%2 }</style><h3>%3</h3>")
                       .arg(themeColour(ThemeRole::Accent).name(),
                            themeColour(ThemeRole::Quiet).name(), escaped(inspection.title));
    // A paragraph of its own, since margins below tables are not kept.
    const int space = QFontMetrics(QGuiApplication::font()).height();
    for (const present::Table& section : inspection.sections) {
        const QString id = toQt(section.id);
        const bool hidden = folded.contains(id);
        html += QStringLiteral("<p style='margin:0; font-size:%5px'>&nbsp;</p><p "
                               "style='margin-top:0; margin-bottom:%6px'>"
                               "<b><a style='%1' href='fold:%2'>%3 %4</a></b></p>")
                    .arg(plain, id, hidden ? QStringLiteral("\u25B8") : QStringLiteral("\u25BE"),
                         escaped(section.title))
                    .arg(space / 2)
                    .arg(space / 4);
        if (hidden) {
            continue;
        }
        html += isList(section) ? listHtml(section) : tableHtml(section);
        for (const std::wstring& note : section.notes) {
            html += QStringLiteral("<p style='color:%1'>%2</p>")
                        .arg(themeColour(ThemeRole::Quiet).name(), escaped(note));
        }
    }
    return html;
}

} // namespace kestrav::desktop
