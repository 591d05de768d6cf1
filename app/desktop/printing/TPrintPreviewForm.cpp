#include "app/desktop/printing/TPrintPreviewForm.h"

#include "app/desktop/printing/Printing.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

TPrintPreviewForm::TPrintPreviewForm(PaperDocument document, Workspace& workspace, QWidget* parent)
    : QDialog(parent), document_(std::move(document)), workspace_(workspace),
      printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      preview_(new QPrintPreviewWidget(printer_.get(), this)), paper_(new QComboBox(this)),
      orientation_(new QComboBox(this)), number_(new QLabel(this))
{
    setObjectName(QStringLiteral("TPrintPreviewForm"));
    setWindowTitle(tr("Print Preview"));
    const QPageLayout layout = chosenPaper();
    printer_->setPageLayout(layout);
    preview_->setObjectName(QStringLiteral("Preview"));
    preview_->setAccessibleName(tr("The sheets as they will be printed"));
    preview_->setViewMode(QPrintPreviewWidget::SinglePageView);
    connect(preview_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { printPaper(document_, *printer); });
    connect(preview_, &QPrintPreviewWidget::previewChanged, this, &TPrintPreviewForm::showNumber);

    paper_->setObjectName(QStringLiteral("PaperComboBox"));
    paper_->setAccessibleName(tr("Paper"));
    for (const QPageSize::PageSizeId size :
         {QPageSize::A4, QPageSize::A3, QPageSize::A5, QPageSize::Letter, QPageSize::Legal}) {
        paper_->addItem(QPageSize(size).name(), int(size));
    }
    paper_->setCurrentIndex(std::max(0, paper_->findData(int(layout.pageSize().id()))));
    orientation_->setObjectName(QStringLiteral("OrientationComboBox"));
    orientation_->setAccessibleName(tr("Orientation"));
    orientation_->addItems({tr("Upright"), tr("Wide")});
    orientation_->setCurrentIndex(layout.orientation() == QPageLayout::Landscape ? 1 : 0);
    connect(paper_, &QComboBox::activated, this, &TPrintPreviewForm::PaperComboBoxActivated);
    connect(orientation_, &QComboBox::activated, this, &TPrintPreviewForm::PaperComboBoxActivated);

    const auto button = [this](const QString& text, const char* name, const QString& tip,
                               auto handler) {
        auto* const made = new QToolButton(this);
        made->setText(text);
        made->setObjectName(QLatin1String(name));
        made->setToolTip(tip);
        made->setAccessibleName(tip);
        connect(made, &QToolButton::clicked, this, handler);
        return made;
    };
    auto* const bar = new QHBoxLayout;
    bar->addWidget(paper_);
    bar->addWidget(orientation_);
    bar->addStretch(1);
    bar->addWidget(
        button(QStringLiteral("\u25C0"), "PreviousSheetButton", tr("Previous sheet"), [this] {
            preview_->setCurrentPage(preview_->currentPage() - 1);
            showNumber();
        }));
    bar->addWidget(number_);
    bar->addWidget(button(QStringLiteral("\u25B6"), "NextSheetButton", tr("Next sheet"), [this] {
        preview_->setCurrentPage(preview_->currentPage() + 1);
        showNumber();
    }));
    bar->addStretch(1);
    bar->addWidget(button(QStringLiteral("\u2212"), "ZoomOutButton", tr("Smaller"),
                          [this] { preview_->zoomOut(); }));
    bar->addWidget(
        button(QStringLiteral("+"), "ZoomInButton", tr("Larger"), [this] { preview_->zoomIn(); }));
    bar->addWidget(button(tr("Whole sheet"), "FitButton", tr("Whole sheet"),
                          [this] { preview_->fitInView(); }));

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* const print = buttons->addButton(tr("&Print..."), QDialogButtonBox::ActionRole);
    print->setObjectName(QStringLiteral("PrintButton"));
    auto* const pdf = buttons->addButton(tr("Save as P&DF..."), QDialogButtonBox::ActionRole);
    pdf->setObjectName(QStringLiteral("PdfButton"));
    connect(print, &QPushButton::clicked, this, &TPrintPreviewForm::PrintButtonClick);
    connect(pdf, &QPushButton::clicked, this, &TPrintPreviewForm::PdfButtonClick);
    // The box would hand the focus to its first button, and Tab would pass by what stands between.
    buttons->setFocusProxy(nullptr);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(bar);
    box->addWidget(preview_, 1);
    box->addWidget(buttons);
    resize(fontMetrics().height() * 50, fontMetrics().height() * 55);
}

// The preview paints on the printer, which has to outlive it.
TPrintPreviewForm::~TPrintPreviewForm()
{
    delete preview_;
}

void TPrintPreviewForm::showNumber()
{
    number_->setText(tr("Sheet %1 of %2").arg(preview_->currentPage()).arg(preview_->pageCount()));
}

void TPrintPreviewForm::PaperComboBoxActivated()
{
    const QPageLayout before = chosenPaper();
    const QPageLayout layout(QPageSize(QPageSize::PageSizeId(paper_->currentData().toInt())),
                             orientation_->currentIndex() == 1 ? QPageLayout::Landscape
                                                               : QPageLayout::Portrait,
                             before.margins(), before.units());
    keepPaper(layout);
    printer_->setPageLayout(layout);
    preview_->updatePreview();
}

void TPrintPreviewForm::PrintButtonClick()
{
    QPrintDialog dialog(printer_.get(), this);
    if (dialog.exec() == QDialog::Accepted) {
        printPaper(document_, *printer_);
        accept();
    }
}

void TPrintPreviewForm::PdfButtonClick()
{
    const auto file = TMessages::fileToSave(this, tr("Save as PDF"), L"PDF (*.pdf)|*.pdf",
                                            toQt(document_.title) + QStringLiteral(".pdf"));
    if (file && savePdf(document_, *file, workspace_)) {
        accept();
    }
}

} // namespace kestrav::desktop
