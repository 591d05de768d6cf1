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
        const double room = width_ / double(row.drawings.size());
        const double side = std::min(room - kGap, kLargestDrawing);
        push({side + kGap, [row, room, side, font = font_](QPainter& painter) {
                  for (std::size_t i = 0; i < row.drawings.size(); ++i) {
                      const present::DisplayList& list = row.drawings[i].list;
                      if (list.width <= 0.0) {
                          continue;
                      }
                      painter.save();
                      painter.translate(room * double(i) + (room - side) / 2.0, 0.0);
                      painter.scale(side / list.width, side / list.width);
                      paintDisplayList(painter, list, font);
                      painter.restore();
                  }
              }});
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

FlowItem headingItem(const std::wstring& text, double width, const QFont& font)
{
    QFont bold = paperFont(font, kHeadingPoints);
    bold.setBold(true);
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
