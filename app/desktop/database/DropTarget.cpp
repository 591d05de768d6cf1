#include "app/desktop/database/DropTarget.h"

#include "app/desktop/database/ChartListModel.h"
#include "app/desktop/database/ChartListPane.h"
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/ExchangeActions.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

namespace kestrav::desktop
{

DropTarget::DropTarget(TKSVform1& window, DatabaseActions& files, ExchangeActions& exchange)
    : QObject(&window), window_(window), files_(files), exchange_(exchange)
{
    window_.installEventFilter(this);
}

bool DropTarget::eventFilter(QObject* watched, QEvent* event)
{
    const bool enters = event->type() == QEvent::DragEnter;
    if (!enters && event->type() != QEvent::DragMove && event->type() != QEvent::Drop) {
        return QObject::eventFilter(watched, event);
    }
    auto* const drop = static_cast<QDropEvent*>(event);
    // Charts that are let go over their own window stay where they are.
    const bool own = drop->source() == &files_.pane().list();
    if (own || !takes(*drop->mimeData())) {
        return false;
    }
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop) {
        take(*drop->mimeData());
    }
    return true;
}

bool DropTarget::takes(const QMimeData& mime)
{
    return mime.hasFormat(QLatin1String(ChartListModel::kLinesType)) || mime.hasUrls() ||
           mime.text().contains(QLatin1Char('\t'));
}

void DropTarget::take(const QMimeData& mime)
{
    const QByteArray lines = mime.data(QLatin1String(ChartListModel::kLinesType));
    if (!lines.isEmpty() || !mime.hasUrls()) {
        const std::string text = lines.isEmpty() ? toUtf8(mime.text()) : lines.toStdString();
        QTimer::singleShot(0, this, [this, text] { exchange_.addLines(text); });
        return;
    }
    // The program that the file comes from waits until the drop is over; a question here would
    // keep it waiting.
    for (const QUrl& url : mime.urls()) {
        if (url.isLocalFile()) {
            files_.openInTurn(toPath(url.toLocalFile()));
        }
    }
}

} // namespace kestrav::desktop
