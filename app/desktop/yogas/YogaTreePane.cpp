#include "app/desktop/yogas/YogaTreePane.h"

#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/yogas/YogaDesk.h"

#include <QCheckBox>
#include <QFrame>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

YogaTreePane::YogaTreePane(YogaDesk& desk, QWidget* parent)
    : QWidget(parent), desk_(desk), model_(new YogaTreeModel(this)), filter_(new QLineEdit(this)),
      onlyHolding_(new QCheckBox(tr("Only those that ho&ld"), this)),
      sorted_(button(tr("A\u2013Z"), "SortedButton",
                     tr("Shows the yogas of a chapter sorted by title"))),
      tree_(new QTreeView(this))
{
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setPlaceholderText(tr("Filter by title or chapter"));
    filter_->setAccessibleName(tr("Filter of the yogas"));
    filter_->setClearButtonEnabled(true);
    onlyHolding_->setObjectName(QStringLiteral("OnlyHoldingCheckBox"));
    sorted_->setAccessibleName(tr("Sorted by title"));
    sorted_->setCheckable(true);
    auto* const expand = button(tr("Expand"), "ExpandButton", tr("Opens the whole tree"));
    auto* const contract = button(tr("Contract"), "ContractButton", tr("Closes the whole tree"));
    tree_->setObjectName(QStringLiteral("YogaTree"));
    tree_->setAccessibleName(tr("Yogas"));
    tree_->setModel(model_);
    tree_->setUniformRowHeights(true);
    tree_->setAllColumnsShowFocus(true);
    tree_->setFrameShape(QFrame::StyledPanel);
    tree_->header()->setStretchLastSection(false);
    tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    setFocusProxy(tree_);
    // Tab comes to the tree by way of the pane, so that what stands above it has to follow.
    setTabOrder(tree_, filter_);
    setTabOrder(filter_, onlyHolding_);
    setTabOrder(onlyHolding_, sorted_);
    setTabOrder(sorted_, expand);
    setTabOrder(expand, contract);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(filter_);
    auto* const row = new FlowLayout(fontMetrics().height() / 3);
    row->setContentsMargins({});
    row->addWidget(onlyHolding_);
    row->addStretch();
    row->addTogether({sorted_, expand, contract});
    box->addLayout(row);
    box->addWidget(tree_, 1);
    connect(filter_, &QLineEdit::textChanged, this, &YogaTreePane::fill);
    connect(onlyHolding_, &QCheckBox::toggled, this, &YogaTreePane::fill);
    connect(sorted_, &QToolButton::toggled, this, &YogaTreePane::fill);
    connect(expand, &QToolButton::clicked, this, &YogaTreePane::ExpandButtonClick);
    connect(contract, &QToolButton::clicked, this, &YogaTreePane::ContractButtonClick);
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (const auto place = model_->placeOf(current); place && !filling_) {
                    desk_.select(place);
                }
            });
    connect(tree_, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!filling_) {
            contracted_.insert(model_->keyOf(index));
        }
    });
    connect(tree_, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { contracted_.remove(model_->keyOf(index)); });
}

QToolButton* YogaTreePane::button(const QString& text, const char* name, const QString& tip)
{
    auto* const made = new QToolButton(this);
    made->setObjectName(QLatin1String(name));
    made->setText(text);
    made->setToolTip(tip);
    return made;
}

void YogaTreePane::show(YogaTreeModel::Library library, present::YogaTruths truths)
{
    shown_ = std::move(library);
    truths_ = std::move(truths);
    fill();
}

void YogaTreePane::selectFirst()
{
    for (const yoga::YogaPlace& place : shown_->all()) {
        if (present::holdsIn(truths_, place)) {
            desk_.select(place);
            return;
        }
    }
}

void YogaTreePane::fill()
{
    if (!shown_) {
        return;
    }
    present::YogaTreeChoice choice;
    choice.filter = toWide(filter_->text().trimmed());
    choice.onlyHolding = onlyHolding_->isChecked();
    choice.sorted = sorted_->isChecked();
    const int scrolled = tree_->verticalScrollBar()->value();
    filling_ = true;
    model_->setTree(shown_, truths_, choice, [this](std::size_t file) {
        return desk_.isDelivered(file)  ? tr("read only")
               : desk_.isModified(file) ? tr("changed")
                                        : QString();
    });
    // A filter shows what it found.
    const bool all = !choice.filter.empty() || choice.onlyHolding;
    const auto expandBelow = [this, all](const QModelIndex& parent, const auto& self) -> void {
        for (int row = 0; row < model_->rowCount(parent); ++row) {
            const QModelIndex index = model_->index(row, 0, parent);
            if (model_->rowCount(index) > 0) {
                tree_->setExpanded(index, all || !contracted_.contains(model_->keyOf(index)));
                self(index, self);
            }
        }
    };
    expandBelow({}, expandBelow);
    filling_ = false;
    tree_->verticalScrollBar()->setValue(scrolled);
    showSelected();
}

void YogaTreePane::showSelected()
{
    const QModelIndex index = desk_.selected() ? model_->indexOf(*desk_.selected()) : QModelIndex();
    if (index != tree_->currentIndex().siblingAtColumn(0)) {
        filling_ = true;
        tree_->setCurrentIndex(index);
        filling_ = false;
        scrollToSelected();
    }
}

// After the sizes of everything have settled.
void YogaTreePane::scrollToSelected()
{
    QTimer::singleShot(0, tree_, [this] { tree_->scrollTo(tree_->currentIndex()); });
}

void YogaTreePane::ExpandButtonClick()
{
    contracted_.clear();
    tree_->expandAll();
}

void YogaTreePane::ContractButtonClick()
{
    tree_->collapseAll();
}

} // namespace kestrav::desktop
