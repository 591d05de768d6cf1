// Chart lines and records for the tests of the data floor.
#pragma once

#include "data/BirthTexts.h"
#include "data/ChartLine.h"
#include "data/CleanText.h"
#include "data/ContactText.h"
#include "data/PhoneticSound.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace kestrav::data
{

/// The fields of a chart line as they stand in a file, each of them replaceable.
struct LineParts
{
    std::string head = " \t";
    std::string label = "\"\"";
    std::string name = "\"Mira Example\"";
    std::string sex = "\"F\"";
    std::string code = "\"\"";
    std::string date = "5/3/1975";
    std::string time = "\"14:15\"";
    std::string place = "\"New Delhi\"";
    std::string country = "\"India\"";
    std::string zone = "\"5:30:00\"";
    std::string saving = "0";
    std::string longitude = " 77E13' 0\"";
    std::string latitude = "28N39' 0\"";
    std::string sound = "\"m\"";
    std::string occupation = "\"\"";
    std::string status = "\"\"";
    std::string freeText = "\"\"";
    std::string second = "0/0/0";
    std::string notes = "\"\"/\"\"";
    std::string numbers = "0/0";
    std::string order = "\"EB\"/0/0/0";
    std::string events = std::string(39, '\t');

    [[nodiscard]] std::string line() const
    {
        std::string text = head;
        for (const std::string* field : {&label, &name, &sex, &code, &date, &time, &place, &country,
                                         &zone, &saving, &longitude, &latitude, &sound, &occupation,
                                         &status, &freeText, &second, &notes, &numbers}) {
            text += *field + "\t";
        }
        return text + order + events;
    }
};

/// A line of the given name, otherwise as LineParts has it.
inline std::string lineOf(const std::string& name, const std::string& head = " \t")
{
    LineParts parts;
    parts.name = "\"" + name + "\"";
    parts.head = head;
    return parts.line();
}

inline core::Chart parse(const std::string& line, DateOrder order = DateOrder::DayFirst)
{
    core::Chart chart;
    ParseChartLine(line, chart, order);
    return chart;
}

/// Everything that a chart line keeps must be equal.
inline void expectSameRecord(const core::Chart& a, const core::Chart& b)
{
    EXPECT_EQ(a.name, b.name);
    EXPECT_EQ(a.place, b.place);
    EXPECT_EQ(a.time.year, b.time.year);
    EXPECT_EQ(a.time.month, b.time.month);
    EXPECT_EQ(a.time.day, b.time.day);
    EXPECT_EQ(a.time.localTime, b.time.localTime);
    EXPECT_EQ(a.zone, b.zone);
    EXPECT_EQ(a.daylightSaving, b.daylightSaving);
    EXPECT_EQ(a.geoLongitude, b.geoLongitude);
    EXPECT_EQ(a.geoLatitude, b.geoLatitude);
    EXPECT_EQ(a.timeText, b.timeText);
    EXPECT_EQ(a.zoneText, b.zoneText);
    EXPECT_EQ(a.identity.notes, b.identity.notes);
    EXPECT_EQ(a.identity.contact, b.identity.contact);
    EXPECT_EQ(a.identity.longitudeText, b.identity.longitudeText);
    EXPECT_EQ(a.identity.latitudeText, b.identity.latitudeText);
    EXPECT_TRUE(a.identity == b.identity);
}

/// Records as the entry form leaves them: texts of any characters cleaned, numbers rounded.
class RandomRecords
{
public:
    explicit RandomRecords(unsigned seed) : random_(seed)
    {}

    int whole(int low, int high)
    {
        return std::uniform_int_distribution<int>(low, high)(random_);
    }

    std::wstring text(int longest)
    {
        constexpr std::wstring_view kCharacters =
            L"abcXYZ019 /^\"'\t\r\n|\\,;%\u00e9\u0391\u0916\U0001F30D";
        std::wstring result;
        for (int i = whole(0, longest); i > 0; --i) {
            result += kCharacters[std::size_t(whole(0, int(kCharacters.size()) - 1))];
        }
        return result;
    }

    core::PlainDate date()
    {
        return whole(0, 3) == 0 ? core::PlainDate{}
                                : core::PlainDate{whole(-500, 2400), whole(1, 12), whole(1, 31)};
    }

    core::Chart record()
    {
        core::Chart chart;
        core::Identity& identity = chart.identity;
        identity.tag = L" ABNLP\u0916"[whole(0, 6)];
        identity.label = text(40);
        chart.name = L"N" + text(60);
        identity.sex = whole(0, 1) == 0 ? L"M" : L"F";
        identity.code = text(5);
        chart.time.year = whole(-3000, 3000);
        chart.time.month = whole(1, 12);
        chart.time.day = whole(1, 31);
        chart.time.localTime = whole(0, 86399) / 3600.0;
        chart.place = text(70);
        identity.country = text(30);
        chart.zone = whole(-15 * 3600, 15 * 3600) / 3600.0;
        chart.daylightSaving = whole(0, 2);
        chart.geoLongitude = whole(-180 * 3600, 180 * 3600) / 3600.0;
        chart.geoLatitude = whole(-90 * 3600, 90 * 3600) / 3600.0;
        identity.sound =
            std::vector<std::wstring>{L"", L"a", L"kh", L"th", L"x"}[std::size_t(whole(0, 4))];
        identity.soundGroup = soundGroup(identity.sound);
        identity.occupation = text(40);
        identity.status = text(2);
        identity.freeText = text(30);
        identity.secondDate = date();
        identity.notes = text(400);
        identity.numbers = {whole(-100000, 100000), whole(0, 9)};
        identity.thirdDate = date();
        if (whole(0, 1) == 0) {
            for (const ContactField& field : contactFields()) {
                identity.contact.*field.text = text(80);
            }
        }
        for (core::LifeEvent& event : identity.events) {
            if (whole(0, 2) == 0) {
                event = {L"e" + text(60),
                         {whole(-500, 2400), whole(1, 12), whole(1, 31)},
                         whole(0, 2399) / 100.0};
            }
        }
        cleanRecord(chart);
        refreshBirthTexts(chart);
        return chart;
    }

private:
    std::mt19937 random_;
};

} // namespace kestrav::data
