// A yoga rule as a list of tokens that can be edited.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "app/present/RuleLines.h"
#include "yoga/RuleEdit.h"

#include <QList>
#include <QWidget>

#include <cstddef>
#include <optional>
#include <string>

class QAction;
class QLabel;
class QLineEdit;
class QTableWidget;
class QToolBar;

namespace kestrav::desktop
{

/// Shows each condition in words, indented by its brackets, with what became of it in a chart. The
/// rule is given back after every change; it need not have matching brackets.
class RuleEditor : public QWidget
{
    Q_OBJECT

public:
    RuleEditor(Workspace& workspace, QWidget* parent);

    /// Shows a rule. The selected token stays where the rule is the same.
    void setRule(const std::string& rule, bool editable);
    /// What became of the rule; nothing without a chart.
    void setOutcome(std::optional<yoga::RuleOutcome> outcome);

    /// Takes over what was typed as text.
    void commit()
    {
        RuleEditEditingFinished();
    }
    /// The rule with what is being typed as text.
    [[nodiscard]] QString typedRule() const;
    [[nodiscard]] std::vector<present::RuleLine> lines() const;
    /// The commands on the rule, for menus.
    [[nodiscard]] const QList<QAction*>& commands() const
    {
        return actions_;
    }

signals:
    void ruleChanged(const QString& what, const std::string& rule);
    /// The whole rule is to be deleted; the user agreed.
    void ruleDeleted();

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeActions();
    void AddConditionButtonClick();
    void EditConditionButtonClick();
    void OrButtonClick();
    void NotButtonClick();
    void OpenBracketButtonClick();
    void CloseBracketButtonClick();
    void NegateButtonClick();
    void RemoveButtonClick();
    void movePart(std::ptrdiff_t by);
    void DeleteRuleButtonClick();
    void RuleEditEditingFinished();
    void add(const QString& what, core::Result<void> (yoga::RuleEdit::*command)());
    void edited(const QString& what);
    void makeList();
    void fill();
    void enableActions();

    Workspace& workspace_;
    std::string given_; ///< as the yoga has it
    yoga::RuleEdit edit_;
    std::optional<yoga::RuleOutcome> outcome_;
    bool editable_ = false;
    bool filling_ = false;
    QToolBar* bar_;
    QTableWidget* list_;
    QLineEdit* text_;
    QLabel* problems_;
    QList<QAction*> actions_;
    QAction* editAction_ = nullptr;
    QAction* notAction_ = nullptr;
    QAction* negateAction_ = nullptr;
    QAction* removeAction_ = nullptr;
    QAction* upAction_ = nullptr;
    QAction* downAction_ = nullptr;
    QAction* deleteAction_ = nullptr;
};

} // namespace kestrav::desktop
