// The research database of the open database: read, refreshed, and handed to searches and tables.
#pragma once

#include "app/desktop/shell/BackgroundWork.h"
#include "core/Messages.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/LineList.h"
#include "data/ResearchDatabase.h"

#include <QObject>

#include <functional>
#include <memory>

namespace kestrav::desktop
{

class Workspace;

/// Research lines with the charts to which they belong.
struct ResearchData
{
    data::LineList lines;
    data::ChartDatabase charts;
    core::Settings settings;
    data::ResearchState state = data::ResearchState::Missing;
};
// Shared, because tables and searches on other threads read it while another one is loaded.
using ResearchPointer = std::shared_ptr<const ResearchData>;

/// One for a workspace. Long work runs one at a time, on work().
class ResearchDesk : public QObject
{
    Q_OBJECT

public:
    using Then = std::function<void(ResearchPointer)>;

    /// The one of the workspace, which owns it.
    [[nodiscard]] static ResearchDesk& of(Workspace& workspace);

    /// What was read last; null before anything was.
    [[nodiscard]] const ResearchPointer& research() const
    {
        return research_;
    }
    [[nodiscard]] BackgroundWork& work()
    {
        return work_;
    }

    /// Reads the research lines of the open database; changed() tells when.
    void read();
    /// Reads them and goes on with `then`. When they do not belong to the charts any more the user
    /// is asked whether to refresh them; who does not want to goes on with what there is. Where
    /// there is nothing, or no database is open, the news tell it.
    void prepare(Then then);
    /// Builds and writes them anew and then goes on, if there is something to go on with.
    void refresh(Then then = {});

signals:
    void changed();

private:
    explicit ResearchDesk(Workspace& workspace);

    void load(Then then);
    void ask(const Then& then);
    void keepNames(const data::ChartDatabase& named);

    Workspace& workspace_;
    BackgroundWork work_;
    ResearchPointer research_;
};

} // namespace kestrav::desktop
