#include "app/desktop/database/DatabaseActions.h"

#include "app/desktop/database/ChartActions.h"
#include "app/desktop/database/ChartListPane.h"
#include "app/desktop/database/ConfirmMenu.h"
#include "app/desktop/database/DropTarget.h"
#include "app/desktop/database/ExchangeActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/OpenQueue.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/database/ResearchActions.h"
#include "app/desktop/database/SettledMessages.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/database/UnsavedCopy.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/pages/PageView.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "data/DatabaseMessages.h"
#include "data/FileStamp.h"
#include "data/import/BirthEntry.h"
#include "data/import/ReadImport.h"
#include "yoga/YogaLibrary.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>

#include <memory>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using data::Outcome;

// Larger files are read on another thread.
constexpr std::uint64_t kSmallFile = 1U << 20U;

struct Reading
{
    OpenDatabase::Content content;
    Outcome outcome = Outcome::Failed;
    NotedMessages notes;
};

// Reads a database, and saves it under another name where there is one.
Reading readDatabase(const std::filesystem::path& path, data::DateOrder order,
                     const std::filesystem::path& saveAs)
{
    Reading reading{{data::ChartDatabase(order), {}}, Outcome::Failed, {}};
    reading.outcome = data::openDatabase(reading.content.charts, path, reading.notes);
    if (reading.outcome == Outcome::Done && !saveAs.empty()) {
        if (const auto saved = reading.content.charts.save(saveAs); !saved) {
            data::tellSavingError(saved.error(), reading.notes);
            reading.outcome = Outcome::Failed;
        }
    }
    if (reading.outcome == Outcome::Done) {
        reading.content.list = data::listCharts(reading.content.charts);
    }
    return reading;
}

} // namespace

DatabaseActions::DatabaseActions(TKSVform1& window)
    : QObject(&window), window_(window), pane_(new ChartListPane(window.workspace(), &window)),
      queue_(new OpenQueue(window, *this))
{
    database().follow(window_.workspace().settings());
    connect(&window_.workspace(), &Workspace::settingsChanged, this,
            [this] { database().follow(window_.workspace().settings()); });
    window_.setLeftPane(pane_);
    addFileCommands();
    addSaveCommands();
    QMenu* const file = window_.menu(MenuName::File);
    file->addSeparator();
    auto* const exchange = new ExchangeActions(window_, *this);
    file->addSeparator();
    auto* const research = new ResearchActions(window_);
    file->addSeparator();
    new ChartActions(window_, *this);
    addConfirmMenu(window_);
    new DropTarget(window_, *this, *exchange);

    connect(research, &ResearchActions::refreshed, pane_, &ChartListPane::readResearch);
    connect(pane_, &ChartListPane::fileWanted, this,
            [this](const QString& name) { open(toPath(name)); });
    connect(pane_, &ChartListPane::reloadWanted, this, &DatabaseActions::reload);
    connect(pane_, &ChartListPane::chartOpened, &window_, [this] {
        if (PageView* const page = window_.pages().page()) {
            page->focusCell(0);
        }
    });
    connect(&database(), &OpenDatabase::changedByOthers, this, [this] {
        const QString name = toQt(data::fileText(database().path()));
        pane_->offerReload(name);
        if (!pane_->isVisible()) {
            window_.workspace().tellProblem(
                tr("%1 was changed by another program. File / Reload reads it again.").arg(name));
        }
    });
    connect(&window_.workspace(), &Workspace::chartChanged, this, [this] {
        if (window_.workspace().chartLine()) {
            rememberChart(toQt(window_.workspace().record().name));
        }
    });
    window_.addCloseQuestion([this] { return mayLeave(); });
    new UnsavedCopy(window_, *exchange);
}

OpenDatabase& DatabaseActions::database()
{
    return window_.workspace().database();
}

std::wstring DatabaseActions::filters()
{
    return std::wstring(data::kDatabaseFilter) + L"|" + data::kBackupFilter;
}

void DatabaseActions::addFileCommands()
{
    window_.addCommand(MenuName::File,
                       {"NewDatabaseAction", tr("&New Database..."),
                        QKeySequence(tr("Ctrl+Shift+N")), tr("Begins an empty chart database"),
                        "folder-new"},
                       [this] { NewDatabaseActionClick(); });
    window_.addCommand(MenuName::File,
                       {"OpenAction", tr("&Open Database..."), QKeySequence(tr("Ctrl+O")),
                        tr("Opens a chart database"), "document-open"},
                       [this] { OpenActionClick(); });
    QMenu* const recent = window_.menu(MenuName::File)->addMenu(tr("Open &Recent"));
    recent->setObjectName(QStringLiteral("RecentMenu"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecent(*recent); });
    window_.addCommand(
        MenuName::File,
        {"ReloadAction", tr("Re&load"), {}, tr("Reads the database from its file again")},
        [this] { reload(); });
    window_.menu(MenuName::File)->addSeparator();
}

void DatabaseActions::fillRecent(QMenu& menu)
{
    menu.clear();
    const QStringList files = recentFiles();
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString& file = files[i];
        QString name = QDir::toNativeSeparators(file);
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        menu.addAction(QStringLiteral("&%1  %2").arg((i + 1) % 10).arg(name), this,
                       [this, file] { open(toPath(file)); });
    }
    menu.addSeparator();
    menu.addAction(tr("&Clear This List"), this,
                   [this] {
                       forgetFiles();
                       pane_->showRecentFiles();
                   })
        ->setEnabled(!files.isEmpty());
}

void DatabaseActions::NewDatabaseActionClick()
{
    if (!mayDropChanges()) {
        return;
    }
    const auto file =
        TMessages::fileToSave(&window_, toQt(data::kNewFilePrompt), data::kDatabaseFilter,
                              chartsFolder() + tr("/New Charts.ksc"));
    if (!file) {
        return;
    }
    OpenDatabase::Content content{data::ChartDatabase(database().charts().order()), {}};
    if (data::newDatabase(content.charts, toPath(*file), messages_) == Outcome::Done) {
        window_.workspace().setChartLine(std::nullopt);
        database().adopt(std::move(content));
        rememberFile(database().path());
        pane_->showRecentFiles();
    }
}

void DatabaseActions::OpenActionClick()
{
    const QString folder = database().path().empty()
                               ? chartsFolder()
                               : QFileInfo(toQt(database().path())).absolutePath();
    if (const auto file = TMessages::fileToOpen(&window_, tr("Open Database"), filters(), folder)) {
        open(toPath(*file));
    }
}

void DatabaseActions::open(const std::filesystem::path& path, std::function<void(bool opened)> then)
{
    const auto answer = [&then](bool opened) {
        if (then) {
            then(opened);
        }
    };
    if (data::lowered(path.extension().string()) == ".ksy") {
        if (openYogaFile(window_.workspace(), path)) {
            emit window_.workspace().pageWanted(QStringLiteral("Yogas"));
        }
        answer(false);
    } else if (data::shouldImport(path)) {
        window_.findChild<ExchangeActions*>()->importFile(path);
        answer(false);
    } else if (mayDropChanges()) {
        read(path, std::move(then));
    } else {
        answer(false);
    }
}

void DatabaseActions::openInTurn(const std::filesystem::path& path)
{
    queue_->add(path);
}

void DatabaseActions::read(const std::filesystem::path& path, std::function<void(bool opened)> then,
                           const std::filesystem::path& saveAs)
{
    const auto finish = [this, then = std::move(then)](Reading reading) {
        repeat(reading.notes.said(), messages_);
        const bool opened = reading.outcome == Outcome::Done;
        if (opened) {
            window_.workspace().setChartLine(std::nullopt);
            database().adopt(std::move(reading.content));
            data::tellShortLine(database().list(), database().charts(), messages_);
            rememberFile(database().path());
            pane_->showRecentFiles();
        }
        if (then) {
            then(opened);
        } else if (opened) {
            showFirst();
        }
    };
    const data::DateOrder order = database().charts().order();
    if (data::stampOf(path).size <= kSmallFile) {
        finish(readDatabase(path, order, saveAs));
        return;
    }
    workWithBox(
        &window_, tr("Reading %1").arg(toQt(data::fileText(path))), {},
        [path, order, saveAs](const WorkHandle&) { return readDatabase(path, order, saveAs); },
        finish);
}

void DatabaseActions::showFirst()
{
    const data::ChooserList& list = database().list();
    if (list.rows.empty()) {
        window_.workspace().closeChart();
    } else {
        window_.workspace().showLine(list.rows.front().line);
    }
}

void DatabaseActions::reload()
{
    if (database().path().empty() || !mayDropChanges()) {
        return;
    }
    const std::wstring name = window_.workspace().record().name;
    read(database().path(), [this, name](bool opened) {
        if (!opened) {
            return;
        }
        if (const auto line = database().charts().find(name)) {
            window_.workspace().showLine(*line);
        }
    });
}

void DatabaseActions::RestoreActionClick()
{
    if (!mayDropChanges()) {
        return;
    }
    const auto from =
        TMessages::fileToOpen(&window_, tr("Restore From"), filters(), QDir::homePath());
    if (!from) {
        return;
    }
    const auto to =
        TMessages::fileToSave(&window_, tr("Restore As"), data::kDatabaseFilter,
                              chartsFolder() + QLatin1Char('/') +
                                  QFileInfo(*from).completeBaseName() + QStringLiteral(".ksc"));
    if (to && data::agreesToReplace(toPath(*to), messages_)) {
        read(toPath(*from), {}, toPath(*to));
    }
}

void DatabaseActions::leaveWithoutQuestions()
{
    quiet_ = true;
}

bool DatabaseActions::mayLeave()
{
    if (quiet_) {
        database().waitForSave();
        return true;
    }
    return (!window_.workspace().settings().confirmLeave ||
            data::agreesToLeave(L"Kestrav", messages_)) &&
           mayDropChanges();
}

} // namespace kestrav::desktop
