// The most important choices in six short steps, for the first start and whenever it is wanted.
#pragma once

#include "core/Settings.h"

#include <QDialog>

#include <functional>
#include <string_view>
#include <vector>

class QButtonGroup;
class QFormLayout;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace kestrav::desktop
{

class OptionPreview;
class SettingEditor;
class TKSVform1;

/// Nothing is in force before the last step is finished; only the Now location, which has its own
/// dialog, is. Leaving earlier keeps the settings as they were, which at the first start are the
/// defaults. Either way the wizard does not come by itself again.
class TOptionWizardForm : public QDialog
{
    Q_OBJECT

public:
    TOptionWizardForm(TKSVform1& window, QWidget* parent);

    /// The settings as chosen so far.
    [[nodiscard]] const core::Settings& settings() const
    {
        return settings_;
    }
    void reject() override;

private:
    struct Step
    {
        QString title;
        std::vector<SettingEditor*> editors;
    };

    QFormLayout* addStep(const QString& title, const QString& explanation);
    void add(QFormLayout* form, std::string_view setting, const QString& label = {});
    void addNames();
    void addDiagram();
    void addSky();
    void addDates();
    void addPlaces();
    void addDatabase();
    void showStep(int step);
    void showChoices();
    void chooseNowLocation();
    void applyDatabase();
    void openOwnCharts(std::function<void(bool opened)> then = {});
    void trigger(const char* command);
    void BackButtonClick();
    void NextButtonClick();
    void DefaultButtonClick();
    void FinishButtonClick();

    TKSVform1& window_;
    core::Settings settings_;
    std::vector<Step> steps_;
    QLabel* title_;
    QStackedWidget* pages_;
    OptionPreview* preview_;
    QLabel* today_ = nullptr;
    QLabel* example_ = nullptr;
    QLabel* nowLocation_ = nullptr;
    QButtonGroup* database_ = nullptr;
    QPushButton* default_;
    QPushButton* back_;
    QPushButton* next_;
};

} // namespace kestrav::desktop
