#include "app/desktop/start/Startup.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/OpenFirst.h"
#include "app/desktop/help/HelpActions.h"
#include "app/desktop/options/OptionsActions.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/start/Screenshot.h"
#include "app/desktop/start/SingleInstance.h"
#include "core/FileText.h"
#include "core/Files.h"
#include "core/Locations.h"
#include "core/SettingsFile.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QIcon>

#include <cstdio>
#include <memory>
#include <system_error>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kFailed = 1;
constexpr std::uintmax_t kLargestSettings = 1U << 20U;

// Tells what is the matter with the program data file. Its absence ends the program as if nothing
// had happened, as it always did; damage is a failure.
int reportNoData(const astro::LoadResult& loaded, TMessages& messages)
{
    if (loaded.problem == astro::DataFileProblem::Missing) {
        messages.notice(std::wstring(astro::kMissingDataCaption),
                        std::wstring(astro::kMissingDataText));
        return 0;
    }
    messages.notice(L"Error", core::fromFileBytes(loaded.error.text()));
    return kFailed;
}

// The settings of the file, and the defaults with a warning where it cannot be used.
core::StoredSettings storedSettings(const std::filesystem::path& path, TMessages& messages)
{
    std::error_code problem;
    if (!std::filesystem::exists(path, problem) && !problem) {
        return {};
    }
    const auto bytes = core::readFile(path, kLargestSettings);
    const bool usable = bytes && core::hasSettingsMark(bytes.value());
    if (!usable) {
        const std::string what =
            bytes ? path.string() + ": is damaged or no settings file" : bytes.error().text();
        messages.notice(L"Warning", core::fromFileBytes(what) +
                                        L"\nThe settings of a new installation are used.");
    }
    return usable ? core::decodeSettings(bytes.value()) : core::StoredSettings{};
}

ThemeOfRun themeOf(const ProgramOptions& options)
{
    ThemeOfRun theme;
    theme.fontPercent = options.fontPercent;
    if (options.scheme) {
        theme.dark = *options.scheme == "dark";
    }
    return theme;
}

YogasPointer loadYogas(Workspace& workspace)
{
    auto library = std::make_shared<yoga::YogaLibrary>();
    for (const std::filesystem::path& path : yoga::standardYogaFiles()) {
        if (const auto loaded = library->load(path); !loaded) {
            workspace.tellProblem(toQt(loaded.error().text()));
        }
    }
    return library;
}

void applySize(QWidget& window, const ProgramOptions& options)
{
    const QStringList parts =
        options.size ? toQt(*options.size).split(QLatin1Char('x')) : QStringList();
    if (parts.size() == 2 && parts[0].toInt() > 0 && parts[1].toInt() > 0) {
        window.resize(parts[0].toInt(), parts[1].toInt());
    }
}

QStringList absoluteFiles(const ProgramOptions& options)
{
    QStringList files;
    for (const std::string& file : options.files) {
        files += QFileInfo(toQt(std::filesystem::path(file))).absoluteFilePath();
    }
    return files;
}

// A later start of the program: its files are opened here, and the window comes to the front.
void answerLaterStart(TKSVform1& window, const QStringList& files)
{
    if (auto* const actions = window.findChild<DatabaseActions*>()) {
        for (const QString& file : files) {
            actions->openInTurn(toPath(file));
        }
    }
    window.show();
    window.raise();
    window.activateWindow();
}

// What a user who starts the program meets, in this order.
void greet(TKSVform1& window, const ProgramOptions& options)
{
    const auto choose = [&window](const char* command) {
        if (auto* const action = window.findChild<QAction*>(QLatin1String(command))) {
            action->trigger();
        }
    };
    if (options.now) {
        choose("NowChartAction");
    }
    if (options.newChart) {
        choose("NewChartAction");
    }
    if (options.batch) {
        window.leaveWithoutQuestions();
        return;
    }
    const bool firstStart = !window.workspace().settings().wizardDone;
    window.findChild<OptionsActions*>()->runWizardAtFirstStart();
    if (!firstStart && !options.newChart) {
        showQuickTip(window);
    }
}

int picture(TKSVform1& window, const ProgramOptions& options)
{
    if (*options.screenshot == "list") {
        std::fputs(toUtf8(pictureNames(window)).c_str(), stdout);
        return 0;
    }
    const auto taken = takePicture(window, toQt(*options.screenshot), toQt(options.screenshotFile));
    if (!taken) {
        std::fprintf(stderr, "kestrav: %s\n", taken.error().text().c_str());
    }
    return taken ? 0 : kFailed;
}

// Pictures are made without a display where there is none; a window needs one. The toolkit would
// end the program with an abort.
bool hasDisplay(const ProgramOptions& options)
{
    const auto given = [](const char* name) {
        return !qEnvironmentVariableIsEmpty(name);
    };
    if (given("DISPLAY") || given("WAYLAND_DISPLAY") || given("QT_QPA_PLATFORM")) {
        return true;
    }
    if (options.screenshot) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    return false;
}

} // namespace

int runWindow(int& count, char** words, const ProgramOptions& options)
{
    if (!hasDisplay(options)) {
        std::fputs("kestrav: there is no display to show a window on\n"
                   "kestrav-cli computes, prints and draws charts without one.\n",
                   stderr);
        return kFailed;
    }
    if (options.scale) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(*options.scale));
    }
    QApplication application(count, words);
    QApplication::setApplicationName(QStringLiteral("kestrav"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kestrav"));
    QApplication::setApplicationVersion(QStringLiteral(KESTRAV_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.kestrav.Kestrav"));
    if (const auto icon = core::findFile("icons/kestrav.png")) {
        QApplication::setWindowIcon(QIcon(toQt(*icon)));
    }

    SingleInstance instance;
    if (!options.batch && !options.screenshot && instance.handOver(absoluteFiles(options))) {
        return 0;
    }
    TMessages messages;
    if (options.batch || options.screenshot) {
        TMessages::answerOnTerminal();
    }
    const std::filesystem::path settingsPath = options.settingsFile
                                                   ? std::filesystem::path(*options.settingsFile)
                                                   : core::settingsFilePath();
    core::StoredSettings settings = storedSettings(settingsPath, messages);
    setThemeOfRun(themeOf(options));
    applyTheme(settings.settings);
    astro::LoadResult loaded = astro::LoadSeries();
    if (!loaded.ok()) {
        return reportNoData(loaded, messages);
    }
    int code = 0;
    {
        Workspace workspace(std::make_shared<const astro::ProgramData>(std::move(*loaded.data)),
                            std::move(settings), settingsPath);
        TKSVform1 window(workspace);
        workspace.setYogas(loadYogas(workspace));
        const bool alone = options.batch || options.screenshot;
        if (!alone && workspace.settings().restoreSession) {
            window.restoreSession();
        }
        // A named file may turn to the page where it is seen, so it comes after the last page.
        openFirst(window, options);
        if (options.page) {
            window.pages().show(toQt(*options.page));
        }
        applySize(window, options);
        if (options.screenshot) {
            code = picture(window, options);
        } else {
            QObject::connect(
                &instance, &SingleInstance::asked, &window,
                [&window](const QStringList& files) { answerLaterStart(window, files); });
            window.show();
            greet(window, options);
            code = QApplication::exec();
        }
    }
    BackgroundWork::waitForAll();
    return code;
}

} // namespace kestrav::desktop
