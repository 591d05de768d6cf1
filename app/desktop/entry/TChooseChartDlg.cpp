#include "app/desktop/entry/TChooseChartDlg.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/ChartNamesModel.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace kestrav::desktop
{

namespace
{

constexpr int kRowsShown = 14;
constexpr int kColumnsShown = 60;

bool movesInList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

} // namespace

TChooseChartDlg::TChooseChartDlg(OpenDatabase& database, const QString& caption, QWidget* parent)
    : QDialog(parent),
      model_(new ChartNamesModel(database.list(), database.charts().order(), this)),
      filter_(new QLineEdit(this)), list_(new QTreeView(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("TChooseChartDlg"));
    setWindowTitle(caption);
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setClearButtonEnabled(true);
    filter_->installEventFilter(this);
    filter_->setAccessibleName(tr("Letters of the name"));
    auto* const label = new QLabel(tr("&Letters of the name:"), this);
    label->setBuddy(filter_);
    list_->setObjectName(QStringLiteral("ChartList"));
    list_->setAccessibleName(tr("Charts"));
    list_->setModel(model_);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    list_->setMinimumSize(fontMetrics().averageCharWidth() * kColumnsShown,
                          fontMetrics().lineSpacing() * kRowsShown);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    list_->setColumnWidth(1, 13 * digit);
    list_->setColumnWidth(2, 11 * digit);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(label);
    box->addWidget(filter_);
    box->addWidget(list_, 1);
    box->addWidget(buttons_);
    connect(filter_, &QLineEdit::textChanged, this, &TChooseChartDlg::FilterEditChange);
    connect(list_, &QTreeView::activated, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // The rows belong to the list of the database as it is now.
    connect(&database, &OpenDatabase::reset, this, &QDialog::reject);
    FilterEditChange();
    filter_->setFocus();
}

std::optional<std::size_t> TChooseChartDlg::line() const
{
    const QModelIndex index = list_->currentIndex();
    return index.isValid() ? std::optional(model_->line(index.row())) : std::nullopt;
}

void TChooseChartDlg::FilterEditChange()
{
    model_->setFilter(filter_->text());
    list_->setCurrentIndex(model_->index(0, 0));
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(model_->rowCount() > 0);
}

// The arrows move in the list while letters are typed.
bool TChooseChartDlg::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == filter_ && event->type() == QEvent::KeyPress &&
        movesInList(static_cast<QKeyEvent*>(event)->key())) {
        QApplication::sendEvent(list_, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace kestrav::desktop
