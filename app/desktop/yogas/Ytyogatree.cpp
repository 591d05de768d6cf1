#include "app/desktop/yogas/Ytyogatree.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/yogas/RuleEditor.h"
#include "app/desktop/yogas/YogaCommands.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/desktop/yogas/YogaPane.h"
#include "app/desktop/yogas/YogaTreePane.h"
#include "app/present/RuleLines.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QUndoStack>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

bool isYogaFile(const QUrl& url)
{
    return url.isLocalFile() && url.fileName().endsWith(QLatin1String(".ksy"), Qt::CaseInsensitive);
}

} // namespace

TYogaTreeForm::TYogaTreeForm(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), desk_(YogaDesk::of(workspace)),
      commands_(new YogaCommands(workspace, this)), parts_(new QSplitter(this)),
      tree_(new YogaTreePane(desk_, this)), yoga_(new YogaPane(workspace, this)),
      none_(new QLabel(tr("Select a yoga in the tree, or begin a new one."), this))
{
    setObjectName(QStringLiteral("TYogaTreeForm"));
    setAcceptDrops(true);
    none_->setAlignment(Qt::AlignCenter);
    none_->setWordWrap(true);
    makeActions();
    parts_->setObjectName(QStringLiteral("YogaSplitter"));
    parts_->addWidget(tree_);
    auto* const place = new QWidget(this);
    auto* const placeBox = new QVBoxLayout(place);
    placeBox->setContentsMargins({});
    placeBox->addWidget(makeBar());
    placeBox->addWidget(none_, 1);
    placeBox->addWidget(yoga_, 1);
    parts_->addWidget(place);
    parts_->setStretchFactor(0, 2);
    parts_->setStretchFactor(1, 3);
    parts_->setChildrenCollapsible(false);
    auto* const box = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(gap, gap, gap, gap);
    box->addWidget(parts_);
    setFocusProxy(tree_);
    dependOn(OnChart | OnSecond | OnMoment | OnYogas);

    connect(&desk_, &YogaDesk::selectionChanged, this, [this] {
        showYoga();
        tree_->showSelected();
    });
    connect(&desk_, &YogaDesk::modifiedChanged, this, [this] {
        tree_->fill();
        enableActions();
    });
    connect(&desk_, &YogaDesk::stepsChanged, this, &TYogaTreeForm::enableActions);
    connect(yoga_, &YogaPane::copyWanted, commands_, &YogaCommands::CopyYogaButtonClick);
    // Fields follow at once, so that nothing old is taken over into another yoga.
    connect(&workspace, &Workspace::yogasChanged, this, &TYogaTreeForm::showYoga);
    showYoga();
}

void TYogaTreeForm::makeActions()
{
    const auto action = [this](const QString& text, const char* name, auto* receiver,
                               auto handler) {
        auto* const made = new QAction(text, this);
        made->setObjectName(QLatin1String(name));
        connect(made, &QAction::triggered, receiver, handler);
        actions_ += made;
        return made;
    };
    const auto separator = [this] {
        auto* const line = new QAction(this);
        line->setSeparator(true);
        actions_ += line;
    };
    action(tr("&New Yoga"), "NewYogaButton", commands_, &YogaCommands::NewYogaButtonClick);
    copyAction_ = action(tr("Co&py to My Yogas"), "CopyYogaAction", commands_,
                         &YogaCommands::CopyYogaButtonClick);
    delete_ = action(tr("&Delete Yoga"), "DeleteYogaButton", commands_,
                     &YogaCommands::DeleteYogaButtonClick);
    search_ =
        action(tr("Searc&h Database"), "SearchButton", commands_, &YogaCommands::SearchButtonClick);
    separator();
    undo_ = action(tr("&Undo"), "UndoYogaButton", &desk_, &YogaDesk::undo);
    redo_ = action(tr("&Redo"), "RedoYogaButton", &desk_, &YogaDesk::redo);
    separator();
    action(tr("N&ew File..."), "NewFileButton", commands_, &YogaCommands::NewFileButtonClick);
    action(tr("&Open File..."), "OpenFileButton", commands_, &YogaCommands::OpenFileButtonClick);
    save_ =
        action(tr("&Save File"), "SaveFileButton", commands_, &YogaCommands::SaveFileButtonClick);
    action(tr("Save File &As..."), "SaveFileAsButton", commands_,
           &YogaCommands::SaveFileAsButtonClick);
    action(tr("&Import..."), "ImportButton", commands_, &YogaCommands::ImportButtonClick);
    sortFile_ = action(tr("Sor&t File"), "SortButton", commands_, &YogaCommands::SortButtonClick);
    tree_->tree()->addActions(actions_);
    tree_->tree()->setContextMenuPolicy(Qt::ActionsContextMenu);
}

// The commands that are used most stand over the rule, too.
QWidget* TYogaTreeForm::makeBar()
{
    auto* const bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("YogaToolBar"));
    bar->setAccessibleName(tr("Commands on the yoga"));
    bar->addActions({actions_[0], delete_, search_, undo_, redo_, save_});
    auto* const more = new QToolButton(bar);
    more->setObjectName(QStringLiteral("YogaMenuButton"));
    more->setText(tr("More"));
    more->setToolTip(tr("All commands on yogas and their files"));
    more->setPopupMode(QToolButton::InstantPopup);
    more->addActions(actions_);
    bar->addWidget(more);
    return bar;
}

QString TYogaTreeForm::title() const
{
    return tr("Yogas");
}

QString TYogaTreeForm::helpName() const
{
    return QStringLiteral("TYogaTreeForm");
}

QList<QAction*> TYogaTreeForm::panelActions()
{
    auto* const line = new QAction(this);
    line->setSeparator(true);
    return actions_ + QList<QAction*>{line} + yoga_->rule().commands();
}

std::vector<present::Block> TYogaTreeForm::blocks()
{
    refreshNow();
    const yoga::Yoga* const yoga = desk_.yoga();
    if (yoga == nullptr) {
        return {present::Paragraph{toWide(none_->text())}};
    }
    std::vector<present::Block> blocks;
    blocks.emplace_back(present::Heading{core::fromFileBytes(yoga->title)});
    blocks.emplace_back(present::Paragraph{toWide(yoga_->outcomeText())});
    blocks.emplace_back(present::ruleTable(yoga_->rule().lines(), {}));
    for (const std::string& text : {yoga->interpretation, yoga->comment}) {
        if (!text.empty()) {
            blocks.emplace_back(present::Paragraph{core::fromFileBytes(text)});
        }
    }
    return blocks;
}

YogaSkyPointer TYogaTreeForm::sky() const
{
    const ChartPointer shown = chart();
    return shown ? std::make_shared<const YogaSky>(YogaSky{
                       shown, workspace().secondChart(), workspace().data(), workspace().moment()})
                 : nullptr;
}

// Fields stay as they are: what is being typed does not depend on the chart.
void TYogaTreeForm::refresh()
{
    evaluate();
    if (desk_.yoga() != nullptr) {
        yoga_->explain(sky());
    }
}

void TYogaTreeForm::evaluate()
{
    const YogaSkyPointer now = sky();
    const YogasPointer library = workspace().yogas();
    if (!now) {
        evaluating_.cancel();
        tree_->show(library, {});
        return;
    }
    evaluating_.start(
        [now, library](const WorkHandle& /*handle*/) {
            yoga::Subject subject = now->subject();
            return present::yogaTruths(*library, subject);
        },
        [this, library](present::YogaTruths truths) {
            tree_->show(library, std::move(truths));
            if (!desk_.selected() && library == workspace().yogas()) {
                tree_->selectFirst();
            }
        });
}

void TYogaTreeForm::showYoga()
{
    const bool any = desk_.yoga() != nullptr;
    none_->setVisible(!any);
    yoga_->setVisible(any);
    enableActions();
    yoga_->showYoga(sky());
}

void TYogaTreeForm::enableActions()
{
    const bool any = desk_.yoga() != nullptr;
    const bool own = any && !desk_.isDelivered(desk_.selected()->file);
    QUndoStack* const steps = desk_.steps();
    delete_->setEnabled(own);
    copyAction_->setEnabled(any);
    search_->setEnabled(any);
    sortFile_->setEnabled(own);
    save_->setEnabled(own && desk_.isModified(desk_.selected()->file));
    undo_->setEnabled(steps != nullptr && steps->canUndo());
    redo_->setEnabled(steps != nullptr && steps->canRedo());
    undo_->setToolTip(steps != nullptr && steps->canUndo() ? tr("Undo: %1").arg(steps->undoText())
                                                           : tr("Undo"));
    redo_->setToolTip(steps != nullptr && steps->canRedo() ? tr("Redo: %1").arg(steps->redoText())
                                                           : tr("Redo"));
}

// The keys of the window undo changes of charts; inside this form they are about yogas.
bool TYogaTreeForm::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        const bool saves = key->matches(QKeySequence::Save) && save_->isEnabled();
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo) || saves) {
            event->accept();
            return true;
        }
    }
    return PanelWidget::event(event);
}

void TYogaTreeForm::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Undo)) {
        desk_.undo();
    } else if (event->matches(QKeySequence::Redo)) {
        desk_.redo();
    } else if (event->matches(QKeySequence::Save) && save_->isEnabled()) {
        save_->trigger();
    } else if (event->key() == Qt::Key_Escape && isWindow()) {
        close();
    } else {
        PanelWidget::keyPressEvent(event);
    }
}

// Tree and rule stand side by side where both have room, else below each other.
void TYogaTreeForm::resizeEvent(QResizeEvent* event)
{
    PanelWidget::resizeEvent(event);
    const Qt::Orientation wanted =
        width() < fontMetrics().height() * 50 ? Qt::Vertical : Qt::Horizontal;
    if (parts_->orientation() != wanted) {
        parts_->setOrientation(wanted);
        const int whole = wanted == Qt::Vertical ? height() : width();
        parts_->setSizes({whole * 2 / 5, whole * 3 / 5});
        tree_->scrollToSelected();
    }
}

void TYogaTreeForm::dragEnterEvent(QDragEnterEvent* event)
{
    for (const QUrl& url : event->mimeData()->urls()) {
        if (isYogaFile(url)) {
            event->acceptProposedAction();
            return;
        }
    }
}

void TYogaTreeForm::dropEvent(QDropEvent* event)
{
    for (const QUrl& url : event->mimeData()->urls()) {
        if (isYogaFile(url)) {
            openYogaFile(workspace(), toPath(url.toLocalFile()));
        }
    }
    event->acceptProposedAction();
}

QWidget* makeYogaWindow(Workspace& workspace, QWidget* parent)
{
    present::Panel panel;
    panel.kind = present::PanelKind::View;
    panel.content = "yoga-tree";
    auto* const form = new TYogaTreeForm(workspace, panel, parent);
    form->setWindowFlag(Qt::Window);
    form->setWindowTitle(TYogaTreeForm::tr("Yogas"));
    const int line = form->fontMetrics().height();
    form->resize(line * 77, line * 42);
    form->move(parent->frameGeometry().center() - form->rect().center());
    form->findChild<QSplitter*>(QStringLiteral("YogaSplitter"))->setSizes({line * 31, line * 46});
    return form;
}

} // namespace kestrav::desktop
