#include "app/desktop/pages/PageActions.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/pages/DeliveredPages.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/SavedPages.h"
#include "app/desktop/pages/TPageLayoutDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"

#include <QAction>
#include <QMenu>
#include <QUndoCommand>

#include <optional>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using Layouts = std::vector<present::PageLayout>;

constexpr int kPagesWithKeys = 9;

// A step and the way back.
class PagesCommand : public QUndoCommand
{
public:
    PagesCommand(const QString& text, std::function<void()> step, std::function<void()> back)
        : QUndoCommand(text), step_(std::move(step)), back_(std::move(back))
    {}

    void undo() override
    {
        back_();
    }
    void redo() override
    {
        step_();
    }

private:
    std::function<void()> step_;
    std::function<void()> back_;
};

// A page drawn to another place. On its way it passes the others one by one, which is one step.
class MoveCommand : public QUndoCommand
{
public:
    MoveCommand(PageStrip& pages, int from, int to)
        : QUndoCommand(PageActions::tr("move page")), pages_(pages), moves_{{from, to}}
    {}

    [[nodiscard]] int id() const override
    {
        return 1;
    }
    bool mergeWith(const QUndoCommand* other) override
    {
        // The strip moves what the drawn page passes, each to where that page stood.
        const auto* const next = static_cast<const MoveCommand*>(other);
        if (next->moves_.front().second != moves_.back().first) {
            return false;
        }
        moves_.insert(moves_.end(), next->moves_.begin(), next->moves_.end());
        return true;
    }
    void undo() override
    {
        for (auto move = moves_.rbegin(); move != moves_.rend(); ++move) {
            pages_.movePage(move->second, move->first);
        }
    }
    void redo() override
    {
        // The pointer itself has done the step the first time.
        if (std::exchange(done_, true)) {
            for (const auto& [from, to] : moves_) {
                pages_.movePage(from, to);
            }
        }
    }

private:
    PageStrip& pages_;
    std::vector<std::pair<int, int>> moves_;
    bool done_ = false;
};

// The page of a name as it was saved, else as it is delivered.
std::optional<present::PageLayout> originalPage(const std::string& name)
{
    std::vector<std::string> problems;
    for (const Layouts& layouts : {savedPages(problems), deliveredPages(problems)}) {
        for (const present::PageLayout& layout : layouts) {
            if (layout.name == name) {
                return layout;
            }
        }
    }
    return std::nullopt;
}

present::PageLayout emptyPage(const QString& name)
{
    present::PageLayout layout;
    layout.name = toUtf8(name);
    layout.rowWeights = {1};
    layout.columnWeights = {1};
    present::Panel panel;
    panel.kind = present::PanelKind::Diagram;
    layout.panels = {panel};
    return layout;
}

} // namespace

PageActions::PageActions(TKSVform1& window) : QObject(&window), window_(window)
{
    using Keys = QKeySequence;
    const auto add = [&](const Command& command, void (PageActions::*handler)()) {
        return window_.addCommand(MenuName::Pages, command,
                                  [this, handler] { (this->*handler)(); });
    };
    add({"NewPageAction", tr("&New Page..."), Keys(tr("Ctrl+T")), tr("Composes a new page")},
        &PageActions::NewPageActionTriggered);
    auto* const addMenu = window_.menu(MenuName::Pages)->addMenu(tr("&Add Page"));
    connect(addMenu, &QMenu::aboutToShow, this, [this, addMenu] { fillAddMenu(*addMenu); });
    add({"PageLayoutAction", tr("&Compose This Page..."), Keys(tr("Ctrl+Shift+L")),
         tr("Changes which panels the page has and where they stand")},
        &PageActions::LayoutActionTriggered);
    add({"RenamePageAction", tr("&Rename This Page...")}, &PageActions::RenameActionTriggered);
    add({"SavePageAction",
         tr("&Save This Page"),
         {},
         tr("Keeps the page under its name, to be added again or reset to")},
        &PageActions::SaveActionTriggered);
    add({"ResetPageAction",
         tr("Rese&t This Page"),
         {},
         tr("Brings the page back as it was saved or delivered")},
        &PageActions::ResetActionTriggered);
    add({"ResetPagesAction", tr("R&eset All Pages"), {}, tr("Brings back the delivered pages")},
        &PageActions::ResetAllActionTriggered);
    add({"ClosePageAction", tr("C&lose This Page"), Keys(tr("Ctrl+W"))},
        &PageActions::CloseActionTriggered);
    window_.menu(MenuName::Pages)->addSeparator();
    QAction* const undo = undo_.createUndoAction(this, tr("&Undo Page Change:"));
    undo->setObjectName(QStringLiteral("UndoPageAction"));
    undo->setShortcut(Keys(tr("Ctrl+Alt+Z")));
    QAction* const redo = undo_.createRedoAction(this, tr("Re&do Page Change:"));
    redo->setObjectName(QStringLiteral("RedoPageAction"));
    redo->setShortcut(Keys(tr("Ctrl+Alt+Shift+Z")));
    window_.menu(MenuName::Pages)->addActions({undo, redo});
    connect(&window_.pages(), &PageStrip::moved, this, &PageActions::keepMove);
    window_.menu(MenuName::Pages)->addSeparator();
    const auto go = [this](int by) {
        const int count = window_.pages().count();
        if (count > 0) {
            window_.pages().show((window_.pages().current() + by + count) % count);
        }
    };
    window_.addCommand(MenuName::Pages, {"NextPageAction", tr("Ne&xt Page"), Keys(tr("Ctrl+Tab"))},
                       [go] { go(1); });
    window_.addCommand(MenuName::Pages,
                       {"PreviousPageAction", tr("&Previous Page"), Keys(tr("Ctrl+Shift+Tab"))},
                       [go] { go(-1); });
    auto* const goMenu = window_.menu(MenuName::Pages)->addMenu(tr("&Go to Page"));
    connect(goMenu, &QMenu::aboutToShow, this, [this, goMenu] { fillGoMenu(*goMenu); });
    for (int i = 0; i < kPagesWithKeys; ++i) {
        auto* const action = new QAction(tr("Page %1").arg(i + 1), this);
        action->setObjectName(QStringLiteral("Page%1Action").arg(i + 1));
        action->setShortcut(Keys(QStringLiteral("Ctrl+%1").arg(i + 1)));
        connect(action, &QAction::triggered, this, [this, i] { window_.pages().show(i); });
        window_.addAction(action);
    }
}

void PageActions::change(const QString& what, const std::function<void()>& step,
                         const std::function<void()>& back)
{
    const auto guarded = [this](const std::function<void()>& work) {
        return [this, work] {
            // Panels go with their pages.
            emit window_.workspace().database().editsDue();
            work();
        };
    };
    undo_.push(new PagesCommand(what, guarded(step), guarded(back)));
}

void PageActions::add(const QString& what, const present::PageLayout& layout)
{
    PageStrip& pages = window_.pages();
    change(
        what, [&pages, layout] { pages.addPage(layout); },
        [&pages, index = pages.count(), current = pages.current()] {
            pages.closePage(index);
            pages.show(current);
        });
}

void PageActions::replace(const QString& what, int index, const present::PageLayout& layout)
{
    PageStrip& pages = window_.pages();
    change(
        what,
        [&pages, index, layout] {
            pages.replacePage(index, layout);
            pages.show(index);
        },
        [&pages, index, before = pages.layout(index), sizes = pages.sizes(index)] {
            pages.replacePage(index, before);
            pages.setSizes(index, sizes);
            pages.show(index);
        });
}

void PageActions::keepMove(int from, int to)
{
    undo_.push(new MoveCommand(window_.pages(), from, to));
}

void PageActions::NewPageActionTriggered()
{
    TPageLayoutDlg dialog(emptyPage(tr("New page")), &window_);
    if (dialog.exec() == QDialog::Accepted) {
        add(tr("new page"), dialog.layoutOfPage());
    }
}

void PageActions::LayoutActionTriggered()
{
    const int index = window_.pages().current();
    if (index < 0) {
        return;
    }
    TPageLayoutDlg dialog(window_.pages().layout(index), &window_);
    if (dialog.exec() == QDialog::Accepted) {
        replace(tr("compose page"), index, dialog.layoutOfPage());
    }
}

void PageActions::RenameActionTriggered()
{
    const int index = window_.pages().current();
    if (index < 0) {
        return;
    }
    const auto name = TMessages::text(&window_, tr("Rename Page"), tr("&Name of the page:"),
                                      window_.pages().name(index));
    if (!name || name->trimmed().isEmpty()) {
        return;
    }
    present::PageLayout layout = window_.pages().layout(index);
    layout.name = toUtf8(name->simplified());
    replace(tr("rename page"), index, layout);
}

void PageActions::SaveActionTriggered()
{
    const int index = window_.pages().current();
    if (index < 0) {
        return;
    }
    if (const auto saved = savePage(window_.pages().layout(index)); saved) {
        window_.workspace().tell(tr("The page \"%1\" is saved.").arg(window_.pages().name(index)));
    } else {
        window_.workspace().tellProblem(toQt(saved.error().text()));
    }
}

void PageActions::ResetActionTriggered()
{
    const int index = window_.pages().current();
    if (index < 0) {
        return;
    }
    if (const auto original = originalPage(toUtf8(window_.pages().name(index)))) {
        replace(tr("reset page"), index, *original);
    } else {
        window_.workspace().tellProblem(
            tr("There is no saved or delivered page \"%1\".").arg(window_.pages().name(index)));
    }
}

void PageActions::ResetAllActionTriggered()
{
    PageStrip& pages = window_.pages();
    std::vector<QByteArray> sizes;
    sizes.reserve(std::size_t(pages.count()));
    for (int i = 0; i < pages.count(); ++i) {
        sizes.push_back(pages.sizes(i));
    }
    change(
        tr("reset pages"),
        [&pages] {
            std::vector<std::string> problems;
            pages.setPages(deliveredPages(problems));
        },
        [&pages, before = pages.layouts(), sizes, current = pages.current()] {
            pages.setPages(before);
            for (std::size_t i = 0; i < sizes.size(); ++i) {
                pages.setSizes(int(i), sizes[i]);
            }
            pages.show(current);
        });
}

void PageActions::CloseActionTriggered()
{
    PageStrip& pages = window_.pages();
    const int index = pages.current();
    if (index < 0 || pages.count() < 2) {
        return;
    }
    change(
        tr("close page"), [&pages, index] { pages.closePage(index); },
        [&pages, index, layout = pages.layout(index), sizes = pages.sizes(index)] {
            pages.insertPage(index, layout);
            pages.setSizes(index, sizes);
        });
}

void PageActions::fillAddMenu(QMenu& menu)
{
    menu.clear();
    std::vector<std::string> problems;
    const auto addAll = [&](const Layouts& layouts) {
        for (const present::PageLayout& layout : layouts) {
            menu.addAction(toQt(layout.name), this,
                           [this, layout] { add(tr("add page"), layout); });
        }
    };
    addAll(deliveredPages(problems));
    menu.addSeparator();
    addAll(savedPages(problems));
    for (const std::string& problem : problems) {
        window_.workspace().tellProblem(toQt(problem));
    }
}

void PageActions::fillGoMenu(QMenu& menu)
{
    menu.clear();
    for (int i = 0; i < window_.pages().count(); ++i) {
        menu.addAction(window_.pages().name(i), this, [this, i] { window_.pages().show(i); });
    }
}

} // namespace kestrav::desktop
