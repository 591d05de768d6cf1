// The natives that the last search for a yoga found.
#pragma once

#include "app/desktop/research/ResearchDesk.h"
#include "app/desktop/shell/Workspace.h"
#include "yoga/YogaSearch.h"

#include <QObject>

#include <memory>
#include <string>

namespace kestrav::desktop
{

/// A search with everything that its answers depend on, which they may be asked for again.
struct SearchedYoga
{
    std::wstring title;
    std::string text; ///< of the rule
    yoga::YogaRule rule;
    ResearchPointer research;
    core::Settings settings;
    DataPointer data;
    ChartPointer second;
    double moment = 0.0;
    yoga::YogaFinds finds;

    /// A search of these charts, to be run or asked for reasons.
    [[nodiscard]] yoga::YogaSearch search() const;
};
using SearchedPointer = std::shared_ptr<const SearchedYoga>;

/// One for a workspace: the list of natives, the research table and the tree of yogas share it.
class YogaFindings : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static YogaFindings& of(Workspace& workspace);

    /// Null before the first search, and when the database is another one now.
    [[nodiscard]] const SearchedPointer& last() const
    {
        return last_;
    }

    /// Searches the open database for a yoga: after the check of its brackets, and after the
    /// question about a research database that needs refreshing.
    void search(const yoga::Yoga& yoga);

    /// Makes what was found the B group, when the user agrees.
    bool makeGroupB(core::Messages& messages);

signals:
    void changed();

private:
    explicit YogaFindings(Workspace& workspace);

    void run(std::shared_ptr<SearchedYoga> wanted, bool mayAsk);
    void forget();

    Workspace& workspace_;
    ResearchDesk& desk_;
    SearchedPointer last_;
};

} // namespace kestrav::desktop
