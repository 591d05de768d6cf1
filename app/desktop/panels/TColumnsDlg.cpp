#include "app/desktop/panels/TColumnsDlg.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

constexpr int kColumnRole = Qt::UserRole;

QListWidgetItem* itemOf(const QStringList& headings, std::size_t column)
{
    auto* const item = new QListWidgetItem(headings[qsizetype(column)]);
    item->setData(kColumnRole, qulonglong(column));
    return item;
}

std::size_t columnOf(const QListWidgetItem* item)
{
    return std::size_t(item->data(kColumnRole).toULongLong());
}

} // namespace

TColumnsDlg::TColumnsDlg(const QStringList& headings, const std::vector<std::size_t>& shown,
                         QWidget* parent)
    : QDialog(parent), headings_(headings), filter_(new QLineEdit(this)),
      available_(new QListWidget(this)), shown_(new QListWidget(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Columns"));
    setObjectName(QStringLiteral("TColumnsDlg"));
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setPlaceholderText(tr("Part of a heading"));
    filter_->setClearButtonEnabled(true);
    available_->setObjectName(QStringLiteral("AvailableList"));
    available_->setAccessibleName(tr("Columns that are not shown"));
    shown_->setAccessibleName(tr("Columns that are shown"));
    shown_->setObjectName(QStringLiteral("ShownList"));
    for (QListWidget* const list : {available_, shown_}) {
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->setMinimumSize(fontMetrics().height() * 13, fontMetrics().height() * 14);
        connect(list, &QListWidget::itemSelectionChanged, this, &TColumnsDlg::enableButtons);
    }
    const auto button = [this](const QString& text, const char* name, Qt::ArrowType arrow,
                               auto handler) {
        auto* const made = new QToolButton(this);
        made->setObjectName(QLatin1String(name));
        made->setArrowType(arrow);
        made->setToolTip(text);
        made->setAccessibleName(text);
        connect(made, &QToolButton::clicked, this, handler);
        return made;
    };
    add_ = button(tr("Show"), "AddButton", Qt::RightArrow, [this] { AddButtonClick(); });
    remove_ =
        button(tr("Do not show"), "RemoveButton", Qt::LeftArrow, [this] { RemoveButtonClick(); });
    up_ = button(tr("Earlier"), "UpButton", Qt::UpArrow, [this] { move(-1); });
    down_ = button(tr("Later"), "DownButton", Qt::DownArrow, [this] { move(1); });

    const auto label = [this](const QString& text, QWidget* buddy) {
        auto* const made = new QLabel(text, this);
        made->setBuddy(buddy);
        return made;
    };
    auto* const between = new QVBoxLayout;
    between->addStretch(1);
    between->addWidget(add_);
    between->addWidget(remove_);
    between->addStretch(1);
    auto* const beside = new QVBoxLayout;
    beside->addStretch(1);
    beside->addWidget(up_);
    beside->addWidget(down_);
    beside->addStretch(1);
    auto* const grid = new QGridLayout;
    grid->addWidget(label(tr("&Find:"), filter_), 0, 0);
    grid->addWidget(filter_, 1, 0);
    grid->addWidget(label(tr("&Available columns:"), available_), 2, 0);
    grid->addWidget(label(tr("&Shown columns, in their order:"), shown_), 2, 2);
    grid->addWidget(available_, 3, 0);
    grid->addLayout(between, 3, 1);
    grid->addWidget(shown_, 3, 2);
    grid->addLayout(beside, 3, 3);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(2, 1);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(grid, 1);
    box->addWidget(buttons_);

    connect(filter_, &QLineEdit::textChanged, this, &TColumnsDlg::fillAvailable);
    connect(available_, &QListWidget::itemDoubleClicked, this, &TColumnsDlg::AddButtonClick);
    connect(shown_, &QListWidget::itemDoubleClicked, this, &TColumnsDlg::RemoveButtonClick);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (const std::size_t column : shown) {
        if (column < std::size_t(headings_.size())) {
            shown_->addItem(itemOf(headings_, column));
        }
    }
    fillAvailable();
    filter_->setFocus();
}

std::vector<std::size_t> TColumnsDlg::shown() const
{
    std::vector<std::size_t> columns;
    columns.reserve(std::size_t(shown_->count()));
    for (int row = 0; row < shown_->count(); ++row) {
        columns.push_back(columnOf(shown_->item(row)));
    }
    return columns;
}

void TColumnsDlg::fillAvailable()
{
    const std::vector<std::size_t> taken = shown();
    available_->clear();
    for (std::size_t column = 0; column < std::size_t(headings_.size()); ++column) {
        const bool matches =
            headings_[qsizetype(column)].contains(filter_->text().trimmed(), Qt::CaseInsensitive);
        if (matches && std::find(taken.begin(), taken.end(), column) == taken.end()) {
            available_->addItem(itemOf(headings_, column));
        }
    }
    enableButtons();
}

void TColumnsDlg::AddButtonClick()
{
    int last = shown_->currentRow() >= 0 ? shown_->currentRow() + 1 : shown_->count();
    for (int row = 0; row < available_->count(); ++row) {
        if (available_->item(row)->isSelected()) {
            shown_->insertItem(last, itemOf(headings_, columnOf(available_->item(row))));
            ++last;
        }
    }
    shown_->setCurrentRow(last - 1);
    fillAvailable();
}

void TColumnsDlg::RemoveButtonClick()
{
    qDeleteAll(shown_->selectedItems());
    fillAvailable();
}

void TColumnsDlg::move(int change)
{
    const int row = shown_->currentRow();
    const int to = row + change;
    if (row < 0 || to < 0 || to >= shown_->count()) {
        return;
    }
    shown_->insertItem(to, shown_->takeItem(row));
    shown_->setCurrentRow(to);
    enableButtons();
}

void TColumnsDlg::enableButtons()
{
    add_->setEnabled(!available_->selectedItems().isEmpty());
    remove_->setEnabled(!shown_->selectedItems().isEmpty());
    const bool one = shown_->selectedItems().size() == 1;
    up_->setEnabled(one && shown_->currentRow() > 0);
    down_->setEnabled(one && shown_->currentRow() + 1 < shown_->count());
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(shown_->count() > 0);
}

} // namespace kestrav::desktop
