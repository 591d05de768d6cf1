// The box shown while long work on a database runs.
#pragma once

#include "app/desktop/shell/BackgroundWork.h"

#include <QDialog>

#include <cstddef>
#include <functional>
#include <utility>

class QLabel;
class QProgressBar;

namespace kestrav::desktop
{

/// Blocks its window, shows how far the work is, and cancels it. It comes up only when the work
/// takes a moment, and goes with it.
class TProgressDlg : public QDialog
{
    Q_OBJECT

public:
    /// `count` makes the line under the bar from what is done; none is shown without it.
    TProgressDlg(const QString& text, std::function<QString(std::size_t)> count, QWidget* parent);

    [[nodiscard]] BackgroundWork& work()
    {
        return *work_;
    }

    /// `total` 0 for not known.
    void showProgress(std::size_t done, std::size_t total);
    void reject() override;

private:
    std::function<QString(std::size_t)> countText_;
    BackgroundWork* work_;
    QProgressBar* bar_;
    QLabel* count_;
};

/// Runs work behind such a box; see BackgroundWork::start.
template <typename Work, typename Done>
void workWithBox(QWidget* parent, const QString& text, std::function<QString(std::size_t)> count,
                 Work work, Done done)
{
    auto* const box = new TProgressDlg(text, std::move(count), parent);
    box->work().start(std::move(work), std::move(done));
}

} // namespace kestrav::desktop
