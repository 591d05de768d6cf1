#include "app/cli/DiagramCommand.h"

#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/DiagramCommandOptions.h"
#include "app/cli/JsonValues.h"
#include "app/cli/SharedOptions.h"
#include "app/present/AccessibleText.h"
#include "app/present/Diagram.h"
#include "app/present/SvgWriter.h"
#include "app/present/TerminalDrawing.h"
#include "core/DisplayFlags.h"
#include "core/Files.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace kestrav::cli
{

namespace
{

Json spotJson(present::Spot spot)
{
    return Json::array({numberJson(spot.x), numberJson(spot.y)});
}

Json spotsJson(const std::vector<present::Spot>& spots)
{
    Json list = Json::array();
    for (const present::Spot spot : spots) {
        list.push_back(spotJson(spot));
    }
    return list;
}

Json roleJson(const std::optional<present::ColourRole>& role)
{
    return role ? Json(std::string(present::colourRoleName(*role))) : Json();
}

Json shapesJson(const present::DisplayList& list)
{
    Json shapes = Json::array();
    for (const present::Shape& shape : list.shapes) {
        Json object;
        object["points"] = spotsJson(shape.points);
        object["fill"] = roleJson(shape.fill);
        object["stroke"] = roleJson(shape.stroke);
        object["width"] = numberJson(shape.width);
        shapes.push_back(std::move(object));
    }
    return shapes;
}

Json linesJson(const present::DisplayList& list)
{
    Json lines = Json::array();
    for (const present::Line& line : list.lines) {
        Json object;
        object["from"] = spotJson(line.from);
        object["to"] = spotJson(line.to);
        object["role"] = roleJson(line.role);
        object["width"] = numberJson(line.width);
        object["dashed"] = line.dashed;
        object["arrow"] = line.arrow;
        lines.push_back(std::move(object));
    }
    return lines;
}

Json textsJson(const present::DisplayList& list)
{
    Json texts = Json::array();
    for (const present::Text& text : list.texts) {
        Json object;
        object["text"] = textJson(text.text);
        object["box"] = Json::array({numberJson(text.box.left), numberJson(text.box.top),
                                     numberJson(text.box.right), numberJson(text.box.bottom)});
        object["size"] = numberJson(text.size);
        object["role"] = roleJson(text.role);
        object["region"] = text.region < 0 ? Json() : Json(text.region);
        texts.push_back(std::move(object));
    }
    return texts;
}

Json regionsJson(const present::DisplayList& list)
{
    Json regions = Json::array();
    for (const present::Region& region : list.regions) {
        Json object;
        object["kind"] = std::string(present::regionKindName(region.kind));
        object["index"] = region.index;
        object["house"] = region.house == 0 ? Json() : Json(region.house);
        object["layer"] = region.layer;
        object["polygon"] = spotsJson(region.polygon);
        object["tip"] = textOrNull(region.tip);
        object["spoken"] = textOrNull(region.spoken);
        regions.push_back(std::move(object));
    }
    return regions;
}

std::string listJson(std::string_view command, const DiagramRequest& request,
                     const present::DisplayList& list)
{
    Json object = commandObject(command);
    object["style"] = std::string(present::diagramStyleName(request.style));
    object["varga"] = request.varga;
    object["size"] = numberJson(list.width);
    object["title"] = textJson(list.title);
    object["description"] = textOrNull(list.description);
    object["shapes"] = shapesJson(list);
    object["lines"] = linesJson(list);
    object["texts"] = textsJson(list);
    object["regions"] = regionsJson(list);
    return jsonText(object);
}

// Whether the file was written.
bool writePicture(const std::string& file, const std::string& svg, Console& console)
{
    const std::vector<std::uint8_t> bytes(svg.begin(), svg.end());
    const core::Result<void> written = core::writeFileSafely(file, bytes);
    if (!written) {
        console.error(written.error().text());
    }
    return bool(written);
}

ExitCode print(const DiagramRequest& request, const present::DiagramSubject& subject, bool json,
               std::string_view command, Console& console)
{
    const present::DisplayList list =
        present::layoutDiagram(subject, request.style, request.options, request.size);
    if (request.svg == "-") {
        console.print(present::writeSvg(list));
    } else if (request.svg && !writePicture(*request.svg, present::writeSvg(list), console)) {
        return ExitCode::Failed;
    }
    if (json) {
        console.print(listJson(command, request, list));
    } else if (request.spoken) {
        console.print(present::accessibleText(list));
    } else if (!request.svg) {
        console.print(present::terminalDiagram(subject, request.style, request.options));
    }
    return ExitCode::Done;
}

} // namespace

DiagramCommand::DiagramCommand()
    : Command({"diagram",
               "Draw a chart as a North Indian, South Indian, East Indian or circle diagram; the "
               "second chart, when there is one, stands around it",
               {},
               {kBirthOptions, kPositionsOption, kVargaOption, kDiagramOptions, kSecondChartOptions,
                kSetOptions, kCommonOptions}})
{}

ExitCode DiagramCommand::run(const Arguments& arguments, Console& console) const
{
    core::Result<DiagramRequest> read = readDiagramRequest(arguments);
    if (!read) {
        console.error(read.error().text());
        return ExitCode::Usage;
    }
    DiagramRequest& request = read.value();
    ExitCode code = ExitCode::Done;
    std::optional<ComputedPair> pair;
    std::optional<ComputedChart> single;
    if (request.twoCharts) {
        pair = computePairFromArguments(arguments, console, code);
    } else {
        single = computeFromArguments(arguments, PlaceNeed::Optional, console, code);
    }
    if (!pair && !single) {
        return code;
    }
    const ComputedChart& computed = pair ? pair->first : *single;
    const present::DiagramSubject subject{computed.chart, computed.settings, request.varga,
                                          pair ? &pair->second.chart : nullptr};
    request.options.english = (core::DisplayFlags() & core::kEnglishNames) != 0;
    request.options.centre = present::centreLines(subject, request.options.english);
    return print(request, subject, arguments.has("--json"), info().name, console);
}

} // namespace kestrav::cli
