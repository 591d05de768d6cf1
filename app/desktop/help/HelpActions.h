// The commands of the Help menu, F1, and the tip at the start.
#pragma once

#include <QObject>
#include <QPointer>

namespace kestrav::desktop
{

class THelpForm;
class TKSVform1;

class HelpActions : public QObject
{
    Q_OBJECT

public:
    explicit HelpActions(TKSVform1& window);

    /// Opens the help at the page of a panel, form or dialog.
    void showTopic(const QString& panelOrForm);
    /// The topic of what has the focus.
    [[nodiscard]] QString topicOfFocus() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TKSVform1& window_;
    QPointer<THelpForm> form_;
};

/// Shows a quick tip unless the user switched them off.
void showQuickTip(TKSVform1& window);

} // namespace kestrav::desktop
