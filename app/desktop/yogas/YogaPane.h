// The selected yoga with its rule, to read and to edit.
#pragma once

#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/yogas/YogaSky.h"
#include "yoga/YogaLibrary.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

namespace kestrav::desktop
{

class RuleEditor;
class YogaDesk;

/// Fields are taken over when they are left. Delivered yogas cannot be changed, only read and
/// copied.
class YogaPane : public QWidget
{
    Q_OBJECT

public:
    YogaPane(Workspace& workspace, QWidget* parent);

    [[nodiscard]] RuleEditor& rule() const
    {
        return *rule_;
    }
    /// "holds in the chart of ...", or why this is not known.
    [[nodiscard]] QString outcomeText() const;

    /// Shows the selected yoga, where there is one, and tests it.
    void showYoga(const YogaSkyPointer& sky);
    /// Tests the shown yoga; its fields stay as they are.
    void explain(const YogaSkyPointer& sky);
    /// Takes over what was typed.
    void commit();
    /// Writes into the yoga that is selected what was typed and not taken over yet.
    void gather(yoga::Yoga& yoga) const;

signals:
    void copyWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeDeliveredStrip();
    void makeTexts();
    void commitTexts();
    void nameYoga();
    [[nodiscard]] bool mayCommit() const;

    YogaDesk& desk_;
    std::optional<yoga::YogaPlace> shown_;
    bool filling_ = false;
    BackgroundWork explaining_;
    QFrame* delivered_;
    QLineEdit* title_;
    QComboBox* chapter_;
    QLabel* holds_;
    RuleEditor* rule_;
    QTabWidget* texts_;
    QPlainTextEdit* interpretation_;
    QPlainTextEdit* comment_;
};

} // namespace kestrav::desktop
