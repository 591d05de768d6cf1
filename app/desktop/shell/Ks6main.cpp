#include "app/desktop/shell/Ks6main.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/EntryActions.h"
#include "app/desktop/help/HelpActions.h"
#include "app/desktop/help/TShortcutsDlg.h"
#include "app/desktop/inspector/InspectorPanel.h"
#include "app/desktop/options/OptionsActions.h"
#include "app/desktop/options/TOptionsDlg.h"
#include "app/desktop/pages/DeliveredPages.h"
#include "app/desktop/pages/PageActions.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/pages/SavedPages.h"
#include "app/desktop/palette/TPaletteDlg.h"
#include "app/desktop/printing/PrintActions.h"
#include "app/desktop/shell/ChangedPointsText.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/DateBar.h"
#include "app/desktop/shell/Icons.h"
#include "app/desktop/shell/NewsBar.h"
#include "app/desktop/shell/StateFile.h"
#include "app/desktop/shell/StatusLine.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/timing/TimingActions.h"
#include "app/desktop/yogas/YogaActions.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kZoomStep = 10;

// A shared date so near to the present is not kept: the next start has a present of its own.
constexpr double kPresentDays = 1.0;
constexpr char kMomentKey[] = "window/moment";
constexpr double kLastMoment = 1e7; ///< of a damaged memory; a Julian day in the year 22666

// In heights of a line.
constexpr int kWidth = 100;
constexpr int kHeight = 60;
constexpr int kLeftWidth = 18;
constexpr int kRightWidth = 18;

} // namespace

TKSVform1::TKSVform1(Workspace& workspace)
    : workspace_(workspace), news_(new NewsBar(this)), pages_(new PageStrip(workspace, this)),
      dateBar_(new DateBar(workspace, this)), panes_(new QSplitter(this))
{
    setObjectName(QStringLiteral("TKSVform1"));
    setAcceptDrops(true);
    auto* const centre = new QWidget(this);
    auto* const box = new QVBoxLayout(centre);
    box->setContentsMargins({});
    box->setSpacing(0);
    box->addWidget(news_);
    panes_->setObjectName(QStringLiteral("Panes"));
    panes_->setChildrenCollapsible(false);
    panes_->addWidget(pages_);
    box->addWidget(panes_, 1);
    box->addWidget(dateBar_);
    setCentralWidget(centre);
    statusBar()->setObjectName(QStringLiteral("StatusBar"));

    connect(&workspace_, &Workspace::news, news_, &NewsBar::show);
    connect(&workspace_, &Workspace::chartChanged, this, &TKSVform1::showTitle);
    connect(&workspace_.database(), &OpenDatabase::modifiedChanged, this, &TKSVform1::showTitle);
    connect(&workspace_.database(), &OpenDatabase::reset, this, &TKSVform1::showTitle);
    connect(&workspace_, &Workspace::pageWanted, this,
            [this](const QString& name) { pages_->show(name); });
    connect(&workspace_, &Workspace::settingsChanged, this,
            [this] { applyTheme(workspace_.settings()); });
    connect(&workspace_, &Workspace::settingWanted, this, [this](const QString& name) {
        TOptionsDlg dialog(*this, this);
        dialog.showSetting(toUtf8(name));
        dialog.exec();
    });

    makeMenus();
    std::vector<std::string> problems;
    pages_->setPages(deliveredPages(problems));
    for (const std::string& problem : problems) {
        workspace_.tellProblem(toQt(problem));
    }
    takeStandardSize();
    showTitle();
}

TKSVform1::~TKSVform1() = default;

// As large as is comfortable, within the screen; the panes beside the pages keep their width.
void TKSVform1::takeStandardSize()
{
    const int line = fontMetrics().height();
    resize(QSize(line * kWidth, line * kHeight).boundedTo(screen()->availableSize()));
    QList<int> sizes;
    for (int i = 0; i < panes_->count(); ++i) {
        const QWidget* const pane = panes_->widget(i);
        sizes += pane == pages_ ? width() : line * (pane == left_ ? kLeftWidth : kRightWidth);
    }
    panes_->setSizes(sizes);
}

QMenu* TKSVform1::menu(MenuName name)
{
    return menus_.at(name);
}

QAction* TKSVform1::addCommand(MenuName menuName, const Command& command,
                               std::function<void()> handler)
{
    return addCommand(menu(menuName), command, std::move(handler));
}

QAction* TKSVform1::addCommand(QMenu* menu, const Command& command, std::function<void()> handler)
{
    QAction* const action = menu->addAction(command.text);
    action->setObjectName(QLatin1String(command.name));
    action->setShortcut(command.keys);
    action->setStatusTip(command.tip);
    action->setToolTip(command.tip.isEmpty() ? QString(command.text).remove('&') : command.tip);
    action->setCheckable(command.checkable);
    if (*command.icon != '\0') {
        action->setIcon(icon(command.icon));
    }
    connect(action, &QAction::triggered, this, std::move(handler));
    commands_ += action;
    if (command.needsChart) {
        chartCommands_ += action;
        action->setEnabled(workspace_.chart() != nullptr);
    }
    return action;
}

void TKSVform1::makeMenus()
{
    const std::pair<MenuName, QString> titles[] = {
        {MenuName::File, tr("&File")},       {MenuName::Edit, tr("&Edit")},
        {MenuName::Chart, tr("&Chart")},     {MenuName::View, tr("&View")},
        {MenuName::Pages, tr("&Pages")},     {MenuName::Options, tr("&Options")},
        {MenuName::Confirm, tr("Confir&m")}, {MenuName::Tools, tr("&Tools")},
        {MenuName::Help, tr("&Help")}};
    for (const auto& [name, title] : titles) {
        menus_[name] = menuBar()->addMenu(title);
    }
    new PageActions(*this);
    makeOthers();
    makeViewMenu();
    new HelpActions(*this);
    restoreShortcuts(*this);
    connect(&workspace_, &Workspace::chartChanged, this, [this] {
        for (QAction* const action : std::as_const(chartCommands_)) {
            action->setEnabled(workspace_.chart() != nullptr);
        }
    });
}

// The commands of every part of the program, in the order in which they stand in the menus.
void TKSVform1::makeOthers()
{
    setRightPane(makeInspectorPane(workspace_, this));
    new DatabaseActions(*this);
    new PrintActions(*this);
    addCommand(MenuName::File,
               {"QuitAction", tr("&Quit"), QKeySequence(tr("Ctrl+Q")), tr("Leaves the program"),
                "application-exit"},
               [this] { close(); });
    new OptionsActions(*this);
    new StatusLine(*this);
    new EntryActions(*this);
    new TimingActions(*this);
    new YogaActions(*this);
}

void TKSVform1::makeViewMenu()
{
    const auto toggle = [](QWidget* pane) {
        if (pane != nullptr) {
            pane->setVisible(pane->isHidden());
        }
    };
    addCommand(MenuName::View, {"ChartListAction", tr("Chart &List"), QKeySequence(Qt::Key_F9)},
               [this, toggle] { toggle(left_); });
    addCommand(MenuName::View, {"InspectorAction", tr("&Inspector"), QKeySequence(Qt::Key_F10)},
               [this, toggle] { toggle(right_); });
    addCommand(MenuName::View, {"DateBarAction", tr("&Date Bar"), QKeySequence(Qt::Key_F11)},
               [this, toggle] { toggle(dateBar_); });
    menu(MenuName::View)->addSeparator();
    addCommand(MenuName::View,
               {"PaletteAction", tr("&Find Anything..."), QKeySequence(tr("Ctrl+K")),
                tr("Finds commands, charts, pages, settings and points")},
               [this] {
                   TPaletteDlg palette(*this);
                   palette.exec();
               });
    addCommand(MenuName::View, {"NextCellAction", tr("&Next Cell"), QKeySequence(Qt::Key_F6)},
               [this] {
                   if (pages_->page() != nullptr) {
                       pages_->page()->focusCell(1);
                   }
               });
    addCommand(MenuName::View,
               {"PreviousCellAction", tr("&Previous Cell"), QKeySequence(tr("Shift+F6"))}, [this] {
                   if (pages_->page() != nullptr) {
                       pages_->page()->focusCell(-1);
                   }
               });
    menu(MenuName::View)->addSeparator();
    const auto zoom = [this](int change) {
        core::Settings settings = workspace_.settings();
        core::storeSetting(settings, *core::findSetting("fontPercent"),
                           change == 0 ? 100 : settings.fontPercent + change);
        workspace_.changeSettings(settings);
    };
    addCommand(MenuName::View, {"ZoomInAction", tr("Lar&ger Letters"), QKeySequence(tr("Ctrl++"))},
               [zoom] { zoom(kZoomStep); });
    addCommand(MenuName::View,
               {"ZoomOutAction", tr("&Smaller Letters"), QKeySequence(tr("Ctrl+-"))},
               [zoom] { zoom(-kZoomStep); });
    addCommand(MenuName::View,
               {"ZoomResetAction", tr("N&ormal Letters"), QKeySequence(tr("Ctrl+0"))},
               [zoom] { zoom(0); });
    menu(MenuName::View)->addSeparator();
    addCommand(MenuName::View,
               {"StepForwardAction", tr("Step Forwa&rd"), QKeySequence(tr("Alt+Right"))},
               [this] { dateBar_->step(1); });
    addCommand(MenuName::View, {"StepBackAction", tr("Step &Back"), QKeySequence(tr("Alt+Left"))},
               [this] { dateBar_->step(-1); });
    addCommand(MenuName::View,
               {"GoToNowAction", tr("Shared Date to No&w"), QKeySequence(Qt::Key_F5)},
               [this] { dateBar_->goToNow(); });
}

void TKSVform1::setLeftPane(QWidget* pane)
{
    left_ = pane;
    panes_->insertWidget(0, pane);
    panes_->setStretchFactor(panes_->indexOf(pages_), 1);
}

void TKSVform1::setRightPane(QWidget* pane)
{
    right_ = pane;
    panes_->addWidget(pane);
    panes_->setStretchFactor(panes_->indexOf(pages_), 1);
}

void TKSVform1::addCloseQuestion(std::function<bool()> mayClose)
{
    closeQuestions_.push_back(std::move(mayClose));
}

void TKSVform1::leaveWithoutQuestions()
{
    silent_ = true;
}

void TKSVform1::showTitle()
{
    QString title = QStringLiteral("Kestrav");
    const std::filesystem::path& file = workspace_.database().path();
    if (!file.empty()) {
        title = toQt(file.filename()) + QStringLiteral("[*] \u2013 ") + title;
    }
    if (workspace_.chart()) {
        const QString changed = changedPointsText(workspace_.changedPoints());
        title = toQt(workspace_.chart()->chart.name) +
                (changed.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(changed)) +
                QStringLiteral(" \u2013 ") + title;
    }
    setWindowTitle(title);
    setWindowModified(workspace_.database().modified());
}

void TKSVform1::saveSession()
{
    QSettings& state = stateOfWindow();
    state.setValue("window/geometry", saveGeometry());
    state.setValue("window/panes", panes_->saveState());
    state.setValue("window/left", left_ == nullptr || !left_->isHidden());
    state.setValue("window/right", right_ == nullptr || !right_->isHidden());
    state.setValue("window/dateBar", !dateBar_->isHidden());
    keepPages(*pages_);
    if (std::abs(workspace_.moment() - Workspace::now()) > kPresentDays) {
        state.setValue(kMomentKey, workspace_.moment());
    } else {
        state.remove(kMomentKey);
    }
    state.sync();
}

void TKSVform1::restoreSession()
{
    const QSettings& state = stateOfWindow();
    restoreGeometry(state.value("window/geometry").toByteArray());
    panes_->restoreState(state.value("window/panes").toByteArray());
    if (left_ != nullptr) {
        left_->setVisible(state.value("window/left", true).toBool());
    }
    if (right_ != nullptr) {
        right_->setVisible(state.value("window/right", true).toBool());
    }
    dateBar_->setVisible(state.value("window/dateBar", true).toBool());
    for (const std::string& problem : restorePages(*pages_)) {
        workspace_.tellProblem(toQt(problem));
    }
    bool kept = false;
    const double moment = state.value(kMomentKey).toDouble(&kept);
    if (kept && std::abs(moment) < kLastMoment) {
        workspace_.setMoment(moment);
    }
}

void TKSVform1::closeEvent(QCloseEvent* event)
{
    if (silent_) {
        event->accept();
        return;
    }
    for (const auto& mayClose : closeQuestions_) {
        if (!mayClose()) {
            event->ignore();
            return;
        }
    }
    saveSession();
    event->accept();
}

} // namespace kestrav::desktop
