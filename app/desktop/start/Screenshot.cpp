#include "app/desktop/start/Screenshot.h"

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/start/Gallery.h"

#include <QApplication>
#include <QPixmap>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace kestrav::desktop
{

namespace
{

// Panels start work when they are shown, and show what it gives: two rounds settle everything.
void settle()
{
    for (int round = 0; round < 4; ++round) {
        QApplication::processEvents();
        BackgroundWork::waitForAll();
        QApplication::processEvents();
    }
}

} // namespace

QString pictureNames(TKSVform1& window)
{
    QStringList names;
    for (int i = 0; i < window.pages().count(); ++i) {
        names += window.pages().name(i);
    }
    for (const GalleryRow& row : gallery()) {
        names += QLatin1String(row.name);
    }
    return names.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

core::Result<void> takePicture(TKSVform1& window, const QString& name, const QString& file)
{
    QWidget* pictured = &window;
    std::unique_ptr<QWidget> made;
    if (window.pages().show(name)) {
        window.show();
    } else {
        made.reset(makeFromGallery(name, window));
        pictured = made.get();
        if (!made) {
            return core::Error{"there is no page, form or dialog '" + toUtf8(name) + "'"};
        }
        made->setAttribute(Qt::WA_DontShowOnScreen, false);
        made->show();
    }
    settle();
    if (!pictured->grab().save(file)) {
        return core::Error{"the picture could not be written", toUtf8(file)};
    }
    if (made) {
        made->hide();
    }
    return {};
}

} // namespace kestrav::desktop
