// A window on the page of yogas with delivered ones.
#pragma once

#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/yogas/YogaDesk.h"
#include "app/desktop/yogas/Ytyogatree.h"
#include "tests/desktop/DesktopForTests.h"

#include <filesystem>
#include <memory>

namespace kestrav::desktop
{

class YogaWindowTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        openYogas();
    }

    // The delivered yogas and the page, as the start of the program does it.
    void openYogas()
    {
        auto library = std::make_shared<yoga::YogaLibrary>();
        ASSERT_TRUE(
            library->load(std::filesystem::path(KESTRAV_BIN) / yoga::kYogaFolder / "raja.ksy")
                .ok());
        workspace().setYogas(library);
        ASSERT_TRUE(window().pages().show(QStringLiteral("Yogas")));
        settle();
        form_ = find<TYogaTreeForm>("TYogaTreeForm");
        ASSERT_NE(form_, nullptr);
    }

    YogaDesk& desk()
    {
        return YogaDesk::of(workspace());
    }

    TYogaTreeForm* form_ = nullptr;
};

} // namespace kestrav::desktop
