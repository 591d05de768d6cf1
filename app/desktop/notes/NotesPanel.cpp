#include "app/desktop/notes/NotesPanel.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/printing/Printing.h"
#include "app/desktop/printing/TPrintPreviewForm.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/Report.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

// The room that a chart line has for notes.
constexpr int kLongestNotes = 7000;

QString withLineFeeds(const std::wstring& notes)
{
    return toQt(notes).remove(QLatin1Char('\r'));
}

// Line breaks of notes are CR LF.
std::wstring withCarriageReturns(QString text)
{
    return toWide(text.replace(QLatin1Char('\n'), QLatin1String("\r\n")).left(kLongestNotes));
}

} // namespace

NotesPanel::NotesPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), text_(new QPlainTextEdit(this)),
      find_(new QLineEdit(this)), keep_(new QPushButton(tr("&Keep Notes"), this))
{
    setObjectName(QStringLiteral("NotesPanel"));
    text_->setObjectName(QStringLiteral("NotesEdit"));
    text_->setAccessibleName(tr("Notes"));
    text_->setFrameShape(QFrame::NoFrame);
    text_->setTabChangesFocus(true);
    find_->setObjectName(QStringLiteral("FindEdit"));
    find_->setAccessibleName(tr("Find in the notes"));
    find_->setPlaceholderText(tr("Find in the notes"));
    find_->setClearButtonEnabled(true);
    keep_->setObjectName(QStringLiteral("KeepButton"));
    keep_->setToolTip(tr("Puts the notes into the chart; the database is saved as usual"));
    auto* const bar = new QHBoxLayout;
    bar->addWidget(find_, 1);
    bar->addWidget(keep_);
    auto* const box = new QVBoxLayout(this);
    const int gap = fontMetrics().height() / 4;
    box->setContentsMargins(gap, 0, gap, gap);
    box->addWidget(text_, 1);
    box->addLayout(bar);
    setFocusProxy(text_);
    connect(text_, &QPlainTextEdit::modificationChanged, this, &NotesPanel::showState);
    connect(find_, &QLineEdit::returnPressed, this, &NotesPanel::FindEditReturnPressed);
    connect(keep_, &QPushButton::clicked, this, &NotesPanel::KeepButtonClick);
    auto* const print = new QAction(tr("&Print Notes..."), this);
    connect(print, &QAction::triggered, this, [this] {
        PaperDocument paper;
        if (const ChartPointer shown = chart()) {
            paper.title = shown->chart.name;
            paper.head = present::reportHead(*shown);
        }
        paper.flow = blocks();
        TPrintPreviewForm preview(std::move(paper), this->workspace(), window());
        preview.exec();
    });
    auto* const find = new QAction(tr("&Find in the Notes"), this);
    connect(find, &QAction::triggered, find_, qOverload<>(&QWidget::setFocus));
    actions_ = {find, print};
}

QString NotesPanel::title() const
{
    return tr("Notes");
}

QList<QAction*> NotesPanel::panelActions()
{
    return actions_;
}

std::vector<present::Block> NotesPanel::blocks()
{
    refreshNow();
    return {present::Paragraph{toWide(text_->toPlainText())}};
}

void NotesPanel::refresh()
{
    const ChartPointer shown = chart();
    const std::wstring name = shown ? shown->chart.name : std::wstring();
    // Notes that were edited stay while the same chart is computed anew.
    if (!(text_->document()->isModified() && name == shownOf_)) {
        if (text_->document()->isModified()) {
            workspace().tellProblem(
                tr("The changed notes of %1 were not kept.").arg(toQt(shownOf_)));
        }
        text_->setPlainText(shown ? withLineFeeds(shown->chart.identity.notes) : QString());
        text_->document()->setModified(false);
        shownOf_ = name;
    }
    showState();
}

void NotesPanel::showState()
{
    const bool ofDatabase = workspace().chartLine().has_value() && !pinnedChart();
    text_->setReadOnly(!ofDatabase);
    text_->setPlaceholderText(ofDatabase ? tr("No notes.")
                                         : tr("Notes belong to charts of the database."));
    keep_->setEnabled(ofDatabase && text_->document()->isModified());
}

void NotesPanel::KeepButtonClick()
{
    const std::optional<std::size_t> line = workspace().chartLine();
    if (!line) {
        return;
    }
    const std::wstring notes = withCarriageReturns(text_->toPlainText());
    const data::Outcome outcome =
        workspace().database().change(tr("edit notes"), [&](data::ChartDatabase& charts) {
            core::Chart record;
            charts.read(*line, record);
            record.identity.notes = notes;
            charts.replace(*line, record);
            return data::Outcome::Done;
        });
    if (outcome == data::Outcome::Done) {
        text_->document()->setModified(false);
        workspace().showLine(*line);
    }
}

void NotesPanel::FindEditReturnPressed()
{
    if (!text_->find(find_->text())) {
        text_->moveCursor(QTextCursor::Start);
        text_->find(find_->text());
    }
}

} // namespace kestrav::desktop
