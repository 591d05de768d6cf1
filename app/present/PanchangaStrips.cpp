#include "app/present/PanchangaStrips.h"

#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/PanchangaNames.h"

#include <algorithm>
#include <cmath>

namespace kestrav::present
{

namespace
{

using timing::DayElement;
using timing::DayPart;
using timing::HourSpan;
using timing::PanchangaDay;

constexpr double kHours = 24.0;

class DayStrips
{
public:
    DayStrips(const PanchangaDay& day, bool twelveHour) : day_(day), twelveHour_(twelveHour)
    {
        model_.title = dateText(day.date) + L", " + std::wstring(core::weekdayName(day.weekday));
        begin_ = day.sunrise.value_or(0.0);
        end_ = day.nextSunrise.value_or(kHours);
        model_.from = momentOf(begin_);
        model_.to = momentOf(end_);
    }

    StripModel make()
    {
        addSun();
        addElements("tithi", L"Tithi", day_.tithis, timing::tithiName, timing::tithiKeyword);
        addElements("nakshatra", L"Nakshatra", day_.nakshatras, core::nakshatraName,
                    [](int /*nakshatra*/) { return std::wstring_view(); });
        addElements("yoga", L"Yoga", day_.yogas, timing::yogaName, timing::yogaKeyword);
        addElements("karana", L"Karana", day_.karanas, timing::karanaName, timing::karanaNote);
        addParts("hora", L"Hora", day_.horas, [](int planet) { return pointLabel(planet); });
        addParts("choghadia", L"Choghadia", day_.choghadia,
                 [](int number) { return withoutEndBlanks(timing::choghadiaName(number)); });
        addParts("kala-vela", L"Kala vela", day_.kalaVelas,
                 [](int planet) { return withoutEndBlanks(timing::kalaVelaName(planet)); });
        addStretches();
        for (int hour = int(std::ceil(begin_)); hour <= int(std::floor(end_)); ++hour) {
            std::wstring clock = core::FormatClock(hour, twelveHour_, false);
            model_.ticks.push_back({momentOf(hour), withoutEndBlanks(clock)});
        }
        return std::move(model_);
    }

private:
    [[nodiscard]] double momentOf(double hour) const
    {
        return day_.julianDay0h + (hour - day_.clockOffset) / kHours;
    }

    [[nodiscard]] std::wstring clock(double hour) const
    {
        return withoutEndBlanks(core::FormatClock(hour, twelveHour_, true));
    }

    [[nodiscard]] std::wstring times(const HourSpan& hours) const
    {
        return clock(hours.start) + L" to " + clock(hours.end);
    }

    // A bar with its name and its times as tip.
    [[nodiscard]] TimeSpan bar(const HourSpan& hours, std::wstring name,
                               const std::wstring& note = {}) const
    {
        TimeSpan span;
        span.from = momentOf(hours.start);
        span.to = momentOf(hours.end);
        span.brief = name.substr(0, 3);
        span.tip = name + L"\n" + times(hours) + L"\n" + (note.empty() ? L"" : note + L"\n");
        span.text = std::move(name);
        return span;
    }

    void addSun()
    {
        Lane lane{"sun", L"Sun", {}};
        const auto add = [&](double from, double to, bool night, const wchar_t* name) {
            if (from < to) {
                lane.spans.push_back(bar({from, to}, name));
                lane.spans.back().area = night ? ColourRole::Night : ColourRole::Panel;
            }
        };
        if (day_.sunrise && day_.sunset) {
            add(begin_, *day_.sunset, false, L"Day");
            add(*day_.sunset, end_, true, L"Night");
        } else {
            const bool up =
                day_.sunrise || (!day_.sunset && day_.sun == timing::SunCourse::StaysUp);
            add(begin_, end_, !up, up ? L"The Sun does not set" : L"The Sun does not rise");
        }
        model_.lanes.push_back(std::move(lane));
    }

    void addElements(std::string id, std::wstring label, const std::vector<DayElement>& elements,
                     std::wstring_view (*nameOf)(int), std::wstring_view (*noteOf)(int))
    {
        Lane lane{std::move(id), std::move(label), {}};
        for (const DayElement& element : elements) {
            const std::wstring name = withoutEndBlanks(nameOf(element.number));
            const std::wstring note = withoutEndBlanks(noteOf(element.number));
            // What follows in parentheses explains the full and the new Moon.
            TimeSpan span = bar(element.hours, name.substr(0, name.find(L" (")), note);
            span.number = element.number;
            if (lane.id == "nakshatra") {
                span.about = {Subject::Nakshatra, element.number};
            }
            if (timing::isUnfavourable(name) || timing::isUnfavourable(note)) {
                span.area = ColourRole::Unfavourable;
            }
            lane.spans.push_back(std::move(span));
        }
        model_.lanes.push_back(std::move(lane));
    }

    template <typename NameOf>
    void addParts(std::string id, std::wstring label, const std::vector<DayPart>& parts,
                  const NameOf& nameOf)
    {
        Lane lane{std::move(id), std::move(label), {}};
        const bool ofPlanets = lane.id != "choghadia";
        for (const DayPart& part : parts) {
            TimeSpan span = bar(part.hours, nameOf(part.ruler));
            span.number = part.ruler;
            span.area = part.night ? ColourRole::Night : ColourRole::Panel;
            if (ofPlanets && part.ruler > 0) {
                span.about = {Subject::Point, part.ruler};
            }
            lane.spans.push_back(std::move(span));
        }
        model_.lanes.push_back(std::move(lane));
    }

    void addStretches()
    {
        Lane lane{"stretch", L"Stretches", {}};
        const auto add = [&](const wchar_t* name, const HourSpan& hours, bool good,
                             std::wstring_view nakshatra = {}) {
            std::wstring note = good ? L"favourable" : L"avoid";
            note += nakshatra.empty() ? L"" : L", of " + std::wstring(nakshatra);
            lane.spans.push_back(bar(hours, name, note));
            lane.spans.back().area = good ? ColourRole::Favourable : ColourRole::Unfavourable;
        };
        const auto addIf = [&](const wchar_t* name, const std::optional<HourSpan>& hours,
                               bool good) {
            if (hours) {
                add(name, *hours, good);
            }
        };
        addIf(L"Rahu kalam", day_.rahuKalam, false);
        addIf(L"Yamaganda", day_.yamaganda, false);
        addIf(L"Gulika", day_.gulika, false);
        addIf(L"Abhijit", day_.abhijit, true);
        for (const HourSpan& hours : day_.durmuhurta) {
            add(L"Durmuhurta", hours, false);
        }
        for (const timing::NakshatraKalam& kalam : day_.varjyam) {
            add(L"Varjyam", kalam.hours, false, core::nakshatraName(kalam.nakshatra));
        }
        for (const timing::NakshatraKalam& kalam : day_.amritaKalam) {
            add(L"Amrita kalam", kalam.hours, true, core::nakshatraName(kalam.nakshatra));
        }
        std::stable_sort(
            lane.spans.begin(), lane.spans.end(),
            [](const TimeSpan& one, const TimeSpan& other) { return one.from < other.from; });
        model_.lanes.push_back(std::move(lane));
    }

    const PanchangaDay& day_;
    bool twelveHour_;
    double begin_ = 0.0;
    double end_ = 0.0;
    StripModel model_;
};

} // namespace

StripModel panchangaStrips(const PanchangaDay& day, bool twelveHour, std::optional<double> cursor)
{
    StripModel model = DayStrips(day, twelveHour).make();
    model.cursor = cursor;
    return model;
}

} // namespace kestrav::present
