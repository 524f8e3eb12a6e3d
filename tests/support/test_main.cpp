// Shared main of every test executable: a QApplication on the offscreen platform when no
// display is set (also when CTest runs the binary to discover its tests), and the test
// environment: log level, where files for people go, Qt's runtime folder.
#include <QApplication>
#include <cstdlib>
#include <string>

#include <sys/stat.h>
#include <unistd.h>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM") && !std::getenv("DISPLAY"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    if (!std::getenv("VELMORA_LOG_LEVEL"))
        setenv("VELMORA_LOG_LEVEL", "warn", 1);
    // Snapshots and other files for people to look at go under the build tree's top.
    setenv("VELMORA_BUILD_DIR", VELMORA_TEST_BUILD_DIR, 0);
    // Qt wants a private runtime folder; without a session (CI, a root shell) make the one it
    // would fall back to, quietly.
    if (!std::getenv("XDG_RUNTIME_DIR")) {
        const std::string runtime = "/tmp/runtime-" + std::to_string(::getuid());
        ::mkdir(runtime.c_str(), 0700);
        setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);
    }
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
