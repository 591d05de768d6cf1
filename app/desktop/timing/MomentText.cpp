#include "app/desktop/timing/MomentText.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/BirthRecord.h"
#include "app/present/TextValues.h"
#include "app/present/TypedDate.h"
#include "core/Names.h"
#include "timing/Ephemeris.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"

#include <cmath>

namespace kestrav::desktop
{

namespace
{

constexpr double kSecondsOfDay = 86400.0;
constexpr double kPastTheSecond = 0.1;

double offsetAt(const Workspace& workspace, double moment)
{
    const core::Chart record = workspace.recordAt(moment);
    return record.zone + record.daylightSaving;
}

} // namespace

ClockReading readingOn(double moment, double offset)
{
    const double local = std::floor((moment + offset / 24.0) * kSecondsOfDay + 0.5);
    // A little behind the second, so that no time reads a second less or 24:00:00.
    const double rounded = (local + kPastTheSecond) / kSecondsOfDay - offset / 24.0;
    ClockReading reading;
    reading.offset = offset;
    reading.date = timing::clockRecord(rounded, offset);
    reading.weekday = timing::weekdayOfDay(timing::civilDayOf(rounded, offset));
    return reading;
}

ClockReading readingOf(const Workspace& workspace, double moment)
{
    return readingOn(moment, offsetAt(workspace, moment));
}

double momentAt(const Workspace& workspace, const core::DateTimeRecord& date, double hours)
{
    double moment = timing::julianDayOf(date, 0.0) + hours / 24.0;
    const double local = moment;
    // The system's clock may have changed to saving time meanwhile.
    for (int round = 0; round < 2; ++round) {
        moment = local - offsetAt(workspace, moment) / 24.0;
    }
    return moment;
}

std::wstring typedDate(const core::DateTimeRecord& date, const core::Settings& settings)
{
    return present::typedDate({date.year, date.month, date.day}, present::dateOrder(settings));
}

core::Result<core::DateTimeRecord> readTypedDate(std::wstring_view text,
                                                 const core::Settings& settings)
{
    const auto read = present::readRealDate(text, present::dateOrder(settings));
    if (!read) {
        return read.error();
    }
    core::DateTimeRecord date;
    date.year = read.value().year;
    date.month = read.value().month;
    date.day = read.value().day;
    return date;
}

QString momentLine(const Workspace& workspace, double moment)
{
    const ClockReading reading = readingOf(workspace, moment);
    return QStringLiteral("%1 %2, %3")
        .arg(toQt(present::dateText(reading.date)),
             toQt(present::clockSeconds(reading.date.localTime,
                                        workspace.settings().twelveHourClock))
                 .trimmed(),
             toQt(core::weekdayName(reading.weekday)));
}

QString asSentence(const std::string& message)
{
    QString text = toQt(message);
    text = text.left(1).toUpper() + text.mid(1);
    return text.endsWith(QLatin1Char('.')) ? text : text + QLatin1Char('.');
}

} // namespace kestrav::desktop
