#include "app/desktop/notes/NotesPanel.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/FormRows.h"
#include "app/desktop/printing/Printing.h"
#include "app/desktop/printing/TPrintPreviewForm.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/Report.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kestrav::desktop
{

namespace
{

// What is typed is put into the chart so often, and with it into the copy of what is not saved.
constexpr std::chrono::seconds kKeepPause{20};

QString withLineFeeds(const std::wstring& notes)
{
    return toQt(notes).remove(QLatin1Char('\r'));
}

} // namespace

NotesPanel::NotesPanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), text_(new QPlainTextEdit(this)),
      find_(new QLineEdit(this)), keep_(new QPushButton(tr("&Keep Notes"), this)),
      note_(makeNote(this, "NotesNoteLabel")), soon_(new QTimer(this))
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
    box->addWidget(note_);
    box->addLayout(bar);
    setFocusProxy(text_);
    connect(text_, &QPlainTextEdit::textChanged, this, &NotesPanel::showState);
    connect(text_, &QPlainTextEdit::modificationChanged, this, &NotesPanel::showState);
    connect(find_, &QLineEdit::returnPressed, this, &NotesPanel::FindEditReturnPressed);
    soon_->setObjectName(QStringLiteral("KeepTimer"));
    soon_->setSingleShot(true);
    soon_->setInterval(kKeepPause);
    connect(soon_, &QTimer::timeout, this, [this] {
        if (keep_->isEnabled()) {
            keepNotes();
        }
    });
    connect(text_, &QPlainTextEdit::textChanged, this, [this] {
        if (text_->document()->isModified() && !soon_->isActive()) {
            soon_->start();
        }
    });
    connect(keep_, &QPushButton::clicked, this, &NotesPanel::KeepButtonClick);
    connect(&workspace.database(), &OpenDatabase::editsDue, this, &NotesPanel::keepNotes);
    connect(&workspace.database(), &OpenDatabase::linesEdited, this, &NotesPanel::followEdits);
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
    const std::optional<std::size_t> line = pinnedChart() ? std::nullopt : workspace().chartLine();
    // Notes that were edited stay while the same chart is computed anew. Several charts may have
    // one name, so the line counts too.
    if (!(text_->document()->isModified() && name == shownOf_ && line == shownLine_)) {
        keepNotes();
        const QString notes = shown ? withLineFeeds(shown->chart.identity.notes) : QString();
        // Whoever is typing is not disturbed when these very notes were put into the chart.
        const bool typing =
            text_->hasFocus() && shown && name == shownOf_ && line == shownLine_ &&
            data::cleanNotes(toWide(text_->toPlainText())) == shown->chart.identity.notes;
        if (!typing && notes != text_->toPlainText()) {
            text_->setPlainText(notes);
        }
        text_->document()->setModified(false);
        shownOf_ = name;
        shownLine_ = line;
    }
    showState();
}

void NotesPanel::showState()
{
    const bool ofDatabase = workspace().chartLine().has_value() && !pinnedChart();
    text_->setReadOnly(!ofDatabase);
    text_->setPlaceholderText(ofDatabase ? tr("No notes.")
                                         : tr("Notes belong to charts of the database."));
    const std::wstring text = toWide(text_->toPlainText());
    const bool modified = text_->document()->isModified();
    const auto bar = data::notesProblem(text);
    QString problem;
    if (ofDatabase && modified && bar) {
        problem = toQt(*bar);
    } else if (ofDatabase && modified && text.size() > data::kNotesLength) {
        problem = tr("The notes are too long.");
    }
    showNote(*note_, *text_, problem);
    note_->setVisible(!problem.isEmpty());
    keep_->setEnabled(ofDatabase && modified && problem.isEmpty());
}

void NotesPanel::KeepButtonClick()
{
    keepNotes();
}

// The chart need not be the shown one any more. What cannot stand in notes is replaced here, so
// that nothing typed is lost when there is no time to mend it.
void NotesPanel::keepNotes()
{
    if (!text_->document()->isModified()) {
        return;
    }
    OpenDatabase& database = workspace().database();
    const std::optional<std::size_t> line = shownLine_;
    std::optional<core::Chart> record = line ? database.record(*line) : std::nullopt;
    if (!record) {
        workspace().tellProblem(tr("The changed notes of %1 were not kept.").arg(toQt(shownOf_)));
        return;
    }
    std::wstring notes = toWide(text_->toPlainText());
    std::replace(notes.begin(), notes.end(), L'|', L'/');
    record->identity.notes = data::cleanNotes(notes);
    text_->document()->setModified(false);
    database.change(tr("Notes of %1").arg(toQt(shownOf_)), [&](data::ChartDatabase& charts) {
        charts.replace(*line, *record);
        return data::Outcome::Done;
    });
}

// The line of the chart moves when others come or go before it.
void NotesPanel::followEdits(const std::vector<LineEdit>& edits)
{
    for (const LineEdit& edit : edits) {
        if (!shownLine_ || edit.line > *shownLine_ ||
            edit.before.has_value() == edit.after.has_value()) {
            continue;
        }
        if (edit.after) {
            ++*shownLine_;
        } else if (edit.line < *shownLine_) {
            --*shownLine_;
        } else {
            shownLine_.reset();
        }
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
