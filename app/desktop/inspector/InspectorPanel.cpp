#include "app/desktop/inspector/InspectorPanel.h"

#include "app/desktop/inspector/InspectorHtml.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextOption>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr char kFoldedKey[] = "inspector/folded";
constexpr std::size_t kMostHistory = 100;

QToolButton* historyButton(const QString& name, const QString& words, Qt::ArrowType arrow,
                           const QKeySequence& keys, QWidget* parent)
{
    auto* const button = new QToolButton(parent);
    button->setObjectName(name);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setAccessibleName(words);
    button->setToolTip(
        QStringLiteral("%1 (%2)").arg(words, keys.toString(QKeySequence::NativeText)));
    return button;
}

} // namespace

InspectorPanel::InspectorPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), source_(new QComboBox(this)),
      browser_(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("InspectorPanel"));
    const QKeySequence backKeys(tr("Alt+Up"));
    const QKeySequence forwardKeys(tr("Alt+Down"));
    back_ = historyButton(QStringLiteral("BackButton"), tr("Back"), Qt::LeftArrow, backKeys, this);
    forward_ = historyButton(QStringLiteral("ForwardButton"), tr("Forward"), Qt::RightArrow,
                             forwardKeys, this);
    connect(back_, &QToolButton::clicked, this, &InspectorPanel::goBack);
    connect(forward_, &QToolButton::clicked, this, &InspectorPanel::goForward);

    source_->setObjectName(QStringLiteral("SourceComboBox"));
    source_->setAccessibleName(tr("Chart that is inspected"));
    source_->setToolTip(tr("Chart that is inspected"));
    source_->addItems({tr("Shown chart"), tr("Second chart"), tr("Shared date")});
    source_->setCurrentIndex(int(panel_.chart));
    source_->setFrame(false);
    connect(source_, &QComboBox::activated, this, [this](int index) {
        panel_.chart = present::PanelChart(index);
        dependOn(OnChart | OnSelection | OnYogas);
        markDue();
    });

    browser_->setObjectName(QStringLiteral("InspectorBrowser"));
    browser_->setAccessibleName(tr("Inspector"));
    browser_->setFrameShape(QFrame::NoFrame);
    browser_->setOpenLinks(false);
    browser_->setWordWrapMode(QTextOption::WordWrap);
    browser_->document()->setDocumentMargin(fontMetrics().height() / 3.0);
    browser_->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(browser_, &QTextBrowser::anchorClicked, this, &InspectorPanel::linkClicked);

    auto* const bar = new QHBoxLayout;
    const int gap = fontMetrics().height() / 4;
    bar->setContentsMargins(gap, gap, gap, gap);
    bar->addWidget(back_);
    bar->addWidget(forward_);
    bar->addStretch(1);
    bar->addWidget(source_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(browser_, 1);
    setFocusProxy(browser_);

    const auto add = [this](const char* name, const QString& text, const QKeySequence& keys,
                            auto handler) {
        auto* const action = new QAction(text, this);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, handler);
        addAction(action);
        actions_ += action;
    };
    add("InspectorBackAction", tr("&Back"), backKeys, [this] { goBack(); });
    add("InspectorForwardAction", tr("For&ward"), forwardKeys, [this] { goForward(); });
    add("UnfoldAction", tr("&Unfold All"), {}, [this] { setAllFolded(false); });
    add("FoldAction", tr("&Fold All"), {}, [this] { setAllFolded(true); });

    const QStringList kept = stateOfWindow()
                                 .value(kFoldedKey, QStringList{QStringLiteral("how-computed")})
                                 .toStringList();
    folded_ = QSet<QString>(kept.begin(), kept.end());
    dependOn(OnChart | OnSelection | OnYogas);
    connect(&workspace, &Workspace::selectionChanged, this, &InspectorPanel::remember);
    remember();
}

QString InspectorPanel::title() const
{
    return shown_.title.empty() ? tr("Inspector") : tr("Inspector: %1").arg(toQt(shown_.title));
}

QList<QAction*> InspectorPanel::panelActions()
{
    actions_[0]->setEnabled(back_->isEnabled());
    actions_[1]->setEnabled(forward_->isEnabled());
    return actions_;
}

std::vector<present::Block> InspectorPanel::blocks()
{
    refreshNow();
    std::vector<present::Block> blocks = {present::Heading{shown_.title}};
    for (const present::Table& section : shown_.sections) {
        if (!folded_.contains(toQt(section.id))) {
            blocks.emplace_back(section);
        }
    }
    return blocks;
}

QSize InspectorPanel::sizeHint() const
{
    const int unit = fontMetrics().height();
    return {unit * 22, unit * 30};
}

void InspectorPanel::remember()
{
    const present::Link& link = workspace().selection();
    const bool known = place_ >= 0 && history_[std::size_t(place_)] == link;
    if (link.subject != present::Subject::None && !known) {
        const int kept = place_ + 1;
        history_.resize(std::size_t(kept));
        history_.push_back(link);
        if (history_.size() > kMostHistory) {
            history_.erase(history_.begin());
        }
        place_ = int(history_.size()) - 1;
    }
    back_->setEnabled(place_ > 0);
    forward_->setEnabled(place_ + 1 < int(history_.size()));
}

void InspectorPanel::go(int by)
{
    const int place = place_ + by;
    if (place >= 0 && place < int(history_.size())) {
        place_ = place;
        choose(history_[std::size_t(place)]);
        remember();
    }
}

void InspectorPanel::goBack()
{
    go(-1);
}

void InspectorPanel::goForward()
{
    go(1);
}

void InspectorPanel::refresh()
{
    const ChartPointer shown = chart();
    const present::Link link = workspace().selection();
    if (!shown || link.subject == present::Subject::None) {
        work_.cancel();
        show({});
        return;
    }
    work_.start(
        [shown, link, data = workspace().data(), yogas = workspace().yogas(),
         moment = workspace().moment()](const WorkHandle& /*handle*/) {
            present::TableSource source{*shown, data->series};
            const core::Identity& identity = shown->chart.identity;
            source.nameLetter = identity.sound.empty() ? 0 : identity.soundGroup;
            source.levels = shown->settings.dashaLevels;
            source.moment = moment;
            source.yogas = yogas->files().empty() ? nullptr : yogas.get();
            source.matchingTables = &data->matching;
            return present::inspect(source, link);
        },
        [this](present::Inspection made) { show(std::move(made)); });
}

void InspectorPanel::show(present::Inspection inspection)
{
    // The same thing in another chart keeps its place on the page.
    const bool same = inspection.title == shown_.title;
    const int scrolled = same ? browser_->verticalScrollBar()->value() : 0;
    shown_ = std::move(inspection);
    render();
    browser_->verticalScrollBar()->setValue(scrolled);
    emit captionChanged();
}

void InspectorPanel::render()
{
    if (shown_.title.empty()) {
        browser_->setPlainText(chart()
                                   ? tr("Select a planet, sign or house in a diagram or a table.")
                                   : tr("No chart is open."));
        return;
    }
    browser_->setHtml(inspectionHtml(shown_, folded_));
}

void InspectorPanel::linkClicked(const QUrl& url)
{
    const QString address = url.toString();
    if (address.startsWith(QLatin1String("fold:"))) {
        toggle(address.mid(5));
    } else if (const auto link = linkOfText(address)) {
        follow(*link);
    }
}

void InspectorPanel::toggle(const QString& section)
{
    if (!folded_.remove(section)) {
        folded_.insert(section);
    }
    stateOfWindow().setValue(kFoldedKey, QStringList(folded_.begin(), folded_.end()));
    const int scrolled = browser_->verticalScrollBar()->value();
    render();
    browser_->verticalScrollBar()->setValue(scrolled);
}

void InspectorPanel::setAllFolded(bool folded)
{
    for (const present::Table& section : shown_.sections) {
        const QString id = toQt(section.id);
        if (folded != folded_.contains(id)) {
            toggle(id);
        }
    }
}

InspectorPanel* makeInspectorPane(Workspace& workspace, QWidget* parent)
{
    present::Panel panel;
    panel.kind = present::PanelKind::View;
    panel.content = "inspector";
    auto* const pane = new InspectorPanel(workspace, std::move(panel), parent);
    pane->setAccessibleName(InspectorPanel::tr("Inspector"));
    return pane;
}

} // namespace kestrav::desktop
