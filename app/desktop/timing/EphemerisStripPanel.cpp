#include "app/desktop/timing/EphemerisStripPanel.h"

#include "app/desktop/shell/StateFile.h"
#include "app/desktop/timing/MomentText.h"
#include "app/desktop/timing/StripView.h"
#include "app/present/EphemerisStrip.h"
#include "core/Points.h"
#include "timing/Ephemeris.h"
#include "timing/TransitSearch.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::array<int, 5> kSpans = {31, 92, 366, 731, 3653};
constexpr int kUsualSpan = 2;
constexpr char kSpanKey[] = "ephemerisStrip/span";
constexpr char kNatalKey[] = "ephemerisStrip/natal";
constexpr double kPrintedWidth = 700.0;
constexpr double kPrintedHeight = 400.0;
constexpr double kDaysOfMoonWay = 100.0; ///< in longer strips the Moon would only hatch

} // namespace

struct EphemerisStripPanel::Request
{
    DataPointer data;
    core::Settings settings;
    ChartPointer natal; ///< whose positions are shown, too; null for none
    double clock = 0.0;
    double firstDay = 0.0;
    int days = 0;

    bool operator==(const Request&) const = default;

    [[nodiscard]] StripDrawing make(const present::StripOptions& options,
                                    std::optional<double> cursor) const
    {
        timing::SiderealSky sky(data->series, settings, clock);
        present::EphemerisStripSubject subject;
        subject.from = firstDay - clock / 24.0;
        subject.to = subject.from + days;
        subject.clockOffset = clock;
        subject.bodies.assign(core::kBodies.begin(), core::kBodies.end());
        if (days > kDaysOfMoonWay) {
            std::erase(subject.bodies, int(core::kMoon));
        }
        subject.natal = natal ? &natal->chart : nullptr;
        subject.cursor = cursor;
        present::EphemerisStrip strip = present::ephemerisStrip(sky, subject, options);
        StripDrawing drawing;
        drawing.axis = strip.axis;
        drawing.bottom = strip.bottom;
        for (const present::Region& region : strip.list.regions) {
            drawing.links.push_back({present::Subject::Point, region.index});
        }
        for (int day = 0; day <= days; ++day) {
            drawing.stops.push_back(subject.from + day);
        }
        drawing.list = std::move(strip.list);
        return drawing;
    }
};

EphemerisStripPanel::EphemerisStripPanel(Workspace& workspace, present::Panel panel,
                                         QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), span_(new QComboBox(this)),
      natal_(new QCheckBox(tr("Positions of the chart"), this)), view_(new StripView(this))
{
    setObjectName(QStringLiteral("EphemerisStripPanel"));
    span_->setObjectName(QStringLiteral("SpanComboBox"));
    span_->setAccessibleName(tr("Length of the strip"));
    span_->setToolTip(tr("Length of the strip"));
    span_->addItems({tr("1 month"), tr("3 months"), tr("1 year"), tr("2 years"), tr("10 years")});
    const int kept = stateOfWindow().value(kSpanKey, kUsualSpan).toInt();
    span_->setCurrentIndex(std::clamp(kept, 0, int(kSpans.size()) - 1));
    natal_->setObjectName(QStringLiteral("NatalCheckBox"));
    natal_->setChecked(stateOfWindow().value(kNatalKey, true).toBool());
    connect(span_, &QComboBox::activated, this, &EphemerisStripPanel::ChoiceChange);
    connect(natal_, &QCheckBox::clicked, this, &EphemerisStripPanel::ChoiceChange);
    auto* const bar = new QHBoxLayout;
    const int gap = fontMetrics().height() / 3;
    bar->setContentsMargins(gap, gap, gap, gap);
    bar->setSpacing(2 * gap);
    bar->addWidget(span_);
    bar->addWidget(natal_);
    bar->addStretch(1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(view_, 1);
    setFocusProxy(view_);
    dependOn(OnChart | OnMoment);
    connect(view_, &StripView::layoutWanted, this, &EphemerisStripPanel::draw);
    connect(view_, &StripView::linkChosen, this, &EphemerisStripPanel::choose);
    connect(view_, &StripView::momentChosen, this,
            [this](double moment) { this->workspace().setMoment(moment); });
}

QString EphemerisStripPanel::title() const
{
    return tr("Ephemeris strip");
}

EphemerisStripPanel::Request EphemerisStripPanel::request()
{
    Request request;
    const ChartPointer shown = chart();
    const double moment = workspace().moment();
    request.data = workspace().data();
    request.settings = shown ? shown->settings : workspace().settings();
    request.natal = natal_->isChecked() ? shown : nullptr;
    request.clock =
        shown && shown->chart.hasMoment ? shown->chart.zone : readingOf(workspace(), moment).offset;
    page_.turnTo(timing::civilDayOf(moment, request.clock),
                 kSpans[std::size_t(span_->currentIndex())]);
    request.firstDay = *page_.first;
    request.days = page_.days;
    return request;
}

void EphemerisStripPanel::refresh()
{
    const Request wanted = request();
    view_->setSharedMoment(workspace().moment());
    if (made_ && *made_ == wanted) {
        return;
    }
    if (!timing::isInTables(timing::recordOfDay(wanted.firstDay)) ||
        !timing::isInTables(timing::recordOfDay(wanted.firstDay + wanted.days))) {
        work_.cancel();
        made_.reset();
        view_->setNote(tr("The days lie outside the years of the ephemeris."));
        return;
    }
    made_ = std::make_shared<const Request>(wanted);
    draw();
}

void EphemerisStripPanel::draw()
{
    if (made_) {
        work_.start([request = made_, options = view_->options()](
                        const WorkHandle& /*handle*/) { return request->make(options, {}); },
                    [this](StripDrawing drawing) { view_->setDrawing(std::move(drawing)); });
    }
}

std::vector<present::Block> EphemerisStripPanel::blocks()
{
    refreshNow();
    if (!made_) {
        return {};
    }
    present::StripOptions options;
    options.width = kPrintedWidth;
    options.height = kPrintedHeight;
    options.scheme = present::ColourScheme::Print;
    present::Drawing drawing;
    drawing.list = made_->make(options, workspace().moment()).list;
    drawing.text = drawing.list.description;
    return {present::DrawingRow{{std::move(drawing)}}};
}

void EphemerisStripPanel::ChoiceChange()
{
    stateOfWindow().setValue(kSpanKey, span_->currentIndex());
    stateOfWindow().setValue(kNatalKey, natal_->isChecked());
    markDue();
}

} // namespace kestrav::desktop
