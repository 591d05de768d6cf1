#include "app/desktop/options/TColoursDlg.h"

#include "app/desktop/diagram/DisplayListPainter.h"
#include "app/desktop/options/ChangeOptions.h"
#include "app/desktop/options/OptionButtons.h"
#include "app/desktop/options/OptionPreview.h"
#include "app/desktop/options/SettingEditor.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/Theme.h"
#include "app/present/Colour.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <array>

namespace kestrav::desktop
{

namespace
{

// In the order of present::ColourRole.
constexpr std::array<const char*, present::kColourRoles> kRoleNames = {
    "Background",
    "Middle of a diagram",
    "Cell of the ascendant",
    "Favourable time",
    "Time to avoid",
    "Night",
    "Borders of cells",
    "Lines inside a cell",
    "Leader lines",
    "Numbers of signs and houses",
    "Planets and texts",
    "Ascendant",
    "Arudhas",
    "Other points",
    "Second chart",
    "Bindus",
    "Aspects",
    "Shared moment",
};

constexpr std::array<present::ColourScheme, 3> kSchemes = {
    present::ColourScheme::Light, present::ColourScheme::Dark, present::ColourScheme::Print};

} // namespace

TColoursDlg::TColoursDlg(TKSVform1& window, QWidget* parent)
    : QDialog(parent), window_(window), settings_(window.workspace().settings()),
      preview_(new OptionPreview(window.workspace(), this)),
      roles_(new QTableWidget(present::kColourRoles, int(kSchemes.size()), this))
{
    setWindowTitle(tr("Colours"));
    setObjectName(QStringLiteral("TColoursDlg"));
    auto* const choices = new QWidget(this);
    auto* const form = new QFormLayout(choices);
    form->setContentsMargins({});
    SettingEditor* const scheme = addRow(form, "colourScheme", tr("&Colours"));
    addRow(form, "fontPercent", tr("&Size of letters"));
    fillRoles();

    auto* const buttons = optionButtons(this, window_.workspace(), QStringLiteral("TColoursDlg"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TColoursDlg::OkButtonClick);
    auto* const left = new QVBoxLayout;
    left->addWidget(choices);
    left->addWidget(preview_, 1);
    auto* const right = new QVBoxLayout;
    auto* const caption = new QLabel(tr("&What the colours of drawings are for:"), this);
    caption->setBuddy(roles_);
    right->addWidget(caption);
    right->addWidget(roles_, 1);
    auto* const middle = new QHBoxLayout;
    middle->addLayout(left, 1);
    middle->addLayout(right, 1);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(middle, 1);
    box->addWidget(buttons);
    preview_->show(settings_);
    scheme->control()->setFocus();
}

SettingEditor* TColoursDlg::addRow(QFormLayout* form, std::string_view setting,
                                   const QString& label)
{
    SettingEditor* const editor = addSettingRow(form, setting, label);
    editor->show(settings_);
    connect(editor, &SettingEditor::edited, this, [this, editor] {
        editor->store(settings_);
        tryOut();
    });
    return editor;
}

void TColoursDlg::fillRoles()
{
    roles_->setObjectName(QStringLiteral("RoleTable"));
    roles_->setAccessibleName(tr("Colours of drawings by what they are for"));
    roles_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    roles_->setSelectionMode(QAbstractItemView::NoSelection);
    roles_->setTabKeyNavigation(false);
    roles_->setHorizontalHeaderLabels({tr("Light"), tr("Dark"), tr("Paper")});
    roles_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    roles_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (int row = 0; row < present::kColourRoles; ++row) {
        roles_->setVerticalHeaderItem(row, new QTableWidgetItem(tr(kRoleNames[std::size_t(row)])));
        for (int column = 0; column < int(kSchemes.size()); ++column) {
            const present::Colour colour =
                present::colourOf(present::ColourRole(row), kSchemes[std::size_t(column)]);
            auto* const item = new QTableWidgetItem;
            item->setBackground(toQt(colour));
            item->setToolTip(toQt(present::hexColour(colour)));
            item->setData(Qt::AccessibleTextRole, toQt(present::hexColour(colour)));
            roles_->setItem(row, column, item);
        }
    }
    roles_->setMinimumSize(fontMetrics().averageCharWidth() * 64, fontMetrics().height() * 18);
}

void TColoursDlg::tryOut()
{
    applyTheme(settings_);
    preview_->show(settings_);
}

void TColoursDlg::OkButtonClick()
{
    changeOptions(window_, settings_);
    accept();
}

void TColoursDlg::reject()
{
    applyTheme(window_.workspace().settings());
    QDialog::reject();
}

} // namespace kestrav::desktop
