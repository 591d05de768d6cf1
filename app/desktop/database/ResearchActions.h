// The research database of the open charts: refreshing it, and asking for that.
#pragma once

#include "core/Settings.h"

#include <QObject>

#include <memory>

namespace kestrav::desktop
{

struct ResearchRun;
class TKSVform1;

class ResearchActions : public QObject
{
    Q_OBJECT

public:
    /// Adds the command to the File menu.
    explicit ResearchActions(TKSVform1& window);

    /// Refreshes after the question whether to go ahead.
    void refresh();
    /// Refreshes without a question. The work runs on other threads behind a box with Cancel. A
    /// database whose folder cannot be written is saved under another name first.
    void refreshNow();

signals:
    /// A new research file stands beside the database.
    void refreshed();

private:
    void beginWalk();
    void build(std::shared_ptr<ResearchRun> run);
    void finish(ResearchRun& run);

    TKSVform1& window_;
};

/// Refreshes the research database of the window's charts after the question, for forms that find
/// it stale.
void refreshResearch(TKSVform1& window);

/// Whether the change of settings moves planets between signs or nakshatras.
[[nodiscard]] bool optionsMovePlanets(const core::Settings& before, const core::Settings& after);

} // namespace kestrav::desktop
