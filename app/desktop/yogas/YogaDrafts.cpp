#include "app/desktop/yogas/YogaDrafts.h"

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/OfferBar.h"
#include "app/desktop/yogas/YogaDesk.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kestrav::desktop
{

namespace
{

namespace fs = std::filesystem;

constexpr std::chrono::seconds kDraftPause{20};

class YogaDraftBar : public OfferBar
{
public:
    explicit YogaDraftBar(QWidget* parent)
        : OfferBar(YogaDrafts::tr("Continue"), YogaDrafts::tr("Puts the changes into the yogas"),
                   YogaDrafts::tr("Discard"), YogaDrafts::tr("Throws the changes away"), parent)
    {
        setObjectName(QStringLiteral("YogaDraftBar"));
        label().setObjectName(QStringLiteral("YogaDraftLabel"));
        takeButton().setObjectName(QStringLiteral("ContinueYogaDraftButton"));
        dropButton().setObjectName(QStringLiteral("DiscardYogaDraftButton"));
    }
};

} // namespace

YogaDrafts::YogaDrafts(TKSVform1& window)
    : QObject(&window), window_(window), desk_(YogaDesk::of(window.workspace())),
      bar_(new YogaDraftBar(window.centralWidget())), timer_(new QTimer(this))
{
    if (auto* const box = qobject_cast<QBoxLayout*>(window_.centralWidget()->layout())) {
        // Below the news.
        box->insertWidget(1, bar_);
    }
    connect(bar_, &OfferBar::taken, this, &YogaDrafts::ContinueYogaDraftButtonClick);
    connect(bar_, &OfferBar::dropped, this, &YogaDrafts::DiscardYogaDraftButtonClick);
    connect(timer_, &QTimer::timeout, this, &YogaDrafts::keep);
    timer_->start(kDraftPause);
    // Many steps at once, such as undoing quickly, are kept once.
    auto* const soon = new QTimer(this);
    soon->setSingleShot(true);
    connect(soon, &QTimer::timeout, this, &YogaDrafts::keep);
    const auto keepSoon = [soon] {
        soon->start(std::chrono::seconds(1));
    };
    connect(&window_.workspace(), &Workspace::yogasChanged, this, keepSoon);
    connect(&desk_, &YogaDesk::modifiedChanged, this, keepSoon);
    offer();
}

void YogaDrafts::keep()
{
    for (std::size_t file = 0; file < desk_.library().files().size(); ++file) {
        keepFile(file);
    }
}

void YogaDrafts::keepFile(std::size_t file)
{
    const fs::path path = desk_.library().files()[file].path;
    const auto found = kept_.find(path);
    const std::optional<yoga::YogaFile> unsaved = desk_.unsaved(file);
    if (!unsaved) {
        if (found != kept_.end()) {
            removeYogaDraft(found->second.path);
            kept_.erase(found);
        }
        return;
    }
    core::Result<std::vector<std::uint8_t>> bytes = yoga::formatYogaFile(*unsaved);
    if (!bytes || (found != kept_.end() && found->second.bytes == bytes.value())) {
        return;
    }
    const fs::path draft = found != kept_.end() ? found->second.path : newYogaDraftPath();
    if (const auto written =
            writeYogaDraft(draft, {fs::absolute(path), desk_.stamp(file), bytes.value()});
        !written) {
        window_.workspace().tellProblem(
            tr("The changes of yogas could not be kept: %1").arg(toQt(written.error().text())));
        return;
    }
    kept_[path] = {draft, std::move(bytes.value())};
}

void YogaDrafts::drop()
{
    for (const auto& [file, kept] : kept_) {
        removeYogaDraft(kept.path);
    }
    kept_.clear();
}

std::vector<fs::path> YogaDrafts::offered() const
{
    std::vector<fs::path> drafts = keptYogaDrafts();
    std::erase_if(drafts, [this](const fs::path& draft) {
        return std::any_of(kept_.begin(), kept_.end(),
                           [&](const auto& own) { return own.second.path == draft; });
    });
    return drafts;
}

void YogaDrafts::offer()
{
    const std::vector<fs::path> drafts = offered();
    const auto draft = drafts.empty() ? std::nullopt : readYogaDraft(drafts.back());
    if (!draft) {
        bar_->hide();
        return;
    }
    QString text =
        tr("Changes of yogas that were not saved were kept: %1").arg(toQt(draft->of.filename()));
    if (drafts.size() > 1) {
        text += tr(" (%1 in all)").arg(drafts.size());
    }
    bar_->offer(text);
}

// The draft is one of this run from here on, and goes when the file is saved.
void YogaDrafts::ContinueYogaDraftButtonClick()
{
    const std::vector<fs::path> drafts = offered();
    std::optional<YogaDraft> draft = drafts.empty() ? std::nullopt : readYogaDraft(drafts.back());
    if (draft) {
        core::Result<yoga::YogaFile> file = yoga::parseYogaFile(draft->bytes);
        const fs::path loaded = desk_.restore(draft->of, std::move(file.value()), draft->stamp);
        const auto [kept, isNew] = kept_.try_emplace(loaded);
        if (!isNew) {
            removeYogaDraft(kept->second.path);
        }
        kept->second = {drafts.back(), std::move(draft->bytes)};
        window_.pages().show(tr("Yogas"));
        window_.workspace().tell(tr("The changes of %1 stand in the yogas again; save them to keep "
                                    "them.")
                                     .arg(toQt(draft->of.filename())));
    }
    offer();
}

void YogaDrafts::DiscardYogaDraftButtonClick()
{
    if (const std::vector<fs::path> drafts = offered(); !drafts.empty()) {
        removeYogaDraft(drafts.back());
    }
    offer();
}

} // namespace kestrav::desktop
