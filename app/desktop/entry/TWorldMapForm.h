// The world map, on which a place is chosen.
#pragma once

#include "app/desktop/entry/PlaceSource.h"

#include <QDialog>

#include <cstdint>
#include <optional>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace kestrav::desktop
{

class WorldMapView;

class TWorldMapForm : public QDialog
{
    Q_OBJECT

public:
    /// `begin` is marked at first. The places must not be null.
    TWorldMapForm(PlacesPointer places, std::optional<present::GeoPlace> begin, QWidget* parent);

    /// The number of the chosen place.
    [[nodiscard]] std::optional<std::uint32_t> place() const
    {
        return place_;
    }

private:
    void choose(std::uint32_t place);
    [[nodiscard]] QString describe(std::uint32_t place) const;
    void FindEditReturnPressed();

    PlacesPointer places_;
    std::optional<std::uint32_t> place_;
    QLineEdit* find_;
    WorldMapView* map_;
    QLabel* near_;
    QLabel* chosen_;
    QDialogButtonBox* buttons_;
};

} // namespace kestrav::desktop
