// A host of the status dialog, as a client program would be: it looks a device up in the
// device registry, opens the dialog on it, marks a port alarm on the front panel and asks
// the first page for a full refresh. Prints what the dialog shows and exits 0 when the
// dialog opened on its first page.
//
//     velmora-host <registry.json> <device id>
#include <QApplication>
#include <QLabel>
#include <QTreeView>
#include <cjson/cJSON.h>
#include <cstdio>
#include <cstdlib>

#include "DeviceStatusWidget.h"
#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "SwitchDeviceStatusWidget.h"
#include "ostrand/DeviceRegistry.h"

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s <registry.json> <device id>\n", argv[0]);
        return 2;
    }
    if (!std::getenv("DISPLAY") && !std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);

    // The host knows its devices; here they come from the registry file.
    ostrand::CDeviceRegistry::instance().setPath(argv[1]);
    const auto device = ostrand::CDeviceRegistry::instance().find(argv[2]);
    if (!device) {
        std::fprintf(stderr, "no device %s in %s\n", argv[2], argv[1]);
        return 1;
    }
    cJSON* json = cJSON_Parse(device->capabilitiesJson.c_str());
    const protocol::SwitchCapabilities capabilities(json);
    cJSON_Delete(json);

    // Opening: when the constructor returns, the dialog shows its first page.
    velmora::CSwitchDeviceStatusWidget dialog(device->id, capabilities, nullptr);
    dialog.show();

    const QTreeView* options = dialog.findChild<QTreeView*>("m_pItemTreeView");
    const QLabel* name = dialog.findChild<QLabel*>("deviceName");
    const int optionCount = options && options->model() ? options->model()->rowCount() : 0;
    const int selectedRow = options ? options->currentIndex().row() : -1;
    std::printf("device: %s\n", name ? name->text().toUtf8().constData() : "");
    std::printf("options: %d\n", optionCount);
    std::printf("selected row: %d (%s)\n", selectedRow,
                selectedRow >= 0 ? options->currentIndex().data().toString().toUtf8().constData() : "");

    // An alarm of port 1 from the host's alarm service, then a refresh of everything.
    velmora::CDeviceStatusWidget* status = dialog.getDeviceStatusWidget();
    if (status) {
        status->setPortAlarmState(1, true);
        status->showStatusPublic();
    }
    std::printf("device status page: %s\n", status ? "shown" : "missing");

    dialog.close();
    return optionCount > 0 && selectedRow == 0 && status ? 0 : 1;
}
