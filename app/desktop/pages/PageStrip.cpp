#include "app/desktop/pages/PageStrip.h"

#include "app/desktop/pages/PageView.h"
#include "app/desktop/shell/Convert.h"

#include <QProxyStyle>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kTabSpace = 14; ///< of logical pixels beside the name of a page, both sides together

// Tabs with less space beside their names than usual, so that more pages are in reach.
class TightTabs : public QProxyStyle
{
public:
    TightTabs() : QProxyStyle(QStringLiteral("Fusion"))
    {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        return metric == PM_TabBarTabHSpace ? kTabSpace
                                            : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

PageStrip::PageStrip(Workspace& workspace, QWidget* parent)
    : QWidget(parent), workspace_(workspace), tabs_(new QTabBar(this)),
      stack_(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("PageStrip"));
    tabs_->setObjectName(QStringLiteral("PageTabs"));
    tabs_->setAccessibleName(tr("Pages"));
    auto* const tight = new TightTabs;
    tight->setParent(tabs_);
    tabs_->setStyle(tight);
    tabs_->setMovable(true);
    tabs_->setDocumentMode(true);
    tabs_->setExpanding(false);
    tabs_->setUsesScrollButtons(true);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->setSpacing(0);
    box->addWidget(tabs_);
    box->addWidget(stack_, 1);
    connect(tabs_, &QTabBar::currentChanged, this, &PageStrip::showTab);
    connect(tabs_, &QTabBar::tabMoved, this, [this](int from, int to) {
        reorder(from, to);
        emit moved(from, to);
        emit changed();
    });
}

void PageStrip::setPages(std::vector<present::PageLayout> layouts)
{
    const QSignalBlocker blocker(tabs_);
    while (tabs_->count() > 0) {
        tabs_->removeTab(0);
    }
    for (const Page& page : pages_) {
        delete page.view;
    }
    pages_.clear();
    for (present::PageLayout& layout : layouts) {
        tabs_->addTab(toQt(layout.name));
        pages_.push_back({std::move(layout)});
    }
    showTab(tabs_->currentIndex());
    tabs_->updateGeometry();
}

void PageStrip::insertPage(int index, present::PageLayout layout)
{
    const QString name = toQt(layout.name);
    pages_.insert(pages_.begin() + index, Page{std::move(layout)});
    {
        // The tab makes room for itself by pages of which it knows nothing.
        const QSignalBlocker blocker(tabs_);
        tabs_->insertTab(index, name);
        tabs_->setCurrentIndex(index);
    }
    showTab(index);
    emit changed();
}

void PageStrip::movePage(int from, int to)
{
    const QSignalBlocker blocker(tabs_);
    tabs_->moveTab(from, to);
    reorder(from, to);
    emit changed();
}

// As the tabs are: those between the two places go one place on.
void PageStrip::reorder(int from, int to)
{
    const auto page = pages_.begin();
    if (from < to) {
        std::rotate(page + from, page + from + 1, page + to + 1);
    } else {
        std::rotate(page + to, page + from, page + from + 1);
    }
}

void PageStrip::replacePage(int index, present::PageLayout layout)
{
    Page& page = pages_[std::size_t(index)];
    tabs_->setTabText(index, toQt(layout.name));
    delete page.view;
    page = Page{std::move(layout)};
    if (index == current()) {
        showTab(index);
    }
    emit changed();
}

void PageStrip::closePage(int index)
{
    // The tab goes last: its going shows another page, by the index that this has then.
    delete pages_[std::size_t(index)].view;
    pages_.erase(pages_.begin() + index);
    const QSignalBlocker blocker(tabs_);
    tabs_->removeTab(index);
    showTab(tabs_->currentIndex());
    emit changed();
}

int PageStrip::count() const
{
    return int(pages_.size());
}

int PageStrip::current() const
{
    return tabs_->currentIndex();
}

QString PageStrip::name(int index) const
{
    return toQt(pages_[std::size_t(index)].layout.name);
}

void PageStrip::show(int index)
{
    if (index >= 0 && index < count()) {
        tabs_->setCurrentIndex(index);
    }
}

bool PageStrip::show(const QString& wanted)
{
    for (int i = 0; i < count(); ++i) {
        if (name(i).compare(wanted, Qt::CaseInsensitive) == 0) {
            show(i);
            return true;
        }
    }
    return false;
}

PageView* PageStrip::page() const
{
    const int index = current();
    return index < 0 ? nullptr : pages_[std::size_t(index)].view;
}

void PageStrip::showTab(int index)
{
    if (index < 0 || index >= count()) {
        return;
    }
    Page& page = pages_[std::size_t(index)];
    if (page.view == nullptr) {
        page.view = new PageView(workspace_, page.layout, stack_);
        connect(page.view, &PageView::changed, this, &PageStrip::changed);
        stack_->addWidget(page.view);
        if (!page.sizes.isEmpty()) {
            page.view->restoreSizes(page.sizes);
        }
    }
    stack_->setCurrentWidget(page.view);
    emit currentChanged(index);
}

std::vector<present::PageLayout> PageStrip::layouts() const
{
    std::vector<present::PageLayout> layouts;
    layouts.reserve(std::size_t(count()));
    for (int i = 0; i < count(); ++i) {
        layouts.push_back(layout(i));
    }
    return layouts;
}

present::PageLayout PageStrip::layout(int index) const
{
    const Page& page = pages_[std::size_t(index)];
    return page.view != nullptr ? page.view->layout() : page.layout;
}

QByteArray PageStrip::sizes(int index) const
{
    const Page& page = pages_[std::size_t(index)];
    return page.view != nullptr ? page.view->saveSizes() : page.sizes;
}

void PageStrip::setSizes(int index, const QByteArray& sizes)
{
    Page& page = pages_[std::size_t(index)];
    page.sizes = sizes;
    if (page.view != nullptr) {
        page.view->restoreSizes(sizes);
    }
}

} // namespace kestrav::desktop
