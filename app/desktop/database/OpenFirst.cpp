#include "app/desktop/database/OpenFirst.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/database/RecentFiles.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/start/ProgramOptions.h"
#include "core/Locations.h"
#include "data/import/BirthEntry.h"
#include "data/import/ReadImport.h"

#include <QFileInfo>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::desktop
{

namespace
{

using Paths = std::vector<std::filesystem::path>;

bool isDatabase(const std::filesystem::path& file)
{
    return !data::shouldImport(file) && data::lowered(file.extension().string()) != ".ksy";
}

// The databases to try, in their order, and beside them what the command line names to be taken in.
struct First
{
    Paths candidates;
    Paths others;
    std::wstring chart; ///< empty for the first of the file
};

First firstFiles(TKSVform1& window, const ProgramOptions& options)
{
    First first;
    for (const std::string& file : options.files) {
        (isDatabase(file) ? first.candidates : first.others).emplace_back(file);
    }
    const bool alone = options.batch || options.screenshot;
    const bool restores = !alone && window.workspace().settings().restoreSession;
    if (first.candidates.empty() && restores) {
        const QStringList files = recentFiles();
        if (!files.isEmpty()) {
            first.candidates.push_back(toPath(files.front()));
            first.chart = toWide(lastChart());
        }
    }
    if (!alone) {
        const QString own = chartsFolder() + QStringLiteral("/My Charts.ksc");
        if (QFileInfo(own).isFile()) {
            first.candidates.push_back(toPath(own));
        }
    }
    if (const auto sample = core::findFile("Sample.ksc")) {
        first.candidates.push_back(*sample);
    }
    if (options.chart) {
        first.chart = core::fromFileBytes(*options.chart);
    }
    return first;
}

void showNamed(Workspace& workspace, const std::wstring& name)
{
    OpenDatabase& database = workspace.database();
    const auto line = name.empty() ? std::nullopt : database.charts().find(name);
    if (line) {
        workspace.showLine(*line);
    } else if (!database.list().rows.empty()) {
        workspace.showLine(database.list().rows.front().line);
    }
}

void tryNext(TKSVform1& window, const std::shared_ptr<First>& first, std::size_t next)
{
    auto* const actions = window.findChild<DatabaseActions*>();
    if (actions == nullptr || next >= first->candidates.size()) {
        return;
    }
    actions->open(first->candidates[next], [&window, first, next, actions](bool opened) {
        if (!opened) {
            tryNext(window, first, next + 1);
            return;
        }
        showNamed(window.workspace(), first->chart);
        for (const std::filesystem::path& other : first->others) {
            actions->open(other);
        }
    });
}

} // namespace

void openFirst(TKSVform1& window, const ProgramOptions& options)
{
    if (options.batch || options.screenshot) {
        if (auto* const actions = window.findChild<DatabaseActions*>()) {
            actions->leaveWithoutQuestions();
        }
    }
    // Shared, because large files are read while the window comes up.
    tryNext(window, std::make_shared<First>(firstFiles(window, options)), 0);
}

} // namespace kestrav::desktop
