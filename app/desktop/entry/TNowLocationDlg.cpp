#include "app/desktop/entry/TNowLocationDlg.h"

#include "app/desktop/entry/FormRows.h"
#include "app/desktop/entry/PlaceFields.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/PlaceNames.h"
#include "data/BirthTexts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrav::desktop
{

TNowLocationDlg::TNowLocationDlg(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), place_(new PlaceFields(workspace, this)),
      zone_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("TNowLocationDlg"));
    setWindowTitle(tr("'Now' Location Set Up"));
    auto* const text = new QLabel(
        tr("Enter the City/Town and Country or State of the Location you want to use for "
           "Transits, Prashna (Query charts), etc.\nType the city, hit the [Tab] key (or click in "
           "the Country field), type the country and end by hitting [Tab]."),
        this);
    text->setObjectName(QStringLiteral("HintLabel"));
    text->setWordWrap(true);
    zone_->setObjectName(QStringLiteral("ZoneNameLabel"));
    zone_->setWordWrap(true);
    auto* const rows = new QFormLayout;
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    place_->addTo(*rows, false);
    tabThroughRows(*rows);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(text);
    box->addLayout(rows);
    box->addWidget(zone_);
    box->addStretch(1);
    box->addWidget(buttons_);
    keepEnterInside(*this);
    place_->setAnswering([](const data::Places& places, const data::Place& place) {
        return present::answerAtMoment(places, place, unixOfJulianDay(Workspace::now()));
    });
    const core::Settings& settings = workspace.settings();
    core::Chart chart;
    chart.place = core::fromFileBytes(settings.nowCity);
    chart.identity.country = core::fromFileBytes(settings.nowCountry);
    chart.zone = settings.nowZone;
    chart.geoLongitude = settings.nowLongitude;
    chart.geoLatitude = settings.nowLatitude;
    filledZone_ = settings.nowZone;
    place_->fill(chart, !settings.nowCity.empty());
    connect(place_, &PlaceFields::edited, this, &TNowLocationDlg::EditChange);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TNowLocationDlg::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    EditChange();
    place_->cityEdit()->setFocus();
}

// The name that was kept still holds while city and zone are those it was kept with.
std::string TNowLocationDlg::zoneName() const
{
    std::string name = place_->zoneName();
    if (name.empty()) {
        core::Chart chart;
        place_->store(chart);
        const core::Settings& settings = workspace_.settings();
        if (core::toUtf8(chart.place) == settings.nowCity && chart.zone == filledZone_) {
            name = settings.nowZoneName;
        }
    }
    return name;
}

void TNowLocationDlg::EditChange()
{
    const bool named = !place_->cityEdit()->text().trimmed().isEmpty();
    const std::string name = zoneName();
    QString text;
    if (named && !name.empty()) {
        text = tr("Daylight saving time follows the zone %1.").arg(toQt(name));
    } else if (named && place_->complete()) {
        text = tr("This zone is used unchanged all the year round.");
    }
    zone_->setText(text);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(named && place_->complete());
}

void TNowLocationDlg::OkButtonClick()
{
    core::Chart chart;
    place_->store(chart);
    core::Settings settings = workspace_.settings();
    const auto storeText = [&](const char* name, const std::string& text) {
        core::storeSettingText(settings, *core::findSetting(name), text);
    };
    const std::string name = zoneName();
    storeText("nowCity", core::toUtf8(chart.place));
    storeText("nowCountry", core::toUtf8(chart.identity.country));
    storeText("nowZoneName", name);
    core::storeSetting(settings, *core::findSetting("nowLongitude"), chart.geoLongitude);
    core::storeSetting(settings, *core::findSetting("nowLatitude"), chart.geoLatitude);
    core::storeSetting(settings, *core::findSetting("nowZone"), chart.zone);
    workspace_.changeSettings(settings);
    accept();
}

} // namespace kestrav::desktop
