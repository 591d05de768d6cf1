// The options of the diagram command.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/Command.h"
#include "app/present/DiagramOptions.h"
#include "core/Result.h"

#include <array>
#include <optional>
#include <string>

namespace kestrav::cli
{

inline constexpr std::array<OptionInfo, 15> kDiagramOptions = {{
    {"--style", "NAME", "north, south, east or circle; north when not given"},
    {"--points", "LIST",
     "what is shown, separated by commas: names of points, or main, outer, upagrahas, lagnas, "
     "arudhas, others, all, none; main when not given"},
    {"--degrees", "NAME", "none, degrees or minutes; degrees when not given"},
    {"--labels", "NAME", "what numbers the cells: none, signs or houses; signs when not given"},
    {"--plain", "", "no marks for retrograde (R), combust (c), exalted and debilitated (arrows)"},
    {"--aspects", "LIST", "draw the full aspects of these planets in the picture; all for each"},
    {"--bindus", "NAME", "bindus of the signs: sarva, ascendant or a planet Sun to Saturn"},
    {"--first", "SIGN", "the sign that is made the first house: its name or 1 to 12"},
    {"--bounds", "NAME",
     "houses of a circle: automatic, signs, equal, cusps or sandhis; automatic when not given"},
    {"--navamshas", "", "a ring of navamshas around a circle"},
    {"--glyphs", "", "symbols of planets and signs instead of letters"},
    {"--colours", "NAME", "colours of the picture: light, dark or print; light when not given"},
    {"--size", "N", "side of the picture and of --json, 50 to 10000; 600 when not given"},
    {"--svg", "FILE", "write the picture to a file, SVG; - for standard output"},
    {"--spoken", "", "write what a screen reader says about the diagram"},
}};

struct DiagramRequest
{
    present::DiagramStyle style = present::DiagramStyle::North;
    present::DiagramOptions options;
    int varga = 0;
    double size = 600.0;
    std::optional<std::string> svg;
    bool spoken = false;
    bool twoCharts = false;
};

/// Reads the options. The error says which one is wrong.
[[nodiscard]] core::Result<DiagramRequest> readDiagramRequest(const Arguments& arguments);

} // namespace kestrav::cli
