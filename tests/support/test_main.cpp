// Shared main of every test executable: a QApplication on the offscreen platform when no
// display is set (also when CTest runs the binary at build time to discover its tests).
#include <QApplication>
#include <cstdlib>
#include <gtest/gtest.h>

// Leaks of Qt's offscreen platform and fontconfig live until exit. CTest also runs each
// binary to list its tests without the suppression file, so the list is built in.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen\nleak:QScreen\nleak:libfontconfig\nleak:libQt5Gui\n"
           "leak:libQt5Core\nleak:libQt5Widgets\nleak:liblog4cxx\n";
}

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
