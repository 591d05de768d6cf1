// The pages of the window, one at a time under a strip of tabs.
#pragma once

#include "app/present/PageLayout.h"

#include <QWidget>

#include <utility>
#include <vector>

class QStackedWidget;
class QTabBar;

namespace kestrav::desktop
{

class PageView;
class Workspace;

class PageStrip : public QWidget
{
    Q_OBJECT

public:
    PageStrip(Workspace& workspace, QWidget* parent);

    /// Replaces all pages. A page is made when it is first shown.
    void setPages(std::vector<present::PageLayout> layouts);
    /// Puts a page before the one of the index, or behind the last, and shows it.
    void insertPage(int index, present::PageLayout layout);
    void addPage(present::PageLayout layout)
    {
        insertPage(count(), std::move(layout));
    }
    /// Brings a page to another place in the strip.
    void movePage(int from, int to);
    /// Arranges a page anew, under the name of the layout.
    void replacePage(int index, present::PageLayout layout);
    void closePage(int index);
    [[nodiscard]] int count() const;
    [[nodiscard]] int current() const;
    [[nodiscard]] QString name(int index) const;
    void show(int index);
    /// Shows the page of that name without regard to case; false when there is none.
    bool show(const QString& name);
    /// The page that is shown; null without pages.
    [[nodiscard]] PageView* page() const;
    /// The layouts of all pages as they are now.
    [[nodiscard]] std::vector<present::PageLayout> layouts() const;
    [[nodiscard]] present::PageLayout layout(int index) const;
    /// Sizes of the cells of a page, and back; they are kept for pages that were not yet shown.
    [[nodiscard]] QByteArray sizes(int index) const;
    void setSizes(int index, const QByteArray& sizes);

signals:
    void currentChanged(int index);
    /// The user has drawn a page to another place in the strip.
    void moved(int from, int to);
    /// The user changed, moved, closed or added pages.
    void changed();

private:
    struct Page
    {
        present::PageLayout layout;
        PageView* view = nullptr; ///< null until it is first shown
        QByteArray sizes = {};    ///< for a page that was not yet shown
    };

    void showTab(int index);
    void reorder(int from, int to);

    Workspace& workspace_;
    QTabBar* tabs_;
    QStackedWidget* stack_;
    std::vector<Page> pages_;
};

} // namespace kestrav::desktop
