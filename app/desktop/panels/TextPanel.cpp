#include "app/desktop/panels/TextPanel.h"

#include "app/desktop/report/DocumentBrowser.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/ReportSections.h"
#include "app/present/TableCatalogue.h"

#include <QTextBrowser>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

using Blocks = std::vector<present::Block>;

Blocks textBlocks(const std::string& content, const ChartPointer& chart, const DataPointer& data,
                  const YogasPointer& yogas, double moment)
{
    if (content == "balance") {
        const auto made = present::findTable("dasha")->make({*chart, data->series});
        return made ? Blocks{made.value()} : Blocks{};
    }
    const present::ReportSource source{*chart, data->series,
                                       yogas->files().empty() ? nullptr : yogas.get(), moment};
    const auto section = present::findReportSection(content);
    if (!section) {
        return {};
    }
    present::ReportPart part;
    part.section = *section;
    return present::reportSection(source, part);
}

} // namespace

TextPanel::TextPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), browser_(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("TextPanel-") + toQt(panel_.content));
    browser_->setObjectName(QStringLiteral("TextBrowser"));
    browser_->setFrameShape(QFrame::NoFrame);
    browser_->setAccessibleName(TextPanel::title());
    browser_->setOpenLinks(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(browser_);
    setFocusProxy(browser_);
    dependOn(panel_.content == "yogas" ? OnChart | OnYogas | OnMoment : OnChart);
}

QString TextPanel::title() const
{
    if (panel_.content == "balance") {
        return tr("Balance of dasha");
    }
    if (panel_.content == "panchanga") {
        return tr("Panchanga of the day of birth");
    }
    return panel_.content == "yogas" ? tr("Yogas") : tr("Notes");
}

std::vector<present::Block> TextPanel::blocks()
{
    refreshNow();
    return blocks_;
}

void TextPanel::refresh()
{
    const ChartPointer shown = chart();
    if (!shown) {
        work_.cancel();
        blocks_.clear();
        browser_->setPlainText(tr("No chart is open."));
        return;
    }
    work_.start(
        [content = panel_.content, shown, data = workspace().data(), yogas = workspace().yogas(),
         moment = workspace().moment()](const WorkHandle& /*handle*/) {
            return textBlocks(content, shown, data, yogas, moment);
        },
        [this](Blocks made) {
            blocks_ = std::move(made);
            present::Document document;
            document.blocks = blocks_;
            browser_->setHtml(documentForBrowser(document, *browser_));
        });
}

} // namespace kestrav::desktop
