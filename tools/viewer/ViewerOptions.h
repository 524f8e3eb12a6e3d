#pragma once
// The viewer's command line.
#include <QString>
#include <QStringList>

namespace velmora {
namespace viewer {

struct ViewerOptions {
    bool list = false;             // --list: print the registry's devices
    bool all = false;              // --all: every device of the registry (snapshots)
    bool apView = false;           // --ap-view: also the view of one AP managed by a controller
    QString deviceId;              // --device ID; without it (and without --list) the fleet window opens
    QString snapshotDir;           // --snapshot DIR: render pages to PNG, no window
    QString registryPath;          // --registry FILE, instead of VELMORA_REGISTRY
    QString apIp;                  // --ap IP: the AP to open in the AP view (default: the first)
    int settleMs = 100;            // --settle MS: event loop time after each click
    QString language;              // --lang en|zh_CN|keys; empty: from the system locale
    bool help = false;
    QString error;                 // not empty when the command line is wrong
};

ViewerOptions parseViewerOptions(const QStringList& arguments);
// The language of --lang, or without it of the system locale: "zh_CN" for a Chinese
// locale, "en" for any other. "keys" shows the raw tr keys.
QString viewerLanguage(const ViewerOptions& options);
QString viewerUsage();

} // namespace viewer
} // namespace velmora
