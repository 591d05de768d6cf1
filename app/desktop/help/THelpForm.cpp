#include "app/desktop/help/THelpForm.h"

#include "app/desktop/help/HelpTopics.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace kestrav::desktop
{

THelpForm::THelpForm(QWidget* parent)
    : QDialog(parent), browser_(new QTextBrowser(this)), find_(new QLineEdit(this))
{
    setObjectName(QStringLiteral("THelpForm"));
    setWindowTitle(tr("Help"));
    browser_->setObjectName(QStringLiteral("HelpBrowser"));
    browser_->setAccessibleName(tr("Help page"));
    browser_->setSearchPaths({helpFolder()});
    browser_->setFrameShape(QFrame::NoFrame);
    find_->setObjectName(QStringLiteral("FindEdit"));
    find_->setAccessibleName(tr("Find in this page"));
    find_->setPlaceholderText(tr("Find in this page"));
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
    bar->addStretch(1);
    bar->addWidget(find_);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(bar);
    box->addWidget(browser_, 1);
    connect(find_, &QLineEdit::returnPressed, this, &THelpForm::FindEditReturnPressed);
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
    // From the end the search goes on at the beginning.
    if (!browser_->find(find_->text())) {
        browser_->moveCursor(QTextCursor::Start);
        browser_->find(find_->text());
    }
}

} // namespace kestrav::desktop
