// Shared main of every test executable: a QApplication on the offscreen platform when no
// display is set (also when CTest runs the binary at build time to discover its tests).
#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM") && !std::getenv("DISPLAY"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    if (!std::getenv("VELMORA_LOG_LEVEL"))
        setenv("VELMORA_LOG_LEVEL", "warn", 1);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
