// Files and chart lines that are dropped on the window.
#pragma once

#include <QObject>

class QMimeData;

namespace kestrav::desktop
{

class DatabaseActions;
class ExchangeActions;
class TKSVform1;

/// Databases are opened, chart files of other programs imported, yoga files loaded, and chart lines
/// added to the open database.
class DropTarget : public QObject
{
    Q_OBJECT

public:
    DropTarget(TKSVform1& window, DatabaseActions& files, ExchangeActions& exchange);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] static bool takes(const QMimeData& mime);
    void take(const QMimeData& mime);

    TKSVform1& window_;
    DatabaseActions& files_;
    ExchangeActions& exchange_;
};

} // namespace kestrav::desktop
