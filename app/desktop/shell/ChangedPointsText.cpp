#include "app/desktop/shell/ChangedPointsText.h"

#include "app/desktop/shell/Convert.h"
#include "app/present/TextValues.h"
#include "core/Points.h"

#include <QCoreApplication>
#include <QStringList>

namespace kestrav::desktop
{

QString changedPointName(int point)
{
    return point == core::cuspPoint(10)
               ? QCoreApplication::translate("ChangedPointsText", "Midheaven")
               : toQt(present::pointLabel(point));
}

QString changedPointsText(const ChangedPoints& changed)
{
    QStringList names;
    for (const auto& [point, longitude] : changed) {
        names += changedPointName(point);
    }
    return names.isEmpty() ? QString()
                           : QCoreApplication::translate("ChangedPointsText", "changed: %1")
                                 .arg(names.join(QStringLiteral(", ")));
}

} // namespace kestrav::desktop
