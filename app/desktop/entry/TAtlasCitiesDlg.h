// Several places of one name, of which one is meant.
#pragma once

#include "app/desktop/entry/PlaceSource.h"

#include <QDialog>

#include <cstdint>
#include <optional>
#include <vector>

class QLabel;
class QListWidget;

namespace kestrav::desktop
{

class WorldMapView;

class TAtlasCitiesDlg : public QDialog
{
    Q_OBJECT

public:
    /// The places must not be null, and the matches are numbers of its places, the best first.
    TAtlasCitiesDlg(PlacesPointer places, std::vector<std::uint32_t> matches, QWidget* parent);

    /// The number of the place that is chosen in the list.
    [[nodiscard]] std::optional<std::uint32_t> place() const;

private:
    void CityListCurrentRowChanged();
    void choose(std::uint32_t nearest);

    PlacesPointer places_;
    std::vector<std::uint32_t> matches_;
    QListWidget* list_;
    QLabel* chosen_;
    WorldMapView* map_;
};

} // namespace kestrav::desktop
