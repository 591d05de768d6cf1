#include "app/desktop/entry/TPcAtlasVersionDlg.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Workspace.h"
#include "data/Atlas.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kestrav::desktop
{

namespace
{

using data::AtlasVersion;

constexpr int kPathColumns = 40;

} // namespace

TPcAtlasVersionDlg::TPcAtlasVersionDlg(Workspace& workspace, QWidget* parent)
    : QDialog(parent), workspace_(workspace), none_(new QRadioButton(toQt(data::kNoAtlas), this)),
      plain_(new QRadioButton(tr("&Plain files (ACSUA.DAT, ACSIA.DAT, ACSTT.DAT)"), this)),
      indexed_(new QRadioButton(tr("&Indexed files (USANDX.BIN to TIMTAB.BIN)"), this)),
      path_(new QLineEdit(this)), browse_(new QPushButton(tr("&Browse..."), this)),
      files_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setObjectName(QStringLiteral("TPcAtlasVersionDlg"));
    setWindowTitle(tr("Select and Locate PC Atlas Version"));
    none_->setObjectName(QStringLiteral("NoAtlasRadioButton"));
    none_->setToolTip(tr("The program's own list of cities is used."));
    plain_->setObjectName(QStringLiteral("PlainRadioButton"));
    indexed_->setObjectName(QStringLiteral("IndexedRadioButton"));
    path_->setObjectName(QStringLiteral("PathEdit"));
    path_->setMinimumWidth(fontMetrics().averageCharWidth() * kPathColumns);
    browse_->setObjectName(QStringLiteral("BrowseButton"));
    browse_->setAutoDefault(false);
    files_->setObjectName(QStringLiteral("ProblemLabel"));
    files_->setWordWrap(true);
    auto* const label = new QLabel(tr("&Folder:"), this);
    label->setBuddy(path_);
    path_->setAccessibleName(tr("Folder of the atlas"));
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(path_, 1);
    row->addWidget(browse_);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(none_);
    box->addWidget(plain_);
    box->addWidget(indexed_);
    box->addLayout(row);
    box->addWidget(files_);
    box->addStretch(1);
    box->addWidget(buttons_);

    const core::Settings& settings = workspace.settings();
    path_->setText(toQt(settings.atlasPath));
    const bool isIndexed = settings.atlasVersion == int(AtlasVersion::Indexed);
    (settings.atlasPath.empty() ? none_ : isIndexed ? indexed_ : plain_)->setChecked(true);
    for (QRadioButton* const choice : {none_, plain_, indexed_}) {
        connect(choice, &QRadioButton::toggled, this, &TPcAtlasVersionDlg::check);
    }
    connect(path_, &QLineEdit::textChanged, this, &TPcAtlasVersionDlg::check);
    connect(browse_, &QPushButton::clicked, this, &TPcAtlasVersionDlg::BrowseButtonClick);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TPcAtlasVersionDlg::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
    for (QRadioButton* const choice : {none_, plain_, indexed_}) {
        if (choice->isChecked()) {
            choice->setFocus();
        }
    }
}

int TPcAtlasVersionDlg::version() const
{
    return int(indexed_->isChecked() ? AtlasVersion::Indexed : AtlasVersion::Plain);
}

void TPcAtlasVersionDlg::check()
{
    const bool atlas = !none_->isChecked();
    path_->setEnabled(atlas);
    browse_->setEnabled(atlas);
    const bool located = !path_->text().trimmed().isEmpty();
    files_->setText(
        !atlas     ? tr("The program's own list of cities is used.")
        : !located ? tr("Name the folder of the atlas, or browse for its file %1.")
                         .arg(toQt(std::string(data::atlasFileToClick(AtlasVersion(version())))))
                   : QString());
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(!atlas || located);
}

void TPcAtlasVersionDlg::BrowseButtonClick()
{
    const AtlasVersion chosen{version()};
    const std::wstring file = core::fromFileBytes(data::atlasFileToClick(chosen));
    const auto path = TMessages::fileToOpen(this, toQt(data::atlasPathPrompt(chosen)),
                                            file + L"|" + file, path_->text());
    if (path) {
        path_->setText(QFileInfo(*path).path());
    }
}

void TPcAtlasVersionDlg::OkButtonClick()
{
    core::Settings settings = workspace_.settings();
    std::string path;
    if (!none_->isChecked()) {
        // An atlas that cannot be read is told, and the dialog stays.
        path = toUtf8(path_->text().trimmed());
        TMessages messages;
        core::Result<data::CountryList> countries = data::loadCountries();
        if (!countries) {
            files_->setText(toQt(countries.error().text()));
            return;
        }
        if (!data::openAtlas(toPath(path_->text().trimmed()), AtlasVersion(version()),
                             std::move(countries.value()), messages)) {
            return;
        }
        core::storeSetting(settings, *core::findSetting("atlasVersion"), version());
    }
    core::storeSettingText(settings, *core::findSetting("atlasPath"), path);
    workspace_.changeSettings(settings);
    accept();
}

} // namespace kestrav::desktop
