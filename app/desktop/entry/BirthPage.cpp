#include "app/desktop/entry/EntryPages.h"

#include "app/desktop/entry/CodeComboBox.h"
#include "app/desktop/entry/FormRows.h"
#include "app/desktop/entry/PlaceFields.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/TextValues.h"
#include "app/present/TypedDate.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>

#include <cmath>

namespace kestrav::desktop
{

namespace
{

constexpr CodeRow kSexes[] = {
    {"", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "not given")},
    {"M", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "male")},
    {"F", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "female")},
};

constexpr int kDateLength = 14;

// The typed time as it stood in the record, else in the clock of the settings.
QString timeShown(const core::Chart& chart, bool twelveHour)
{
    if (!chart.timeText.empty()) {
        return toQt(data::birthTexts(chart).time).trimmed();
    }
    const double hours = std::round(chart.time.localTime * 3600.0) / 3600.0;
    return toQt(twelveHour ? present::clockSeconds(hours, true) : data::timeText(hours));
}

} // namespace

void EntryPage::watch(QLineEdit* edit)
{
    connect(edit, &QLineEdit::textChanged, this, &EntryPage::edited);
}

void EntryPage::watch(CodeComboBox* box)
{
    connect(box, &QComboBox::editTextChanged, this, &EntryPage::edited);
}

void DateField::fill(const core::PlainDate& date, data::DateOrder newOrder)
{
    order = newOrder;
    edit->setText(toQt(present::typedDate(date, order)));
}

core::PlainDate DateField::value() const
{
    const auto date = present::readPlainDate(toWide(edit->text()), order);
    return date ? date.value() : core::PlainDate{};
}

QString DateField::problem() const
{
    const std::wstring text = toWide(edit->text().trimmed());
    if (text.empty()) {
        return {};
    }
    const auto date =
        real ? present::readRealDate(text, order) : present::readPlainDate(text, order);
    return date ? QString() : toQt(date.error().message);
}

void DateField::showProblem() const
{
    showNote(*note, *edit, problem());
}

BirthPage::BirthPage(Workspace& workspace, QWidget* parent)
    : EntryPage(parent), workspace_(workspace),
      name_(makeEdit(this, "NameEdit", int(data::kNameLength))),
      sex_(new CodeComboBox(kSexes, 1, this)), dateLabel_(new QLabel(this)),
      time_(makeEdit(this, "TimeEdit", int(data::kTimeLength))),
      timeNote_(makeNote(this, "TimeNoteLabel")), place_(new PlaceFields(workspace, this))
{
    sex_->setObjectName(QStringLiteral("SexComboBox"));
    sex_->lineEdit()->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[MmFf]?")), sex_));
    date_.edit = makeEdit(this, "DateEdit", kDateLength);
    date_.note = makeNote(this, "DateNoteLabel");
    dateLabel_->setObjectName(QStringLiteral("DateOrderLabel"));
    name_->setPlaceholderText(toQt(data::kNoNameText));
    auto* const rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addRow(*rows, tr("Na&me:"), {name_});
    addRow(*rows, tr("Se&x:"), {sex_});
    addRow(*rows, tr("&Date:"), {date_.edit, dateLabel_, date_.note});
    addRow(*rows, tr("&Time:"), {time_, timeNote_});
    place_->addTo(*rows);
    tabThroughRows(*rows);
    time_->setToolTip(tr("Clock time, such as 14:30, 14:30:15 or 2:30 pm"));
    place_->setAnswering([this](const data::Places& places, const data::Place& place) {
        return data::answerAt(places, place, moment());
    });
    watch(name_);
    watch(sex_);
    watch(date_.edit);
    watch(time_);
    connect(place_, &PlaceFields::edited, this, &EntryPage::edited);
    connect(this, &EntryPage::edited, this, &BirthPage::check);
    // Zone and saving time belong to the moment; the warning opens when the focus has moved on.
    for (QLineEdit* const edit : {date_.edit, time_}) {
        connect(edit, &QLineEdit::editingFinished, place_, &PlaceFields::momentChanged,
                Qt::QueuedConnection);
    }
}

void BirthPage::fill(const core::Chart& chart, data::DateOrder order)
{
    const core::Identity& identity = chart.identity;
    const bool withPlace = !identity.longitudeText.empty() && !identity.latitudeText.empty();
    const bool fresh = chart.timeText.empty() && !withPlace;
    name_->setText(toQt(chart.name));
    name_->setCursorPosition(0);
    sex_->setCode(toQt(identity.sex));
    const core::DateTimeRecord& time = chart.time;
    date_.fill(fresh ? core::PlainDate{} : core::PlainDate{time.year, time.month, time.day}, order);
    dateLabel_->setText(toQt(present::dateOrderLabel(order)));
    filledTime_ = fresh ? QString() : timeShown(chart, workspace_.settings().twelveHourClock);
    filledHours_ = time.localTime;
    filledTimeText_ = chart.timeText;
    time_->setText(filledTime_);
    place_->fill(chart, withPlace);
    check();
}

void BirthPage::store(core::Chart& chart) const
{
    chart.name = toWide(name_->text().trimmed());
    chart.identity.sex = toWide(sex_->code());
    if (chart.identity.sex == L"m" || chart.identity.sex == L"f") {
        chart.identity.sex = chart.identity.sex == L"m" ? L"M" : L"F";
    }
    const core::PlainDate date = date_.value();
    chart.time.year = date.year;
    chart.time.month = date.month;
    chart.time.day = date.day;
    if (!filledTime_.isEmpty() && time_->text() == filledTime_) {
        chart.time.localTime = filledHours_;
        chart.timeText = filledTimeText_;
    } else {
        chart.time.localTime = data::readTimeText(toWide(time_->text())).value_or(0.0);
        chart.timeText.clear();
    }
    place_->store(chart);
}

QStringList BirthPage::missing() const
{
    QStringList names;
    if (date_.edit->text().trimmed().isEmpty()) {
        names += tr("date");
    }
    if (time_->text().trimmed().isEmpty()) {
        names += tr("time");
    }
    return names + place_->missing();
}

bool BirthPage::hasMoment() const
{
    return hasDateAndTime() && place_->hasZone();
}

bool BirthPage::hasDateAndTime() const
{
    return !date_.edit->text().trimmed().isEmpty() && date_.problem().isEmpty() &&
           data::readTimeText(toWide(time_->text()));
}

bool BirthPage::hasPlace() const
{
    return place_->complete();
}

bool BirthPage::valid() const
{
    return hasMoment() && hasPlace();
}

core::DateTimeRecord BirthPage::moment() const
{
    core::Chart chart;
    if (hasDateAndTime()) {
        store(chart);
    }
    return chart.time;
}

void BirthPage::check()
{
    date_.showProblem();
    if (date_.problem().isEmpty()) {
        showNote(*date_.note, *date_.edit, toQt(present::dateWarning(date_.value())));
    }
    const std::wstring time = toWide(time_->text().trimmed());
    const bool good = time.empty() || data::readTimeText(time);
    showNote(*timeNote_, *time_, good ? QString() : tr("Write the time such as 14:30 or 2:30 pm."));
}

} // namespace kestrav::desktop
