#include "ViewerOptions.h"

#include <QLocale>

namespace velmora {
namespace viewer {

ViewerOptions parseViewerOptions(const QStringList& arguments)
{
    ViewerOptions options;
    auto valueOf = [&](int& i, const QString& name) -> QString {
        if (i + 1 >= arguments.size()) {
            options.error = QString("%1 needs a value").arg(name);
            return QString();
        }
        return arguments.at(++i);
    };
    for (int i = 1; i < arguments.size() && options.error.isEmpty(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == "--list") {
            options.list = true;
        } else if (argument == "--all") {
            options.all = true;
        } else if (argument == "--ap-view") {
            options.apView = true;
        } else if (argument == "--device") {
            options.deviceId = valueOf(i, argument);
        } else if (argument == "--snapshot") {
            options.snapshotDir = valueOf(i, argument);
        } else if (argument == "--registry") {
            options.registryPath = valueOf(i, argument);
        } else if (argument == "--ap") {
            options.apIp = valueOf(i, argument);
        } else if (argument == "--settle") {
            bool ok = false;
            options.settleMs = valueOf(i, argument).toInt(&ok);
            if (options.error.isEmpty() && (!ok || options.settleMs < 0))
                options.error = "--settle needs a number of milliseconds";
        } else if (argument == "--lang") {
            options.language = valueOf(i, argument);
            if (options.error.isEmpty() && options.language != "en" && options.language != "zh_CN" &&
                options.language != "keys")
                options.error = "--lang needs en, zh_CN or keys";
        } else if (argument == "--help" || argument == "-h") {
            options.help = true;
        } else {
            options.error = QString("unknown argument %1").arg(argument);
        }
    }
    if (options.error.isEmpty() && !options.help && !options.list) {
        if (!options.snapshotDir.isEmpty() && options.deviceId.isEmpty() && !options.all)
            options.error = "--snapshot needs --device ID or --all";
    }
    return options;
}

QString viewerLanguage(const ViewerOptions& options)
{
    if (!options.language.isEmpty())
        return options.language;
    return QLocale::system().language() == QLocale::Chinese ? QStringLiteral("zh_CN") : QStringLiteral("en");
}

QString viewerUsage()
{
    return QStringLiteral(
        "usage: velmora-viewer [--registry FILE] [--lang LANG]\n"
        "       velmora-viewer [--registry FILE] --list\n"
        "       velmora-viewer [--registry FILE] [--lang LANG] --device ID [--ap-view [--ap IP]]\n"
        "       velmora-viewer [--registry FILE] [--lang LANG] --snapshot DIR (--device ID | --all) [--ap-view [--ap IP]]\n"
        "                      [--settle MS]\n"
        "\n"
        "  (no option)     the fleet window: the devices of the registry, searchable and sortable;\n"
        "                  double-click or Enter opens a device's status dialog, several at once\n"
        "  --list          print the devices of the registry (id, category, model, name)\n"
        "  --device ID     open the status dialog on one device\n"
        "  --snapshot DIR  without a window: click every row of the dialog and write each page\n"
        "                  to DIR/<model>_<name>_<id-start>_<row>_<key>.png\n"
        "  --all           with --snapshot: every device of the registry\n"
        "  --ap-view       on a wireless controller, also open the view of one managed AP\n"
        "                  (snapshots: <model>_<name>_<id-start>_ap_<row>_<key>.png, then the way back)\n"
        "  --ap IP         the AP of --ap-view (default: the first the controller lists)\n"
        "  --settle MS     event loop time after each click in snapshot mode (default 100)\n"
        "  --lang LANG     en, zh_CN or keys (the raw tr keys); default: the system locale's\n"
        "                  language, zh_CN for Chinese and en for any other\n"
        "  --registry FILE the device registry (default: VELMORA_REGISTRY or ./velmora-registry.json)\n");
}

} // namespace viewer
} // namespace velmora
