#include "app/desktop/yogas/RuleEditor.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/yogas/TYogaConditionDlg.h"
#include "app/present/ConditionDraft.h"
#include "yoga/RuleCheck.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kIndent = 4; // blanks for one level of brackets

QColor colourOfTruth(present::LiveTruth truth)
{
    switch (truth) {
    case present::LiveTruth::Holds:
        return themeColour(ThemeRole::Good);
    case present::LiveTruth::Fails:
        return themeColour(ThemeRole::Bad);
    default:
        return themeColour(ThemeRole::Quiet);
    }
}

} // namespace

RuleEditor::RuleEditor(Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace), bar_(new QToolBar(this)),
      list_(new QTableWidget(0, 3, this)), text_(new QLineEdit(this)), problems_(new QLabel(this))
{
    setObjectName(QStringLiteral("RuleEditor"));
    bar_->setObjectName(QStringLiteral("RuleToolBar"));
    bar_->setAccessibleName(tr("Commands on the rule"));
    makeList();
    text_->setObjectName(QStringLiteral("RuleTextEdit"));
    text_->setAccessibleName(tr("The rule as text"));
    text_->setPlaceholderText(tr("The rule as text"));
    problems_->setObjectName(QStringLiteral("RuleProblemsLabel"));
    problems_->setWordWrap(true);
    problems_->setTextFormat(Qt::PlainText);
    makeActions();
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(bar_);
    box->addWidget(list_, 1);
    box->addWidget(text_);
    box->addWidget(problems_);
    setFocusProxy(list_);
    connect(text_, &QLineEdit::editingFinished, this, &RuleEditor::RuleEditEditingFinished);
    enableActions();
}

void RuleEditor::makeList()
{
    list_->setObjectName(QStringLiteral("RuleList"));
    list_->setAccessibleName(tr("Rule"));
    list_->setHorizontalHeaderLabels({tr("Rule"), tr("Holds"), tr("Why")});
    list_->verticalHeader()->hide();
    list_->setShowGrid(false);
    list_->setWordWrap(true);
    list_->setAlternatingRowColors(true);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setSelectionBehavior(QAbstractItemView::SelectRows);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setTabKeyNavigation(false);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QHeaderView* const header = list_->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    header->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(2, QHeaderView::Stretch);
    // Sentences are broken between words, so that the heights of rows follow from the widths.
    auto* const fitRows = new QTimer(this);
    fitRows->setSingleShot(true);
    connect(fitRows, &QTimer::timeout, list_, &QTableWidget::resizeRowsToContents);
    connect(header, &QHeaderView::sectionResized, fitRows, [fitRows] { fitRows->start(0); });
    connect(list_, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (!filling_) {
            edit_.select(row < 0 ? std::nullopt : std::optional(std::size_t(row)));
            enableActions();
        }
    });
    connect(list_, &QTableWidget::cellActivated, this, &RuleEditor::EditConditionButtonClick);
}

void RuleEditor::makeActions()
{
    const auto action = [this](const QString& text, const char* name, const QString& tip,
                               auto handler) {
        auto* const made = new QAction(text, this);
        made->setObjectName(QLatin1String(name));
        made->setToolTip(tip);
        made->setStatusTip(tip);
        // Buttons would leave the dots out.
        made->setIconText(QString(text).remove(QLatin1Char('&')));
        connect(made, &QAction::triggered, this, [this, handler] {
            commit();
            handler();
        });
        actions_ += made;
        bar_->addAction(made);
        return made;
    };
    action(tr("&Add Condition..."), "AddConditionButton",
           tr("Puts a condition behind the selected one"), [this] { AddConditionButtonClick(); });
    editAction_ =
        action(tr("&Edit..."), "EditConditionButton", tr("Changes the selected condition"),
               [this] { EditConditionButtonClick(); });
    bar_->addSeparator();
    action(tr("&OR"), "OrButton", tr("An alternative follows"), [this] { OrButtonClick(); });
    notAction_ = action(tr("NO&T"), "NotButton",
                        tr("The next condition that is added is turned into its opposite"),
                        [this] { NotButtonClick(); });
    notAction_->setCheckable(true);
    action(tr("("), "OpenBracketButton", tr("Opens a group"), [this] { OpenBracketButtonClick(); });
    action(tr(")"), "CloseBracketButton", tr("Closes a group"),
           [this] { CloseBracketButtonClick(); });
    bar_->addSeparator();
    negateAction_ =
        action(tr("&Negate"), "NegateButton", tr("Turns the selected condition into its opposite"),
               [this] { NegateButtonClick(); });
    removeAction_ = action(tr("&Remove"), "RemoveButton", tr("Takes the selected part away"),
                           [this] { RemoveButtonClick(); });
    upAction_ =
        action(tr("Move &Up"), "MoveUpButton",
               tr("Moves the selected part before the one above it"), [this] { movePart(-1); });
    upAction_->setIconText(QStringLiteral("\u2191"));
    upAction_->setShortcut(QKeySequence(tr("Ctrl+Up")));
    downAction_ =
        action(tr("Move Do&wn"), "MoveDownButton",
               tr("Moves the selected part behind the one below it"), [this] { movePart(1); });
    downAction_->setIconText(QStringLiteral("\u2193"));
    downAction_->setShortcut(QKeySequence(tr("Ctrl+Down")));
    for (QAction* const moving : {upAction_, downAction_}) {
        moving->setShortcutContext(Qt::WidgetShortcut);
        list_->addAction(moving);
    }
    deleteAction_ = action(tr("&Delete Rule"), "DeleteRuleButton", tr("Takes all parts away"),
                           [this] { DeleteRuleButtonClick(); });
}

void RuleEditor::setRule(const std::string& rule, bool editable)
{
    editable_ = editable;
    if (rule != given_ && rule != edit_.rule()) {
        const std::optional<std::size_t> selected = edit_.selected();
        edit_ = yoga::RuleEdit(rule);
        edit_.select(selected);
        outcome_.reset();
        text_->setModified(false);
    }
    given_ = rule;
    fill();
}

void RuleEditor::setOutcome(std::optional<yoga::RuleOutcome> outcome)
{
    outcome_ = std::move(outcome);
    fill();
}

std::vector<present::RuleLine> RuleEditor::lines() const
{
    return present::ruleLines(edit_.rule(), outcome_ ? &*outcome_ : nullptr);
}

QString RuleEditor::typedRule() const
{
    return text_->isModified() ? text_->text() : toQt(core::fromFileBytes(edit_.rule()));
}

void RuleEditor::fill()
{
    filling_ = true;
    const std::vector<present::RuleLine> shown = lines();
    list_->setRowCount(int(shown.size()));
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const present::RuleLine& line = shown[i];
        const QString words = toQt(line.words);
        const QString truth = toQt(present::truthText(line.truth));
        const std::array<QString, 3> texts = {QString(line.depth * kIndent, QChar(0x00A0)) + words,
                                              truth, toQt(line.reason)};
        for (int column = 0; column < 3; ++column) {
            auto* const item = new QTableWidgetItem(texts[std::size_t(column)]);
            item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
            item->setToolTip(column == 0 ? toQt(edit_.tokens()[i]) : item->text());
            list_->setItem(int(i), column, item);
        }
        list_->item(int(i), 0)->setData(
            Qt::AccessibleTextRole, truth.isEmpty() ? words : words + QStringLiteral(", ") + truth);
        list_->item(int(i), 1)->setForeground(colourOfTruth(line.truth));
    }
    list_->resizeRowsToContents();
    list_->setCurrentCell(edit_.selected() ? int(*edit_.selected()) : -1, 0);
    const QString rule = toQt(core::fromFileBytes(edit_.rule()));
    // What is being typed is not taken away.
    if (text_->text() != rule && !text_->isModified()) {
        text_->setText(rule);
        text_->setCursorPosition(0);
    }
    QStringList problems;
    for (const yoga::RuleProblem& problem : yoga::ruleProblems(edit_.rule())) {
        const QString sentence = toQt(core::fromFileBytes(problem.text));
        problems += sentence.left(1).toUpper() + sentence.mid(1) + QLatin1Char('.');
    }
    problems_->setText(problems.join(QLatin1Char('\n')));
    problems_->setVisible(!problems.isEmpty());
    filling_ = false;
    enableActions();
}

void RuleEditor::enableActions()
{
    for (QAction* const action : std::as_const(actions_)) {
        action->setEnabled(editable_);
    }
    const auto selected = edit_.selected();
    const bool condition =
        selected && yoga::tokenKind(edit_.tokens()[*selected]) == yoga::TokenKind::Condition;
    editAction_->setEnabled(editable_ && condition);
    negateAction_->setEnabled(editable_ && condition);
    removeAction_->setEnabled(editable_ && selected);
    upAction_->setEnabled(editable_ && selected && *selected > 0);
    downAction_->setEnabled(editable_ && selected && *selected + 1 < edit_.tokens().size());
    deleteAction_->setEnabled(editable_ && !edit_.tokens().empty());
    notAction_->setChecked(edit_.notGiven());
    text_->setReadOnly(!editable_);
}

void RuleEditor::edited(const QString& what)
{
    outcome_.reset();
    fill();
    emit ruleChanged(what, edit_.rule());
}

void RuleEditor::add(const QString& what, core::Result<void> (yoga::RuleEdit::*command)())
{
    if (const core::Result<void> added = (edit_.*command)(); !added) {
        workspace_.tellProblem(toQt(added.error().text()));
        return;
    }
    edited(what);
}

void RuleEditor::AddConditionButtonClick()
{
    TYogaConditionDlg dialog(workspace_, {}, this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    if (const core::Result<void> added = edit_.addCondition(dialog.condition()); !added) {
        workspace_.tellProblem(toQt(added.error().text()));
        return;
    }
    edited(tr("add condition"));
}

void RuleEditor::EditConditionButtonClick()
{
    const auto selected = edit_.selected();
    if (!editAction_->isEnabled() || !selected) {
        return;
    }
    std::vector<std::string> tokens(edit_.tokens().begin(), edit_.tokens().end());
    if (!present::readDraft(tokens[*selected])) {
        workspace_.tell(tr("This condition cannot be shown in the dialog; change it as text."));
        text_->setFocus();
        return;
    }
    TYogaConditionDlg dialog(workspace_, tokens[*selected], this);
    if (dialog.exec() != QDialog::Accepted || dialog.condition() == tokens[*selected]) {
        return;
    }
    tokens[*selected] = dialog.condition();
    edit_ = yoga::RuleEdit(yoga::joinRule(tokens));
    edit_.select(selected);
    edited(tr("edit condition"));
}

void RuleEditor::OrButtonClick()
{
    add(tr("add OR"), &yoga::RuleEdit::addOr);
}

void RuleEditor::NotButtonClick()
{
    edit_.toggleNot();
    enableActions();
}

void RuleEditor::OpenBracketButtonClick()
{
    add(tr("add bracket"), &yoga::RuleEdit::addOpen);
}

void RuleEditor::CloseBracketButtonClick()
{
    add(tr("add bracket"), &yoga::RuleEdit::addClose);
}

void RuleEditor::NegateButtonClick()
{
    if (edit_.negateSelected()) {
        edited(tr("negate condition"));
    }
}

void RuleEditor::RemoveButtonClick()
{
    if (edit_.removeSelected()) {
        edited(tr("remove from rule"));
    }
}

// What is added stands behind the selected part; so a bracket comes before the first one.
void RuleEditor::movePart(std::ptrdiff_t by)
{
    const auto selected = edit_.selected();
    std::vector<std::string> tokens(edit_.tokens().begin(), edit_.tokens().end());
    const std::ptrdiff_t to = std::ptrdiff_t(selected.value_or(0)) + by;
    if (!selected || to < 0 || to >= std::ptrdiff_t(tokens.size())) {
        return;
    }
    std::swap(tokens[*selected], tokens[std::size_t(to)]);
    edit_ = yoga::RuleEdit(yoga::joinRule(tokens));
    edit_.select(std::size_t(to));
    edited(tr("move part"));
}

void RuleEditor::DeleteRuleButtonClick()
{
    TMessages messages;
    if (edit_.clear(messages)) {
        outcome_.reset();
        fill();
        emit ruleDeleted();
    }
}

void RuleEditor::RuleEditEditingFinished()
{
    const std::string typed = toUtf8(text_->text().trimmed());
    text_->setModified(false);
    if (!editable_ || typed == edit_.rule()) {
        return;
    }
    if (typed.size() > yoga::kLongestRule) {
        workspace_.tellProblem(tr("The rule is too long."));
        return;
    }
    edit_ = yoga::RuleEdit(typed);
    edited(tr("type rule"));
}

void RuleEditor::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && list_ != nullptr && list_->rowCount() > 0) {
        fill();
    }
}

} // namespace kestrav::desktop
