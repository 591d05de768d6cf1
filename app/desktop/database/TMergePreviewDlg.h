// What merging another database would do, and how changed charts are treated.
#pragma once

#include "app/present/Table.h"
#include "data/Merge.h"

#include <QDialog>

#include <filesystem>

class QButtonGroup;
class QLabel;

namespace kestrav::desktop
{

class TMergePreviewDlg : public QDialog
{
    Q_OBJECT

public:
    TMergePreviewDlg(const data::MergePreview& preview, present::Table table,
                     const std::filesystem::path& theirs, const std::filesystem::path& ours,
                     QWidget* parent);

    [[nodiscard]] data::MergeChanged changed() const;
    void choose(data::MergeChanged changed);

private:
    void showResult();

    std::size_t newCharts_;
    std::size_t changedCharts_;
    QButtonGroup* choices_;
    QLabel* result_;
};

} // namespace kestrav::desktop
