// The commands that write the database to a file.
#include "app/desktop/database/ChangeWithBox.h"
#include "app/desktop/database/ChartListPane.h"
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/database/TProgressDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "data/DatabaseMessages.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <memory>
#include <utility>

namespace kestrav::desktop
{

using core::Answer;
using core::Buttons;
using data::Outcome;

void DatabaseActions::addSaveCommands()
{
    window_.addCommand(MenuName::File,
                       {"SaveAction", tr("&Save Database"), QKeySequence(tr("Ctrl+S")),
                        tr("Writes the database to its file"), "document-save"},
                       [this] { beginSave(); });
    window_.addCommand(MenuName::File,
                       {"SaveAsAction", tr("Save Database &As..."),
                        QKeySequence(tr("Ctrl+Shift+S")), tr("Writes the database to another file"),
                        "document-save-as"},
                       [this] { beginSaveAs(); });
    window_.addCommand(MenuName::File,
                       {"SaveInOtherOrderAction",
                        tr("Save in Other &Date Order"),
                        {},
                        tr("Writes the dates of all charts with day and month exchanged")},
                       [this] { SaveInOtherOrderActionClick(); });
    window_.addCommand(MenuName::File,
                       {"BackupAction", tr("Bac&kup..."), {}, tr("Saves a copy of the database")},
                       [this] { BackupActionClick(); });
    window_.addCommand(MenuName::File,
                       {"RestoreAction",
                        tr("R&estore..."),
                        {},
                        tr("Reads a database from another device and saves it on this computer")},
                       [this] { RestoreActionClick(); });
}

bool DatabaseActions::beginSave()
{
    emit database().editsDue();
    // What an unfinished save has written already is nobody else's change.
    database().waitForSave();
    if (!database().writable()) {
        return beginSaveAs();
    }
    const auto file = data::agreeToSave(database().charts(), database().path(), messages_);
    if (file) {
        write(*file, tr("Saved %1").arg(toQt(data::fileText(*file))));
    }
    return file.has_value();
}

bool DatabaseActions::beginSaveAs()
{
    emit database().editsDue();
    database().waitForSave();
    const std::filesystem::path& now = database().path();
    const bool reachable = database().writable();
    const QString suggestion = now.empty() ? chartsFolder() + QStringLiteral("/My Charts.ksc")
                               : reachable
                                   ? toQt(now)
                                   : chartsFolder() + QLatin1Char('/') + toQt(now.filename());
    const auto chosen = TMessages::fileToSave(&window_, toQt(data::saveAsPrompt(now)),
                                              data::kDatabaseFilter, suggestion);
    const auto file =
        chosen ? data::agreeToSave(database().charts(), toPath(*chosen), messages_) : std::nullopt;
    if (file) {
        write(*file, tr("Saved %1").arg(*chosen));
    }
    return file.has_value();
}

bool DatabaseActions::save()
{
    return beginSave() && finishSaving();
}

bool DatabaseActions::saveAs()
{
    return beginSaveAs() && finishSaving();
}

bool DatabaseActions::finishSaving()
{
    database().waitForSave();
    return saved_;
}

void DatabaseActions::write(const std::filesystem::path& file, const QString& news)
{
    const bool moves = file != database().path();
    // The database lives on when the window is gone.
    const QPointer<DatabaseActions> self(this);
    database().beginSave(file, [self, news, moves](const core::Result<void>& written) {
        if (!self) {
            return;
        }
        self->saved_ = written.ok();
        if (!written) {
            data::tellSavingError(written.error(), self->messages_);
            return;
        }
        if (moves) {
            rememberFile(self->database().path());
            self->pane_->showRecentFiles();
            self->pane_->readResearch();
        }
        self->window_.workspace().tell(news);
    });
}

void DatabaseActions::SaveInOtherOrderActionClick()
{
    emit database().editsDue();
    database().waitForSave();
    if (!database().writable() && !saveAs()) {
        return;
    }
    const auto file = data::agreeToSave(database().charts(), database().path(), messages_);
    if (!file) {
        return;
    }
    LongChange turning{
        tr("Turning the dates of %1").arg(toQt(data::fileText(*file))), tr("Other Date Order"),
        database().revision(), [](data::ChartDatabase& charts, const data::LongWork& work) {
            return data::turnDates(charts, work) ? Outcome::Done : Outcome::Cancelled;
        }};
    changeWithBox(window_, std::move(turning), [this, file = *file](Outcome outcome) {
        if (outcome != Outcome::Done) {
            return;
        }
        // The order in force is that of the whole program.
        core::Settings settings = window_.workspace().settings();
        settings.monthFirst = database().charts().order() == data::DateOrder::MonthFirst;
        window_.workspace().changeSettings(settings);
        write(file, settings.monthFirst ? tr("Saved with dates written month before day")
                                        : tr("Saved with dates written day before month"));
    });
}

void DatabaseActions::BackupActionClick()
{
    emit database().editsDue();
    data::announceBackup(messages_);
    const auto file = TMessages::fileToSave(
        &window_, tr("Backup"), filters(),
        QDir::homePath() + QLatin1Char('/') +
            (database().path().empty() ? tr("Charts.ksc") : toQt(database().path().filename())));
    if (!file || !data::agreesToReplace(toPath(*file), messages_)) {
        return;
    }
    // Shared, because the work may outlive the window.
    const auto copy = std::make_shared<data::ChartDatabase>(database().charts());
    workWithBox(
        &window_, tr("Writing %1").arg(QFileInfo(*file).fileName()), {},
        [copy, path = toPath(*file)](const WorkHandle&) { return copy->save(path); },
        [this, name = *file](const core::Result<void>& written) {
            if (written) {
                window_.workspace().tell(tr("A copy was saved as %1").arg(name));
            } else {
                data::tellSavingError(written.error(), messages_);
            }
        });
}

bool DatabaseActions::mayDropChanges()
{
    emit database().editsDue();
    database().waitForSave();
    if (!database().modified()) {
        return true;
    }
    const std::wstring name = database().path().empty() ? tr("The new database").toStdWString()
                                                        : data::fileText(database().path());
    switch (messages_.show(
        data::kWarningCaption,
        tr("%1 has changes that are not saved. Save them?").arg(toQt(name)).toStdWString(),
        Buttons::YesNoCancel)) {
    case Answer::Yes:
        return save();
    case Answer::No:
        return true;
    default:
        return false;
    }
}

} // namespace kestrav::desktop
