// Work on other threads: what is given up, stopped, or outlives what began it.
#include "app/desktop/database/DatabaseActions.h"
#include "app/desktop/database/ExchangeActions.h"
#include "app/desktop/pages/PageStrip.h"
#include "app/desktop/start/Gallery.h"
#include "tests/desktop/DesktopForTests.h"

#include <QAction>
#include <QDialog>
#include <QThreadPool>

#include <fstream>
#include <latch>
#include <set>

namespace kestrav::desktop
{
namespace
{

using core::Answer;

TEST(BackgroundWork, WhatIsGivenUpIsNotDone)
{
    const auto settle = [] {
        BackgroundWork::waitForAll();
        QApplication::processEvents();
    };
    // As many as run at once.
    const int threads = QThreadPool::globalInstance()->maxThreadCount();
    std::latch gate(1);
    std::vector<std::unique_ptr<BackgroundWork>> busy;
    for (int i = 0; i < threads; ++i) {
        busy.push_back(std::make_unique<BackgroundWork>());
        busy.back()->start(
            [&gate](const WorkHandle&) {
                gate.wait();
                return 0;
            },
            [](int) {});
    }
    std::atomic<int> began = 0;
    int shown = 0;
    const auto count = [&began](int value) {
        return [&began, value](const WorkHandle&) {
            ++began;
            return value;
        };
    };
    const auto show = [&shown](int value) {
        shown += value;
    };
    // Dates stepped through faster than they can be computed: only the last one is.
    BackgroundWork stepped;
    for (int i = 0; i < 10; ++i) {
        stepped.start(count(i), show);
    }
    BackgroundWork stopped;
    stopped.start(count(100), show);
    stopped.cancel();
    EXPECT_FALSE(stopped.running());
    {
        BackgroundWork gone;
        gone.start(count(1000), show);
        BackgroundWork kept;
        kept.start(count(10000), show, IfGivenUp::DoAnyway);
    }
    gate.count_down();
    settle();
    EXPECT_EQ(began, 2);
    EXPECT_EQ(shown, 9);
    EXPECT_FALSE(stepped.running());
}

TEST(BackgroundWork, ProgressComesNowAndThen)
{
    BackgroundWork work;
    std::vector<qulonglong> seen;
    QObject::connect(&work, &BackgroundWork::progressed,
                     [&seen](qulonglong done, qulonglong) { seen.push_back(done); });
    std::size_t total = 0;
    work.start(
        [](const WorkHandle& handle) {
            const data::LongWork long_ = handle.longWork();
            for (std::size_t i = 0; i < 1000; ++i) {
                long_.progress(i, 1000);
            }
            return long_.cancelled();
        },
        [&total](bool cancelled) { total = cancelled ? 0 : 1; });
    BackgroundWork::waitForAll();
    QApplication::processEvents();
    EXPECT_EQ(total, 1U);
    ASSERT_FALSE(seen.empty());
    EXPECT_EQ(seen.front(), 0U);
    EXPECT_LT(seen.size(), 100U) << "the window would do nothing else";
}

class WorkTest : public WindowTest
{
protected:
    // Lets what was asked for begin, but not end.
    static void begin()
    {
        QApplication::processEvents();
    }

    std::filesystem::path inHome(const char* name)
    {
        return toPath(home_.filePath(QLatin1String(name)));
    }

    // The sample charts so often that they are read beside the window.
    std::filesystem::path manyCharts(const char* name)
    {
        std::ifstream sample(sample_, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(sample), {}};
        std::ofstream stream(inHome(name), std::ios::binary);
        for (int i = 0; i < 40; ++i) {
            stream << bytes;
        }
        return inHome(name);
    }
};

TEST_F(WorkTest, PagesGoWhileTheirPanelsWork)
{
    PageStrip& pages = window().pages();
    while (pages.count() > 1) {
        const QString name = pages.name(0);
        SCOPED_TRACE(name.toStdString());
        pages.show(0);
        begin();
        // What was computed for the charts and moments before is dropped.
        workspace().showLine(std::size_t(pages.count()));
        begin();
        workspace().setMoment(workspace().moment() + 1.0);
        begin();
        pages.closePage(0);
        begin();
    }
    for (const char* const page : {"Transits", "Report"}) {
        openWindow();
        window().pages().show(QLatin1String(page));
        begin();
        workspace().showLine(2);
        begin();
        window_.reset();
        workspace_.reset();
        settle();
    }
    openWindow();
}

TEST_F(WorkTest, FormsGoWhileTheyWork)
{
    std::set<std::string> seen;
    for (const GalleryRow& row : gallery()) {
        SCOPED_TRACE(row.name);
        const std::unique_ptr<QWidget> form(row.make(window()));
        ASSERT_NE(form, nullptr);
        form->show();
        begin();
        seen.insert(row.name);
    }
    settle();
    EXPECT_EQ(seen.size(), gallery().size());
}

TEST_F(WorkTest, TheWindowGoesWhileTheDatabaseIsWorkedOn)
{
    const std::filesystem::path many = manyCharts("Many.ksc");
    const auto trigger = [this](const char* name) {
        auto* const action = find<QAction>(name);
        ASSERT_NE(action, nullptr);
        action->trigger();
    };
    const std::pair<const char*, std::function<void()>> works[] = {
        {"open",
         [&] {
             find<QAction>("OpenAction")->trigger();
         }},
        {"merge",
         [&] {
             trigger("MergeAction");
         }},
        {"import",
         [&] {
             trigger("ImportFileAction");
         }},
        {"export",
         [&] {
             trigger("ExportJsonAction");
         }},
        {"other order",
         [&] {
             trigger("SaveInOtherOrderAction");
         }},
        {"research",
         [&] {
             trigger("RefreshResearchAction");
         }},
    };
    for (const auto& [name, work] : works) {
        SCOPED_TRACE(name);
        const std::string wanted = std::string(name) == "export" ? "out.json" : "Many.ksc";
        TMessages::prepare(toQt(inHome(wanted.c_str())));
        TMessages::prepare(Answer::Yes);
        work();
        begin();
        window_.reset();
        workspace_.reset();
        settle();
        TMessages::takeShown();
        TMessages::answerFromQueue();
        openWindow();
    }
}

TEST_F(WorkTest, ReadingCanBeCancelled)
{
    auto* const actions = window().findChild<DatabaseActions*>();
    ASSERT_NE(actions, nullptr);
    bool called = false;
    actions->open(manyCharts("Many.ksc"), [&called](bool) { called = true; });
    auto* const box = find<QDialog>("TProgressDlg");
    ASSERT_NE(box, nullptr);
    QTest::keyClick(box, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(called);
    EXPECT_EQ(workspace().database().path(), sample_);
    EXPECT_FALSE(box->isVisible());
}

} // namespace
} // namespace kestrav::desktop
