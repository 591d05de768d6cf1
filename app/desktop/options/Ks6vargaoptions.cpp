#include "app/desktop/options/Ks6vargaoptions.h"

#include "analysis/VargaNames.h"
#include "analysis/Vimshopaka.h"
#include "app/desktop/options/ChangeOptions.h"
#include "app/desktop/options/OptionButtons.h"
#include "app/desktop/options/OptionPreview.h"
#include "app/desktop/options/SettingEditor.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/present/TextValues.h"
#include "core/PointNames.h"
#include "core/Varga.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>

namespace kestrav::desktop
{

namespace
{

// The charts whose rules can be chosen.
constexpr std::array<int, 3> kVargas = {core::kHora, core::kShodashamsha, core::kRudramsha};
constexpr int kVimshopakaColumn = int(kVargas.size());

} // namespace

TVargaOptionsDlg::TVargaOptionsDlg(TKSVform1& window, QWidget* parent)
    : QDialog(parent), window_(window), settings_(window.workspace().settings()),
      placements_(new QTableWidget(core::kKetu + 1, kVimshopakaColumn + 1, this))
{
    setWindowTitle(tr("Varga Options"));
    setObjectName(QStringLiteral("TVargaOptionsDlg"));
    const auto add = [this](QFormLayout* form, std::string_view setting, const QString& label) {
        SettingEditor* const editor = addSettingRow(form, setting, label);
        editor->show(settings_);
        editors_.push_back(editor);
        connect(editor, &SettingEditor::edited, this, [this, editor] {
            editor->store(settings_);
            showPlacements();
        });
    };
    auto* const charts = new QGroupBox(tr("Divisional charts"), this);
    auto* const chartForm = new QFormLayout(charts);
    add(chartForm, "horaMethod", tr("&Hora"));
    add(chartForm, "shodashamshaVariant", tr("&Shodashamsha"));
    add(chartForm, "rudramshaVariant", tr("R&udramsha"));
    add(chartForm, "arudhasInVargas", tr("&Arudhas anew in divisional charts"));
    add(chartForm, "sandhiMinutes", tr("&Near a boundary"));
    auto* const dignities = new QGroupBox(tr("Dignities"), this);
    auto* const dignityForm = new QFormLayout(dignities);
    add(dignityForm, "nodeDignityScheme", tr("&Dignity of Rahu and Ketu"));
    add(dignityForm, "exaltedCountsAsOwn", tr("&Exaltation counts as own sign in the vimshopaka"));
    add(dignityForm, "vargaCompoundRelationships", tr("&Compound relationships in each chart"));
    add(dignityForm, "naturalRelationshipsOnly", tr("Natural &relationships only"));

    placements_->setObjectName(QStringLiteral("PlacementTable"));
    placements_->setAccessibleName(tr("Placements of the shown chart under these options"));
    placements_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    placements_->setSelectionMode(QAbstractItemView::NoSelection);
    placements_->setTabKeyNavigation(false);
    placements_->setShowGrid(false);
    placements_->setAlternatingRowColors(true);
    placements_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    placements_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    showPlacements();
    placements_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    placements_->setMinimumSize(
        placements_->verticalHeader()->sizeHint().width() +
            placements_->horizontalHeader()->length() + 3 * fontMetrics().height(),
        placements_->horizontalHeader()->sizeHint().height() +
            placements_->verticalHeader()->length() + 2 * placements_->frameWidth());

    placements_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    placements_->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);

    auto* const buttons =
        optionButtons(this, window_.workspace(), QStringLiteral("TVargaOptionsDlg"));
    auto* const reset = buttons->addButton(tr("Rese&t"), QDialogButtonBox::ResetRole);
    reset->setObjectName(QStringLiteral("ResetButton"));
    reset->setAutoDefault(false);
    connect(reset, &QPushButton::clicked, this, &TVargaOptionsDlg::ResetButtonClick);
    connect(buttons, &QDialogButtonBox::accepted, this, &TVargaOptionsDlg::OkButtonClick);

    auto* const left = new QVBoxLayout;
    left->addWidget(charts);
    left->addWidget(dignities);
    left->addStretch(1);
    auto* const right = new QVBoxLayout;
    auto* const caption = new QLabel(tr("In the shown chart (* near a boundary):"), this);
    right->addWidget(caption);
    right->addWidget(placements_, 1);
    auto* const middle = new QHBoxLayout;
    middle->addLayout(left);
    middle->addLayout(right, 1);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(middle, 1);
    box->addWidget(buttons);
    editors_.front()->control()->setFocus();
}

void TVargaOptionsDlg::showPlacements()
{
    const ChartPointer shown = chartUnder(window_.workspace(), settings_);
    QStringList titles;
    for (const int varga : kVargas) {
        titles += toQt(analysis::vargaShortName(varga));
    }
    placements_->setHorizontalHeaderLabels(titles << tr("Vimshopaka"));
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        placements_->setVerticalHeaderItem(point,
                                           new QTableWidgetItem(toQt(present::pointLabel(point))));
        for (int column = 0; column <= kVimshopakaColumn; ++column) {
            QString text = QStringLiteral("--");
            if (shown && column < kVimshopakaColumn && shown->chart.computed(point)) {
                const int varga = kVargas[std::size_t(column)];
                const auto index = std::size_t(varga);
                text = toQt(core::signNameLong(core::at(shown->chart.vargas[index], point).sign));
                text += core::at(shown->chart.nearBoundary[index], point) ? QStringLiteral(" *")
                                                                          : QString();
            } else if (shown && column == kVimshopakaColumn && point >= core::kSun &&
                       point <= core::kSaturn) {
                text = toQt(
                    present::fixedNumber(analysis::vimshopakaPoints(core::at(
                                             shown->chart.vimshopaka, point)[analysis::kShodasha]),
                                         2));
            }
            auto* const item = new QTableWidgetItem(text);
            item->setTextAlignment((column == kVimshopakaColumn ? Qt::AlignRight : Qt::AlignLeft) |
                                   Qt::AlignVCenter);
            placements_->setItem(point, column, item);
        }
    }
}

void TVargaOptionsDlg::ResetButtonClick()
{
    for (const SettingEditor* const editor : editors_) {
        core::copySetting(settings_, core::Settings{}, editor->info());
    }
    for (SettingEditor* const editor : editors_) {
        editor->show(settings_);
    }
    showPlacements();
}

void TVargaOptionsDlg::OkButtonClick()
{
    changeOptions(window_, settings_);
    accept();
}

} // namespace kestrav::desktop
