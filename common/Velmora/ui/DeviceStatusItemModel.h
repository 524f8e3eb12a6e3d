#pragma once
// Model of the status dialog's option tree: one flat list of titled rows, each carrying its
// option key under Qt::UserRole.
#include <QString>
#include <map>

#include "TarvexGUIToolkit/StandardItemModel.h"

namespace velmora {

class CDeviceStatusItemModel : public TarvexGUIToolkit::CStandardItemModel {
    Q_OBJECT
public:
    explicit CDeviceStatusItemModel(QObject* parent = nullptr);
    ~CDeviceStatusItemModel() override;

    // Replaces every row by one row per entry, in key order: the title as text, the key as
    // an integer under Qt::UserRole. An empty map leaves the model empty.
    void setOptionItems(const std::map<int, QString>& items);
};

} // namespace velmora
