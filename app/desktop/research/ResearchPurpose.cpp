#include "app/desktop/research/ResearchPurpose.h"

#include "app/desktop/shell/Convert.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrav::desktop
{

namespace
{

constexpr int kLineLetters = 64;

} // namespace

ResearchPurpose::ResearchPurpose(QAction* make, QWidget* parent)
    : QWidget(parent), why_(new QLabel(this)), text_(new QLabel(this)),
      make_(new QPushButton(tr("Ma&ke Research Database"), this))
{
    why_->setObjectName(QStringLiteral("PurposeTitle"));
    text_->setObjectName(QStringLiteral("PurposeLabel"));
    make_->setObjectName(QStringLiteral("MakeResearchButton"));
    make_->setAutoDefault(false);
    connect(make_, &QPushButton::clicked, make, &QAction::trigger);
    QFont bold = why_->font();
    bold.setBold(true);
    why_->setFont(bold);
    auto* const column = new QWidget(this);
    column->setMaximumWidth(fontMetrics().averageCharWidth() * kLineLetters);
    auto* const lines = new QVBoxLayout(column);
    const int gap = fontMetrics().height();
    lines->setContentsMargins({});
    lines->setSpacing(gap);
    for (QLabel* const label : {why_, text_}) {
        label->setWordWrap(true);
        lines->addWidget(label);
    }
    lines->addWidget(make_, 0, Qt::AlignLeft);
    lines->addStretch(1);
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins(gap, 2 * gap, gap, gap);
    box->addStretch(1);
    box->addWidget(column, 1000);
    box->addStretch(1);
}

void ResearchPurpose::show(const QString& why, const data::ChartDatabase& charts,
                           data::ResearchState state)
{
    const bool foreign = state == data::ResearchState::Foreign;
    const QString file = toQt(data::researchPath(charts.path()).filename());
    why_->setText(why);
    why_->setVisible(!why.isEmpty());
    QStringList parts = {
        tr("A research database holds the positions of all charts of a database, computed once. "
           "From it this page lists, sorts and counts the charts by signs, nakshatras, longitudes "
           "and much else, draws graphs of them, and yogas are searched in it.")};
    if (foreign) {
        parts += tr("It would be kept in %1, which holds something else and is never written over. "
                    "Move or rename that file to make one.")
                     .arg(file);
    } else if (charts.size() == 0) {
        parts += tr("Open a database with charts to make one.");
    } else if (!charts.path().empty()) {
        parts += tr("It is kept in %1 beside the database, and is made again when charts or "
                    "settings have changed.")
                     .arg(file);
    }
    text_->setText(parts.join(QStringLiteral("\n\n")));
    make_->setVisible(!foreign && charts.size() > 0);
}

} // namespace kestrav::desktop
