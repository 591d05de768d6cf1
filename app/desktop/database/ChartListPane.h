// The left pane: the charts of the open database, charts opened before, recent files.
#pragma once

#include "data/LineList.h"

#include <QString>
#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QModelIndex;
class QMenu;
class QTreeView;

namespace kestrav::desktop
{

class BackgroundWork;
class ChartListModel;
class ChartSections;
class Workspace;

/// Enter or a double click opens a chart, Space shows it and leaves the focus in the list.
class ChartListPane : public QWidget
{
    Q_OBJECT

public:
    explicit ChartListPane(Workspace& workspace, QWidget* parent = nullptr);

    /// The lines of the selected charts, in the order of the list.
    [[nodiscard]] std::vector<std::size_t> selectedLines() const;
    [[nodiscard]] QTreeView& list()
    {
        return *list_;
    }
    /// Puts the focus into the filter line.
    void focusFilter();
    /// Lets the user type another name for a chart, in place; false when the list does not show it.
    bool editName(std::size_t line);
    /// Makes a line the current one where the list shows it.
    void selectLine(std::size_t line);
    /// Reads the research lines beside the database, if labels can be had from them.
    void readResearch();
    /// Offers to read the file again that another program changed.
    void offerReload(const QString& file);
    void showRecentFiles();
    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// A chart was opened for good; pages should have the focus now.
    void chartOpened();
    void fileWanted(const QString& file);
    void reloadWanted();
    /// The commands of the context menu are wanted.
    void menuWanted(QMenu* menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeChoosers();
    void makeList();
    void makeReloadBar();
    void arrange();
    void fitColumns();
    void showColumns();
    void fillLabels();
    void showCount();
    void keepSelection();
    void restoreSelection();
    bool listKey(int key);
    bool filterKey(int key);
    void openCurrent(bool preview);
    void ListContextMenu(const QPoint& position);
    void FilterEditTextChanged(const QString& text);
    void SortComboBoxActivated(int index);
    void LabelComboBoxActivated(int index);
    void makeCurrent(const QModelIndex& index);
    void ChartChanged();

    Workspace& workspace_;
    ChartListModel* model_;
    BackgroundWork* reading_;
    QLineEdit* filter_;
    QComboBox* sort_;
    QComboBox* label_;
    QFrame* reloadBar_;
    QLabel* reloadText_;
    QTreeView* list_;
    QLabel* count_;
    QLabel* hint_; ///< why nothing is listed
    ChartSections* sections_;
    std::vector<std::size_t> keptLines_;
    std::optional<std::size_t> keptCurrent_;
    bool previewing_ = false;
};

} // namespace kestrav::desktop
