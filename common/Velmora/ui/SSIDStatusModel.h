#pragma once
// Table of the SSIDs of one band of a stand-alone AP.
#include <QString>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct SSIDRowData {
    QString strSSID;
    QString strMac;
    QString strEnable;
    QString strSecurity;
};

class CSSIDStatusModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    // The security mode stands before the enable state, unlike in the row record.
    enum Column { SSID, MAC, SECURITY_MODE, ENABLE_STATUS, COLUMN_COUNT };

    explicit CSSIDStatusModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    void setSSIDInfo(const std::vector<SSIDRowData>& rows);
};

} // namespace velmora
