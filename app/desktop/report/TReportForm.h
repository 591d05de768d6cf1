// The form of reports: which sections, as rich text or plain, saved and printed.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/present/Document.h"
#include "app/present/ReportDefinition.h"

class QCheckBox;
class QComboBox;
class QListWidget;
class QTextBrowser;

namespace kestrav::desktop
{

class TReportForm : public PanelWidget
{
    Q_OBJECT

public:
    TReportForm(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    void DefinitionComboBoxActivated();
    void SectionListChanged();
    void SaveButtonClick();
    void PreviewButtonClick();
    void KeepButtonClick();
    void moveSection(int by);
    void fillDefinitions();
    void fillSections();
    void showDocument();

    QComboBox* definitions_;
    QListWidget* sections_;
    QCheckBox* plain_;
    QTextBrowser* browser_;
    BackgroundWork work_;
    present::ReportDefinition definition_;
    present::Document document_;
    bool filling_ = false;
};

} // namespace kestrav::desktop
