// What the listing of transits shows.
#pragma once

#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/TransitChoices.h"
#include "timing/SadeSati.h"
#include "timing/TransitKakshya.h"
#include "timing/TransitListing.h"

#include <vector>

namespace kestrav::desktop
{

/// The choices of the transit page, which the window remembers.
struct TransitChoices
{
    timing::TransitOptions options;
    int days = present::kUsualTransitDays;
    bool kakshyas = true;
    bool sadeSati = true;

    /// The transiting bodies without the Moon, which would fill the list, on ascendant and planets.
    [[nodiscard]] static TransitChoices usual();
    [[nodiscard]] static TransitChoices kept();
    void keep() const;
};

/// One listing, for a worker.
struct TransitRequest
{
    TransitChoices choices;
    ChartPointer native; ///< null for none; then only other transiting bodies are targets
    core::Settings settings;
    DataPointer data;
    double clock = 0.0;    ///< hours of the clock before Universal Time
    double firstDay = 0.0; ///< 0h of the first civil day
};

struct TransitLists
{
    std::vector<timing::TransitEvent> events;
    std::vector<timing::KakshyaStay> kakshyas;
    std::vector<timing::SaturnPhase> phases; ///< of thirty years from the first day on
};

[[nodiscard]] TransitLists listTransits(const TransitRequest& request, const WorkHandle& handle);

} // namespace kestrav::desktop
