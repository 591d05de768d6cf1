#include "data/ResearchLine.h"

#include "analysis/SignPositions.h"
#include "core/Angles.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/SignData.h"
#include "core/numeric.h"
#include "data/BirthTexts.h"
#include "data/CleanText.h"
#include "data/DecimalText.h"
#include "data/FieldReader.h"

#include <cmath>
#include <optional>

namespace kestrav::data
{

namespace
{

using core::at;

constexpr std::array<int, 10> kSpeedPoints = {1, 2, 3, 4, 5, 6, 7, 32, 33, 34};
constexpr std::array<int, 10> kMotionPoints = {3, 4, 5, 6, 7, 8, 9, 32, 33, 34};
constexpr double kNoTime = -1.0;
constexpr int kNoGulika = -1;
constexpr double kRounding = 1.0e-6;

int signNumber(double longitude)
{
    return core::truncated(longitude / 30.0) + 1;
}

int nakshatraNumber(double longitude)
{
    return core::truncated(longitude * 0.075) + 1;
}

class ResearchWriter
{
public:
    ResearchWriter()
    {
        constexpr std::size_t kUsualLength = 1024;
        line_.reserve(kUsualLength);
    }

    void letter(wchar_t value)
    {
        line_ += char(value);
        line_ += '\t';
    }
    void text(const std::wstring& value)
    {
        // TABs would shift the fields; what else a name may hold does no harm here.
        const std::string bytes = core::toUtf8(cleanUnquoted(value, value.size()));
        line_ += bytes.empty() ? " " : bytes;
        line_ += '\t';
    }
    void integer(int value)
    {
        line_ += std::to_string(value);
        line_ += '\t';
    }
    void number(double value)
    {
        appendSixDecimals(line_, value);
        line_ += '\t';
    }
    [[nodiscard]] std::string&& take()
    {
        return std::move(line_);
    }

private:
    std::string line_;
};

// Takes the fields of a line one after the other; only fields that end with a TAB exist.
class ResearchReader
{
public:
    explicit ResearchReader(std::string_view line) : rest_(line)
    {}

    std::string_view field()
    {
        const std::size_t tab = rest_.find('\t');
        if (tab == std::string_view::npos) {
            complete_ = false;
            return {};
        }
        const std::string_view value = rest_.substr(0, tab);
        rest_.remove_prefix(tab + 1);
        return value;
    }
    std::wstring text()
    {
        const std::string_view value = field();
        return value == " " ? std::wstring() : wideField(value);
    }
    int integer()
    {
        return core::readLeadingInteger(field());
    }
    double number()
    {
        return core::readLeadingNumber(field());
    }
    [[nodiscard]] bool complete() const
    {
        return complete_;
    }

private:
    std::string_view rest_;
    bool complete_ = true;
};

// Six decimals round a longitude across the boundary of its sign or nakshatra now and then. Puts it
// back to the written side; a line whose longitude is elsewhere altogether is believed.
double insideOf(double longitude, int number, double width)
{
    const double low = (double(number) - 1.0) * width;
    const double high = double(number) * width;
    if (longitude >= high && longitude <= high + kRounding) {
        return std::nextafter(high, 0.0);
    }
    return longitude < low && longitude >= low - kRounding ? low : longitude;
}

void storePoint(core::Chart& chart, int point, double longitude, int sign, int nakshatra)
{
    // 360 is the rounded form of a longitude just below it, which belongs to the last sign.
    double place = insideOf(longitude, sign, 30.0);
    place = core::Normalize360(insideOf(place, nakshatra, 40.0 / 3.0));
    at(chart.longitude, point) = place;
    analysis::computeSignData(chart, point);
    // The product by 0.075 differs from the quotient by 40/3 in the last place.
    double& position = at(chart.nakshatraPosition, point);
    const double held =
        core::ClampRange(double(nakshatra) - 1.0, std::nextafter(double(nakshatra), 0.0), position);
    if (std::fabs(held - position) <= kRounding) {
        position = held;
    }
}

core::Motion motionOf(std::string_view letter)
{
    if (letter == "D") {
        return core::Motion::Direct;
    }
    return letter == "R" || letter == "M" ? core::Motion::Retrograde : core::Motion::None;
}

std::optional<double> clockTime(double hours)
{
    return hours < 0.0 ? std::nullopt : std::optional(hours);
}

// The fields from the occupation to the motion letters.
void readPoints(ResearchReader& fields, core::Chart& chart)
{
    for (int skipped = 0; skipped < 3; ++skipped) {
        fields.field();
    }
    std::array<int, kResearchPoints.size()> signs{};
    std::array<int, kResearchPoints.size()> navamshas{};
    std::array<int, kResearchPoints.size()> nakshatras{};
    for (auto* const group : {&signs, &navamshas, &nakshatras}) {
        for (int& value : *group) {
            value = fields.integer();
        }
    }
    for (std::size_t i = 0; i < kResearchPoints.size(); ++i) {
        const int point = kResearchPoints[i];
        storePoint(chart, point, fields.number(), signs[i], nakshatras[i]);
        if (navamshas[i] >= 1 && navamshas[i] <= 12) {
            at(chart.navamshaSign, point) = navamshas[i];
        }
    }
    for (const int point : kSpeedPoints) {
        at(chart.speed, point) = fields.number();
    }
    for (const int point : kMotionPoints) {
        at(chart.motion, point) = motionOf(fields.field());
        at(chart.retrograde, point) = at(chart.motion, point) == core::Motion::Retrograde;
    }
}

} // namespace

std::string FormatResearchLine(const core::Chart& chart)
{
    const core::Identity& identity = chart.identity;
    ResearchWriter line;
    line.text(chart.name);
    line.text(identity.occupation);
    line.text(identity.label);
    line.integer(signNumber(core::Normalize360(chart.longitude[core::kSun] + chart.ayanamsa)));
    for (const int point : kResearchPoints) {
        line.integer(signNumber(at(chart.longitude, point)));
    }
    for (const int point : kResearchPoints) {
        line.integer(core::navamshaSignOf(at(chart.longitude, point)));
    }
    for (const int point : kResearchPoints) {
        line.integer(nakshatraNumber(at(chart.longitude, point)));
    }
    for (const int point : kResearchPoints) {
        line.number(at(chart.longitude, point));
    }
    for (const int point : kSpeedPoints) {
        line.number(at(chart.speed, point));
    }
    for (const int point : kMotionPoints) {
        line.letter(core::motionLetter(at(chart.motion, point)));
    }
    // Where the Sun does not rise there is no Gulika.
    const bool gulika = chart.computed(core::kGulika);
    line.integer(gulika ? signNumber(chart.longitude[core::kGulika]) : 0);
    line.integer(gulika ? core::truncated(chart.longitude[core::kGulika] * 60.0) : kNoGulika);
    line.number(chart.ayanamsa);
    line.text(identity.sex);
    line.number(chart.geoLongitude);
    line.number(chart.geoLatitude);
    line.text(latitudeTextOf(chart));
    line.text(longitudeTextOf(chart));
    line.number(chart.localSiderealTime);
    line.number(chart.midheaven);
    line.number(chart.time.localTime);
    line.number(chart.sunrise.value_or(kNoTime));
    line.number(chart.sunset.value_or(kNoTime));
    line.number(chart.zone);
    line.number(chart.daylightSaving);
    line.number(chart.time.dayCount);
    line.letter(L' ');
    return line.take();
}

bool ParseResearchLine(std::string_view line, core::Chart& chart)
{
    chart = core::Chart{};
    chart.time.year = 0;
    chart.time.month = 0;
    chart.time.day = 0;
    if (line.size() < 2) {
        return false;
    }
    core::Identity& identity = chart.identity;
    ResearchReader fields(line);
    chart.name = fields.text();
    readPoints(fields, chart);
    fields.field();
    if (const int minutes = fields.integer(); minutes != kNoGulika) {
        chart.longitude[core::kGulika] = core::Normalize360(minutes / 60.0);
        analysis::computeSignData(chart, core::kGulika);
    }
    chart.ayanamsa = fields.number();
    chart.time.ayanamsa = chart.ayanamsa;
    identity.sex = fields.text();
    chart.geoLongitude = fields.number();
    chart.geoLatitude = fields.number();
    identity.latitudeText = fields.text();
    identity.longitudeText = fields.text();
    chart.localSiderealTime = fields.number();
    chart.midheaven = fields.number();
    chart.time.localTime = fields.number();
    chart.sunrise = clockTime(fields.number());
    chart.sunset = clockTime(fields.number());
    chart.zone = fields.number();
    chart.daylightSaving = core::truncated(fields.number());
    chart.time.dayCount = fields.number();
    fields.field();
    return fields.complete();
}

bool ReadResearchPositions(std::string_view line, core::Chart& chart)
{
    ResearchReader fields(line);
    fields.field();
    readPoints(fields, chart);
    return fields.complete();
}

std::string_view researchField(std::string_view line, int index)
{
    for (; index > 0; --index) {
        const std::size_t tab = line.find('\t');
        if (tab == std::string_view::npos) {
            return {};
        }
        line.remove_prefix(tab + 1);
    }
    const std::size_t tab = line.find('\t');
    return tab == std::string_view::npos ? std::string_view() : line.substr(0, tab);
}

} // namespace kestrav::data
