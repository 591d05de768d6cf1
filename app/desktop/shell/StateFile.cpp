#include "app/desktop/shell/StateFile.h"

#include "app/desktop/shell/Convert.h"

#include <QDir>

#include <memory>

namespace kestrav::desktop
{

std::filesystem::path stateFolder()
{
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    // A relative path is to be ignored, as the base directory rules have it.
    if (!QDir::isAbsolutePath(folder)) {
        folder = QDir::homePath() + QStringLiteral("/.local/state");
    }
    folder += QStringLiteral("/kestrav");
    QDir().mkpath(folder);
    return toPath(folder);
}

QSettings& stateOfWindow()
{
    static std::unique_ptr<QSettings> state;
    const QString path = desktop::toQt(stateFolder()) + QStringLiteral("/window.ini");
    // Tests change the folder between two windows.
    if (!state || state->fileName() != path) {
        state = std::make_unique<QSettings>(path, QSettings::IniFormat);
    }
    return *state;
}

} // namespace kestrav::desktop
