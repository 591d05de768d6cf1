// The buttons at the bottom of the dialogs of the options.
#pragma once

#include <QString>

class QDialog;
class QDialogButtonBox;

namespace kestrav::desktop
{

class Workspace;

/// OK, Cancel and Help, with their object names. OK is left to the dialog; Cancel rejects it, and
/// Help opens the topic of that name.
[[nodiscard]] QDialogButtonBox* optionButtons(QDialog* dialog, Workspace& workspace,
                                              const QString& topic);

} // namespace kestrav::desktop
