#include "app/desktop/options/TOptionWizardForm.h"

#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/options/ChangeOptions.h"
#include "app/desktop/options/OptionPreview.h"
#include "app/desktop/options/SettingEditor.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/present/BirthRecord.h"
#include "app/present/Clock.h"
#include "app/present/TextValues.h"
#include "astro/Ayanamsa.h"
#include "core/Files.h"
#include "core/TextForms.h"

#include <QAction>
#include <QButtonGroup>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <array>
#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr std::array<std::string_view, 6> kNowSettings = {
    "nowCity", "nowCountry", "nowLongitude", "nowLatitude", "nowZone", "nowZoneName"};

enum FirstDatabase : int
{
    kOwnCharts,
    kOpenOther,
    kImport,
    kKeep,
};

} // namespace

TOptionWizardForm::TOptionWizardForm(TKSVform1& window, QWidget* parent)
    : QDialog(parent), window_(window), settings_(window.workspace().settings()),
      title_(new QLabel(this)), pages_(new QStackedWidget(this)),
      preview_(new OptionPreview(window.workspace(), this)),
      default_(new QPushButton(tr("Use &Default"), this)),
      back_(new QPushButton(tr("&Back"), this)), next_(new QPushButton(this))
{
    setWindowTitle(tr("Option Wizard"));
    setObjectName(QStringLiteral("TOptionWizardForm"));
    title_->setObjectName(QStringLiteral("StepLabel"));
    QFont large = title_->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.2);
    title_->setFont(large);
    pages_->setObjectName(QStringLiteral("Steps"));
    addNames();
    addDiagram();
    addSky();
    addDates();
    addPlaces();
    addDatabase();

    default_->setObjectName(QStringLiteral("DefaultButton"));
    default_->setToolTip(tr("Gives the choices of this step their defaults"));
    back_->setObjectName(QStringLiteral("BackButton"));
    next_->setObjectName(QStringLiteral("NextButton"));
    auto* const cancel = new QPushButton(tr("Cancel"), this);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    for (QPushButton* const button : {default_, back_, cancel}) {
        button->setAutoDefault(false);
    }
    next_->setDefault(true);
    connect(default_, &QPushButton::clicked, this, &TOptionWizardForm::DefaultButtonClick);
    connect(back_, &QPushButton::clicked, this, &TOptionWizardForm::BackButtonClick);
    connect(next_, &QPushButton::clicked, this, &TOptionWizardForm::NextButtonClick);
    connect(cancel, &QPushButton::clicked, this, &TOptionWizardForm::reject);

    auto* const left = new QVBoxLayout;
    left->addWidget(title_);
    left->addWidget(pages_, 1);
    auto* const middle = new QHBoxLayout;
    middle->addLayout(left, 3);
    middle->addWidget(preview_, 2);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(default_);
    buttons->addStretch(1);
    buttons->addWidget(back_);
    buttons->addWidget(next_);
    buttons->addWidget(cancel);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(middle, 1);
    box->addLayout(buttons);
    showStep(0);
    resize(sizeHint().expandedTo(QSize(fontMetrics().height() * 48, fontMetrics().height() * 26)));
}

QFormLayout* TOptionWizardForm::addStep(const QString& title, const QString& explanation)
{
    auto* const page = new QWidget(this);
    auto* const form = new QFormLayout(page);
    form->setContentsMargins({});
    auto* const text = new QLabel(explanation, page);
    text->setWordWrap(true);
    form->addRow(text);
    pages_->addWidget(page);
    steps_.push_back({title, {}});
    return form;
}

void TOptionWizardForm::add(QFormLayout* form, std::string_view setting, const QString& label)
{
    SettingEditor* const editor = addSettingRow(form, setting, label);
    editor->show(settings_);
    steps_.back().editors.push_back(editor);
    connect(editor, &SettingEditor::edited, this, [this, editor] {
        editor->store(settings_);
        showChoices();
    });
}

void TOptionWizardForm::addNames()
{
    add(addStep(tr("Names"), tr("English words such as Sun and Leo, or Sanskrit ones such as "
                                "Surya and Simha; letters or symbols in diagrams.")),
        "displayFlags", tr("Na&mes"));
}

void TOptionWizardForm::addDiagram()
{
    QFormLayout* const form =
        addStep(tr("Diagrams"), tr("The style in which charts are drawn, and what they show."));
    add(form, "diagramStyle", tr("&Style"));
    add(form, "diagramDegrees", tr("D&egrees"));
    add(form, "diagramLabels", tr("N&umbers of the cells"));
    add(form, "diagramMarks", tr("&Marks of retrograde, combust and exalted"));
    add(form, "diagramArudhas", tr("&Arudha padas"));
    add(form, "diagramUpagrahas", tr("U&pagrahas"));
    add(form, "diagramLagnas", tr("Special &lagnas"));
    add(form, "diagramOuterPlanets", tr("&Outer planets"));
}

void TOptionWizardForm::addSky()
{
    QFormLayout* const form =
        addStep(tr("Ayanamsa and houses"),
                tr("Where the zodiac begins, and how the twelve houses are found."));
    add(form, "ayanamsaRow", tr("&Ayanamsa"));
    today_ = new QLabel(this);
    today_->setObjectName(QStringLiteral("TodayLabel"));
    form->addRow(tr("Degrees of today:"), today_);
    add(form, "houseSystem", tr("&House system"));
}

void TOptionWizardForm::addDates()
{
    QFormLayout* const form =
        addStep(tr("Dates and clocks"), tr("How dates and clock times are written and typed."));
    add(form, "monthFirst", tr("&Month before day"));
    add(form, "twelveHourClock", tr("&Twelve-hour clock"));
    example_ = new QLabel(this);
    example_->setObjectName(QStringLiteral("ExampleLabel"));
    form->addRow(tr("Now:"), example_);
}

void TOptionWizardForm::addPlaces()
{
    QFormLayout* const form = addStep(
        tr("Places"), tr("The place of the chart of the moment and of transits, and an outside "
                         "atlas if you have one. Without it the built-in list of places is used."));
    nowLocation_ = new QLabel(this);
    nowLocation_->setObjectName(QStringLiteral("NowLocationLabel"));
    nowLocation_->setWordWrap(true);
    form->addRow(tr("Now location:"), nowLocation_);
    auto* const choose = new QPushButton(tr("&Choose Now Location..."), this);
    choose->setObjectName(QStringLiteral("NowLocationButton"));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &TOptionWizardForm::chooseNowLocation);
    form->addRow(QString(), choose);
    add(form, "atlasPath", tr("&Folder of the atlas"));
    auto* const none = new QPushButton(tr("N&o Atlas"), this);
    none->setObjectName(QStringLiteral("NoAtlasButton"));
    none->setAutoDefault(false);
    connect(none, &QPushButton::clicked, this, [this] {
        settings_.atlasPath.clear();
        showChoices();
    });
    form->addRow(QString(), none);
}

void TOptionWizardForm::addDatabase()
{
    QFormLayout* const form = addStep(tr("Charts"), tr("The file in which your charts are kept."));
    database_ = new QButtonGroup(this);
    const auto choice = [&](int id, const char* name, const QString& text) {
        auto* const button = new QRadioButton(text, this);
        button->setObjectName(QLatin1String(name));
        database_->addButton(button, id);
        form->addRow(button);
    };
    choice(kOwnCharts, "OwnChartsButton", tr("&My Charts.ksc in Documents/Kestrav"));
    choice(kOpenOther, "OpenButton", tr("&Open another file"));
    choice(kImport, "ImportButton", tr("&Import the charts of another program"));
    choice(kKeep, "KeepButton", tr("&Keep the charts that are open"));
    database_->button(settings_.wizardDone ? kKeep : kOwnCharts)->setChecked(true);
}

void TOptionWizardForm::showStep(int step)
{
    const int count = int(steps_.size());
    pages_->setCurrentIndex(step);
    title_->setText(
        tr("Step %1 of %2: %3").arg(step + 1).arg(count).arg(steps_[std::size_t(step)].title));
    back_->setEnabled(step > 0);
    next_->setText(step + 1 < count ? tr("&Next") : tr("&Finish"));
    showChoices();
    if (const Step& shown = steps_[std::size_t(step)]; !shown.editors.empty()) {
        shown.editors.front()->control()->setFocus();
    } else {
        database_->checkedButton()->setFocus();
    }
}

void TOptionWizardForm::showChoices()
{
    for (SettingEditor* const editor : steps_[std::size_t(pages_->currentIndex())].editors) {
        core::Settings shown = settings_;
        editor->store(shown);
        if (!(shown == settings_)) {
            editor->show(settings_);
        }
    }
    const core::Chart now = [this] {
        core::Chart chart = window_.workspace().nowRecord();
        // Before a place is chosen the record has that of the open chart, and its clock.
        if (settings_.nowCity.empty()) {
            const double seconds = unixOfJulianDay(Workspace::now());
            const present::SystemZone zone = present::systemZoneAt(seconds);
            chart.zone = zone.zone;
            chart.daylightSaving = zone.daylightSaving;
            present::setLocalMoment(chart, seconds);
        }
        chart.time.utHours = chart.time.localTime - chart.zone - chart.daylightSaving;
        return chart;
    }();
    const core::AyanamsaRow& row = astro::selectedRow(settings_);
    const double today = astro::ayanamsaOfRow(row, astro::DecimalYear(now.time));
    today_->setText(astro::isTropical(row)
                        ? tr("none: tropical")
                        : toQt(core::FormatDMS(std::abs(today), 1)).simplified());
    const int first = settings_.monthFirst ? now.time.month : now.time.day;
    const int second = settings_.monthFirst ? now.time.day : now.time.month;
    example_->setText(
        QStringLiteral("%1/%2/%3  %4")
            .arg(first)
            .arg(second)
            .arg(now.time.year)
            .arg(toQt(core::FormatClock(now.time.localTime, settings_.twelveHourClock, false))
                     .trimmed()));
    nowLocation_->setText(settings_.nowCity.empty()
                              ? tr("none chosen yet")
                              : toQt(settings_.nowCity) + QStringLiteral(", ") +
                                    toQt(settings_.nowCountry));
    preview_->show(settings_);
}

void TOptionWizardForm::trigger(const char* command)
{
    if (auto* const action = window_.findChild<QAction*>(QLatin1String(command))) {
        action->trigger();
    }
}

void TOptionWizardForm::chooseNowLocation()
{
    trigger("NowLocationAction");
    for (const std::string_view name : kNowSettings) {
        core::copySetting(settings_, window_.workspace().settings(), *core::findSetting(name));
    }
    showChoices();
}

void TOptionWizardForm::BackButtonClick()
{
    showStep(pages_->currentIndex() - 1);
}

void TOptionWizardForm::NextButtonClick()
{
    if (pages_->currentIndex() + 1 < pages_->count()) {
        showStep(pages_->currentIndex() + 1);
    } else {
        FinishButtonClick();
    }
}

void TOptionWizardForm::DefaultButtonClick()
{
    const Step& step = steps_[std::size_t(pages_->currentIndex())];
    for (const SettingEditor* const editor : step.editors) {
        core::copySetting(settings_, core::Settings{}, editor->info());
    }
    if (step.editors.empty()) {
        database_->button(kOwnCharts)->setChecked(true);
    }
    showChoices();
}

void TOptionWizardForm::FinishButtonClick()
{
    settings_.wizardDone = true;
    accept();
    changeOptions(window_, settings_);
    applyDatabase();
}

void TOptionWizardForm::reject()
{
    core::Settings settings = window_.workspace().settings();
    settings.wizardDone = true;
    window_.workspace().changeSettings(settings);
    QDialog::reject();
}

void TOptionWizardForm::applyDatabase()
{
    switch (database_->checkedId()) {
    case kOwnCharts:
        openOwnCharts();
        break;
    case kOpenOther:
        trigger("OpenAction");
        break;
    case kImport:
        // The sample charts are no place for charts of one's own.
        openOwnCharts([&window = window_](bool opened) {
            if (opened) {
                window.findChild<QAction*>(QStringLiteral("ImportFileAction"))->trigger();
            }
        });
        break;
    default:
        break;
    }
}

// An existing file of that name is opened as it is.
void TOptionWizardForm::openOwnCharts(std::function<void(bool opened)> then)
{
    auto* const actions = window_.findChild<DatabaseActions*>();
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
                      QStringLiteral("/Kestrav"));
    const std::filesystem::path path = toPath(folder.filePath(QStringLiteral("My Charts.ksc")));
    folder.mkpath(QStringLiteral("."));
    std::error_code failed;
    if (!std::filesystem::exists(path, failed)) {
        if (const auto written = core::writeFileSafely(path, {}); !written) {
            window_.workspace().tellProblem(toQt(written.error().text()));
            return;
        }
    }
    if (actions != nullptr) {
        actions->open(path, std::move(then));
    }
}

} // namespace kestrav::desktop
