#include "app/desktop/yogas/YogaPane.h"

#include "app/desktop/panels/FlowLayout.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Theme.h"
#include "app/desktop/yogas/RuleEditor.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/present/RuleLines.h"
#include "yoga/ExplainRule.h"
#include "yoga/YogaListEdit.h"

#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace kestrav::desktop
{

namespace
{

constexpr int kFewestLetters = 10; ///< of the chapter

QString textOf(const std::string& bytes)
{
    return toQt(core::fromFileBytes(bytes));
}

void setText(QLineEdit& field, const QString& text)
{
    if (field.text() != text) {
        field.setText(text);
        field.setCursorPosition(0);
    }
}

void setText(QPlainTextEdit& field, const QString& text)
{
    if (field.toPlainText() != text) {
        field.setPlainText(text);
    }
}

// Gives a field of a yoga what was typed, where it differs from what the yoga has: the same yoga
// may stand in another pane, and bytes that only look the same stay as they are.
bool take(std::string& field, const std::string& kept, const QString& typed)
{
    const QString trimmed = typed.trimmed();
    if (trimmed == textOf(kept)) {
        return false;
    }
    field = toUtf8(trimmed);
    return true;
}

} // namespace

YogaPane::YogaPane(Workspace& workspace, QWidget* parent)
    : QWidget(parent), desk_(YogaDesk::of(workspace)), delivered_(new QFrame(this)),
      title_(new QLineEdit(this)), chapter_(new QComboBox(this)), holds_(new QLabel(this)),
      rule_(new RuleEditor(workspace, this)), texts_(new QTabWidget(this)),
      interpretation_(new QPlainTextEdit(this)), comment_(new QPlainTextEdit(this))
{
    title_->setObjectName(QStringLiteral("TitleEdit"));
    chapter_->setObjectName(QStringLiteral("ChapterComboBox"));
    chapter_->setEditable(true);
    chapter_->setInsertPolicy(QComboBox::NoInsert);
    chapter_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chapter_->setMinimumContentsLength(kFewestLetters);
    chapter_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    holds_->setObjectName(QStringLiteral("HoldsLabel"));
    holds_->setTextFormat(Qt::PlainText);
    holds_->setWordWrap(true);
    rule_->setMinimumHeight(fontMetrics().height() * 8);
    makeTexts();
    const auto label = [this](const QString& text, QWidget* buddy) {
        auto* const made = new QLabel(text, this);
        made->setBuddy(buddy);
        return made;
    };
    auto* const names = new FlowLayout(fontMetrics().height() / 3);
    names->setContentsMargins({});
    names->addTogether({label(tr("T&itle:"), title_), title_});
    names->addTogether({label(tr("Ch&apter:"), chapter_), chapter_});
    auto* const below = new QSplitter(Qt::Vertical, this);
    below->setObjectName(QStringLiteral("RuleSplitter"));
    below->addWidget(rule_);
    below->addWidget(texts_);
    below->setStretchFactor(0, 3);
    below->setStretchFactor(1, 1);
    below->setChildrenCollapsible(false);
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(makeDeliveredStrip());
    box->addLayout(names);
    box->addWidget(holds_);
    box->addWidget(below, 1);
    connect(title_, &QLineEdit::editingFinished, &desk_, &YogaDesk::commitFields);
    connect(chapter_->lineEdit(), &QLineEdit::editingFinished, &desk_, &YogaDesk::commitFields);
    connect(chapter_, &QComboBox::activated, &desk_, &YogaDesk::commitFields);
    connect(rule_, &RuleEditor::ruleChanged, this,
            [this](const QString& what, const std::string& rule) { desk_.changeRule(what, rule); });
    connect(rule_, &RuleEditor::ruleDeleted, this, [this] { desk_.deleteRule(); });
    connect(&desk_, &YogaDesk::commitWanted, this, &YogaPane::commit);
    connect(&desk_, &YogaDesk::yogaAdded, this, &YogaPane::nameYoga);
    connect(&desk_, &YogaDesk::typedWanted, this, [this](yoga::Yoga* yoga) { gather(*yoga); });
}

QWidget* YogaPane::makeDeliveredStrip()
{
    delivered_->setObjectName(QStringLiteral("DeliveredFrame"));
    delivered_->setFrameShape(QFrame::StyledPanel);
    auto* const why = new QLabel(tr("Delivered with the program, to read only."), this);
    why->setWordWrap(true);
    auto* const copy = new QPushButton(tr("Copy to M&y Yogas"), this);
    copy->setObjectName(QStringLiteral("CopyYogaButton"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &YogaPane::copyWanted);
    auto* const strip = new QHBoxLayout(delivered_);
    strip->addWidget(why, 1);
    strip->addWidget(copy);
    const int gap = fontMetrics().height() / 3;
    strip->setContentsMargins(gap, gap / 2, gap / 2, gap / 2);
    return delivered_;
}

void YogaPane::makeTexts()
{
    interpretation_->setObjectName(QStringLiteral("InterpretationMemo"));
    interpretation_->setAccessibleName(tr("Interpretation"));
    comment_->setObjectName(QStringLiteral("CommentMemo"));
    comment_->setAccessibleName(tr("Comment"));
    for (QPlainTextEdit* const memo : {interpretation_, comment_}) {
        memo->setTabChangesFocus(true);
        memo->setFrameShape(QFrame::NoFrame);
        memo->installEventFilter(this);
    }
    texts_->setObjectName(QStringLiteral("TextsTab"));
    texts_->addTab(interpretation_, tr("Inte&rpretation"));
    texts_->addTab(comment_, tr("Comme&nt"));
    texts_->setMinimumHeight(fontMetrics().height() * 5);
}

QString YogaPane::outcomeText() const
{
    return holds_->text();
}

void YogaPane::showYoga(const YogaSkyPointer& sky)
{
    const yoga::Yoga* const yoga = desk_.yoga();
    shown_ = desk_.selected();
    if (yoga == nullptr) {
        explaining_.cancel();
        return;
    }
    const bool readOnly = desk_.isDelivered(shown_->file);
    filling_ = true;
    delivered_->setVisible(readOnly);
    setText(*title_, textOf(yoga->title));
    title_->setReadOnly(readOnly);
    chapter_->clear();
    for (const std::string& name : yoga::chaptersOf(desk_.library().files()[shown_->file].file)) {
        if (!name.empty()) {
            chapter_->addItem(textOf(name));
        }
    }
    chapter_->setEditText(textOf(yoga->chapter));
    chapter_->setEnabled(!readOnly);
    setText(*interpretation_, textOf(yoga->interpretation));
    setText(*comment_, textOf(yoga->comment));
    interpretation_->setReadOnly(readOnly);
    comment_->setReadOnly(readOnly);
    rule_->setRule(yoga->rule, !readOnly);
    filling_ = false;
    explain(sky);
}

void YogaPane::explain(const YogaSkyPointer& sky)
{
    core::Result<yoga::YogaRule> read = yoga::readCheckedRule(desk_.yoga()->rule);
    QPalette colours = holds_->palette();
    colours.setColor(QPalette::WindowText, themeColour(ThemeRole::Quiet));
    if (!sky || !read) {
        explaining_.cancel();
        rule_->setOutcome(std::nullopt);
        holds_->setText(!sky ? tr("No chart is open.") : tr("The rule cannot be tested."));
        holds_->setPalette(colours);
        return;
    }
    explaining_.start(
        [sky, rule = std::move(read.value())](const WorkHandle& /*handle*/) {
            yoga::Subject subject = sky->subject();
            return yoga::explainRule(rule, subject);
        },
        [this, sky](yoga::RuleOutcome outcome) {
            QPalette result = holds_->palette();
            result.setColor(QPalette::WindowText,
                            themeColour(outcome.truth ? ThemeRole::Good : ThemeRole::Bad));
            holds_->setPalette(result);
            holds_->setText(toQt(present::truthText(outcome.truth ? present::LiveTruth::Holds
                                                                  : present::LiveTruth::Fails)) +
                            tr(" in the chart of %1").arg(toQt(sky->chart->chart.name)));
            rule_->setOutcome(std::move(outcome));
        });
}

// A new yoga is given its title first.
void YogaPane::nameYoga()
{
    if (isVisible() && isActiveWindow()) {
        title_->setFocus();
        title_->selectAll();
    }
}

bool YogaPane::mayCommit() const
{
    const auto& place = desk_.selected();
    return !filling_ && desk_.yoga() != nullptr && shown_ && place->file == shown_->file &&
           place->yoga == shown_->yoga && !desk_.isDelivered(place->file);
}

void YogaPane::commit()
{
    commitTexts();
    if (!filling_) {
        rule_->commit();
    }
}

void YogaPane::commitTexts()
{
    if (!mayCommit()) {
        return;
    }
    const yoga::Yoga& kept = *desk_.yoga();
    yoga::Yoga typed = kept;
    const bool title = take(typed.title, kept.title, title_->text());
    const bool chapter = take(typed.chapter, kept.chapter, chapter_->currentText());
    const bool interpretation =
        take(typed.interpretation, kept.interpretation, interpretation_->toPlainText());
    const bool comment = take(typed.comment, kept.comment, comment_->toPlainText());
    if (!title && !chapter && !interpretation && !comment) {
        return;
    }
    const QString what = title            ? tr("change title")
                         : chapter        ? tr("change chapter")
                         : interpretation ? tr("change interpretation")
                                          : tr("change comment");
    desk_.changeYoga(what, [&typed](yoga::Yoga& changed) { changed = typed; });
}

void YogaPane::gather(yoga::Yoga& yoga) const
{
    if (mayCommit()) {
        const yoga::Yoga& kept = *desk_.yoga();
        take(yoga.title, kept.title, title_->text());
        take(yoga.chapter, kept.chapter, chapter_->currentText());
        take(yoga.interpretation, kept.interpretation, interpretation_->toPlainText());
        take(yoga.comment, kept.comment, comment_->toPlainText());
        take(yoga.rule, kept.rule, rule_->typedRule());
    }
}

bool YogaPane::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && (watched == interpretation_ || watched == comment_)) {
        desk_.commitFields();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kestrav::desktop
