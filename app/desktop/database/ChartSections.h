// What stands below the chart list: the chart of now, the charts opened last, the recent files.
#pragma once

#include <QString>
#include <QTreeWidget>

#include <string>
#include <vector>

namespace kestrav::desktop
{

class Workspace;

/// Enter or a click as the desktop has it opens an entry.
class ChartSections : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ChartSections(Workspace& workspace, QWidget* parent = nullptr);

    /// Puts the shown chart, which must stand in the database, first among the opened ones.
    void noteOpened();
    void showRecentFiles();

signals:
    /// A chart was opened; pages should have the focus now.
    void chartOpened();
    void fileWanted(const QString& file);

private:
    // A chart opened in this run; it may have left the database since.
    struct Opened
    {
        QString name;
        std::string line;
    };

    void showOpened();
    void openAgain(const Opened& opened);
    void SectionsTreeItemActivated(QTreeWidgetItem* item);

    Workspace& workspace_;
    QTreeWidgetItem* openItem_;
    QTreeWidgetItem* recentItem_;
    std::vector<Opened> opened_; ///< the newest first
};

} // namespace kestrav::desktop
