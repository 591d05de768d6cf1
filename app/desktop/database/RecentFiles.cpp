#include "app/desktop/database/RecentFiles.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/StateFile.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <system_error>

namespace kestrav::desktop
{

namespace
{

constexpr int kMostFiles = 10;
constexpr char kFilesKey[] = "database/recent";
constexpr char kChartKey[] = "database/chart";

} // namespace

QStringList recentFiles()
{
    QStringList files;
    for (const QString& file : stateOfWindow().value(kFilesKey).toStringList()) {
        if (QFileInfo(file).isFile()) {
            files += file;
        }
    }
    return files;
}

void rememberFile(const std::filesystem::path& file)
{
    std::error_code problem;
    const QString name = toQt(std::filesystem::absolute(file, problem).lexically_normal());
    QStringList files = recentFiles();
    files.removeAll(name);
    files.prepend(name);
    stateOfWindow().setValue(kFilesKey, QStringList(files.mid(0, kMostFiles)));
}

void forgetFiles()
{
    stateOfWindow().remove(kFilesKey);
}

QString lastChart()
{
    return stateOfWindow().value(kChartKey).toString();
}

void rememberChart(const QString& name)
{
    stateOfWindow().setValue(kChartKey, name);
}

QString chartsFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
                     QStringLiteral("/Kestrav");
    QDir().mkpath(folder);
    return folder;
}

} // namespace kestrav::desktop
