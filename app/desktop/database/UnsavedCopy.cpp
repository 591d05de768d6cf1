#include "app/desktop/database/UnsavedCopy.h"

#include "app/desktop/database/ExchangeActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/OfferBar.h"
#include "app/desktop/shell/StateFile.h"
#include "core/Files.h"
#include "data/DatabaseMessages.h"
#include "data/DerivedFile.h"

#include <QBoxLayout>
#include <QCryptographicHash>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kestrav::desktop
{

namespace
{

namespace fs = std::filesystem;

// A large database takes its time to write, so it is copied less often.
constexpr std::chrono::milliseconds kPause{500};
constexpr std::chrono::milliseconds kPauseOfLarge{20'000};
constexpr std::size_t kLargeLines = 10'000;

// More than one program can have been killed on the same database, but not many.
constexpr int kMostCopies = 8;

constexpr char kPart[] = ".part";

// The copies of a database are told from those of others by its path.
fs::path copyOf(const fs::path& database, int number)
{
    std::error_code problem;
    const std::string path = fs::absolute(database, problem).lexically_normal().string();
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(path), QCryptographicHash::Sha256);
    return stateFolder() / ("unsaved-" + hash.toHex().left(16).toStdString() + "-" +
                            std::to_string(number) + ".ksc");
}

bool isThere(const fs::path& file)
{
    std::error_code problem;
    return fs::is_regular_file(file, problem);
}

// What is still offered is not written over.
fs::path unusedCopy(const fs::path& database)
{
    int number = 0;
    while (number + 1 < kMostCopies && isThere(copyOf(database, number))) {
        ++number;
    }
    return copyOf(database, number);
}

fs::path partOf(const fs::path& copy)
{
    fs::path part = copy;
    return part += kPart;
}

void removeCopy(const fs::path& copy)
{
    std::error_code problem;
    fs::remove(copy, problem);
    fs::remove(partOf(copy), problem);
}

bool sameLines(const fs::path& copy, const data::ChartDatabase& charts)
{
    const std::vector<std::uint8_t> bytes = charts.bytes();
    std::error_code problem;
    if (fs::file_size(copy, problem) != bytes.size() || problem) {
        return false;
    }
    const auto kept = core::readFile(copy, bytes.size());
    return kept && kept.value() == bytes;
}

core::Result<void> writeCopy(const data::ChartDatabase& charts, const fs::path& part)
{
    const std::vector<std::uint8_t> bytes = charts.bytes();
    return data::writeDerivedFile(
        part, std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

class LeftBar : public OfferBar
{
public:
    explicit LeftBar(QWidget* parent)
        : OfferBar(UnsavedCopy::tr("Bring Back..."),
                   UnsavedCopy::tr("Shows what was changed, and merges it"),
                   UnsavedCopy::tr("Discard"), UnsavedCopy::tr("Throws away what was changed"),
                   parent)
    {
        setObjectName(QStringLiteral("UnsavedBar"));
        label().setObjectName(QStringLiteral("UnsavedLabel"));
        takeButton().setObjectName(QStringLiteral("BringBackButton"));
        dropButton().setObjectName(QStringLiteral("DiscardUnsavedButton"));
    }
};

} // namespace

UnsavedCopy::UnsavedCopy(TKSVform1& window, ExchangeActions& exchange)
    : QObject(&window), window_(window), exchange_(exchange), work_(new BackgroundWork(this)),
      timer_(new QTimer(this)), bar_(new LeftBar(window.centralWidget()))
{
    if (auto* const box = qobject_cast<QBoxLayout*>(window_.centralWidget()->layout())) {
        // Below the news.
        box->insertWidget(1, bar_);
    }
    timer_->setSingleShot(true);
    connect(timer_, &QTimer::timeout, this, &UnsavedCopy::write);
    connect(&database(), &OpenDatabase::opened, this, &UnsavedCopy::begin);
    connect(&database(), &OpenDatabase::linesEdited, this, &UnsavedCopy::follow);
    connect(&database(), &OpenDatabase::modifiedChanged, this, &UnsavedCopy::follow);
    connect(bar_, &OfferBar::taken, this, &UnsavedCopy::BringBackButtonClick);
    connect(bar_, &OfferBar::dropped, this, &UnsavedCopy::DiscardButtonClick);
    // Asked after the question about unsaved changes, which are dropped or saved by now. Where the
    // window stays open for another reason, the next look finds them again.
    window_.addCloseQuestion([this] {
        forget();
        follow();
        return true;
    });
}

OpenDatabase& UnsavedCopy::database()
{
    return window_.workspace().database();
}

void UnsavedCopy::begin()
{
    forget();
    lookForLeft();
}

void UnsavedCopy::lookForLeft()
{
    left_.reset();
    for (int number = 0; number < kMostCopies; ++number) {
        const fs::path copy = copyOf(database().path(), number);
        if (isThere(copy) && copy != written_) {
            if (sameLines(copy, database().charts())) {
                // Killed when the file was written already.
                removeCopy(copy);
            } else {
                left_ = copy;
            }
        }
    }
    if (left_) {
        bar_->offer(tr("The program ended before changes of %1 were saved. They have been kept.")
                        .arg(toQt(data::fileText(database().path()))));
    } else {
        bar_->hide();
    }
}

void UnsavedCopy::follow()
{
    if (!database().modified()) {
        forget();
    } else if (!timer_->isActive()) {
        timer_->start(database().charts().size() > kLargeLines ? kPauseOfLarge : kPause);
    }
}

void UnsavedCopy::write()
{
    if (!database().modified()) {
        return;
    }
    if (written_.empty()) {
        written_ = unusedCopy(database().path());
    }
    const auto copy = std::make_shared<const data::ChartDatabase>(database().charts());
    work_->start(
        [copy, part = partOf(written_)](const WorkHandle&) { return writeCopy(*copy, part); },
        [this](const core::Result<void>& result) {
            // Put in place here, where it is known whether the changes are still unsaved.
            std::error_code problem;
            if (result && database().modified() && !written_.empty()) {
                fs::rename(partOf(written_), written_, problem);
            }
        });
}

void UnsavedCopy::forget()
{
    timer_->stop();
    work_->cancel();
    if (!written_.empty()) {
        removeCopy(written_);
        written_.clear();
    }
}

void UnsavedCopy::BringBackButtonClick()
{
    if (left_) {
        const fs::path name =
            toPath(tr("The unsaved copy of %1").arg(toQt(data::fileText(database().path()))));
        exchange_.merge(*left_, name, data::MergeChanged::Replace, [this, copy = *left_] {
            removeCopy(copy);
            lookForLeft();
        });
    }
}

void UnsavedCopy::DiscardButtonClick()
{
    if (left_) {
        removeCopy(*left_);
        lookForLeft();
    }
}

} // namespace kestrav::desktop
