// The research database of the open database: read, refreshed, and handed to searches and tables.
#pragma once

#include "app/desktop/shell/BackgroundWork.h"
#include "core/Messages.h"
#include "core/Settings.h"
#include "data/ChartDatabase.h"
#include "data/LineList.h"
#include "data/ResearchDatabase.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <utility>

class QWidget;

namespace kestrav::desktop
{

class TProgressDlg;
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
    /// Builds and writes them anew, behind a box with Cancel, and then goes on, if there is
    /// something to go on with. A database whose folder cannot be written is saved under another
    /// name first.
    void refresh(Then then = {});

    /// Where questions and boxes of the desk belong.
    struct Place
    {
        QWidget* window = nullptr;
        std::function<bool()> find; ///< asks where to save the database; false when it was not
    };
    void setPlace(Place place)
    {
        place_ = std::move(place);
    }

signals:
    void changed();
    /// A new research file stands beside the database.
    void refreshed();

private:
    explicit ResearchDesk(Workspace& workspace);

    struct Run;

    void load(Then then);
    void ask(const Then& then);
    void build(const std::shared_ptr<Run>& run);
    void finish(Run& run);
    void keepNames(const Run& walked);

    Workspace& workspace_;
    BackgroundWork work_;
    ResearchPointer research_;
    Place place_;
    QPointer<TProgressDlg> box_; ///< while lines are built
};

} // namespace kestrav::desktop
