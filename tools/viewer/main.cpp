// velmora-viewer: a host program of the status dialog (see --help).
#include <QApplication>
#include <QDir>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "DeviceTypeString.h"
#include "FleetWindow.h"
#include "PageSnapshots.h"
#include "SwitchDeviceStatusWidget.h"
#include "ViewerTranslations.h"
#include "ViewerOptions.h"
#include "ostrand/DeviceRegistry.h"

using namespace velmora;
using namespace velmora::viewer;

namespace {

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream& err()
{
    static QTextStream stream(stderr);
    return stream;
}

QtMessageHandler g_qtMessageHandler = nullptr;

// The offscreen platform tells of every window it can't size from hints; nothing to act on.
void quietOffscreenNotes(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message == QLatin1String("This plugin does not support propagateSizeHints()"))
        return;
    if (g_qtMessageHandler)
        g_qtMessageHandler(type, context, message);
}

int listDevices()
{
    const std::vector<ostrand::DeviceEntry> devices = ostrand::CDeviceRegistry::instance().devices();
    if (devices.empty()) {
        err() << "no devices in " << QString::fromStdString(ostrand::CDeviceRegistry::instance().path()) << " "
              << QString::fromStdString(ostrand::CDeviceRegistry::instance().lastError()) << Qt::endl;
        return 1;
    }
    for (const ostrand::DeviceEntry& device : devices) {
        out() << QString::fromStdString(device.id) << '\t' << device.category << '\t'
              << deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(device.category)) << '\t'
              << QString::fromStdString(device.model) << '\t' << QString::fromUtf8(device.name.c_str()) << '\t'
              << QString::fromStdString(device.address) << ':' << device.port << Qt::endl;
    }
    return 0;
}

// Every page of one device, and with --ap-view on a controller the AP view and the way back.
QStringList snapshotDevice(const ostrand::DeviceEntry& device, const ViewerOptions& options, QStringList* problems)
{
    // Files are named by model and name first, so that a listing reads like the fleet; the
    // identifier's first block keeps two devices of the same name apart.
    const QString id = QString::fromStdString(device.id);
    const QString prefix = fileSafe(QString("%1_%2_%3")
                                        .arg(QString::fromStdString(device.model), QString::fromUtf8(device.name.c_str()),
                                             id.section('-', 0, 0)));
    CSwitchDeviceStatusWidget dialog(device.id, capabilitiesFromJson(device.capabilitiesJson), nullptr);
    dialog.show();
    settle(options.settleMs);

    QStringList written = snapshotRows(dialog, options.snapshotDir, prefix, options.settleMs, problems);
    if (options.apView && device.category == tarvex7300::Device::WirelessController) {
        QString error;
        if (openApView(dialog, device.id, options.apIp, options.settleMs, &error)) {
            written += snapshotRows(dialog, options.snapshotDir, prefix + "_ap", options.settleMs, problems);
            if (pressBack(dialog, options.settleMs)) {
                const QString back = snapshotCurrent(dialog, options.snapshotDir, prefix + "_back", problems);
                if (!back.isEmpty())
                    written.append(back);
            }
        } else {
            problems->append(QString("%1: no AP view: %2").arg(prefix, error));
        }
    }
    dialog.hide();
    return written;
}

int takeSnapshots(const ViewerOptions& options)
{
    if (!QDir().mkpath(options.snapshotDir)) {
        err() << "cannot create " << options.snapshotDir << Qt::endl;
        return 1;
    }
    std::vector<ostrand::DeviceEntry> devices;
    if (options.all) {
        devices = ostrand::CDeviceRegistry::instance().devices();
    } else if (auto device = ostrand::CDeviceRegistry::instance().find(options.deviceId.toStdString())) {
        devices.push_back(*device);
    } else {
        err() << "no device " << options.deviceId << " in "
              << QString::fromStdString(ostrand::CDeviceRegistry::instance().path()) << Qt::endl;
        return 1;
    }

    QStringList written;
    QStringList problems;
    for (const ostrand::DeviceEntry& device : devices) {
        const QStringList files = snapshotDevice(device, options, &problems);
        for (const QString& file : files)
            out() << "wrote " << file << Qt::endl;
        written += files;
    }
    for (const QString& problem : problems)
        err() << "warning: " << problem << Qt::endl;
    out() << written.size() << " pages of " << devices.size() << " devices in "
          << QDir(options.snapshotDir).absolutePath() << Qt::endl;
    return written.isEmpty() ? 1 : 0;
}

int openDialog(QApplication& app, const ViewerOptions& options)
{
    if (QGuiApplication::platformName() == "offscreen") {
        err() << "velmora-viewer: no display to open the dialog on; use --snapshot DIR" << Qt::endl;
        return 2;
    }
    auto device = ostrand::CDeviceRegistry::instance().find(options.deviceId.toStdString());
    if (!device) {
        err() << "no device " << options.deviceId << " in "
              << QString::fromStdString(ostrand::CDeviceRegistry::instance().path()) << Qt::endl;
        return 1;
    }
    auto dialog = std::make_unique<CSwitchDeviceStatusWidget>(device->id, capabilitiesFromJson(device->capabilitiesJson),
                                                              nullptr);
    QObject::connect(dialog.get(), &QDialog::finished, &app, &QApplication::quit);
    dialog->show();
    if (options.apView && device->category == tarvex7300::Device::WirelessController) {
        QString error;
        if (!openApView(*dialog, device->id, options.apIp, options.settleMs, &error))
            err() << "no AP view: " << error << Qt::endl;
    }
    return app.exec();
}

int openFleetWindow(QApplication& app)
{
    if (QGuiApplication::platformName() == "offscreen") {
        err() << "velmora-viewer: no display to open the fleet window on; use --list or --snapshot DIR" << Qt::endl;
        return 2;
    }
    CFleetWindow window;
    window.show();
    return app.exec();
}

} // namespace

int main(int argc, char** argv)
{
    // Only the dialog's window needs a display; listing and snapshots render offscreen.
    bool needsDisplay = true;
    for (int i = 1; i < argc; ++i) {
        const QString argument(argv[i]);
        if (argument == "--snapshot" || argument == "--list" || argument == "--help" || argument == "-h")
            needsDisplay = false;
    }
    const bool hasDisplay = std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
    if (!std::getenv("QT_QPA_PLATFORM") && (!needsDisplay || !hasDisplay))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    g_qtMessageHandler = qInstallMessageHandler(quietOffscreenNotes);
    // Sharp on dense screens: Qt scales by the screen's ratio and the module picks its "@2x"
    // images (QT_SCALE_FACTOR=2 gives the same offscreen, for snapshots).
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    const ViewerOptions options = parseViewerOptions(app.arguments());
    if (options.help) {
        out() << viewerUsage();
        return 0;
    }
    if (!options.error.isEmpty()) {
        err() << "velmora-viewer: " << options.error << "\n\n" << viewerUsage();
        return 2;
    }
    if (!options.registryPath.isEmpty()) {
        // Both the environment and the registry object: the module and the viewer each read it.
        setenv("VELMORA_REGISTRY", options.registryPath.toLocal8Bit().constData(), 1);
        ostrand::CDeviceRegistry::instance().setPath(options.registryPath.toStdString());
    }

    // Installed before the first widget is made: forms take their texts when they are set up.
    const QString language = viewerLanguage(options);
    if (!installViewerLanguage(language))
        err() << "velmora-viewer: no translations for " << language << "; showing the keys" << Qt::endl;

    if (options.list)
        return listDevices();
    if (!options.snapshotDir.isEmpty())
        return takeSnapshots(options);
    if (options.deviceId.isEmpty())
        return openFleetWindow(app);
    return openDialog(app, options);
}
