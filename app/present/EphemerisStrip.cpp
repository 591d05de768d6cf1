#include "app/present/EphemerisStrip.h"

#include "analysis/Motion.h"
#include "app/present/TextValues.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/Ephemeris.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr double kPixelsOfStep = 2.0;
constexpr double kFurthestStep = 90.0; ///< degrees
constexpr double kThin = 1.2;
constexpr double kThick = 2.8;
constexpr double kAxisHeight = 1.7; ///< font sizes, as in strips
constexpr double kLongestOfDays = 62.0;
constexpr double kLongestOfMonths = 1100.0;
constexpr double kMostYearTicks = 16.0;

// Neighbours differ; which body a line belongs to is said by the name at its end.
constexpr std::array kInks = {ColourRole::Ascendant, ColourRole::Text,  ColourRole::Bindu,
                              ColourRole::Minor,     ColourRole::Outer, ColourRole::Arudha,
                              ColourRole::Label,     ColourRole::Aspect};

ColourRole inkOf(int body)
{
    return kInks[std::size_t(body) % kInks.size()];
}

// A name beside the graph, at the height of its line or next to it.
struct Name
{
    int body;
    double longitude;
    double y;
};

// Moves names apart that would stand over one another, inside a height.
void spread(std::vector<Name>& names, double distance, double top, double bottom)
{
    std::sort(names.begin(), names.end(),
              [](const Name& one, const Name& other) { return one.y < other.y; });
    double least = top + 0.5 * distance;
    for (Name& name : names) {
        name.y = std::max(name.y, least);
        least = name.y + distance;
    }
    double most = bottom - 0.5 * distance;
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        name->y = std::min(name->y, most);
        most = name->y - distance;
    }
}

class GraphMaker
{
public:
    GraphMaker(timing::SiderealSky& sky, const EphemerisStripSubject& subject,
               const StripOptions& options)
        : sky_(sky), subject_(subject), options_(options)
    {
        graph_.list.width = options.width;
        graph_.list.height = options.height;
        graph_.list.scheme = options.scheme;
        graph_.list.title = L"Ephemeris";
    }

    EphemerisStrip make()
    {
        const double font = options_.fontSize;
        double names = 0.0;
        for (const int body : subject_.bodies) {
            names = std::max(names, widthOf(nameOf(body), options_));
        }
        double signs = 0.0;
        for (int sign = 1; sign <= 12; ++sign) {
            signs = std::max(signs, widthOf(core::SignName2(sign), options_));
        }
        const double gap = 0.5 * font;
        natalLeft_ = signs + gap;
        const double natal = subject_.natal != nullptr ? names + gap : 0.0;
        graph_.axis = {subject_.from, subject_.to, natalLeft_ + natal,
                       options_.width - names - gap};
        graph_.bottom = options_.height - kAxisHeight * font;
        if (!(graph_.axis.right > graph_.axis.left) || !(graph_.bottom > 0.0) ||
            !(subject_.to > subject_.from)) {
            return std::move(graph_);
        }
        addSigns();
        addBodies();
        addNatal();
        addAxis(graph_.list, graph_.axis, thinnedTicks(ticks(), graph_.axis, options_),
                graph_.bottom, graph_.bottom, options_);
        addCursor(graph_.list, graph_.axis, subject_.cursor, graph_.top, graph_.bottom);
        return std::move(graph_);
    }

private:
    [[nodiscard]] static std::wstring nameOf(int body)
    {
        return withoutEndBlanks(core::PointName(3, body));
    }

    void addSigns()
    {
        const TimeAxis& axis = graph_.axis;
        for (int sign = 0; sign <= 12; ++sign) {
            const double y = graph_.yOf(30.0 * sign);
            graph_.list.lines.push_back(
                {{axis.left, y}, {axis.right, y}, ColourRole::Division, 0.5});
        }
        const double size = std::min(options_.fontSize, graph_.yOf(0.0) - graph_.yOf(30.0));
        for (int sign = 1; sign <= 12; ++sign) {
            const double y = graph_.yOf(30.0 * sign - 15.0);
            graph_.list.texts.push_back({std::wstring(core::SignName2(sign)),
                                         {0.0, y - 0.5 * size, natalLeft_, y + 0.5 * size},
                                         size,
                                         ColourRole::Label,
                                         -1,
                                         std::nullopt});
        }
    }

    [[nodiscard]] double step() const
    {
        const double points = (graph_.axis.right - graph_.axis.left) / kPixelsOfStep;
        return (subject_.to - subject_.from) / std::max(1.0, std::floor(points));
    }

    void addBodies()
    {
        std::vector<Name> names;
        std::wstring left;
        for (const int body : subject_.bodies) {
            if (std::fabs(analysis::meanDailyMotion(body)) * step() > kFurthestStep) {
                left += (left.empty() ? L"" : L", ") + pointLabel(body);
                continue;
            }
            const double last = addBody(body);
            if (std::isfinite(last)) {
                names.push_back({body, last, graph_.yOf(last)});
            }
        }
        addNames(names, 0, graph_.axis.right, options_.width);
        if (!left.empty()) {
            graph_.list.description += L"Too fast for this span: " + left + L"\n";
        }
    }

    // The longitude at the end.
    double addBody(int body)
    {
        double moment = subject_.from;
        double longitude = sky_.longitude(body, moment);
        graph_.list.description += pointLabel(body) + L": " + placeOf(longitude);
        const double points = std::round((subject_.to - subject_.from) / step());
        for (int i = 1; i <= int(points); ++i) {
            const double next = subject_.from + (subject_.to - subject_.from) * i / points;
            const double reached = sky_.longitude(body, next);
            addStep(body, moment, longitude, next, reached);
            moment = next;
            longitude = reached;
        }
        graph_.list.description += L" to " + placeOf(longitude) + L"\n";
        return longitude;
    }

    [[nodiscard]] static std::wstring placeOf(double longitude)
    {
        return std::isfinite(longitude) ? core::FormatSignPosition(longitude)
                                        : std::wstring(core::kNoName);
    }

    void addStep(int body, double from, double fromLongitude, double to, double toLongitude)
    {
        if (!std::isfinite(fromLongitude) || !std::isfinite(toLongitude)) {
            return;
        }
        const double way = core::Wrap180(toLongitude - fromLongitude);
        const double unwrapped = fromLongitude + way;
        const double width = way < 0.0 ? kThick : kThin;
        if (unwrapped >= 0.0 && unwrapped < 360.0) {
            addLine(body, from, fromLongitude, to, toLongitude, width);
            return;
        }
        // The moment at 0 degrees, where the line goes on at the other end.
        const double edge = way < 0.0 ? 0.0 : 360.0;
        const double moment = from + (edge - fromLongitude) / way * (to - from);
        addLine(body, from, fromLongitude, moment, edge, width);
        addLine(body, moment, 360.0 - edge, to, toLongitude, width);
    }

    void addLine(int body, double from, double fromLongitude, double to, double toLongitude,
                 double width)
    {
        graph_.list.lines.push_back({{graph_.axis.xOf(from), graph_.yOf(fromLongitude)},
                                     {graph_.axis.xOf(to), graph_.yOf(toLongitude)},
                                     inkOf(body),
                                     width});
    }

    void addNatal()
    {
        if (subject_.natal == nullptr) {
            return;
        }
        const TimeAxis& axis = graph_.axis;
        std::vector<Name> names;
        for (const int body : subject_.bodies) {
            if (!subject_.natal->computed(body)) {
                continue;
            }
            const double longitude = core::at(subject_.natal->longitude, body);
            const double y = graph_.yOf(longitude);
            Line line{{axis.left, y}, {axis.right, y}, inkOf(body)};
            line.dashed = true;
            graph_.list.lines.push_back(line);
            names.push_back({body, longitude, y});
        }
        // Between the signs and the graph, so that they cover no line.
        addNames(names, 1, natalLeft_, axis.left);
    }

    void addNames(std::vector<Name>& names, int layer, double left, double right)
    {
        const double room =
            (graph_.bottom - graph_.top) / double(std::max<std::size_t>(names.size(), 1));
        const double size = std::min(0.9 * options_.fontSize, room);
        spread(names, size, graph_.top, graph_.bottom);
        for (const Name& name : names) {
            const Box box{left, name.y - 0.5 * size, right, name.y + 0.5 * size};
            const std::wstring tip = (layer == 1 ? L"Natal " : L"") + pointLabel(name.body) +
                                     L"\n" + placeOf(name.longitude) + L"\n";
            graph_.list.texts.push_back({nameOf(name.body), box, size, inkOf(name.body),
                                         int(graph_.list.regions.size()), ColourRole::Paper});
            graph_.list.regions.push_back({RegionKind::Point, name.body, 0, layer, cornersOf(box),
                                           tip, tip.substr(0, tip.find(L'\n'))});
        }
    }

    [[nodiscard]] int yearStep() const
    {
        const double years = (subject_.to - subject_.from) / 365.25;
        for (const int step : {1, 2, 5, 10, 20, 50}) {
            if (years <= kMostYearTicks * step) {
                return step;
            }
        }
        return 100;
    }

    // Days, months or years, by the length of the span.
    [[nodiscard]] std::vector<AxisTick> ticks() const
    {
        const double days = subject_.to - subject_.from;
        std::vector<AxisTick> list;
        core::DateTimeRecord date = timing::clockRecord(subject_.from, subject_.clockOffset);
        const bool byDay = days <= kLongestOfDays;
        const bool byMonth = !byDay && days <= kLongestOfMonths;
        if (!byDay) {
            date.day = 1;
            date.month = byMonth ? date.month : 1;
            // Round years; there is no year 0.
            date.year -= byMonth ? 0 : core::ModFrom(yearStep(), 0, date.year);
            date.year = date.year == 0 ? -1 : date.year;
        }
        double moment = timing::julianDayOf(date, subject_.clockOffset);
        while (moment <= subject_.to) {
            const std::wstring text = dateText(date);
            list.push_back({moment, byDay     ? text
                                    : byMonth ? text.substr(0, text.rfind(L'-'))
                                              : std::to_wstring(date.year)});
            if (byDay) {
                core::addDays(date, 1);
            } else if (byMonth && date.month < 12) {
                ++date.month;
            } else {
                const int step = byMonth ? 1 : yearStep();
                date.month = 1;
                date.year += date.year < 0 && date.year + step >= 0 ? step + 1 : step;
            }
            moment = timing::julianDayOf(date, subject_.clockOffset);
        }
        return list;
    }

    timing::SiderealSky& sky_;
    const EphemerisStripSubject& subject_;
    const StripOptions& options_;
    EphemerisStrip graph_;
    double natalLeft_ = 0.0; ///< where the names of the natal chart begin
};

} // namespace

double EphemerisStrip::longitudeAt(double y) const
{
    return std::clamp((y - bottom) / (top - bottom), 0.0, 1.0) * 360.0;
}

EphemerisStrip ephemerisStrip(timing::SiderealSky& sky, const EphemerisStripSubject& subject,
                              const StripOptions& options)
{
    return GraphMaker(sky, subject, options).make();
}

} // namespace kestrav::present
