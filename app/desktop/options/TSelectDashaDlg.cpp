#include "app/desktop/options/TSelectDashaDlg.h"

#include "app/desktop/options/ChangeOptions.h"
#include "app/desktop/options/OptionButtons.h"
#include "app/desktop/options/SettingEditor.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/present/DashaTables.h"
#include "core/NumberText.h"
#include "timing/ConditionalDashas.h"
#include "timing/DashaTable.h"
#include "timing/YearLength.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrav::desktop
{

TSelectDashaDlg::TSelectDashaDlg(TKSVform1& window, QWidget* parent)
    : QDialog(parent), window_(window), settings_(window.workspace().settings()),
      systems_(new QListWidget(this)), conditional_(new QLabel(this)), days_(new QLabel(this))
{
    setWindowTitle(tr("Select Dasha"));
    setObjectName(QStringLiteral("TSelectDashaDlg"));
    systems_->setObjectName(QStringLiteral("DashaList"));
    systems_->setAccessibleName(tr("Dasha systems"));
    conditional_->setObjectName(QStringLiteral("ConditionalLabel"));
    conditional_->setWordWrap(true);
    days_->setObjectName(QStringLiteral("YearDaysLabel"));

    auto* const periods = new QGroupBox(tr("Periods"), this);
    auto* const periodForm = new QFormLayout(periods);
    add(periodForm, "dashaStartPoint", tr("&Start point"));
    add(periodForm, "dashaTotalLength", tr("&Total length"))
        ->control()
        ->setToolTip(tr("Use for Solar Ingress, etc."));
    add(periodForm, "nakshatraFraction", tr("&Nakshatra fraction"))
        ->control()
        ->setObjectName(QStringLiteral("NakshFracComboBox"));
    QWidget* const levels = add(periodForm, "dashaLevels", tr("&Levels"))->control();
    levels->setObjectName(QStringLiteral("DashaLevelsUpDown"));
    levels->setToolTip(tr("Up to 5 levels of Dashas"));

    auto* const year = new QGroupBox(tr("Year Length"), this);
    year->setToolTip(tr("Various choices for how long the dasha years are"));
    auto* const yearForm = new QFormLayout(year);
    add(yearForm, "dashaYearLength", tr("&Year"))->control()->setToolTip(year->toolTip());
    add(yearForm, "customYearDays", tr("C&ustom"));
    yearForm->addRow(tr("Days of a year:"), days_);

    auto* const choices = new QGroupBox(tr("Subchoices for this Dasha (if applicable)"), this);
    choices->setObjectName(QStringLiteral("SubchoicesGroup"));
    auto* const choiceForm = new QFormLayout(choices);
    add(choiceForm, "dashaSubPeriodStart", tr("Su&b-periods from"));
    add(choiceForm, "charaOwnSignLast", tr("C&hara: own sign last"));
    add(choiceForm, "charaExaltationYears", tr("Chara: e&xaltation and debilitation"));
    add(choiceForm, "dwisaptatiLordInAscendant",
        tr("&Dwisaptati sama with the lord in the ascendant"));

    auto* const buttons =
        optionButtons(this, window_.workspace(), QStringLiteral("TSelectDashaDlg"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TSelectDashaDlg::OkButtonClick);

    auto* const left = new QVBoxLayout;
    left->addWidget(systems_, 1);
    left->addWidget(conditional_);
    auto* const right = new QVBoxLayout;
    right->addWidget(periods);
    right->addWidget(year);
    right->addWidget(choices);
    right->addStretch(1);
    auto* const middle = new QHBoxLayout;
    middle->addLayout(left, 2);
    middle->addLayout(right, 3);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(middle, 1);
    box->addWidget(buttons);

    fillSystems();
    connect(systems_, &QListWidget::currentRowChanged, this,
            &TSelectDashaDlg::DashaListCurrentRowChanged);
    connect(systems_, &QListWidget::itemDoubleClicked, this, [this] { OkButtonClick(); });
    showApplicable();
    systems_->setFocus();
}

SettingEditor* TSelectDashaDlg::add(QFormLayout* form, std::string_view setting,
                                    const QString& label)
{
    SettingEditor* const editor = addSettingRow(form, setting, label);
    editor->show(settings_);
    editors_.push_back(editor);
    connect(editor, &SettingEditor::edited, this, [this, editor] {
        editor->store(settings_);
        showApplicable();
    });
    return editor;
}

void TSelectDashaDlg::fillSystems()
{
    for (int system = 0; system < timing::kNamedDashaSystems; ++system) {
        systems_->addItem(toQt(present::dashaSystemName(system)));
    }
    systems_->setCurrentRow(settings_.dashaSystem);
    systems_->setMinimumWidth(systems_->sizeHintForColumn(0) + 3 * fontMetrics().height());
    systems_->setMinimumHeight(systems_->sizeHintForRow(0) * 14);
}

// Choices that do not reach the chosen system cannot be chosen.
void TSelectDashaDlg::showApplicable()
{
    const int system = settings_.dashaSystem;
    const auto enable = [this](std::string_view setting, bool enabled) {
        const auto found =
            std::find_if(editors_.begin(), editors_.end(), [&](const SettingEditor* editor) {
                return editor->info().name == setting;
            });
        (*found)->widget()->setEnabled(enabled);
    };
    enable("dashaStartPoint", timing::startsFromNakshatra(system));
    enable("nakshatraFraction",
           timing::startsFromNakshatra(system) && settings_.dashaStartPoint == core::kMoon);
    enable("customYearDays", settings_.dashaYearLength == int(timing::YearLength::Custom));
    enable("dashaSubPeriodStart", timing::isSignDasha(system));
    enable("charaOwnSignLast", system == timing::kJaiminiChara);
    enable("charaExaltationYears", system == timing::kJaiminiChara);
    enable("dwisaptatiLordInAscendant", system == timing::kDwisaptatiSama);
    const auto year = timing::YearLength(settings_.dashaYearLength);
    days_->setText(
        year == timing::YearLength::TrueSolar
            ? tr("by the way of the Sun")
            : toQt(core::shortestNumber(timing::yearDays(year, settings_.customYearDays))));
    showConditional();
}

void TSelectDashaDlg::showConditional()
{
    QStringList applying;
    const ChartPointer& chart = window_.workspace().chart();
    for (const int system : timing::kConditionalDashas) {
        const bool applies = chart && timing::dashaApplies(chart->chart, settings_,
                                                           timing::dashaOptions(settings_), system);
        const QString name = toQt(present::dashaSystemName(system));
        applying += applies ? QStringList(name) : QStringList();
        systems_->item(system)->setText(applies ? name + QStringLiteral(" *") : name);
    }
    conditional_->setText(toQt(timing::kConditionalDashasHeading) + QStringLiteral(":\n") +
                          (applying.isEmpty() ? tr("none") : applying.join(QStringLiteral(", "))));
}

void TSelectDashaDlg::DashaListCurrentRowChanged(int row)
{
    settings_.dashaSystem = std::max(0, row);
    showApplicable();
}

void TSelectDashaDlg::OkButtonClick()
{
    changeOptions(window_, settings_);
    accept();
}

} // namespace kestrav::desktop
