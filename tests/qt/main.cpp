#include <gtest/gtest.h>

#include <QApplication>

#include "qt/french.h"
#include "qt/theme.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qt::speakFrench(application);
    qt::theme::apply(application);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
