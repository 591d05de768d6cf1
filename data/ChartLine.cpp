#include "data/ChartLine.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "data/ContactText.h"
#include "data/DecimalText.h"
#include "data/FieldReader.h"
#include "data/PhoneticSound.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::data
{

namespace
{

constexpr std::wstring_view kLineBreak = L"\r\n";

void clearRecord(core::Chart& chart)
{
    static const core::Chart kCleared = [] {
        core::Chart empty;
        empty.time.year = 0;
        empty.time.month = 0;
        empty.time.day = 0;
        empty.time.localTime = 0.0;
        return empty;
    }();
    chart = kCleared;
}

// The dates of a line, kept until its order is known.
struct WrittenDates
{
    WrittenDate birth;
    WrittenDate second;
    WrittenDate third;
    std::array<WrittenDate, core::kLifeEvents> events;
};

WrittenDate readDate(FieldReader& fields)
{
    WrittenDate date;
    date.first = core::readLeadingInteger(fields.part(kNumberLength));
    date.second = core::readLeadingInteger(fields.part(kNumberLength));
    date.year = core::readLeadingInteger(fields.lastPart(kNumberLength));
    return date;
}

// A line that begins with TAB has no tag; otherwise the tag is the first character before it.
wchar_t readTag(FieldReader& fields)
{
    const std::wstring text = wideField(fields.unquoted(1));
    return text.empty() ? L' ' : text.front();
}

void readName(FieldReader& fields, core::Chart& chart)
{
    chart.name = fields.wideText(kNameLength);
    chart.identity.nameMissing = chart.name.empty();
    if (!hasLetterOrDigit(chart.name)) {
        chart.name = kNoNameText;
    }
    chart.identity.shortName = shortNameOf(chart.name);
}

void readNotes(FieldReader& fields, core::Identity& identity)
{
    for (const wchar_t character : fields.widePart(kNotesLength)) {
        if (character == L'|') {
            identity.notes += kLineBreak;
        } else {
            identity.notes += character;
        }
    }
    const std::wstring extra = fields.wideLastPart(kExtraLength);
    if (extra.starts_with(L'^')) {
        identity.contact = parseContact(extra);
    } else if (!extra.empty()) {
        // A bar at its beginning stays a bar, and becomes a line break when the line that is
        // written from the record is read again.
        if (extra.front() != L' ' && extra.front() != L'|') {
            identity.notes += L' ';
        }
        identity.notes += extra;
    }
}

void readEvents(FieldReader& fields, core::Identity& identity, WrittenDates& dates)
{
    for (std::size_t i = 0; i < identity.events.size() && !fields.isShort(); ++i) {
        if (fields.rest().starts_with('\t')) {
            fields.skipText(1);
            continue;
        }
        core::LifeEvent& event = identity.events[i];
        WrittenDate& date = dates.events[i];
        event.name = fields.widePart(kEventNameLength);
        date.first = core::readLeadingInteger(fields.part(kNumberLength));
        date.second = core::readLeadingInteger(fields.part(kNumberLength));
        date.year = core::readLeadingInteger(fields.part(kNumberLength));
        event.hours = core::readLeadingNumber(fields.lastPart(kNumberLength));
        if (event.name.empty()) {
            event = {};
            date = {};
        }
    }
}

void storeDates(const WrittenDates& dates, DateOrder order, core::Chart& chart)
{
    const core::PlainDate birth = dates.birth.in(order);
    chart.time.year = birth.year;
    chart.time.month = birth.month;
    chart.time.day = birth.day;
    chart.identity.secondDate = dates.second.in(order);
    chart.identity.thirdDate = dates.third.in(order);
    for (std::size_t i = 0; i < dates.events.size(); ++i) {
        chart.identity.events[i].date = dates.events[i].in(order);
    }
}

void readBirthNumbers(core::Chart& chart)
{
    chart.time.localTime = readTimeText(chart.timeText).value_or(0.0);
    chart.zone = readZoneText(chart.zoneText).value_or(0.0);
    chart.geoLongitude = readLongitudeText(chart.identity.longitudeText).value_or(0.0);
    chart.geoLatitude = readLatitudeText(chart.identity.latitudeText).value_or(0.0);
}

// The largest numbers that fit into the ten characters that are read back.
constexpr int kLargestNumber = 999'999'999;
constexpr double kLargestHours = 99999.0;

std::string numberText(int number)
{
    return std::to_string(std::max(number, -kLargestNumber));
}

// Writes the fields of a line one after the other.
class LineWriter
{
public:
    explicit LineWriter(DateOrder order) : order_(order)
    {}

    void put(std::string_view text)
    {
        line_ += text;
    }
    void put(const std::wstring& text)
    {
        line_ += core::toUtf8(text);
    }
    void putQuoted(const std::wstring& text, std::size_t most)
    {
        line_ += '"';
        put(cleanText(text, most));
        line_ += '"';
    }
    void quotedField(const std::wstring& text, std::size_t most)
    {
        putQuoted(text, most);
        line_ += '\t';
    }
    void putDate(const core::PlainDate& date)
    {
        const bool dayFirst = order_ == DateOrder::DayFirst;
        put(numberText(dayFirst ? date.day : date.month) + "/" +
            numberText(dayFirst ? date.month : date.day) + "/" + numberText(date.year));
    }
    void putEvents(const std::array<core::LifeEvent, core::kLifeEvents>& events)
    {
        for (const core::LifeEvent& event : events) {
            put("\t");
            if (event.name.empty()) {
                continue;
            }
            putQuoted(event.name, kEventNameLength);
            put("/");
            putDate(event.date);
            put("/" + fixedDecimals(std::clamp(event.hours, -kLargestHours, kLargestHours), 2));
        }
    }
    [[nodiscard]] std::string&& take()
    {
        return std::move(line_);
    }

private:
    std::string line_;
    DateOrder order_;
};

std::wstring notesOfLine(const std::wstring& notes)
{
    std::wstring text = cleanNotes(notes);
    std::replace(text.begin(), text.end(), L'\n', L'|');
    std::erase(text, L'\r');
    return text;
}

} // namespace

core::Chart& ParseChartLine(std::string_view line, core::Chart& chart, DateOrder& order,
                            bool namesOnly)
{
    clearRecord(chart);
    core::Identity& identity = chart.identity;
    FieldReader fields(line);
    identity.tag = readTag(fields);
    identity.label = fields.wideText(kLabelLength);
    readName(fields, chart);
    identity.sex = fields.wideText(kSexLength);
    if (namesOnly) {
        return chart;
    }

    WrittenDates dates;
    identity.code = fields.wideText(kCodeLength);
    dates.birth = readDate(fields);
    chart.timeText = fields.wideText(kTimeLength);
    chart.place = fields.wideText(kPlaceLength);
    identity.country = fields.wideText(kCountryLength);
    chart.zoneText = fields.wideText(kZoneLength);
    chart.daylightSaving = core::readLeadingInteger(fields.text(kNumberLength));
    identity.longitudeText = fields.wideText(kLongitudeLength);
    identity.latitudeText = fields.wideText(kLatitudeLength);
    identity.sound = fields.wideText(kSoundLength);
    identity.soundGroup = soundGroup(identity.sound);
    identity.occupation = fields.wideText(kOccupationLength);
    identity.status = fields.wideText(kStatusLength);
    identity.freeText = fields.wideText(kFreeTextLength);
    dates.second = readDate(fields);
    readNotes(fields, identity);
    identity.numbers[0] = core::readLeadingInteger(fields.part(kNumberLength));
    identity.numbers[1] = core::readLeadingInteger(fields.lastPart(kNumberLength));
    const std::string_view code = fields.part(kOrderCodeLength);
    dates.third.first = core::readLeadingInteger(fields.part(kNumberLength));
    dates.third.second = core::readLeadingInteger(fields.part(kNumberLength));
    dates.third.year = core::readLeadingInteger(fields.part(kNumberLength));
    fields.endCompound();
    readEvents(fields, identity, dates);

    storeDates(dates, orderOfLine(code, dates.birth, order), chart);
    readBirthNumbers(chart);
    return chart;
}

std::string FormatChartLine(const core::Chart& chart, DateOrder order)
{
    const core::Identity& identity = chart.identity;
    const BirthTexts texts = birthTexts(chart);
    LineWriter line(order);
    line.put(cleanText(std::wstring(1, identity.tag), 1) + L"\t");
    line.quotedField(identity.label, kLabelLength);
    line.quotedField(chart.name, kNameLength);
    line.quotedField(identity.sex, kSexLength);
    line.quotedField(identity.code, kCodeLength);
    line.putDate({chart.time.year, chart.time.month, chart.time.day});
    line.put("\t");
    line.quotedField(texts.time, kTimeLength);
    line.quotedField(chart.place, kPlaceLength);
    line.quotedField(identity.country, kCountryLength);
    line.quotedField(texts.zone, kZoneLength);
    line.put(numberText(chart.daylightSaving) + "\t");
    line.put(texts.longitude + L"\t");
    line.put(texts.latitude + L"\t");
    line.quotedField(identity.sound, kSoundLength);
    line.quotedField(identity.occupation, kOccupationLength);
    line.quotedField(identity.status, kStatusLength);
    line.quotedField(identity.freeText, kFreeTextLength);
    line.putDate(identity.secondDate);
    line.put("\t");
    line.put(L"\"" + notesOfLine(identity.notes) + L"\"/\"" + formatContact(identity.contact) +
             L"\"\t");
    line.put(numberText(identity.numbers[0]) + "/" + numberText(identity.numbers[1]) + "\t\"");
    line.put(orderCode(order));
    line.put("\"/");
    line.putDate(identity.thirdDate);
    line.putEvents(identity.events);
    return line.take();
}

} // namespace kestrav::data
