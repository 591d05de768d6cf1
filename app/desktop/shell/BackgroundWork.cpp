#include "app/desktop/shell/BackgroundWork.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <chrono>
#include <mutex>

namespace kestrav::desktop
{

namespace
{

// The window is told twenty times a second at most.
constexpr std::chrono::milliseconds kProgressPause{50};

} // namespace

void WorkHandle::progress(std::size_t done, std::size_t total) const
{
    if (progress_) {
        progress_(done, total);
    }
}

data::LongWork WorkHandle::longWork() const
{
    data::LongWork work;
    work.cancel = cancelFlag();
    work.progress = [this](std::size_t done, std::size_t total) {
        progress(done, total);
    };
    return work;
}

BackgroundWork::BackgroundWork(QObject* parent) : QObject(parent)
{}

BackgroundWork::~BackgroundWork()
{
    handle_.cancel_->store(true);
}

QThreadPool* BackgroundWork::pool()
{
    static QThreadPool thePool;
    return &thePool;
}

void BackgroundWork::waitForAll()
{
    pool()->waitForDone();
}

void BackgroundWork::deliver(const QPointer<BackgroundWork>& /*to*/, std::function<void()> call)
{
    // The receiver is the application, which outlives every worker: whether the object that began
    // the work still exists can be seen on its own thread only.
    if (QCoreApplication* const application = QCoreApplication::instance()) {
        QMetaObject::invokeMethod(application, std::move(call), Qt::QueuedConnection);
    }
}

WorkHandle BackgroundWork::begin()
{
    handle_.cancel_->store(true);
    handle_ = {};
    ++number_;
    running_ = true;
    const int number = number_;
    const QPointer<BackgroundWork> self(this);
    auto last = std::make_shared<std::chrono::steady_clock::time_point>();
    auto guard = std::make_shared<std::mutex>();
    handle_.progress_ = [self, number, last, guard](std::size_t done, std::size_t total) {
        {
            const std::lock_guard lock(*guard);
            const auto now = std::chrono::steady_clock::now();
            if (now - *last < kProgressPause) {
                return;
            }
            *last = now;
        }
        deliver(self, [self, number, done, total] {
            if (self && self->running_ && self->number_ == number) {
                emit self->progressed(done, total);
            }
        });
    };
    emit started();
    return handle_;
}

bool BackgroundWork::finish(int number)
{
    if (!running_ || number != number_) {
        return false;
    }
    running_ = false;
    emit finished();
    return !handle_.cancelled();
}

void BackgroundWork::cancel()
{
    if (running_) {
        handle_.cancel_->store(true);
        running_ = false;
        emit finished();
    }
}

} // namespace kestrav::desktop
