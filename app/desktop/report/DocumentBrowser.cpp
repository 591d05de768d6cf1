#include "app/desktop/report/DocumentBrowser.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"

#include <QImage>
#include <QPainter>
#include <QTextBrowser>
#include <QUrl>

#include <algorithm>
#include <cmath>
#include <variant>

namespace kestrav::desktop
{

namespace
{

// Drawings are made for paper; on the screen two of them stand side by side, smaller where there is
// little room.
constexpr double kShownPart = 0.75;
constexpr double kLeastPart = 0.55;
constexpr double kBesideDrawing = 6.0; // pixels

QString escaped(const std::wstring& text)
{
    return toQt(text).trimmed().toHtmlEscaped();
}

class BrowserHtml
{
public:
    explicit BrowserHtml(QTextBrowser& browser) : browser_(browser)
    {}

    QString write(const present::Document& document)
    {
        if (!document.title.empty()) {
            html_ += QStringLiteral("<h1>%1</h1>").arg(escaped(document.title));
        }
        for (const std::wstring& line : document.head) {
            html_ += escaped(line) + QStringLiteral("<br>");
        }
        for (const present::Block& block : document.blocks) {
            std::visit([this](const auto& part) { add(part); }, block);
        }
        return html_;
    }

private:
    void add(const present::Heading& heading)
    {
        html_ += QStringLiteral("<h2>%1</h2>").arg(escaped(heading.text));
    }

    void add(const present::Paragraph& paragraph)
    {
        const QString text = toQt(paragraph.text).toHtmlEscaped();
        html_ += paragraph.fixedPitch
                     ? QStringLiteral("<pre>%1</pre>").arg(text)
                     : QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>").arg(text);
    }

    void add(const present::Table& table)
    {
        if (!table.title.empty()) {
            html_ += QStringLiteral("<h3>%1</h3>").arg(escaped(table.title));
        }
        if (!table.explainsItsEmptiness()) {
            html_ += QStringLiteral("<table cellspacing=\"0\" cellpadding=\"2\">");
            if (!table.withoutHeadings()) {
                html_ += QStringLiteral("<tr>");
                for (const present::Column& column : table.columns) {
                    cell(QStringLiteral("th"), column.heading, column.align);
                }
                html_ += QStringLiteral("</tr>");
            }
            for (const present::Row& row : table.rows) {
                html_ += QStringLiteral("<tr>");
                for (std::size_t i = 0; i < row.size() && i < table.columns.size(); ++i) {
                    cell(QStringLiteral("td"), row[i].text, table.columns[i].align);
                }
                html_ += QStringLiteral("</tr>");
            }
            html_ += QStringLiteral("</table>");
        }
        for (const std::wstring& note : table.notes) {
            html_ += QStringLiteral("<p>%1</p>").arg(escaped(note));
        }
    }

    void cell(const QString& tag, const std::wstring& text, present::Align align)
    {
        html_ += QStringLiteral("<%1 align=\"%2\">%3&nbsp;&nbsp;</%1>")
                     .arg(tag,
                          align == present::Align::Right ? QStringLiteral("right")
                                                         : QStringLiteral("left"),
                          escaped(text));
    }

    void add(const present::DrawingRow& row)
    {
        double across = 0.0;
        double widest = 1.0;
        for (const present::Drawing& drawing : row.drawings) {
            across += drawing.list.width;
            widest = std::max(widest, drawing.list.width);
        }
        const double room = browser_.viewport()->width() -
                            2.0 * browser_.document()->documentMargin() -
                            kBesideDrawing * double(row.drawings.size());
        const double fitting = std::min(kShownPart, room / std::max(1.0, across));
        const bool sideBySide = fitting >= kLeastPart;
        const double part = sideBySide ? fitting : std::min(kShownPart, room / widest);
        html_ += QStringLiteral("<table cellspacing=\"0\" cellpadding=\"2\"><tr>");
        for (const present::Drawing& drawing : row.drawings) {
            const double ratio = browser_.devicePixelRatioF();
            // Drawn as large as it is shown: the browser would shrink it to jagged lines.
            const QSize shown(int(drawing.list.width * part), int(drawing.list.height * part));
            const QSize pixels(int(std::ceil(shown.width() * ratio)),
                               int(std::ceil(shown.height() * ratio)));
            if (pixels.isEmpty()) {
                continue;
            }
            QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            painter.scale(shown.width() / drawing.list.width, shown.height() / drawing.list.height);
            present::DisplayList list = drawing.list;
            list.scheme = isDark() ? present::ColourScheme::Dark : present::ColourScheme::Light;
            paintDisplayList(painter, list, browser_.font());
            painter.end();
            const QString name = QStringLiteral("drawing%1").arg(++drawings_);
            browser_.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
            html_ += QStringLiteral("<td align=\"left\">%1<img src=\"%2\" width=\"%3\" "
                                    "height=\"%4\"></td>%5")
                         .arg(row.drawings.size() > 1
                                  ? escaped(drawing.list.title) + QStringLiteral("<br>")
                                  : QString(),
                              name)
                         .arg(shown.width())
                         .arg(shown.height())
                         .arg(sideBySide ? QString() : QStringLiteral("</tr><tr>"));
        }
        html_ += QStringLiteral("</tr></table>");
    }

    void add(const present::PageBreak& /*pageBreak*/)
    {
        html_ += QStringLiteral("<hr>");
    }

    QTextBrowser& browser_;
    QString html_;
    int drawings_ = 0;
};

} // namespace

QString documentForBrowser(const present::Document& document, QTextBrowser& browser)
{
    return BrowserHtml(browser).write(document);
}

} // namespace kestrav::desktop
