#include "app/desktop/help/THelpForm.h"

#include "app/desktop/help/HelpTopics.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace kestrav::desktop
{

THelpForm::THelpForm(QWidget* parent)
    : QDialog(parent), browser_(new QTextBrowser(this)), find_(new QLineEdit(this)),
      missing_(new QLabel(tr("No page has these words."), this))
{
    setObjectName(QStringLiteral("THelpForm"));
    setWindowTitle(tr("Help"));
    browser_->setObjectName(QStringLiteral("HelpBrowser"));
    browser_->setAccessibleName(tr("Help page"));
    browser_->setSearchPaths({helpFolder()});
    browser_->setFrameShape(QFrame::NoFrame);
    find_->setObjectName(QStringLiteral("FindEdit"));
    find_->setAccessibleName(tr("Find in the help"));
    find_->setPlaceholderText(tr("Find in the help"));
    find_->setClearButtonEnabled(true);
    const auto button = [this](const QString& text, const QString& tip, const char* name,
                               auto handler) {
        auto* const made = new QToolButton(this);
        made->setText(text);
        made->setToolTip(tip);
        made->setAccessibleName(tip);
        made->setObjectName(QLatin1String(name));
        connect(made, &QToolButton::clicked, browser_, handler);
        return made;
    };
    auto* const bar = new QHBoxLayout;
    bar->addWidget(button(QStringLiteral("\u25C0"), tr("Back"), "BackButton",
                          [this] { browser_->backward(); }));
    bar->addWidget(button(QStringLiteral("\u25B6"), tr("Forward"), "ForwardButton",
                          [this] { browser_->forward(); }));
    bar->addWidget(button(tr("Contents"), tr("Contents"), "ContentsButton",
                          [this] { showTopic(QStringLiteral("index.html")); }));
    missing_->setObjectName(QStringLiteral("MissingLabel"));
    missing_->setForegroundRole(QPalette::PlaceholderText);
    missing_->hide();
    bar->addStretch(1);
    bar->addWidget(missing_);
    bar->addWidget(find_);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(bar);
    box->addWidget(browser_, 1);
    connect(find_, &QLineEdit::returnPressed, this, &THelpForm::FindEditReturnPressed);
    connect(find_, &QLineEdit::textChanged, missing_, &QWidget::hide);
    auto* const toFind = new QShortcut(QKeySequence::Find, this);
    connect(toFind, &QShortcut::activated, find_, [this] {
        find_->setFocus(Qt::ShortcutFocusReason);
        find_->selectAll();
    });
    find_->setToolTip(
        tr("Enter finds the next place (%1)")
            .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    browser_->setFocus();
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
        const QString title = browser_->documentTitle();
        setWindowTitle(title.isEmpty() ? tr("Help") : tr("Help: %1").arg(title));
    });
    resize(fontMetrics().height() * 45, fontMetrics().height() * 40);
    showTopic(QStringLiteral("index.html"));
}

void THelpForm::showTopic(const QString& panelOrForm)
{
    if (helpFolder().isEmpty()) {
        browser_->setPlainText(tr("The help pages are not installed."));
        return;
    }
    const QString page = helpPage(panelOrForm);
    QUrl url =
        QUrl::fromLocalFile(helpFolder() + QLatin1Char('/') + page.section(QLatin1Char('#'), 0, 0));
    url.setFragment(page.section(QLatin1Char('#'), 1, 1));
    browser_->setSource(url);
}

QString THelpForm::page() const
{
    return browser_->source().fileName();
}

void THelpForm::FindEditReturnPressed()
{
    // From the end of the page the search goes on on the next one that has the words.
    if (find_->text().isEmpty() || browser_->find(find_->text()) || findOnOtherPages()) {
        return;
    }
    browser_->moveCursor(QTextCursor::Start);
    missing_->setVisible(!browser_->find(find_->text()));
}

bool THelpForm::findOnOtherPages()
{
    const QStringList pages = QDir(helpFolder()).entryList({QStringLiteral("*.html")});
    const qsizetype here = pages.indexOf(page());
    for (qsizetype i = 1; i < pages.size(); ++i) {
        const QString& name = pages[(here + i) % pages.size()];
        QFile file(helpFolder() + QLatin1Char('/') + name);
        if (!file.open(QIODevice::ReadOnly)) {
            continue;
        }
        QTextDocument words;
        words.setHtml(QString::fromUtf8(file.readAll()));
        if (!words.find(find_->text()).isNull()) {
            showTopic(name);
            return browser_->find(find_->text());
        }
    }
    return false;
}

} // namespace kestrav::desktop
