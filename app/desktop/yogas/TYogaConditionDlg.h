// The dialog in which a condition of a yoga rule is put together.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "app/present/ConditionDraft.h"
#include "yoga/Subject.h"

#include <QDialog>

#include <memory>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace kestrav::desktop
{

class WordChooser;

/// All kinds of conditions by subject; for the chosen one a field for each of its words. Below
/// stands what the condition says, and whether it holds in the open chart.
class TYogaConditionDlg : public QDialog
{
    Q_OBJECT

public:
    /// Begins with a condition, or with none.
    TYogaConditionDlg(Workspace& workspace, const std::string& condition, QWidget* parent);
    ~TYogaConditionDlg() override;

    /// The condition in the language of rules.
    [[nodiscard]] std::string condition() const;

private:
    void makeKinds();
    void makeVargas();
    void filterKinds();
    void showKind(const yoga::Kind* kind);
    void setDraft(const present::ConditionDraft& draft);
    [[nodiscard]] present::ConditionDraft draft() const;
    void showResult();

    ChartPointer chart_;
    ChartPointer second_;
    std::unique_ptr<yoga::Subject> subject_;
    const yoga::Kind* kind_ = nullptr;
    QLineEdit* filter_;
    QTreeWidget* kinds_;
    QLabel* meaning_;
    QWidget* fields_ = nullptr;
    QWidget* fieldsPlace_;
    std::vector<WordChooser*> choosers_;
    QCheckBox* negated_;
    QCheckBox* exchanged_;
    QGroupBox* inVargas_;
    QComboBox* firstVarga_;
    QComboBox* secondVarga_;
    QComboBox* option_;
    QLabel* sentence_;
    QLabel* truth_;
    QLineEdit* text_;
    QDialogButtonBox* buttons_;
    bool filling_ = false;
};

} // namespace kestrav::desktop
