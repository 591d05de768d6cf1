#include "app/desktop/options/TChangePointDlg.h"

#include "app/desktop/options/OptionButtons.h"
#include "app/desktop/options/OptionNotices.h"
#include "app/desktop/options/OptionPreview.h"
#include "app/desktop/shell/ChangedPointsText.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/YearLength.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace kestrav::desktop
{

namespace
{

constexpr double kMinutesOfDegree = 60.0;
constexpr int kMinutesOfSign = 1800;

// Bodies first, then the midheaven, then what is derived from them.
std::vector<int> changeablePoints(const core::Chart& chart)
{
    std::vector<int> points;
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        points.push_back(point);
    }
    for (const int point :
         {int(core::kUranus), int(core::kNeptune), int(core::kPluto), kMidheavenPoint}) {
        points.push_back(point);
    }
    for (int point = core::kDhuma; point <= core::kArudhaLagna; ++point) {
        points.push_back(point);
    }
    points.push_back(core::kYogiPoint);
    points.push_back(core::kPartOfFortune);
    std::erase_if(points, [&](int point) { return !chart.computed(point); });
    return points;
}

int opposite(int point)
{
    return point == core::kRahu ? int(core::kKetu) : int(core::kRahu);
}

} // namespace

TChangePointDlg::TChangePointDlg(TKSVform1& window, QWidget* parent)
    : QDialog(parent), window_(window), changed_(window.workspace().changedPoints()),
      own_(chartUnder(window.workspace(), window.workspace().settings())),
      point_(new QComboBox(this)), computed_(new QLabel(this)), sign_(new QComboBox(this)),
      degrees_(new QSpinBox(this)), minutes_(new QSpinBox(this)), changedLabel_(new QLabel(this)),
      reset_(new QPushButton(tr("&Reset Point"), this)),
      resetAll_(new QPushButton(tr("Reset A&ll"), this))
{
    setWindowTitle(tr("Change Point"));
    setObjectName(QStringLiteral("TChangePointDlg"));
    point_->setObjectName(QStringLiteral("PointComboBox"));
    point_->setMaxVisibleItems(16);
    for (const int each : own_ ? changeablePoints(own_->chart) : std::vector<int>()) {
        point_->addItem(changedPointName(each), each);
    }
    computed_->setObjectName(QStringLiteral("ComputedLabel"));
    sign_->setObjectName(QStringLiteral("SignComboBox"));
    sign_->setAccessibleName(tr("Sign"));
    for (int sign = 1; sign <= 12; ++sign) {
        sign_->addItem(toQt(core::signNameLong(sign)));
    }
    degrees_->setObjectName(QStringLiteral("DegreesSpinBox"));
    degrees_->setAccessibleName(tr("Degrees"));
    degrees_->setRange(0, 29);
    degrees_->setSuffix(QStringLiteral("\u00B0"));
    minutes_->setObjectName(QStringLiteral("MinutesSpinBox"));
    minutes_->setAccessibleName(tr("Minutes"));
    minutes_->setRange(0, 59);
    minutes_->setSuffix(QStringLiteral("'"));
    changedLabel_->setObjectName(QStringLiteral("ChangedLabel"));
    changedLabel_->setWordWrap(true);
    reset_->setObjectName(QStringLiteral("ResetButton"));
    reset_->setAutoDefault(false);
    resetAll_->setObjectName(QStringLiteral("ResetAllButton"));
    resetAll_->setAutoDefault(false);

    auto* const position = new QHBoxLayout;
    position->addWidget(degrees_);
    position->addWidget(minutes_);
    position->addWidget(sign_, 1);
    auto* const form = new QFormLayout;
    form->addRow(tr("&Point:"), point_);
    form->addRow(tr("Computed:"), computed_);
    auto* const positionLabel = new QLabel(tr("&Changed to:"), this);
    positionLabel->setBuddy(degrees_);
    form->addRow(positionLabel, position);
    auto* const resets = new QHBoxLayout;
    resets->addWidget(reset_);
    resets->addWidget(resetAll_);
    resets->addStretch(1);
    auto* const note =
        new QLabel(tr("A changed position holds until another chart is shown. It is marked "
                      "wherever the chart stands, and it is never saved."),
                   this);
    note->setWordWrap(true);
    auto* const buttons =
        optionButtons(this, window_.workspace(), QStringLiteral("TChangePointDlg"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TChangePointDlg::OkButtonClick);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(form);
    box->addLayout(resets);
    box->addWidget(changedLabel_);
    box->addWidget(note);
    box->addStretch(1);
    box->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    // As they stand, not as they were made.
    setTabOrder(point_, degrees_);
    setTabOrder(degrees_, minutes_);
    setTabOrder(minutes_, sign_);
    setTabOrder(sign_, reset_);

    connect(point_, &QComboBox::currentIndexChanged, this, &TChangePointDlg::showPoint);
    connect(sign_, &QComboBox::currentIndexChanged, this, &TChangePointDlg::PositionChanged);
    connect(degrees_, &QSpinBox::valueChanged, this, &TChangePointDlg::PositionChanged);
    connect(minutes_, &QSpinBox::valueChanged, this, &TChangePointDlg::PositionChanged);
    connect(reset_, &QPushButton::clicked, this, &TChangePointDlg::ResetButtonClick);
    connect(resetAll_, &QPushButton::clicked, this, &TChangePointDlg::ResetAllButtonClick);
    if (point_->count() == 0) {
        for (QWidget* const widget :
             std::initializer_list<QWidget*>{point_, sign_, degrees_, minutes_}) {
            widget->setEnabled(false);
        }
    } else {
        showPoint();
        point_->setFocus();
    }
    showChanged();
}

int TChangePointDlg::point() const
{
    return point_->currentData().toInt();
}

double TChangePointDlg::ownLongitude(int point) const
{
    return point == kMidheavenPoint ? own_->chart.midheaven
                                    : core::at(own_->chart.longitude, point);
}

int TChangePointDlg::typedMinutes() const
{
    return sign_->currentIndex() * kMinutesOfSign + degrees_->value() * 60 + minutes_->value();
}

void TChangePointDlg::showPoint()
{
    const auto changed = changed_.find(point());
    const double longitude = changed == changed_.end() ? ownLongitude(point()) : changed->second;
    computed_->setText(toQt(core::FormatSignPosition(ownLongitude(point()))));
    showing_ = true;
    // Whole minutes, as a position is written; the last is not rounded up into the next sign.
    const int minutes = int(longitude * kMinutesOfDegree + 1e-6);
    sign_->setCurrentIndex(std::min(minutes / kMinutesOfSign, 11));
    degrees_->setValue(minutes % kMinutesOfSign / 60);
    minutes_->setValue(minutes % 60);
    shownMinutes_ = typedMinutes();
    showing_ = false;
    reset_->setEnabled(changed != changed_.end());
}

void TChangePointDlg::showChanged()
{
    const QString text = changedPointsText(changed_);
    changedLabel_->setText(text.isEmpty() ? tr("No point is changed.") : text);
    resetAll_->setEnabled(!changed_.empty());
}

void TChangePointDlg::PositionChanged()
{
    if (showing_) {
        return;
    }
    const int minutes = typedMinutes();
    // Enter in a number tells of a change where there is none, which would cut off the seconds.
    if (minutes == shownMinutes_) {
        return;
    }
    shownMinutes_ = minutes;
    const double longitude = minutes / kMinutesOfDegree;
    changed_[point()] = longitude;
    if (point() == core::kRahu || point() == core::kKetu) {
        changed_[opposite(point())] = core::Normalize360(longitude + 180.0);
    }
    reset_->setEnabled(true);
    showChanged();
}

void TChangePointDlg::ResetButtonClick()
{
    changed_.erase(point());
    if (point() == core::kRahu || point() == core::kKetu) {
        changed_.erase(opposite(point()));
    }
    point_->setFocus();
    showPoint();
    showChanged();
}

void TChangePointDlg::ResetAllButtonClick()
{
    changed_.clear();
    point_->setFocus();
    showPoint();
    showChanged();
}

void TChangePointDlg::OkButtonClick()
{
    Workspace& workspace = window_.workspace();
    core::Settings settings = workspace.settings();
    TMessages messages;
    leaveMidheavenHouses(settings, changed_, messages);
    timing::leaveTrueSolarYear(settings, changed_.contains(core::kSun), messages);
    workspace.changeSettings(settings);
    const ChangedPoints before = workspace.changedPoints();
    for (const auto& [each, longitude] : before) {
        if (!changed_.contains(each)) {
            workspace.changePoint(each, std::nullopt);
        }
    }
    for (const auto& [each, longitude] : changed_) {
        const auto found = before.find(each);
        if (found == before.end() || found->second != longitude) {
            workspace.changePoint(each, longitude);
        }
    }
    if (!changed_.empty()) {
        workspace.tell(changedPointsText(changed_));
    } else if (!before.empty()) {
        workspace.tell(tr("All points stand where they are computed."));
    }
    accept();
}

} // namespace kestrav::desktop
