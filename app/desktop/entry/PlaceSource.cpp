#include "app/desktop/entry/PlaceSource.h"

#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "core/Locations.h"
#include "data/Atlas.h"

#include <utility>

namespace kestrav::desktop
{

namespace
{

// What a worker needs to know of the settings.
struct Request
{
    std::string path;
    int version;
};

PlacesPointer readPlaces(const Request& request)
{
    if (request.path.empty()) {
        core::Result<data::LoadedPlaces> loaded = data::loadPlaces();
        return loaded ? std::make_shared<const KnownPlaces>(std::move(loaded.value().places))
                      : nullptr;
    }
    core::Result<data::CountryList> countries = data::loadCountries();
    if (!countries) {
        return nullptr;
    }
    core::Result<data::Places> atlas = data::readAtlas(
        request.path, data::AtlasVersion(request.version), std::move(countries.value()));
    return atlas ? std::make_shared<const KnownPlaces>(std::move(atlas.value())) : nullptr;
}

// Reads the atlas once more, for the message about what cannot be read.
void tellAtlasProblem(const Request& request)
{
    core::Result<data::CountryList> countries = data::loadCountries();
    TMessages messages;
    if (countries) {
        static_cast<void>(data::openAtlas(request.path, data::AtlasVersion(request.version),
                                          std::move(countries.value()), messages));
    }
}

} // namespace

PlaceSource& PlaceSource::of(Workspace& workspace)
{
    auto* source = workspace.findChild<PlaceSource*>();
    return source != nullptr ? *source : *new PlaceSource(workspace);
}

PlaceSource::PlaceSource(Workspace& workspace)
    : QObject(&workspace), workspace_(workspace), work_(new BackgroundWork(this))
{}

void PlaceSource::forgetOther()
{
    const core::Settings& settings = workspace_.settings();
    if (settings.atlasPath != path_ || settings.atlasVersion != version_) {
        work_->cancel();
        places_.reset();
        path_ = settings.atlasPath;
        version_ = settings.atlasVersion;
    }
}

void PlaceSource::preload()
{
    forgetOther();
    if (places_ || work_->running()) {
        return;
    }
    const Request request{path_, version_};
    work_->start([request](const WorkHandle&) { return readPlaces(request); },
                 [this](PlacesPointer places) {
                     places_ = std::move(places);
                     emit loaded();
                 });
}

PlacesPointer PlaceSource::places()
{
    forgetOther();
    if (!places_) {
        work_->cancel();
        places_ = readPlaces({path_, version_});
        emit loaded();
    }
    if (!*places_ && !path_.empty()) {
        tellAtlasProblem({path_, version_});
    }
    return *places_;
}

PlacesPointer PlaceSource::placesSoFar() const
{
    return places_.value_or(nullptr);
}

bool PlaceSource::missing() const
{
    return places_ && !*places_;
}

const data::ZoneTable* programZones()
{
    // Read once and never changed.
    static const std::optional<data::ZoneTable> zones = [] {
        const std::optional<std::filesystem::path> path = core::findFile("zones.txt");
        core::Result<data::ZoneTable> loaded =
            path ? data::ZoneTable::load(*path) : core::Error{"there is no zones.txt"};
        return loaded ? std::optional(std::move(loaded.value())) : std::nullopt;
    }();
    return zones ? &*zones : nullptr;
}

} // namespace kestrav::desktop
