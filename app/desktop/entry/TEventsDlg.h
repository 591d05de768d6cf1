// The events of the shown chart.
#pragma once

#include <QDialog>

class QDialogButtonBox;

namespace kestrav::desktop
{

class EventsTable;
class Workspace;

/// OK puts the events into the chart: into its line of the database as a step that can be undone,
/// or into the shown chart where it has no line.
class TEventsDlg : public QDialog
{
    Q_OBJECT

public:
    TEventsDlg(Workspace& workspace, QWidget* parent);

private:
    void OkButtonClick();

    Workspace& workspace_;
    EventsTable* table_;
    QDialogButtonBox* buttons_;
};

} // namespace kestrav::desktop
