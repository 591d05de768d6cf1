#include "app/desktop/options/Ks6customayan.h"

#include "app/desktop/options/OptionButtons.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "astro/Ayanamsa.h"
#include "core/Angles.h"
#include "core/NumberText.h"
#include "core/TextForms.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace kestrav::desktop
{

namespace
{

// Beyond these a row would be taken for damage when the settings are read again.
constexpr int kLargestYear = 100000;
constexpr double kLargestValue = 360.0;
constexpr double kLargestRate = 3600.0;
constexpr double kSecondsOfDegree = 3600.0;

core::DateTimeRecord timeOf(double julianDay)
{
    core::Chart chart;
    chart.time.dayCount = julianDay - core::kEpoch1900;
    core::JulianDayToDate(chart);
    return chart.time;
}

// FormatDMS writes the degrees of small negative values without a sign.
QString angle(double degrees)
{
    return (degrees < 0.0 ? QStringLiteral("-") : QString()) +
           toQt(core::FormatDMS(std::abs(degrees), 1)).trimmed();
}

int whole(const QLineEdit* edit)
{
    return core::readLeadingInteger(toUtf8(edit->text().trimmed()));
}

} // namespace

TCustomAyanamsaDlg::TCustomAyanamsaDlg(Workspace& workspace, core::Settings settings,
                                       QWidget* parent)
    : QDialog(parent), workspace_(workspace), settings_(std::move(settings)),
      rows_(new QListWidget(this)), name_(field("NameEdit")), epochYear_(field("EpochYearEdit")),
      degrees_(field("DegreesEdit")), minutes_(field("MinutesEdit")),
      seconds_(field("SecondsEdit")), annualRate_(field("AnnualRateEdit")),
      today_(new QLabel(this)), ofChart_(new QLabel(this)), note_(new QLabel(this))
{
    setWindowTitle(tr("Custom Ayanamsa"));
    setObjectName(QStringLiteral("TCustomAyanamsaDlg"));
    rows_->setObjectName(QStringLiteral("RowList"));
    rows_->setAccessibleName(tr("Rows of the ayanamsa table"));
    for (const core::AyanamsaRow& each : settings_.ayanamsaTable) {
        rows_->addItem(toQt(each.nameText()));
    }
    rows_->setMinimumWidth(rows_->sizeHintForColumn(0) + 2 * fontMetrics().height());
    rows_->setMinimumHeight(rows_->sizeHintForRow(0) * (core::kAyanamsaRows + 1));
    name_->setMaxLength(int(core::AyanamsaRow{}.name.size()));
    today_->setObjectName(QStringLiteral("TodayLabel"));
    ofChart_->setObjectName(QStringLiteral("ChartLabel"));
    note_->setObjectName(QStringLiteral("TropicalLabel"));
    note_->setWordWrap(true);

    const auto narrow = [this](QLineEdit* edit, const QString& name, int letters) {
        edit->setAccessibleName(name);
        edit->setMinimumWidth(fontMetrics().averageCharWidth() * letters);
        edit->setAlignment(Qt::AlignRight);
    };
    narrow(epochYear_, tr("Epoch year"), 9);
    narrow(degrees_, tr("Degrees at epoch"), 5);
    narrow(minutes_, tr("Minutes at epoch"), 5);
    narrow(seconds_, tr("Seconds at epoch"), 5);
    narrow(annualRate_, tr("Annual rate"), 14);
    auto* const value = new QHBoxLayout;
    for (const auto& [edit, unit] :
         {std::pair{degrees_, QStringLiteral("\u00B0")}, std::pair{minutes_, QStringLiteral("'")},
          std::pair{seconds_, QStringLiteral("\"")}}) {
        value->addWidget(edit);
        value->addWidget(new QLabel(unit, this));
    }
    auto* const form = new QFormLayout;
    form->addRow(tr("&Name:"), name_);
    form->addRow(tr("&Epoch year:"), epochYear_);
    auto* const valueLabel = new QLabel(tr("&Value at epoch:"), this);
    valueLabel->setBuddy(degrees_);
    form->addRow(valueLabel, value);
    form->addRow(tr("&Annual rate (\"):"), annualRate_);
    form->addRow(tr("Ayanamsa of today:"), today_);
    form->addRow(tr("Of the shown chart:"), ofChart_);
    form->addRow(note_);

    auto* const reset = new QPushButton(tr("&Reset Table"), this);
    reset->setObjectName(QStringLiteral("ResetButton"));
    reset->setAutoDefault(false);
    reset->setToolTip(tr("Gives all ten rows the values of a new installation"));
    connect(reset, &QPushButton::clicked, this, &TCustomAyanamsaDlg::ResetButtonClick);
    auto* const buttons = optionButtons(this, workspace_, QStringLiteral("TCustomAyanamsaDlg"));
    buttons->addButton(reset, QDialogButtonBox::ResetRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* const middle = new QHBoxLayout;
    middle->addWidget(rows_, 2);
    middle->addLayout(form, 3);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(middle, 1);
    box->addWidget(buttons);

    connect(rows_, &QListWidget::currentRowChanged, this, &TCustomAyanamsaDlg::showRow);
    connect(name_, &QLineEdit::textEdited, this, &TCustomAyanamsaDlg::NameEditTextEdited);
    connect(epochYear_, &QLineEdit::textEdited, this, &TCustomAyanamsaDlg::EpochYearEditTextEdited);
    for (QLineEdit* const edit : {degrees_, minutes_, seconds_}) {
        connect(edit, &QLineEdit::textEdited, this, &TCustomAyanamsaDlg::ValueEditTextEdited);
    }
    connect(annualRate_, &QLineEdit::textEdited, this,
            &TCustomAyanamsaDlg::AnnualRateEditTextEdited);
    // A field that is left shows what was read of it.
    for (QLineEdit* const edit : {epochYear_, degrees_, minutes_, seconds_, annualRate_}) {
        connect(edit, &QLineEdit::editingFinished, this, &TCustomAyanamsaDlg::showRow);
    }
    rows_->setCurrentRow(settings_.ayanamsaRow);
    rows_->setFocus();
}

QLineEdit* TCustomAyanamsaDlg::field(const char* name)
{
    auto* const edit = new QLineEdit(this);
    edit->setObjectName(QLatin1String(name));
    return edit;
}

core::AyanamsaRow& TCustomAyanamsaDlg::row()
{
    return settings_.ayanamsaTable[std::size_t(rows_->currentRow())];
}

void TCustomAyanamsaDlg::showRow()
{
    name_->setText(toQt(row().nameText()));
    epochYear_->setText(QString::number(row().epochYear));
    // The parts carry the sign each, as they are added up again. Seconds are whole ones: a value
    // that is not edited keeps its exact one.
    const auto seconds = int(std::lround(row().valueAtEpoch * kSecondsOfDegree));
    degrees_->setText(QString::number(seconds / 3600));
    minutes_->setText(QString::number(seconds / 60 % 60));
    seconds_->setText(QString::number(seconds % 60));
    annualRate_->setText(toQt(core::shortestNumber(row().annualRate)));
    showResults();
}

void TCustomAyanamsaDlg::showResults()
{
    const core::AyanamsaRow& shown = row();
    const bool tropical = astro::isTropical(shown);
    const auto value = [&](const core::DateTimeRecord& time) {
        return angle(astro::ayanamsaOfRow(shown, astro::DecimalYear(time)));
    };
    today_->setText(tropical ? tr("none: tropical") : value(timeOf(Workspace::now())));
    if (const ChartPointer& chart = workspace_.chart(); !chart) {
        ofChart_->setText(tr("no chart is shown"));
    } else {
        ofChart_->setText(tropical ? tr("%1 (nutation)").arg(angle(-chart->chart.nutation))
                                   : value(chart->chart.time));
    }
    note_->setText(tropical ? tr("An annual rate of 0 or less makes charts tropical: only the "
                                 "nutation is applied, and the value at epoch is not used.")
                            : QString());
}

void TCustomAyanamsaDlg::NameEditTextEdited()
{
    row().setName(toUtf8(name_->text()));
    rows_->currentItem()->setText(toQt(row().nameText()));
}

void TCustomAyanamsaDlg::EpochYearEditTextEdited()
{
    row().epochYear = core::ClampRange(-kLargestYear, kLargestYear, whole(epochYear_));
    showResults();
}

void TCustomAyanamsaDlg::ValueEditTextEdited()
{
    row().valueAtEpoch =
        core::ClampRange(-kLargestValue, kLargestValue,
                         core::ayanamsaValue(whole(degrees_), whole(minutes_), whole(seconds_)));
    showResults();
}

void TCustomAyanamsaDlg::AnnualRateEditTextEdited()
{
    row().annualRate =
        core::ClampRange(-kLargestRate, kLargestRate,
                         core::readLeadingNumber(toUtf8(annualRate_->text().trimmed())));
    showResults();
}

void TCustomAyanamsaDlg::ResetButtonClick()
{
    settings_.ayanamsaTable = core::factoryAyanamsaTable();
    for (int i = 0; i < rows_->count(); ++i) {
        rows_->item(i)->setText(toQt(settings_.ayanamsaTable[std::size_t(i)].nameText()));
    }
    showRow();
}

} // namespace kestrav::desktop
