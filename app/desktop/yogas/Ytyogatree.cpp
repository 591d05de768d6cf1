#include "app/desktop/yogas/Ytyogatree.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/yogas/RuleEditor.h"
#include "app/desktop/yogas/YogaCommands.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/present/RuleLines.h"
#include "yoga/YogaListEdit.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTimer>
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

QString textOf(const std::string& bytes)
{
    return toQt(core::fromFileBytes(bytes));
}

void setText(QLineEdit& field, const QString& text)
{
    if (field.text() != text) {
        field.setText(text);
        field.setCursorPosition(0);
    }
}

void setText(QPlainTextEdit& field, const QString& text)
{
    if (field.toPlainText() != text) {
        field.setPlainText(text);
    }
}

bool isYogaFile(const QUrl& url)
{
    return url.isLocalFile() && url.fileName().endsWith(QLatin1String(".ksy"), Qt::CaseInsensitive);
}

} // namespace

struct TYogaTreeForm::Sky
{
    ChartPointer chart;
    ChartPointer second;
    DataPointer data;
    double moment = 0.0;

    [[nodiscard]] yoga::Subject subject() const
    {
        yoga::Subject made(chart->settings, &data->series);
        made.setChart(chart->chart);
        made.setSecondChart(second ? &second->chart : nullptr);
        made.setMoment(moment);
        return made;
    }
};

TYogaTreeForm::TYogaTreeForm(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), desk_(YogaDesk::of(workspace)),
      commands_(new YogaCommands(workspace, this)), model_(new YogaTreeModel(this)),
      filter_(new QLineEdit(this)), onlyHolding_(new QCheckBox(tr("Only those that &hold"), this)),
      sorted_(new QToolButton(this)), tree_(new QTreeView(this)), delivered_(new QFrame(this)),
      copy_(new QPushButton(tr("Co&py to My Yogas"), this)), title_(new QLineEdit(this)),
      chapter_(new QComboBox(this)), holds_(new QLabel(this)),
      rule_(new RuleEditor(workspace, this)), texts_(new QTabWidget(this)),
      interpretation_(new QPlainTextEdit(this)), comment_(new QPlainTextEdit(this)),
      none_(new QLabel(tr("Select a yoga in the tree, or begin a new one."), this))
{
    setObjectName(QStringLiteral("TYogaTreeForm"));
    setAcceptDrops(true);
    parts_ = new QSplitter(this);
    parts_->setObjectName(QStringLiteral("YogaSplitter"));
    parts_->addWidget(makeTreeSide());
    auto* const place = new QWidget(this);
    auto* const placeBox = new QVBoxLayout(place);
    placeBox->setContentsMargins({});
    yogaSide_ = makeYogaSide();
    none_->setAlignment(Qt::AlignCenter);
    none_->setWordWrap(true);
    placeBox->addWidget(none_, 1);
    placeBox->addWidget(yogaSide_, 1);
    parts_->addWidget(place);
    parts_->setStretchFactor(0, 2);
    parts_->setStretchFactor(1, 3);
    parts_->setChildrenCollapsible(false);
    auto* const box = new QHBoxLayout(this);
    const int gap = fontMetrics().height() / 3;
    box->setContentsMargins(gap, gap, gap, gap);
    box->addWidget(parts_);
    makeActions();
    setFocusProxy(tree_);
    dependOn(OnChart | OnSecond | OnMoment | OnYogas);

    connect(&desk_, &YogaDesk::selectionChanged, this, [this] {
        showYoga();
        showSelectedInTree();
    });
    connect(&desk_, &YogaDesk::commitWanted, this, &TYogaTreeForm::commit);
    connect(&desk_, &YogaDesk::modifiedChanged, this, [this] {
        fillTree();
        enableActions();
    });
    // Fields follow at once, so that nothing old is taken over into another yoga.
    connect(&workspace, &Workspace::yogasChanged, this, &TYogaTreeForm::showYoga);
    showYoga();
}

QWidget* TYogaTreeForm::makeTreeSide()
{
    auto* const side = new QWidget(this);
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setPlaceholderText(tr("Filter by title or chapter"));
    filter_->setAccessibleName(tr("Filter of the yogas"));
    filter_->setClearButtonEnabled(true);
    onlyHolding_->setObjectName(QStringLiteral("OnlyHoldingCheckBox"));
    const auto button = [side](const QString& text, const char* name, const QString& tip) {
        auto* const made = new QToolButton(side);
        made->setObjectName(QLatin1String(name));
        made->setText(text);
        made->setToolTip(tip);
        return made;
    };
    auto* const expand = button(tr("Expand"), "ExpandButton", tr("Opens the whole tree"));
    auto* const contract = button(tr("Contract"), "ContractButton", tr("Closes the whole tree"));
    sorted_->setObjectName(QStringLiteral("SortedButton"));
    sorted_->setText(tr("A\u2013Z"));
    sorted_->setToolTip(tr("Shows the yogas of a chapter sorted by title"));
    sorted_->setAccessibleName(tr("Sorted by title"));
    sorted_->setCheckable(true);
    tree_->setObjectName(QStringLiteral("YogaTree"));
    tree_->setAccessibleName(tr("Yogas"));
    tree_->setModel(model_);
    tree_->setUniformRowHeights(true);
    tree_->setAllColumnsShowFocus(true);
    tree_->setFrameShape(QFrame::StyledPanel);
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    auto* const box = new QVBoxLayout(side);
    box->setContentsMargins({});
    box->addWidget(filter_);
    auto* const row = new QHBoxLayout;
    row->addWidget(onlyHolding_, 1);
    row->addWidget(sorted_);
    row->addWidget(expand);
    row->addWidget(contract);
    box->addLayout(row);
    box->addWidget(tree_, 1);
    connect(filter_, &QLineEdit::textChanged, this, &TYogaTreeForm::fillTree);
    connect(onlyHolding_, &QCheckBox::toggled, this, &TYogaTreeForm::fillTree);
    connect(sorted_, &QToolButton::toggled, this, &TYogaTreeForm::fillTree);
    connect(expand, &QToolButton::clicked, this, &TYogaTreeForm::ExpandButtonClick);
    connect(contract, &QToolButton::clicked, this, &TYogaTreeForm::ContractButtonClick);
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (const auto place = model_->placeOf(current); place && !filling_) {
                    desk_.select(place);
                }
            });
    connect(tree_, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!filling_) {
            contracted_.insert(model_->keyOf(index));
        }
    });
    connect(tree_, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { contracted_.remove(model_->keyOf(index)); });
    return side;
}

QWidget* TYogaTreeForm::makeYogaSide()
{
    auto* const side = new QWidget(this);
    title_->setObjectName(QStringLiteral("TitleEdit"));
    chapter_->setObjectName(QStringLiteral("ChapterComboBox"));
    chapter_->setEditable(true);
    chapter_->setInsertPolicy(QComboBox::NoInsert);
    chapter_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    holds_->setObjectName(QStringLiteral("HoldsLabel"));
    holds_->setTextFormat(Qt::PlainText);
    holds_->setWordWrap(true);
    interpretation_->setObjectName(QStringLiteral("InterpretationMemo"));
    interpretation_->setAccessibleName(tr("Interpretation"));
    comment_->setObjectName(QStringLiteral("CommentMemo"));
    comment_->setAccessibleName(tr("Comment"));
    for (QPlainTextEdit* const memo : {interpretation_, comment_}) {
        memo->setTabChangesFocus(true);
        memo->setFrameShape(QFrame::NoFrame);
        memo->installEventFilter(this);
    }
    texts_->setObjectName(QStringLiteral("TextsTab"));
    texts_->addTab(interpretation_, tr("&Interpretation"));
    texts_->addTab(comment_, tr("Co&mment"));
    texts_->setMinimumHeight(fontMetrics().height() * 5);
    rule_->setMinimumHeight(fontMetrics().height() * 13);
    delivered_->setObjectName(QStringLiteral("DeliveredFrame"));
    delivered_->setFrameShape(QFrame::StyledPanel);
    copy_->setObjectName(QStringLiteral("CopyYogaButton"));
    copy_->setAutoDefault(false);
    auto* const why = new QLabel(tr("Delivered with the program, to read only."), this);
    why->setWordWrap(true);
    auto* const strip = new QHBoxLayout(delivered_);
    strip->addWidget(why, 1);
    strip->addWidget(copy_);
    const int gap = fontMetrics().height() / 3;
    strip->setContentsMargins(gap, gap / 2, gap / 2, gap / 2);
    const auto label = [this](const QString& text, QWidget* buddy) {
        auto* const made = new QLabel(text, this);
        made->setBuddy(buddy);
        return made;
    };
    auto* const names = new QHBoxLayout;
    names->addWidget(label(tr("&Title:"), title_));
    names->addWidget(title_, 3);
    names->addWidget(label(tr("&Chapter:"), chapter_));
    names->addWidget(chapter_, 2);
    auto* const below = new QSplitter(Qt::Vertical, side);
    below->setObjectName(QStringLiteral("RuleSplitter"));
    below->addWidget(rule_);
    below->addWidget(texts_);
    below->setStretchFactor(0, 3);
    below->setStretchFactor(1, 1);
    below->setChildrenCollapsible(false);
    auto* const box = new QVBoxLayout(side);
    box->setContentsMargins({});
    box->addWidget(delivered_);
    box->addLayout(names);
    box->addWidget(holds_);
    box->addWidget(below, 1);
    connect(title_, &QLineEdit::editingFinished, this, &TYogaTreeForm::commit);
    connect(chapter_->lineEdit(), &QLineEdit::editingFinished, this, &TYogaTreeForm::commit);
    connect(chapter_, &QComboBox::activated, this, &TYogaTreeForm::commit);
    connect(copy_, &QPushButton::clicked, commands_, &YogaCommands::CopyYogaButtonClick);
    connect(rule_, &RuleEditor::ruleChanged, this,
            [this](const QString& what, const std::string& rule) { desk_.changeRule(what, rule); });
    connect(rule_, &RuleEditor::ruleDeleted, this, [this] { desk_.deleteRule(); });
    return side;
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
    // The commands that are used most stand over the rule, too.
    auto* const bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("YogaToolBar"));
    bar->setAccessibleName(tr("Commands on the yoga"));
    bar->addActions({actions_[0], delete_, search_, undo_, redo_, save_});
    static_cast<QVBoxLayout*>(yogaSide_->parentWidget()->layout())->insertWidget(0, bar);
    tree_->addActions(actions_);
    tree_->setContextMenuPolicy(Qt::ActionsContextMenu);
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
    return actions_ + QList<QAction*>{line} + rule_->commands();
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
    blocks.emplace_back(present::Paragraph{toWide(holds_->text())});
    blocks.emplace_back(present::ruleTable(rule_->lines(), {}));
    for (const std::string& text : {yoga->interpretation, yoga->comment}) {
        if (!text.empty()) {
            blocks.emplace_back(present::Paragraph{core::fromFileBytes(text)});
        }
    }
    return blocks;
}

std::shared_ptr<const TYogaTreeForm::Sky> TYogaTreeForm::sky() const
{
    const ChartPointer shown = chart();
    return shown ? std::make_shared<const Sky>(Sky{shown, workspace().secondChart(),
                                                   workspace().data(), workspace().moment()})
                 : nullptr;
}

// Fields stay as they are: what is being typed does not depend on the chart.
void TYogaTreeForm::refresh()
{
    evaluate();
    if (desk_.yoga() != nullptr) {
        explain();
    }
}

void TYogaTreeForm::evaluate()
{
    const std::shared_ptr<const Sky> now = sky();
    const YogasPointer library = workspace().yogas();
    if (!now) {
        evaluating_.cancel();
        truths_.clear();
        shownLibrary_ = library;
        fillTree();
        return;
    }
    evaluating_.start(
        [now, library](const WorkHandle& /*handle*/) {
            yoga::Subject subject = now->subject();
            return present::yogaTruths(*library, subject);
        },
        [this, library](present::YogaTruths truths) {
            truths_ = std::move(truths);
            shownLibrary_ = library;
            fillTree();
            selectFirst();
        });
}

// The first yoga that holds, so that the form has something to show.
void TYogaTreeForm::selectFirst()
{
    if (desk_.selected() || shownLibrary_ != workspace().yogas()) {
        return;
    }
    for (const yoga::YogaPlace& place : shownLibrary_->all()) {
        if (present::holdsIn(truths_, place)) {
            desk_.select(place);
            return;
        }
    }
}

void TYogaTreeForm::fillTree()
{
    if (!shownLibrary_) {
        return;
    }
    present::YogaTreeChoice choice;
    choice.filter = toWide(filter_->text().trimmed());
    choice.onlyHolding = onlyHolding_->isChecked();
    choice.sorted = sorted_->isChecked();
    const int scrolled = tree_->verticalScrollBar()->value();
    filling_ = true;
    model_->setTree(shownLibrary_, truths_, choice, [this](std::size_t file) {
        return desk_.isDelivered(file)  ? tr("read only")
               : desk_.isModified(file) ? tr("changed")
                                        : QString();
    });
    // A filter shows what it found.
    const bool all = !choice.filter.empty() || choice.onlyHolding;
    const auto expandBelow = [this, all](const QModelIndex& parent, const auto& self) -> void {
        for (int row = 0; row < model_->rowCount(parent); ++row) {
            const QModelIndex index = model_->index(row, 0, parent);
            if (model_->rowCount(index) > 0) {
                tree_->setExpanded(index, all || !contracted_.contains(model_->keyOf(index)));
                self(index, self);
            }
        }
    };
    expandBelow({}, expandBelow);
    filling_ = false;
    tree_->verticalScrollBar()->setValue(scrolled);
    showSelectedInTree();
}

void TYogaTreeForm::showSelectedInTree()
{
    const QModelIndex index = desk_.selected() ? model_->indexOf(*desk_.selected()) : QModelIndex();
    if (index != tree_->currentIndex().siblingAtColumn(0)) {
        filling_ = true;
        tree_->setCurrentIndex(index);
        filling_ = false;
        scrollToSelected();
    }
}

// After the sizes of everything have settled.
void TYogaTreeForm::scrollToSelected()
{
    QTimer::singleShot(0, tree_, [this] { tree_->scrollTo(tree_->currentIndex()); });
}

void TYogaTreeForm::showYoga()
{
    const yoga::Yoga* const yoga = desk_.yoga();
    shownPlace_ = desk_.selected();
    none_->setVisible(yoga == nullptr);
    yogaSide_->setVisible(yoga != nullptr);
    enableActions();
    if (yoga == nullptr) {
        explaining_.cancel();
        return;
    }
    const bool readOnly = desk_.isDelivered(shownPlace_->file);
    filling_ = true;
    delivered_->setVisible(readOnly);
    setText(*title_, textOf(yoga->title));
    title_->setReadOnly(readOnly);
    chapter_->clear();
    for (const std::string& name :
         yoga::chaptersOf(desk_.library().files()[shownPlace_->file].file)) {
        if (!name.empty()) {
            chapter_->addItem(textOf(name));
        }
    }
    chapter_->setEditText(textOf(yoga->chapter));
    chapter_->setEnabled(!readOnly);
    setText(*interpretation_, textOf(yoga->interpretation));
    setText(*comment_, textOf(yoga->comment));
    interpretation_->setReadOnly(readOnly);
    comment_->setReadOnly(readOnly);
    rule_->setRule(yoga->rule, !readOnly);
    filling_ = false;
    explain();
}

void TYogaTreeForm::explain()
{
    const std::shared_ptr<const Sky> now = sky();
    core::Result<yoga::YogaRule> read = yoga::readCheckedRule(desk_.yoga()->rule);
    QPalette colours = holds_->palette();
    colours.setColor(QPalette::WindowText, themeColour(ThemeRole::Quiet));
    if (!now || !read) {
        explaining_.cancel();
        rule_->setOutcome(std::nullopt);
        holds_->setText(!now ? tr("No chart is open.") : tr("The rule cannot be tested."));
        holds_->setPalette(colours);
        return;
    }
    explaining_.start(
        [now, rule = std::move(read.value())](const WorkHandle& /*handle*/) {
            yoga::Subject subject = now->subject();
            return yoga::explainRule(rule, subject);
        },
        [this, now](yoga::RuleOutcome outcome) {
            QPalette result = holds_->palette();
            result.setColor(QPalette::WindowText,
                            themeColour(outcome.truth ? ThemeRole::Good : ThemeRole::Bad));
            holds_->setPalette(result);
            holds_->setText(toQt(present::truthText(outcome.truth ? present::LiveTruth::Holds
                                                                  : present::LiveTruth::Fails)) +
                            tr(" in the chart of %1").arg(toQt(now->chart->chart.name)));
            rule_->setOutcome(std::move(outcome));
        });
}

void TYogaTreeForm::commit()
{
    commitTexts();
    if (!filling_) {
        rule_->commit();
    }
}

void TYogaTreeForm::commitTexts()
{
    const yoga::Yoga* const yoga = desk_.yoga();
    const auto& place = desk_.selected();
    if (filling_ || yoga == nullptr || !shownPlace_ || place->file != shownPlace_->file ||
        place->yoga != shownPlace_->yoga || desk_.isDelivered(place->file)) {
        return;
    }
    const std::string title = toUtf8(title_->text().trimmed());
    const std::string chapter = toUtf8(chapter_->currentText().trimmed());
    const std::string interpretation = toUtf8(interpretation_->toPlainText().trimmed());
    const std::string comment = toUtf8(comment_->toPlainText().trimmed());
    const auto differs = [](const std::string& typed, const std::string& kept) {
        return toQt(typed) != textOf(kept);
    };
    if (!differs(title, yoga->title) && !differs(chapter, yoga->chapter) &&
        !differs(interpretation, yoga->interpretation) && !differs(comment, yoga->comment)) {
        return;
    }
    const QString what = differs(title, yoga->title)       ? tr("change title")
                         : differs(chapter, yoga->chapter) ? tr("change chapter")
                         : differs(interpretation, yoga->interpretation)
                             ? tr("change interpretation")
                             : tr("change comment");
    desk_.changeYoga(what, [&](yoga::Yoga& changed) {
        changed.title = title;
        changed.chapter = chapter;
        changed.interpretation = interpretation;
        changed.comment = comment;
    });
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

void TYogaTreeForm::ExpandButtonClick()
{
    contracted_.clear();
    tree_->expandAll();
}

void TYogaTreeForm::ContractButtonClick()
{
    tree_->collapseAll();
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
        scrollToSelected();
    }
}

bool TYogaTreeForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && (watched == interpretation_ || watched == comment_)) {
        commit();
    }
    return PanelWidget::eventFilter(watched, event);
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
    form->resize(line * 72, line * 42);
    form->findChild<QSplitter*>(QStringLiteral("YogaSplitter"))->setSizes({line * 31, line * 41});
    return form;
}

} // namespace kestrav::desktop
