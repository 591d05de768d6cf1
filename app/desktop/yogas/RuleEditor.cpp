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
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

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
      list_(new QTreeWidget(this)), text_(new QLineEdit(this)), problems_(new QLabel(this))
{
    setObjectName(QStringLiteral("RuleEditor"));
    bar_->setObjectName(QStringLiteral("RuleToolBar"));
    bar_->setAccessibleName(tr("Commands on the rule"));
    list_->setObjectName(QStringLiteral("RuleList"));
    list_->setAccessibleName(tr("Rule"));
    list_->setRootIsDecorated(false);
    list_->setAllColumnsShowFocus(true);
    list_->setWordWrap(true);
    list_->setAlternatingRowColors(true);
    list_->setHeaderLabels({tr("Rule"), tr("Holds"), tr("Why")});
    list_->header()->setSectionsMovable(false);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    list_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(2, QHeaderView::Stretch);
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
    connect(list_, &QTreeWidget::currentItemChanged, this, [this] {
        if (!filling_) {
            const int row = list_->indexOfTopLevelItem(list_->currentItem());
            edit_.select(row < 0 ? std::nullopt : std::optional(std::size_t(row)));
            enableActions();
        }
    });
    connect(list_, &QTreeWidget::itemActivated, this, &RuleEditor::EditConditionButtonClick);
    connect(text_, &QLineEdit::editingFinished, this, &RuleEditor::RuleEditEditingFinished);
    enableActions();
}

void RuleEditor::makeActions()
{
    const auto action = [this](const QString& text, const char* name, const QString& tip,
                               auto handler) {
        auto* const made = new QAction(text, this);
        made->setObjectName(QLatin1String(name));
        made->setToolTip(tip);
        made->setStatusTip(tip);
        connect(made, &QAction::triggered, this, handler);
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

void RuleEditor::fill()
{
    filling_ = true;
    const std::vector<present::RuleLine> shown = lines();
    while (list_->topLevelItemCount() > int(shown.size())) {
        delete list_->takeTopLevelItem(list_->topLevelItemCount() - 1);
    }
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (int(i) >= list_->topLevelItemCount()) {
            new QTreeWidgetItem(list_);
        }
        QTreeWidgetItem* const item = list_->topLevelItem(int(i));
        const present::RuleLine& line = shown[i];
        const QString words = toQt(line.words);
        const QString truth = toQt(present::truthText(line.truth));
        item->setText(0, QString(line.depth * kIndent, QChar(0x00A0)) + words);
        item->setText(1, truth);
        item->setText(2, toQt(line.reason));
        for (int column = 0; column < 3; ++column) {
            item->setTextAlignment(column, Qt::AlignLeft | Qt::AlignTop);
            item->setToolTip(column, column == 0 ? toQt(edit_.tokens()[i]) : item->text(column));
        }
        item->setData(0, Qt::AccessibleTextRole,
                      truth.isEmpty() ? words : words + QStringLiteral(", ") + truth);
        item->setForeground(1, colourOfTruth(line.truth));
    }
    list_->setCurrentItem(edit_.selected() ? list_->topLevelItem(int(*edit_.selected())) : nullptr);
    const QString rule = toQt(core::fromFileBytes(edit_.rule()));
    if (text_->text() != rule) {
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
    if (event->type() == QEvent::PaletteChange && list_ != nullptr && list_->topLevelItemCount()) {
        fill();
    }
}

} // namespace kestrav::desktop
