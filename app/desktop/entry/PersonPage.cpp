#include "app/desktop/entry/EntryPages.h"

#include "app/desktop/entry/CodeComboBox.h"
#include "app/desktop/entry/FormRows.h"
#include "app/desktop/shell/Convert.h"
#include "data/ChartLineFields.h"
#include "data/PhoneticSound.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>

namespace kestrav::desktop
{

namespace
{

constexpr CodeRow kTags[] = {
    {"", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "no tag")},
    {"A", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "group A")},
    {"B", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "group B")},
    {"N", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "chart of a present moment (Now)")},
    {"L", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox", "location")},
    {"P", QT_TRANSLATE_NOOP("kestrav::desktop::CodeComboBox",
                            "primary; charts with the same code are linked to it")},
};

// Capital letters are the sounds with the tongue bent back; z is the sh of the palate.
constexpr CodeRow kSounds[] = {
    {"a", "Anna, Asha"},      {"i", "Eva, Indira"},
    {"u", "Uma, Ursula"},     {"e", "Amy, Ekta"},
    {"o", "Olga, Om"},        {"k", "Carl, Chris, Quentin"},
    {"kh", "Khalid"},         {"g", "Gary, Gita"},
    {"gh", "Ghanshyam"},      {"c", "Charles, Chandra"},
    {"ch", "Chhaya"},         {"j", "George, Jyoti"},
    {"jh", "Jhumpa"},         {"T", "Tom, Tina"},
    {"Th", "Thakur"},         {"D", "David, Diana"},
    {"Dh", "Dhaka"},          {"t", "Tara, Tulsi"},
    {"th", "Theodore"},       {"d", "Devi, Damayanti"},
    {"dh", "Dharma"},         {"n", "Nina, Narayan"},
    {"p", "Paul, Padma"},     {"ph", "Philip, Fiona"},
    {"b", "Barbara, Bala"},   {"bh", "Bharat"},
    {"m", "Mary, Mohan"},     {"y", "Yolanda, Yogesh"},
    {"r", "Robert, Rama"},    {"l", "Linda, Lakshmi"},
    {"v", "Victor, William"}, {"s", "Susan, Cecil, Sita"},
    {"S", "Shadanana"},       {"z", "Sean, Charlotte, Shanti"},
    {"h", "Harold, Hari"},
};

} // namespace

PersonPage::PersonPage(QWidget* parent)
    : EntryPage(parent), tag_(new CodeComboBox(kTags, 1, this)),
      label_(makeEdit(this, "LabelEdit", int(data::kLabelLength))),
      code_(makeEdit(this, "CodeEdit", int(data::kCodeLength))),
      sound_(new CodeComboBox(kSounds, int(data::kSoundLength), this)), group_(new QLabel(this)),
      occupation_(makeEdit(this, "OccupationEdit", int(data::kOccupationLength))),
      status_(makeEdit(this, "StatusEdit", int(data::kStatusLength))),
      freeText_(makeEdit(this, "FreeTextEdit", int(data::kFreeTextLength)))
{
    constexpr int kDateLength = 14;
    // One character less for the minus.
    constexpr int kLowest = -999999999;
    tag_->setObjectName(QStringLiteral("TagComboBox"));
    sound_->setObjectName(QStringLiteral("SoundComboBox"));
    group_->setObjectName(QStringLiteral("SoundGroupLabel"));
    const QString hint = tr("Phonetic first letter (Sanskrit equivalent sound). Pull down gives "
                            "examples where it is not obvious");
    sound_->setToolTip(hint);
    sound_->setAccessibleDescription(hint);
    auto* const hintLabel = new QLabel(hint, this);
    hintLabel->setObjectName(QStringLiteral("SoundHintLabel"));
    hintLabel->setWordWrap(true);
    code_->setToolTip(tr("Three characters that link a chart to its primary"));
    for (DateField* const date : {&second_, &third_}) {
        const bool first = date == &second_;
        date->edit = makeEdit(this, first ? "SecondDateEdit" : "ThirdDateEdit", kDateLength);
        date->note = makeNote(this, first ? "SecondDateNoteLabel" : "ThirdDateNoteLabel");
        date->real = false;
        watch(date->edit);
    }
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        numbers_[i] = new QSpinBox(this);
        numbers_[i]->setObjectName(QStringLiteral("Number%1SpinBox").arg(i + 1));
        numbers_[i]->setAccessibleName(tr("Number %1").arg(i + 1));
        numbers_[i]->setRange(kLowest, std::numeric_limits<int>::max());
        numbers_[i]->setButtonSymbols(QAbstractSpinBox::NoButtons);
        connect(numbers_[i], &QSpinBox::valueChanged, this, &EntryPage::edited);
    }
    auto* const rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addRow(*rows, tr("Ta&g:"), {tag_});
    addRow(*rows, tr("&Label:"), {label_});
    addRow(*rows, tr("Co&de:"), {code_});
    addRow(*rows, tr("&First sound:"), {sound_, group_});
    rows->addRow(QString(), hintLabel);
    addRow(*rows, tr("Occ&upation:"), {occupation_});
    addRow(*rows, tr("S&tatus:"), {status_});
    addRow(*rows, tr("Free te&xt:"), {freeText_});
    addRow(*rows, tr("Second d&ate:"), {second_.edit, second_.note});
    addRow(*rows, tr("T&hird date:"), {third_.edit, third_.note});
    addRow(*rows, tr("Nu&mbers:"), {numbers_[0], numbers_[1]});
    tabThroughRows(*rows);
    for (QLineEdit* const edit : {label_, code_, occupation_, status_, freeText_}) {
        watch(edit);
    }
    watch(tag_);
    watch(sound_);
    connect(sound_, &QComboBox::editTextChanged, this, &PersonPage::showGroup);
    connect(this, &EntryPage::edited, this, [this] {
        second_.showProblem();
        third_.showProblem();
    });
}

void PersonPage::fill(const core::Chart& chart, data::DateOrder order)
{
    const core::Identity& identity = chart.identity;
    tag_->setCode(identity.tag == L' ' ? QString() : toQt(std::wstring(1, identity.tag)));
    label_->setText(toQt(identity.label));
    code_->setText(toQt(identity.code));
    sound_->setCode(toQt(identity.sound));
    occupation_->setText(toQt(identity.occupation));
    status_->setText(toQt(identity.status));
    freeText_->setText(toQt(identity.freeText));
    second_.fill(identity.secondDate, order);
    third_.fill(identity.thirdDate, order);
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        numbers_[i]->setValue(identity.numbers[i]);
    }
    showGroup();
}

void PersonPage::store(core::Chart& chart) const
{
    core::Identity& identity = chart.identity;
    const std::wstring tag = toWide(tag_->code());
    identity.tag = tag.empty() ? L' ' : tag.front();
    identity.label = toWide(label_->text());
    identity.code = toWide(code_->text());
    identity.sound = toWide(sound_->code());
    identity.soundGroup = data::soundGroup(identity.sound);
    identity.occupation = toWide(occupation_->text());
    identity.status = toWide(status_->text());
    identity.freeText = toWide(freeText_->text());
    identity.secondDate = second_.value();
    identity.thirdDate = third_.value();
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        identity.numbers[i] = numbers_[i]->value();
    }
}

bool PersonPage::valid() const
{
    return second_.problem().isEmpty() && third_.problem().isEmpty();
}

void PersonPage::showGroup()
{
    const QString sound = sound_->code();
    group_->setText(sound.isEmpty() ? QString()
                                    : tr("group %1").arg(data::soundGroup(toWide(sound))));
}

} // namespace kestrav::desktop
