#include "app/desktop/shell/StatusLine.h"

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/shell/ChangedPointsText.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/ChangedPoints.h"
#include "app/present/Clock.h"
#include "app/present/DashaTables.h"
#include "app/present/TextValues.h"
#include "astro/Ayanamsa.h"
#include "core/TextForms.h"
#include "data/ResearchDatabase.h"
#include "timing/DashaQuery.h"

#include <QAction>
#include <QPainter>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace kestrav::desktop
{

namespace
{

constexpr int kDashaLevel = 3;
constexpr int kLettersKept = 6;

QString clock(double hours, const core::Settings& settings)
{
    return toQt(
        present::withoutEndBlanks(core::FormatClock(hours, settings.twelveHourClock, false)));
}

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::sizeHint();
    return {std::min(whole.width(), fontMetrics().averageCharWidth() * kLettersKept),
            whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(Qt::AlignLeft | Qt::AlignVCenter),
                          palette(), isEnabled(), shown, foregroundRole());
}

StatusLine::StatusLine(TKSVform1& window)
    : QObject(&window), window_(window), bar_(window.statusBar()),
      name_(addLabel("StatusName", tr("Shown chart"))),
      local_(addLabel("StatusLocalTime", tr("Local date and time, and the zone"))),
      universal_(addLabel("StatusUniversalTime", tr("Universal Time"))),
      ayanamsa_(addLabel("StatusAyanamsa", tr("Ayanamsa of the chart"))),
      sunrise_(addLabel("StatusSunrise", tr("Sunrise of the day of the chart"))),
      dasha_(addLabel("StatusDasha", tr("Dasha that runs at the shared date"))),
      changed_(addLamp("ChangedLamp", tr("Points with a position of yours; click to change them"))),
      unsaved_(addLamp("UnsavedLamp", tr("The database has changes that are not saved; click to "
                                         "save them"))),
      research_(addLamp("ResearchLamp", tr("The research database does not belong to these charts "
                                           "and options any more; click to refresh it")))
{
    unsaved_->setText(tr("\u25CF unsaved"));
    research_->setText(tr("\u25CF research stale"));
    Workspace& workspace = window_.workspace();
    dashaDue_.setSingleShot(true);
    researchDue_.setSingleShot(true);
    connect(&dashaDue_, &QTimer::timeout, this, &StatusLine::showDasha);
    connect(&researchDue_, &QTimer::timeout, this, &StatusLine::showResearch);
    connect(&workspace, &Workspace::chartChanged, this, &StatusLine::showChart);
    connect(&workspace, &Workspace::momentChanged, this, [this] { dashaDue_.start(0); });
    connect(&workspace, &Workspace::settingsChanged, this, [this] {
        if (!window_.workspace().chart()) {
            showChart();
        }
        researchDue_.start(0);
    });
    OpenDatabase& database = workspace.database();
    connect(&database, &OpenDatabase::modifiedChanged, this, &StatusLine::showUnsaved);
    connect(&database, &OpenDatabase::reset, this, &StatusLine::showUnsaved);
    const auto lampCommand = [this](QToolButton* lamp, const char* name) {
        connect(lamp, &QToolButton::clicked, this, [this, name] {
            if (auto* const action = window_.findChild<QAction*>(QLatin1String(name))) {
                action->trigger();
            }
        });
    };
    lampCommand(changed_, "ChangePointAction");
    lampCommand(unsaved_, "SaveAction");
    lampCommand(research_, "RefreshResearchAction");
    showChart();
    showUnsaved();
}

ElidedLabel* StatusLine::addLabel(const char* name, const QString& meaning)
{
    auto* const label = new ElidedLabel(bar_);
    label->setObjectName(QLatin1String(name));
    label->setAccessibleName(meaning);
    label->setToolTip(meaning);
    label->setContentsMargins(label->fontMetrics().averageCharWidth(), 0,
                              label->fontMetrics().averageCharWidth(), 0);
    bar_->addPermanentWidget(label);
    return label;
}

QToolButton* StatusLine::addLamp(const char* name, const QString& tip)
{
    auto* const lamp = new QToolButton(bar_);
    lamp->setObjectName(QLatin1String(name));
    lamp->setToolTip(tip);
    lamp->setAccessibleName(tip);
    lamp->setAutoRaise(true);
    lamp->setFocusPolicy(Qt::TabFocus);
    lamp->hide();
    bar_->addPermanentWidget(lamp);
    return lamp;
}

void StatusLine::showChart()
{
    const ChartPointer& shown = window_.workspace().chart();
    if (!shown) {
        for (ElidedLabel* const label : {name_, local_, universal_, ayanamsa_, sunrise_}) {
            label->clear();
        }
    } else {
        const core::Chart& chart = shown->chart;
        name_->setText(toQt(chart.name));
        local_->setText(QStringLiteral("%1  %2  %3")
                            .arg(toQt(present::dateText(chart.time)),
                                 clock(chart.time.localTime, shown->settings),
                                 toQt(present::offsetText(chart.zone + chart.daylightSaving))));
        const double universal = std::fmod(chart.time.utHours + 48.0, 24.0);
        universal_->setText(QStringLiteral("UT ") + clock(universal, shown->settings));
        ayanamsa_->setText(toQt(astro::selectedRow(shown->settings).nameText()) + QLatin1Char(' ') +
                           (chart.ayanamsa < 0.0 ? QStringLiteral("-") : QString()) +
                           toQt(core::FormatDMS(std::abs(chart.ayanamsa), 1)).simplified());
        sunrise_->setText(tr("Sunrise %1")
                              .arg(shown->hasPlace && chart.sunrise
                                       ? clock(*chart.sunrise, shown->settings)
                                       : QStringLiteral("--")));
    }
    showChanged();
    dashaDue_.start(0);
}

void StatusLine::showDasha()
{
    const Workspace& workspace = window_.workspace();
    const ChartPointer& shown = workspace.chart();
    dasha_->clear();
    if (!shown || !shown->chart.hasMoment) {
        return;
    }
    const timing::DashaOptions options = present::dashaOptions(*shown);
    const auto dasha =
        timing::dashaOf(shown->chart, shown->settings, options, workspace.data()->series);
    if (!dasha) {
        return;
    }
    const double age = dasha.value().calendar.ageAt(workspace.moment());
    const auto period = timing::periodAtAge(dasha.value(), age, kDashaLevel);
    if (period) {
        dasha_->setText(
            toQt(present::dashaPeriodName(present::dashaLordKind(options.system), *period)));
    }
    dasha_->setToolTip(tr("%1 dasha that runs at the shared date")
                           .arg(toQt(present::dashaSystemName(options.system))));
}

void StatusLine::showChanged()
{
    const QString text = changedPointsText(window_.workspace().changedPoints());
    changed_->setText(QStringLiteral("\u25CF ") + text);
    changed_->setVisible(!text.isEmpty());
}

void StatusLine::showUnsaved()
{
    unsaved_->setVisible(window_.workspace().database().modified());
    researchDue_.start(0);
}

void StatusLine::showResearch()
{
    OpenDatabase& database = window_.workspace().database();
    const auto state = database.path().empty()
                           ? data::ResearchState::Missing
                           : data::researchState(database.charts(), window_.workspace().settings());
    const bool stale = state != data::ResearchState::Fresh &&
                       state != data::ResearchState::Missing &&
                       state != data::ResearchState::Foreign;
    research_->setVisible(stale);
    if (stale) {
        research_->setToolTip(toQt(data::researchStateText(state)));
    }
}

} // namespace kestrav::desktop
