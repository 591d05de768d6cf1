#include "app/desktop/entry/EntryPages.h"

#include "app/desktop/entry/FormRows.h"
#include "app/desktop/shell/Convert.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace kestrav::desktop
{

NotesPage::NotesPage(QWidget* parent)
    : EntryPage(parent), notes_(new QPlainTextEdit(this)), room_(new QLabel(this)),
      note_(makeNote(this, "NotesNoteLabel"))
{
    notes_->setObjectName(QStringLiteral("NotesEdit"));
    notes_->setAccessibleName(tr("Notes"));
    notes_->setTabChangesFocus(true);
    room_->setObjectName(QStringLiteral("NotesRoomLabel"));
    auto* const label = new QLabel(tr("Te&xt of the notes:"), this);
    label->setBuddy(notes_);
    auto* const below = new QHBoxLayout;
    below->addWidget(note_, 1);
    below->addWidget(room_);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(label);
    box->addWidget(notes_, 1);
    box->addLayout(below);
    connect(notes_, &QPlainTextEdit::textChanged, this, [this] {
        check();
        emit edited();
    });
}

void NotesPage::fill(const core::Chart& chart, data::DateOrder /*order*/)
{
    filledNotes_ = chart.identity.notes;
    notes_->setPlainText(toQt(filledNotes_).remove(QLatin1Char('\r')));
    filledText_ = notes_->toPlainText();
    check();
}

void NotesPage::store(core::Chart& chart) const
{
    // Notes that were not edited keep what the field cannot show.
    chart.identity.notes = notes_->toPlainText() == filledText_
                               ? filledNotes_
                               : data::cleanNotes(toWide(notes_->toPlainText()));
}

bool NotesPage::valid() const
{
    const std::wstring text = toWide(notes_->toPlainText());
    return notes_->toPlainText() == filledText_ ||
           (!data::notesProblem(text) && text.size() <= data::kNotesLength);
}

void NotesPage::check()
{
    const std::wstring text = toWide(notes_->toPlainText());
    const auto bar = data::notesProblem(text);
    QString problem;
    if (!valid()) {
        problem = bar ? toQt(*bar) : tr("The notes are too long.");
    }
    showNote(*note_, *notes_, problem);
    room_->setText(tr("%1 of %2 characters").arg(text.size()).arg(data::kNotesLength));
}

} // namespace kestrav::desktop
