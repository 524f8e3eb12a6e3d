// A host built out of the tree against an installed copy of the module: the install lays out
// the library with its SONAME links, the headers and the CMake package; find_package(Velmora)
// builds the host; the host opens the status dialog on an emulated switch.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "support/EmulatorProcess.h"

using velmora::test::EmulatorProcess;

namespace {

constexpr int kStepTimeoutMs = 240000;

const char kHostFleet[] = R"({"name": "installed-host", "devices": [
  {"model": "QN-1062", "name": "host switch"}
]})";

struct StepResult {
    bool finished = false;
    int exitCode = -1;
    QString output;
};

StepResult run(const QString& program, const QStringList& arguments,
               const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    StepResult result;
    result.finished = process.waitForStarted() && process.waitForFinished(kStepTimeoutMs);
    if (!result.finished)
        process.kill();
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = QString::fromUtf8(process.readAll());
    return result;
}

class InstalledPackageTest : public ::testing::Test {
protected:
    QString prefix() const { return m_dir.filePath("prefix"); }
    QString hostBuild() const { return m_dir.filePath("host-build"); }

    void install()
    {
        const StepResult installed =
            run(VELMORA_CMAKE_COMMAND, {"--install", VELMORA_PACKAGE_BUILD_DIR, "--prefix", prefix()});
        ASSERT_TRUE(installed.finished && installed.exitCode == 0) << installed.output.toStdString();
    }

    void buildHost()
    {
        QStringList configure = {"-S", VELMORA_HOST_SOURCE_DIR, "-B", hostBuild(), "-G", VELMORA_HOST_GENERATOR,
                                 "-DCMAKE_PREFIX_PATH=" + prefix(),
                                 "-DCMAKE_MAKE_PROGRAM=" + QString(VELMORA_HOST_MAKE_PROGRAM),
                                 "-DCMAKE_CXX_COMPILER=" + QString(VELMORA_HOST_CXX_COMPILER),
                                 "-DCMAKE_CXX_FLAGS=" + QString(VELMORA_HOST_CXX_FLAGS),
                                 "-DCMAKE_BUILD_TYPE=RelWithDebInfo"};
        if (!QString(VELMORA_HOST_CXX_LAUNCHER).isEmpty())
            configure << "-DCMAKE_CXX_COMPILER_LAUNCHER=" + QString(VELMORA_HOST_CXX_LAUNCHER);
        const StepResult configured = run(VELMORA_CMAKE_COMMAND, configure);
        ASSERT_TRUE(configured.finished && configured.exitCode == 0) << configured.output.toStdString();
        const StepResult built = run(VELMORA_CMAKE_COMMAND, {"--build", hostBuild()});
        ASSERT_TRUE(built.finished && built.exitCode == 0) << built.output.toStdString();
    }

    QTemporaryDir m_dir;
};

TEST_F(InstalledPackageTest, AHostBuiltAgainstTheInstalledPackageOpensTheDialogOnAnEmulatedSwitch)
{
    ASSERT_TRUE(m_dir.isValid());
    ASSERT_NO_FATAL_FAILURE(install());

    // The library by its SONAME, the headers of the module and of the client libraries it
    // exposes, and the package files.
    const QDir lib(QDir(prefix()).filePath("lib"));
    const QString library = QFileInfo(lib.filePath("libvelmora.so.1.0")).canonicalFilePath();
    EXPECT_FALSE(library.isEmpty());
    for (const char* link : {"libvelmora.so", "libvelmora.so.1"}) {
        EXPECT_TRUE(QFileInfo(lib.filePath(link)).isSymLink()) << link;
        EXPECT_EQ(QFileInfo(lib.filePath(link)).canonicalFilePath().toStdString(), library.toStdString()) << link;
    }
    const QString readelf = QStandardPaths::findExecutable("readelf");
    if (!readelf.isEmpty()) {
        const StepResult dynamic = run(readelf, {"-d", library});
        EXPECT_TRUE(dynamic.output.contains("Library soname: [libvelmora.so.1]")) << dynamic.output.toStdString();
    }
    for (const char* header : {"include/velmora/ui/SwitchDeviceStatusWidget.h", "include/velmora/ui/DeviceStatusWidget.h",
                               "include/velmora/logical/interface/ParamInterface.h",
                               "include/velmora/platform/TarvexGUIToolkit/BaseDialog.h",
                               "include/velmora/platform/ostrand/DeviceRegistry.h",
                               "include/velmora/platform/JSONStruct/Switch/SwitchJSONStruct.h",
                               "lib/cmake/Velmora/VelmoraConfig.cmake", "lib/cmake/Velmora/VelmoraConfigVersion.cmake",
                               "lib/cmake/Velmora/VelmoraTargets.cmake"})
        EXPECT_TRUE(QFileInfo::exists(QDir(prefix()).filePath(header))) << header;

    ASSERT_NO_FATAL_FAILURE(buildHost());

    const QString fleetPath = m_dir.filePath("host-fleet.json");
    QFile fleet(fleetPath);
    ASSERT_TRUE(fleet.open(QIODevice::WriteOnly));
    fleet.write(kHostFleet);
    fleet.close();
    EmulatorProcess emulator(fleetPath.toStdString());
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    const std::string id = emulator.deviceId(120, "QN-1062");
    ASSERT_FALSE(id.empty());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    const StepResult host = run(QDir(hostBuild()).filePath("velmora-host"),
                                {QString::fromStdString(emulator.registryPath()), QString::fromStdString(id)},
                                environment);
    ASSERT_TRUE(host.finished) << host.output.toStdString();
    EXPECT_EQ(host.exitCode, 0) << host.output.toStdString();
    EXPECT_TRUE(host.output.contains("device: Device host switch")) << host.output.toStdString();
    EXPECT_TRUE(host.output.contains("options: 4")) << host.output.toStdString();
    EXPECT_TRUE(host.output.contains("selected row: 0 (DeviceStatus)")) << host.output.toStdString();
    EXPECT_TRUE(host.output.contains("device status page: shown")) << host.output.toStdString();
    EXPECT_FALSE(emulator.requestLog(id).empty()) << "the host asked the emulated switch";
}

} // namespace
