#pragma once
// Table of what hangs on each port of a switch, as the client's topology service sees it.
#include <string>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct PortDetailInfo {
    std::string strPortKey; // one character: the low byte of the port's linkPort, for sorting
    std::string strPortName;
    int nDeviceCategory = 0;
    int nDeviceClassType = 0;
    std::string strIp;
    std::string strAlias;
};

class CPortDetailInfoModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { PORT_NAME, OPPOSITE_DEVICE_TYPE, OPPOSITE_IP_ADDRESS, OPPOSITE_DEVICE_ALIAS, COLUMN_COUNT };

    explicit CPortDetailInfoModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    // Rebuilds the table in port order; sorts `rows` in place.
    void setPortDetailData(std::vector<PortDetailInfo>& rows);

    // The text of the device type column for a far device.
    static QString oppositeDeviceType(int deviceCategory, int deviceClassType);
};

} // namespace velmora
