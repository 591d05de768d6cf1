// What stands in the place of the research table while there is nothing to show.
#pragma once

#include "data/ChartDatabase.h"
#include "data/ResearchDatabase.h"

#include <QWidget>

class QAction;
class QLabel;
class QPushButton;

namespace kestrav::desktop
{

/// Says what a research database is good for, and makes one by a button.
class ResearchPurpose : public QWidget
{
    Q_OBJECT

public:
    /// `make` makes the research database.
    ResearchPurpose(QAction* make, QWidget* parent);

    /// `why` says why there is none; the button is offered where one can be made of the charts.
    void show(const QString& why, const data::ChartDatabase& charts, data::ResearchState state);

private:
    QLabel* why_;
    QLabel* text_;
    QPushButton* make_;
};

} // namespace kestrav::desktop
