#include "app/desktop/help/HelpActions.h"

#include "app/desktop/help/TAboutBox.h"
#include "app/desktop/help/THelpForm.h"
#include "app/desktop/help/TQuickTipsDlg.h"
#include "app/desktop/help/TShortcutsDlg.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/PanelCell.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/Ks6main.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMenu>

namespace kestrav::desktop
{

HelpActions::HelpActions(TKSVform1& window) : QObject(&window), window_(window)
{
    window_.addCommand(MenuName::Help,
                       {"HelpAction", tr("&Help on This Panel"), QKeySequence(Qt::Key_F1),
                        tr("Opens the help page of what has the focus"), "help-contents"},
                       [this] { showTopic(topicOfFocus()); });
    window_.addCommand(MenuName::Help, {"ContentsAction", tr("&Contents")},
                       [this] { showTopic(QStringLiteral("index.html")); });
    window_.addCommand(MenuName::Help, {"KeysAction", tr("&Keys...")}, [this] {
        TShortcutsDlg dialog(window_);
        dialog.exec();
    });
    window_.addCommand(MenuName::Help, {"QuickTipsAction", tr("Quick &Tips...")}, [this] {
        TQuickTipsDlg dialog(window_.workspace(), &window_);
        dialog.exec();
    });
    window_.menu(MenuName::Help)->addSeparator();
    window_.addCommand(MenuName::Help,
                       {"AboutAction", tr("&About Kestrav..."), {}, {}, "help-about"}, [this] {
                           TAboutBox box(&window_);
                           box.exec();
                       });
    connect(&window_.workspace(), &Workspace::helpWanted, this, &HelpActions::showTopic);
    // Modal dialogs keep the keys of the menus from working; F1 works in them too.
    qApp->installEventFilter(this);
}

void HelpActions::showTopic(const QString& panelOrForm)
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (!form_ || (modal != nullptr && form_->parentWidget() != modal)) {
        delete form_;
        form_ = new THelpForm(modal != nullptr ? modal : &window_);
        form_->setAttribute(Qt::WA_DeleteOnClose);
    }
    form_->showTopic(panelOrForm);
    form_->show();
    form_->raise();
    form_->activateWindow();
}

QString HelpActions::topicOfFocus() const
{
    for (const QWidget* widget = QApplication::focusWidget(); widget != nullptr;
         widget = widget->parentWidget()) {
        if (const auto* const panel = qobject_cast<const PanelWidget*>(widget)) {
            return panel->helpName();
        }
        if (const auto* const cell = qobject_cast<const PanelCell*>(widget)) {
            return cell->panel()->helpName();
        }
        const QVariant named = widget->property("helpTopic");
        if (named.isValid()) {
            return named.toString();
        }
        if (qobject_cast<const QDialog*>(widget) != nullptr) {
            return widget->objectName();
        }
        // The strip alone has little to tell; the page below it does.
        if (widget == &window_.pages()) {
            break;
        }
        if (qobject_cast<const TKSVform1*>(widget) != nullptr) {
            return QStringLiteral("TKSVform1");
        }
    }
    PageView* const page = window_.pages().page();
    return page != nullptr && !page->cells().empty() ? page->cells().front()->panel()->helpName()
                                                     : QStringLiteral("TKSVform1");
}

bool HelpActions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && QApplication::activeModalWidget() != nullptr &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1 && watched->isWidgetType()) {
        showTopic(topicOfFocus());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void showQuickTip(TKSVform1& window)
{
    if (window.workspace().settings().quickTips) {
        auto* const dialog = new TQuickTipsDlg(window.workspace(), &window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
    }
}

} // namespace kestrav::desktop
