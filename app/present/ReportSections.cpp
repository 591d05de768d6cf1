#include "app/present/ReportSections.h"

#include "analysis/Ashtakavarga.h"
#include "app/present/Diagram.h"
#include "app/present/TableCatalogue.h"
#include "app/present/TerminalDrawing.h"
#include "app/present/TransitTables.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"
#include "core/Points.h"
#include "timing/Panchanga.h"
#include "timing/PanchangaReport.h"
#include "timing/SiderealSky.h"
#include "timing/TransitListing.h"
#include "yoga/ExplainRule.h"

#include <cmath>
#include <string_view>

namespace kestrav::present
{

namespace
{

// The side of a drawing in a page, in pixels.
constexpr double kDrawingSize = 360.0;

class SectionMaker
{
public:
    SectionMaker(const ReportSource& source, const ReportPart& part)
        : source_(source), part_(part), computed_(source.computed)
    {}

    std::vector<Block> make()
    {
        switch (part_.section) {
        case ReportSection::BirthData:
            heading(L"Birth data");
            tables({"birth-data", "time", "daylight", "contact"});
            break;
        case ReportSection::Chart:
            heading(L"Chart");
            diagrams();
            break;
        case ReportSection::Positions:
            heading(L"Positions");
            tables({"positions", "house-system", "houses", "special-points", "karakas", "yogi"});
            break;
        case ReportSection::Vargas:
            heading(L"Divisional charts");
            tables({"varga-signs", "vimshopaka"});
            break;
        case ReportSection::Dignities:
            heading(L"Dignities and relationships");
            tables({"planets", "dignities", "natural-relationships", "compound-relationships"});
            break;
        case ReportSection::Strengths:
            heading(L"Strengths");
            tables({"shadbala", "bhava-bala", "avasthas", "planetary-war", "aspects",
                    "house-aspects"});
            break;
        case ReportSection::Ashtakavarga:
            heading(L"Ashtakavarga");
            tables({"ashtakavarga", "pinda"});
            break;
        case ReportSection::Dashas:
            heading(L"Dashas");
            tables({"dasha", "conditional-dashas", "dashas"});
            break;
        case ReportSection::Panchanga:
            heading(L"Panchanga of the day");
            panchanga();
            break;
        case ReportSection::Yogas:
            heading(L"Yogas");
            yogas();
            break;
        case ReportSection::Transits:
            heading(L"Transits");
            transits();
            break;
        case ReportSection::Notes:
            heading(L"Notes");
            notes();
            break;
        case ReportSection::Events:
            heading(L"Events");
            tables({"events"});
            break;
        case ReportSection::PageBreak:
            blocks_.emplace_back(PageBreak());
            break;
        }
        return std::move(blocks_);
    }

private:
    [[nodiscard]] const core::Chart& chart() const
    {
        return computed_.chart;
    }

    void heading(std::wstring text)
    {
        blocks_.emplace_back(Heading{std::move(text)});
    }

    void say(std::wstring text)
    {
        blocks_.emplace_back(Paragraph{std::move(text), false});
    }

    void tables(std::initializer_list<std::string_view> names)
    {
        TableSource source{computed_, source_.series};
        source.varga = part_.vargas.front();
        source.levels = part_.levels;
        source.lines = part_.lines;
        source.moment = source_.moment;
        source.nameLetter = chart().identity.sound.empty() ? 0 : chart().identity.soundGroup;
        for (const std::string_view name : names) {
            core::Result<Table> table = findTable(name)->make(source);
            if (!table) {
                say(L"Not computed: " + core::fromFileBytes(table.error().text()));
            } else if (!table.value().rows.empty() || !table.value().notes.empty()) {
                blocks_.emplace_back(std::move(table.value()));
            } else if (names.size() == 1) {
                say(L"None.");
            }
        }
    }

    void diagrams()
    {
        DiagramOptions options;
        options.english = (core::DisplayFlags() & core::kEnglishNames) != 0;
        options.scheme = ColourScheme::Print;
        const DiagramStyle style = part_.style.value_or(source_.style);
        DrawingRow row;
        for (const int varga : part_.vargas) {
            const DiagramSubject subject{chart(), computed_.settings, varga, nullptr};
            options.centre = centreLines(subject, options.english);
            Drawing drawing;
            drawing.list = layoutDiagram(subject, style, options, kDrawingSize);
            drawing.text = terminalDiagram(subject, style, options);
            row.drawings.push_back(std::move(drawing));
        }
        blocks_.emplace_back(std::move(row));
    }

    void panchanga()
    {
        if (!chart().hasMoment || !computed_.hasPlace) {
            say(L"Not computed: it needs the moment and the place.");
            return;
        }
        timing::Panchanga maker(source_.series, computed_.settings);
        blocks_.emplace_back(Paragraph{
            timing::panchangaReport(maker.dayOf(chart()), computed_.settings.twelveHourClock),
            true});
    }

    void yogas()
    {
        if (source_.yogas == nullptr) {
            say(L"No yoga file is loaded.");
            return;
        }
        yoga::Subject subject(computed_.settings, &source_.series);
        subject.setChart(chart());
        subject.setMoment(source_.moment);
        const std::vector<yoga::YogaPlace> holding = source_.yogas->holding(subject);
        Table table = {"yogas",
                       std::to_wstring(holding.size()) + L" of " +
                           std::to_wstring(source_.yogas->all().size()) + L" yogas hold",
                       {{L"Yoga"}, {L"Why", Align::Wrapped}}};
        for (const yoga::YogaPlace& place : holding) {
            const std::wstring title = core::fromFileBytes(source_.yogas->yoga(place).title);
            std::wstring why;
            for (const yoga::ConditionOutcome& outcome :
                 yoga::explainRule(*source_.yogas->rule(place), subject).conditions) {
                if (outcome.tested && outcome.truth) {
                    why += (why.empty() ? L"" : L"; ") + outcome.reason;
                }
            }
            table.add({title, std::move(why)});
        }
        blocks_.emplace_back(std::move(table));
    }

    void transits()
    {
        const double clock = chart().hasMoment ? chart().zone : 0.0;
        timing::SiderealSky sky(source_.series, computed_.settings, clock);
        timing::TransitOptions options;
        for (const int body : core::kBodies) {
            options.bodies.push_back(body);
            options.targets.push_back(body);
        }
        if (chart().computed(core::kAscendant)) {
            options.targets.insert(options.targets.begin(), core::kAscendant);
        }
        // The Moon would fill the list with an event every few hours.
        std::erase(options.bodies, int(core::kMoon));
        timing::TransitDays days;
        days.first = std::floor(source_.moment + clock / 24.0 - 0.5) + 0.5;
        days.last = days.first + part_.days - 1;
        const timing::TransitLineStyle style{timing::TransitMode::Native, options.orbDegrees,
                                             computed_.settings.twelveHourClock};
        blocks_.emplace_back(
            transitTable(timing::listTransits(sky, &chart(), options, days, clock), style));
        say(L"The Moon's transits are left out.");
    }

    void notes()
    {
        std::wstring text;
        for (const wchar_t character : chart().identity.notes) {
            if (character != L'\r') {
                text += character;
            }
        }
        say(text.empty() ? L"None." : std::move(text));
    }

    const ReportSource& source_;
    const ReportPart& part_;
    const ComputedChart& computed_;
    std::vector<Block> blocks_;
};

} // namespace

std::vector<Block> reportSection(const ReportSource& source, const ReportPart& part)
{
    return SectionMaker(source, part).make();
}

} // namespace kestrav::present
