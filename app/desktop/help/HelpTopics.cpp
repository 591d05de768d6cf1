#include "app/desktop/help/HelpTopics.h"

#include "app/desktop/shell/Convert.h"
#include "core/Locations.h"

#include <QFile>

namespace kestrav::desktop
{

namespace
{

QStringList linesOf(const QString& name)
{
    QFile file(helpFolder() + QLatin1Char('/') + name);
    QStringList lines;
    if (file.open(QIODevice::ReadOnly)) {
        lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    lines.removeIf([](const QString& line) { return line.startsWith(QLatin1Char('#')); });
    return lines;
}

} // namespace

QString helpFolder()
{
    const auto index = core::findFile("help/index.html");
    return index ? toQt(index->parent_path()) : QString();
}

QString helpPage(const QString& panelOrForm)
{
    if (panelOrForm.section(QLatin1Char('#'), 0, 0).endsWith(QLatin1String(".html"))) {
        return panelOrForm;
    }
    for (const QString& line : linesOf(QStringLiteral("topics.txt"))) {
        if (line.section(QLatin1Char('\t'), 0, 0) == panelOrForm) {
            return line.section(QLatin1Char('\t'), 1, 1);
        }
    }
    return QStringLiteral("index.html");
}

QStringList quickTips()
{
    return linesOf(QStringLiteral("tips.txt"));
}

} // namespace kestrav::desktop
