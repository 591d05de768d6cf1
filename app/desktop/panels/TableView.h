// A view of one table of the presentation, with sorting, copying and links.
#pragma once

#include "app/present/Table.h"

#include <QTableView>

namespace kestrav::desktop
{

class TableModel;

/// Shows a table. A click on a heading sorts, once more backwards, a third time in the order given.
/// Ctrl+C copies the selected rows, or all, as columns for spreadsheets and as HTML.
class TableView : public QTableView
{
    Q_OBJECT

public:
    explicit TableView(QWidget* parent = nullptr);

    void setTable(present::Table given);
    [[nodiscard]] const present::Table& table() const;
    /// The table with its rows in the order in which they are seen.
    [[nodiscard]] present::Table shownTable() const;
    /// Puts what is selected, or everything, into the clipboard.
    void copy() const;
    /// Makes columns as wide as what they hold.
    void fitColumns();

signals:
    /// A cell that leads somewhere was chosen.
    void linkChosen(const present::Link& link);
    /// The same by double click or Enter.
    void linkActivated(const present::Link& link);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void changeEvent(QEvent* event) override;

private:
    TableModel* model_;
};

} // namespace kestrav::desktop
