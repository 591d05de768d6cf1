#include "app/desktop/report/TReportForm.h"

#include "app/desktop/printing/Printing.h"
#include "app/desktop/printing/TPrintPreviewForm.h"
#include "app/desktop/report/DocumentBrowser.h"
#include "app/desktop/report/ReportDefinitions.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/SaveFile.h"
#include "app/desktop/shell/TMessages.h"
#include "app/present/Report.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using present::ReportSection;

QString sectionTitle(ReportSection section)
{
    QString title = toQt(std::string(present::reportSectionName(section))).replace('-', ' ');
    return title.left(1).toUpper() + title.mid(1);
}

std::string documentBytes(const present::Document& document, const QString& suffix)
{
    if (suffix == QLatin1String("csv")) {
        return present::documentCsv(document);
    }
    if (suffix == QLatin1String("json")) {
        return present::documentJson(document);
    }
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm")) {
        return present::documentHtml(document);
    }
    if (suffix == QLatin1String("rtf")) {
        return present::documentRtf(document);
    }
    return core::toUtf8(present::documentText(document));
}

} // namespace

TReportForm::TReportForm(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), definitions_(new QComboBox(this)),
      sections_(new QListWidget(this)), plain_(new QCheckBox(tr("Plain te&xt"), this)),
      browser_(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("TReportForm"));
    definitions_->setObjectName(QStringLiteral("DefinitionComboBox"));
    definitions_->setAccessibleName(tr("Report"));
    sections_->setObjectName(QStringLiteral("SectionList"));
    sections_->setAccessibleName(tr("Sections of the report"));
    plain_->setObjectName(QStringLiteral("PlainCheckBox"));
    browser_->setObjectName(QStringLiteral("ReportBrowser"));
    browser_->setAccessibleName(tr("The report"));
    browser_->setFrameShape(QFrame::NoFrame);
    browser_->setOpenLinks(false);
    // A bar that comes and goes makes the browser arrange a long text three times.
    browser_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);

    const auto button = [this](const QString& text, const char* name, auto handler) {
        auto* const made = new QPushButton(text, this);
        made->setObjectName(QLatin1String(name));
        connect(made, &QPushButton::clicked, this, handler);
        return made;
    };
    const auto mover = [this](const QString& text, const QString& tip, const char* name, int by) {
        auto* const made = new QToolButton(this);
        made->setText(text);
        made->setToolTip(tip);
        made->setAccessibleName(tip);
        made->setObjectName(QLatin1String(name));
        connect(made, &QToolButton::clicked, this, [this, by] { moveSection(by); });
        return made;
    };
    auto* const moves = new QHBoxLayout;
    moves->addWidget(mover(QStringLiteral("\u25B2"), tr("Section earlier"), "UpButton", -1));
    moves->addWidget(mover(QStringLiteral("\u25BC"), tr("Section later"), "DownButton", 1));
    moves->addStretch(1);
    moves->addWidget(plain_);

    auto* const side = new QWidget(this);
    auto* const column = new QVBoxLayout(side);
    auto* const label = new QLabel(tr("&Report:"), side);
    label->setBuddy(definitions_);
    column->addWidget(label);
    column->addWidget(definitions_);
    column->addWidget(sections_, 1);
    column->addLayout(moves);
    column->addWidget(button(tr("&Keep As..."), "KeepButton", [this] { KeepButtonClick(); }));
    column->addWidget(button(tr("&Save File..."), "SaveButton", [this] { SaveButtonClick(); }));
    column->addWidget(
        button(tr("Print Previe&w..."), "PreviewButton", [this] { PreviewButtonClick(); }));

    auto* const splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(side);
    splitter->addWidget(browser_);
    splitter->setStretchFactor(1, 1);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(splitter);
    setFocusProxy(definitions_);

    connect(definitions_, &QComboBox::activated, this, &TReportForm::DefinitionComboBoxActivated);
    connect(sections_, &QListWidget::itemChanged, this, &TReportForm::SectionListChanged);
    connect(plain_, &QCheckBox::toggled, this, &TReportForm::showDocument);
    dependOn(OnChart | OnYogas | OnMoment);
    fillDefinitions();
}

QString TReportForm::title() const
{
    return tr("Report");
}

std::vector<present::Block> TReportForm::blocks()
{
    refreshNow();
    return document_.blocks;
}

void TReportForm::fillDefinitions()
{
    const QString before = definitions_->currentText();
    definitions_->clear();
    std::vector<std::string> problems;
    for (const present::ReportDefinition& definition : reportDefinitions(problems)) {
        definitions_->addItem(toQt(definition.name),
                              toQt(present::writeReportDefinition(definition)));
    }
    for (const std::string& problem : problems) {
        workspace().tellProblem(toQt(problem));
    }
    definitions_->setCurrentIndex(std::max(0, definitions_->findText(before)));
    DefinitionComboBoxActivated();
}

void TReportForm::DefinitionComboBoxActivated()
{
    auto read = present::readReportDefinition(toUtf8(definitions_->currentData().toString()));
    if (read) {
        definition_ = std::move(read.value());
        fillSections();
        markDue();
    }
}

// The sections of the report in its order, ticked, and behind them those it does not have.
void TReportForm::fillSections()
{
    filling_ = true;
    sections_->clear();
    const auto add = [this](ReportSection section, int part) {
        auto* const item = new QListWidgetItem(sectionTitle(section), sections_);
        item->setData(Qt::UserRole, int(section));
        item->setData(Qt::UserRole + 1, part);
        item->setCheckState(part >= 0 ? Qt::Checked : Qt::Unchecked);
    };
    for (std::size_t i = 0; i < definition_.parts.size(); ++i) {
        add(definition_.parts[i].section, int(i));
    }
    for (int section = 0; section < present::kReportSections; ++section) {
        const bool there = std::any_of(
            definition_.parts.begin(), definition_.parts.end(),
            [&](const present::ReportPart& part) { return int(part.section) == section; });
        if (!there) {
            add(ReportSection(section), -1);
        }
    }
    filling_ = false;
}

void TReportForm::SectionListChanged()
{
    if (filling_) {
        return;
    }
    std::vector<present::ReportPart> parts;
    for (int row = 0; row < sections_->count(); ++row) {
        const QListWidgetItem& item = *sections_->item(row);
        if (item.checkState() != Qt::Checked) {
            continue;
        }
        const int before = item.data(Qt::UserRole + 1).toInt();
        present::ReportPart part;
        part.section = ReportSection(item.data(Qt::UserRole).toInt());
        parts.push_back(before >= 0 ? definition_.parts[std::size_t(before)] : part);
    }
    definition_.parts = std::move(parts);
    const int row = sections_->currentRow();
    fillSections();
    sections_->setCurrentRow(row);
    markDue();
}

void TReportForm::moveSection(int by)
{
    const int row = sections_->currentRow();
    const int to = row + by;
    const int count = int(definition_.parts.size());
    if (row < 0 || row >= count || to < 0 || to >= count) {
        return;
    }
    std::swap(definition_.parts[std::size_t(row)], definition_.parts[std::size_t(to)]);
    fillSections();
    sections_->setCurrentRow(to);
    markDue();
}

void TReportForm::refresh()
{
    const ChartPointer shown = chart();
    if (!shown) {
        work_.cancel();
        document_ = {};
        browser_->setPlainText(tr("No chart is open."));
        return;
    }
    work_.start(
        [shown, data = workspace().data(), yogas = workspace().yogas(),
         moment = workspace().moment(), definition = definition_](const WorkHandle& /*handle*/) {
            present::ReportSource source{*shown, data->series,
                                         yogas->files().empty() ? nullptr : yogas.get(), moment};
            source.style = present::DiagramStyle(shown->settings.diagramStyle);
            return present::makeReport(source, definition);
        },
        [this](present::Document made) {
            document_ = std::move(made);
            showDocument();
        });
}

void TReportForm::showDocument()
{
    if (plain_->isChecked()) {
        browser_->setHtml(QStringLiteral("<pre>%1</pre>")
                              .arg(toQt(present::documentText(document_)).toHtmlEscaped()));
    } else {
        browser_->document()->clear();
        browser_->setHtml(documentForBrowser(document_, *browser_));
    }
}

void TReportForm::SaveButtonClick()
{
    const auto file = TMessages::fileToSave(
        this, tr("Save Report"),
        L"Text (*.txt)|*.txt|Rich text (*.rtf)|*.rtf|Web page (*.html)|*.html|PDF (*.pdf)|*.pdf|"
        L"Comma-separated values (*.csv)|*.csv|JSON (*.json)|*.json",
        toQt(document_.title) + QStringLiteral(".txt"));
    if (!file) {
        return;
    }
    if (QFileInfo(*file).suffix().toLower() != QLatin1String("pdf")) {
        saveBytes(documentBytes(document_, QFileInfo(*file).suffix().toLower()), *file,
                  workspace());
        return;
    }
    savePdf(paperOfReport(document_), *file, workspace());
}

void TReportForm::PreviewButtonClick()
{
    TPrintPreviewForm preview(paperOfReport(document_), workspace(), window());
    preview.exec();
}

void TReportForm::KeepButtonClick()
{
    const auto name = TMessages::text(this, tr("Keep Report"), tr("&Name of the report:"),
                                      toQt(definition_.name));
    if (!name || name->trimmed().isEmpty()) {
        return;
    }
    definition_.name = toUtf8(name->simplified());
    if (const auto kept = keepReportDefinition(definition_); !kept) {
        workspace().tellProblem(toQt(kept.error().text()));
        return;
    }
    const QString kept = toQt(definition_.name);
    fillDefinitions();
    definitions_->setCurrentText(kept);
    DefinitionComboBoxActivated();
}

} // namespace kestrav::desktop
