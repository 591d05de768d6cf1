#include "app/desktop/timing/TTransitChoicesDlg.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/TextValues.h"
#include "core/Points.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kestrav::desktop
{

namespace
{

using timing::TransitKinds;

struct KindRow
{
    bool TransitKinds::*member;
    const char* name;
    const char* text;
};

constexpr std::array<KindRow, 7> kKinds = {{
    {&TransitKinds::aspects, "AspectsCheckBox", QT_TRANSLATE_NOOP("Transits", "Exact &aspects")},
    {&TransitKinds::orbs, "OrbsCheckBox", QT_TRANSLATE_NOOP("Transits", "&Entry into orbs")},
    {&TransitKinds::signs, "SignsCheckBox", QT_TRANSLATE_NOOP("Transits", "&Signs entered")},
    {&TransitKinds::nakshatras, "NakshatrasCheckBox",
     QT_TRANSLATE_NOOP("Transits", "&Nakshatras entered")},
    {&TransitKinds::padas, "PadasCheckBox", QT_TRANSLATE_NOOP("Transits", "&Padas entered")},
    {&TransitKinds::stations, "StationsCheckBox", QT_TRANSLATE_NOOP("Transits", "Stat&ions")},
    {&TransitKinds::combustion, "CombustionCheckBox", QT_TRANSLATE_NOOP("Transits", "Co&mbustion")},
}};

void addPoint(QListWidget& list, int point)
{
    auto* const item = new QListWidgetItem(toQt(present::pointLabel(point)), &list);
    item->setData(Qt::UserRole, point);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
}

void check(QListWidget& list, const std::vector<int>& points)
{
    for (int row = 0; row < list.count(); ++row) {
        QListWidgetItem& item = *list.item(row);
        const bool chosen = std::find(points.begin(), points.end(),
                                      item.data(Qt::UserRole).toInt()) != points.end();
        item.setCheckState(chosen ? Qt::Checked : Qt::Unchecked);
    }
}

std::vector<int> checkedIn(const QListWidget& list)
{
    std::vector<int> points;
    for (int row = 0; row < list.count(); ++row) {
        const QListWidgetItem& item = *list.item(row);
        if (item.checkState() == Qt::Checked && !item.isHidden()) {
            points.push_back(item.data(Qt::UserRole).toInt());
        }
    }
    return points;
}

} // namespace

TTransitChoicesDlg::TTransitChoicesDlg(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), mode_(new QComboBox(this)),
      bodies_(new QListWidget(this)), targets_(new QListWidget(this)),
      aspects_(new QComboBox(this)), orb_(new QSpinBox(this)), days_(new QSpinBox(this)),
      kakshyas_(new QCheckBox(tr("&Kakshyas of the planets"), this)),
      sadeSati_(new QCheckBox(tr("Sa&de Sati"), this)), problem_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Transit Choices"));
    setObjectName(QStringLiteral("TTransitChoicesDlg"));
    problem_->setObjectName(QStringLiteral("ProblemLabel"));
    QPalette palette;
    palette.setColor(QPalette::WindowText, themeColour(ThemeRole::Bad));
    problem_->setPalette(palette);

    auto* const right = new QVBoxLayout;
    right->addWidget(makeKinds());
    right->addWidget(makeOthers());
    right->addStretch(1);
    auto* const columns = new QHBoxLayout;
    columns->addWidget(makePoints(), 1);
    columns->addLayout(right);
    auto* const usual = buttons_->addButton(tr("&Usual Choices"), QDialogButtonBox::ResetRole);
    usual->setObjectName(QStringLiteral("UsualButton"));
    connect(usual, &QPushButton::clicked, this, &TTransitChoicesDlg::UsualButtonClick);
    // The box would hand the focus to its first button, and Tab would pass by what stands between.
    buttons_->setFocusProxy(nullptr);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TTransitChoicesDlg::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(problem_);
    layout->addWidget(buttons_);

    showChoices(TransitChoices::kept());
    connect(bodies_, &QListWidget::itemChanged, this, &TTransitChoicesDlg::showProblem);
    connect(targets_, &QListWidget::itemChanged, this, &TTransitChoicesDlg::showProblem);
    bodies_->setFocus();
}

QWidget* TTransitChoicesDlg::makePoints()
{
    auto* const group = new QGroupBox(tr("Points"), this);
    bodies_->setObjectName(QStringLiteral("BodiesListBox"));
    bodies_->setAccessibleName(tr("Transiting bodies"));
    for (const int body : core::kBodies) {
        addPoint(*bodies_, body);
    }
    targets_->setObjectName(QStringLiteral("TargetsListBox"));
    targets_->setAccessibleName(tr("Points that are reached"));
    const ChartPointer& chart = workspace_.chart();
    for (int point = 0; point < core::kPointCount; ++point) {
        if (chart ? chart->chart.computed(point) : point <= core::kKetu) {
            addPoint(*targets_, point);
        }
    }
    mode_->setObjectName(QStringLiteral("TargetsComboBox"));
    mode_->addItems({tr("points of the chart"), tr("other transiting bodies")});
    connect(mode_, &QComboBox::currentIndexChanged, this,
            &TTransitChoicesDlg::TargetsComboBoxChange);
    for (QListWidget* const list : {bodies_, targets_}) {
        list->setMinimumHeight(fontMetrics().height() * 16);
        list->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    }
    auto* const bodiesLabel = new QLabel(tr("&Transiting:"), group);
    bodiesLabel->setBuddy(bodies_);
    auto* const modeLabel = new QLabel(tr("&Reach:"), group);
    modeLabel->setBuddy(mode_);
    auto* const targetBar = new QHBoxLayout;
    targetBar->addWidget(modeLabel);
    targetBar->addWidget(mode_, 1);
    auto* const grid = new QGridLayout(group);
    grid->addWidget(bodiesLabel, 0, 0);
    grid->addLayout(targetBar, 0, 1);
    grid->addWidget(bodies_, 1, 0);
    grid->addWidget(targets_, 1, 1);
    grid->setRowStretch(1, 1);
    // The dialog's focus goes through the lists in the order of reading.
    setTabOrder(bodies_, mode_);
    setTabOrder(mode_, targets_);
    return group;
}

QWidget* TTransitChoicesDlg::makeKinds()
{
    auto* const group = new QGroupBox(tr("Events"), this);
    auto* const box = new QVBoxLayout(group);
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        kinds_[i] = new QCheckBox(QCoreApplication::translate("Transits", kKinds[i].text), group);
        kinds_[i]->setObjectName(QLatin1String(kKinds[i].name));
        box->addWidget(kinds_[i]);
    }
    kakshyas_->setObjectName(QStringLiteral("KakshyasCheckBox"));
    sadeSati_->setObjectName(QStringLiteral("SadeSatiCheckBox"));
    box->addWidget(kakshyas_);
    box->addWidget(sadeSati_);
    return group;
}

QWidget* TTransitChoicesDlg::makeOthers()
{
    auto* const group = new QGroupBox(tr("How"), this);
    aspects_->setObjectName(QStringLiteral("AspectsComboBox"));
    aspects_->addItems(
        {tr("Every house"), tr("Graha aspects"), tr("Sign aspects"), tr("Graha and sign aspects")});
    orb_->setObjectName(QStringLiteral("OrbUpDown"));
    orb_->setRange(present::kNarrowestOrb, timing::kWidestOrb);
    orb_->setSuffix(QStringLiteral("\u00B0"));
    days_->setObjectName(QStringLiteral("DaysUpDown"));
    days_->setRange(1, present::kMostTransitDays);
    auto* const form = new QFormLayout(group);
    form->addRow(tr("&Which aspects:"), aspects_);
    form->addRow(tr("Or&b:"), orb_);
    form->addRow(tr("Da&ys of the list:"), days_);
    return group;
}

void TTransitChoicesDlg::showChoices(const TransitChoices& choices)
{
    const timing::TransitOptions& options = choices.options;
    mode_->setCurrentIndex(int(options.mode == timing::TransitMode::TransitToTransit));
    check(*bodies_, options.bodies);
    check(*targets_, options.targets);
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        kinds_[i]->setChecked(options.kinds.*(kKinds[i].member));
    }
    aspects_->setCurrentIndex(options.aspectChoice);
    orb_->setValue(options.orbDegrees);
    days_->setValue(choices.days);
    kakshyas_->setChecked(choices.kakshyas);
    sadeSati_->setChecked(choices.sadeSati);
    TargetsComboBoxChange();
}

TransitChoices TTransitChoicesDlg::choices() const
{
    TransitChoices choices = TransitChoices::usual();
    timing::TransitOptions& options = choices.options;
    options.mode = mode_->currentIndex() == 1 ? timing::TransitMode::TransitToTransit
                                              : timing::TransitMode::Native;
    options.bodies = checkedIn(*bodies_);
    options.targets = checkedIn(*targets_);
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        options.kinds.*(kKinds[i].member) = kinds_[i]->isChecked();
    }
    options.aspectChoice = aspects_->currentIndex();
    options.orbDegrees = orb_->value();
    choices.days = days_->value();
    choices.kakshyas = kakshyas_->isChecked();
    choices.sadeSati = sadeSati_->isChecked();
    return choices;
}

// Only bodies move.
void TTransitChoicesDlg::TargetsComboBoxChange()
{
    const bool moving = mode_->currentIndex() == 1;
    for (int row = 0; row < targets_->count(); ++row) {
        QListWidgetItem& item = *targets_->item(row);
        item.setHidden(moving && !present::movesByItself(item.data(Qt::UserRole).toInt()));
    }
    showProblem();
}

void TTransitChoicesDlg::showProblem()
{
    const QString problem = checkedIn(*bodies_).empty() ? tr("Tick at least one transiting body.")
                            : checkedIn(*targets_).empty()
                                ? tr("Tick at least one point that is reached.")
                                : QString();
    problem_->setText(problem);
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}

void TTransitChoicesDlg::UsualButtonClick()
{
    showChoices(TransitChoices::usual());
}

void TTransitChoicesDlg::OkButtonClick()
{
    choices().keep();
    accept();
}

} // namespace kestrav::desktop
