#include "app/desktop/entry/PlaceFields.h"

#include "app/desktop/entry/FormRows.h"
#include "app/desktop/entry/TAtlasCitiesDlg.h"
#include "app/desktop/entry/TWorldMapForm.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/PlaceNames.h"
#include "data/Atlas.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"
#include "data/PlaceText.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kMostSaving = 3;

// Whether the typed text says itself on which side it is.
bool hasSide(const QString& text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar each) { return each.isLetter() || each == QLatin1Char('-'); });
}

void fillText(QLineEdit& edit, const QString& text)
{
    edit.setText(text);
    edit.setCursorPosition(0);
}

} // namespace

std::optional<double> PlaceFields::Number::value() const
{
    const QString text = edit->text().trimmed();
    const QString side = letter->text();
    if (!filledText.isEmpty() && text == filledText && side == filledLetter) {
        return filledValue;
    }
    return read(toWide(hasSide(text) ? text : text + side));
}

void PlaceFields::Number::fill(std::optional<double> number)
{
    filledValue = number.value_or(0.0);
    const std::wstring text = data::zoneText(std::fabs(filledValue));
    QString shown = toQt(text);
    if (shown.endsWith(QLatin1String(":00"))) {
        shown.chop(3);
    }
    filledText = number ? shown : QString();
    filledLetter = QChar(QLatin1Char(letters[filledValue < 0.0 ? 1 : 0]));
    fillText(*edit, filledText);
    letter->setText(filledLetter);
    touched = false;
}

PlaceFields::PlaceFields(Workspace& workspace, QWidget* form)
    : QObject(form), workspace_(workspace),
      answering_([](const data::Places& places, const data::Place& place) {
          return data::answerAt(places, place, {});
      }),
      city_(makeEdit(form, "CityEdit", int(data::kPlaceLength))),
      country_(makeEdit(form, "CountryEdit", int(data::kCountryLength))), atlas_(new QLabel(form)),
      lookUp_(new QPushButton(tr("Look U&p"), form)),
      map_(new QPushButton(tr("&World Map..."), form)),
      savingOn_(new QCheckBox(tr("&in force"), form)), saving_(new QSpinBox(form)),
      savingNote_(makeNote(form, "DstNoteLabel"))
{
    const QString hint = tr("PC Atlas (if available) will calculate when you leave here (press "
                            "'Tab' ). Enter USA State, not 'USA'.");
    country_->setToolTip(hint);
    country_->setAccessibleDescription(hint);
    atlas_->setObjectName(QStringLiteral("AtlasLabel"));
    atlas_->setWordWrap(true);
    atlas_->setTextFormat(Qt::PlainText);
    lookUp_->setObjectName(QStringLiteral("LookUpButton"));
    lookUp_->setToolTip(tr("Finds the place and takes all its values"));
    map_->setObjectName(QStringLiteral("WorldMapButton"));
    map_->setToolTip(tr("Chooses a place on the map"));
    for (QPushButton* const button : {lookUp_, map_}) {
        button->setAutoDefault(false);
    }
    savingOn_->setObjectName(QStringLiteral("DstCheckBox"));
    savingOn_->setToolTip(tr("Saving time in force adds the hours that the options say; others can "
                             "be typed beside it"));
    saving_->setObjectName(QStringLiteral("DstSpinBox"));
    saving_->setRange(0, kMostSaving);
    saving_->setSuffix(tr(" h"));
    saving_->setAccessibleName(tr("Hours of daylight saving"));
    saving_->setToolTip(tr("Whole hours of daylight saving time in force; a half hour belongs "
                           "into the zone"));

    zone_.read = &data::readZoneText;
    zone_.letters = "EW";
    zone_.name = tr("time zone");
    zone_.wrong = tr("Write hours and minutes, such as 5:30.");
    longitude_.read = &data::readLongitudeText;
    longitude_.letters = "EW";
    longitude_.name = tr("longitude");
    longitude_.wrong = tr("Write degrees and minutes up to 180, such as 77 12.");
    latitude_.read = &data::readLatitudeText;
    latitude_.letters = "NS";
    latitude_.name = tr("latitude");
    latitude_.wrong = tr("Write degrees and minutes up to 90, such as 28 39.");
    makeNumber(zone_, form, "Zone", int(data::kZoneLength), tr("East or west of Greenwich"));
    makeNumber(longitude_, form, "Longitude", int(data::kLongitudeLength), tr("East or west"));
    makeNumber(latitude_, form, "Latitude", int(data::kLatitudeLength), tr("North or south"));
    // All as wide as the longest, so that their letters stand below one another.
    for (const Number* const number : {&zone_, &latitude_}) {
        number->edit->setFixedWidth(longitude_.edit->maximumWidth());
    }

    connect(city_, &QLineEdit::textEdited, this, &PlaceFields::edited);
    connect(country_, &QLineEdit::textEdited, this, &PlaceFields::edited);
    // The box and the list open after the focus has moved on.
    connect(country_, &QLineEdit::editingFinished, this, &PlaceFields::CountryEditExit,
            Qt::QueuedConnection);
    connect(lookUp_, &QPushButton::clicked, this, &PlaceFields::LookUpButtonClick);
    connect(map_, &QPushButton::clicked, this, &PlaceFields::MapButtonClick);
    connect(savingOn_, &QCheckBox::clicked, this, &PlaceFields::DstCheckBoxClick);
    connect(saving_, &QSpinBox::valueChanged, this, [this](int hours) {
        savingOn_->setChecked(hours > 0);
        if (!filling_) {
            savingTouched_ = true;
            check();
            emit edited();
        }
    });
    PlaceSource& source = PlaceSource::of(workspace_);
    connect(&source, &PlaceSource::loaded, this, &PlaceFields::showSource);
    showSource();
}

void PlaceFields::makeNumber(Number& number, QWidget* form, const char* name, int most,
                             const QString& letterName)
{
    const QByteArray prefix(name);
    number.edit = makeEdit(form, prefix + "Edit", most);
    number.letter = makeEdit(form, prefix + "LetterEdit", 1);
    number.letter->setAccessibleName(letterName);
    number.letter->setToolTip(letterName);
    const QString upper = QLatin1String(number.letters);
    const QString accepted =
        number.letters[0] == 'E' ? QStringLiteral("WwEe") : QStringLiteral("NnSs");
    number.letter->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QLatin1Char('[') + accepted + QLatin1Char(']')), number.letter));
    number.note = makeNote(form, prefix + "NoteLabel");
    connect(number.edit, &QLineEdit::textEdited, this,
            [&number](const QString& text) { number.touched = !text.trimmed().isEmpty(); });
    connect(number.letter, &QLineEdit::textEdited, this,
            [&number] { number.touched = !number.edit->text().trimmed().isEmpty(); });
    const auto changed = [this] {
        if (!filling_) {
            check();
            emit edited();
        }
    };
    connect(number.edit, &QLineEdit::textChanged, this, changed);
    connect(number.letter, &QLineEdit::textChanged, this, changed);
    connect(number.edit, &QLineEdit::editingFinished, this, [this, &number] { normalise(number); });
    connect(number.letter, &QLineEdit::editingFinished, this,
            [&number] { number.letter->setText(number.letter->text().toUpper()); });
}

// A side in the typed text goes into the letter box.
void PlaceFields::normalise(Number& number)
{
    const QString text = number.edit->text().trimmed();
    const std::optional<double> value = hasSide(text) ? number.read(toWide(text)) : std::nullopt;
    if (value) {
        const bool touched = number.touched;
        number.fill(value);
        number.touched = touched;
    }
}

void PlaceFields::addTo(QFormLayout& rows, bool withSaving)
{
    addRow(rows, tr("Cit&y or town:"), {city_});
    addRow(rows, tr("Co&untry or state:"), {country_});
    auto* const tools = new QHBoxLayout;
    tools->addWidget(lookUp_, 0, Qt::AlignTop);
    tools->addWidget(map_, 0, Qt::AlignTop);
    tools->addWidget(atlas_, 1);
    rows.addRow(QString(), tools);
    addRow(rows, tr("Time &zone:"), {zone_.edit, zone_.letter, zone_.note});
    if (withSaving) {
        addRow(rows, tr("Daylight sa&ving:"), {savingOn_, saving_, savingNote_});
    }
    savingOn_->setVisible(withSaving);
    saving_->setVisible(withSaving);
    savingNote_->setVisible(withSaving);
    addRow(rows, tr("&Longitude:"), {longitude_.edit, longitude_.letter, longitude_.note});
    addRow(rows, tr("L&atitude:"), {latitude_.edit, latitude_.letter, latitude_.note});
}

void PlaceFields::setAnswering(Answering answering)
{
    answering_ = std::move(answering);
}

bool PlaceFields::hasZone() const
{
    return zone_.value().has_value();
}

QStringList PlaceFields::missing() const
{
    QStringList names;
    for (const Number* const number : {&zone_, &longitude_, &latitude_}) {
        if (number->edit->text().trimmed().isEmpty()) {
            names += number->name;
        }
    }
    return names;
}

void PlaceFields::fill(const core::Chart& chart, bool withPlace)
{
    PlaceSource::of(workspace_).preload();
    filling_ = true;
    fillText(*city_, toQt(chart.place));
    fillText(*country_, toQt(chart.identity.country));
    seenCity_ = city_->text();
    seenCountry_ = country_->text();
    zone_.fill(withPlace ? std::optional(chart.zone) : std::nullopt);
    longitude_.fill(withPlace ? std::optional(chart.geoLongitude) : std::nullopt);
    latitude_.fill(withPlace ? std::optional(chart.geoLatitude) : std::nullopt);
    saving_->setRange(std::min(0, chart.daylightSaving),
                      std::max(kMostSaving, chart.daylightSaving));
    saving_->setValue(chart.daylightSaving);
    savingTouched_ = false;
    place_.reset();
    shownWarning_.clear();
    filling_ = false;
    showSource();
    check();
}

void PlaceFields::store(core::Chart& chart) const
{
    chart.place = toWide(city_->text().trimmed());
    chart.identity.country = toWide(country_->text().trimmed());
    chart.zone = zone_.value().value_or(0.0);
    chart.daylightSaving = saving_->value();
    chart.geoLongitude = longitude_.value().value_or(0.0);
    chart.geoLatitude = latitude_.value().value_or(0.0);
}

bool PlaceFields::complete() const
{
    return zone_.value() && longitude_.value() && latitude_.value() && saving_->value() >= 0 &&
           saving_->value() <= kMostSaving;
}

std::string PlaceFields::zoneName() const
{
    if (!place_ || zone_.touched) {
        return {};
    }
    return places_->places.zones().name(places_->places.place(*place_).zone);
}

void PlaceFields::CountryEditExit()
{
    // A form that is left takes the focus away too.
    const bool same = city_->text() == seenCity_ && country_->text() == seenCountry_;
    if (!same && country_->isVisible() && !city_->text().trimmed().isEmpty()) {
        lookUp();
    }
}

void PlaceFields::LookUpButtonClick()
{
    for (Number* const number : {&zone_, &longitude_, &latitude_}) {
        number->touched = false;
    }
    savingTouched_ = false;
    lookUp();
}

void PlaceFields::DstCheckBoxClick(bool inForce)
{
    // An hour at least, as saving time of no hours is none.
    saving_->setValue(inForce ? std::max(1, workspace_.settings().daylightSavingHours) : 0);
}

void PlaceFields::MapButtonClick()
{
    const PlacesPointer places = PlaceSource::of(workspace_).places();
    if (!places) {
        showSource();
        return;
    }
    std::optional<present::GeoPlace> begin;
    if (longitude_.value() && latitude_.value()) {
        begin = present::GeoPlace{*latitude_.value(), *longitude_.value()};
    }
    TWorldMapForm form(places, begin, map_->window());
    if (form.exec() == QDialog::Accepted && form.place()) {
        takePlace(places, *form.place());
    }
}

void PlaceFields::lookUp()
{
    seenCity_ = city_->text();
    seenCountry_ = country_->text();
    const PlacesPointer places = PlaceSource::of(workspace_).places();
    showSource();
    if (!places) {
        return;
    }
    const data::PlaceMatches found = places->places.find(toWide(seenCity_), toWide(seenCountry_));
    std::optional<std::uint32_t> chosen;
    switch (found.code) {
    case data::LookupCode::Found:
        chosen = found.places.front();
        break;
    case data::LookupCode::Several: {
        TAtlasCitiesDlg dialog(places, found.places, city_->window());
        if (dialog.exec() == QDialog::Accepted) {
            chosen = dialog.place();
        }
        break;
    }
    case data::LookupCode::None: {
        const std::string where = data::foldName(toWide(seenCountry_));
        atlas_->setText(where == "usa" || where == "us"
                            ? tr("Enter USA State, not 'USA'.")
                            : tr("No such place is known. Type the values yourself."));
        break;
    }
    case data::LookupCode::BadState:
    case data::LookupCode::File: {
        TMessages messages;
        data::showLookupCode(int(found.code), messages);
        break;
    }
    }
    if (chosen) {
        takePlace(places, *chosen);
    }
}

void PlaceFields::takePlace(const PlacesPointer& places, std::uint32_t number)
{
    const data::Place& place = places->places.place(number);
    const data::PlaceAnswer answer = answering_(places->places, place);
    places_ = places;
    place_ = number;
    shownWarning_.clear();
    filling_ = true;
    fillText(*city_, toQt(answer.name));
    fillText(*country_, toQt(present::countryOrState(places->places, place)));
    seenCity_ = city_->text();
    seenCountry_ = country_->text();
    // Whole seconds, as the file keeps them.
    const auto seconds = [](double degrees) {
        return std::round(degrees * 3600.0) / 3600.0;
    };
    if (!longitude_.touched) {
        longitude_.fill(seconds(answer.longitude));
    }
    if (!latitude_.touched) {
        latitude_.fill(seconds(answer.latitude));
    }
    fillTime(answer);
    filling_ = false;
    check();
    emit edited();
    warn(answer);
}

void PlaceFields::fillTime(const data::PlaceAnswer& answer)
{
    if (!zone_.touched) {
        zone_.fill(answer.time.zone);
    }
    if (!savingTouched_) {
        saving_->setRange(0, kMostSaving);
        saving_->setValue(answer.time.daylightSaving);
    }
    const data::Place& place = places_->places.place(*place_);
    QString text = tr("%1 (zone %2)")
                       .arg(toQt(present::fullName(places_->places, place)), toQt(answer.zoneName));
    for (const data::PlaceWarning warning : answer.time.warnings) {
        text += QLatin1Char('\n') + toQt(data::warningText(warning));
    }
    atlas_->setText(text);
}

void PlaceFields::momentChanged()
{
    if (!place_ || zone_.touched || savingTouched_ || !country_->isVisible()) {
        return;
    }
    const data::PlaceAnswer answer = answering_(places_->places, places_->places.place(*place_));
    filling_ = true;
    fillTime(answer);
    filling_ = false;
    check();
    emit edited();
    warn(answer);
}

// One warning for the same reasons, however often the time is changed.
void PlaceFields::warn(const data::PlaceAnswer& answer)
{
    QString reasons;
    for (const data::PlaceWarning warning : answer.time.warnings) {
        reasons += toQt(data::warningText(warning));
    }
    if (reasons != std::exchange(shownWarning_, reasons) && workspace_.settings().warnAtlasValues) {
        TMessages messages;
        data::showAtlasWarning(answer.time, messages);
    }
}

void PlaceFields::showSource()
{
    const bool missing = PlaceSource::of(workspace_).missing();
    map_->setEnabled(!missing);
    lookUp_->setEnabled(!missing);
    if (missing) {
        atlas_->setText(toQt(data::kNoAtlas));
    } else if (!place_) {
        atlas_->clear();
    }
}

void PlaceFields::check()
{
    for (Number* const number : {&zone_, &longitude_, &latitude_}) {
        const bool empty = number->edit->text().trimmed().isEmpty();
        showNote(*number->note, *number->edit,
                 number->value() || empty ? QString() : number->wrong);
    }
    const bool saving = saving_->value() >= 0 && saving_->value() <= kMostSaving;
    showNote(*savingNote_, *saving_, saving ? QString() : tr("Saving time is 0 to 3 hours."));
}

} // namespace kestrav::desktop
