#include "app/desktop/database/TProgressDlg.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace kestrav::desktop
{

namespace
{

constexpr std::chrono::milliseconds kShownAfter{250};
constexpr int kPermille = 1000;

} // namespace

TProgressDlg::TProgressDlg(const QString& text, std::function<QString(std::size_t)> count,
                           QWidget* parent)
    : QDialog(parent), countText_(std::move(count)), work_(new BackgroundWork(this)),
      bar_(new QProgressBar(this)), count_(new QLabel(this))
{
    setObjectName(QStringLiteral("TProgressDlg"));
    setWindowTitle(tr("Kestrav"));
    setWindowModality(Qt::WindowModal);
    auto* const label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("ProgressLabel"));
    label->setTextFormat(Qt::PlainText);
    bar_->setObjectName(QStringLiteral("ProgressBar"));
    bar_->setAccessibleName(text);
    bar_->setRange(0, 0);
    bar_->setTextVisible(false);
    bar_->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    count_->setObjectName(QStringLiteral("CountLabel"));
    count_->setVisible(countText_ != nullptr);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::rejected, this, &TProgressDlg::reject);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(label);
    box->addWidget(bar_);
    box->addWidget(count_);
    box->addWidget(buttons);
    connect(work_, &BackgroundWork::progressed, this,
            [this](qulonglong done, qulonglong total) { showProgress(done, total); });
    connect(work_, &BackgroundWork::finished, this, [this] {
        hide();
        deleteLater();
    });
    showProgress(0, 0);
    QTimer::singleShot(kShownAfter, this, [this] {
        if (work_->running()) {
            setVisible(true);
        }
    });
}

void TProgressDlg::showProgress(std::size_t done, std::size_t total)
{
    if (countText_) {
        count_->setText(countText_(done));
    }
    if (total > 0) {
        bar_->setRange(0, kPermille);
        bar_->setValue(int(kPermille * std::min(done, total) / total));
    }
}

void TProgressDlg::reject()
{
    work_->cancel();
    QDialog::reject();
}

} // namespace kestrav::desktop
