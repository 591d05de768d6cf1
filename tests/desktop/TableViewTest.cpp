// Tables as they are sorted, chosen, copied and saved: files are read back and compared.
#include "app/desktop/panels/TableView.h"
#include "app/desktop/panels/TColumnsDlg.h"
#include "app/desktop/panels/TableExport.h"
#include "app/present/TableCatalogue.h"
#include "core/NumberText.h"
#include "tests/desktop/FreshPanels.h"
#include "tests/present/VariedCharts.h"

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QXmlStreamReader>

#include <algorithm>
#include <string>
#include <vector>

namespace kestrav::desktop
{
namespace
{

using tests::kBirths;
using tests::recordOf;

using Line = std::vector<std::string>;
using Lines = std::vector<Line>;

/// What a file has to hold: the headings, where there are any, and the rows.
Lines linesOf(const present::Table& table, bool trimmed = false)
{
    Lines lines;
    const auto text = [trimmed](const std::wstring& wide) {
        return (trimmed ? toQt(wide).trimmed() : toQt(wide)).toStdString();
    };
    if (!table.withoutHeadings()) {
        Line line;
        for (const present::Column& column : table.columns) {
            line.push_back(text(column.heading));
        }
        lines.push_back(line);
    }
    for (const present::Row& row : table.rows) {
        Line line;
        for (const present::Cell& cell : row) {
            line.push_back(text(cell.text));
        }
        lines.push_back(line);
    }
    return lines;
}

/// Comma-separated values by the rules of RFC 4180.
Lines readCsv(const std::string& bytes)
{
    Lines lines;
    Line line;
    std::string field;
    bool quoted = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        if (quoted) {
            if (c == '"' && i + 1 < bytes.size() && bytes[i + 1] == '"') {
                field += c;
                ++i;
            } else if (c == '"') {
                quoted = false;
            } else {
                field += c;
            }
        } else if (c == '"') {
            EXPECT_TRUE(field.empty());
            quoted = true;
        } else if (c == ',' || c == '\r') {
            line.push_back(field);
            field.clear();
            if (c == '\r') {
                EXPECT_EQ(bytes[++i], '\n');
                lines.push_back(line);
                line.clear();
            }
        } else {
            field += c;
        }
    }
    EXPECT_TRUE(!quoted && field.empty() && line.empty());
    return lines;
}

/// The cells of a web page or a part of one.
Lines readHtml(const QByteArray& bytes)
{
    Lines lines;
    QXmlStreamReader reader(bytes.mid(std::max(bytes.indexOf("<body"), qsizetype(0))));
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && reader.name() == QLatin1String("body")) {
            break;
        }
        if (token != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("tr")) {
            lines.emplace_back();
        } else if (reader.name() == QLatin1String("td") || reader.name() == QLatin1String("th")) {
            lines.back().push_back(reader.readElementText().toStdString());
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return lines;
}

/// The cells of Rich Text Format. Control words that say how something looks are passed over.
Lines readRtf(const std::string& rtf)
{
    Lines lines;
    Line line;
    QString cell;
    int depth = 0;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        const char c = rtf[i];
        depth += c == '{' ? 1 : c == '}' ? -1 : 0;
        if (c == '{' || c == '}' || c == '\n' || c == '\r') {
            continue;
        }
        if (c != '\\') {
            cell += QLatin1Char(c);
            continue;
        }
        const char next = rtf[++i];
        if (std::isalpha(static_cast<unsigned char>(next)) == 0) {
            cell += next == '~' ? QChar(0xA0) : QLatin1Char(next);
            continue;
        }
        std::string word;
        while (std::isalpha(static_cast<unsigned char>(rtf[i])) != 0) {
            word += rtf[i++];
        }
        std::string number;
        while (rtf[i] == '-' || std::isdigit(static_cast<unsigned char>(rtf[i])) != 0) {
            number += rtf[i++];
        }
        if (word == "u") {
            cell += QChar(char16_t(std::stoi(number)));
            EXPECT_EQ(rtf[i], '?');
            continue;
        }
        i -= rtf[i] == ' ' ? 0 : 1;
        if (word == "cell") {
            line.push_back(cell.replace(QChar(0xA0), QLatin1Char(' ')).toStdString());
        } else if (word == "row") {
            lines.push_back(line);
            line.clear();
        }
        if (word == "cell" || word == "trowd" || word == "pard") {
            cell.clear();
        }
    }
    EXPECT_EQ(depth, 0);
    return lines;
}

/// Texts that a spreadsheet would compute are held back by an apostrophe.
std::string heldBack(const std::string& text)
{
    const bool formula =
        !text.empty() && std::string("=+-@\t\r").find(text[0]) != std::string::npos;
    return formula && !core::parseNumber(text) ? "'" + text : text;
}

class TableViewTest : public FreshPanels
{
protected:
    std::string saved(const present::Table& table, const char* suffix)
    {
        const QString file = home_.filePath(QStringLiteral("table.") + QLatin1String(suffix));
        QFile::remove(file);
        TMessages::prepare(file);
        saveTableAs(table, workspace(), &window());
        static_cast<void>(TMessages::takeShown());
        return bytesOf(file);
    }

    static std::string bytesOf(const QString& name)
    {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll().toStdString();
    }

    void expectFilesOf(const present::Table& table)
    {
        const Lines expected = linesOf(table);
        Lines held = expected;
        for (Line& line : held) {
            std::transform(line.begin(), line.end(), line.begin(), heldBack);
        }
        EXPECT_EQ(readCsv(saved(table, "csv")), held) << table.id;
        if (!table.explainsItsEmptiness()) {
            EXPECT_EQ(readHtml(QByteArray::fromStdString(saved(table, "html"))), expected)
                << table.id;
            EXPECT_EQ(readRtf(saved(table, "rtf")), expected) << table.id;
        }
        const QJsonObject json =
            QJsonDocument::fromJson(QByteArray::fromStdString(saved(table, "json"))).object();
        EXPECT_EQ(json[QLatin1String("rows")].toArray().size(), int(table.rows.size())) << table.id;
        Lines fromJson;
        if (!table.withoutHeadings()) {
            fromJson.emplace_back();
            for (const QJsonValue& column : json[QLatin1String("columns")].toArray()) {
                fromJson.back().push_back(
                    column.toObject()[QLatin1String("heading")].toString().toStdString());
            }
        }
        for (const QJsonValue& row : json[QLatin1String("rows")].toArray()) {
            fromJson.emplace_back();
            for (const QJsonValue& cell : row.toArray()) {
                fromJson.back().push_back(
                    cell.toObject()[QLatin1String("text")].toString().toStdString());
            }
        }
        EXPECT_EQ(fromJson, expected) << table.id;
        // In plain text the words of a row follow each other in their order.
        const QString plain = QString::fromStdString(saved(table, "txt")).simplified();
        qsizetype at = 0;
        for (const Line& line : table.explainsItsEmptiness() ? Lines() : expected) {
            for (const std::string& text : line) {
                const QString words = QString::fromStdString(text).simplified();
                at = plain.indexOf(words, at);
                ASSERT_GE(at, 0) << table.id << ": " << text;
                at += words.size();
            }
        }
    }

    static std::vector<std::string> column(const TableView& view, int column)
    {
        std::vector<std::string> texts;
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            texts.push_back(view.model()->index(row, column).data().toString().toStdString());
        }
        return texts;
    }

    static void clickHeading(TableView& view, int section)
    {
        QHeaderView* const header = view.horizontalHeader();
        const QPoint at(header->sectionViewportPosition(section) + 4, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }

    static Lines clipboardLines()
    {
        Lines lines;
        for (const QString& line :
             QApplication::clipboard()->mimeData()->text().split(QLatin1Char('\n'))) {
            lines.emplace_back();
            for (const QString& word : line.split(QLatin1Char('\t'))) {
                lines.back().push_back(word.toStdString());
            }
        }
        lines.pop_back(); // after the last line end
        return lines;
    }
};

present::Panel tablePanel(const char* name)
{
    present::Panel panel;
    panel.kind = present::PanelKind::Table;
    panel.content = name;
    return panel;
}

present::Table awkwardTable()
{
    present::Table table = {
        "awkward", L"A \u2013 <b>", {{L"Name"}, {L"Value, \"quoted\"", present::Align::Right}}};
    table.add({L"=1+2", present::Cell(L"-0.5", -0.5)});
    table.add({L"a\tb", present::Cell(L"10", 10.0)});
    table.add({L"two\nlines", present::Cell(L"9", 9.0)});
    table.add({L"{\\rtf} & \u0926\u0947\u0935\u0940 \U0001F319", present::Cell(L"--")});
    table.notes.push_back(L"note");
    return table;
}

TEST_F(TableViewTest, FilesOfEveryTableHoldWhatTheTableHolds)
{
    ASSERT_TRUE(workspace().showSecond(recordOf(kBirths[0])));
    present::TableSource source{*workspace().chart(), data_->series};
    source.moment = workspace().moment();
    source.yogas = workspace().yogas().get();
    source.bride = &workspace().secondChart()->chart;
    source.groom = &workspace().chart()->chart;
    source.matchingTables = &data_->matching;
    TableView view;
    for (const present::TableInfo& info : present::allTables()) {
        const auto made = info.make(source);
        ASSERT_TRUE(made.ok()) << info.id;
        const present::Table& table = made.value();
        expectFilesOf(table);
        // A tab or line end inside a cell would move what follows it.
        view.setTable(table);
        view.copy();
        EXPECT_EQ(clipboardLines(), linesOf(table, true)) << info.id;
        if (!table.explainsItsEmptiness()) {
            const QString html = QApplication::clipboard()->mimeData()->html();
            EXPECT_EQ(readHtml("<body>" + html.toUtf8() + "</body>"), linesOf(table)) << info.id;
        }
    }
    // Each of these stands in a cell of somebody's notes sooner or later.
    const present::Table awkward = awkwardTable();
    const Lines csv = readCsv(saved(awkward, "csv"));
    ASSERT_EQ(csv.size(), 5U);
    EXPECT_EQ(csv[1][0], "'=1+2");
    EXPECT_EQ(csv[1][1], "-0.5");
    EXPECT_EQ(csv[3][0], "two\nlines");
    EXPECT_EQ(readHtml(QByteArray::fromStdString(saved(awkward, "html"))), linesOf(awkward));
    const Lines rtf = readRtf(saved(awkward, "rtf"));
    ASSERT_EQ(rtf.size(), 5U);
    EXPECT_EQ(rtf[4], linesOf(awkward)[4]);
    view.setTable(awkward);
    view.copy();
    const Lines copied = clipboardLines();
    ASSERT_EQ(copied.size(), 5U);
    EXPECT_EQ(copied[2], (Line{"a b", "10"}));
    EXPECT_EQ(copied[3], (Line{"two lines", "9"}));
}

TEST_F(TableViewTest, SortingGoesByNumbersAndThroughCopiesAndFiles)
{
    PanelWidget* const panel = made(tablePanel("positions"));
    settle();
    auto* const view = find<TableView>("TableView", panel);
    const std::vector<std::string> given = column(*view, 0);
    clickHeading(*view, 0);
    const std::vector<std::string> ascending = column(*view, 0);
    EXPECT_EQ(ascending.front(), given.front()) << "points have an order of their own";
    // Degrees in signs are sorted by where they are, not by their letters.
    clickHeading(*view, 1);
    const auto keys = [&] {
        std::vector<double> found;
        for (const std::string& name : column(*view, 0)) {
            for (const present::Row& row : view->table().rows) {
                if (toQt(row[0].text).trimmed().toStdString() == name) {
                    found.push_back(row[1].sortKey.value_or(1e9));
                }
            }
        }
        return found;
    };
    std::vector<double> sorted = keys();
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end()));
    clickHeading(*view, 1);
    sorted = keys();
    EXPECT_TRUE(std::is_sorted(sorted.rbegin(), sorted.rend()));
    const std::vector<std::string> backwards = column(*view, 0);
    EXPECT_NE(backwards, given);

    // Chosen rows are copied in the order in which they stand.
    view->selectRow(0);
    view->selectionModel()->select(view->model()->index(2, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    Lines lines = clipboardLines();
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1][0], backwards[0]);
    EXPECT_EQ(lines[2][0], backwards[2]);

    // The file has what is seen.
    const QString file = home_.filePath(QStringLiteral("sorted.csv"));
    TMessages::prepare(file);
    for (QAction* const action : panel->panelActions()) {
        if (action->objectName() == QLatin1String("SaveTableAction")) {
            action->trigger();
        }
    }
    static_cast<void>(TMessages::takeShown());
    lines = readCsv(bytesOf(file));
    ASSERT_EQ(lines.size(), backwards.size() + 1);
    for (std::size_t i = 0; i < backwards.size(); ++i) {
        EXPECT_EQ(lines[i + 1][0], backwards[i]);
    }
    // Another chart is sorted the same way; the third click brings back the given order.
    ASSERT_TRUE(workspace().showLine(5));
    settle();
    sorted = keys();
    EXPECT_TRUE(std::is_sorted(sorted.rbegin(), sorted.rend()));
    clickHeading(*view, 1);
    EXPECT_EQ(column(*view, 0), given);
}

TEST_F(TableViewTest, ChosenColumnsAreShownCopiedSavedAndRemembered)
{
    PanelWidget* const panel = made(tablePanel("positions"));
    settle();
    auto* const view = find<TableView>("TableView", panel);
    const Lines whole = linesOf(view->table());
    ASSERT_GE(whole[0].size(), 4U);
    clickHeading(*view, 2);

    QTimer::singleShot(0, [&] {
        auto* const dialog = qobject_cast<TColumnsDlg*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        auto* const shown = find<QListWidget>("ShownList", dialog);
        auto* const available = find<QListWidget>("AvailableList", dialog);
        EXPECT_EQ(shown->count(), int(whole[0].size()));
        // The second goes, the first becomes the last.
        shown->setCurrentRow(1);
        find<QToolButton>("RemoveButton", dialog)->click();
        EXPECT_EQ(available->count(), 1);
        EXPECT_EQ(available->item(0)->text().toStdString(), whole[0][1]);
        shown->setCurrentRow(0);
        for (int i = 0; i + 1 < shown->count(); ++i) {
            find<QToolButton>("DownButton", dialog)->click();
        }
        EXPECT_FALSE(find<QToolButton>("DownButton", dialog)->isEnabled());
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    for (QAction* const action : panel->panelActions()) {
        if (action->objectName() == QLatin1String("ColumnsAction")) {
            action->trigger();
        }
    }
    settle();
    Lines expected;
    for (const Line& line : whole) {
        Line chosen(line.begin() + 2, line.end());
        chosen.push_back(line[0]);
        expected.push_back(chosen);
    }
    EXPECT_EQ(linesOf(view->table()), expected);
    expectFilesOf(view->table());
    delete panel;

    // The next run shows them so.
    const QString name = toQt(workspace().chart()->chart.name);
    openWindow();
    ASSERT_EQ(toQt(workspace().chart()->chart.name), name);
    PanelWidget* const again = made(tablePanel("positions"));
    settle();
    EXPECT_EQ(linesOf(find<TableView>("TableView", again)->table()), expected);
}

} // namespace
} // namespace kestrav::desktop
