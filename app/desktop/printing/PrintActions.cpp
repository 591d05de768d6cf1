#include "app/desktop/printing/PrintActions.h"

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/printing/Printing.h"
#include "app/desktop/printing/TPrintPreviewForm.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"

#include <QMenu>

namespace kestrav::desktop
{

PrintActions::PrintActions(TKSVform1& window) : QObject(&window), window_(window)
{
    window_.menu(MenuName::File)->addSeparator();
    window_.addCommand(MenuName::File,
                       {"PrintAction", tr("&Print Page..."), QKeySequence(tr("Ctrl+P")),
                        tr("Shows how the page will be printed"), "document-print"},
                       [this] { PrintActionTriggered(); });
    window_.addCommand(MenuName::File,
                       {"PagePdfAction",
                        tr("Save Page as PD&F..."),
                        {},
                        tr("Saves the page as it would be printed")},
                       [this] { PdfActionTriggered(); });
    window_.menu(MenuName::File)->addSeparator();
}

void PrintActions::PrintActionTriggered()
{
    if (PageView* const page = window_.pages().page()) {
        TPrintPreviewForm preview(paperOfPage(*page, window_.workspace()), window_.workspace(),
                                  &window_);
        preview.exec();
    }
}

void PrintActions::PdfActionTriggered()
{
    PageView* const page = window_.pages().page();
    if (page == nullptr) {
        return;
    }
    const PaperDocument document = paperOfPage(*page, window_.workspace());
    const auto file = TMessages::fileToSave(&window_, tr("Save Page as PDF"), L"PDF (*.pdf)|*.pdf",
                                            toQt(document.title) + QStringLiteral(" - ") +
                                                window_.pages().name(window_.pages().current()) +
                                                QStringLiteral(".pdf"));
    if (file) {
        savePdf(document, *file, window_.workspace());
    }
}

} // namespace kestrav::desktop
