#include "app/desktop/options/TOptionsDlg.h"

#include "app/desktop/options/ChangeOptions.h"
#include "app/desktop/options/Ks6customayan.h"
#include "app/desktop/options/SettingEditor.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cstring>

namespace kestrav::desktop
{

namespace
{

QToolButton* rowButton(const QString& text, const QString& name, const QString& accessible,
                       QWidget* parent)
{
    auto* const button = new QToolButton(parent);
    button->setText(text);
    button->setObjectName(name);
    button->setAccessibleName(accessible);
    button->setToolTip(accessible);
    button->setAutoRaise(true);
    return button;
}

} // namespace

TOptionsDlg::TOptionsDlg(TKSVform1& window, QWidget* parent)
    : QDialog(parent), window_(window), settings_(window.workspace().settings()),
      inForce_(settings_), search_(new QLineEdit(this)), pages_(new QListWidget(this)),
      area_(new QScrollArea(this)), none_(new QLabel(tr("No option has these words."), this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                        QDialogButtonBox::Apply | QDialogButtonBox::Help,
                                    this))
{
    setWindowTitle(tr("Options"));
    setObjectName(QStringLiteral("TOptionsDlg"));
    search_->setObjectName(QStringLiteral("SearchEdit"));
    search_->setClearButtonEnabled(true);
    search_->setPlaceholderText(tr("Words of a name or of a description"));
    auto* const searchLabel = new QLabel(tr("&Search:"), this);
    searchLabel->setBuddy(search_);
    search_->setAccessibleName(tr("Search"));
    pages_->setObjectName(QStringLiteral("PageList"));
    pages_->setAccessibleName(tr("Pages of the options"));
    for (int page = 0; page < kOptionsPages; ++page) {
        pages_->addItem(optionsPageTitle(OptionsPage(page)));
    }
    pages_->setMaximumWidth(pages_->sizeHintForColumn(0) + fontMetrics().height() * 3);
    none_->setObjectName(QStringLiteral("NothingFoundLabel"));
    none_->setAlignment(Qt::AlignCenter);

    auto* const contents = new QWidget(this);
    auto* const rows = new QVBoxLayout(contents);
    rows->setSpacing(fontMetrics().height() / 3);
    makeRows(contents, rows);
    rows->addWidget(none_);
    rows->addStretch(1);
    area_->setObjectName(QStringLiteral("RowsArea"));
    area_->setWidget(contents);
    area_->setWidgetResizable(true);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setMinimumSize(contents->minimumSizeHint().width() +
                              area_->verticalScrollBar()->sizeHint().width() +
                              2 * area_->frameWidth(),
                          fontMetrics().height() * 16);

    auto* const resetAll = buttons_->addButton(tr("Reset A&ll"), QDialogButtonBox::ResetRole);
    resetAll->setObjectName(QStringLiteral("ResetAllButton"));
    resetAll->setAutoDefault(false);
    connect(resetAll, &QPushButton::clicked, this, &TOptionsDlg::ResetAllButtonClick);
    buttons_->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OkButton"));
    buttons_->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    buttons_->button(QDialogButtonBox::Apply)->setObjectName(QStringLiteral("ApplyButton"));
    buttons_->button(QDialogButtonBox::Help)->setObjectName(QStringLiteral("HelpButton"));
    // The box would hand the focus to its first button, and Tab would pass by what stands between.
    buttons_->setFocusProxy(nullptr);
    connect(buttons_, &QDialogButtonBox::accepted, this, &TOptionsDlg::OkButtonClick);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons_->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &TOptionsDlg::ApplyButtonClick);
    connect(buttons_, &QDialogButtonBox::helpRequested, this,
            [this] { emit window_.workspace().helpWanted(QStringLiteral("TOptionsDlg")); });

    auto* const top = new QHBoxLayout;
    top->addWidget(searchLabel);
    top->addWidget(search_, 1);
    auto* const middle = new QHBoxLayout;
    middle->addWidget(pages_);
    middle->addWidget(area_, 1);
    auto* const box = new QVBoxLayout(this);
    box->addLayout(top);
    box->addLayout(middle, 1);
    box->addWidget(buttons_);

    connect(search_, &QLineEdit::textChanged, this, &TOptionsDlg::SearchEditTextChanged);
    connect(pages_, &QListWidget::currentRowChanged, this, &TOptionsDlg::PageListCurrentRowChanged);
    pages_->setCurrentRow(0);
    showValues();
    search_->setFocus();
    resize(sizeHint().expandedTo(QSize(fontMetrics().height() * 52, fontMetrics().height() * 34)));
}

void TOptionsDlg::makeRows(QWidget* parent, QVBoxLayout* box)
{
    const char* heading = "";
    for (const SettingRow& row : settingRows()) {
        if (groups_.empty() || groups_.back().page != row.page ||
            std::strcmp(heading, row.group) != 0) {
            heading = row.group;
            auto* const label = new QLabel(tr(row.group), parent);
            QFont bold = label->font();
            bold.setBold(true);
            label->setFont(bold);
            label->setContentsMargins(0, fontMetrics().height() / 2, 0, 0);
            box->addWidget(label);
            groups_.push_back({row.page, label, rows_.size(), 0});
        }
        rows_.push_back(makeRow(row, parent));
        box->addWidget(rows_.back().widget);
        ++groups_.back().count;
    }
}

TOptionsDlg::Row TOptionsDlg::makeRow(const SettingRow& row, QWidget* parent)
{
    const core::SettingInfo& info = *core::findSetting(row.name);
    auto* const widget = new QFrame(parent);
    widget->setObjectName(QStringLiteral("Row-") + toQt(row.name));
    auto* const grid = new QGridLayout(widget);
    grid->setContentsMargins(fontMetrics().height(), 0, 0, fontMetrics().height() / 3);
    grid->setVerticalSpacing(0);
    auto* const editor = new SettingEditor(info, widget);
    QString label = settingLabel(row);
    if (auto* const box = qobject_cast<QCheckBox*>(editor->widget())) {
        box->setText(label);
        grid->addWidget(box, 0, 0, 1, 2);
    } else {
        auto* const text = new QLabel(label, widget);
        text->setWordWrap(true);
        text->setBuddy(editor->control());
        grid->addWidget(text, 0, 0);
        if (row.name != "ayanamsaRow") {
            grid->addWidget(editor->widget(), 0, 1);
        }
    }
    if (row.name == "ayanamsaRow") {
        auto* const edit = new QPushButton(tr("&Edit Rows..."), widget);
        edit->setObjectName(QStringLiteral("EditRowsButton"));
        edit->setAutoDefault(false);
        auto* const both = new QHBoxLayout;
        both->addWidget(editor->widget(), 1);
        both->addWidget(edit);
        grid->addLayout(both, 0, 1);
        connect(edit, &QPushButton::clicked, this, [this] {
            TCustomAyanamsaDlg dialog(window_.workspace(), settings_, this);
            if (dialog.exec() == QDialog::Accepted) {
                settings_ = dialog.settings();
                showValues();
            }
        });
    }
    auto* const reset = rowButton(tr("Reset"), QStringLiteral("Reset-") + toQt(row.name),
                                  tr("Reset %1 to its default").arg(label), widget);
    QSizePolicy kept = reset->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    reset->setSizePolicy(kept);
    connect(reset, &QToolButton::clicked, this, [this, &info] { ResetButtonClick(info); });
    auto* const help =
        rowButton(tr("What is this?"), QStringLiteral("WhatIsThis-") + toQt(row.name),
                  tr("What is %1?").arg(label), widget);
    connect(help, &QToolButton::clicked, this, [this, &row] {
        emit window_.workspace().helpWanted(QStringLiteral("settings.html#") + toQt(row.name));
    });
    grid->addWidget(reset, 0, 2, Qt::AlignTop);
    grid->addWidget(help, 0, 3, Qt::AlignTop);

    const QString meaning = settingMeaning(info);
    auto* const described = new QLabel(
        tr("%1. Default: %2.").arg(meaning, settingWords(info, core::Settings{})), widget);
    described->setObjectName(QStringLiteral("Meaning-") + toQt(row.name));
    described->setWordWrap(true);
    described->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(described, 1, 0, 1, 4);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 3);

    const QString searched = QStringList{label,
                                         toQt(row.name),
                                         meaning,
                                         tr(row.group),
                                         optionsPageTitle(row.page),
                                         toQt(info.choices),
                                         tr(row.choices)}
                                 .join(QLatin1Char(' '));
    Row made{&row, editor, widget, reset, searched};
    connect(editor, &SettingEditor::edited, this, [this, editor] { whenEdited(*editor); });
    editor->show(settings_);
    return made;
}

void TOptionsDlg::whenEdited(const SettingEditor& editor)
{
    editor.store(settings_);
    showValues();
}

void TOptionsDlg::showValues()
{
    static const core::Settings kDefaults;
    for (const Row& row : rows_) {
        const core::SettingInfo& info = row.editor->info();
        // A control that is being typed in keeps what was typed.
        core::Settings shown = settings_;
        row.editor->store(shown);
        if (!(shown == settings_) || row.row->name == "ayanamsaRow") {
            row.editor->show(settings_);
        }
        const bool isDefault =
            core::settingText(settings_, info) == core::settingText(kDefaults, info);
        row.reset->setVisible(!isDefault);
    }
    buttons_->button(QDialogButtonBox::Apply)->setEnabled(!(settings_ == inForce_));
}

void TOptionsDlg::showRows()
{
    const QStringList words =
        search_->text().simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const auto found = [&](const Row& row) {
        return words.isEmpty() ? int(row.row->page) == pages_->currentRow()
                               : std::all_of(words.begin(), words.end(), [&](const QString& word) {
                                     return row.searched.contains(word, Qt::CaseInsensitive);
                                 });
    };
    bool any = false;
    for (const Group& group : groups_) {
        bool anyOfGroup = false;
        for (std::size_t i = group.first; i < group.first + group.count; ++i) {
            const bool show = found(rows_[i]);
            rows_[i].widget->setVisible(show);
            anyOfGroup = anyOfGroup || show;
        }
        group.heading->setVisible(anyOfGroup);
        any = any || anyOfGroup;
    }
    none_->setVisible(!any);
    area_->verticalScrollBar()->setValue(0);
}

void TOptionsDlg::SearchEditTextChanged()
{
    pages_->setEnabled(search_->text().trimmed().isEmpty());
    showRows();
}

void TOptionsDlg::PageListCurrentRowChanged()
{
    showRows();
}

void TOptionsDlg::showSetting(std::string_view name)
{
    const auto row = std::find_if(rows_.begin(), rows_.end(),
                                  [&](const Row& each) { return each.row->name == name; });
    if (row != rows_.end()) {
        search_->clear();
        pages_->setCurrentRow(int(row->row->page));
        row->editor->control()->setFocus();
        area_->ensureWidgetVisible(row->widget);
    }
}

void TOptionsDlg::ResetButtonClick(const core::SettingInfo& info)
{
    core::copySetting(settings_, core::Settings{}, info);
    // The button goes, and with it the focus.
    for (const Row& row : rows_) {
        if (&row.editor->info() == &info) {
            row.editor->control()->setFocus();
        }
    }
    showValues();
}

void TOptionsDlg::ResetAllButtonClick()
{
    for (const core::SettingInfo& info : core::settingsTable()) {
        core::copySetting(settings_, core::Settings{}, info);
    }
    showValues();
}

void TOptionsDlg::OkButtonClick()
{
    ApplyButtonClick();
    accept();
}

void TOptionsDlg::ApplyButtonClick()
{
    changeOptions(window_, settings_);
    settings_ = window_.workspace().settings();
    inForce_ = settings_;
    showValues();
}

} // namespace kestrav::desktop
