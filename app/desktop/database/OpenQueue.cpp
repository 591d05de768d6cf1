#include "app/desktop/database/OpenQueue.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "data/DatabaseMessages.h"

#include <QApplication>
#include <QTimer>

#include <chrono>
#include <system_error>

namespace kestrav::desktop
{

namespace
{

constexpr std::chrono::milliseconds kLookAgain{200};

} // namespace

OpenQueue::OpenQueue(TKSVform1& window, DatabaseActions& files)
    : QObject(&files), window_(window), files_(files), timer_(new QTimer(this))
{
    timer_->setSingleShot(true);
    connect(timer_, &QTimer::timeout, this, &OpenQueue::openNext);
}

void OpenQueue::add(const std::filesystem::path& file)
{
    waiting_.push_back(file);
    if (QApplication::activeModalWidget() != nullptr) {
        window_.workspace().tell(
            tr("%1 is opened when the open dialog is closed.").arg(toQt(data::fileText(file))));
    }
    timer_->start(0);
}

bool OpenQueue::busy() const
{
    return QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr ||
           window_.findChild<TProgressDlg*>() != nullptr;
}

bool OpenQueue::isOpen(const std::filesystem::path& file) const
{
    OpenDatabase& database = window_.workspace().database();
    std::error_code problem;
    return std::filesystem::equivalent(file, database.path(), problem) &&
           !database.charts().changedOnDisk();
}

void OpenQueue::openNext()
{
    if (waiting_.empty()) {
        return;
    }
    if (busy()) {
        timer_->start(kLookAgain);
        return;
    }
    const std::filesystem::path file = waiting_.front();
    waiting_.pop_front();
    // Reading anew what is open already would only end what can be undone.
    if (!isOpen(file)) {
        // May ask questions, while which the next one waits.
        files_.open(file);
    }
    timer_->start(0);
}

} // namespace kestrav::desktop
