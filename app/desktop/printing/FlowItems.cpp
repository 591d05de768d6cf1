#include "app/desktop/printing/FlowItems.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/printing/PaperTable.h"
#include "app/desktop/shell/Convert.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <utility>
#include <variant>

namespace kestrav::desktop
{

namespace
{

constexpr double kTextPoints = 8.5;
constexpr double kHeadingPoints = 12.0;
constexpr double kGap = 6.0;              // between two blocks
constexpr double kLargestDrawing = 255.0; // about nine centimetres
constexpr double kWideDrawing = 1.5;      // times as wide as high: it takes the whole width
constexpr double kTitlePoints = 7.0;      // above one of several drawings
constexpr double kSmallestHeading = 8.0;

class FlowMaker
{
public:
    FlowMaker(double width, const QFont& font) : width_(width), font_(font)
    {}

    std::vector<FlowItem> make(const std::vector<present::Block>& blocks)
    {
        for (const present::Block& block : blocks) {
            std::visit([this](const auto& part) { add(part); }, block);
        }
        return std::move(items_);
    }

private:
    void push(FlowItem item)
    {
        item.breakBefore = std::exchange(break_, false);
        items_.push_back(std::move(item));
    }

    void gap()
    {
        if (!items_.empty() && !break_) {
            push({kGap, [](QPainter&) {
                  }});
        }
    }

    void add(const present::Heading& heading)
    {
        gap();
        push(headingItem(heading.text, width_, font_));
    }

    void add(const present::Paragraph& paragraph)
    {
        gap();
        QFont font = paperFont(font_, kTextPoints);
        if (paragraph.fixedPitch) {
            font.setFamily(QStringLiteral("DejaVu Sans Mono"));
        }
        for (const QString& line : toQt(paragraph.text).split(QLatin1Char('\n'))) {
            addLine(line, font);
        }
    }

    // A line of the text, broken between words where it is wider than the column.
    void addLine(const QString& text, const QFont& font)
    {
        const QFontMetricsF metrics(font);
        if (text.isEmpty()) {
            push({metrics.height(), [](QPainter&) {
                  }});
            return;
        }
        QTextLayout layout(text, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width_);
            const QString part = text.mid(line.textStart(), line.textLength());
            push({metrics.height(), [part, font, ascent = metrics.ascent()](QPainter& painter) {
                      painter.setFont(font);
                      painter.setPen(Qt::black);
                      painter.drawText(QPointF(0.0, ascent), part);
                  }});
        }
        layout.endLayout();
    }

    void add(const present::Table& table)
    {
        gap();
        for (FlowItem& item : tableItems(table, width_, paperFont(font_, kTextPoints))) {
            push(std::move(item));
        }
    }

    void add(const present::DrawingRow& row)
    {
        gap();
        if (row.drawings.empty()) {
            return;
        }
        const auto wide = [](const present::Drawing& drawing) {
            return drawing.list.width > kWideDrawing * drawing.list.height;
        };
        const auto count = double(row.drawings.size());
        const double most = std::any_of(row.drawings.begin(), row.drawings.end(), wide)
                                ? width_
                                : count * (kLargestDrawing + kGap);
        FlowItem item = drawingsItem(row.drawings, {std::min(width_, most), width_}, font_);
        item.height += kGap;
        if (most < width_) {
            item.paint = [paint = std::move(item.paint),
                          left = (width_ - most) / 2.0](QPainter& painter) {
                painter.translate(left, 0.0);
                paint(painter);
            };
        }
        push(std::move(item));
    }

    void add(const present::PageBreak& /*pageBreak*/)
    {
        break_ = !items_.empty();
    }

    double width_;
    QFont font_;
    std::vector<FlowItem> items_;
    bool break_ = false;
};

} // namespace

QFont paperFont(const QFont& font, double points)
{
    // The painter counts in points, so a pixel of the font is a point of the paper.
    QFont made = font;
    made.setPixelSize(std::max(1, int(points + 0.5)));
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

FlowItem drawingsItem(const std::vector<present::Drawing>& drawings, QSizeF room, const QFont& font)
{
    const QFont small = paperFont(font, kTitlePoints);
    const double words = drawings.size() > 1 ? QFontMetricsF(small).height() : 0.0;
    double width = 1.0;
    double height = 1.0;
    for (const present::Drawing& drawing : drawings) {
        width = std::max(width, drawing.list.width);
        height = std::max(height, drawing.list.height);
    }
    double scale = 0.0;
    int columns = 1;
    const int count = int(drawings.size());
    for (int tried = 1; tried <= count; ++tried) {
        const int rows = (count + tried - 1) / tried;
        const double fits = std::min(((room.width() + kGap) / tried - kGap) / width,
                                     ((room.height() + kGap) / rows - kGap - words) / height);
        if (fits > scale) {
            scale = fits;
            columns = tried;
        }
    }
    const int rows = (count + columns - 1) / columns;
    const double across = width * scale + kGap;
    const double down = words + height * scale + kGap;
    FlowItem item;
    item.height = std::max(0.0, rows * down - kGap);
    const double left = std::max(0.0, (room.width() - (columns * across - kGap)) / 2.0);
    item.paint = [drawings, small, words, scale, columns, across, down, left, width,
                  font](QPainter& painter) {
        const QFontMetricsF metrics(small);
        for (std::size_t i = 0; i < drawings.size(); ++i) {
            const present::DisplayList& list = drawings[i].list;
            if (list.width <= 0.0 || scale <= 0.0) {
                continue;
            }
            painter.save();
            painter.translate(left + across * double(i % std::size_t(columns)),
                              down * double(i / std::size_t(columns)));
            if (words > 0.0) {
                const QString title =
                    metrics.elidedText(toQt(list.title), Qt::ElideRight, width * scale);
                painter.setFont(small);
                painter.setPen(Qt::black);
                painter.drawText(QPointF((width * scale - metrics.horizontalAdvance(title)) / 2.0,
                                         metrics.ascent()),
                                 title);
                painter.translate(0.0, words);
            }
            painter.scale(scale, scale);
            paintDisplayList(painter, list, font);
            painter.restore();
        }
    };
    return item;
}

FlowItem scaledItem(FlowItem item, double part)
{
    if (part < 1.0) {
        item.height *= part;
        item.paint = [paint = std::move(item.paint), part](QPainter& painter) {
            painter.save();
            painter.scale(part, part);
            paint(painter);
            painter.restore();
        };
    }
    return item;
}

FlowItem headingItem(const std::wstring& text, double width, const QFont& font)
{
    QFont bold = paperFont(font, kHeadingPoints);
    bold.setBold(true);
    for (double points = kHeadingPoints - 1.0;
         points >= kSmallestHeading && QFontMetricsF(bold).horizontalAdvance(toQt(text)) > width;
         points -= 1.0) {
        bold = paperFont(bold, points);
    }
    const QFontMetricsF metrics(bold);
    const QString shown = metrics.elidedText(toQt(text), Qt::ElideRight, width);
    FlowItem item;
    item.height = metrics.height() + kGap / 2.0;
    item.withNext = true;
    item.paint = [shown, bold, ascent = metrics.ascent()](QPainter& painter) {
        painter.setFont(bold);
        painter.setPen(Qt::black);
        painter.drawText(QPointF(0.0, ascent), shown);
    };
    return item;
}

std::vector<FlowItem> flowItems(const std::vector<present::Block>& blocks, double width,
                                const QFont& font)
{
    return FlowMaker(width, font).make(blocks);
}

} // namespace kestrav::desktop
