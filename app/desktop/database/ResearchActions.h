// The research database of the open charts: refreshing it, and asking for that.
#pragma once

#include "core/Settings.h"

#include <QObject>

namespace kestrav::desktop
{

class TKSVform1;

class ResearchActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the command to the File menu.
    explicit ResearchActions(TKSVform1& window);

    /// Refreshes after the question whether to go ahead.
    void refresh();
    /// Refreshes without a question.
    void refreshNow();

signals:
    /// A new research file stands beside the database.
    void refreshed();

private:
    TKSVform1& window_;
};

/// Whether the change of settings moves planets between signs or nakshatras.
[[nodiscard]] bool optionsMovePlanets(const core::Settings& before, const core::Settings& after);

} // namespace kestrav::desktop
