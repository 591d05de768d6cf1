// Panels that are shown all the time have to show what new ones do.
#pragma once

#include "app/desktop/pages/PanelFactory.h"
#include "app/desktop/panels/PanelWidget.h"
#include "app/present/Document.h"
#include "tests/desktop/DesktopForTests.h"

#include <memory>
#include <string>
#include <vector>

namespace kestrav::desktop
{

using Panels = std::vector<present::Panel>;

/// Panels that are shown, beside panels that are made anew to be compared with them.
class FreshPanels : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        auto library = std::make_shared<yoga::YogaLibrary>();
        for (const std::filesystem::path& path : yoga::standardYogaFiles()) {
            ASSERT_TRUE(library->load(path).ok());
        }
        workspace().setYogas(library);
        host_.resize(900, 700);
        host_.show();
    }

    void TearDown() override
    {
        settle();
        qDeleteAll(host_.findChildren<PanelWidget*>(Qt::FindDirectChildrenOnly));
        WindowTest::TearDown();
    }

    PanelWidget* made(const present::Panel& panel)
    {
        PanelWidget* const widget = makePanel(workspace(), panel, &host_);
        widget->resize(host_.size());
        widget->show();
        return widget;
    }

    /// What is printed of a panel.
    static std::string contents(PanelWidget& panel)
    {
        present::Document document;
        document.blocks = panel.blocks();
        return present::documentHtml(document);
    }

    /// Compares every panel with one that is made now for the same.
    void expectFresh(const std::vector<PanelWidget*>& panels, const std::string& when)
    {
        settle();
        std::vector<std::unique_ptr<PanelWidget>> fresh;
        for (const PanelWidget* const panel : panels) {
            fresh.emplace_back(made(panel->panel()));
        }
        settle();
        for (std::size_t i = 0; i < panels.size(); ++i) {
            EXPECT_EQ(contents(*panels[i]) == contents(*fresh[i]), true)
                << panels[i]->panel().content << " " << when;
            EXPECT_EQ(panels[i]->title().toStdString(), fresh[i]->title().toStdString())
                << panels[i]->panel().content << " " << when;
        }
    }

    QWidget host_;
};

} // namespace kestrav::desktop
