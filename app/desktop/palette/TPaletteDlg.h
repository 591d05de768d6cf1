// The command palette: commands, charts, pages, settings and points by a few letters.
#pragma once

#include <QDialog>

#include <functional>
#include <vector>

class QLineEdit;
class QListWidget;

namespace kestrav::desktop
{

class TKSVform1;

struct PaletteEntry
{
    QString text;
    QString kind; ///< "Command", "Chart" and so on
    QString keys;
    std::function<void()> choose;
    QString menu = {}; ///< of a command
};

/// Everything that can be found now. Points are found in every divisional chart: "Mars in D-9".
[[nodiscard]] std::vector<PaletteEntry> paletteEntries(TKSVform1& window);

class TPaletteDlg : public QDialog
{
    Q_OBJECT

public:
    explicit TPaletteDlg(TKSVform1& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FindEditTextChanged();
    void choose();

    std::vector<PaletteEntry> entries_;
    QLineEdit* find_;
    QListWidget* list_;
};

} // namespace kestrav::desktop
