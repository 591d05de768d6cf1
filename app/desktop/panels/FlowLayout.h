// Controls side by side, in as many rows as they need.
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace kestrav::desktop
{

/// Lays its items out like words of a text: beside each other while there is room, the others in
/// further rows. What can grow takes the room that is left in its row. So a row of controls over a
/// table asks for no more width than its widest control.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(int gap);
    ~FlowLayout() override;

    /// Items that stay beside each other, such as a label and its field.
    void addTogether(std::initializer_list<QWidget*> widgets);
    /// The items that follow stand at the end of their row.
    void addStretch();

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& area) override;

private:
    struct Placed
    {
        QLayoutItem* item = nullptr;
        int width = 0;
    };
    struct Row
    {
        std::vector<Placed> items;
        int width = 0; ///< of the items and the gaps between them, before they grow
        int height = 0;
    };

    [[nodiscard]] std::vector<Row> rowsWithin(int width) const;
    static void fill(Row& row, int width);
    void place(const Row& row, const QRect& area) const;
    [[nodiscard]] int heightOf(const std::vector<Row>& rows) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
    int placed_ = 0; ///< the width that it was given last
};

} // namespace kestrav::desktop
