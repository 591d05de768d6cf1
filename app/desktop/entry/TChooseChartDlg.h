// A chart of the open database, chosen by a few letters of its name.
#pragma once

#include <QDialog>

#include <cstddef>
#include <optional>

class QDialogButtonBox;
class QLineEdit;
class QTreeView;

namespace kestrav::desktop
{

class ChartNamesModel;
class OpenDatabase;

class TChooseChartDlg : public QDialog
{
    Q_OBJECT

public:
    TChooseChartDlg(OpenDatabase& database, const QString& caption, QWidget* parent);

    /// The line of the chosen chart.
    [[nodiscard]] std::optional<std::size_t> line() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FilterEditChange();

    ChartNamesModel* model_;
    QLineEdit* filter_;
    QTreeView* list_;
    QDialogButtonBox* buttons_;
};

} // namespace kestrav::desktop
