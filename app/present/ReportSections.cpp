#include "app/present/ReportSections.h"

#include "analysis/Ashtakavarga.h"
#include "app/present/Diagram.h"
#include "app/present/PanchangaTables.h"
#include "app/present/TablesOfDays.h"
#include "app/present/TerminalDrawing.h"
#include "app/present/VargaTables.h"
#include "core/DisplayFlags.h"
#include "core/FileText.h"

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
            tables({"yogas"});
            break;
        case ReportSection::Transits:
            heading(L"Transits");
            tables({"transits"});
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
        heading_ = text;
        blocks_.emplace_back(Heading{std::move(text)});
    }

    void say(std::wstring text)
    {
        blocks_.emplace_back(Paragraph{std::move(text), false});
    }

    [[nodiscard]] TableSource tableSource() const
    {
        TableSource source{computed_, source_.series};
        source.varga = part_.vargas.front();
        source.levels = part_.levels;
        source.lines = part_.lines;
        source.moment = source_.moment;
        source.days = part_.days;
        source.yogas = source_.yogas;
        source.nameLetter = chart().identity.sound.empty() ? 0 : chart().identity.soundGroup;
        return source;
    }

    // A table that stands alone says when it is empty; among others it is left out.
    void add(Table table, bool alone)
    {
        if (table.title == heading_) {
            table.title.clear();
        }
        if (!table.rows.empty() || !table.notes.empty()) {
            blocks_.emplace_back(std::move(table));
        } else if (alone) {
            say(L"None.");
        }
    }

    void tables(std::initializer_list<std::string_view> names)
    {
        const TableSource source = tableSource();
        for (const std::string_view name : names) {
            core::Result<Table> table = findTable(name)->make(source);
            if (!table) {
                say(L"Not computed: " + core::fromFileBytes(table.error().text()));
            } else {
                add(std::move(table.value()), names.size() == 1);
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
            // The head of the report names the chart.
            drawing.list.title = vargaHeading(varga);
            row.drawings.push_back(std::move(drawing));
        }
        blocks_.emplace_back(std::move(row));
    }

    void panchanga()
    {
        const core::Result<timing::PanchangaDay> day = panchangaDay(tableSource());
        if (!day) {
            say(L"Not computed: " + core::fromFileBytes(day.error().text()));
            return;
        }
        for (const auto make : {panchangaTable, tithisTable, nakshatrasTable, nityaYogasTable,
                                karanasTable, kalamsTable, eighthsTable, horasTable}) {
            add(make(day.value(), computed_.settings.twelveHourClock), false);
        }
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
    std::wstring heading_;
};

} // namespace

std::vector<Block> reportSection(const ReportSource& source, const ReportPart& part)
{
    return SectionMaker(source, part).make();
}

} // namespace kestrav::present
