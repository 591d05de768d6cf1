#include "app/desktop/help/TAboutBox.h"

#include "app/desktop/help/HelpTopics.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace kestrav::desktop
{

TAboutBox::TAboutBox(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("TAboutBox"));
    setWindowTitle(tr("About Kestrav"));
    auto* const picture = new QLabel(this);
    const int side = fontMetrics().height() * 4;
    picture->setPixmap(QApplication::windowIcon().pixmap(side, side));
    auto* const title = new QLabel(tr("<h2>Kestrav %1</h2><p>Vedic (sidereal) astrology</p>")
                                       .arg(QStringLiteral(KESTRAV_VERSION)),
                                   this);
    title->setObjectName(QStringLiteral("VersionLabel"));
    auto* const attributions = new QTextBrowser(this);
    attributions->setObjectName(QStringLiteral("AttributionsBrowser"));
    attributions->setAccessibleName(tr("Attributions"));
    attributions->setSearchPaths({helpFolder()});
    attributions->setOpenLinks(false);
    attributions->setSource(
        QUrl::fromLocalFile(helpFolder() + QStringLiteral("/attributions.html")));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const top = new QHBoxLayout;
    top->addWidget(picture);
    top->addWidget(title, 1);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(top);
    box->addWidget(attributions, 1);
    box->addWidget(buttons);
    resize(fontMetrics().height() * 36, fontMetrics().height() * 32);
}

} // namespace kestrav::desktop
