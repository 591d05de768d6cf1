// Where the window looks places up: the outside atlas of the settings, else the program's lists.
#pragma once

#include "app/present/MapDots.h"
#include "core/Result.h"
#include "data/Places.h"

#include <QObject>

#include <memory>
#include <optional>
#include <string>

namespace kestrav::core
{
struct Settings;
}

namespace kestrav::desktop
{

class BackgroundWork;
class Workspace;

/// Places and their dots on the map.
struct KnownPlaces
{
    data::Places places;
    present::MapDots dots;

    explicit KnownPlaces(data::Places all) : places(std::move(all)), dots(places.list().places())
    {}
};

// Shared, because a worker reads the lists and forms keep what they show.
using PlacesPointer = std::shared_ptr<const KnownPlaces>;

/// One for a workspace; the lists are read once and again when the atlas of the settings changes.
class PlaceSource : public QObject
{
    Q_OBJECT

public:
    /// The source of a workspace, whose child it is.
    static PlaceSource& of(Workspace& workspace);

    /// Begins to read the lists, so that they are there when they are wanted.
    void preload();

    /// The places; null when there is neither atlas nor own list. A file of the atlas that cannot
    /// be read is told in a message.
    [[nodiscard]] PlacesPointer places();

    /// The same without a message and without waiting for lists that were not read yet.
    [[nodiscard]] PlacesPointer placesSoFar() const;

    /// Whether the lists were tried and there are none.
    [[nodiscard]] bool missing() const;

signals:
    /// The lists were read, or could not be.
    void loaded();

private:
    explicit PlaceSource(Workspace& workspace);
    void forgetOther();

    Workspace& workspace_;
    BackgroundWork* work_;
    std::optional<PlacesPointer> places_; ///< null inside: they could not be read
    std::string path_;
    int version_ = 0;
};

/// The program's own zone table, read when it is first wanted; null without its file.
[[nodiscard]] const data::ZoneTable* programZones();

} // namespace kestrav::desktop
