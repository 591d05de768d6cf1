#include "app/desktop/pages/DeliveredPages.h"

#include "core/Files.h"
#include "core/Locations.h"

#include <array>
#include <string>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::array<const char*, 12> kPages = {"chart",    "vargas",       "dashas", "panchanga",
                                                "strength", "ashtakavarga", "yogas",  "transits",
                                                "compare",  "research",     "events", "report"};

constexpr std::uintmax_t kLargestFile = 1U << 16U;

} // namespace

std::vector<present::PageLayout> deliveredPages(std::vector<std::string>& problems)
{
    std::vector<present::PageLayout> pages;
    for (const char* const name : kPages) {
        const std::string file = std::string("pages/") + name + ".txt";
        const auto path = core::findFile(file);
        if (!path) {
            problems.push_back(file + " is missing");
            continue;
        }
        const auto bytes = core::readFile(*path, kLargestFile);
        auto layout =
            bytes ? present::readPageLayout(std::string(bytes.value().begin(), bytes.value().end()))
                  : core::Result<present::PageLayout>(bytes.error());
        if (layout) {
            pages.push_back(std::move(layout.value()));
        } else {
            problems.push_back(file + ": " + layout.error().text());
        }
    }
    return pages;
}

} // namespace kestrav::desktop
