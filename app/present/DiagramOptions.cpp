#include "app/present/DiagramOptions.h"

#include "core/Angles.h"

namespace kestrav::present
{

namespace
{

void add(PointSet& points, int first, int last)
{
    for (int point = first; point <= last; ++point) {
        points.set(std::size_t(point));
    }
}

} // namespace

DiagramOptions diagramOptionsOf(const core::Settings& settings)
{
    DiagramOptions options;
    options.arudhas = settings.diagramArudhas;
    if (settings.diagramUpagrahas) {
        add(options.points, core::kDhuma, core::kMandi);
    }
    if (settings.diagramLagnas) {
        add(options.points, core::kBhavaLagna, core::kArudhaLagna);
    }
    if (settings.diagramOuterPlanets) {
        add(options.points, core::kUranus, core::kPluto);
    }
    options.degrees = DegreeForm(core::ClampRange(0, 2, settings.diagramDegrees));
    options.labels = CellLabel(core::ClampRange(0, 2, settings.diagramLabels));
    options.retrograde = settings.diagramMarks;
    options.combust = settings.diagramMarks;
    options.dignity = settings.diagramMarks;
    options.bounds = CircleBounds(core::ClampRange(0, 4, settings.circleBounds));
    options.navamshaRing = settings.navamshaRing;
    options.nameStyle = settings.diagramNameLetters == 3 ? 3 : 2;
    const auto flags = static_cast<std::uint32_t>(settings.displayFlags);
    options.english = (flags & core::kEnglishNames) != 0;
    options.glyphs = (flags & core::kGlyphNames) != 0;
    return options;
}

} // namespace kestrav::present
