#pragma once
// Driving the status dialog from outside, as a user would: click the rows of its option
// tree, walk from a controller to one of its APs and back, and write what it shows to PNG.
#include <QString>
#include <QStringList>
#include <string>

#include "JSONStruct/Switch/SwitchJSONStruct.h"

namespace velmora {

class CSwitchDeviceStatusWidget;

namespace viewer {

// The capabilities of a registry entry, read from its "capabilities" JSON text; keys that
// are missing keep their defaults.
protocol::SwitchCapabilities capabilitiesFromJson(const std::string& json);

// Runs the event loop for `ms`, after any background job of the global thread pool ended.
void settle(int ms);

// Clicks every row of the dialog's option tree through the tree's own click signal and
// writes the dialog after each to `dir`/<prefix>_<row>_<key>.png. Returns the files written.
QStringList snapshotRows(CSwitchDeviceStatusWidget& dialog, const QString& dir, const QString& prefix,
                         int settleMs, QStringList* problems);

// Writes the dialog as it stands to `dir`/<prefix>_<row>_<key>.png, with the selected row.
QString snapshotCurrent(CSwitchDeviceStatusWidget& dialog, const QString& dir, const QString& prefix,
                        QStringList* problems);

// On a controller: opens the view of the AP `apIp` (the first AP the controller lists when
// empty). The managed AP list's own signal is used when the dialog listens to it (AP groups),
// the dialog's slot otherwise. False when the controller lists no such AP.
bool openApView(CSwitchDeviceStatusWidget& dialog, const std::string& deviceId, const QString& apIp,
                int settleMs, QString* error);

// Presses the dialog's back button (the way from an AP to its controller).
bool pressBack(CSwitchDeviceStatusWidget& dialog, int settleMs);

// `id` with every character that a file name should not hold replaced by "_".
QString fileSafe(const QString& id);

} // namespace viewer
} // namespace velmora
