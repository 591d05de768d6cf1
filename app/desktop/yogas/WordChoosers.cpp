#include "app/desktop/yogas/WordChoosers.h"

#include "app/desktop/shell/Convert.h"
#include "yoga/Keywords.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

using yoga::ParameterType;

QString nameOf(const yoga::Parameter& parameter)
{
    return toQt(std::string(parameter.name));
}

void addHeading(QComboBox& box, const QString& heading)
{
    box.addItem(heading);
    auto* const items = qobject_cast<QStandardItemModel*>(box.model());
    QStandardItem* const item = items->item(box.count() - 1);
    item->setEnabled(false);
    QFont bold = box.font();
    bold.setBold(true);
    item->setFont(bold);
}

const QString kBeforeMeaning = QStringLiteral(" \u2013 ");

// "Jup - Jupiter", with the word itself as data.
void addChoice(QComboBox& box, const present::ChoiceWord& choice)
{
    const QString word = toQt(choice.word);
    box.addItem(word + kBeforeMeaning + toQt(choice.meaning), word);
}

// Whether a quantifier can stand before the word.
bool isPlainSet(const QString& word)
{
    const int code = yoga::keywordCode(toUtf8(word));
    return yoga::wordClass(code) == yoga::WordClass::Set &&
           yoga::setWord(code).quantifier == yoga::Quantifier::None;
}

int columnsFor(std::size_t count, bool wide)
{
    return wide ? 3 : count > 12 ? 9 : 6;
}

} // namespace

PointChooser::PointChooser(const yoga::Parameter& parameter, QWidget* parent)
    : WordChooser(parent), takesQuantifier_(parameter.type == ParameterType::Subject),
      quantifier_(new QComboBox(this)), word_(new QComboBox(this))
{
    const QString name = nameOf(parameter);
    quantifier_->setObjectName(QStringLiteral("QuantifierComboBox"));
    quantifier_->setAccessibleName(tr("How many of the set, %1").arg(name));
    for (const present::ChoiceWord& choice : present::quantifierChoices()) {
        quantifier_->addItem(toQt(choice.meaning), toQt(choice.word));
    }
    word_->setObjectName(QStringLiteral("PointComboBox"));
    word_->setAccessibleName(name);
    word_->setEditable(true);
    word_->setInsertPolicy(QComboBox::NoInsert);
    word_->setMaxVisibleItems(20);
    word_->completer()->setCompletionMode(QCompleter::PopupCompletion);
    word_->completer()->setFilterMode(Qt::MatchContains);
    word_->lineEdit()->setPlaceholderText(parameter.optional ? tr("the ascendant")
                                                             : tr("choose or type"));
    const auto addSets = [this] {
        addHeading(*word_, tr("Sets of planets"));
        for (const present::ChoiceWord& choice : present::setChoices()) {
            addChoice(*word_, choice);
        }
    };
    if (parameter.type == ParameterType::Set) {
        addSets();
    }
    for (const present::ChoiceGroup& group : present::pointChoices()) {
        addHeading(*word_, toQt(group.heading));
        for (const present::ChoiceWord& choice : group.choices) {
            addChoice(*word_, choice);
        }
    }
    if (parameter.type == ParameterType::Subject) {
        addSets();
    }
    word_->setMinimumContentsLength(18);
    word_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    word_->setCurrentIndex(-1);
    word_->clearEditText();

    auto* const steps = new QToolButton(this);
    steps->setObjectName(QStringLiteral("StepsButton"));
    steps->setText(tr("of..."));
    steps->setToolTip(tr("Goes on from the point: to its dispositor, a lord, a house"));
    steps->setAccessibleName(tr("Steps before %1").arg(name));
    steps->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(steps);
    for (const present::ChoiceGroup& group : present::stepChoices()) {
        QMenu* const under = group.heading.empty() ? menu : menu->addMenu(toQt(group.heading));
        for (const present::ChoiceWord& choice : group.choices) {
            under->addAction(toQt(choice.meaning), this,
                             [this, step = toQt(choice.word)] { addStep(step); });
        }
    }
    steps->setMenu(menu);

    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(quantifier_);
    box->addWidget(word_, 1);
    box->addWidget(steps);
    setFocusProxy(word_);
    connect(word_, &QComboBox::activated, this, [this](int index) {
        // What is typed and shown is the word alone.
        word_->setEditText(word_->itemData(index).toString());
    });
    connect(word_, &QComboBox::editTextChanged, this, [this] {
        enableQuantifier();
        emit changed();
    });
    connect(quantifier_, &QComboBox::activated, this, &PointChooser::changed);
    enableQuantifier();
}

void PointChooser::enableQuantifier()
{
    quantifier_->setVisible(takesQuantifier_ && isPlainSet(typed()));
}

void PointChooser::addStep(const QString& step)
{
    word_->setEditText(step + word_->currentText());
}

// A completed entry still shows its meaning, and whoever types may know only that.
QString PointChooser::typed() const
{
    const QString text = word_->currentText().section(kBeforeMeaning, 0, 0).trimmed();
    if (word_->findData(text) >= 0) {
        return text;
    }
    for (int i = 0; i < word_->count(); ++i) {
        const QString word = word_->itemData(i).toString();
        const QString meaning = word_->itemText(i).section(kBeforeMeaning, 1);
        if (!word.isEmpty() && (word.compare(text, Qt::CaseInsensitive) == 0 ||
                                meaning.compare(text, Qt::CaseInsensitive) == 0)) {
            return word;
        }
    }
    return text;
}

std::string PointChooser::words() const
{
    QString text = typed();
    if (takesQuantifier_ && isPlainSet(text)) {
        text.prepend(quantifier_->currentData().toString());
    }
    return toUtf8(text);
}

void PointChooser::setWords(const std::string& words)
{
    QString text = toQt(words);
    for (int i = 0; takesQuantifier_ && i < quantifier_->count(); ++i) {
        const QString before = quantifier_->itemData(i).toString();
        if (text.startsWith(before) && isPlainSet(text.mid(before.size()))) {
            quantifier_->setCurrentIndex(i);
            text.remove(0, before.size());
            break;
        }
    }
    word_->setEditText(text);
}

ListChooser::ListChooser(const yoga::Parameter& parameter, QWidget* parent)
    : WordChooser(parent), parameter_(parameter)
{
    const std::vector<present::ChoiceWord> choices = present::listChoices(parameter);
    const bool wide = parameter.type == ParameterType::Word ||
                      parameter.type == ParameterType::Nakshatra ||
                      parameter.type == ParameterType::Signs;
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    auto* const grid = new QGridLayout;
    const int columns = columnsFor(choices.size(), wide);
    for (std::size_t i = 0; i < choices.size(); ++i) {
        auto* const check = new QCheckBox(toQt(choices[i].meaning), this);
        check->setObjectName(QStringLiteral("Box-") + toQt(choices[i].word));
        check->setAccessibleName(nameOf(parameter) + QLatin1Char(' ') + toQt(choices[i].meaning));
        grid->addWidget(check, int(i) / columns, int(i) % columns);
        connect(check, &QCheckBox::toggled, this, &ListChooser::changed);
        boxes_.push_back(check);
    }
    grid->setColumnStretch(columns, 1);
    const std::vector<present::MaskChoice> masks = present::maskChoices(parameter.type);
    if (!masks.empty()) {
        groups_ = new QComboBox(this);
        groups_->setObjectName(QStringLiteral("GroupsComboBox"));
        groups_->setAccessibleName(tr("Several %1 at once").arg(nameOf(parameter)));
        groups_->addItem(tr("choose several..."));
        for (const present::MaskChoice& choice : masks) {
            groups_->addItem(toQt(choice.word.meaning), choice.mask);
        }
        connect(groups_, &QComboBox::activated, this, [this](int index) {
            if (index > 0) {
                choose(groups_->itemData(index).toUInt());
            }
            groups_->setCurrentIndex(0);
        });
        auto* const row = new QHBoxLayout;
        row->addWidget(groups_);
        row->addStretch(1);
        box->addLayout(row);
    }
    box->addLayout(grid);
    if (!boxes_.empty()) {
        setFocusProxy(boxes_.front());
    }
}

void ListChooser::choose(std::uint32_t mask)
{
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        boxes_[i]->setChecked((mask >> unsigned(i + 1) & 1U) != 0);
    }
}

std::string ListChooser::words() const
{
    std::vector<bool> chosen;
    for (const QCheckBox* const box : boxes_) {
        chosen.push_back(box->isChecked());
    }
    return present::wordsOfChoices(parameter_, chosen);
}

void ListChooser::setWords(const std::string& words)
{
    const std::vector<bool> chosen = present::choicesOfWords(parameter_, words);
    for (std::size_t i = 0; i < boxes_.size() && i < chosen.size(); ++i) {
        boxes_[i]->setChecked(chosen[i]);
    }
}

NumberChooser::NumberChooser(const yoga::Parameter& parameter, QWidget* parent)
    : WordChooser(parent), number_(new QSpinBox(this)), optional_(parameter.optional)
{
    number_->setObjectName(QStringLiteral("NumberSpinBox"));
    number_->setAccessibleName(nameOf(parameter));
    number_->setRange(parameter.lowest - (optional_ ? 1 : 0), parameter.highest);
    if (optional_) {
        number_->setSpecialValueText(tr("not given"));
    }
    number_->setValue(number_->minimum());
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(number_);
    box->addStretch(1);
    setFocusProxy(number_);
    connect(number_, &QSpinBox::valueChanged, this, &NumberChooser::changed);
}

std::string NumberChooser::words() const
{
    return optional_ && number_->value() == number_->minimum() ? std::string()
                                                               : std::to_string(number_->value());
}

void NumberChooser::setWords(const std::string& words)
{
    // "12a" is a number too.
    int value = 0;
    for (const char letter : words) {
        if (letter < '0' || letter > '9') {
            break;
        }
        value = value * 10 + (letter - '0');
    }
    number_->setValue(words.empty() ? number_->minimum() : value);
}

PlainWordChooser::PlainWordChooser(const yoga::Parameter& parameter, QWidget* parent)
    : WordChooser(parent), word_(new QComboBox(this))
{
    word_->setObjectName(QStringLiteral("WordComboBox"));
    word_->setAccessibleName(nameOf(parameter));
    if (parameter.optional) {
        word_->addItem(tr("not given"), QString());
    }
    for (const present::ChoiceWord& choice : present::listChoices(parameter)) {
        word_->addItem(toQt(choice.meaning), toQt(choice.word));
    }
    auto* const box = new QHBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(word_);
    box->addStretch(1);
    setFocusProxy(word_);
    connect(word_, &QComboBox::currentIndexChanged, this, &PlainWordChooser::changed);
}

std::string PlainWordChooser::words() const
{
    return toUtf8(word_->currentData().toString());
}

void PlainWordChooser::setWords(const std::string& words)
{
    word_->setCurrentIndex(std::max(0, word_->findData(toQt(words))));
}

WordChooser* makeChooser(const yoga::Parameter& parameter, QWidget* parent)
{
    if (yoga::isPointLike(parameter.type)) {
        return new PointChooser(parameter, parent);
    }
    const bool single = !parameter.repeated;
    if (single && parameter.type == ParameterType::Number) {
        return new NumberChooser(parameter, parent);
    }
    if (single && parameter.type == ParameterType::Word) {
        return new PlainWordChooser(parameter, parent);
    }
    return new ListChooser(parameter, parent);
}

} // namespace kestrav::desktop
