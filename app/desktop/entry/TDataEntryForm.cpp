#include "app/desktop/entry/TDataEntryForm.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/EntryPages.h"
#include "app/desktop/entry/EventsTable.h"
#include "app/desktop/entry/FormRows.h"
#include "app/desktop/entry/PlaceFields.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/BirthRecord.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/TextForms.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::chrono::seconds kDraftPause{20};
constexpr std::chrono::milliseconds kPreviewPause{30};

// "15 7' Leo, Magha 3" with its degree sign.
QString positionText(const core::Chart& chart, int point)
{
    const double position = core::at(chart.nakshatraPosition, point);
    return QStringLiteral("%1, %2 %3")
        .arg(toQt(core::FormatSignPosition(core::at(chart.longitude, point))).simplified(),
             toQt(core::nakshatraName(present::nakshatraOf(position))))
        .arg(present::padaOf(position));
}

} // namespace

TDataEntryForm::TDataEntryForm(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), tabs_(new QTabWidget(this)),
      birth_(new BirthPage(workspace, this)), events_(new EventsTable(this)),
      ascendant_(new QLabel(this)), moon_(new QLabel(this)), day_(new QLabel(this)),
      state_(new QLabel(this)),
      // Tab comes to them last, as they join the form after all pages.
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel)),
      timer_(new QTimer(this)), soon_(new QTimer(this))
{
    setObjectName(QStringLiteral("TDataEntryForm"));
    tabs_->setObjectName(QStringLiteral("EntryTabs"));
    addPage(birth_, tr("&Birth"));
    addPage(new PersonPage(this), tr("Pe&rson"));
    addPage(new ContactPage(this), tr("Co&ntact"));
    addPage(new NotesPage(this), tr("Note&s"));
    auto* const eventsPage = new QWidget(this);
    auto* const eventsBox = new QVBoxLayout(eventsPage);
    eventsBox->addWidget(events_);
    tabs_->addTab(eventsPage, tr("&Events"));

    auto* const preview = new QGridLayout;
    const auto show = [this, preview](QLabel* value, const char* name, const QString& title) {
        value->setObjectName(QLatin1String(name));
        value->setTextFormat(Qt::PlainText);
        const int row = preview->rowCount();
        preview->addWidget(new QLabel(title, this), row, 0);
        preview->addWidget(value, row, 1);
    };
    show(ascendant_, "PreviewAscendantLabel", tr("Ascendant"));
    show(moon_, "PreviewMoonLabel", tr("Moon"));
    show(day_, "PreviewDayLabel", tr("Day"));
    preview->setColumnStretch(1, 1);
    preview->setHorizontalSpacing(fontMetrics().height());
    preview->setContentsMargins(fontMetrics().height() / 2, 0, 0, 0);
    state_->setObjectName(QStringLiteral("StateLabel"));
    state_->setWordWrap(true);
    state_->setContentsMargins(fontMetrics().height() / 2, 0, 0, 0);
    auto* const bottom = new QVBoxLayout;
    bottom->addLayout(preview);
    bottom->addWidget(state_);
    bottom->addWidget(buttons_);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(tabs_, 1);
    box->addLayout(bottom);
    keepEnterInside(*this);

    soon_->setSingleShot(true);
    soon_->setInterval(kPreviewPause);
    connect(soon_, &QTimer::timeout, this, &TDataEntryForm::showPreview);
    connect(events_, &EventsTable::edited, this, &TDataEntryForm::EditChange);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TDataEntryForm::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &TDataEntryForm::reject);
    connect(timer_, &QTimer::timeout, this, &TDataEntryForm::keepDraft);
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (isVisible()) {
            keepDraft();
        }
    });
    newChart();
    // All of a page where the screen has room for it.
    resize((sizeHint() + QSize(0, lacking_)).boundedTo(screen()->availableSize()));
}

TDataEntryForm::~TDataEntryForm()
{
    // The focus moves once more while the fields go.
    disconnect(qApp, nullptr, this, nullptr);
}

void TDataEntryForm::addPage(EntryPage* page, const QString& title)
{
    auto* const area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(page);
    area->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    // As large as the page, as long as the screen allows it.
    const QSize wanted = page->sizeHint();
    area->setMinimumWidth(wanted.width() + fontMetrics().height() * 2);
    lacking_ = std::max(lacking_, page->heightForWidth(wanted.width()) - area->sizeHint().height());
    tabs_->addTab(area, title);
    pages_.push_back(page);
    connect(page, &EntryPage::edited, this, &TDataEntryForm::EditChange);
}

PlaceFields& TDataEntryForm::place()
{
    return birth_->place();
}

void TDataEntryForm::newChart()
{
    setWindowTitle(tr("New Chart"));
    fill({});
    filledDraft_ = draftText();
}

void TDataEntryForm::edit(const core::Chart& record, std::optional<std::size_t> line)
{
    setWindowTitle(tr("Edit Chart"));
    fill(record);
    line_ = line;
    lineText_ = line ? std::string(workspace_.database().charts().line(*line)) : std::string();
    filledDraft_ = draftText();
}

void TDataEntryForm::goOn(std::string_view draft)
{
    setWindowTitle(tr("New Chart"));
    const EntryDraft read = readDraftLine(draft);
    fill(read.chart);
    for (auto text = read.texts.begin(); text != read.texts.end(); ++text) {
        if (auto* const edit = birth_->findChild<QLineEdit*>(text.key())) {
            edit->setText(text.value());
        }
    }
    // It stays in the file until it is saved or kept anew.
    keptDraft_ = draft;
    others_.erase(std::remove(others_.begin(), others_.end(), keptDraft_), others_.end());
    filledDraft_.clear();
    EditChange();
}

void TDataEntryForm::fill(const core::Chart& record)
{
    base_ = record;
    line_.reset();
    const data::DateOrder order = workspace_.database().charts().order();
    for (EntryPage* const page : pages_) {
        page->fill(record, order);
    }
    events_->setEvents(record.identity.events, order);
    others_ = keptDrafts();
    keptDraft_.clear();
    timer_->start(kDraftPause);
    tabs_->setCurrentIndex(0);
    birth_->nameEdit()->setFocus();
    EditChange();
}

core::Chart TDataEntryForm::typed() const
{
    core::Chart chart = base_;
    for (const EntryPage* const page : pages_) {
        page->store(chart);
    }
    chart.identity.events = events_->events();
    return chart;
}

EntryDraft TDataEntryForm::draft() const
{
    EntryDraft draft{typed(), {}};
    for (const QLineEdit* const edit : birth_->findChildren<QLineEdit*>()) {
        // Not the editors inside boxes, whose values the record holds.
        if (edit->objectName().endsWith(QLatin1String("Edit"))) {
            draft.texts[edit->objectName()] = edit->text();
        }
    }
    return draft;
}

std::string TDataEntryForm::draftText() const
{
    return draftLine(draft(), workspace_.database().charts().order());
}

bool TDataEntryForm::changed() const
{
    return draftText() != filledDraft_;
}

void TDataEntryForm::keepDraft()
{
    const std::string text = draftText();
    if (text == keptDraft_ || (keptDraft_.empty() && text == filledDraft_)) {
        return;
    }
    keptDraft_ = text;
    std::vector<std::string> lines = others_;
    lines.push_back(text);
    if (const auto kept = keepDrafts(lines); !kept) {
        workspace_.tellProblem(
            tr("The draft could not be kept: %1").arg(toQt(kept.error().text())));
        // Once is enough.
        timer_->stop();
    }
}

void TDataEntryForm::dropDraft()
{
    timer_->stop();
    if (!keptDraft_.empty()) {
        static_cast<void>(keepDrafts(others_));
        keptDraft_.clear();
    }
}

void TDataEntryForm::reject()
{
    if (changed()) {
        keepDraft();
    } else {
        dropDraft();
    }
    timer_->stop();
    filledDraft_ = draftText();
    QDialog::reject();
    emit left();
}

void TDataEntryForm::OkButtonClick()
{
    core::Chart chart = typed();
    data::cleanRecord(chart);
    data::refreshBirthTexts(chart);
    if (!data::hasLetterOrDigit(chart.name)) {
        chart.name = data::kNoNameText;
    }
    TMessages messages;
    OpenDatabase& database = workspace_.database();
    // The form stays open while lines come and go, and even another file.
    const bool there =
        line_ && *line_ < database.charts().size() && database.charts().line(*line_) == lineText_;
    const std::optional<std::size_t> line =
        database.saveRecord(chart, messages, there ? line_ : std::nullopt);
    if (!line) {
        return;
    }
    dropDraft();
    filledDraft_ = draftText();
    workspace_.showLine(*line);
    accept();
    emit left();
}

void TDataEntryForm::EditChange()
{
    QStringList missing = birth_->missing();
    bool valid = birth_->valid() && events_->valid();
    for (const EntryPage* const page : pages_) {
        valid = valid && page->valid();
    }
    QString text;
    if (!missing.isEmpty()) {
        text = tr("Still missing: %1").arg(missing.join(QStringLiteral(", ")));
    } else if (!valid) {
        for (int i = 0; i < tabs_->count() && text.isEmpty(); ++i) {
            const bool good =
                i < int(pages_.size()) ? pages_[std::size_t(i)]->valid() : events_->valid();
            text = good ? QString()
                        : tr("Something on the page %1 is not understood.")
                              .arg(QString(tabs_->tabText(i)).remove(QLatin1Char('&')));
        }
    }
    state_->setText(text);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(text.isEmpty());
    soon_->start();
}

void TDataEntryForm::showPreview()
{
    present::ComputedChart computed;
    computed.chart = typed();
    computed.settings = workspace_.settings();
    computed.hasPlace = birth_->hasPlace();
    const bool moment = birth_->hasMoment() && present::birthProblem(computed.chart).empty();
    const QString none = QStringLiteral("\u2013");
    for (QLabel* const value : {ascendant_, moon_, day_}) {
        value->setText(none);
    }
    if (!moment) {
        return;
    }
    astro::EphemerisContext context(workspace_.data()->series);
    present::computeFromBirthData(computed, context);
    const core::Chart& chart = computed.chart;
    moon_->setText(positionText(chart, core::kMoon));
    QString day = toQt(core::weekdayName(chart.weekday));
    if (computed.hasPlace) {
        ascendant_->setText(positionText(chart, core::kAscendant));
        if (chart.sunrise) {
            const QString rise = toQt(
                core::FormatClock(*chart.sunrise, workspace_.settings().twelveHourClock, false));
            day = tr("%1, sunrise %2").arg(day, rise.trimmed());
        }
    }
    day_->setText(day);
}

} // namespace kestrav::desktop
