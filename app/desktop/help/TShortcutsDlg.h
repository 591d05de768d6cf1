// The list of all keys.
#pragma once

#include <QDialog>

namespace kestrav::desktop
{

class TKSVform1;

/// Shows every command that has keys; another key sequence can be given to each, which is kept.
class TShortcutsDlg : public QDialog
{
    Q_OBJECT

public:
    explicit TShortcutsDlg(TKSVform1& window);
};

/// Gives the commands the keys that the user chose in earlier runs.
void restoreShortcuts(TKSVform1& window);

} // namespace kestrav::desktop
