#pragma once
// The devices of the registry as the fleet window lists them: one row per device, the
// device's identifier kept in Qt::UserRole of every cell so that a sorted or filtered view
// still knows which device a row is.
#include <QString>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"
#include "ostrand/DeviceRegistry.h"

namespace velmora {
namespace viewer {

// One row of the fleet table, as shown.
struct FleetDeviceRow {
    QString strId;
    QString strName;
    QString strClass;   // deviceTypeToString of the category
    int category = 0;   // the device's category, to name the class again in another language
    QString strModel;
    QString strAddress; // address:port
};

// The row of `device`.
FleetDeviceRow fleetDeviceRow(const ostrand::DeviceEntry& device);

class CFleetModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { COLUMN_NAME, COLUMN_CLASS, COLUMN_MODEL, COLUMN_ADDRESS, COLUMN_COUNT };
    // The role of every cell that holds the row's device identifier.
    static constexpr int kDeviceIdRole = Qt::UserRole;
    // The role of the class cell that holds the device's category.
    static constexpr int kCategoryRole = Qt::UserRole + 1;

    explicit CFleetModel(QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    // Sets the column titles and the class names from the installed catalogs.
    void retranslate();

    // Replaces all rows.
    void setDevices(const std::vector<FleetDeviceRow>& rows);
    // The identifier of the device in `index`'s row (of this model or of a proxy over it).
    static QString deviceId(const QModelIndex& index);
};

} // namespace viewer
} // namespace velmora
