#include "app/desktop/help/TShortcutsDlg.h"

#include "app/desktop/help/CommandNames.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/StateFile.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrav::desktop
{

namespace
{

QString keyOf(const QAction& action)
{
    return QStringLiteral("keys/") + action.objectName();
}

// The keys that a command has before the user changes them.
constexpr char kStandardKeys[] = "standardKeys";

} // namespace

TShortcutsDlg::TShortcutsDlg(TKSVform1& window) : QDialog(&window)
{
    setObjectName(QStringLiteral("TShortcutsDlg"));
    setWindowTitle(tr("Keys"));
    auto* const filter = new QLineEdit(this);
    filter->setObjectName(QStringLiteral("FilterEdit"));
    filter->setAccessibleName(tr("Filter"));
    filter->setPlaceholderText(tr("Filter"));
    filter->setClearButtonEnabled(true);
    auto* const table = new QTableWidget(this);
    table->setObjectName(QStringLiteral("KeyTable"));
    table->setAccessibleName(tr("Commands with their keys"));
    table->setColumnCount(3);
    table->setHorizontalHeaderLabels({tr("Command"), tr("Menu"), tr("Keys")});
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->horizontalHeader()->setHighlightSections(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() * 3 / 2);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    auto* const keys = new QKeySequenceEdit(this);
    keys->setObjectName(QStringLiteral("KeysEdit"));
    keys->setAccessibleName(tr("New keys"));
    auto* const clash = new QLabel(this);
    clash->setObjectName(QStringLiteral("ClashLabel"));
    clash->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* const standard = buttons->addButton(tr("&Standard Keys"), QDialogButtonBox::ResetRole);
    standard->setObjectName(QStringLiteral("StandardButton"));
    standard->setAutoDefault(false);
    auto* const form = new QFormLayout;
    form->addRow(tr("&New keys for the command:"), keys);
    auto* const box = new QVBoxLayout(this);
    box->addWidget(filter);
    box->addWidget(table, 1);
    box->addLayout(form);
    box->addWidget(clash);
    box->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    const QList<CommandName> names = commandNames(window);
    QList<QAction*> commands;
    for (const CommandName& name : names) {
        commands.push_back(name.action);
    }
    table->setRowCount(int(commands.size()));
    const auto showRow = [table, names](int row) {
        const CommandName& command = names[row];
        const QString pressed = command.action->shortcut().toString(QKeySequence::NativeText);
        int column = 0;
        for (const QString& text : {command.name, command.menu, pressed}) {
            table->setItem(row, column++, new QTableWidgetItem(text));
        }
    };
    for (int row = 0; row < table->rowCount(); ++row) {
        showRow(row);
    }
    table->setCurrentCell(0, 0);
    connect(filter, &QLineEdit::textChanged, table, [table](const QString& text) {
        for (int row = 0; row < table->rowCount(); ++row) {
            const QString words = table->item(row, 0)->text() + ' ' + table->item(row, 1)->text() +
                                  ' ' + table->item(row, 2)->text();
            table->setRowHidden(row, !words.contains(text, Qt::CaseInsensitive));
        }
    });
    connect(table, &QTableWidget::currentCellChanged, keys, [keys, commands](int row) {
        if (row >= 0) {
            keys->setKeySequence(commands[row]->shortcut());
        }
    });
    connect(keys, &QKeySequenceEdit::editingFinished, this, [=] {
        const int row = table->currentRow();
        if (row < 0) {
            return;
        }
        const QKeySequence wanted = keys->keySequence();
        for (const QAction* const other : commands) {
            if (!wanted.isEmpty() && other != commands[row] && other->shortcut() == wanted) {
                clash->setText(tr("%1 belongs to \"%2\".")
                                   .arg(wanted.toString(QKeySequence::NativeText),
                                        QString(other->text()).remove('&')));
                return;
            }
        }
        clash->clear();
        commands[row]->setShortcut(wanted);
        stateOfWindow().setValue(keyOf(*commands[row]), wanted.toString());
        showRow(row);
    });
    connect(standard, &QPushButton::clicked, this, [=] {
        stateOfWindow().remove(QStringLiteral("keys"));
        for (int row = 0; row < int(commands.size()); ++row) {
            commands[row]->setShortcut(
                commands[row]->property(kStandardKeys).value<QKeySequence>());
            showRow(row);
        }
        clash->clear();
    });
    resize(fontMetrics().height() * 38, fontMetrics().height() * 32);
    filter->setFocus();
}

void restoreShortcuts(TKSVform1& window)
{
    for (QAction* const action : window.commands()) {
        action->setProperty(kStandardKeys, action->shortcut());
        const QVariant kept = stateOfWindow().value(keyOf(*action));
        if (kept.isValid()) {
            action->setShortcut(QKeySequence(kept.toString()));
        }
    }
}

} // namespace kestrav::desktop
