// From a page or a report to a printer, a preview or a PDF file.
#pragma once

#include "app/desktop/printing/PaperLayout.h"
#include "core/Result.h"

#include <QPageLayout>

class QPrinter;

namespace kestrav::desktop
{

class PageView;
class Workspace;

/// The page as it is shown, for paper: its cells in their proportions with the head of its chart.
[[nodiscard]] PaperDocument paperOfPage(PageView& page, Workspace& workspace);

/// A report for paper.
[[nodiscard]] PaperDocument paperOfReport(const present::Document& report);

/// Prints all sheets on the printer with its paper and margins; also for previews.
void printPaper(const PaperDocument& document, QPrinter& printer);

/// Writes the document as PDF, in which texts stay texts.
[[nodiscard]] core::Result<void> writePdf(const PaperDocument& document, const QPageLayout& layout,
                                          const QString& file);

/// The same to a file of the user's choice, with the question before one is replaced and the news
/// of what came of it. False when nothing was written.
bool savePdf(const PaperDocument& document, const QString& file, Workspace& workspace);

/// The paper and margins that the user chose last: A4 upright before that.
[[nodiscard]] QPageLayout chosenPaper();
void keepPaper(const QPageLayout& layout);

} // namespace kestrav::desktop
