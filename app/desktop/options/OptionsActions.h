// The commands of the Options menu.
#pragma once

#include "core/Settings.h"

#include <QObject>
#include <QString>

#include <functional>
#include <string_view>
#include <vector>

class QAction;
class QMenu;

namespace kestrav::desktop
{

class TKSVform1;

class OptionsActions : public QObject
{
    Q_OBJECT

public:
    explicit OptionsActions(TKSVform1& window);

    /// Runs the option wizard when it was never seen.
    void runWizardAtFirstStart();

private:
    void addDialogs();
    void addSwitches();
    QMenu* addChoices(std::string_view setting, const QString& title, const char* name);
    void fillChoices(QMenu& menu, std::string_view setting);
    void change(std::string_view setting, double value);
    void changeFlag(unsigned flag, bool on);
    void showSwitches();
    void tellMissingCusps();
    void SystemsApproachActionTriggered();
    void OptionWizardActionTriggered();

    struct Switch
    {
        QAction* action;
        std::function<bool(const core::Settings&)> isOn;
    };

    TKSVform1& window_;
    std::vector<Switch> switches_;
};

} // namespace kestrav::desktop
