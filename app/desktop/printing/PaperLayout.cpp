#include "app/desktop/printing/PaperLayout.h"

#include "app/desktop/shell/Convert.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kTitlePoints = 15.0;
constexpr double kHeadPoints = 8.0;
constexpr double kFootPoints = 7.0;
constexpr double kCellMargin = 5.0;
constexpr double kFrameWidth = 0.5;

QString tr(const char* text)
{
    return QCoreApplication::translate("PaperLayout", text);
}

} // namespace

PaperLayout::PaperLayout(const PaperDocument& document, QSizeF paper, const QFont& font)
    : paper_(paper), font_(font)
{
    foot_ = toQt(document.title);
    bottom_ = paper_.height() - kFootPoints * 2.0;
    layOutHead(document);
    sheets_.emplace_back();
    std::vector<FlowItem> left;
    layOutCells(document, left);
    std::vector<FlowItem> flow = flowItems(document.flow, paper_.width(), font_);
    if (!document.cells.empty() && !left.empty()) {
        left.front().breakBefore = true;
    }
    left.insert(left.end(), std::make_move_iterator(flow.begin()),
                std::make_move_iterator(flow.end()));
    layOutFlow(left);
}

void PaperLayout::layOutHead(const PaperDocument& document)
{
    const auto add = [this](const std::wstring& text, double points, bool bold) {
        QFont font = paperFont(font_, points);
        font.setBold(bold);
        const QFontMetricsF metrics(font);
        const QString shown = metrics.elidedText(toQt(text), Qt::ElideRight, paper_.width());
        FlowItem item;
        item.height = metrics.height();
        item.paint = [shown, font, ascent = metrics.ascent()](QPainter& painter) {
            painter.setFont(font);
            painter.setPen(Qt::black);
            painter.drawText(QPointF(0.0, ascent), shown);
        };
        top_ += item.height;
        head_.push_back({0.0, top_ - item.height, std::move(item)});
    };
    if (!document.title.empty()) {
        add(document.title, kTitlePoints, true);
    }
    for (const std::wstring& line : document.head) {
        add(line, kHeadPoints, false);
    }
    top_ += kHeadPoints;
}

void PaperLayout::layOutCells(const PaperDocument& document, std::vector<FlowItem>& left)
{
    const double height = bottom_ - top_;
    for (const PaperCell& cell : document.cells) {
        const QRectF frame(cell.share.x() * paper_.width(), top_ + cell.share.y() * height,
                           cell.share.width() * paper_.width(), cell.share.height() * height);
        sheets_.front().frames.push_back({frame});
        const QRectF room = frame.adjusted(kCellMargin, kCellMargin, -kCellMargin, -kCellMargin);
        FlowItem caption = headingItem(cell.caption, room.width(), paperFont(font_, kHeadPoints));
        double y = room.top();
        const double captionHeight = caption.height;
        sheets_.front().pieces.push_back({room.left(), y, std::move(caption)});
        y += captionHeight;
        std::vector<FlowItem> items = flowItems(cell.blocks, room.width(), font_);
        const bool drawing = cell.blocks.size() == 1 &&
                             std::holds_alternative<present::DrawingRow>(cell.blocks.front());
        std::size_t next = 0;
        for (; next < items.size(); ++next) {
            FlowItem& item = items[next];
            double factor = 1.0;
            if (drawing && y + item.height > room.bottom()) {
                factor = (room.bottom() - y) / item.height;
            }
            if (factor <= 0.0 || y + item.height * factor > room.bottom() + 0.01) {
                break;
            }
            if (factor < 1.0) {
                item.paint = [paint = item.paint, factor, width = room.width()](QPainter& painter) {
                    painter.translate(width * (1.0 - factor) / 2.0, 0.0);
                    painter.scale(factor, factor);
                    paint(painter);
                };
            }
            const double itemHeight = item.height * factor;
            sheets_.front().pieces.push_back({room.left(), y, std::move(item)});
            y += itemHeight;
        }
        if (next < items.size()) {
            // The rest is laid out anew for the width of the sheet.
            std::vector<FlowItem> rest = flowItems(cell.blocks, paper_.width(), font_);
            left.push_back(headingItem(cell.caption, paper_.width(), font_));
            left.insert(left.end(), std::make_move_iterator(rest.begin()),
                        std::make_move_iterator(rest.end()));
        }
    }
}

void PaperLayout::layOutFlow(const std::vector<FlowItem>& items)
{
    double y = top_;
    bool fresh = sheets_.back().pieces.empty();
    const auto newSheet = [&] {
        sheets_.emplace_back();
        y = top_;
        fresh = true;
    };
    for (std::size_t i = 0; i < items.size(); ++i) {
        const FlowItem& item = items[i];
        // A heading needs room for what follows it as well.
        double needed = item.height;
        for (std::size_t j = i; items[j].withNext && j + 1 < items.size(); ++j) {
            needed += items[j + 1].height;
        }
        const bool full = y + needed > bottom_ && !fresh;
        if ((item.breakBefore && !fresh) || full) {
            newSheet();
            if (item.repeated) {
                for (const FlowItem& head : *item.repeated) {
                    sheets_.back().pieces.push_back({0.0, y, head});
                    y += head.height;
                }
            }
        }
        sheets_.back().pieces.push_back({0.0, y, item});
        y += item.height;
        fresh = false;
    }
}

void PaperLayout::paint(QPainter& painter, int sheet) const
{
    const auto paintAll = [&painter](const std::vector<Placed>& pieces) {
        for (const Placed& piece : pieces) {
            painter.save();
            painter.translate(piece.x, piece.y);
            piece.item.paint(painter);
            painter.restore();
        }
    };
    paintAll(head_);
    const Sheet& shown = sheets_[std::size_t(sheet)];
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::lightGray, kFrameWidth));
    for (const Rule& frame : shown.frames) {
        painter.drawRect(frame.rectangle);
    }
    paintAll(shown.pieces);
    const QFont font = paperFont(font_, kFootPoints);
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    const double y = paper_.height() - metrics.descent();
    painter.drawText(QPointF(0.0, y), foot_ + QStringLiteral("   Kestrav " KESTRAV_VERSION));
    const QString number = tr("Page %1 of %2").arg(sheet + 1).arg(sheets());
    painter.drawText(QPointF(paper_.width() - metrics.horizontalAdvance(number), y), number);
}

} // namespace kestrav::desktop
