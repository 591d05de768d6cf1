#include "app/desktop/printing/PaperTable.h"

#include "app/desktop/shell/Convert.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <numeric>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kColumnGap = 8.0;
constexpr double kSmallestPart = 0.5; // of the size of the letters
constexpr double kRuleWidth = 0.4;

struct CellText
{
    QString text;
    bool right = false;
};

class PaperTable
{
public:
    PaperTable(const present::Table& table, double width, const QFont& font)
        : table_(table), width_(width), font_(font)
    {
        fit();
    }

    std::vector<FlowItem> items()
    {
        std::vector<FlowItem> items;
        if (!table_.title.empty()) {
            items.push_back(line(toQt(table_.title), true));
        }
        std::shared_ptr<const std::vector<FlowItem>> heads;
        if (!table_.withoutHeadings() && !table_.explainsItsEmptiness()) {
            heads =
                std::make_shared<const std::vector<FlowItem>>(std::vector<FlowItem>{headings()});
            items.push_back(heads->front());
        }
        for (const present::Row& row : table_.rows) {
            for (FlowItem& part : rowItems(row)) {
                part.repeated = heads;
                part.columnWidth = wraps_ ? 0.0 : rowWidth();
                part.cut = cut_;
                items.push_back(std::move(part));
            }
        }
        for (const std::wstring& note : table_.notes) {
            for (const QString& part : wrapped(toQt(note), width_ / part_)) {
                items.push_back(line(part, false));
            }
        }
        return items;
    }

private:
    [[nodiscard]] double naturalWidth(std::size_t column, const QFontMetricsF& metrics) const
    {
        QFont bold = font_;
        bold.setBold(true);
        double widest =
            QFontMetricsF(bold).horizontalAdvance(toQt(table_.columns[column].heading).trimmed());
        for (const present::Row& row : table_.rows) {
            if (column < row.size()) {
                widest =
                    std::max(widest, metrics.horizontalAdvance(toQt(row[column].text).trimmed()));
            }
        }
        // What is measured in parts of a point is broken in whole ones.
        return widest + 1.0;
    }

    [[nodiscard]] double columnsAndGaps() const
    {
        return std::accumulate(widths_.begin(), widths_.end(), 0.0) +
               kColumnGap * std::max(0.0, double(widths_.size()) - 1.0);
    }

    // Of a row as it is painted.
    [[nodiscard]] double rowWidth() const
    {
        return columnsAndGaps() * part_;
    }

    // Makes the columns, and the part of its size at which the table is no wider than its room.
    void fit()
    {
        const QFontMetricsF metrics(font_);
        for (std::size_t i = 0; i < table_.columns.size(); ++i) {
            widths_.push_back(naturalWidth(i, metrics));
        }
        wraps_ = !table_.columns.empty() && table_.columns.back().align == present::Align::Wrapped;
        if (wraps_ && columnsAndGaps() > width_) {
            const double others = columnsAndGaps() - widths_.back();
            widths_.back() = std::max(width_ - others, width_ / 3.0);
        }
        if (columnsAndGaps() <= width_) {
            return;
        }
        part_ = std::max(kSmallestPart, width_ / columnsAndGaps());
        const double room = width_ / part_;
        cut_ = columnsAndGaps() > room + 1.0;
        if (cut_) {
            const double gaps = kColumnGap * (double(widths_.size()) - 1.0);
            const double shrink = (room - gaps) / (columnsAndGaps() - gaps);
            for (double& columnWidth : widths_) {
                columnWidth *= std::max(0.0, shrink);
            }
        }
    }

    [[nodiscard]] double height() const
    {
        return QFontMetricsF(font_).height() * 1.08;
    }

    [[nodiscard]] QStringList wrapped(const QString& text, double room) const
    {
        QStringList parts;
        QTextLayout layout(text, font_);
        layout.beginLayout();
        for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
            part.setLineWidth(room);
            parts += text.mid(part.textStart(), part.textLength()).trimmed();
        }
        layout.endLayout();
        return parts.isEmpty() ? QStringList{QString()} : parts;
    }

    [[nodiscard]] FlowItem line(const QString& text, bool bold) const
    {
        QFont font = font_;
        font.setBold(bold);
        FlowItem item;
        item.height = height() * (bold ? 1.2 : 1.0);
        item.withNext = bold;
        item.paint = [text, font](QPainter& painter) {
            painter.setFont(font);
            painter.setPen(Qt::black);
            painter.drawText(QPointF(0.0, QFontMetricsF(font).ascent()), text);
        };
        // A scale, since fonts have whole sizes only.
        return scaledItem(std::move(item), part_);
    }

    [[nodiscard]] FlowItem textRow(std::vector<CellText> cells, bool heading) const
    {
        QFont font = font_;
        font.setBold(heading);
        FlowItem item;
        item.height = height() * (heading ? 1.15 : 1.0);
        item.withNext = heading;
        item.paint = [cells = std::move(cells), widths = widths_, font, heading,
                      below = item.height](QPainter& painter) {
            const QFontMetricsF metrics(font);
            painter.setFont(font);
            painter.setPen(Qt::black);
            double x = 0.0;
            for (std::size_t i = 0; i < cells.size() && i < widths.size(); ++i) {
                const QString text =
                    metrics.elidedText(cells[i].text, Qt::ElideRight, widths[i] + kColumnGap - 1.0);
                const double advance = metrics.horizontalAdvance(text);
                const double left = cells[i].right ? std::max(0.0, widths[i] - advance) : 0.0;
                painter.drawText(QPointF(x + left, metrics.ascent()), text);
                x += widths[i] + kColumnGap;
            }
            if (heading) {
                painter.setPen(QPen(Qt::darkGray, kRuleWidth));
                painter.drawLine(QPointF(0.0, below - 1.0), QPointF(x - kColumnGap, below - 1.0));
            }
        };
        return scaledItem(std::move(item), part_);
    }

    [[nodiscard]] FlowItem headings() const
    {
        std::vector<CellText> cells;
        for (const present::Column& column : table_.columns) {
            cells.push_back(
                {toQt(column.heading).trimmed(), column.align == present::Align::Right});
        }
        return textRow(std::move(cells), true);
    }

    [[nodiscard]] std::vector<FlowItem> rowItems(const present::Row& row) const
    {
        std::vector<CellText> cells;
        for (std::size_t i = 0; i < row.size() && i < table_.columns.size(); ++i) {
            cells.push_back(
                {toQt(row[i].text).trimmed(), table_.columns[i].align == present::Align::Right});
        }
        if (!wraps_ || cells.size() < table_.columns.size()) {
            return {textRow(std::move(cells), false)};
        }
        const QStringList parts = wrapped(cells.back().text, widths_.back());
        std::vector<FlowItem> items;
        for (const QString& part : parts) {
            cells.back().text = part;
            items.push_back(textRow(cells, false));
            for (CellText& cell : cells) {
                cell.text.clear();
            }
        }
        return items;
    }

    const present::Table& table_;
    double width_;
    QFont font_;
    std::vector<double> widths_;
    double part_ = 1.0; ///< of the natural size
    bool wraps_ = false;
    bool cut_ = false; ///< too wide even for the smallest letters
};

} // namespace

std::vector<FlowItem> tableItems(const present::Table& table, double width, const QFont& font)
{
    return PaperTable(table, width, font).items();
}

} // namespace kestrav::desktop
