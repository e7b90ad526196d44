// The GUI tests run on Qt's offscreen platform unless told otherwise, so
// they need no display.
#include <gtest/gtest.h>
#include <QApplication>

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
