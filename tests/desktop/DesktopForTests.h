// A window for a test: its own home, a fixed clock, the sample charts, prepared answers.
#pragma once

#include "app/desktop/database/OpenDatabase.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Ks6main.h"
#include "app/desktop/shell/TMessages.h"
#include "app/desktop/shell/Theme.h"
#include "core/Locations.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace kestrav::desktop
{

/// 2026-01-15 12:00 Universal Time in seconds since 1970.
inline constexpr char kTestClock[] = "1768478400";

class WindowTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(home_.isValid());
        for (const char* const name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
            qputenv(name, home_.path().toLocal8Bit());
        }
        qputenv("KESTRAV_CLOCK", kTestClock);
        TMessages::answerFromQueue();
        sample_ = toPath(home_.filePath(QStringLiteral("Sample.ksc")));
        std::filesystem::copy_file(std::filesystem::path(KESTRAV_BIN) / "Sample.ksc", sample_);
        astro::LoadResult loaded =
            astro::LoadSeries(std::filesystem::path(KESTRAV_BIN) / astro::kDataFileName);
        ASSERT_TRUE(loaded.ok()) << loaded.error.text();
        data_ = std::make_shared<const astro::ProgramData>(std::move(*loaded.data));
        openWindow();
    }

    void TearDown() override
    {
        settle();
        window_.reset();
        workspace_.reset();
        EXPECT_TRUE(TMessages::takeShown().empty()) << "a message was not expected";
    }

    /// Begins the program anew, as after a restart in the same home.
    void openWindow()
    {
        window_.reset();
        workspace_.reset();
        const auto path = home_.filePath(QStringLiteral("kestrav/KESTRAV6.ENV"));
        auto stored = core::readSettingsFile(toPath(path));
        ASSERT_TRUE(stored.ok());
        // Questions about leaving have their own test.
        stored.value().settings.wizardDone = true;
        workspace_ = std::make_unique<Workspace>(data_, std::move(stored.value()), toPath(path));
        applyTheme(workspace_->settings());
        window_ = std::make_unique<TKSVform1>(*workspace_);
        ASSERT_TRUE(workspace_->database().load(sample_).ok());
        ASSERT_TRUE(workspace_->showLine(0));
        window_->show();
        settle();
    }

    /// Lets timers fire and background work finish and be shown.
    static void settle()
    {
        for (int round = 0; round < 3; ++round) {
            QApplication::processEvents();
            BackgroundWork::waitForAll();
            QApplication::processEvents();
        }
    }

    /// The widget of that name below a parent, the window by default; the test fails without it.
    template <typename Widget>
    Widget* find(const char* name, const QObject* parent = nullptr)
    {
        const QObject* const from = parent != nullptr ? parent : window_.get();
        auto* const found = from->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << "there is no " << name;
        return found;
    }

    /// Chooses a command of the menus.
    void command(const char* name)
    {
        auto* const action = find<QAction>(name);
        ASSERT_NE(action, nullptr);
        ASSERT_TRUE(action->isEnabled()) << name;
        action->trigger();
        settle();
    }

    Workspace& workspace()
    {
        return *workspace_;
    }
    TKSVform1& window()
    {
        return *window_;
    }

    QTemporaryDir home_;
    std::filesystem::path sample_;
    DataPointer data_;
    std::unique_ptr<Workspace> workspace_;
    std::unique_ptr<TKSVform1> window_;
};

} // namespace kestrav::desktop
