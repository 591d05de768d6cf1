// Work on another thread whose result comes back to the thread of the window.
#pragma once

#include "data/LongWork.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace kestrav::desktop
{

/// What running work reads and calls. Its parts may be used from any thread.
class WorkHandle
{
public:
    [[nodiscard]] bool cancelled() const
    {
        return cancel_->load(std::memory_order_relaxed);
    }
    [[nodiscard]] const std::atomic<bool>* cancelFlag() const
    {
        return cancel_.get();
    }
    /// Shows how far the work is; `total` 0 for not known.
    void progress(std::size_t done, std::size_t total) const;
    /// The same for work of the floors below, which must not outlive the handle.
    [[nodiscard]] data::LongWork longWork() const;

private:
    friend class BackgroundWork;
    // Shared, because work that was given up may outlive the panel that began it.
    std::shared_ptr<std::atomic<bool>> cancel_ = std::make_shared<std::atomic<bool>>(false);
    std::function<void(std::size_t, std::size_t)> progress_;
};

/// What becomes of work that is given up before a thread was free for it.
enum class IfGivenUp
{
    Skip,
    DoAnyway, ///< somebody relies on what it does besides its result
};

/// One piece of work at a time: starting another gives up the one before, whose result is dropped.
/// The object must live on the window's thread. Its end cancels the work, and the program's end
/// waits for it.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundWork(QObject* parent = nullptr);
    ~BackgroundWork() override;

    /// Runs `work(const WorkHandle&)` on another thread and then `done(result)` on this one. The
    /// work must not touch widgets, nor anything that may change or go meanwhile. `done` is not
    /// called for work that was cancelled or given up.
    template <typename Work, typename Done>
    void start(Work work, Done done, IfGivenUp ifGivenUp = IfGivenUp::Skip)
    {
        using Value = std::invoke_result_t<Work, const WorkHandle&>;
        const WorkHandle handle = begin();
        const int number = number_;
        QPointer<BackgroundWork> self(this);
        pool()->start([handle, number, self, ifGivenUp, work = std::move(work),
                       done = std::move(done)]() mutable {
            if (ifGivenUp == IfGivenUp::Skip && handle.cancelled()) {
                return;
            }
            // Functions of the toolkit are copied; the result may not be copyable.
            auto value = std::make_shared<Value>(work(handle));
            deliver(self, [self, number, value, done = std::move(done)]() mutable {
                if (self && self->finish(number)) {
                    done(std::move(*value));
                }
            });
        });
    }

    [[nodiscard]] bool running() const
    {
        return running_;
    }
    void cancel();

    /// Waits until no work runs any more; for the end of the program.
    static void waitForAll();

signals:
    void started();
    void progressed(qulonglong done, qulonglong total);
    /// After the result was delivered, or the work was cancelled.
    void finished();

private:
    static QThreadPool* pool();
    static void deliver(const QPointer<BackgroundWork>& to, std::function<void()> call);
    WorkHandle begin();
    bool finish(int number);

    WorkHandle handle_;
    int number_ = 0;
    bool running_ = false;
};

} // namespace kestrav::desktop
