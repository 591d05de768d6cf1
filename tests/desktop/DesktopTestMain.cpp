#include "app/desktop/shell/BackgroundWork.h"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int count, char** words)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&count, words);
    QApplication application(count, words);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    QApplication::setQuitOnLastWindowClosed(false);
    const int code = RUN_ALL_TESTS();
    kestrav::desktop::BackgroundWork::waitForAll();
    return code;
}
