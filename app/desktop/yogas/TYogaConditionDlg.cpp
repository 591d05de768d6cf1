#include "app/desktop/yogas/TYogaConditionDlg.h"

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/yogas/WordChoosers.h"
#include "app/present/RuleLines.h"
#include "core/Varga.h"
#include "yoga/ParseCondition.h"
#include "yoga/YogaRule.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrav::desktop
{

namespace
{

constexpr int kKindRole = Qt::UserRole;

QString labelOf(const yoga::Parameter& parameter)
{
    QString label = toQt(std::string(parameter.name));
    label = label.left(1).toUpper() + label.mid(1);
    if (parameter.type == yoga::ParameterType::Number && !parameter.repeated) {
        label += QStringLiteral(" (%1\u2013%2)").arg(parameter.lowest).arg(parameter.highest);
    }
    return parameter.optional ? TYogaConditionDlg::tr("%1, optional:").arg(label)
                              : label + QLatin1Char(':');
}

} // namespace

TYogaConditionDlg::TYogaConditionDlg(Workspace& workspace, const std::string& condition,
                                     QWidget* parent)
    : QDialog(parent), chart_(workspace.chart()), second_(workspace.secondChart()),
      filter_(new QLineEdit(this)), kinds_(new QTreeWidget(this)), meaning_(new QLabel(this)),
      fieldsPlace_(new QWidget(this)), negated_(new QCheckBox(tr("&NOT: the opposite"), this)),
      exchanged_(new QCheckBox(tr("With the two charts e&xchanged"), this)),
      inVargas_(new QGroupBox(tr("In &divisional charts"), this)), firstVarga_(new QComboBox(this)),
      secondVarga_(new QComboBox(this)), option_(new QComboBox(this)), sentence_(new QLabel(this)),
      truth_(new QLabel(this)), text_(new QLineEdit(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(condition.empty() ? tr("Add Condition") : tr("Edit Condition"));
    setObjectName(QStringLiteral("TYogaConditionDlg"));
    if (chart_) {
        subject_ = std::make_unique<yoga::Subject>(chart_->settings, &workspace.data()->series);
        subject_->setChart(chart_->chart);
        subject_->setSecondChart(second_ ? &second_->chart : nullptr);
        subject_->setMoment(workspace.moment());
    }
    makeKinds();
    makeVargas();
    meaning_->setObjectName(QStringLiteral("MeaningLabel"));
    meaning_->setWordWrap(true);
    meaning_->setTextFormat(Qt::PlainText);
    negated_->setObjectName(QStringLiteral("NotCheckBox"));
    exchanged_->setObjectName(QStringLiteral("ExchangedCheckBox"));
    sentence_->setObjectName(QStringLiteral("SentenceLabel"));
    sentence_->setWordWrap(true);
    sentence_->setTextFormat(Qt::PlainText);
    QFont bold = font();
    bold.setBold(true);
    sentence_->setFont(bold);
    truth_->setObjectName(QStringLiteral("TruthLabel"));
    truth_->setWordWrap(true);
    truth_->setTextFormat(Qt::PlainText);
    text_->setObjectName(QStringLiteral("ConditionEdit"));
    text_->setReadOnly(true);
    text_->setAccessibleName(tr("The condition in the language of rules"));

    auto* const fieldsBox = new QVBoxLayout(fieldsPlace_);
    fieldsBox->setContentsMargins({});
    auto* const rightSide = new QWidget(this);
    auto* const right = new QVBoxLayout(rightSide);
    right->addWidget(meaning_);
    right->addWidget(fieldsPlace_);
    right->addWidget(negated_);
    right->addWidget(exchanged_);
    right->addWidget(inVargas_);
    right->addStretch(1);
    auto* const scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("WordsArea"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(rightSide);
    auto* const leftSide = new QWidget(this);
    auto* const left = new QVBoxLayout(leftSide);
    left->setContentsMargins({});
    auto* const filterLabel = new QLabel(tr("&Kind of condition:"), this);
    filterLabel->setBuddy(filter_);
    left->addWidget(filterLabel);
    left->addWidget(filter_);
    left->addWidget(kinds_, 1);
    auto* const sides = new QSplitter(this);
    sides->addWidget(leftSide);
    sides->addWidget(scroll);
    sides->setStretchFactor(0, 1);
    sides->setStretchFactor(1, 2);
    sides->setChildrenCollapsible(false);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(sides, 1);
    box->addWidget(sentence_);
    box->addWidget(truth_);
    box->addWidget(text_);
    box->addWidget(buttons_);
    const int line = fontMetrics().height();
    resize(line * 52, line * 38);

    const auto changed = [this] {
        showResult();
    };
    connect(negated_, &QCheckBox::toggled, this, changed);
    connect(exchanged_, &QCheckBox::toggled, this, changed);
    connect(inVargas_, &QGroupBox::toggled, this, changed);
    for (QComboBox* const chooser : {firstVarga_, secondVarga_, option_}) {
        connect(chooser, &QComboBox::currentIndexChanged, this, changed);
    }
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (const auto begin = present::readDraft(condition); begin && !condition.empty()) {
        setDraft(*begin);
    } else {
        kinds_->setCurrentItem(kinds_->topLevelItem(0)->child(0));
    }
    filter_->setFocus();
}

TYogaConditionDlg::~TYogaConditionDlg() = default;

void TYogaConditionDlg::makeKinds()
{
    filter_->setObjectName(QStringLiteral("FilterEdit"));
    filter_->setPlaceholderText(tr("Part of a name or meaning"));
    filter_->setClearButtonEnabled(true);
    kinds_->setObjectName(QStringLiteral("KindsTree"));
    kinds_->setAccessibleName(tr("Kinds of conditions"));
    kinds_->setHeaderHidden(true);
    kinds_->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    QTreeWidgetItem* group = nullptr;
    for (const yoga::Kind& kind : yoga::kinds()) {
        const QString heading = toQt(std::string(kind.group));
        if (group == nullptr || group->text(0) != heading) {
            group = new QTreeWidgetItem(kinds_, {heading});
            group->setFlags(Qt::ItemIsEnabled);
            QFont bold = font();
            bold.setBold(true);
            group->setFont(0, bold);
        }
        auto* const item = new QTreeWidgetItem(group, {toQt(present::kindLabel(kind))});
        item->setData(0, kKindRole, kind.number);
        item->setToolTip(0, toQt(std::string(kind.meaning)));
    }
    kinds_->expandAll();
    connect(filter_, &QLineEdit::textChanged, this, &TYogaConditionDlg::filterKinds);
    connect(kinds_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int number = item != nullptr ? item->data(0, kKindRole).toInt() : 0;
        if (number > 0 && !filling_) {
            showKind(yoga::findKind(number));
            showResult();
        }
    });
}

void TYogaConditionDlg::makeVargas()
{
    inVargas_->setObjectName(QStringLiteral("VargasGroupBox"));
    inVargas_->setCheckable(true);
    inVargas_->setChecked(false);
    firstVarga_->setObjectName(QStringLiteral("FirstVargaComboBox"));
    secondVarga_->setObjectName(QStringLiteral("SecondVargaComboBox"));
    option_->setObjectName(QStringLiteral("OptionComboBox"));
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        firstVarga_->addItem(vargaTitle(varga));
        secondVarga_->addItem(vargaTitle(varga));
    }
    firstVarga_->setCurrentIndex(core::kNavamsha);
    secondVarga_->setCurrentIndex(core::kNavamsha);
    for (int option = 1; option <= present::kVargaOptions; ++option) {
        option_->addItem(toQt(present::optionLabel(option)));
    }
    auto* const form = new QFormLayout(inVargas_);
    form->addRow(tr("&First point in:"), firstVarga_);
    form->addRow(tr("&Other points in:"), secondVarga_);
    form->addRow(tr("&Variant:"), option_);
}

void TYogaConditionDlg::filterKinds()
{
    const QString wanted = filter_->text().trimmed();
    for (int i = 0; i < kinds_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* const group = kinds_->topLevelItem(i);
        bool any = false;
        for (int k = 0; k < group->childCount(); ++k) {
            QTreeWidgetItem* const item = group->child(k);
            const bool matches = item->text(0).contains(wanted, Qt::CaseInsensitive) ||
                                 item->toolTip(0).contains(wanted, Qt::CaseInsensitive);
            item->setHidden(!matches);
            any = any || matches;
        }
        group->setHidden(!any);
    }
}

void TYogaConditionDlg::showKind(const yoga::Kind* kind)
{
    kind_ = kind;
    choosers_.clear();
    // Its signals may be the reason of this call.
    if (fields_ != nullptr) {
        fields_->hide();
        fields_->setParent(nullptr);
        fields_->deleteLater();
    }
    fields_ = new QWidget(fieldsPlace_);
    auto* const form = new QFormLayout(fields_);
    form->setContentsMargins({});
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    for (std::size_t i = 0; i < kind->used().size(); ++i) {
        const yoga::Parameter& parameter = kind->parameters[i];
        WordChooser* const chooser = makeChooser(parameter, fields_);
        chooser->setObjectName(QStringLiteral("Parameter%1").arg(i));
        connect(chooser, &WordChooser::changed, this, &TYogaConditionDlg::showResult);
        form->addRow(labelOf(parameter), chooser);
        choosers_.push_back(chooser);
    }
    fieldsPlace_->layout()->addWidget(fields_);
    meaning_->setText(toQt(std::string(kind->meaning)) + QLatin1Char('\n') +
                      tr("Example: %1.").arg(toQt(std::string(kind->exampleMeaning))));
    inVargas_->setEnabled(!kind->rashiOnly);
    inVargas_->setToolTip(kind->rashiOnly ? tr("Divisional charts make no difference here.")
                                          : QString());
}

present::ConditionDraft TYogaConditionDlg::draft() const
{
    present::ConditionDraft draft;
    draft.kind = kind_;
    draft.negated = negated_->isChecked();
    draft.exchanged = exchanged_->isChecked();
    draft.inVargas = inVargas_->isChecked() && inVargas_->isEnabled();
    draft.option = option_->currentIndex() + 1;
    draft.vargas = {firstVarga_->currentIndex(), secondVarga_->currentIndex()};
    for (std::size_t i = 0; i < choosers_.size(); ++i) {
        draft.words[i] = choosers_[i]->words();
    }
    return draft;
}

void TYogaConditionDlg::setDraft(const present::ConditionDraft& draft)
{
    filling_ = true;
    for (int i = 0; i < kinds_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* const group = kinds_->topLevelItem(i);
        for (int k = 0; k < group->childCount(); ++k) {
            if (group->child(k)->data(0, kKindRole).toInt() == draft.kind->number) {
                kinds_->setCurrentItem(group->child(k));
            }
        }
    }
    showKind(draft.kind);
    for (std::size_t i = 0; i < choosers_.size(); ++i) {
        choosers_[i]->setWords(draft.words[i]);
    }
    negated_->setChecked(draft.negated);
    exchanged_->setChecked(draft.exchanged);
    inVargas_->setChecked(draft.inVargas);
    option_->setCurrentIndex(draft.option - 1);
    if (draft.inVargas) {
        firstVarga_->setCurrentIndex(draft.vargas[0]);
        secondVarga_->setCurrentIndex(draft.vargas[1]);
    }
    filling_ = false;
    showResult();
}

std::string TYogaConditionDlg::condition() const
{
    return present::conditionText(draft());
}

void TYogaConditionDlg::showResult()
{
    if (filling_) {
        return;
    }
    const present::ConditionDraft made = draft();
    const std::string problem = present::draftProblem(made);
    const std::string text = present::conditionText(made);
    text_->setText(toQt(text));
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(problem.empty());
    QPalette colours = truth_->palette();
    if (!problem.empty()) {
        sentence_->setText(tr("Not complete yet"));
        const QString reason = toQt(problem);
        truth_->setText(reason.left(1).toUpper() + reason.mid(1) + QLatin1Char('.'));
        colours.setColor(QPalette::WindowText, themeColour(ThemeRole::Bad));
    } else {
        sentence_->setText(toQt(present::conditionSentence(text)));
        if (!subject_) {
            truth_->setText(tr("No chart is open."));
            colours.setColor(QPalette::WindowText, themeColour(ThemeRole::Quiet));
        } else {
            const yoga::Condition condition = yoga::ParseCondition(text, yoga::kCatalogueNames);
            const yoga::ConditionResult result = yoga::explainCondition(condition, *subject_);
            const bool holds = result.truth != condition.negated;
            truth_->setText(toQt(present::truthText(holds ? present::LiveTruth::Holds
                                                          : present::LiveTruth::Fails)) +
                            tr(" in the chart of %1. ").arg(toQt(chart_->chart.name)) +
                            toQt(result.reason));
            colours.setColor(QPalette::WindowText,
                             themeColour(holds ? ThemeRole::Good : ThemeRole::Bad));
        }
    }
    truth_->setPalette(colours);
}

} // namespace kestrav::desktop
