#include "app/desktop/options/OptionButtons.h"

#include "app/desktop/shell/Workspace.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace kestrav::desktop
{

QDialogButtonBox* optionButtons(QDialog* dialog, Workspace& workspace, const QString& topic)
{
    auto* const buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OkButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    buttons->button(QDialogButtonBox::Help)->setObjectName(QStringLiteral("HelpButton"));
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, dialog,
                     [&workspace, topic] { emit workspace.helpWanted(topic); });
    return buttons;
}

} // namespace kestrav::desktop
