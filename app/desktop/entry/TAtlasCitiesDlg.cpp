#include "app/desktop/entry/TAtlasCitiesDlg.h"

#include "app/desktop/entry/WorldMapView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/PlaceNames.h"
#include "data/BirthTexts.h"
#include "data/PlaceText.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kRowsShown = 8;
constexpr int kColumnsShown = 60;

present::GeoPlace spotOf(const data::Place& place)
{
    return {place.latitude, place.longitude};
}

} // namespace

TAtlasCitiesDlg::TAtlasCitiesDlg(PlacesPointer places, std::vector<std::uint32_t> matches,
                                 QWidget* parent)
    : QDialog(parent), places_(std::move(places)), matches_(std::move(matches)),
      list_(new QListWidget(this)), chosen_(new QLabel(this)), map_(new WorldMapView(places_, this))
{
    setObjectName(QStringLiteral("TAtlasCitiesDlg"));
    setWindowTitle(tr("Atlas Cities"));
    list_->setObjectName(QStringLiteral("CityList"));
    // Latitudes stand below each other.
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSizeF(list_->font().pointSizeF());
    list_->setFont(fixed);
    const QFontMetrics metrics(fixed);
    for (const std::uint32_t number : matches_) {
        const data::Place& place = places_->places.place(number);
        list_->addItem(
            toQt(data::cityListText(place.latitude, present::fullName(places_->places, place))));
    }
    list_->setMinimumSize(metrics.horizontalAdvance(QLatin1Char('0')) * kColumnsShown,
                          metrics.lineSpacing() * kRowsShown);
    auto* const label = new QLabel(tr("&Several places have this name. Choose one:"), this);
    label->setBuddy(list_);
    list_->setAccessibleName(tr("Places of this name"));
    chosen_->setObjectName(QStringLiteral("PlaceLabel"));
    chosen_->setTextFormat(Qt::PlainText);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(label);
    box->addWidget(list_, 1);
    box->addWidget(chosen_);
    box->addWidget(map_, 2);
    box->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(list_, &QListWidget::currentRowChanged, this,
            &TAtlasCitiesDlg::CityListCurrentRowChanged);
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(map_, &WorldMapView::picked, this, &TAtlasCitiesDlg::choose);
    list_->setCurrentRow(0);
    list_->setFocus();
}

std::optional<std::uint32_t> TAtlasCitiesDlg::place() const
{
    const int row = list_->currentRow();
    return row < 0 ? std::nullopt : std::optional(matches_[std::size_t(row)]);
}

void TAtlasCitiesDlg::CityListCurrentRowChanged()
{
    const auto chosen = place();
    if (!chosen) {
        return;
    }
    std::vector<present::GeoPlace> marks = {spotOf(places_->places.place(*chosen))};
    for (const std::uint32_t number : matches_) {
        if (number != *chosen) {
            marks.push_back(spotOf(places_->places.place(number)));
        }
    }
    map_->setMarks(std::move(marks));
    const data::Place& place = places_->places.place(*chosen);
    chosen_->setText(tr("Longitude %1, zone %2")
                         .arg(toQt(data::longitudeText(place.longitude)).trimmed(),
                              toQt(places_->places.zones().name(place.zone))));
}

// The match nearest to the place that was clicked.
void TAtlasCitiesDlg::choose(std::uint32_t nearest)
{
    const present::GeoPlace from = spotOf(places_->places.place(nearest));
    const auto distance = [&](std::uint32_t number) {
        return present::distanceBetween(from, spotOf(places_->places.place(number)));
    };
    const auto best = std::min_element(
        matches_.begin(), matches_.end(),
        [&](std::uint32_t one, std::uint32_t other) { return distance(one) < distance(other); });
    list_->setCurrentRow(int(best - matches_.begin()));
}

} // namespace kestrav::desktop
