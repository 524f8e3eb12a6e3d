#pragma once
// Table of the PoE page: one row per port that can supply power, its switch and its output.
#include <QString>
#include <vector>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

struct PoePortStatusData {
    QString strPortName;
    bool bEnable = false;
    QString strOutputPower;
};

class CPOEPortStatusModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    enum Column { PORT_NAME, POE_SWITCH, OUTPUT_POWER, COLUMN_COUNT };

    explicit CPOEPortStatusModel(QObject* parent);

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    void setPoePortStatus(const std::vector<PoePortStatusData>& rows);
};

} // namespace velmora
