#include "app/desktop/compare/ComparePanel.h"

#include "app/desktop/options/SettingRows.h"
#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/panels/TableActions.h"
#include "app/desktop/panels/TableView.h"
#include "app/desktop/shell/Convert.h"
#include "app/present/CompareTables.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kMostValues = 24;
constexpr int kFewestLetters = 8; ///< of the choosers; their lists show everything

// The settings that change what a chart holds and have few values.
bool changesCharts(const core::SettingInfo& setting)
{
    static const core::SettingInfo* const firstOfWindow = core::findSetting("atlasVersion");
    return &setting < firstOfWindow && !core::settingIsText(setting) &&
           setting.highest - setting.lowest < kMostValues && setting.name != "monthFirst" &&
           setting.name != "twelveHourClock";
}

QString valueText(core::Settings settings, const core::SettingInfo& setting, int value)
{
    core::storeSetting(settings, setting, value);
    return settingWords(setting, settings);
}

} // namespace

ComparePanel::ComparePanel(Workspace& workspace, present::Panel panel, QWidget* parent)
    : PanelWidget(workspace, std::move(panel), parent), tabs_(new QTabWidget(this)),
      hint_(new QLabel(this)), choose_(new QPushButton(tr("Choose &Second Chart..."), this)),
      firstInSecond_(new TableView(this)), secondInFirst_(new TableView(this)),
      differences_(new TableView(this))
{
    setObjectName(QStringLiteral("ComparePanel"));
    tabs_->setObjectName(QStringLiteral("CompareTabs"));
    tabs_->setDocumentMode(true);
    firstInSecond_->setObjectName(QStringLiteral("FirstInSecondTable"));
    secondInFirst_->setObjectName(QStringLiteral("SecondInFirstTable"));
    differences_->setObjectName(QStringLiteral("DifferencesTable"));
    hint_->setObjectName(QStringLiteral("HintLabel"));
    hint_->setWordWrap(true);
    hint_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    choose_->setObjectName(QStringLiteral("ChooseSecondButton"));
    tabs_->addTab(firstInSecond_, QString());
    tabs_->addTab(secondInFirst_, QString());
    tabs_->addTab(makeSettingsPage(), tr("Other settings"));
    const int gap = fontMetrics().height() / 3;
    auto* const bar = new FlowLayout(gap);
    bar->setContentsMargins(2 * gap, gap, 2 * gap, gap);
    bar->addWidget(hint_);
    bar->addWidget(choose_);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->setSpacing(0);
    box->addLayout(bar);
    box->addWidget(tabs_, 1);
    setFocusProxy(tabs_);
    for (TableView* const view : {firstInSecond_, secondInFirst_, differences_}) {
        connect(view, &TableView::linkChosen, this, &ComparePanel::choose);
        connect(view, &TableView::linkActivated, this, &ComparePanel::follow);
    }
    connect(choose_, &QPushButton::clicked, this, [this] {
        if (auto* const action = window()->findChild<QAction*>(QStringLiteral("CompareAction"))) {
            action->trigger();
        }
    });
    actions_ = tableActions(this, workspace, [this] { return currentView(); });
    dependOn(OnChart | OnSecond | OnMoment);
}

QWidget* ComparePanel::makeSettingsPage()
{
    auto* const page = new QWidget(this);
    setting_ = new QComboBox(page);
    setting_->setObjectName(QStringLiteral("SettingComboBox"));
    value_ = new QComboBox(page);
    value_->setObjectName(QStringLiteral("ValueComboBox"));
    value_->setAccessibleName(tr("Value of the setting"));
    for (const core::SettingInfo& setting : core::settingsTable()) {
        if (changesCharts(setting)) {
            const QString meaning = toQt(std::string(setting.meaning));
            setting_->addItem(settingLabel(settingRow(setting.name)),
                              toQt(std::string(setting.name)));
            setting_->setItemData(setting_->count() - 1, meaning, Qt::ToolTipRole);
        }
    }
    setting_->setCurrentIndex(setting_->findData(QStringLiteral("ayanamsaRow")));
    for (QComboBox* const chooser : {setting_, value_}) {
        chooser->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        chooser->setMinimumContentsLength(kFewestLetters);
        chooser->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    auto* const label = new QLabel(tr("&With the setting:"), page);
    label->setBuddy(setting_);
    const int gap = fontMetrics().height() / 3;
    auto* const bar = new FlowLayout(gap);
    bar->setContentsMargins(2 * gap, 0, 2 * gap, 0);
    bar->addWidget(label);
    bar->addWidget(setting_);
    bar->addWidget(value_);
    auto* const box = new QVBoxLayout(page);
    box->setContentsMargins(0, gap, 0, 0);
    box->addLayout(bar);
    box->addWidget(differences_, 1);
    connect(setting_, &QComboBox::activated, this, &ComparePanel::SettingComboBoxActivated);
    connect(value_, &QComboBox::activated, this, &ComparePanel::showDifferences);
    SettingComboBoxActivated();
    return page;
}

void ComparePanel::SettingComboBoxActivated()
{
    const core::Settings& settings = workspace().settings();
    const core::SettingInfo* const setting =
        core::findSetting(toUtf8(setting_->currentData().toString()));
    const int now = int(core::settingValue(settings, *setting));
    value_->clear();
    for (int value = int(setting->lowest); value <= int(setting->highest); ++value) {
        if (value != now) {
            value_->addItem(valueText(settings, *setting, value), value);
        }
    }
    markDue();
}

QString ComparePanel::title() const
{
    return tr("Comparison");
}

QList<QAction*> ComparePanel::panelActions()
{
    return actions_;
}

TableView* ComparePanel::currentView() const
{
    const int index = tabs_->currentIndex();
    return index == 0 ? firstInSecond_ : index == 1 ? secondInFirst_ : differences_;
}

std::vector<present::Block> ComparePanel::blocks()
{
    refreshNow();
    return {currentView()->table()};
}

void ComparePanel::refresh()
{
    const ChartPointer first = chart();
    const ChartPointer& second = workspace().secondChart();
    const QString firstName = first ? toQt(first->chart.name) : tr("first chart");
    const QString secondName = second ? toQt(second->chart.name) : tr("second chart");
    tabs_->setTabText(0, tr("%1 in the houses of %2").arg(firstName, secondName));
    tabs_->setTabText(1, tr("%1 in the houses of %2").arg(secondName, firstName));
    const bool appears = second != nullptr && !tabs_->isTabVisible(0);
    tabs_->setTabVisible(0, second != nullptr);
    tabs_->setTabVisible(1, second != nullptr);
    if (appears) {
        tabs_->setCurrentIndex(0);
    }
    hint_->setText(second ? tr("%1 and %2").arg(firstName, secondName)
                          : tr("No second chart is open."));
    if (first && second) {
        firstInSecond_->setTable(present::positionsInChart(first->chart, second->chart));
        secondInFirst_->setTable(present::positionsInChart(second->chart, first->chart));
    }
    showDifferences();
}

void ComparePanel::showDifferences()
{
    const ChartPointer first = chart();
    const core::SettingInfo* const setting =
        core::findSetting(toUtf8(setting_->currentData().toString()));
    if (!first || value_->count() == 0) {
        differences_->setTable({});
        return;
    }
    present::ComputedChart other;
    other.chart = workspace().record();
    other.chart.place = first->chart.place;
    other.hasPlace = first->hasPlace;
    other.settings = first->settings;
    core::storeSetting(other.settings, *setting, value_->currentData().toInt());
    astro::EphemerisContext context(workspace().data()->series);
    present::computeFromBirthData(other, context);
    differences_->setTable(
        present::differencesTable(*first, other, workspace().data()->series, workspace().moment()));
}

} // namespace kestrav::desktop
