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
constexpr double kBetweenCells = 12.0; // on the sheets behind the first
constexpr double kColumnsGap = 24.0;   // between columns of a long table
constexpr double kLeastPart = 0.8;     // of the size of the letters in such columns
constexpr double kRoundingError = 0.01;

QString tr(const char* text)
{
    return QCoreApplication::translate("PaperLayout", text);
}

// The blocks of a cell; a title that says the same as the caption is left out.
std::vector<present::Block> contentsOf(const PaperCell& cell)
{
    std::vector<present::Block> blocks = cell.blocks;
    for (present::Block& block : blocks) {
        auto* const table = std::get_if<present::Table>(&block);
        if (table != nullptr && table->title == cell.caption) {
            table->title.clear();
        }
    }
    return blocks;
}

bool onlyDrawings(const std::vector<present::Block>& blocks,
                  std::vector<present::Drawing>& drawings)
{
    for (const present::Block& block : blocks) {
        const auto* const row = std::get_if<present::DrawingRow>(&block);
        if (row == nullptr) {
            return false;
        }
        drawings.insert(drawings.end(), row->drawings.begin(), row->drawings.end());
    }
    return true;
}

FlowItem moreItem(const QFont& font, double width)
{
    const QFont small = paperFont(font, kFootPoints);
    const QFontMetricsF metrics(small);
    FlowItem item;
    item.height = metrics.height();
    item.paint = [small, ascent = metrics.ascent(),
                  words = metrics.elidedText(tr("In full on the next sheets"), Qt::ElideRight,
                                             width)](QPainter& painter) {
        painter.setFont(small);
        painter.setPen(Qt::darkGray);
        painter.drawText(QPointF(0.0, ascent), words);
    };
    return item;
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
    // A page of one cell is no different from a report.
    if (document.cells.size() == 1) {
        const PaperCell& only = document.cells.front();
        if (only.blocks.empty() || !std::holds_alternative<present::Heading>(only.blocks.front())) {
            left.push_back(headingItem(only.caption, paper_.width(), font_));
        }
        std::vector<FlowItem> items = flowItems(contentsOf(only), paper_.width(), font_);
        left.insert(left.end(), std::make_move_iterator(items.begin()),
                    std::make_move_iterator(items.end()));
        return;
    }
    const double height = bottom_ - top_;
    for (const PaperCell& cell : document.cells) {
        layOutCell(cell,
                   {cell.share.x() * paper_.width(), top_ + cell.share.y() * height,
                    cell.share.width() * paper_.width(), cell.share.height() * height},
                   left);
    }
    if (!left.empty()) {
        left.front().breakBefore = true;
    }
}

void PaperLayout::layOutCell(const PaperCell& cell, const QRectF& frame,
                             std::vector<FlowItem>& left)
{
    Sheet& sheet = sheets_.front();
    sheet.frames.push_back({frame});
    const QRectF room = frame.adjusted(kCellMargin, kCellMargin, -kCellMargin, -kCellMargin);
    double y = room.top();
    const auto place = [&](FlowItem item) {
        const double height = item.height;
        sheet.pieces.push_back({room.left(), y, std::move(item)});
        y += height;
    };
    place(headingItem(cell.caption, room.width(), font_));
    std::vector<present::Drawing> drawings;
    if (onlyDrawings(cell.blocks, drawings)) {
        if (!drawings.empty()) {
            place(drawingsItem(drawings, {room.width(), room.bottom() - y}, font_));
        }
        return;
    }
    const std::vector<present::Block> blocks = contentsOf(cell);
    std::vector<FlowItem> items = flowItems(blocks, room.width(), font_);
    double needed = 0.0;
    bool whole = true;
    for (const FlowItem& item : items) {
        needed += item.height;
        whole = whole && !item.cut;
    }
    whole = whole && y + needed <= room.bottom() + kRoundingError;
    FlowItem note = moreItem(font_, room.width());
    const double end = room.bottom() - (whole ? 0.0 : note.height);
    for (std::size_t next = 0; next < items.size(); ++next) {
        double together = items[next].height;
        bool cut = items[next].cut;
        for (std::size_t j = next; items[j].withNext && j + 1 < items.size(); ++j) {
            together += items[j + 1].height;
            cut = cut || items[j + 1].cut;
        }
        if (cut || y + together > end + kRoundingError) {
            break;
        }
        place(std::move(items[next]));
    }
    if (!whole) {
        y = end;
        place(std::move(note));
        // All of it is laid out anew for the width of the sheet.
        std::vector<FlowItem> rest = flowItems(blocks, paper_.width(), font_);
        if (!left.empty()) {
            left.push_back({kBetweenCells, [](QPainter&) {
                            }});
        }
        left.push_back(headingItem(cell.caption, paper_.width(), font_));
        left.insert(left.end(), std::make_move_iterator(rest.begin()),
                    std::make_move_iterator(rest.end()));
    }
}

void PaperLayout::newSheet()
{
    sheets_.emplace_back();
    y_ = top_;
    fresh_ = true;
}

void PaperLayout::layOutFlow(const std::vector<FlowItem>& items)
{
    y_ = top_;
    fresh_ = sheets_.back().pieces.empty();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const FlowItem& item = items[i];
        if (item.columnWidth > 0.0 && item.repeated &&
            (i == 0 || items[i - 1].repeated != item.repeated)) {
            std::size_t end = i;
            while (end < items.size() && items[end].repeated == item.repeated) {
                ++end;
            }
            if (layOutColumns(items, i, end)) {
                i = end - 1;
                continue;
            }
        }
        // A heading needs room for what follows it as well.
        double needed = item.height;
        for (std::size_t j = i; items[j].withNext && j + 1 < items.size(); ++j) {
            needed += items[j + 1].height;
        }
        const bool full = y_ + needed > bottom_ && !fresh_;
        if ((item.breakBefore && !fresh_) || full) {
            newSheet();
            if (item.repeated) {
                for (const FlowItem& head : *item.repeated) {
                    sheets_.back().pieces.push_back({0.0, y_, head});
                    y_ += head.height;
                }
            }
        }
        sheets_.back().pieces.push_back({0.0, y_, item});
        y_ += item.height;
        fresh_ = false;
    }
}

// The rows of a long narrow table in columns as of a newspaper, which on the last sheet are of one
// height. False when the table is short or too wide for two columns.
bool PaperLayout::layOutColumns(const std::vector<FlowItem>& items, std::size_t first,
                                std::size_t end)
{
    const FlowItem& row = items[first];
    if (y_ + double(end - first) * row.height <= bottom_) {
        return false;
    }
    const double half = (paper_.width() - kColumnsGap) / 2.0;
    const double part = std::min(1.0, half / row.columnWidth);
    if (part < kLeastPart) {
        return false;
    }
    const double width = row.columnWidth * part;
    const auto columns = std::size_t((paper_.width() + kColumnsGap) / (width + kColumnsGap) + 1e-9);
    const double height = row.height * part;
    double heads = 0.0;
    for (const FlowItem& head : *row.repeated) {
        heads += head.height * part;
    }
    const auto place = [&](const FlowItem& item, double x, double y) {
        sheets_.back().pieces.push_back({x, y, scaledItem(item, part)});
        return y + item.height * part;
    };
    // The headings of the flow stand where those of the first column do.
    double natural = 0.0;
    for (std::size_t i = 0; i < row.repeated->size(); ++i) {
        natural += sheets_.back().pieces.back().item.height;
        sheets_.back().pieces.pop_back();
    }
    y_ += heads - natural;
    for (std::size_t next = first; next < end;) {
        const std::size_t rest = end - next;
        const auto fitting = std::size_t(std::max(1.0, (bottom_ - y_) / height));
        const std::size_t high = std::min(fitting, (rest + columns - 1) / columns);
        for (std::size_t column = 0; column < columns && next < end; ++column) {
            const double x = double(column) * (width + kColumnsGap);
            double y = y_ - heads;
            for (const FlowItem& head : *row.repeated) {
                y = place(head, x, y);
            }
            for (std::size_t line = 0; line < high && next < end; ++line, ++next) {
                y = place(items[next], x, y);
            }
        }
        y_ += double(high) * height;
        fresh_ = false;
        if (next < end) {
            newSheet();
            y_ += heads;
        }
    }
    return true;
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
