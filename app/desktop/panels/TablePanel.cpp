#include "app/desktop/panels/TablePanel.h"

#include "app/desktop/panels/ShownColumns.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/TableCatalogue.h"
#include "core/FileText.h"

#include <QAction>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace kestrav::desktop
{

namespace
{

// Tables that are made in less than the time in which a screen is drawn. The others search the sky.
bool madeAtOnce(std::string_view id)
{
    static constexpr std::array<std::string_view, 13> kSlow = {
        "varga-windows",    "dashas",    "yogas",           "transits",
        "transit-kakshyas", "sade-sati", "ephemeris",       "ephemeris-events",
        "moon-phases",      "eclipses",  "eclipsed-points", "conditional-dashas",
        "panchanga"};
    return std::find(kSlow.begin(), kSlow.end(), id) == kSlow.end();
}

bool belongsToVarga(std::string_view id)
{
    static constexpr std::array<std::string_view, 5> kOfVarga = {"varga", "ashtakavarga", "trikona",
                                                                 "ekadhipatya", "pinda"};
    return std::find(kOfVarga.begin(), kOfVarga.end(), id) != kOfVarga.end();
}

bool dependsOnMoment(std::string_view id)
{
    static constexpr std::array<std::string_view, 10> kOfMoment = {
        "running-dashas",   "transits",    "transit-kakshyas", "sade-sati",       "ephemeris",
        "ephemeris-events", "moon-phases", "eclipses",         "eclipsed-points", "yogas"};
    return std::find(kOfMoment.begin(), kOfMoment.end(), id) != kOfMoment.end();
}

bool comparesCharts(std::string_view id)
{
    return id == "kutas" || id == "doshas" || id == "compare" || id == "compare-back";
}

// Everything that a table is made from, held together for a worker.
struct TableRequest
{
    std::string id;
    ChartPointer chart;
    ChartPointer second;
    DataPointer data;
    YogasPointer yogas;
    int varga = 0;
    double moment = 0.0;

    [[nodiscard]] core::Result<present::Table> make() const
    {
        present::TableSource source{*chart, data->series};
        const core::Chart& shown = chart->chart;
        source.varga = varga;
        source.nameLetter = shown.identity.sound.empty() ? 0 : shown.identity.soundGroup;
        source.levels = chart->settings.dashaLevels;
        source.moment = moment;
        source.yogas = yogas->files().empty() ? nullptr : yogas.get();
        if (second) {
            const bool firstIsBride = shown.identity.sex == L"F";
            source.bride = firstIsBride ? &shown : &second->chart;
            source.groom = firstIsBride ? &second->chart : &shown;
            source.matchingTables = &data->matching;
        }
        return present::findTable(id)->make(source);
    }
};

} // namespace

TablePanel::TablePanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), view_(new TableView(this)),
      note_(new QLabel(this))
{
    setObjectName(QStringLiteral("TablePanel-") + toQt(panel_.content));
    view_->setObjectName(QStringLiteral("TableView"));
    note_->setWordWrap(true);
    note_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    note_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    note_->setMargin(note_->fontMetrics().height() / 3);
    note_->hide();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(note_);
    layout->addWidget(view_, 1);
    setFocusProxy(view_);
    unsigned dependences = OnChart;
    dependences |= dependsOnMoment(panel_.content) ? OnMoment : 0U;
    dependences |= comparesCharts(panel_.content) ? OnSecond : 0U;
    dependences |= panel_.content == "yogas" ? OnYogas : 0U;
    dependOn(dependences);
    connect(view_, &TableView::linkChosen, this, &TablePanel::choose);
    connect(view_, &TableView::linkActivated, this, &TablePanel::follow);

    actions_ = tableActions(this, workspace, view_);
    auto* const columns = new QAction(tr("&Columns..."), this);
    columns->setObjectName(QStringLiteral("ColumnsAction"));
    connect(columns, &QAction::triggered, this, &TablePanel::chooseShownColumns);
    actions_ += columns;
}

QString TablePanel::title() const
{
    if (!title_.isEmpty()) {
        return title_;
    }
    // The meaning of a list in a few words: what comes behind "with" says how it is made.
    QString meaning = toQt(std::wstring(present::findTable(panel_.content)->meaning));
    meaning = meaning.section(QLatin1String(" with "), 0, 0).section(QLatin1Char(';'), 0, 0);
    if (meaning.endsWith(QLatin1Char(','))) {
        meaning.chop(1);
    }
    return meaning.left(1).toUpper() + meaning.mid(1);
}

QList<QAction*> TablePanel::panelActions()
{
    return actions_;
}

std::vector<present::Block> TablePanel::blocks()
{
    refreshNow();
    if (view_->table().columns.empty()) {
        return {present::Paragraph{toWide(note_->text())}};
    }
    return {view_->shownTable()};
}

bool TablePanel::hasVarga() const
{
    return belongsToVarga(panel_.content);
}

void TablePanel::refresh()
{
    const ChartPointer shown = chart();
    if (!shown) {
        work_.cancel();
        show(core::Error{panel_.chart == present::PanelChart::Second ? "No second chart is open."
                                                                     : "No chart is open."});
        return;
    }
    TableRequest request{
        panel_.content,      shown,        workspace().secondChart(), workspace().data(),
        workspace().yogas(), panel_.varga, workspace().moment()};
    if (madeAtOnce(request.id)) {
        show(request.make());
        return;
    }
    work_.start([request](const WorkHandle& /*handle*/) { return request.make(); },
                [this](core::Result<present::Table> made) { show(std::move(made)); });
}

void TablePanel::show(core::Result<present::Table> made)
{
    QString note;
    if (!made) {
        note = tr("Not computed: %1").arg(toQt(made.error().text()));
        whole_ = {};
        view_->setTable({});
        if (!std::exchange(title_, QString()).isEmpty()) {
            emit captionChanged();
        }
    } else {
        QStringList notes;
        for (const std::wstring& line : made.value().notes) {
            notes += toQt(line);
        }
        note = notes.join(QLatin1Char('\n'));
        const QString newTitle = toQt(made.value().title);
        if (newTitle != title_) {
            title_ = newTitle;
            emit captionChanged();
        }
        whole_ = std::move(made.value());
        view_->setTable(withColumns(whole_, shownColumns(whole_.id, whole_.columns.size())));
    }
    note_->setText(note);
    note_->setVisible(!note.isEmpty());
    view_->setVisible(made.ok() && !whole_.explainsItsEmptiness());
    view_->setAccessibleName(title());
}

void TablePanel::chooseShownColumns()
{
    if (!whole_.columns.empty() && chooseColumns(whole_, this)) {
        // The column by which the rows are sorted may be another one now, or none.
        view_->sortByColumn(-1, Qt::AscendingOrder);
        view_->setTable(withColumns(whole_, shownColumns(whole_.id, whole_.columns.size())));
    }
}

} // namespace kestrav::desktop
