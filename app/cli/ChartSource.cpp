#include "app/cli/ChartSource.h"

#include "app/cli/AtlasPlaces.h"
#include "app/cli/Console.h"
#include "app/present/BirthRecord.h"
#include "core/FileText.h"
#include "data/BirthTexts.h"
#include "data/Chooser.h"
#include "data/DatabaseCommands.h"

#include <cstdlib>
#include <utility>

namespace kestrav::cli
{

namespace
{

std::string lineText(const DatabaseChoice& choice, std::size_t line)
{
    return choice.file + ":" + std::to_string(line + 1) + ": ";
}

std::optional<std::size_t> lineOfName(data::ChartDatabase& database, const DatabaseChoice& choice,
                                      Console& console)
{
    if (const std::optional<std::size_t> exact = database.find(*choice.name)) {
        return exact;
    }
    const std::string key = data::nameSortKey(core::toUtf8(*choice.name));
    std::vector<std::size_t> alike;
    for (std::size_t i = 0; i < database.size(); ++i) {
        if (!data::isShortLine(database.line(i)) &&
            data::nameSortKey(core::toUtf8(data::nameOfLine(database.line(i)))) == key) {
            alike.push_back(i);
        }
    }
    if (alike.size() == 1) {
        return alike.front();
    }
    std::string what = choice.file + ": there is no chart '" + core::toUtf8(*choice.name) + "'";
    if (!alike.empty()) {
        what += "; written otherwise it stands in the lines";
        for (const std::size_t line : alike) {
            what += " " + std::to_string(line + 1);
        }
    }
    console.error(what);
    return std::nullopt;
}

bool takeFromDatabase(BirthData& birth, const core::Settings& settings, Console& console,
                      ExitCode& code)
{
    const DatabaseChoice choice = *std::exchange(birth.database, std::nullopt);
    data::ChartDatabase database(present::dateOrder(settings));
    code = ExitCode::Failed;
    if (data::openDatabase(database, choice.file, console) != data::Outcome::Done) {
        return false;
    }
    const std::optional<std::size_t> line = chosenLine(database, choice, console, code);
    if (!line) {
        return false;
    }
    code = ExitCode::Failed;
    readLineInOrder(database, *line, birth.chart);
    const std::string problem = present::birthProblem(birth.chart);
    if (!problem.empty()) {
        console.error(lineText(choice, *line) + problem);
        return false;
    }
    birth.hasPlace =
        !birth.chart.identity.longitudeText.empty() && !birth.chart.identity.latitudeText.empty();
    if (!birth.hasPlace && birth.need == PlaceNeed::Required) {
        console.error(lineText(choice, *line) + "the chart has no longitude and latitude");
        return false;
    }
    for (const std::string& text : present::unreadTexts(birth.chart)) {
        birth.warnings.push_back(lineText(choice, *line) + text);
    }
    code = ExitCode::Done;
    return true;
}

bool lookUpPlace(BirthData& birth, const core::Settings& settings, Console& console, ExitCode& code)
{
    const PlaceChoice choice = *std::exchange(birth.placeToFind, std::nullopt);
    const std::optional<data::Places> places = openPlaces(settings, console, code);
    if (!places) {
        return false;
    }
    const core::Result<std::uint32_t> chosen = choosePlace(*places, choice.text);
    if (!chosen) {
        console.error(chosen.error().text());
        code = ExitCode::Usage;
        return false;
    }
    core::Chart& chart = birth.chart;
    const data::Place& place = places->place(chosen.value());
    const data::PlaceAnswer answer = choice.moment ? answerAtMoment(*places, place, *choice.moment)
                                                   : data::answerAt(*places, place, chart.time);
    chart.place = answer.name;
    chart.identity.country = countryOrState(*places, place);
    chart.geoLongitude = choice.longitude ? answer.longitude : chart.geoLongitude;
    chart.geoLatitude = choice.latitude ? answer.latitude : chart.geoLatitude;
    chart.zone = choice.zone ? answer.time.zone : chart.zone;
    chart.daylightSaving =
        choice.daylightSaving ? answer.time.daylightSaving : chart.daylightSaving;
    birth.hasPlace = true;
    if (choice.moment) {
        present::setLocalMoment(chart, *choice.moment);
    }
    if (choice.zone || choice.daylightSaving) {
        warnOfPlaceTime(answer.time, console);
    }
    return true;
}

} // namespace

bool completeBirthData(BirthData& birth, const core::Settings& settings, Console& console,
                       ExitCode& code)
{
    if (birth.database) {
        return takeFromDatabase(birth, settings, console, code);
    }
    if (birth.savingInForce) {
        birth.chart.daylightSaving = settings.daylightSavingHours;
    }
    return !birth.placeToFind || lookUpPlace(birth, settings, console, code);
}

std::optional<std::size_t> chosenLine(data::ChartDatabase& database, const DatabaseChoice& choice,
                                      Console& console, ExitCode& code)
{
    std::optional<std::size_t> line = choice.line;
    code = ExitCode::Usage;
    if (choice.name) {
        line = lineOfName(database, choice, console);
    } else if (*line >= database.size()) {
        console.error(choice.file + ": there is no line " + std::to_string(*line + 1) + ", only " +
                      std::to_string(database.size()));
        line.reset();
    } else if (data::isShortLine(database.line(*line))) {
        console.error(lineText(choice, *line) + "the line is too short to be a chart");
        code = ExitCode::Failed;
        line.reset();
    }
    if (line) {
        code = ExitCode::Done;
    }
    return line;
}

void readLineInOrder(data::ChartDatabase& database, std::size_t line, core::Chart& chart)
{
    data::DateOrder order = database.order();
    for (std::size_t i = 0; i < line; ++i) {
        if (!data::isShortLine(database.line(i))) {
            static_cast<void>(data::chooserRow(database.line(i), order));
        }
    }
    database.setOrder(order);
    database.read(line, chart);
}

} // namespace kestrav::cli
