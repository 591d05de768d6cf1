#include "app/desktop/entry/TWorldMapForm.h"

#include "app/desktop/entry/FormRows.h"
#include "app/desktop/entry/WorldMapView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/PlaceNames.h"
#include "data/BirthTexts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kZoomAround = 12.0;
constexpr double kZoomStep = 1.5;

} // namespace

TWorldMapForm::TWorldMapForm(PlacesPointer places, std::optional<present::GeoPlace> begin,
                             QWidget* parent)
    : QDialog(parent), places_(std::move(places)), find_(new QLineEdit(this)),
      map_(new WorldMapView(places_, this)), near_(new QLabel(this)), chosen_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("TWorldMapForm"));
    setWindowTitle(tr("World Map"));
    find_->setObjectName(QStringLiteral("FindEdit"));
    find_->setPlaceholderText(tr("City, country"));
    find_->setClearButtonEnabled(true);
    auto* const label = new QLabel(tr("&Find:"), this);
    label->setBuddy(find_);
    find_->setAccessibleName(tr("Find a place"));
    chosen_->setObjectName(QStringLiteral("PlaceLabel"));
    chosen_->setTextFormat(Qt::PlainText);
    chosen_->setWordWrap(true);
    near_->setObjectName(QStringLiteral("NearLabel"));
    near_->setTextFormat(Qt::PlainText);
    near_->setWordWrap(true);
    near_->setText(tr("Click on the map to choose the nearest place. The wheel zooms, dragging "
                      "moves the map."));
    chosen_->setText(tr("No place is chosen."));
    const auto zoomButton = [this](const QString& text, const char* name, const QString& tip,
                                   double factor) {
        auto* const button = new QToolButton(this);
        button->setText(text);
        button->setObjectName(QLatin1String(name));
        button->setAccessibleName(tip);
        button->setToolTip(tip);
        connect(button, &QToolButton::clicked, map_, [this, factor] { map_->zoomBy(factor); });
        return button;
    };
    auto* const top = new QHBoxLayout;
    top->addWidget(label);
    top->addWidget(find_, 1);
    top->addWidget(zoomButton(QStringLiteral("+"), "ZoomInButton", tr("Larger"), kZoomStep));
    top->addWidget(
        zoomButton(QStringLiteral("\u2212"), "ZoomOutButton", tr("Smaller"), 1.0 / kZoomStep));
    auto* const box = new QVBoxLayout(this);
    box->addLayout(top);
    box->addWidget(map_, 1);
    box->addWidget(near_);
    box->addWidget(chosen_);
    box->addWidget(buttons_);

    buttons_->button(QDialogButtonBox::Ok)->setEnabled(false);
    // Enter in the field finds.
    keepEnterInside(*this);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(find_, &QLineEdit::returnPressed, this, &TWorldMapForm::FindEditReturnPressed);
    connect(map_, &WorldMapView::picked, this, &TWorldMapForm::choose);
    connect(map_, &WorldMapView::activated, this, &QDialog::accept);
    connect(map_, &WorldMapView::hovered, this,
            [this](std::uint32_t place) { near_->setText(tr("Here: %1").arg(describe(place))); });
    if (begin) {
        map_->setMarks({*begin});
        map_->showAround(*begin, kZoomAround);
    }
    find_->setFocus();
}

// Name, coordinates and zone.
QString TWorldMapForm::describe(std::uint32_t place) const
{
    const data::Place& found = places_->places.place(place);
    return tr("%1, %2, %3, %4")
        .arg(toQt(present::fullName(places_->places, found)),
             toQt(data::longitudeText(found.longitude)).trimmed(),
             toQt(data::latitudeText(found.latitude)).trimmed(),
             toQt(places_->places.zones().name(found.zone)));
}

void TWorldMapForm::choose(std::uint32_t place)
{
    place_ = place;
    chosen_->setText(tr("Chosen: %1").arg(describe(place)));
    const data::Place& chosen = places_->places.place(place);
    map_->setMarks({{chosen.latitude, chosen.longitude}});
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(true);
}

void TWorldMapForm::FindEditReturnPressed()
{
    const data::PlaceMatches found = places_->places.find(toWide(find_->text()));
    if (found.places.empty()) {
        chosen_->setText(tr("No such place is known."));
        return;
    }
    const data::Place& best = places_->places.place(found.places.front());
    choose(found.places.front());
    map_->showAround({best.latitude, best.longitude}, kZoomAround);
}

} // namespace kestrav::desktop
