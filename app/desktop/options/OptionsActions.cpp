#include "app/desktop/options/OptionsActions.h"

#include "app/desktop/options/ChangeOptions.h"
#include "app/desktop/options/Ks6customayan.h"
#include "app/desktop/options/Ks6vargaoptions.h"
#include "app/desktop/options/OptionNotices.h"
#include "app/desktop/options/SettingRows.h"
#include "app/desktop/options/TChangePointDlg.h"
#include "app/desktop/options/TColoursDlg.h"
#include "app/desktop/options/TOptionWizardForm.h"
#include "app/desktop/options/TOptionsDlg.h"
#include "app/desktop/options/TSelectDashaDlg.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "astro/Houses.h"
#include "data/DatabaseMessages.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <utility>

namespace kestrav::desktop
{

OptionsActions::OptionsActions(TKSVform1& window) : QObject(&window), window_(window)
{
    setObjectName(QStringLiteral("OptionsActions"));
    addDialogs();
    addSwitches();
    QMenu* const menu = window_.menu(MenuName::Options);
    menu->addSeparator();
    window_.addCommand(MenuName::Options,
                       {"SystemsApproachAction",
                        tr("S&ystems Approach..."),
                        {},
                        tr("Sets the house system that Systems Approach uses")},
                       [this] { SystemsApproachActionTriggered(); });
    QAction* const wizard =
        window_.addCommand(MenuName::Options,
                           {"OptionWizardAction",
                            tr("Option &Wizard..."),
                            {},
                            tr("The most important choices in six short steps")},
                           [this] { OptionWizardActionTriggered(); });
    window_.menu(MenuName::Help)->addAction(wizard);
    connect(&window_.workspace(), &Workspace::settingsChanged, this, &OptionsActions::showSwitches);
    connect(&window_.workspace(), &Workspace::chartChanged, this,
            &OptionsActions::tellMissingCusps);
}

// Near the poles Placidus has no cusps; the user is told which house system has.
void OptionsActions::tellMissingCusps()
{
    Workspace& workspace = window_.workspace();
    const ChartPointer& shown = workspace.chart();
    if (shown && shown->hasPlace && shown->chart.hasMoment && !shown->chart.cuspsComplete) {
        workspace.tellProblem(tr("Placidus has no cusps at the latitude of %1. Options / House "
                                 "System / Equal House has all.")
                                  .arg(toQt(shown->chart.name)));
    }
}

void OptionsActions::addDialogs()
{
    const auto command = [this](const Command& row, auto run) {
        window_.addCommand(MenuName::Options, row, run);
    };
    command({"OptionsAction", tr("&Options..."), QKeySequence(tr("Ctrl+,")),
             tr("Every setting, with its meaning and its default"), "preferences-system"},
            [this] { TOptionsDlg(window_, &window_).exec(); });
    command({"SelectDashaAction", tr("Select &Dasha..."), QKeySequence(tr("Ctrl+D")),
             tr("The dasha system and how it is computed")},
            [this] { TSelectDashaDlg(window_, &window_).exec(); });
    command({"VargaOptionsAction",
             tr("&Varga Options..."),
             {},
             tr("The variants of the divisional charts")},
            [this] { TVargaOptionsDlg(window_, &window_).exec(); });
    command({"CustomAyanamsaAction",
             tr("&Custom Ayanamsa..."),
             {},
             tr("The ten rows of the ayanamsa table")},
            [this] {
                TCustomAyanamsaDlg dialog(window_.workspace(), window_.workspace().settings(),
                                          &window_);
                if (dialog.exec() == QDialog::Accepted) {
                    changeOptions(window_, dialog.settings());
                }
            });
    command({"ColoursAction",
             tr("Co&lours..."),
             {},
             tr("The colours of the window and what they are for")},
            [this] { TColoursDlg(window_, &window_).exec(); });
    command({"ChangePointAction",
             tr("Change &Point..."),
             {},
             tr("Gives a point of the shown chart another position"),
             "",
             true},
            [this] { TChangePointDlg(window_, &window_).exec(); });
}

void OptionsActions::addSwitches()
{
    QMenu* const menu = window_.menu(MenuName::Options);
    menu->addSeparator();
    addChoices("ayanamsaRow", tr("&Ayanamsa"), "AyanamsaMenu");
    addChoices("houseSystem", tr("&House System"), "HouseSystemMenu");
    addChoices("diagramStyle", tr("Diagram &Style"), "DiagramStyleMenu");
    addChoices("colourScheme", tr("Colou&r Scheme"), "ColourSchemeMenu");
    menu->addSeparator();
    const auto add = [this](const Command& command,
                            const std::function<bool(const core::Settings&)>& isOn,
                            const std::function<void(bool)>& set) {
        const auto index = switches_.size();
        QAction* const action = window_.addCommand(MenuName::Options, command, [this, index, set] {
            set(switches_[index].action->isChecked());
        });
        switches_.push_back({action, isOn});
    };
    const auto hasFlag = [](unsigned flag) {
        return [flag](const core::Settings& settings) {
            return (static_cast<unsigned>(settings.displayFlags) & flag) != 0;
        };
    };
    add({"EnglishNamesAction",
         tr("&English Names"),
         {},
         tr("English instead of Sanskrit names"),
         "",
         false,
         true},
        hasFlag(core::kEnglishNames), [this](bool on) { changeFlag(core::kEnglishNames, on); });
    add({"GlyphsAction", tr("&Glyphs"), {}, tr("Symbols instead of letters"), "", false, true},
        hasFlag(core::kGlyphNames), [this](bool on) { changeFlag(core::kGlyphNames, on); });
    add(
        {"PreciseMoonAction",
         tr("Precise &Moon"),
         {},
         tr("The Moon of the precise theory instead of the short series"),
         "",
         false,
         true},
        [](const core::Settings& settings) { return settings.preciseMoon; },
        [this](bool on) { change("preciseMoon", on ? 1.0 : 0.0); });
    showSwitches();
}

QMenu* OptionsActions::addChoices(std::string_view setting, const QString& title, const char* name)
{
    QMenu* const menu = window_.menu(MenuName::Options)->addMenu(title);
    menu->setObjectName(QLatin1String(name));
    fillChoices(*menu, setting);
    // The rows of the ayanamsa table can have other names by now.
    connect(&window_.workspace(), &Workspace::settingsChanged, menu,
            [this, menu, setting] { fillChoices(*menu, setting); });
    return menu;
}

void OptionsActions::fillChoices(QMenu& menu, std::string_view setting)
{
    const core::SettingInfo& info = *core::findSetting(setting);
    const core::Settings& settings = window_.workspace().settings();
    const QStringList choices = settingChoices(info, settings);
    if (menu.isEmpty()) {
        auto* const group = new QActionGroup(&menu);
        for (int i = 0; i < choices.size(); ++i) {
            const std::string name = std::string(setting) + std::to_string(i) + "Action";
            QAction* const action = window_.addCommand(
                &menu,
                {name.c_str(), choices[i], {}, settingLabel(settingRow(setting)), "", false, true},
                [this, setting, i] { change(setting, core::findSetting(setting)->lowest + i); });
            group->addAction(action);
        }
    }
    const QList<QAction*> actions = menu.actions();
    for (int i = 0; i < actions.size() && i < choices.size(); ++i) {
        // A name may hold what would be a mnemonic.
        actions[i]->setText(QString(choices[i]).replace(QLatin1String("&"), QLatin1String("&&")));
        actions[i]->setChecked(i + int(info.lowest) == int(core::settingValue(settings, info)));
    }
}

void OptionsActions::change(std::string_view setting, double value)
{
    core::Settings settings = window_.workspace().settings();
    core::storeSetting(settings, *core::findSetting(setting), value);
    changeOptions(window_, settings);
}

void OptionsActions::changeFlag(unsigned flag, bool on)
{
    const auto flags = static_cast<unsigned>(window_.workspace().settings().displayFlags);
    change("displayFlags", static_cast<int>(on ? flags | flag : flags & ~flag));
}

void OptionsActions::showSwitches()
{
    for (const Switch& each : switches_) {
        each.action->setChecked(each.isOn(window_.workspace().settings()));
    }
}

void OptionsActions::SystemsApproachActionTriggered()
{
    core::Settings settings = window_.workspace().settings();
    if (settings.houseSystem == int(astro::HouseSystem::EqualHouse)) {
        window_.workspace().tell(
            tr("The house system is Equal House, as Systems Approach uses it."));
        return;
    }
    TMessages messages;
    if (messages.show(data::kNoticeCaption, systemsApproachQuestion(), core::Buttons::YesNo) ==
        core::Answer::Yes) {
        change("houseSystem", int(astro::HouseSystem::EqualHouse));
    }
}

void OptionsActions::OptionWizardActionTriggered()
{
    TOptionWizardForm(window_, &window_).exec();
}

void OptionsActions::runWizardAtFirstStart()
{
    if (!window_.workspace().settings().wizardDone) {
        OptionWizardActionTriggered();
    }
}

} // namespace kestrav::desktop
