#include "app/desktop/entry/EntryPages.h"

#include "app/desktop/entry/FormRows.h"
#include "app/desktop/shell/Convert.h"
#include "data/ChartLineFields.h"
#include "data/ContactText.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace kestrav::desktop
{

static_assert(data::kContactFieldCount == 11);

ContactPage::ContactPage(QWidget* parent)
    : EntryPage(parent), note_(makeNote(this, "ContactNoteLabel"))
{
    struct Row
    {
        const char* name;
        QString label;
    };
    const std::array<Row, data::kContactFieldCount> names = {{
        {"ContactNameEdit", tr("Na&me:")},
        {"StreetEdit", tr("S&treet:")},
        {"ContactCityEdit", tr("Cit&y:")},
        {"StateEdit", tr("St&ate:")},
        {"PostcodeEdit", tr("&Zip or postcode:")},
        {"ContactCountryEdit", tr("Co&untry:")},
        {"Telephone1Edit", tr("Telephone &1:")},
        {"Telephone2Edit", tr("Telephone &2:")},
        {"FaxEdit", tr("Fa&x:")},
        {"EmailEdit", tr("E-mai&l:")},
        {"SortCodeEdit", tr("Sort co&de:")},
    }};
    auto* const rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        edits_[i] = makeEdit(this, names[i].name, int(data::contactFields()[i].most));
        addRow(*rows, names[i].label, {edits_[i]});
        watch(edits_[i]);
    }
    rows->addRow(note_);
    connect(this, &EntryPage::edited, this, &ContactPage::check);
}

void ContactPage::fill(const core::Chart& chart, data::DateOrder /*order*/)
{
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        edits_[i]->setText(toQt(chart.identity.contact.*data::contactFields()[i].text));
        edits_[i]->setCursorPosition(0);
    }
    check();
}

void ContactPage::store(core::Chart& chart) const
{
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        chart.identity.contact.*data::contactFields()[i].text = toWide(edits_[i]->text());
    }
}

bool ContactPage::valid() const
{
    core::Chart chart;
    store(chart);
    core::Contact kept = chart.identity.contact;
    data::cleanContact(kept);
    return kept == chart.identity.contact;
}

void ContactPage::check()
{
    if (valid()) {
        note_->clear();
        return;
    }
    for (const QLineEdit* const edit : edits_) {
        if (edit->text().contains(QLatin1Char('^')) || edit->text().contains(QLatin1Char('"'))) {
            showNote(*note_, *this, tr("The contact cannot hold the characters ^ and \"."));
            return;
        }
    }
    showNote(*note_, *this,
             tr("The contact is too long: all its fields together can have about %1 characters.")
                 .arg(data::kExtraLength - data::kContactFieldCount));
}

} // namespace kestrav::desktop
