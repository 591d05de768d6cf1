// Several short tables below each other, each as high as its rows.
#pragma once

#include "app/present/Table.h"

#include <QScrollArea>

#include <vector>

class QLabel;
class QVBoxLayout;

namespace kestrav::desktop
{

class TableView;

class TableStack : public QScrollArea
{
    Q_OBJECT

public:
    explicit TableStack(QWidget* parent = nullptr);

    /// Shows the tables under their titles, with their notes. Views are kept from one call to the
    /// next.
    void setTables(const std::vector<present::Table>& tables);

    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void linkChosen(const kestrav::present::Link& link);
    void linkActivated(const kestrav::present::Link& link);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Part
    {
        QLabel* title;
        TableView* view;
        QLabel* note;
    };

    Part addPart();
    static void fit(const Part& part);

    std::vector<Part> parts_;
    QVBoxLayout* layout_;
};

} // namespace kestrav::desktop
