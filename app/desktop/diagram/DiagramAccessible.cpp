#include "app/desktop/diagram/DiagramAccessible.h"

#include "app/desktop/diagram/DiagramView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/DiagramRegions.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QWindow>

#include <algorithm>
#include <map>

namespace kestrav::desktop
{

namespace
{

using present::Region;
using present::RegionKind;

class DiagramAccessible;

// One house or point. It reads the list of its diagram anew each time, so that it stays true while
// the diagram changes.
class RegionAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    RegionAccessible(DiagramView* view, int region) : view_(view), region_(region)
    {}

    [[nodiscard]] int region() const
    {
        return region_;
    }

    [[nodiscard]] bool isValid() const override
    {
        return view_ && std::size_t(region_) < view_->list().regions.size();
    }
    [[nodiscard]] QObject* object() const override
    {
        return nullptr;
    }
    [[nodiscard]] QWindow* window() const override
    {
        return view_ ? view_->window()->windowHandle() : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override
    {
        return int(contents().size());
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        const std::vector<int> inside = contents();
        const auto* const wanted = dynamic_cast<const RegionAccessible*>(child);
        const auto found = wanted == nullptr
                               ? inside.end()
                               : std::find(inside.begin(), inside.end(), wanted->region());
        return found == inside.end() ? -1 : int(found - inside.begin());
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        for (int i = 0; i < childCount(); ++i) {
            QAccessibleInterface* const each = child(i);
            if (each->rect().contains(x, y)) {
                return each;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (!isValid()) {
            return {};
        }
        switch (kind) {
        case QAccessible::Name: {
            const QString spoken = toQt(it().spoken.empty() ? it().tip : it().spoken);
            return it().layer == 1 ? DiagramView::tr("outside %1").arg(spoken) : spoken;
        }
        case QAccessible::Description:
            return toQt(it().tip);
        default:
            return {};
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override
    {}

    [[nodiscard]] QRect rect() const override
    {
        if (!isValid()) {
            return {};
        }
        const QRect here = view_->polygonOf(region_).boundingRect().toAlignedRect();
        return {view_->mapToGlobal(here.topLeft()), here.size()};
    }
    [[nodiscard]] QAccessible::Role role() const override
    {
        return isValid() && isCell() ? QAccessible::Grouping : QAccessible::ListItem;
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        if (isValid()) {
            state.focusable = true;
            state.selectable = true;
            state.invisible = !view_->isVisible();
            state.focused = view_->hasFocus() && view_->cursor() == region_;
            state.selected = view_->isSelected(region_);
        }
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return {pressAction(), setFocusAction()};
    }
    void doAction(const QString& name) override
    {
        if (!isValid()) {
            return;
        }
        if (name == setFocusAction()) {
            view_->setFocus();
            view_->setCursor(region_);
        } else if (name == pressAction()) {
            view_->inspect(region_);
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override
    {
        return {};
    }

private:
    [[nodiscard]] const Region& it() const
    {
        return view_->list().regions[std::size_t(region_)];
    }
    [[nodiscard]] bool isCell() const
    {
        return it().kind == RegionKind::Sign || it().kind == RegionKind::House;
    }
    [[nodiscard]] std::vector<int> contents() const
    {
        std::vector<int> inside;
        if (!isValid() || !isCell()) {
            return inside;
        }
        for (const int point : present::pointsInOrder(view_->list())) {
            if (present::cellOf(view_->list(), point) == region_) {
                inside.push_back(point);
            }
        }
        return inside;
    }
    [[nodiscard]] DiagramAccessible* diagram() const;

    QPointer<DiagramView> view_;
    int region_;
};

class DiagramAccessible : public QAccessibleWidget
{
public:
    explicit DiagramAccessible(DiagramView* view) : QAccessibleWidget(view, QAccessible::Chart)
    {}
    ~DiagramAccessible() override
    {
        for (const auto& [region, id] : made_) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    [[nodiscard]] int childCount() const override
    {
        return int(cells().size());
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        const std::vector<int> all = cells();
        return index < 0 || std::size_t(index) >= all.size() ? nullptr
                                                             : region(all[std::size_t(index)]);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        const std::vector<int> all = cells();
        const auto* const wanted = dynamic_cast<const RegionAccessible*>(child);
        const auto found =
            wanted == nullptr ? all.end() : std::find(all.begin(), all.end(), wanted->region());
        return found == all.end() ? -1 : int(found - all.begin());
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPointF spot = view()->mapFromGlobal(QPoint(x, y));
        for (const int cell : cells()) {
            if (view()->polygonOf(cell).containsPoint(spot, Qt::OddEvenFill)) {
                QAccessibleInterface* const point = region(cell)->childAt(x, y);
                return point != nullptr ? point : region(cell);
            }
        }
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        return view()->hasFocus() && view()->cursor() >= 0 ? region(view()->cursor()) : nullptr;
    }

    /// The interface of a region, made when it is first asked for.
    [[nodiscard]] QAccessibleInterface* region(int index) const
    {
        const auto found = made_.find(index);
        if (found != made_.end()) {
            return QAccessible::accessibleInterface(found->second);
        }
        auto* const made = new RegionAccessible(view(), index);
        made_[index] = QAccessible::registerAccessibleInterface(made);
        return made;
    }

private:
    [[nodiscard]] DiagramView* view() const
    {
        return static_cast<DiagramView*>(object());
    }
    // The houses, and the middle behind them.
    [[nodiscard]] std::vector<int> cells() const
    {
        std::vector<int> all = present::cellsInOrder(view()->list());
        const std::vector<Region>& regions = view()->list().regions;
        for (std::size_t i = 0; i < regions.size(); ++i) {
            if (regions[i].kind == RegionKind::Centre && !regions[i].spoken.empty()) {
                all.push_back(int(i));
            }
        }
        return all;
    }

    mutable std::map<int, QAccessible::Id> made_;
};

DiagramAccessible* RegionAccessible::diagram() const
{
    return view_ ? dynamic_cast<DiagramAccessible*>(QAccessible::queryAccessibleInterface(view_))
                 : nullptr;
}

QAccessibleInterface* RegionAccessible::parent() const
{
    DiagramAccessible* const whole = diagram();
    if (whole == nullptr || !isValid() || isCell()) {
        return whole;
    }
    const int cell = present::cellOf(view_->list(), region_);
    return cell < 0 || cell == region_ ? whole : whole->region(cell);
}

QAccessibleInterface* RegionAccessible::child(int index) const
{
    const std::vector<int> inside = contents();
    DiagramAccessible* const whole = diagram();
    return whole == nullptr || index < 0 || std::size_t(index) >= inside.size()
               ? nullptr
               : whole->region(inside[std::size_t(index)]);
}

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* const view = qobject_cast<DiagramView*>(object);
    return view == nullptr ? nullptr : new DiagramAccessible(view);
}

} // namespace

void installDiagramAccessibility()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    static_cast<void>(installed);
}

void tellFocusOfRegion(DiagramView& view, int region)
{
    if (!QAccessible::isActive()) {
        return;
    }
    auto* const whole =
        dynamic_cast<DiagramAccessible*>(QAccessible::queryAccessibleInterface(&view));
    if (whole != nullptr && region >= 0) {
        QAccessibleEvent event(whole->region(region), QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace kestrav::desktop
