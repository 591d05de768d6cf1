#include "app/desktop/shell/Workspace.h"

#include "analysis/AnalyseChart.h"
#include "analysis/SignPositions.h"
#include "analysis/StorePoint.h"
#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/entry/PlaceSource.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/BirthRecord.h"
#include "app/present/Clock.h"
#include "astro/Houses.h"
#include "core/DisplayFlags.h"
#include "data/BirthTexts.h"
#include "data/PlaceTime.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr double kJulianDayOf1970 = 2440587.5;
constexpr double kSecondsOfDay = 86400.0;

// The houses that depend on a changed ascendant; the other systems need the midheaven of the sky.
void moveHouses(core::Chart& chart, const core::Settings& settings)
{
    const int system = settings.houseSystem == int(astro::HouseSystem::ByRashi)
                           ? int(astro::HouseSystem::ByRashi)
                           : int(astro::HouseSystem::EqualHouse);
    astro::HouseCusps(chart, system);
    for (int house = 1; house <= 12; ++house) {
        analysis::computeSignData(chart, core::cuspPoint(house));
    }
}

// Zone and saving time at the Now location: by the name of its zone, else the hours that are kept.
void setNowZone(core::Chart& record, const core::Settings& now, double unixSeconds)
{
    record.zone = now.nowZone;
    const data::ZoneTable* const zones = now.nowZoneName.empty() ? nullptr : programZones();
    const std::optional<int> zone = zones ? zones->find(now.nowZoneName) : std::nullopt;
    if (!zone) {
        return;
    }
    const data::LocalTime local = zones->at(*zone, data::UnixSeconds(std::floor(unixSeconds)));
    record.zone = local.zoneHours();
    record.daylightSaving = local.savingHours();
    if (local.localMean) {
        // The table has the mean time of the zone's own town; the place has its own.
        present::setLocalMoment(record, unixSeconds);
        record.zone = data::timeAtPlace(*zones, *zone, record.geoLongitude, {}, record.time).zone;
    }
}

// Symbols stand in diagrams, which take them from the settings; all other texts are in letters, as
// the codes of symbols can be read only with their font.
void useNamesOf(const core::Settings& settings)
{
    core::SetDisplayFlags(static_cast<std::uint32_t>(settings.displayFlags) & ~core::kGlyphNames);
}

} // namespace

double julianDayOfUnix(double seconds)
{
    return seconds / kSecondsOfDay + kJulianDayOf1970;
}

double unixOfJulianDay(double julianDay)
{
    return (julianDay - kJulianDayOf1970) * kSecondsOfDay;
}

Workspace::Workspace(DataPointer data, core::StoredSettings settings,
                     std::filesystem::path settingsPath, QObject* parent)
    : QObject(parent), data_(std::move(data)), settings_(std::move(settings)),
      settingsPath_(std::move(settingsPath)), moment_(now()),
      yogas_(std::make_shared<const yoga::YogaLibrary>())
{
    useNamesOf(settings_.settings);
    database_ = std::make_unique<OpenDatabase>(present::dateOrder(settings_.settings));
}

Workspace::~Workspace() = default;

bool Workspace::english() const
{
    return (static_cast<std::uint32_t>(settings().displayFlags) & core::kEnglishNames) != 0;
}

void Workspace::changeSettings(const core::Settings& settings)
{
    if (settings == settings_.settings) {
        return;
    }
    const core::Settings before = std::exchange(settings_.settings, settings);
    useNamesOf(settings);
    if (const auto written = core::writeSettingsFile(settingsPath_, settings_); !written) {
        tellProblem(tr("The settings could not be kept: %1").arg(toQt(written.error().text())));
    }
    emit settingsChanged(before);
    recompute();
}

ChartPointer Workspace::compute(const core::Chart& record, bool withChanges)
{
    auto computed = std::make_shared<present::ComputedChart>();
    computed->chart = record;
    computed->chart.place = present::placeLabel(record);
    computed->settings = settings();
    computed->hasPlace =
        !record.identity.longitudeText.empty() && !record.identity.latitudeText.empty();
    astro::EphemerisContext context(data_->series);
    present::computeFromBirthData(*computed, context);
    if (withChanges && !changed_.empty()) {
        core::Chart& chart = computed->chart;
        for (const auto& [point, longitude] : changed_) {
            analysis::storePoint(chart, point, longitude);
            computed->changed.set(std::size_t(point));
            if (point == core::kAscendant) {
                moveHouses(chart, settings());
            } else if (point == core::cuspPoint(10)) {
                chart.midheaven = longitude;
            }
        }
        analysis::analyseSigns(chart, settings());
    }
    return computed;
}

bool Workspace::computable(const core::Chart& record)
{
    const std::string problem = present::birthProblem(record);
    if (!problem.empty()) {
        tellProblem(tr("%1 cannot be computed: %2").arg(toQt(record.name), toQt(problem)));
    }
    return problem.empty();
}

void Workspace::recompute()
{
    momentChart_.reset();
    if (chart_) {
        chart_ = compute(record_, true);
    }
    if (second_) {
        second_ = compute(secondRecord_, false);
    }
    emit chartChanged();
    emit secondChanged();
    emit momentChanged();
}

const ChartPointer& Workspace::momentChart()
{
    if (!momentChart_) {
        const core::Chart record = recordAt(moment_);
        if (present::birthProblem(record).empty()) {
            momentChart_ = compute(record, false);
        }
    }
    return momentChart_;
}

bool Workspace::showRecord(const core::Chart& record, std::optional<std::size_t> line)
{
    if (!computable(record)) {
        return false;
    }
    record_ = record;
    line_ = line;
    changed_.clear();
    chart_ = compute(record_, false);
    if (settings().nowCity.empty()) {
        momentChart_.reset();
    }
    emit chartChanged();
    return true;
}

bool Workspace::showLine(std::size_t line)
{
    const std::optional<core::Chart> record = database_->record(line);
    return record && showRecord(*record, line);
}

bool Workspace::showSecond(const core::Chart& record)
{
    if (!computable(record)) {
        return false;
    }
    secondRecord_ = record;
    second_ = compute(record, false);
    emit secondChanged();
    return true;
}

void Workspace::closeSecond()
{
    second_.reset();
    emit secondChanged();
}

void Workspace::closeChart()
{
    chart_.reset();
    line_.reset();
    changed_.clear();
    momentChart_.reset(); // it may have been at the place of the chart
    emit chartChanged();
}

void Workspace::setChartLine(std::optional<std::size_t> line)
{
    line_ = line;
}

core::Chart Workspace::recordAt(double moment) const
{
    core::Chart record;
    record.name = tr("Now").toStdWString();
    // A Julian day holds a moment to some 20 microseconds, which must not become a minute less.
    const double seconds = std::round(unixOfJulianDay(moment) * 1000.0) / 1000.0;
    const core::Settings& now = settings();
    const bool withPlace = !now.nowCity.empty() || (chart_ && chart_->hasPlace);
    if (!now.nowCity.empty()) {
        record.place = core::fromFileBytes(now.nowCity);
        record.identity.country = core::fromFileBytes(now.nowCountry);
        record.geoLongitude = now.nowLongitude;
        record.geoLatitude = now.nowLatitude;
        setNowZone(record, now, seconds);
    } else if (withPlace) {
        record.place = record_.place;
        record.identity.country = record_.identity.country;
        record.geoLongitude = record_.geoLongitude;
        record.geoLatitude = record_.geoLatitude;
        record.zone = record_.zone;
        record.daylightSaving = record_.daylightSaving;
    } else {
        const present::SystemZone zone = present::systemZoneAt(seconds);
        record.zone = zone.zone;
        record.daylightSaving = zone.daylightSaving;
    }
    present::setLocalMoment(record, seconds);
    data::BirthTexts texts = data::birthTexts(record);
    record.timeText = std::move(texts.time);
    record.zoneText = std::move(texts.zone);
    // Without these two texts a record has no place.
    if (withPlace) {
        record.identity.longitudeText = std::move(texts.longitude);
        record.identity.latitudeText = std::move(texts.latitude);
    }
    return record;
}

core::Chart Workspace::nowRecord() const
{
    core::Chart record = recordAt(now());
    record.identity.tag = L'N';
    return record;
}

void Workspace::changePoint(int point, std::optional<double> longitude)
{
    if (longitude) {
        changed_[point] = *longitude;
    } else {
        changed_.erase(point);
    }
    if (chart_) {
        chart_ = compute(record_, true);
        emit chartChanged();
    }
}

void Workspace::setMoment(double moment)
{
    if (moment == moment_ || !std::isfinite(moment)) {
        return;
    }
    moment_ = moment;
    momentChart_.reset();
    emit momentChanged();
}

double Workspace::now()
{
    const auto seconds = present::presentMoment();
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return julianDayOfUnix(
        seconds ? seconds.value()
                : double(std::chrono::duration_cast<std::chrono::seconds>(now).count()));
}

void Workspace::select(const present::Link& link)
{
    if (!(link == selection_)) {
        selection_ = link;
        emit selectionChanged();
    }
}

void Workspace::setYogas(YogasPointer yogas)
{
    yogas_ = std::move(yogas);
    emit yogasChanged();
}

void Workspace::tell(const QString& text)
{
    emit news(text, false);
}

void Workspace::tellProblem(const QString& text)
{
    emit news(text, true);
}

} // namespace kestrav::desktop
