#include "app/desktop/shell/Icons.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "core/Locations.h"

#include <QFile>

#include <string>

namespace kestrav::desktop
{

QIcon icon(const char* name)
{
    const QIcon fromTheme = QIcon::fromTheme(QLatin1String(name));
    if (!fromTheme.isNull()) {
        return fromTheme;
    }
    const auto path =
        core::findFile(std::string("icons/") + (isDark() ? "dark/" : "light/") + name + ".png");
    return path ? QIcon(toQt(*path)) : QIcon();
}

} // namespace kestrav::desktop
